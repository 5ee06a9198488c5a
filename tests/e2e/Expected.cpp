// Shares nothing with the program: a fault in its reading shows as a difference.
#include "tests/e2e/Expected.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <map>
#include <sstream>
#include <stdexcept>

#include "tests/e2e/Folder.h"

namespace tessera::e2e {
namespace {

constexpr wchar_t Undefined[] = L"---";
constexpr wchar_t Separator[] = L" = ";

std::wstring FromAnsi(const std::string& bytes) {
  std::wstring text(bytes.size(), L'\0');
  const int size = static_cast<int>(bytes.size());
  const int length = MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, text.data(), size);
  text.resize(static_cast<std::size_t>(length));
  return text;
}

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \t\r");
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::vector<std::string> Split(const std::string& text, char separator) {
  std::vector<std::string> pieces;
  std::istringstream stream(text);
  for (std::string piece; std::getline(stream, piece, separator);) pieces.push_back(Trimmed(piece));
  return pieces;
}

std::string Shown(bool ctrl, bool alt, bool shift, const std::string& key) {
  return std::string(ctrl ? "Ctrl + " : "") + (alt ? "Alt + " : "") + (shift ? "Shift + " : "") +
         key;
}

/// "CA+F1" as the list shows it.
std::string ShownFromShortcut(const std::string& name) {
  const std::size_t plus = name.find('+', 1);
  const std::string letters = plus == std::string::npos ? "" : name.substr(0, plus);
  std::string key = plus == std::string::npos ? name : Trimmed(name.substr(plus + 1));
  if (key.find_first_not_of("+-*/") == std::string::npos) key = "Num " + key;
  const auto has = [&letters](char letter) { return letters.find(letter) != std::string::npos; };
  return Shown(has('C'), has('A'), has('S'), key);
}

/// "Ctrl+Shift+F1" as the list shows it.
std::string ShownFromDataFile(const std::string& keys) {
  const auto has = [](const std::string& text, const char* word) {
    return text.find(word) != std::string::npos;
  };
  if (!has(keys, "Ctrl+") && !has(keys, "Alt+") && !has(keys, "Shift+")) return keys;
  std::string shown;
  for (const std::string& piece : Split(keys, '=')) {
    const std::string key = piece.substr(piece.rfind('+', piece.size() - 2) + 1);
    shown += (shown.empty() ? "" : " = ") +
             Shown(has(piece, "Ctrl+"), has(piece, "Alt+"), has(piece, "Shift+"), key);
  }
  return shown;
}

/// The single keys of a cell.
std::vector<std::wstring> KeysOf(const std::wstring& cell) {
  std::vector<std::wstring> keys;
  if (cell.empty() || cell == Undefined) return keys;
  std::size_t start = 0;
  for (std::size_t end = 0; end != std::wstring::npos; start = end + 3) {
    end = cell.find(Separator, start);
    keys.push_back(cell.substr(start, end - start));
  }
  return keys;
}

void MarkOverriddenDefaults(std::vector<RowTexts>& rows) {
  const std::vector<RowTexts> unmarked = rows;
  std::map<std::wstring, std::size_t> owners;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (const std::wstring& key : KeysOf(unmarked[row][2])) owners.emplace(key, row);
  }
  for (const RowTexts& row : unmarked) {
    for (const std::wstring& key : KeysOf(row[3])) {
      if (const auto owner = owners.find(key); owner != owners.end()) {
        rows[owner->second][2] += L" *";
        owners.erase(owner);
      }
    }
  }
}

/// "Ctrl + Num +" as Total Commander writes it.
std::string NativeKey(const std::wstring& shown) {
  std::string text = Utf8(shown);
  std::string letters;
  for (const std::string word : {"Ctrl", "Alt", "Shift"}) {
    if (text.starts_with(word + " + ")) {
      letters += word[0];
      text.erase(0, word.size() + 3);
    }
  }
  if (text.starts_with("Num ")) text.erase(0, 4);
  return letters.empty() ? text : letters + "+" + text;
}

}  // namespace

std::vector<std::pair<std::string, std::string>> SectionLines(const std::string& file,
                                                              const std::string& section) {
  std::vector<std::pair<std::string, std::string>> lines;
  bool inside = false;
  for (const std::string& line : Split(file, '\n')) {
    if (line.starts_with('[')) inside = line == "[" + section + "]";
    const std::size_t equals = line.find('=');
    if (!inside || line.starts_with('[') || line.starts_with(';') || equals == std::string::npos) {
      continue;
    }
    lines.emplace_back(Trimmed(line.substr(0, equals)), Trimmed(line.substr(equals + 1)));
  }
  return lines;
}

std::string SectionValue(const std::string& file, const std::string& section,
                         const std::string& name) {
  for (const auto& [key, value] : SectionLines(file, section)) {
    if (key == name) return value;
  }
  return {};
}

std::vector<RowTexts> ExpectedRows(const Folder& folder) {
  std::map<std::string, std::string> defaults;
  const auto& dataFile = ReadBytes(folder.DefaultKeysFile());
  for (const auto& [code, keys] : SectionLines(dataFile, "TC Default Hotkeys")) {
    defaults.emplace(code, ShownFromDataFile(keys));
  }
  std::map<std::string, std::string> currents;  // by command or code
  for (const auto& [name, command] : SectionLines(ReadBytes(folder.WincmdIni()), "Shortcuts")) {
    std::string& keys = currents[command];
    keys += (keys.empty() ? "" : " = ") + ShownFromShortcut(name);
  }

  std::vector<RowTexts> rows;
  const auto textOr = [](const std::map<std::string, std::string>& texts, const std::string& key) {
    const auto found = texts.find(key);
    return found == texts.end() ? std::wstring(Undefined) : FromAnsi(found->second);
  };
  for (const std::string& line : Split(ReadBytes(folder.TotalcmdInc()), '\n')) {
    const std::size_t equals = line.find('=');
    const std::size_t semicolon = line.find(';');
    if (line.starts_with("cm_") || line.starts_with("CM_")) {
      const std::string command = line.substr(0, equals);
      const std::string code = line.substr(equals + 1, semicolon - equals - 1);
      rows.push_back({FromAnsi(line.substr(semicolon + 1)), FromAnsi(command),
                      textOr(defaults, code),
                      textOr(currents, currents.contains(command) ? command : code)});
    } else if (!line.empty()) {
      const bool ends = line.ends_with("=0");
      rows.push_back({FromAnsi(ends ? line.substr(0, line.size() - 2) : line), L"", L"", L""});
    }
  }
  MarkOverriddenDefaults(rows);
  return rows;
}

testing::AssertionResult SameRows(const std::vector<RowTexts>& shown,
                                  const std::vector<RowTexts>& expected) {
  if (shown == expected) return testing::AssertionSuccess();
  testing::AssertionResult failure = testing::AssertionFailure();
  failure << shown.size() << " rows shown, " << expected.size() << " expected";
  for (std::size_t row = 0; row < std::min(shown.size(), expected.size()); ++row) {
    if (shown[row] != expected[row]) {
      failure << "\nrow " << row << " shows " << testing::PrintToString(shown[row])
              << " instead of " << testing::PrintToString(expected[row]);
    }
  }
  return failure;
}

std::vector<RowTexts> WithoutHeadings(const std::vector<RowTexts>& rows) {
  std::vector<RowTexts> commands;
  std::ranges::copy_if(rows, std::back_inserter(commands),
                       [](const RowTexts& row) { return !row[1].empty(); });
  return commands;
}

std::string ExpectedShortcuts(const std::vector<RowTexts>& rows) {
  std::string lines;
  for (const RowTexts& row : rows) {
    for (const std::wstring& key : KeysOf(row[3])) {
      lines += NativeKey(key) + "=" + Utf8(row[1]) + "\r\n";
    }
  }
  return lines;
}

std::string WithShortcuts(const std::string& file, const std::string& lines) {
  const std::string header = "[Shortcuts]\r\n";
  const std::size_t at = file.find(header);
  if (at == std::string::npos) throw std::runtime_error("The file has no section Shortcuts");
  const std::size_t start = at + header.size();
  const std::size_t end = file.find("\r\n\r\n", start) + 2;
  return file.substr(0, start) + lines + file.substr(end);
}

bool Sorted(const std::vector<RowTexts>& rows, std::size_t column, bool descending) {
  const auto misplaced = [&](const RowTexts& upper, const RowTexts& lower) {
    const int order =
        CompareStringEx(LOCALE_NAME_USER_DEFAULT, NORM_IGNORECASE, upper.at(column).c_str(), -1,
                        lower.at(column).c_str(), -1, nullptr, nullptr, 0);
    return order == (descending ? CSTR_LESS_THAN : CSTR_GREATER_THAN);
  };
  return std::ranges::adjacent_find(rows, misplaced) == rows.end();
}

}  // namespace tessera::e2e
