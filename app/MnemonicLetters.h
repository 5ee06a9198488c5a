// The letters that do something with Alt in the main window.
#pragma once

#include <array>
#include <string>

#include "localisation/Texts.h"

namespace tessera {

/// The captions of the panel's boxes, in their order.
inline constexpr std::array BoxCaptions{TextId::ControlBox, TextId::AltBox, TextId::ShiftBox};

/// Those of the menu bar and of the boxes, as their captions have them.
[[nodiscard]] std::wstring MnemonicLetters(const Texts& texts);

}  // namespace tessera
