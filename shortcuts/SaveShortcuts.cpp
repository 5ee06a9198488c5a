// Writes the keys of the catalogue in Total Commander's notation.
#include "shortcuts/SaveShortcuts.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>
#include <vector>

#include "platform/Pinned.h"
#include "shortcuts/CommandFinder.h"
#include "shortcuts/NativeKey.h"
#include "shortcuts/RedirectSection.h"
#include "shortcuts/WincmdIni.h"
#include "text/Text.h"
#include "text/TextHash.h"

namespace tessera {

namespace {

using Lines = std::vector<std::pair<std::wstring, std::wstring>>;

std::wstring WithoutNum(std::wstring text) {
  // Deliberately the first one alone: a second keypad key in the same cell keeps its "Num".
  constexpr std::wstring_view Num = L"Num";
  const std::size_t at = text.find(Num);
  return at == std::wstring::npos ? text : text.erase(at, Num.size());
}

std::vector<std::wstring> NativeKeys(const std::wstring& currentKeys,
                                     const HotkeyNotation& notation) {
  const std::wstring text = WithoutNum(currentKeys);
  if (text == L"+") return {text};
  if (text.find(notation.MultiHotkeySeparator) == std::wstring::npos) {
    return {notation.DisplayToNative(text)};
  }
  std::vector<std::wstring> keys;
  for (const std::wstring& piece : SplitText(text, notation.TrimmedSeparator())) {
    keys.push_back(notation.DisplayToNative(piece));
  }
  return keys;
}

/// In a file, every character up to the space is a blank.
constexpr bool IsBlank(wchar_t character) { return character <= L' '; }

/// The key as its line's name is read from the file.
std::wstring AsName(const std::wstring& key) {
  const auto begin = std::find_if_not(key.begin(), key.end(), IsBlank);
  const auto end = std::find_if_not(key.rbegin(), std::make_reverse_iterator(begin), IsBlank);
  return {begin, end.base()};
}

Lines LinesOfCatalogue(const DisplayTable& table, const HotkeyNotation& notation) {
  Lines lines;
  for (std::size_t position = 0; position < table.Count(); ++position) {
    const CommandEntry& row = table.At(position);
    if (row.CurrentKeys.empty() || row.CurrentKeys == notation.UndefinedHotkey) continue;
    for (const std::wstring& key : NativeKeys(row.CurrentKeys, notation)) {
      std::wstring name = AsName(key);
      // A line without a name would bind nothing.
      if (!name.empty()) lines.emplace_back(std::move(name), row.CommandName);
    }
  }
  return lines;
}

/// The lines of a file whose commands are not in the catalogue.
class UnknownCommands : Pinned {
 public:
  /// `written` takes the place of the file's lines.
  UnknownCommands(const ProfileFile& file, const Lines& written,
                  const std::vector<CommandEntry>& catalogueRows)
      : linesInForce_(file.Entries(ShortcutsSection)), finder_(catalogueRows, linesInForce_) {
    for (const auto& [name, value] : written) writtenKeys_.insert(CanonicalKey(name));
  }

  /// To be asked about each line of the file once, in their order. False also for a line that is
  /// not in force, and for one whose key is written.
  bool HaveLine(const std::wstring& name, const std::wstring& value) {
    // A known command takes the name as well: a later line of that name is not in force.
    const bool isInForce = names_.insert(name).second;
    return isInForce && !finder_.Find(value) && !writtenKeys_.contains(CanonicalKey(name));
  }

 private:
  Lines linesInForce_;
  CommandFinder finder_;
  std::unordered_set<std::wstring> writtenKeys_;
  std::unordered_set<std::wstring, HashIgnoringCase, EqualsIgnoringCase> names_;
};

bool IsTaken(const StartMenuSlot& slot) { return slot.Key.ends_with(L'*'); }

/// Reads the files afresh and writes what the catalogue says.
FileError WriteKeys(const Catalogue& catalogue, const HotkeyNotation& notation,
                    const SaveRequest& request, Files& files, Clock& clock,
                    const Environment& environment) {
  WincmdIni wincmdIni(files, clock, environment, request.Path);

  const Lines lines = LinesOfCatalogue(catalogue.ListView1, notation);
  UnknownCommands unknown(wincmdIni.Shortcuts(), lines, catalogue.lvwHidden);
  wincmdIni.Shortcuts().ReplaceEntries(
      ShortcutsSection, lines, [&](const std::wstring& name, const std::wstring& value) {
        if (EqualIgnoringCase(name, RedirectSectionKey)) return FormerLine::Stays;
        const bool isKept = request.KeepUnknownShortcuts && unknown.HaveLine(name, value);
        return isKept ? FormerLine::Follows : FormerLine::Goes;
      });
  for (const StartMenuSlot& slot : catalogue.StartMenuKeys) {
    if (IsTaken(slot)) wincmdIni.StartMenu().DeleteValue(StartMenuSection, slot.ValueName);
  }
  return wincmdIni.Save(files, clock);
}

}  // namespace

FileError SaveShortcuts(Catalogue& catalogue, const HotkeyNotation& notation,
                        const SaveRequest& request, Files& files, Clock& clock,
                        const Environment& environment) {
  const FileError error = SaveFromTheStart(
      [&] { return WriteKeys(catalogue, notation, request, files, clock, environment); });
  if (error != FileError::None) return error;
  for (StartMenuSlot& slot : catalogue.StartMenuKeys) {
    if (IsTaken(slot)) slot = {};
  }
  return FileError::None;
}

}  // namespace tessera
