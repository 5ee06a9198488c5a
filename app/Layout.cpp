// The geometry of the main window, in plain numbers.
#include "app/Layout.h"

#include <algorithm>

namespace tessera {
namespace {

/// One screen pixel is the unit of the gaps around the list, at any resolution.
constexpr int Pixel = 1;
constexpr int SideGap = 5 * Pixel;
constexpr int ChooserBorder = Pixel;

/// Lengths in the panel, for 96 pixels an inch.
constexpr int BoxMarkWidth = 22;
constexpr int BoxFocusHeight = 4;
constexpr int PanelMargin = 10;
constexpr int ItemGap = 12;
constexpr int ChooserWidth = 150;
constexpr int RoomAroundControls = 16;
constexpr int ButtonGap = 6;
constexpr int RoomBelowStatusRow = 6;
constexpr Size RoomInButtons{24, 8};
constexpr Size RoomInFindBox{24, 6};

/// Where the chooser grows less than the resolution, it stands in its middle.
Area PlaceAllKeysButton(const Area& chooser, int dpi) {
  const int room = chooser.Height - 2 * ChooserBorder;
  const int width = Scaled(15, dpi);
  const int height = Scaled(16, dpi);
  const int top = Scaled(3, dpi);
  const int inside = std::min(height, room);
  const bool fits = top + height <= chooser.Height - ChooserBorder;
  return {chooser.Left + chooser.Width - width - Scaled(2, dpi),
          chooser.Top + (fits ? top : (chooser.Height - inside) / 2), width, inside};
}

}  // namespace

MainLayout LayOutMainWindow(int innerWidth, int innerHeight, int toolbarHeight, int frameHeight) {
  const int listTop = toolbarHeight + Pixel;
  const int listWidth = std::max(0, innerWidth - 2 * SideGap);
  const int listHeight = std::max(0, innerHeight - frameHeight - toolbarHeight);
  return {.Toolbar1 = {0, 0, innerWidth, toolbarHeight},
          .ListView1 = {SideGap, listTop, listWidth, listHeight},
          .Frame1 = {SideGap, listTop + listHeight, listWidth, frameHeight}};
}

PanelLayout LayOutPanel(const PanelSizes& sizes, int dpi) {
  const auto scaled = [dpi](int pixels) { return Scaled(pixels, dpi); };
  const int height =
      std::max(sizes.ChooserHeight, sizes.Toolbar.Height) + scaled(RoomAroundControls);
  int right = 0;
  const auto place = [&](int gap, const Size& size) {
    const Area area{right + scaled(gap), (height - size.Height) / 2, size.Width, size.Height};
    right = area.Left + area.Width;
    return area;
  };
  PanelLayout layout;
  layout.Label = place(PanelMargin, sizes.Label);
  std::ranges::transform(sizes.Boxes, layout.Boxes.begin(), [&](const Size& text) {
    return place(ItemGap,
                 {text.Width + scaled(BoxMarkWidth), text.Height + scaled(BoxFocusHeight)});
  });
  layout.Chooser = place(ItemGap, {scaled(ChooserWidth), sizes.ChooserHeight});
  layout.Toolbar = place(ItemGap, sizes.Toolbar);
  layout.AllKeysButton = PlaceAllKeysButton(layout.Chooser, dpi);
  layout.Whole = {right + scaled(PanelMargin), height};
  return layout;
}

StatusRow LayOutStatusRow(const StatusRowSizes& sizes, int width, int top, int dpi) {
  const auto scaled = [dpi](int pixels) { return Scaled(pixels, dpi); };
  const int height = sizes.TextHeight + scaled(RoomInButtons.Height);
  StatusRow row;
  row.Buttons.resize(sizes.Captions.size());
  int end = width;
  for (std::size_t i = row.Buttons.size(); i-- > 0;) {
    const int buttonWidth = sizes.Captions[i].Width + scaled(RoomInButtons.Width);
    row.Buttons[i] = {end - buttonWidth, top, buttonWidth, height};
    end -= buttonWidth + scaled(ButtonGap);
  }
  const int left = scaled(PanelMargin);
  row.Line = {left, top, std::max(0, end - left), height};
  row.Height = height + scaled(RoomBelowStatusRow);
  return row;
}

Size SmallestInside(const Size& panel, int dpi) {
  return {panel.Width + Scaled(10, dpi), panel.Height + Scaled(160, dpi)};
}

Area PlaceFindBox(const Area& toolbar, int buttonsWidth, const Size& cue, int dpi) {
  const int width = cue.Width + Scaled(RoomInFindBox.Width, dpi);
  const int height = cue.Height + Scaled(RoomInFindBox.Height, dpi);
  const int left = toolbar.Width - SideGap - width;
  if (height > toolbar.Height || left < buttonsWidth + Scaled(ItemGap, dpi)) return {};
  return {toolbar.Left + left, toolbar.Top + (toolbar.Height - height) / 2, width, height};
}

Area PlaceProgressBar(const Area& list, int dpi) {
  return Centred(list, Scaled(320, dpi), Scaled(18, dpi));
}

Area PlaceKeysList(const KeysListRoom& room, int width, int height) {
  const Area& screen = room.Screen;
  const int below = room.Panel.Top + room.Panel.Height;
  const bool fitsBelow = below + height <= screen.Top + screen.Height;
  const int top = fitsBelow ? below : room.Panel.Top - height;
  const int left =
      room.RightToLeft ? room.Button.Left : room.Button.Left + room.Button.Width - width;
  const int lowest = screen.Top + std::max(0, screen.Height - height);
  const int rightmost = screen.Left + std::max(0, screen.Width - width);
  return {std::clamp(left, screen.Left, rightmost), std::clamp(top, screen.Top, lowest), width,
          height};
}

}  // namespace tessera
