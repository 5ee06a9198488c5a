// The built-in English texts, by text ID.
#pragma once

#include <span>
#include <string_view>

#include "localisation/TextId.h"

namespace tessera {

struct BuiltInText {
  TextId Id;
  std::wstring_view Text;
};

/// All texts, in ascending order of their IDs.
[[nodiscard]] std::span<const BuiltInText> TextTable();

/// The text of an ID; "" for an ID that the table lacks.
[[nodiscard]] std::wstring_view BuiltInTextOf(TextId id);

}  // namespace tessera
