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

/// The width of the texts that stand around the pages of a dialog, in pixels.
struct OuterTexts {
  int Title = 0;
  std::vector<int> Tabs{};  ///< none: one page, without tabs
  std::vector<int> Buttons{};
};

/// How wide pages have to be for what is around them.
[[nodiscard]] int NarrowestPages(const OuterTexts& texts, const DialogMetrics& metrics);

/// Within a dialog, in pixels.
struct DialogLayout {
  Area Tabs;  ///< around the pages
  std::vector<Area> Controls;
  std::vector<Area> Buttons;
  Size Inside;  ///< of the whole dialog
};

/// Puts the buttons below the pages, side by side, so that the last one ends with them. `around` is
/// what the tabs take, or else the pages, from the upper left corner of these.
[[nodiscard]] DialogLayout LayOutDialog(PagesLayout pages, const Area& around,
                                        std::span<const int> buttonTexts,
                                        const DialogMetrics& metrics);

/// Between the edges of a tab and its text, for 96 pixels an inch.
inline constexpr int TabPadding = 10;

/// The room between the edge of a dialog, or of a tab's page, and its controls.
[[nodiscard]] int DialogMargin(const DialogMetrics& metrics);

}  // namespace tessera
