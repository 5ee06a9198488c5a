// What the two toolbars hold.
#pragma once

#include <span>
#include <string_view>

#include "localisation/TextId.h"

namespace tessera {

enum class ToolbarStyle { Normal, Check, Separator, DropDown };

struct ToolbarButton {
  ToolbarStyle Style = ToolbarStyle::Separator;
  int Command = 0;  ///< as the other numbers 0 for a separator
  int Icon = 0;
  int DisabledIcon = 0;
  TextId ToolTip = TextId::None;
  std::wstring_view Key{};  ///< the tool tip of a button without a text: the key that does the same

  /// The one item of a drop-down menu; without it the menu has the recent files.
  int MenuCommand = 0;
  TextId MenuCaption = TextId::None;
};

/// The buttons of Toolbar1 and of Toolbar2, from left to right.
[[nodiscard]] std::span<const ToolbarButton> MainToolbar();
[[nodiscard]] std::span<const ToolbarButton> PanelToolbar();

/// The button of that command on either toolbar; null when there is none.
[[nodiscard]] const ToolbarButton* ButtonOf(int command);

}  // namespace tessera
