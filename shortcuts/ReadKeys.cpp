// Tells which keys the notation does not write back, and remembers those rows' names alone.
#include "shortcuts/ReadKeys.h"

#include <utility>

#include "shortcuts/NativeKey.h"
#include "shortcuts/RedirectSection.h"
#include "text/Text.h"
#include "text/Trim.h"

namespace tessera {
namespace {

constexpr std::wstring_view Num = L"Num";

bool Contains(std::wstring_view text, std::wstring_view part) {
  return text.find(part) != std::wstring_view::npos;
}

/// False for what would be a comment, a header, another line or none.
bool IsKeyName(std::wstring_view name) {
  const bool hasName = !name.empty() && name.front() > L' ';
  return hasName && name.front() != L';' && name.front() != L'[' &&
         !EqualIgnoringCase(name, RedirectSectionKey);
}

bool IsWrittenBack(std::wstring_view written, std::wstring_view name) {
  return written == name || (IsKeyName(written) && CanonicalKey(written) == CanonicalKey(name));
}

bool IsKeypadKey(std::wstring_view name) {
  const std::wstring canonical = CanonicalKey(name);
  const std::wstring key = canonical.substr(canonical.find(L'+') + 1);
  return WithNum(key) != key;
}

/// A displayed key by itself as the notation writes it.
std::wstring Written(std::wstring_view shown, const HotkeyNotation& notation) {
  const std::wstring_view key = TrimSpaces(shown);
  if (!Contains(key, Num)) return notation.DisplayToNative(key);
  return notation.DisplayToNative(WithoutNum(std::wstring(key)));
}

/// True for a key that its cell alone tells, whatever other such keys stand beside it.
bool IsToldByCell(std::wstring_view shown, std::wstring_view name, const HotkeyNotation& notation) {
  const std::wstring_view separator = notation.TrimmedSeparator();
  // A separator with a blank inside may begin in one key and end in the next.
  const bool isOnePiece = !Contains(shown, separator) && !Contains(separator, L" ");
  return isOnePiece && shown != notation.UndefinedHotkey && TrimSpaces(shown) == shown &&
         IsWrittenBack(Written(shown, notation), name);
}

std::vector<ReadKey> KeysByCell(std::wstring_view cell, const HotkeyNotation& notation) {
  std::vector<ReadKey> keys;
  for (std::wstring& piece : SplitText(cell, notation.TrimmedSeparator())) {
    std::wstring name = Written(piece, notation);
    keys.push_back({std::move(piece), std::move(name)});
  }
  return keys;
}

bool ReadsAsNone(const std::wstring& cell, const HotkeyNotation& notation) {
  return cell.empty() || cell == notation.UndefinedHotkey;
}

}  // namespace

std::vector<std::wstring> NativeKeysOf(const CommandEntry& row, const HotkeyNotation& notation) {
  const std::wstring& cell = row.CurrentKeys;
  if (row.ReadKeys.empty()) return notation.NativeKeysOf(cell);
  const bool isSplit = Contains(cell, notation.MultiHotkeySeparator);
  std::vector<std::wstring> names;
  bool hasKeypadKey = false;
  for (const auto& [shown, name] : row.ReadKeys) {
    std::wstring written = Written(shown, notation);
    const bool isParted = isSplit && Contains(shown, notation.TrimmedSeparator());
    const bool isAsRead = ReadsAsNone(cell, notation) || isParted || !IsWrittenBack(written, name);
    const bool isKeypadKey = IsKeypadKey(name.empty() ? written : name);
    const bool keepsNum = isKeypadKey && hasKeypadKey;
    hasKeypadKey = hasKeypadKey || isKeypadKey;
    if (!name.empty() && isAsRead) {
      names.push_back(name);
    } else {
      names.push_back(keepsNum ? notation.DisplayToNative(shown) : std::move(written));
    }
  }
  return names;
}

void AddReadKey(CommandEntry& row, std::wstring_view name, const HotkeyNotation& notation) {
  std::wstring shown = notation.NativeToDisplay(name, notation.UndefinedHotkey);
  const bool isRemembered = !row.ReadKeys.empty() || !IsToldByCell(shown, name, notation);
  if (isRemembered) RememberKeys(row, notation);
  notation.AddKey(row.CurrentKeys, shown);
  if (isRemembered) {
    row.ReadKeys.push_back({std::move(shown), std::wstring(name)});
  } else if (row.CurrentKeys == notation.UndefinedHotkey) {
    row.ReadKeys = KeysByCell(row.CurrentKeys, notation);
  }
}

void AddComposedKey(CommandEntry& row, std::wstring_view key, const HotkeyNotation& notation) {
  notation.AddKey(row.CurrentKeys, key);
  if (!row.ReadKeys.empty()) row.ReadKeys.push_back({std::wstring(key), {}});
}

void ForgetKey(CommandEntry& row, std::wstring_view key, const HotkeyNotation& notation) {
  std::vector<ReadKey> left;
  for (ReadKey& read : row.ReadKeys) {
    std::vector<std::wstring> pieces = SplitText(read.Shown, notation.TrimmedSeparator());
    if (std::erase(pieces, key) == 0) {
      left.push_back(std::move(read));
      continue;
    }
    for (std::wstring& piece : pieces) left.push_back({std::move(piece), {}});
  }
  row.ReadKeys = std::move(left);
}

void ForgetAllKeys(CommandEntry& row, const HotkeyNotation& notation) {
  row.CurrentKeys = notation.UndefinedHotkey;
  row.ReadKeys.clear();
}

void RememberKeys(CommandEntry& row, const HotkeyNotation& notation) {
  if (!row.ReadKeys.empty() || ReadsAsNone(row.CurrentKeys, notation)) return;
  row.ReadKeys = KeysByCell(row.CurrentKeys, notation);
}

}  // namespace tessera
