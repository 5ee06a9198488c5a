// Rows of every kind, with texts that nobody should write.
#pragma once

#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "shortcuts/CommandEntry.h"
#include "shortcuts/HotkeyNotation.h"
#include "tests/support/Kept.h"
#include "text/Text.h"

namespace tessera {

/// The same ones for the same seed.
class HostileRows {
 public:
  explicit HostileRows(unsigned seed) : state_(seed) {}

  std::vector<CommandEntry> Make(const HotkeyNotation& notation) {
    std::vector<CommandEntry> rows(Below(30));
    for (std::size_t place = 0; place < rows.size(); ++place) {
      CommandEntry& row = rows[place];
      row.Key = place + 1;
      row.Description = Kept(HostileText());
      row.Tag = CommentBlockTag;
      if (Below(5) == 0) continue;
      row.Tag = L"1";
      row.CommandName = Kept(L"cm_" + HostileText());
      row.DefaultKeys = Keys(notation);
      row.CurrentKeys = Keys(notation);
      if (row.DefaultKeys != notation.UndefinedHotkey && Below(3) == 0) {
        row.DefaultKeys += OverriddenMark;
        row.DefaultKeysAreRed = true;
      }
    }
    return rows;
  }

  std::wstring HostileText() {
    static const std::wstring Pieces[] = {L"<script>",
                                          L"</script>",
                                          L"</style>",
                                          L"<!--",
                                          L"-->",
                                          L"&",
                                          L"&amp",
                                          L"&lt;",
                                          L"\"",
                                          L"'",
                                          L"\x202E",
                                          L"\x200F",
                                          L"\x2067",
                                          L"\r\n",
                                          L"\t",
                                          std::wstring(1, L'\0'),
                                          L"\x1B",
                                          L"\x85",
                                          std::wstring(1, static_cast<wchar_t>(0xD800)),
                                          std::wstring(1, static_cast<wchar_t>(0xDC00)),
                                          L"\xFFFF",
                                          L"\xFDD0",
                                          L"\x65E5\x672C",
                                          L"\x0627\x0644",
                                          L"plain",
                                          L" ",
                                          L"]]>",
                                          L"%1",
                                          L"[__",
                                          L"=",
                                          std::wstring(4000, L'x')};
    std::wstring text;
    for (unsigned pieces = Below(6); pieces > 0; --pieces) {
      text += Pieces[Below(static_cast<unsigned>(std::size(Pieces)))];
    }
    return text;
  }

  /// Those that cells hold, in upper case.
  std::set<std::wstring> Held;

 private:
  std::wstring Keys(const HotkeyNotation& notation) {
    std::wstring cell = notation.UndefinedHotkey;
    for (unsigned keys = Below(4); keys > 0; --keys) {
      const std::wstring key = Key(notation);
      Held.insert(ToUpper(key));
      notation.AddKey(cell, key);
    }
    return cell;
  }

  std::wstring Key(const HotkeyNotation& notation) {
    constexpr std::wstring_view Odd[] = {
        L"F13",  L"f3",     L"Ctrl + OEM_5",   L"Win + E", L"<b>", L"\"&\" + A", L"Alt + Ctrl + X",
        L"&lt;", L"\x202E", L"\x5B57 + \x5B57"};
    if (Below(4) == 0) return std::wstring(Odd[Below(static_cast<unsigned>(std::size(Odd)))]);
    const auto keys = KeyVocabulary();
    return notation.DisplayKey({Below(2) == 0, Below(2) == 0, Below(2) == 0},
                               keys[Below(static_cast<unsigned>(keys.size()))]);
  }

  unsigned Below(unsigned limit) {
    state_ = state_ * 1664525 + 1013904223;
    return (state_ >> 16) % limit;
  }

  unsigned state_;
};

}  // namespace tessera
