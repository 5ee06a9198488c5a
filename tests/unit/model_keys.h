// The notations of keys for the model of conflicts, in their simplest words.
#pragma once

#include <set>
#include <string>
#include <vector>

namespace tessera::model {

using Text = std::wstring;
using TextList = std::vector<Text>;

inline const Text Undefined = L"---";

inline const TextList Vocabulary = [] {
  TextList keys;
  for (int number = 1; number <= 12; ++number) keys.push_back(L"F" + std::to_wstring(number));
  for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) keys.emplace_back(1, letter);
  for (wchar_t digit = L'0'; digit <= L'9'; ++digit) keys.emplace_back(1, digit);
  for (const wchar_t* name :
       {L"INS", L"DEL", L"HOME", L"END", L"PGUP", L"PGDN", L"SPACE", L"BACK", L"TAB", L"+", L"-",
        L"*", L"/", L"ENTER", L"ESC", L"LEFT", L"RIGHT", L"UP", L"DOWN"}) {
    keys.emplace_back(name);
  }
  return keys;
}();

inline Text Lower(Text text) {
  for (wchar_t& letter : text) {
    if (letter >= L'A' && letter <= L'Z') letter = static_cast<wchar_t>(letter + 32);
  }
  return text;
}

inline bool Same(const Text& left, const Text& right) { return Lower(left) == Lower(right); }

inline Text Trim(Text text) {
  while (!text.empty() && text.front() == L' ') text.erase(0, 1);
  while (!text.empty() && text.back() == L' ') text.pop_back();
  return text;
}

inline TextList Split(const Text& text, const Text& at) {
  TextList pieces;
  std::size_t begin = 0;
  for (std::size_t end = text.find(at); end != Text::npos; end = text.find(at, begin)) {
    pieces.push_back(text.substr(begin, end - begin));
    begin = end + at.size();
  }
  pieces.push_back(text.substr(begin));
  return pieces;
}

inline TextList KeysIn(const Text& cell) {
  TextList keys;
  if (cell.empty() || cell == Undefined) return keys;
  for (const Text& piece : Split(cell, L"=")) keys.push_back(Trim(piece));
  return keys;
}

inline bool IsOperator(const Text& key) {
  return key == L"+" || key == L"-" || key == L"*" || key == L"/";
}

/// One key as it is shown. Bits of `modifiers`: Ctrl, Alt, Shift.
inline Text Shown(unsigned modifiers, const Text& key, bool reversed) {
  TextList names;
  for (const auto& [bit, name] : {std::pair(1U, L"Ctrl"), std::pair(2U, L"Alt"), {4U, L"Shift"}}) {
    if ((modifiers & bit) != 0) names.emplace_back(name);
  }
  const Text name = (IsOperator(key) ? L"Num " : L"") + key;
  names.insert(reversed ? names.begin() : names.end(), name);
  Text text;
  for (const Text& part : names) text += (&part == &names.front() ? L"" : L" + ") + part;
  return text;
}

inline Text ShownFromFile(const Text& native, bool reversed) {
  const std::size_t plus = native.find(L'+');
  if (native == L"+" || plus == Text::npos) return Shown(0, native, reversed);
  unsigned modifiers = 0;
  const Text letters = native.substr(0, plus);
  if (letters.find(L'C') != Text::npos) modifiers |= 1;
  if (letters.find(L'A') != Text::npos) modifiers |= 2;
  if (letters.find(L'S') != Text::npos) modifiers |= 4;
  Text key = Trim(native.substr(plus + 1));
  for (wchar_t& letter : key) {
    if (letter >= L'a' && letter <= L'z') letter = static_cast<wchar_t>(letter - 32);
  }
  return Shown(modifiers, key, reversed);
}

/// Names that the notation alone would not write back, and one that it only writes otherwise.
inline const TextList OddNames = {L"OEM_+", L"C+OEM_+", L"C+NUM+", L"W+Q", L"c+k", L"Ctrl+F2",
                                  L"C+",    L"---",     L"Num X",  L"+;x", L"SC+a"};

/// A name as a key: the letters before its first "+" as a set, and the rest.
inline Text KeyOf(const Text& name) {
  const std::size_t plus = name.size() > 1 ? name.find(L'+') : Text::npos;
  std::set<wchar_t> letters;
  for (std::size_t i = 0; plus != Text::npos && i < plus; ++i) letters.insert(Lower(name)[i]);
  letters.erase(L' ');
  return Text(letters.begin(), letters.end()) + L"+" +
         Trim(Lower(name.substr(plus == Text::npos ? 0 : plus + 1)));
}

inline Text WrittenToFile(const Text& shown, bool reversed) {
  Text letters;
  if (shown.find(L"Ctrl") != Text::npos) letters += L'C';
  if (shown.find(L"Alt") != Text::npos) letters += L'A';
  if (shown.find(L"Shift") != Text::npos) letters += L'S';
  if (letters.empty()) return Trim(shown);
  if (reversed) {
    const Text key = Trim(shown.substr(0, shown.find(L'+')));
    return letters + L"+" + (key.empty() ? L"+" : key);
  }
  for (std::size_t i = shown.size(); i-- > 0;) {
    if (shown[i] == L'+' && i + 1 != shown.size()) {
      return letters + L"+" + Trim(shown.substr(i + 1));
    }
  }
  return letters + L"+" + Trim(shown);
}

}  // namespace tessera::model
