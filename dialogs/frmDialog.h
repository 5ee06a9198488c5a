// A modal dialog that is made from a table of its controls, in the language in use.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "dialogs/DialogLayout.h"
#include "localisation/Texts.h"
#include "platform/win32/Controls.h"
#include "settings/Settings.h"

namespace tessera {

struct DialogControl {
  int Id = 0;
  ControlKind Kind{};
  TextId Caption = TextId::None;  ///< where it shows none, its name for screen readers
  int Page = 0;
};

struct DialogPlan {
  const wchar_t* ClassName;
  TextId Title;
  std::span<const DialogControl> Controls;  ///< in the order of the Tab key, page by page
  std::span<const DialogControl> Buttons;   ///< the default button first, then the cancel button
  int TabsId = 0;                           ///< 0: one page, and no tabs
  std::span<const TextId> TabCaptions{};
};

class frmDialog {
 public:
  /// All of them must outlive the dialog.
  frmDialog(const DialogPlan& plan, const Texts& texts, const Settings& settings);
  virtual ~frmDialog() = default;
  frmDialog(const frmDialog&) = delete;
  frmDialog& operator=(const frmDialog&) = delete;

 protected:
  /// Makes the dialog anew, in the middle of the owner's screen, and returns when it has closed.
  /// The tab that was chosen last is chosen again.
  void ShowModal(HWND owner);

  void Close();
  [[nodiscard]] HWND Control(int id) const;
  void SetChecked(int id, bool checked) const;
  void FocusOn(int id) const;

  /// Shows the state of the model in every control.
  virtual void Sync() = 0;

  /// A notification of a control; Enter and Esc come as clicks on the first two buttons.
  virtual void OnCommand(int id, int notification) = 0;

  /// The window's own close button.
  virtual void OnCloseButton() = 0;

  /// The colour that a swatch shows.
  [[nodiscard]] virtual COLORREF SwatchColor(int /*id*/) const { return 0; }

 private:
  static LRESULT CALLBACK FilterMessage(int code, WPARAM wParam, LPARAM lParam);
  static INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  /// What the system takes from a dialog: FALSE for what it is to do itself.
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void OnInit();
  void OnCommandMessage(int id, int notification);
  void CreateControls();
  HWND Create(const DialogControl& control, bool startsGroup);
  void ApplyLanguage();

  /// With a corner the window moves there, in the same step that gives it its new size: between two
  /// steps it could lie on the screen that it has just left, whose resolution would return.
  void ApplyDpi(int dpi, std::optional<POINT> corner = {});
  void LayOut(std::optional<POINT> corner = {});

  /// Counts for tabs that are inserted, and for a font that is given, afterwards.
  void PadTabs(int dpi) const;
  [[nodiscard]] int TextWidth(TextId text) const;
  void PlaceAll(std::span<const DialogControl> controls, const std::vector<Area>& areas) const;
  void Resize(const Size& inside, std::optional<POINT> corner);
  void CenterForm();
  void ShowPage(int page);
  bool TurnPage(WPARAM key);
  [[nodiscard]] HWND FirstToFocus() const;
  void DrawTabBackground(SIZE size);
  void DrawBackground(HDC context) const;
  void DrawSwatch(const DRAWITEMSTRUCT& draw) const;
  [[nodiscard]] INT_PTR ColorControl(HDC context, HWND control);
  [[nodiscard]] const DialogControl* Find(int id) const;

  const DialogPlan& plan_;
  const Texts& texts_;
  const Settings& settings_;
  HWND window_ = nullptr;
  HWND tabs_ = nullptr;
  int page_ = 0;
  DialogMetrics metrics_;
  Unique<HFONT> font_;
  Unique<HBRUSH> tabBackground_;
  Unique<HBRUSH> translatorsBrush_;
};

}  // namespace tessera
