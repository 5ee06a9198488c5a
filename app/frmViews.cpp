// The views of the main window, together.
#include "app/frmViews.h"

#include <algorithm>
#include <string>
#include <utility>

#include "app/Borders.h"
#include "localisation/Mnemonic.h"
#include "resources/resource.h"

namespace tessera {
namespace {

void PlaceLater(HDWP& places, HWND control, const Area& area) {
  places = DeferWindowPos(places, control, nullptr, area.Left, area.Top, area.Width, area.Height,
                          SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

frmViews::frmViews(const Editor& editor, frmFindBox::Events findEvents,
                   frmCommandList::Events listEvents, frmPanel::Events panelEvents,
                   frmKeysList::Events keysListEvents)
    : editor_(editor),
      menus_(editor),
      Toolbar1_(MainToolbar()),
      findBox_(editor, std::move(findEvents)),
      list_(editor, std::move(listEvents)),
      panel_(editor, std::move(panelEvents)),
      keysList_(std::move(keysListEvents)) {}

void frmViews::Create(HWND window, int dpi) {
  window_ = window;
  dpi_ = dpi;
  // Tab goes through them in the order in which they are made, and round: the find box comes after
  // the toolbar, and lies above it.
  findBox_.Create(window);
  list_.Create(window);
  panel_.Create(window);
  Toolbar1_.Create(window, IDC_Toolbar1);
  progressBar_.Create(window);
}

bool frmViews::AcceptsInput() const {
  return IsWindowEnabled(window_) != FALSE && !editor_.Document().Busy();
}

FocusPlace frmViews::Focus() const {
  const HWND focus = GetFocus();
  if (focus == list_.Control()) return FocusPlace::CommandList;
  if (panel_.Chooser().HasFocus) return FocusPlace::Chooser;
  if (FocusedToolbar() != nullptr) return FocusPlace::Toolbar;
  if (keysList_.HasFocus()) return FocusPlace::KeysList;
  return IsTextBox(focus) ? FocusPlace::TextBox : FocusPlace::Elsewhere;
}

const frmToolbar* frmViews::FocusedToolbar() const {
  const HWND focus = GetFocus();
  for (const frmToolbar* const toolbar : {&Toolbar1_, &panel_.Toolbar()}) {
    if (toolbar->Control() == focus) return toolbar;
  }
  return nullptr;
}

int frmViews::FocusedButton() const {
  const frmToolbar* const toolbar = FocusedToolbar();
  return toolbar != nullptr ? toolbar->HotButton() : 0;
}

Size frmViews::SmallestSize() const {
  const Size inside = SmallestInside(panel_.WholeSize(), dpi_);
  const Size frame = FrameSize(window_, dpi_, true);
  // Texts of any length must not make the window larger than its screen.
  const Area screen = WorkArea(window_);
  return {std::min(inside.Width + frame.Width, screen.Width),
          std::min(inside.Height + frame.Height, screen.Height)};
}

void frmViews::ApplyLanguage() {
  SetRightToLeft(window_, editor_.Language().RightToLeft());
  menus_.Build(window_);
  Toolbar1_.ApplyLanguage(editor_.Language());
  findBox_.ApplyLanguage();
  list_.ApplyLanguage();
  panel_.ApplyLanguage();
  keysList_.ApplyLanguage(KeysListName(), editor_.Language().RightToLeft());
}

void frmViews::ApplyDpi(int dpi) {
  dpi_ = dpi;
  Toolbar1_.ApplyDpi(dpi);
  panel_.ApplyDpi(dpi);
  list_.ApplyDpi(dpi);
  ApplyFonts();
}

void frmViews::ApplyFonts() {
  const LOGFONTW messageFont = MessageFont(dpi_, editor_.Options().FontScript);
  Unique<HFONT> font(CreateFontIndirectW(&messageFont));
  panel_.ApplyFont(font.get(), dpi_);
  GiveFont(Toolbar1_.Control(), font.get());
  findBox_.ApplyFont(font.get());
  keysList_.ApplyFont(font.get(), dpi_);
  font_ = std::move(font);
  list_.ApplyFont();
  LayOut();
}

void frmViews::ApplyDisplaySettings() {
  const Border border = ToolbarBorder(editor_.Options());
  list_.ApplyDisplaySettings();
  SetStyleBits(Toolbar1_.Control(), GWL_STYLE, WS_BORDER, border == Border::Line);
  SetStyleBits(Toolbar1_.Control(), GWL_EXSTYLE, WS_EX_STATICEDGE, border == Border::Sunken);
  LayOut();
}

void frmViews::LayOut() {
  if (!placed_ || IsIconic(window_) != FALSE) return;
  const HWND toolbar = Toolbar1_.Control();
  const int toolbarHeight = editor_.Options().ToolbarVisible != 0 ? Toolbar1_.Height(dpi_) : 0;
  RECT inside{};
  GetClientRect(window_, &inside);
  const MainLayout layout =
      LayOutMainWindow(inside.right, inside.bottom, toolbarHeight, panel_.WholeSize().Height);
  ShowWindow(toolbar, toolbarHeight > 0 ? SW_SHOWNA : SW_HIDE);
  HDWP places = BeginDeferWindowPos(4);
  PlaceLater(places, toolbar, layout.Toolbar1);
  PlaceLater(places, list_.Control(), layout.ListView1);
  PlaceLater(places, panel_.Control(), layout.Frame1);
  PlaceLater(places, progressBar_.Control(), PlaceProgressBar(layout.ListView1, dpi_));
  EndDeferWindowPos(places);
  findBox_.PlaceAt(
      PlaceFindBox(layout.Toolbar1, Toolbar1_.ButtonsSize().Width, findBox_.CueSize(), dpi_));
}

void frmViews::LayOutFromNowOn() {
  placed_ = true;
  LayOut();
}

void frmViews::MoveKeysList() {
  const Area size = keysList_.Size();
  keysList_.MoveTo(PlaceKeysList({.Panel = WindowArea(panel_.Control()),
                                  .Button = panel_.AllKeysButton(),
                                  .Screen = WorkArea(window_),
                                  .RightToLeft = editor_.Language().RightToLeft()},
                                 size.Width, size.Height));
}

void frmViews::Forward(UINT message, WPARAM wParam, LPARAM lParam) const {
  for (const HWND control :
       {Toolbar1_.Control(), list_.Control(), panel_.Toolbar().Control(), progressBar_.Control()}) {
    SendMessageW(control, message, wParam, lParam);
  }
}

void frmViews::Show(const LoadProgress& progress) { progressBar_.Show(progress); }

void frmViews::Sync() {
  // The controls go before their window.
  if (GetDlgItem(window_, IDC_ListView1) == nullptr) return;
  SetText(window_, editor_.Document().Caption());
  findBox_.Sync();
  list_.Sync();
  SyncKeys();
}

void frmViews::SyncKeys() {
  panel_.Sync();
  SyncCommands();
  SyncKeysList();
  panel_.TellStatus();
}

void frmViews::SyncMenus() const {
  menus_.FillRecentFiles();
  SyncCommands();
}

void frmViews::Forget() {
  menus_.Forget();
  Toolbar1_.Forget();
  findBox_.Forget();
  list_.Forget();
  panel_.Forget();
  progressBar_.Forget();
  window_ = nullptr;
  placed_ = false;
}

void frmViews::SyncCommands() const {
  for (const CommandState& state : CommandStates(editor_)) {
    Toolbar1_.ShowState(state.Id, state.Enabled, state.Checked);
    panel_.ShowState(state);
    menus_.ShowState(state);
  }
}

// Few users open the list, so it is made when it first opens.
void frmViews::CreateKeysList() {
  keysList_.Create(window_);
  keysList_.ApplyFont(font_.get(), dpi_);
  keysList_.ApplyLanguage(KeysListName(), editor_.Language().RightToLeft());
}

std::wstring frmViews::KeysListName() const {
  return WithoutMnemonic(editor_.Language().GetLangText(TextId::Hotkey));
}

void frmViews::SyncKeysList() {
  const KeysList& list = editor_.AllKeys();
  if (list.Visible() && !keysList_.Created()) CreateKeysList();
  keysList_.Select(list.Selection());
  if (list.Visible()) keysList_.ShowTaken(list.TakenKeys());
  // While the window is minimised the system hides the list with it.
  if (list.Visible() == keysList_.Visible() || IsIconic(window_) != FALSE) return;
  if (list.Visible()) {
    MoveKeysList();
    keysList_.Show();
  } else {
    keysList_.Hide();
  }
}

}  // namespace tessera
