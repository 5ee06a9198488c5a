// Writes the keys of the catalogue in Total Commander's notation.
#include "shortcuts/SaveShortcuts.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "platform/Pinned.h"
#include "shortcuts/CommandFinder.h"
#include "shortcuts/NativeKey.h"
#include "shortcuts/ReadKeys.h"
#include "shortcuts/RedirectSection.h"
#include "shortcuts/WincmdIni.h"
#include "text/Text.h"
#include "text/TextHash.h"

namespace tessera {
namespace {

using Lines = std::vector<std::pair<std::wstring, std::wstring>>;

struct CatalogueLine {
  std::wstring Name;
  std::wstring Command;
  RowKey Row = 0;
};

/// In a file, every character up to the space is a blank.
constexpr bool IsBlank(wchar_t character) { return character <= L' '; }

/// The key as its line's name is read from the file.
std::wstring AsName(const std::wstring& key) {
  const auto begin = std::ranges::find_if_not(key, IsBlank);
  const auto end = std::find_if_not(key.rbegin(), std::make_reverse_iterator(begin), IsBlank);
  return {begin, end.base()};
}

std::vector<CatalogueLine> LinesOfRows(const DisplayTable& table, const HotkeyNotation& notation) {
  std::vector<CatalogueLine> lines;
  for (std::size_t position = 0; position < table.Count(); ++position) {
    const CommandEntry& row = table.At(position);
    for (const std::wstring& key : NativeKeysOf(row, notation)) {
      std::wstring name = AsName(key);
      // A line without a name would bind nothing.
      if (!name.empty()) lines.push_back({std::move(name), std::wstring(row.CommandName), row.Key});
    }
  }
  return lines;
}

/// Of several rows' lines for one key leaves that of the row which an edit gave the key to last, in
/// the place of the first. Where all rows have the key from the file, the lines stay.
void LeaveKeysToEditedRows(std::vector<CatalogueLine>& lines, const GivenKeys& given) {
  const auto momentOf = [&](const CatalogueLine* line) {
    return given.MomentOf(line->Row, line->Name);
  };
  std::unordered_map<std::wstring, std::vector<CatalogueLine*>> linesOfKeys;
  for (CatalogueLine& line : lines) linesOfKeys[CanonicalKey(line.Name)].push_back(&line);
  for (auto& [key, same] : linesOfKeys) {
    // Of a row's own lines for the key the last one, which is what an edit adds.
    CatalogueLine* const winner = *std::max_element(
        same.rbegin(), same.rend(), [&](const CatalogueLine* left, const CatalogueLine* right) {
          return momentOf(left) < momentOf(right);
        });
    const bool isOneRow = std::ranges::all_of(
        same, [&](const CatalogueLine* line) { return line->Row == winner->Row; });
    if (isOneRow || momentOf(winner) == 0) continue;
    std::swap(*same.front(), *winner);
    std::for_each(same.begin() + 1, same.end(), [](CatalogueLine* line) { line->Name.clear(); });
  }
  std::erase_if(lines, [](const CatalogueLine& line) { return line.Name.empty(); });
}

Lines LinesOfCatalogue(const Catalogue& catalogue, const HotkeyNotation& notation) {
  std::vector<CatalogueLine> rows = LinesOfRows(catalogue.ListView1, notation);
  LeaveKeysToEditedRows(rows, catalogue.Given);
  Lines lines;
  lines.reserve(rows.size());
  for (CatalogueLine& line : rows) {
    lines.emplace_back(std::move(line.Name), std::move(line.Command));
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
  WincmdIni wincmdIni(files, clock, environment, request.Path, request.Known);

  const Lines lines = LinesOfCatalogue(catalogue, notation);
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
  return wincmdIni.Save(files, clock, request.Known);
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
  catalogue.Edits.MarkSaved();
  return FileError::None;
}

FileError WriteUnsavedShortcuts(const Catalogue& catalogue, const HotkeyNotation& notation,
                                const SaveRequest& request, UnsavedFiles& files, Clock& clock,
                                const Environment& environment) {
  return SaveFromTheStart(
      [&] { return WriteKeys(catalogue, notation, request, files, clock, environment); });
}

}  // namespace tessera
