// One grid for all dialogs: lengths for 96 pixels an inch, and the height of a line of text.
#include "dialogs/DialogLayout.h"

#include <algorithm>
#include <utility>

namespace tessera {
namespace {

constexpr int Margin = 11;
constexpr int Gap = 7;
constexpr int MarkWidth = 24;  ///< the box or circle before a text, with what keeps them apart
constexpr int SwatchWidth = 64;
constexpr int TextBoxWidth = 260;
constexpr int SmallestButtonWidth = 75;
constexpr int SideButtonWidth = 30;
constexpr int SmallestPageWidth = 210;
constexpr int TitleRoom = 70;  ///< the close button, and what is around the title
constexpr int TabFrame = 6;

int RowHeight(ControlKind kind, const DialogMetrics& metrics) {
  const bool marked = kind == ControlKind::CheckBox || kind == ControlKind::OptionButton;
  return marked ? std::max(metrics.TextHeight + Scaled(3, metrics.Dpi), Scaled(17, metrics.Dpi))
                : std::max(metrics.TextHeight + Scaled(8, metrics.Dpi), Scaled(23, metrics.Dpi));
}

/// The size of a push button with a text of that width.
Size ButtonSize(int textWidth, const DialogMetrics& metrics) {
  return {std::max(Scaled(SmallestButtonWidth, metrics.Dpi), textWidth + Scaled(24, metrics.Dpi)),
          RowHeight(ControlKind::Button, metrics)};
}

class PageStack {
 public:
  PageStack(const DialogMetrics& metrics, int labelWidth, int width)
      : metrics_(metrics), labelWidth_(labelWidth), width_(width) {}

  void Add(const MeasuredControl& control, Area& area) {
    if (control.Kind == ControlKind::Frame) {
      OpenFrame(control, area);
    } else {
      const bool beside =
          control.Kind == ControlKind::Swatch || control.Kind == ControlKind::SideButton;
      if (!beside) StartRow(control.Kind);
      area = InRow(control);
    }
  }

  /// The height of the page, when all is on it.
  int Close() {
    CloseFrame();
    return bottom_;
  }

 private:
  [[nodiscard]] int At(int pixels) const { return Scaled(pixels, metrics_.Dpi); }

  void OpenFrame(const MeasuredControl& control, Area& area) {
    CloseFrame();
    const int top = bottom_ == 0 ? 0 : bottom_ + At(Margin);
    area.Top = top;
    area.Width = width_;
    frame_ = &area;
    indent_ = At(Margin);
    bottom_ = top + (control.TextWidth != 0 ? metrics_.TextHeight : At(Gap) / 2);
  }

  void CloseFrame() {
    if (frame_ == nullptr) return;
    bottom_ += At(Margin);
    frame_->Height = bottom_ - frame_->Top;
  }

  void StartRow(ControlKind kind) {
    row_.Top = bottom_ == 0 ? 0 : bottom_ + At(Gap);
    row_.Height = RowHeight(kind, metrics_);
    bottom_ = row_.Top + row_.Height;
  }

  [[nodiscard]] Area CentredInRow(int width, int height) const {
    return {indent_, row_.Top + (row_.Height - height) / 2, width, height};
  }

  [[nodiscard]] Area InRow(const MeasuredControl& control) const {
    const int right = width_ - indent_;
    const int side = At(SideButtonWidth);
    switch (control.Kind) {
      case ControlKind::Label:
        return CentredInRow(labelWidth_, metrics_.TextHeight);
      case ControlKind::Swatch:
        return {indent_ + labelWidth_ + At(Margin), row_.Top, At(SwatchWidth), row_.Height};
      case ControlKind::TextBox:
        return CentredInRow(right - indent_ - side - At(Gap), metrics_.TextHeight + At(7));
      case ControlKind::SideButton:
        return {right - side, row_.Top, side, row_.Height};
      case ControlKind::Button:
        return {indent_, row_.Top, ButtonSize(control.TextWidth, metrics_).Width, row_.Height};
      default:
        return {indent_, row_.Top, control.TextWidth + At(MarkWidth), row_.Height};
    }
  }

  const DialogMetrics& metrics_;
  int labelWidth_;
  int width_;
  Area* frame_ = nullptr;
  int indent_ = 0;
  Area row_;  ///< by its top and height alone
  int bottom_ = 0;
};

int WidestLabel(std::span<const MeasuredControl> controls) {
  int widest = 0;
  for (const MeasuredControl& control : controls) {
    if (control.Kind == ControlKind::Label) widest = std::max(widest, control.TextWidth);
  }
  return widest;
}

/// What a row that begins with this control takes, from one edge of its page to the other.
int WidthOfRow(const MeasuredControl& control, int labelWidth, const DialogMetrics& metrics) {
  const auto scaled = [&metrics](int pixels) { return Scaled(pixels, metrics.Dpi); };
  const int frame = 2 * scaled(Margin);
  switch (control.Kind) {
    case ControlKind::Label:
      return labelWidth + scaled(Margin) + scaled(SwatchWidth) + frame;
    case ControlKind::TextBox:
      return scaled(TextBoxWidth) + scaled(Gap) + scaled(SideButtonWidth) + frame;
    case ControlKind::Button:
      return ButtonSize(control.TextWidth, metrics).Width + frame;
    default:
      return control.TextWidth + scaled(MarkWidth) + frame;
  }
}

/// Buttons side by side that end at `right`; the first is the leftmost.
std::vector<Area> LayOutButtons(std::span<const int> textWidths, const DialogMetrics& metrics,
                                int right, int top) {
  const int gap = Scaled(Gap, metrics.Dpi);
  std::vector<Area> areas;
  int left = right + gap;
  for (const int textWidth : textWidths) left -= ButtonSize(textWidth, metrics).Width + gap;
  for (const int textWidth : textWidths) {
    const Size size = ButtonSize(textWidth, metrics);
    areas.push_back({left, top, size.Width, size.Height});
    left += size.Width + gap;
  }
  return areas;
}

}  // namespace

PagesLayout LayOutPages(std::span<const MeasuredControl> controls, const DialogMetrics& metrics,
                        int smallestWidth) {
  const int labelWidth = WidestLabel(controls);
  PagesLayout layout{.Controls = std::vector<Area>(controls.size()), .Width = smallestWidth};
  for (const MeasuredControl& control : controls) {
    layout.Width = std::max(layout.Width, WidthOfRow(control, labelWidth, metrics));
  }
  auto area = layout.Controls.begin();
  for (auto control = controls.begin(); control != controls.end();) {
    const auto nextPage = std::find_if(
        control, controls.end(),
        [page = control->Page](const MeasuredControl& other) { return other.Page != page; });
    PageStack stack(metrics, labelWidth, layout.Width);
    while (control != nextPage) stack.Add(*control++, *area++);
    layout.Height = std::max(layout.Height, stack.Close());
  }
  return layout;
}

int NarrowestPages(const OuterTexts& texts, const DialogMetrics& metrics) {
  int tabs = 0;
  for (const int tab : texts.Tabs) {
    tabs += tab + 2 * Scaled(TabPadding, metrics.Dpi) + Scaled(TabFrame, metrics.Dpi);
  }
  int buttons = 0;
  for (const int button : texts.Buttons) {
    buttons += ButtonSize(button, metrics).Width + Scaled(Gap, metrics.Dpi);
  }
  const int title = texts.Title + Scaled(TitleRoom, metrics.Dpi);
  return std::max({tabs, buttons, title, Scaled(SmallestPageWidth, metrics.Dpi)});
}

DialogLayout LayOutDialog(PagesLayout pages, const Area& around, std::span<const int> buttonTexts,
                          const DialogMetrics& metrics) {
  const int margin = DialogMargin(metrics);
  for (Area& control : pages.Controls) {
    control.Left += margin - around.Left;
    control.Top += margin - around.Top;
  }
  const int right = margin + around.Width;
  const int top = margin + around.Height + margin;
  std::vector<Area> buttons = LayOutButtons(buttonTexts, metrics, right, top);
  const Size inside{right + margin, top + RowHeight(ControlKind::Button, metrics) + margin};
  return {{margin, margin, around.Width, around.Height},
          std::move(pages.Controls),
          std::move(buttons),
          inside};
}

int DialogMargin(const DialogMetrics& metrics) { return Scaled(Margin, metrics.Dpi); }

}  // namespace tessera
