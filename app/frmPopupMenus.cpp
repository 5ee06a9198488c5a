// The commands that are chosen come to the main window as all others do.
#include "app/frmPopupMenus.h"

#include "app/frmMenus.h"
#include "app/ToolbarButtons.h"

namespace tessera {
namespace {

/// In WM_CONTEXTMENU.
constexpr LPARAM ByKeyboard = -1;

/// Shows a menu under the button that a notification names; its commands go to `owner`.
void ShowMenuUnderButton(const NMTOOLBARW& button, HMENU menu, HWND owner, bool rightToLeft) {
  const HWND toolbar = button.hdr.hwndFrom;
  TPMPARAMS around{sizeof around, {}};
  SendMessageW(toolbar, TB_GETRECT, static_cast<WPARAM>(button.iItem),
               reinterpret_cast<LPARAM>(&around.rcExclude));
  MapWindowPoints(toolbar, nullptr, reinterpret_cast<POINT*>(&around.rcExclude), 2);
  // In that layout a menu that is aligned to its left ends at the given point.
  TrackPopupMenuEx(menu, TPM_VERTICAL | (rightToLeft ? TPM_LAYOUTRTL : 0U),
                   rightToLeft ? around.rcExclude.right : around.rcExclude.left,
                   around.rcExclude.bottom, owner, &around);
}

}  // namespace

frmPopupMenus::frmPopupMenus(Editor& editor, frmViews& views, frmWork& work)
    : editor_(editor), views_(views), work_(work) {}

void frmPopupMenus::ShowUnderButton(const NMTOOLBARW& notification) {
  const ToolbarButton* const button = ButtonOf(notification.iItem);
  if (button == nullptr || !views_.AcceptsInput()) return;
  editor_.RefreshRestartItems();
  const Unique<HMENU> menu = MenuUnder(*button, editor_);
  ShowMenuUnderButton(notification, menu.get(), views_.Window(), editor_.Language().RightToLeft());
}

bool frmPopupMenus::ShowUnderFocusedButton() {
  NMTOOLBARW notification{};
  notification.hdr.hwndFrom = GetFocus();
  notification.iItem = views_.FocusedButton();
  const ToolbarButton* const button = ButtonOf(notification.iItem);
  if (button == nullptr || button->Style != ToolbarStyle::DropDown) return false;
  ShowUnderButton(notification);
  return true;
}

// By keyboard it is the list's wherever the focus is: Shift, of Shift+F10, goes to the chooser.
bool frmPopupMenus::IsForList(HWND control, LPARAM place) const {
  return place == ByKeyboard || control == views_.List().Control();
}

void frmPopupMenus::ShowOverList(LPARAM place) {
  if (!views_.AcceptsInput()) return;
  const bool byKeyboard = place == ByKeyboard;
  POINT corner{GET_X_LPARAM(place), GET_Y_LPARAM(place)};
  // Some systems send it for a key that the window has taken; with Shift it is that of Shift+F10.
  const bool isAlt = editor_.Panel().ContextMenuKeyIsAlt() && !IsHeld(VK_SHIFT);
  if (byKeyboard && isAlt) return;
  if (byKeyboard) {
    corner = views_.List().ScrollToMenuPlace();
  } else if (!views_.List().SelectRowAt(corner)) {
    return;
  }
  const Unique<HMENU> menu = ContextMenu(editor_);
  const UINT direction = editor_.Language().RightToLeft() ? TPM_LAYOUTRTL : 0;
  const bool withShift = byKeyboard && IsHeld(VK_SHIFT);
  TrackPopupMenuEx(menu.get(), TPM_RIGHTBUTTON | direction, corner.x, corner.y, views_.Window(),
                   nullptr);
  // The menu has had the release of the key, which the panel counts.
  if (withShift && !IsHeld(VK_SHIFT)) {
    work_.React(editor_.Work(&HotkeyPanel::KeyUp, KeyEvent{.Code = KeyCode::Shift}));
  }
}

}  // namespace tessera
