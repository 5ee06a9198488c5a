// All keys on one page: who holds which, as keyboards and as tables.
#pragma once

#include <string>
#include <string_view>

#include "localisation/Texts.h"
#include "shortcuts/Catalogue.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

struct KeysPageHead {
  std::wstring_view Path;  ///< of the file whose keys are shown
  bool Modified = false;   ///< the page says that they are not saved
};

/// A page of HTML in UTF-8, without a mark, that refers to nothing outside itself. It holds all
/// rows in file order, whatever the list shows of them, in the language of the texts; the notation
/// must be the one in which the cells are written.
[[nodiscard]] std::string BuildKeysPage(const Catalogue& catalogue, const HotkeyNotation& notation,
                                        const Texts& texts, const KeysPageHead& head);

}  // namespace tessera
