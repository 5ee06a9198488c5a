// Texts of files and of the language as parts of HTML.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessera {

/// Appends to HTML in UTF-8 what shows the text between two tags. Control characters become blanks;
/// surrogates by themselves, and what else is no character, U+FFFD.
void AppendText(std::string& html, std::wstring_view text);

/// The same between the double quotes of an attribute.
void AppendValue(std::string& html, std::wstring_view value);

void AppendNumber(std::string& html, std::size_t number);

}  // namespace tessera
