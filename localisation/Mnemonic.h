// The "&" in captions that marks the letter to press with Alt.
#pragma once

#include <string>
#include <string_view>

namespace tessera {

/// A caption as it reads: without the "&" of its mnemonic, and without a mnemonic that was added in
/// parentheses, as in "Open(&O)...", for scripts whose letters are on no key. "&&" is one "&".
[[nodiscard]] std::wstring WithoutMnemonic(std::wstring_view caption);

/// The letter that a caption marks; 0 for none.
[[nodiscard]] wchar_t MnemonicOf(std::wstring_view caption);

/// A text as a caption that marks no letter: a doubled "&" is shown as itself.
[[nodiscard]] std::wstring DoubleAmpersands(std::wstring_view text);

}  // namespace tessera
