// The main toolbar and the panel's, their images and the menus under their buttons.
#include <algorithm>
#include <vector>

#include "app/frmMain.h"
#include "app/ToolbarSpecification.h"
#include "localisation/Mnemonic.h"
#include "platform/win32/Icons.h"
#include "resources/icons.h"
#include "resources/resource.h"

namespace tessera {

namespace {

/// A button's one-item menu.
struct DropDown {
  int ButtonId;
  int ItemId;
  TextId Caption;
};

constexpr DropDown DropDowns[] = {
    {IDM_mnuFileSave, IDM_restarttc, TextId::SaveAndRestart},
    {IDM_assign, IDM_new, TextId::AddHotkey},
    {IDM_delete, IDM_delall, TextId::DeleteAllHotkeys},
};

constexpr std::wstring_view MainToolbar = L"5Open,5Save,3,1Sort Command List,3,0Options";
constexpr std::wstring_view MainToolbarTags = L"103,104,149,150";

struct ButtonCommand {
  std::wstring_view Key;
  int Id;
};

constexpr ButtonCommand MainButtonCommands[] = {
    {L"open", IDM_mnuFileOpen},
    {L"save", IDM_mnuFileSave},
    {L"sort command list", IDM_mnuViewSortList},
    {L"options", IDM_mnuViewOptions},
};

/// A toolbar button; with Id 0 a separator. Its image has the button's place among the buttons.
struct Button {
  int Id;
  BYTE Style;
  TextId ToolTip;  ///< none: its tool tip is the key that does the same
  std::wstring_view Key{};
};

BYTE StyleOf(ToolbarStyle style) {
  switch (style) {
    case ToolbarStyle::Check:
      return BTNS_CHECK;
    case ToolbarStyle::Separator:
      return BTNS_SEP;
    case ToolbarStyle::DropDown:
      return BTNS_DROPDOWN;
    case ToolbarStyle::Normal:
      break;
  }
  return BTNS_BUTTON;
}

std::vector<Button> MainButtons() {
  std::vector<Button> buttons;
  for (const ToolbarButton& parsed : ParseToolbar(MainToolbar, MainToolbarTags)) {
    const auto* const command =
        std::ranges::find(MainButtonCommands, parsed.Key, &ButtonCommand::Key);
    const int id = command != std::end(MainButtonCommands) ? command->Id : 0;
    buttons.push_back({id, StyleOf(parsed.Style), parsed.ToolTip});
  }
  return buttons;
}

constexpr Button PanelButtons[] = {
    {IDM_assign, BTNS_DROPDOWN, TextId::None, L"ENTER"},
    {0, BTNS_SEP, TextId::None},
    {IDM_delete, BTNS_DROPDOWN, TextId::None, L"DEL"},
};

constexpr int Images[] = {IDI_OPEN, IDI_SAVE, IDI_SORT, IDI_OPTIONS, IDI_ASSIGN, IDI_DELETE};
constexpr int DisabledImages[] = {IDI_OPEN_DISABLED,    IDI_SAVE_DISABLED,   IDI_SORT_DISABLED,
                                  IDI_OPTIONS_DISABLED, IDI_ASSIGN_DISABLED, IDI_DELETE_DISABLED};
constexpr int FirstPanelImage = 4;

HWND CreateToolbar(HWND parent, int id, std::span<const Button> buttons, int firstImage) {
  const HWND toolbar =
      CreateControl(parent, TOOLBARCLASSNAMEW,
                    WS_VISIBLE | WS_TABSTOP | CCS_NODIVIDER | CCS_NORESIZE | CCS_NOPARENTALIGN |
                        TBSTYLE_FLAT | TBSTYLE_LIST | TBSTYLE_TOOLTIPS,
                    0, id);
  SendMessageW(toolbar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
  // A text that no button shows is what its tool tip and its accessible name are.
  SendMessageW(toolbar, TB_SETEXTENDEDSTYLE, 0,
               TBSTYLE_EX_DRAWDDARROWS | TBSTYLE_EX_MIXEDBUTTONS | TBSTYLE_EX_DOUBLEBUFFER);
  std::vector<TBBUTTON> added;
  for (int image = firstImage; const Button& button : buttons) {
    const bool separator = button.Style == BTNS_SEP;
    TBBUTTON shown{};
    shown.iBitmap = separator ? 0 : image++;
    shown.idCommand = button.Id;
    shown.fsState = TBSTATE_ENABLED;
    shown.fsStyle = button.Style;
    added.push_back(shown);
  }
  SendMessageW(toolbar, TB_ADDBUTTONSW, added.size(), reinterpret_cast<LPARAM>(added.data()));
  return toolbar;
}

void SetButtonText(HWND toolbar, int id, std::wstring text) {
  TBBUTTONINFOW information{};
  information.cbSize = sizeof information;
  information.dwMask = TBIF_TEXT;
  information.pszText = text.data();
  SendMessageW(toolbar, TB_SETBUTTONINFOW, static_cast<WPARAM>(id),
               reinterpret_cast<LPARAM>(&information));
}

void ShowStateOnToolbar(HWND toolbar, int id, bool enabled, bool checked) {
  const auto state = SendMessageW(toolbar, TB_GETSTATE, static_cast<WPARAM>(id), 0);
  if (state == -1) {
    return;
  }
  const LRESULT shown = (state & ~(TBSTATE_ENABLED | TBSTATE_CHECKED)) |
                        (enabled ? TBSTATE_ENABLED : 0) | (checked ? TBSTATE_CHECKED : 0);
  if (shown != state) {
    SendMessageW(toolbar, TB_SETSTATE, static_cast<WPARAM>(id), shown);
  }
}

}  // namespace

void frmMain::CreateToolbars() {
  Toolbar1_ = CreateToolbar(window_, IDC_Toolbar1, MainButtons(), 0);
  Toolbar2_ = CreateToolbar(Frame1_, IDC_Toolbar2, PanelButtons, FirstPanelImage);
}

void frmMain::LabelToolbars() {
  const Texts& texts = editor_.Language();
  for (const Button& button : MainButtons()) {
    if (button.ToolTip != TextId::None) {
      SetButtonText(Toolbar1_, button.Id, WithoutMnemonic(texts.GetLangText(button.ToolTip)));
    }
  }
  for (const Button& button : PanelButtons) {
    SetButtonText(Toolbar2_, button.Id, std::wstring(button.Key));
  }
}

void frmMain::LoadToolbarImages() {
  const int size = Scaled(16, dpi_);
  Unique<HIMAGELIST> images = LoadImages(Images, size);
  Unique<HIMAGELIST> disabledImages = LoadImages(DisabledImages, size);
  for (const HWND toolbar : {Toolbar1_, Toolbar2_}) {
    SendMessageW(toolbar, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images.get()));
    SendMessageW(toolbar, TB_SETDISABLEDIMAGELIST, 0,
                 reinterpret_cast<LPARAM>(disabledImages.get()));
    SendMessageW(toolbar, TB_SETPADDING, 0, MAKELPARAM(Scaled(8, dpi_), Scaled(8, dpi_)));
    SendMessageW(toolbar, TB_AUTOSIZE, 0, 0);
  }
  ilsToolbar_ = std::move(images);
  ilsDisabledToolbar_ = std::move(disabledImages);
}

void frmMain::ShowOnToolbars(int id, bool enabled, bool checked) {
  ShowStateOnToolbar(Toolbar1_, id, enabled, checked);
  ShowStateOnToolbar(Toolbar2_, id, enabled && editor_.AllKeys().PanelToolbarEnabled(), checked);
}

void frmMain::OnDropDown(const NMTOOLBARW& button) {
  if (!AcceptsInput()) {
    return;
  }
  editor_.RefreshRestartItems();
  const Unique<HMENU> menu(CreatePopupMenu());
  const auto* const dropDown = std::ranges::find(DropDowns, button.iItem, &DropDown::ButtonId);
  if (button.iItem == IDM_mnuFileOpen) {
    FillRecentMenu(menu.get(), false);
  } else if (dropDown != std::end(DropDowns)) {
    AppendMenuW(menu.get(), MF_STRING | (CommandEnabled(dropDown->ItemId) ? MF_ENABLED : MF_GRAYED),
                static_cast<UINT_PTR>(dropDown->ItemId),
                editor_.Language().GetLangText(dropDown->Caption).c_str());
  }
  ShowUnderButton(button, menu.get());
}

void frmMain::ShowUnderButton(const NMTOOLBARW& button, HMENU menu) {
  TPMPARAMS around{sizeof around, {}};
  SendMessageW(button.hdr.hwndFrom, TB_GETRECT, static_cast<WPARAM>(button.iItem),
               reinterpret_cast<LPARAM>(&around.rcExclude));
  MapWindowPoints(button.hdr.hwndFrom, nullptr, reinterpret_cast<POINT*>(&around.rcExclude), 2);
  const bool rightToLeft = editor_.Language().RightToLeft();
  TrackPopupMenuEx(menu, TPM_VERTICAL | (rightToLeft ? TPM_RIGHTALIGN | TPM_LAYOUTRTL : 0U),
                   rightToLeft ? around.rcExclude.right : around.rcExclude.left,
                   around.rcExclude.bottom, window_, &around);
}

int frmMain::ToolbarHeight() const {
  if (editor_.Options().ToolbarVisible == 0) {
    return 0;
  }
  const auto buttonSize = SendMessageW(Toolbar1_, TB_GETBUTTONSIZE, 0, 0);
  RECT frame{};
  AdjustWindowRectExForDpi(&frame, static_cast<DWORD>(GetWindowLongPtrW(Toolbar1_, GWL_STYLE)),
                           FALSE, static_cast<DWORD>(GetWindowLongPtrW(Toolbar1_, GWL_EXSTYLE)),
                           static_cast<UINT>(dpi_));
  return HIWORD(buttonSize) + frame.bottom - frame.top;
}

}  // namespace tessera
