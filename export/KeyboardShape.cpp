// The keyboard as a table of keys that lie side by side.
#include "export/KeyboardShape.h"

#include <algorithm>
#include <vector>

#include "shortcuts/HotkeyNotation.h"

namespace tessera {
namespace {

/// Keys from left to right, separated by blanks: of the vocabulary, the modifiers, or "." for
/// others.
struct Run {
  int X, Y, Width, Height;
  std::wstring_view Keys;
};

constexpr Run Runs[] = {
    // Function row
    {0, 0, 4, 4, L"ESC"},
    {8, 0, 4, 4, L"F1 F2 F3 F4"},
    {26, 0, 4, 4, L"F5 F6 F7 F8"},
    {44, 0, 4, 4, L"F9 F10 F11 F12"},
    // Main block
    {0, 6, 4, 4, L". 1 2 3 4 5 6 7 8 9 0 . ."},
    {52, 6, 8, 4, L"BACK"},
    {0, 10, 6, 4, L"TAB"},
    {6, 10, 4, 4, L"Q W E R T Y U I O P . ."},
    {54, 10, 6, 4, L"."},
    {0, 14, 7, 4, L"."},
    {7, 14, 4, 4, L"A S D F G H J K L . ."},
    {51, 14, 9, 4, L"ENTER"},
    {0, 18, 9, 4, L"Shift"},
    {9, 18, 4, 4, L"Z X C V B N M . . ."},
    {49, 18, 11, 4, L"Shift"},
    {0, 22, 5, 4, L"Ctrl . Alt"},
    {15, 22, 25, 4, L"SPACE"},
    {40, 22, 5, 4, L"Alt . . Ctrl"},
    // Navigation
    {61, 0, 4, 4, L". . ."},
    {61, 6, 4, 4, L"INS HOME PGUP"},
    {61, 10, 4, 4, L"DEL END PGDN"},
    {65, 18, 4, 4, L"UP"},
    {61, 22, 4, 4, L"LEFT DOWN RIGHT"},
    // Keypad
    {74, 6, 4, 4, L". / * -"},
    {74, 10, 4, 4, L". . ."},
    {86, 10, 4, 8, L"+"},
    {74, 14, 4, 4, L". . ."},
    {74, 18, 4, 4, L". . ."},
    {86, 18, 4, 8, L"."},
    {74, 22, 8, 4, L"."},
    {82, 22, 4, 4, L"."},
};

ShapeKind KindOf(std::wstring_view key) {
  if (key == L"Ctrl") return ShapeKind::Ctrl;
  if (key == L"Alt") return ShapeKind::Alt;
  if (key == L"Shift") return ShapeKind::Shift;
  return key == L"." ? ShapeKind::Blank : ShapeKind::Key;
}

std::vector<KeyShape> MakeShapes() {
  std::vector<KeyShape> shapes;
  for (const Run& run : Runs) {
    int x = run.X;
    ForEachPiece(run.Keys, L" ", [&](std::wstring_view key) {
      const ShapeKind kind = KindOf(key);
      if (kind != ShapeKind::Key) key = {};
      shapes.push_back({kind, key, x, run.Y, run.Width, run.Height});
      x += run.Width;
    });
  }
  return shapes;
}

std::vector<KeyShape> MakeShapesOfVocabulary() {
  std::vector<KeyShape> shapes;
  for (const std::wstring_view key : KeyVocabulary()) {
    shapes.push_back(*std::ranges::find(KeyboardShape(), key, &KeyShape::Key));
  }
  return shapes;
}

}  // namespace

std::span<const KeyShape> KeyboardShape() {
  static const std::vector<KeyShape> shapes = MakeShapes();
  return shapes;
}

std::span<const KeyShape> ShapesOfVocabulary() {
  static const std::vector<KeyShape> shapes = MakeShapesOfVocabulary();
  return shapes;
}

}  // namespace tessera
