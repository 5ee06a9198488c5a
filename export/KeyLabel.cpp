// Parts a name into words, and puts as many of them on a line as it holds.
#include "export/KeyLabel.h"

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

/// About how wide the character is in a font without serifs, in hundredths of the font's size,
/// rather too wide than too narrow.
int WidthOf(wchar_t character) {
  constexpr std::wstring_view Narrow = L" .,:;'|!()[]/Iijlfrt";
  constexpr std::wstring_view Wide = L"MWmw@%&";
  if (IsLowSurrogate(character)) return 0;
  if (Narrow.find(character) != std::wstring_view::npos) return 36;
  if (Wide.find(character) != std::wstring_view::npos) return 92;
  if (IsUpper(character)) return 70;
  if (character < 0x1100) return 59;
  return 100;
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

std::vector<std::wstring_view> WordsOf(std::wstring_view text) {
  std::vector<std::wstring_view> words;
  std::size_t begin = 0;
  for (std::size_t at = 1; at < text.size(); ++at) {
    if (!BeginsWord(text, at)) continue;
    words.push_back(text.substr(begin, at - begin));
    begin = at;
  }
  if (begin < text.size()) words.push_back(text.substr(begin));
  return words;
}

/// Cuts what is too wide, and tells so.
void CutTo(int width, std::wstring& line, bool isCut) {
  isCut |= WidthOf(line) > width;
  if (!isCut) return;
  while (!line.empty() && WidthOf(line) + WidthOf(Ellipsis) > width) {
    if (IsLowSurrogate(line.back()) && line.size() > 1) line.pop_back();
    line.pop_back();
  }
  line = std::wstring(TrimSpaces(line)) + Ellipsis;
}

}  // namespace

std::vector<std::wstring> LabelLines(std::wstring_view name, const LabelRoom& room) {
  const std::wstring whole = WithoutControls(WithoutPrefix(name).substr(0, MostCharacters));
  const std::wstring_view text = TrimSpaces(std::wstring_view(whole));
  std::vector<std::wstring> lines;
  if (text.empty() || room.Lines == 0) return lines;
  bool isCut = false;
  for (const std::wstring_view word : WordsOf(text)) {
    const bool fits =
        !lines.empty() && WidthOf(lines.back()) + WidthOf(TrimSpaces(word)) <= room.Width;
    if (fits) {
      lines.back() += word;
    } else if (lines.size() < room.Lines) {
      lines.emplace_back(word);
    } else {
      isCut = true;
      break;
    }
  }
  for (std::wstring& line : lines) {
    line = TrimSpaces(line);
    CutTo(room.Width, line, isCut && &line == &lines.back());
  }
  return lines;
}

}  // namespace tessera
