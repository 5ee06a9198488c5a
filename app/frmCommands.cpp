// The views show the editor's new state before the window does its part.
#include "app/frmCommands.h"

namespace tessera {

frmCommands::frmCommands(Editor& editor, frmViews& views, frmWork& work, Clock& clock)
    : editor_(editor),
      views_(views),
      work_(work),
      clock_(clock),
      frmExportToClipboard_(editor.Language(), editor.Options()),
      frmOptions_(editor.Language(), editor.Options()) {}

void frmCommands::Run(int id, HWND control) {
  if (!IsCommand(id) || !views_.AcceptsInput()) return;
  if (views_.IsMainToolbar(control)) clock_.DoEvents();
  // The events before it may have started something else.
  const WindowTask task = views_.AcceptsInput() ? RunCommand(editor_, id) : WindowTask::None;
  views_.Sync();
  Do(task);
}

void frmCommands::Do(WindowTask task) {
  switch (task) {
    case WindowTask::LayOut:
      views_.LayOut();
      break;
    case WindowTask::ShowSelectedRow:
      views_.List().ShowSelectedRow();
      break;
    case WindowTask::FocusFindBox:
      views_.FindBox().TakeFocus();
      break;
    case WindowTask::ShowExport:
      mnuFileExportToClipboard_Click();
      break;
    case WindowTask::ShowOptions:
      mnuViewOptions_Click();
      break;
    case WindowTask::Close:
      PostMessageW(views_.Window(), WM_CLOSE, 0, 0);
      break;
    case WindowTask::None:
      break;
  }
}

void frmCommands::mnuFileExportToClipboard_Click() {
  work_.HideKeysList();
  frmExportToClipboard_.Show(views_.Window(), editor_.BeginExport());
  editor_.EndExport();
}

void frmCommands::mnuViewOptions_Click() {
  work_.HideKeysList();
  frmOptions_.Show(views_.Window(), editor_.BeginOptions());
  views_.ApplyFonts();
  views_.ApplyDisplaySettings();
  // May show a box, behind which the window is to have its new looks.
  const OptionsOutcome outcome = editor_.EndOptions();
  if (views_.Window() == nullptr) return;  // it went with the session while the dialog was open
  if (outcome.LanguageChanged) {
    views_.ApplyLanguage();
    views_.ApplyFonts();
    views_.ApplyDisplaySettings();
    // Controls that move while a window is mirrored may stay half unpainted.
    RedrawWindow(views_.Window(), nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
  }
  work_.React(outcome.Panel);
  views_.Sync();
}

void frmCommands::OpenDropped(const std::wstring& path) {
  if (!views_.AcceptsInput() || path.empty()) return;
  SetForegroundWindow(views_.Window());
  editor_.OpenShortcutFile(false, path, true);
  views_.Sync();
  views_.List().ShowSelectedRow();
}

}  // namespace tessera
