// What the box shows is the text of the search; what it holds otherwise is on its way there.
#include "app/frmFindBox.h"

#include <utility>

#include "resources/resource.h"

namespace tessera {

frmFindBox::frmFindBox(const Editor& editor, Events events)
    : editor_(editor), events_(std::move(events)) {}

void frmFindBox::Create(HWND window) {
  // Screen readers call a control by the label before it, a hidden one too.
  lblFind_ = CreateControl(window, WC_STATICW, IDC_lblFind);
  txtFind_ =
      CreateControl(window, WC_EDITW, IDC_txtFind, WS_TABSTOP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE);
}

bool frmFindBox::HasFocus() const { return txtFind_ != nullptr && GetFocus() == txtFind_; }

bool frmFindBox::IsEmpty() const { return GetWindowTextLengthW(txtFind_) == 0; }

void frmFindBox::ApplyLanguage() {
  SetText(lblFind_, editor_.Language().GetLangText(TextId::Find));
  const std::wstring cue = editor_.Language().GetLangText(TextId::FindCue);
  constexpr WPARAM WithFocusToo = TRUE;
  SendMessageW(txtFind_, EM_SETCUEBANNER, WithFocusToo, reinterpret_cast<LPARAM>(cue.c_str()));
}

void frmFindBox::ApplyFont(HFONT font) { GiveFont(txtFind_, font); }

Size frmFindBox::CueSize() const {
  return TextSize(txtFind_, GetWindowFont(txtFind_),
                  editor_.Language().GetLangText(TextId::FindCue));
}

void frmFindBox::PlaceAt(const Area& area) {
  fits_ = area.Width > 0;
  if (fits_) {
    Place(txtFind_, area);
  } else if (HasFocus()) {
    events_.GiveFocusAway();
  }
  ShowWindow(txtFind_, fits_ ? SW_SHOWNA : SW_HIDE);
  Sync();
}

void frmFindBox::Sync() {
  SyncEnabled();
  if (editor_.Document().Busy()) return;
  if (editor_.List().CanSearch() != fits_) events_.SetCanSearch(fits_);
  SetText(txtFind_, editor_.List().Shown().SearchText());
}

// The system takes the focus from what it disables.
void frmFindBox::SyncEnabled() {
  const bool enabled = !editor_.Document().Busy();
  if (!enabled && HasFocus()) hadFocus_ = true;
  SetEnabled(txtFind_, enabled);
  if (enabled && std::exchange(hadFocus_, false) && GetFocus() == nullptr) SetFocus(txtFind_);
}

void frmFindBox::TakeFocus() {
  SetFocus(txtFind_);
  SendMessageW(txtFind_, EM_SETSEL, 0, -1);
}

void frmFindBox::OnChange() {
  const std::wstring text = TextOf(txtFind_);
  if (text != editor_.List().Shown().SearchText()) events_.Search(text);
}

void frmFindBox::Forget() { lblFind_ = txtFind_ = nullptr; }

}  // namespace tessera
