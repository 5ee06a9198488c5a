// Where the keys of a keyboard lie.
#pragma once

#include <span>
#include <string_view>

namespace tessera {

/// What a shape stands for.
enum class ShapeKind { Key, Ctrl, Alt, Shift, Blank };

/// Places and lengths in quarters of a letter's key, from the left upper corner of the keyboard.
struct KeyShape {
  ShapeKind Kind = ShapeKind::Blank;
  std::wstring_view Key;  ///< of the vocabulary; "" for other kinds
  int X = 0;
  int Y = 0;
  int Width = 4;
  int Height = 4;
};

inline constexpr int KeyboardWidth = 90;
inline constexpr int KeyboardHeight = 26;

/// All of them: function row, main block, navigation and keypad as on an English keyboard. Each key
/// of the vocabulary is there once; keys that nobody can choose are modifiers or blank.
[[nodiscard]] std::span<const KeyShape> KeyboardShape();

/// Those of the vocabulary alone, in its order.
[[nodiscard]] std::span<const KeyShape> ShapesOfVocabulary();

}  // namespace tessera
