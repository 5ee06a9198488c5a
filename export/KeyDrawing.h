// Keyboards as drawings in HTML.
#pragma once

#include <string>
#include <string_view>

#include "export/HolderFrames.h"
#include "export/Keyboards.h"
#include "export/KeyUses.h"
#include "localisation/Texts.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

/// What the drawings of keys read.
struct KeyDrawing {
  const KeyUses& Uses;
  const HotkeyNotation& Notation;
  const Texts& Language;
  const HolderFrames& Frames;
};

/// The shapes that all keyboards use, each once; to be there before the first of them.
void AppendShapes(std::string& html, const HotkeyNotation& notation);

/// What the looks of keys mean.
void AppendLegend(std::string& html, const Texts& texts);

/// A section with the drawn keyboard, its modifiers, and how many keys are free.
void AppendKeyboard(std::string& html, const Keyboard& keyboard, const KeyDrawing& drawing);

/// The attributes of an element that shows a key: the key and its use.
void AppendKeyAttributes(std::string& html, std::wstring_view key, KeyUse use);

/// Who holds the key, one holder in a line.
void AppendTitle(std::string& html, std::wstring_view key, std::size_t place,
                 const KeyDrawing& drawing);

}  // namespace tessera
