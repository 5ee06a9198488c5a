// The three written forms of a key combination, and the conversions between them.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text/Trim.h"

namespace tessera {

/// The keys that a user may choose, in the order of the key choosers.
[[nodiscard]] std::span<const std::wstring_view> KeyVocabulary();

/// The pieces of `text` between the occurrences of `separator`, each trimmed of blanks. An empty
/// separator gives the whole text as one piece; an empty text gives one empty piece.
[[nodiscard]] std::vector<std::wstring> SplitText(std::wstring_view text,
                                                  std::wstring_view separator);

/// Gives `take` each piece of the text between the occurrences of `separator`, untrimmed. An empty
/// separator separates nothing.
template <typename Take>
void ForEachPiece(std::wstring_view text, std::wstring_view separator, Take take) {
  if (!separator.empty()) {
    for (std::size_t at = text.find(separator); at != std::wstring_view::npos;
         at = text.find(separator)) {
      take(text.substr(0, at));
      text.remove_prefix(at + separator.size());
    }
  }
  take(text);
}

/// The modifiers that a key is pressed with.
struct HeldModifiers {
  bool Ctrl = false;
  bool Alt = false;
  bool Shift = false;

  [[nodiscard]] bool operator==(const HeldModifiers&) const = default;
};

/// Conversions under one set of modifier names and settings. All are pure functions of their input.
struct HotkeyNotation {
  std::wstring CtrlName = L"Ctrl";
  std::wstring AltName = L"Alt";
  std::wstring ShiftName = L"Shift";
  std::wstring MultiHotkeySeparator = L" = ";  ///< padded with one blank on each side
  std::wstring UndefinedHotkey = L"---";
  bool ReverseOrderHotkey = false;

  [[nodiscard]] bool operator==(const HotkeyNotation&) const = default;

  /// The separator without its blanks, which is what a column is split at.
  [[nodiscard]] std::wstring_view TrimmedSeparator() const;

  /// The single keys of a key column, trimmed; none for the undefined marker and for "".
  [[nodiscard]] std::vector<std::wstring> KeysOf(std::wstring_view column) const;

  /// Gives `take` each of KeysOf as a view into the column.
  template <typename Take>
  void ForEachKeyOf(std::wstring_view column, Take take) const {
    if (column.empty() || column == UndefinedHotkey) return;
    ForEachPiece(column, TrimmedSeparator(),
                 [&take](std::wstring_view piece) { take(TrimSpaces(piece)); });
  }

  /// The names in force of the modifiers, joined; "" for none.
  [[nodiscard]] std::wstring NamesOf(const HeldModifiers& held) const;

  /// A key, by its name in the vocabulary, as it is displayed with the modifiers.
  [[nodiscard]] std::wstring DisplayKey(const HeldModifiers& held, std::wstring_view key) const;

  /// Adds a displayed key behind those of the column, or in the place of the undefined marker.
  void AddKey(std::wstring& column, std::wstring_view key) const;

  /// "Ctrl + " and so on for each of the English words Ctrl, Alt and Shift that the text holds, in
  /// any letter case, in the names in force.
  [[nodiscard]] std::wstring ModifierPrefix(std::wstring_view text) const;

  /// The column `existing` with one key of Total Commander's notation added; the key alone when
  /// `existing` is the undefined marker. Keys are not checked: an odd one is shown as it comes out.
  [[nodiscard]] std::wstring NativeToDisplay(std::wstring_view nativeKey,
                                             std::wstring_view existing) const;

  /// The display form of a data file's value, which may hold several keys; a value without any
  /// modifier word comes back unchanged.
  [[nodiscard]] std::wstring DataFileToDisplay(std::wstring_view value) const;

  /// One displayed key, without its "Num", in Total Commander's notation. A modifier counts as held
  /// when its name in force occurs anywhere in the key, in exactly that letter case.
  [[nodiscard]] std::wstring DisplayToNative(std::wstring_view displayKey) const;

  /// The keys of a current-keys column as a save writes them; none for the undefined marker and for
  /// "". Only the first keypad key loses its "Num", deliberately.
  [[nodiscard]] std::vector<std::wstring> NativeKeysOf(const std::wstring& column) const;

  /// The same keys with the key name first, when ReverseOrderHotkey is set. Modifiers are
  /// recognised by their English words only; others are dropped. Not for keys that are reversed
  /// already.
  [[nodiscard]] std::wstring ApplyReverseOrder(std::wstring text) const;
};

/// The displayed name of a key: a keypad operator's is "Num " and the operator.
[[nodiscard]] std::wstring WithNum(std::wstring_view key);

/// The text without its first "Num".
[[nodiscard]] std::wstring WithoutNum(std::wstring text);

/// The key name of a "+"-joined text, trimmed: what follows its last "+" that is not its last
/// character; all of the text when it has no such "+".
[[nodiscard]] std::wstring_view KeyPart(std::wstring_view text);

}  // namespace tessera
