// Texts for rows, which hold views only.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <utility>

namespace tessera {

/// The text, which stays until the tests end.
inline std::wstring_view Kept(std::wstring text) {
  static std::deque<std::wstring> texts;
  return texts.emplace_back(std::move(text));
}

}  // namespace tessera
