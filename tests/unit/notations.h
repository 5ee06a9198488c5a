// The notations of keys that several tests convert by.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "shortcuts/HotkeyNotation.h"

namespace tessera::notations {

using Strings = std::vector<std::wstring>;

inline HotkeyNotation Reversed() {
  HotkeyNotation notation;
  notation.ReverseOrderHotkey = true;
  return notation;
}

inline HotkeyNotation Named(std::wstring ctrl, std::wstring alt, std::wstring shift) {
  HotkeyNotation notation;
  notation.CtrlName = std::move(ctrl);
  notation.AltName = std::move(alt);
  notation.ShiftName = std::move(shift);
  return notation;
}

inline HotkeyNotation Separated(std::wstring separator) {
  HotkeyNotation notation;
  notation.MultiHotkeySeparator = std::move(separator);
  return notation;
}

struct Conversion {
  std::wstring From, To;
};

}  // namespace tessera::notations
