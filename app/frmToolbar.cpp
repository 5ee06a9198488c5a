// A toolbar control, made from a table of its buttons.
#include "app/frmToolbar.h"

#include <string>
#include <utility>
#include <vector>

#include "localisation/Mnemonic.h"
#include "platform/win32/Icons.h"

namespace tessera {
namespace {

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

std::vector<int> IconsOf(std::span<const ToolbarButton> buttons, int ToolbarButton::*icon) {
  std::vector<int> icons;
  for (const ToolbarButton& button : buttons) {
    if (button.Style != ToolbarStyle::Separator) icons.push_back(button.*icon);
  }
  return icons;
}

}  // namespace

frmToolbar::frmToolbar(std::span<const ToolbarButton> buttons) : buttons_(buttons) {}

void frmToolbar::Create(HWND parent, int id) {
  toolbar_ = CreateControl(parent, TOOLBARCLASSNAMEW,
                           WS_VISIBLE | WS_TABSTOP | CCS_NODIVIDER | CCS_NORESIZE |
                               CCS_NOPARENTALIGN | TBSTYLE_FLAT | TBSTYLE_LIST | TBSTYLE_TOOLTIPS,
                           0, id);
  SendMessageW(toolbar_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
  // A text that no button shows is what its tool tip and its accessible name are.
  SendMessageW(toolbar_, TB_SETEXTENDEDSTYLE, 0,
               TBSTYLE_EX_DRAWDDARROWS | TBSTYLE_EX_MIXEDBUTTONS | TBSTYLE_EX_DOUBLEBUFFER);
  std::vector<TBBUTTON> added;
  for (int image = 0; const ToolbarButton& button : buttons_) {
    TBBUTTON shown{};
    shown.iBitmap = button.Style == ToolbarStyle::Separator ? 0 : image++;
    shown.idCommand = button.Command;
    shown.fsState = TBSTATE_ENABLED;
    shown.fsStyle = StyleOf(button.Style);
    added.push_back(shown);
  }
  SendMessageW(toolbar_, TB_ADDBUTTONSW, added.size(), reinterpret_cast<LPARAM>(added.data()));
}

HWND frmToolbar::Control() const { return toolbar_; }

Size frmToolbar::ButtonsSize() const {
  SIZE size{};
  SendMessageW(toolbar_, TB_GETMAXSIZE, 0, reinterpret_cast<LPARAM>(&size));
  return {size.cx, size.cy};
}

int frmToolbar::Height(int dpi) const {
  const auto buttonSize = SendMessageW(toolbar_, TB_GETBUTTONSIZE, 0, 0);
  RECT frame{};
  AdjustWindowRectExForDpi(&frame, static_cast<DWORD>(GetWindowLongPtrW(toolbar_, GWL_STYLE)),
                           FALSE, static_cast<DWORD>(GetWindowLongPtrW(toolbar_, GWL_EXSTYLE)),
                           static_cast<UINT>(dpi));
  return HIWORD(buttonSize) + frame.bottom - frame.top;
}

int frmToolbar::HotButton() const {
  const LRESULT place = SendMessageW(toolbar_, TB_GETHOTITEM, 0, 0);
  if (place < 0 || static_cast<std::size_t>(place) >= buttons_.size()) return 0;
  const int command = buttons_[static_cast<std::size_t>(place)].Command;
  const auto enabled = SendMessageW(toolbar_, TB_ISBUTTONENABLED, static_cast<WPARAM>(command), 0);
  return enabled != 0 ? command : 0;
}

void frmToolbar::ApplyLanguage(const Texts& texts) const {
  for (const ToolbarButton& button : buttons_) {
    if (button.Style == ToolbarStyle::Separator) continue;
    std::wstring text = button.ToolTip != TextId::None
                            ? WithoutMnemonic(texts.GetLangText(button.ToolTip))
                            : std::wstring(button.Key);
    TBBUTTONINFOW information{};
    information.cbSize = sizeof information;
    information.dwMask = TBIF_TEXT;
    information.pszText = text.data();
    SendMessageW(toolbar_, TB_SETBUTTONINFOW, static_cast<WPARAM>(button.Command),
                 reinterpret_cast<LPARAM>(&information));
  }
}

void frmToolbar::ApplyDpi(int dpi) {
  const int size = Scaled(16, dpi);
  Unique<HIMAGELIST> images = LoadImages(IconsOf(buttons_, &ToolbarButton::Icon), size);
  Unique<HIMAGELIST> disabled = LoadImages(IconsOf(buttons_, &ToolbarButton::DisabledIcon), size);
  SendMessageW(toolbar_, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images.get()));
  SendMessageW(toolbar_, TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(disabled.get()));
  SendMessageW(toolbar_, TB_SETPADDING, 0, MAKELPARAM(Scaled(8, dpi), Scaled(8, dpi)));
  SendMessageW(toolbar_, TB_AUTOSIZE, 0, 0);
  images_ = std::move(images);
  disabledImages_ = std::move(disabled);
}

void frmToolbar::ShowState(int command, bool enabled, bool checked) const {
  const auto state = SendMessageW(toolbar_, TB_GETSTATE, static_cast<WPARAM>(command), 0);
  if (state == -1) return;
  const LRESULT shown = (state & ~(TBSTATE_ENABLED | TBSTATE_CHECKED)) |
                        (enabled ? TBSTATE_ENABLED : 0) | (checked ? TBSTATE_CHECKED : 0);
  if (shown != state) SendMessageW(toolbar_, TB_SETSTATE, static_cast<WPARAM>(command), shown);
}

}  // namespace tessera
