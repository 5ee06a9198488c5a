// Parts a name into words, and puts as many of them on a line as it holds.
#include "export/KeyLabel.h"

#include <array>

#include "text/Ascii.h"
#include "text/ControlCharacters.h"
#include "text/Text.h"
#include "text/Trim.h"

namespace tessera {
namespace {

constexpr wchar_t Ellipsis = L'\x2026';

/// Some names are very long, and a key shows little.
constexpr std::size_t MostCharacters = 100;

bool IsWithin(wchar_t character, wchar_t first, wchar_t last) {
  return character >= first && character <= last;
}

bool IsUpper(wchar_t character) { return IsWithin(character, L'A', L'Z'); }
bool IsDigit(wchar_t character) { return IsWithin(character, L'0', L'9'); }
bool IsLowSurrogate(wchar_t character) { return IsWithin(character, L'\xDC00', L'\xDFFF'); }

/// By character, about how wide it is in a font without serifs, in hundredths of the font's size,
/// rather too wide than too narrow.
constexpr std::array<int, 0x80> MakeWidths() {
  std::array<int, 0x80> widths{};
  widths.fill(59);
  for (std::size_t letter = 'A'; letter <= 'Z'; ++letter) widths[letter] = 70;
  for (const char narrow : std::string_view(" .,:;'|!()[]/Iijlfrt")) {
    widths[static_cast<unsigned char>(narrow)] = 36;
  }
  for (const char wide : std::string_view("MWmw@%&")) widths[static_cast<unsigned char>(wide)] = 92;
  return widths;
}

int WidthOf(wchar_t character) {
  static constexpr std::array<int, 0x80> Widths = MakeWidths();
  if (IsAscii(character)) return Widths[static_cast<unsigned char>(character)];
  if (IsLowSurrogate(character)) return 0;
  return character < 0x1100 ? 59 : 100;
}

int WidthOf(std::wstring_view text) {
  int width = 0;
  for (const wchar_t character : text) width += WidthOf(character);
  return width;
}

std::wstring_view WithoutPrefix(std::wstring_view name) {
  for (const std::wstring_view prefix : {L"cm_", L"em_"}) {
    if (name.size() > prefix.size() && EqualIgnoringCase(name.substr(0, prefix.size()), prefix)) {
      return name.substr(prefix.size());
    }
  }
  return name;
}

/// True where a word begins, as in "SrcByName" before "By" and "Name".
bool BeginsWord(std::wstring_view text, std::size_t at) {
  const wchar_t before = text[at - 1];
  const wchar_t here = text[at];
  if (before == L' ' || before == L'_' || before == L'-') return true;
  if (IsDigit(here)) return !IsDigit(before);
  if (!IsUpper(here)) return here >= 0x2E80 && !IsLowSurrogate(here);  // scripts without blanks
  const bool endsCapitals = at + 1 < text.size() && !IsUpper(text[at + 1]) && text[at + 1] != L' ';
  return !IsUpper(before) || endsCapitals;
}

/// Where the word that begins at `begin` ends.
std::size_t EndOfWord(std::wstring_view text, std::size_t begin) {
  std::size_t end = begin + 1;
  while (end < text.size() && !BeginsWord(text, end)) ++end;
  return end;
}

/// The end of the words from `begin` on that one line holds, at least one.
std::size_t EndOfLine(std::wstring_view text, std::size_t begin, int width) {
  std::size_t end = EndOfWord(text, begin);
  while (end < text.size()) {
    const std::size_t next = EndOfWord(text, end);
    if (WidthOf(TrimSpaces(text.substr(begin, next - begin))) > width) break;
    end = next;
  }
  return end;
}

/// Cuts what is too wide, and tells so.
void CutTo(int width, std::wstring& line, bool isCut) {
  isCut |= WidthOf(line) > width;
  if (!isCut) return;
  // The second half of a character has no width, so the first one goes with it.
  while (!line.empty() && WidthOf(line) + WidthOf(Ellipsis) > width) line.pop_back();
  line = std::wstring(TrimSpaces(line)) + Ellipsis;
}

}  // namespace

std::vector<std::wstring> LabelLines(std::wstring_view name, const LabelRoom& room) {
  const std::wstring whole = WithoutControls(WithoutPrefix(name).substr(0, MostCharacters));
  const std::wstring_view text = TrimSpaces(std::wstring_view(whole));
  std::vector<std::wstring> lines;
  for (std::size_t begin = 0; begin < text.size() && lines.size() < room.Lines;) {
    const std::size_t end = EndOfLine(text, begin, room.Width);
    lines.emplace_back(TrimSpaces(text.substr(begin, end - begin)));
    CutTo(room.Width, lines.back(), lines.size() == room.Lines && end < text.size());
    begin = end;
  }
  return lines;
}

}  // namespace tessera
