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
  toolbar_ = CreateControl(parent, TOOLBARCLASSNAMEW, id,
                           WS_VISIBLE | WS_TABSTOP | CCS_NODIVIDER | CCS_NORESIZE |
                               CCS_NOPARENTALIGN | TBSTYLE_FLAT | TBSTYLE_LIST | TBSTYLE_TOOLTIPS);
  Send(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
  // A text that no button shows is what its tool tip and its accessible name are.
  Send(TB_SETEXTENDEDSTYLE, 0,
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
  Send(TB_ADDBUTTONSW, added.size(), reinterpret_cast<LPARAM>(added.data()));
}

HWND frmToolbar::Control() const { return toolbar_; }

Size frmToolbar::ButtonsSize() const {
  SIZE size{};
  Send(TB_GETMAXSIZE, 0, reinterpret_cast<LPARAM>(&size));
  return {size.cx, size.cy};
}

int frmToolbar::Height(int dpi) const {
  return HIWORD(Send(TB_GETBUTTONSIZE)) + FrameSize(toolbar_, dpi).Height;
}

int frmToolbar::HotButton() const {
  TBBUTTON hot{};  // stays so where there is none
  Send(TB_GETBUTTON, static_cast<WPARAM>(Send(TB_GETHOTITEM)), reinterpret_cast<LPARAM>(&hot));
  return (hot.fsState & TBSTATE_ENABLED) != 0 ? hot.idCommand : 0;
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
    Send(TB_SETBUTTONINFOW, static_cast<WPARAM>(button.Command),
         reinterpret_cast<LPARAM>(&information));
  }
}

void frmToolbar::ApplyDpi(int dpi) {
  const int size = Scaled(16, dpi);
  Unique<HIMAGELIST> images = LoadImages(IconsOf(buttons_, &ToolbarButton::Icon), size);
  Unique<HIMAGELIST> disabled = LoadImages(IconsOf(buttons_, &ToolbarButton::DisabledIcon), size);
  Send(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images.get()));
  Send(TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(disabled.get()));
  Send(TB_SETPADDING, 0, MAKELPARAM(Scaled(8, dpi), Scaled(8, dpi)));
  Send(TB_AUTOSIZE);
  images_ = std::move(images);
  disabledImages_ = std::move(disabled);
}

void frmToolbar::ShowState(int command, bool enabled, bool checked) const {
  const LRESULT state = Send(TB_GETSTATE, static_cast<WPARAM>(command));
  if (state == -1) return;
  const LRESULT shown = (state & ~(TBSTATE_ENABLED | TBSTATE_CHECKED)) |
                        (enabled ? TBSTATE_ENABLED : 0) | (checked ? TBSTATE_CHECKED : 0);
  if (shown != state) Send(TB_SETSTATE, static_cast<WPARAM>(command), shown);
}

LRESULT frmToolbar::Send(UINT message, WPARAM first, LPARAM second) const {
  return SendMessageW(toolbar_, message, first, second);
}

}  // namespace tessera
