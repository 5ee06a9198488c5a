// The font of the command list, as the settings name it.
#pragma once

#include <string>

#include "settings/Settings.h"

namespace tessera {

struct ListFont {
  /// The system's font for messages stands in for the face: the default is a bitmap font, whose
  /// faces have few sizes, and the system's is there at every size and resolution.
  bool HasMessageFace = false;
  std::wstring FaceName;
  int CharacterSet = 1;
  int HeightPixels = 0;  ///< of its letters, without the room above them
  bool Bold = false;
  bool Italic = false;
  bool StrikeOut = false;
  bool Underline = false;
};

/// A size out of range is taken as the smallest or the largest possible one.
[[nodiscard]] ListFont ReadListFont(const Settings& settings, int dpi);

}  // namespace tessera
