// Where the controls of a dialog go, when their texts decide how much room they need.
#pragma once

#include <span>
#include <vector>

#include "platform/Area.h"

namespace tessera {

/// Each begins a row of its own, but a swatch stands beside the label before it, and a side button
/// beside the text box before it.
enum class ControlKind {
  Frame,  ///< around what follows it on its page, up to the next frame
  CheckBox,
  OptionButton,
  Label,
  Swatch,
  TextBox,
  SideButton,
  Button,
};

/// A control of a page, in pixels.
struct MeasuredControl {
  ControlKind Kind = ControlKind::Button;
  int Page = 0;
  int TextWidth = 0;  ///< 0 for a control without text
};

struct DialogMetrics {
  int Dpi = 96;
  int TextHeight = 13;
};

struct PagesLayout {
  std::vector<Area> Controls;  ///< from the upper left corner of their page, in the order given
  int Width = 0;
  int Height = 0;  ///< of the highest page
};

/// Stacks the controls of each page; all pages are `smallestWidth` or wider.
[[nodiscard]] PagesLayout LayOutPages(std::span<const MeasuredControl> controls,
                                      const DialogMetrics& metrics, int smallestWidth);

/// The size of a push button with a text of that width.
[[nodiscard]] Area ButtonSize(int textWidth, const DialogMetrics& metrics);

/// Buttons side by side that end at `right`; the first is the leftmost.
[[nodiscard]] std::vector<Area> LayOutButtons(std::span<const int> textWidths,
                                              const DialogMetrics& metrics, int right, int top);

/// The room between the edge of a dialog and its controls, and between two buttons.
[[nodiscard]] int DialogMargin(const DialogMetrics& metrics);
[[nodiscard]] int DialogGap(const DialogMetrics& metrics);

}  // namespace tessera
