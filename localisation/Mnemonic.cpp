// Mnemonics are taken out in one pass.
#include "localisation/Mnemonic.h"

namespace tessera {
namespace {

constexpr std::size_t AddedLength = 4;

/// Stands "(&X)" at that place?
bool IsAddedMnemonic(std::wstring_view caption, std::size_t place) {
  const std::wstring_view piece = caption.substr(place, AddedLength);
  return piece.size() == AddedLength && piece.starts_with(L"(&") && piece[2] != L'&' &&
         piece[3] == L')';
}

}  // namespace

std::wstring WithoutMnemonic(std::wstring_view caption) {
  std::wstring plain;
  for (std::size_t place = 0; place < caption.size(); ++place) {
    if (IsAddedMnemonic(caption, place)) {
      if (plain.ends_with(L' ')) plain.pop_back();
      place += AddedLength - 1;
      continue;
    }
    if (caption[place] == L'&' && ++place == caption.size()) break;
    plain += caption[place];
  }
  return plain;
}

wchar_t MnemonicOf(std::wstring_view caption) {
  std::size_t mark = caption.find(L'&');
  while (mark != std::wstring_view::npos && mark + 1 < caption.size()) {
    if (caption[mark + 1] != L'&') return caption[mark + 1];
    mark = caption.find(L'&', mark + 2);
  }
  return L'\0';
}

std::wstring DoubleAmpersands(std::wstring_view text) {
  std::wstring doubled;
  for (const wchar_t character : text) doubled.append(character == L'&' ? 2 : 1, character);
  return doubled;
}

}  // namespace tessera
