// Writes the keys of the catalogue in Total Commander's notation.
#include "shortcuts/SaveShortcuts.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

#include "shortcuts/FormerLines.h"
#include "shortcuts/NativeKey.h"
#include "shortcuts/ReadKeys.h"
#include "shortcuts/RedirectSection.h"
#include "shortcuts/UserCommands.h"
#include "shortcuts/WincmdIni.h"
#include "text/Text.h"

namespace tessera {
namespace {

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

ShortcutLines LinesOfCatalogue(const Catalogue& catalogue, const HotkeyNotation& notation) {
  std::vector<CatalogueLine> rows = LinesOfRows(catalogue.ListView1, notation);
  LeaveKeysToEditedRows(rows, catalogue.Given);
  ShortcutLines lines;
  lines.reserve(rows.size());
  for (CatalogueLine& line : rows) {
    lines.emplace_back(std::move(line.Name), std::move(line.Command));
  }
  return lines;
}

bool IsTaken(const StartMenuSlot& slot) { return slot.Key.ends_with(L'*'); }

/// What the user knows of the file's lines; null where that is what the save finds.
std::shared_ptr<const std::string> SeenContent(const SaveRequest& request,
                                               const std::wstring& path) {
  if (request.Seen == nullptr) return nullptr;
  const auto found = request.Seen->find(path);
  return found == request.Seen->end() ? std::make_shared<const std::string>() : found->second;
}

/// Gives the lines that are dropped.
std::vector<std::string> ReplaceLines(const Catalogue& catalogue, const HotkeyNotation& notation,
                                      const SaveRequest& request, ProfileFile& file) {
  const ShortcutLines lines = LinesOfCatalogue(catalogue, notation);
  FormerLines former(file, lines, catalogue.lvwHidden, SeenContent(request, file.Path()));
  return file.ReplaceEntries(
      ShortcutsSection, lines, [&](const std::wstring& name, const std::wstring& value) {
        if (EqualIgnoringCase(name, RedirectSectionKey)) return FormerLine::Stays;
        const bool isKept =
            request.KeepUnknownShortcuts || (request.KeepUserCommands && IsUserCommand(value));
        return former.FateOf(name, value, isKept);
      });
}

/// Reads the files afresh and writes what the catalogue says.
FileError WriteKeys(const Catalogue& catalogue, const HotkeyNotation& notation,
                    const SaveRequest& request, Files& files, Clock& clock,
                    const Environment& environment, SaveOutcome& outcome) {
  WincmdIni wincmdIni(files, clock, environment, request.Path, request.Known);
  ProfileFile& shortcuts = wincmdIni.Shortcuts();
  outcome.Path = shortcuts.Path();
  std::vector<std::string> dropped = ReplaceLines(catalogue, notation, request, shortcuts);
  for (const StartMenuSlot& slot : catalogue.StartMenuKeys) {
    if (IsTaken(slot)) wincmdIni.StartMenu().DeleteValue(StartMenuSection, slot.ValueName);
  }
  // Nothing leaves a file that is not going to be written.
  if (wincmdIni.Unread() == nullptr) {
    PutAside(std::move(dropped), shortcuts, files, clock, outcome.Dropped);
  }
  return wincmdIni.Save(files, clock, request.Known);
}

SaveOutcome Save(const Catalogue& catalogue, const HotkeyNotation& notation,
                 const SaveRequest& request, Files& files, Clock& clock,
                 const Environment& environment) {
  SaveOutcome outcome;
  outcome.Error = SaveFromTheStart(
      [&] { return WriteKeys(catalogue, notation, request, files, clock, environment, outcome); });
  return outcome;
}

}  // namespace

SaveOutcome SaveShortcuts(Catalogue& catalogue, const HotkeyNotation& notation,
                          const SaveRequest& request, Files& files, Clock& clock,
                          const Environment& environment) {
  SaveOutcome outcome = Save(catalogue, notation, request, files, clock, environment);
  if (outcome.Error != FileError::None) return outcome;
  for (StartMenuSlot& slot : catalogue.StartMenuKeys) {
    if (IsTaken(slot)) slot = {};
  }
  catalogue.Edits.MarkSaved();
  return outcome;
}

FileError WriteUnsavedShortcuts(const Catalogue& catalogue, const HotkeyNotation& notation,
                                const SaveRequest& request, UnsavedFiles& files, Clock& clock,
                                const Environment& environment) {
  return Save(catalogue, notation, request, files, clock, environment).Error;
}

}  // namespace tessera
