// The line is a label, through which the pointer is the frame's.
#include "app/frmStatusRow.h"

#include <algorithm>
#include <array>

#include "app/Commands.h"
#include "app/StepNames.h"
#include "resources/resource.h"

namespace tessera {

void frmStatusRow::Create(HWND frame) {
  frame_ = frame;
  // A group of their own: arrow keys do not lead from the button to the chooser.
  lblStatus_ = CreateControl(frame, WC_STATICW, IDC_lblStatus,
                             WS_VISIBLE | WS_GROUP | SS_NOPREFIX | SS_ENDELLIPSIS | SS_CENTERIMAGE);
  // As long as there is nothing to show or to undo.
  constexpr DWORD ButtonStyle = WS_VISIBLE | WS_DISABLED | WS_TABSTOP | BS_PUSHBUTTON;
  cmdShow_ = CreateControl(frame, WC_BUTTONW, IDC_cmdShow, ButtonStyle);
  cmdUndo_ = CreateControl(frame, WC_BUTTONW, IDC_cmdUndo, ButtonStyle);
}

int frmStatusRow::CommandOf(HWND button) const {
  if (button == nullptr) return 0;
  if (button == cmdShow_) return IDM_show;
  return button == cmdUndo_ ? IDM_undo : 0;
}

void frmStatusRow::ApplyLanguage(const Texts& texts) {
  SetText(cmdShow_, texts.GetLangText(TextId::ShowHolder));
  SetText(cmdUndo_, texts.GetLangText(TextId::Undo));
}

int frmStatusRow::ApplyFont(HFONT font, int dpi) {
  font_ = font;
  dpi_ = dpi;
  GiveFont(lblStatus_, font);
  GiveFont(cmdShow_, font);
  GiveFont(cmdUndo_, font);
  return Row().Height;
}

void frmStatusRow::LayOut(int top) {
  top_ = top;
  const StatusRow row = Row();
  Place(lblStatus_, row.Line);
  Place(cmdShow_, row.Buttons[0]);
  Place(cmdUndo_, row.Buttons[1]);
  tip_.Set(frame_, {}, {}, font_);
  tipText_.clear();
}

StatusRow frmStatusRow::Row() const {
  RECT inside{};
  GetClientRect(frame_, &inside);
  const Size show = TextSize(cmdShow_, font_, TextOf(cmdShow_));
  const Size undo = TextSize(cmdUndo_, font_, TextOf(cmdUndo_));
  return LayOutStatusRow({.TextHeight = show.Height, .Captions = {show, undo}}, inside.right, top_,
                         dpi_);
}

void frmStatusRow::Sync(const Editor& editor) {
  // Rows and what is known of them may not go together while a file is loaded.
  if (editor.Document().Busy()) return;
  SetText(lblStatus_, StatusText(editor));
  const TextId caption = editor.ShowStartsCommander() ? TextId::StartCommander : TextId::ShowHolder;
  const std::wstring& shown = editor.Language().GetLangText(caption);
  if (TextOf(cmdShow_) != shown) {
    SetText(cmdShow_, shown);
    LayOut(top_);
  }
  SetEnabled(cmdShow_, CommandEnabled(editor, IDM_show));
  const bool canUndo = CommandEnabled(editor, IDM_undo);
  SetEnabled(cmdUndo_, canUndo);
  SetUndoTip(canUndo ? UndoCaption(editor) : L"");
}

/// The tip has the button's messages itself. It is made when there is something to say.
void frmStatusRow::SetUndoTip(const std::wstring& text) {
  if (text == undoTipText_) return;
  undoTipText_ = text;
  TTTOOLINFOW tool = TipTool(frame_, reinterpret_cast<UINT_PTR>(cmdUndo_));
  tool.uFlags |= TTF_IDISHWND | TTF_SUBCLASS;
  tool.lpszText = undoTipText_.data();
  const bool isNew = undoTip_ == nullptr;
  if (isNew) undoTip_ = CreateTip(frame_);
  SendMessageW(undoTip_, isNew ? TTM_ADDTOOLW : TTM_SETTOOLINFOW, 0,
               reinterpret_cast<LPARAM>(&tool));
}

void frmStatusRow::Tell(bool timerRuns) {
  const bool modifierHeld = std::ranges::any_of(std::array{VK_CONTROL, VK_MENU, VK_SHIFT}, IsHeld);
  if (lblStatus_ != nullptr && telling_.TakeIfDue(TextOf(lblStatus_), modifierHeld, timerRuns)) {
    NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, lblStatus_, OBJID_CLIENT, CHILDID_SELF);
  }
}

bool frmStatusRow::LineIsCut(const std::wstring& text) const {
  return TextSize(lblStatus_, font_, text, DT_NOPREFIX).Width > WindowArea(lblStatus_).Width;
}

void frmStatusRow::FollowPointer(WPARAM wParam, LPARAM lParam) {
  const POINT pointer{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  RECT place{};
  GetWindowRect(lblStatus_, &place);
  MapWindowPoints(nullptr, frame_, reinterpret_cast<POINT*>(&place), 2);
  std::wstring text = PtInRect(&place, pointer) != FALSE ? TextOf(lblStatus_) : L"";
  if (!LineIsCut(text)) text.clear();
  if (text != tipText_) {
    tip_.Set(frame_, place, text, font_);
    tipText_ = text;
  }
  tip_.Follow(frame_, WM_MOUSEMOVE, wParam, lParam);
}

void frmStatusRow::Forget() {
  tip_.Forget();
  frame_ = lblStatus_ = cmdShow_ = cmdUndo_ = undoTip_ = nullptr;
}

}  // namespace tessera
