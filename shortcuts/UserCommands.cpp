// Reads "usercmd.ini", whatever it holds, and keeps the rows of its commands apart from the others.
#include "shortcuts/UserCommands.h"

#include <algorithm>
#include <memory>
#include <span>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "settings/ini/ProfileFile.h"
#include "settings/Paths.h"
#include "text/ControlCharacters.h"
#include "text/Text.h"
#include "text/TextHash.h"
#include "text/Trim.h"
#include "text/Utf8.h"

namespace tessera {
namespace {

constexpr std::wstring_view Prefix = L"em_";
constexpr std::uint64_t LargestFile = 4 << 20;  // bytes
/// A line's value is read up to 4095 bytes, of which a character may take four.
constexpr std::size_t LongestName = 1000;
constexpr std::string_view BigEndianMark = "\xFE\xFF";
constexpr wchar_t Unknown = 0xFFFD;  // what bytes become that the encoding does not know

using RowsByName =
    std::unordered_map<std::wstring_view, RowKey, HashIgnoringCase, EqualsIgnoringCase>;

std::string WithBytesSwapped(std::string bytes) {
  for (std::size_t at = 1; at < bytes.size(); at += 2) std::swap(bytes[at - 1], bytes[at]);
  return bytes;
}

ProfileFile Decoded(const std::shared_ptr<const std::string>& content) {
  if (content->starts_with(BigEndianMark)) {
    return ProfileFile(std::make_shared<const std::string>(WithBytesSwapped(*content)));
  }
  ProfileFile file(content);
  if (content->starts_with(Utf8Mark)) {
    file.PassOverMark();
    file.UseCodePage(Utf8CodePage);
  }
  return file;
}

bool IsUsable(std::wstring_view name) {
  return name.size() > Prefix.size() && name.size() <= LongestName && IsUserCommand(name) &&
         std::ranges::none_of(
             name, [](wchar_t character) { return IsControl(character) || character == Unknown; });
}

std::wstring DescriptionOf(const ProfileSection& section) {
  std::wstring text = section.Find(L"menu").value_or(L"");
  if (text.empty()) text = section.Find(L"cmd").value_or(L"");
  return std::wstring(TrimSpaces(WithoutControls(text)));
}

RowsByName RowsOf(std::span<const CommandEntry> rows) {
  RowsByName keys;
  for (const CommandEntry& row : rows) keys.emplace(row.CommandName, row.Key);
  return keys;
}

CommandEntry Heading(std::wstring_view text) {
  CommandEntry row;
  row.Description = text;
  row.Tag = CommentBlockTag;
  return row;
}

CommandEntry RowFor(const UserCommand& command, const HotkeyNotation& notation) {
  CommandEntry row;
  row.CommandName = command.Name;
  row.Description = command.Description;
  row.DefaultKeys = notation.UndefinedHotkey;
  row.CurrentKeys = notation.UndefinedHotkey;
  return row;
}

}  // namespace

bool IsUserCommand(std::wstring_view command) {
  return EqualIgnoringCase(command.substr(0, Prefix.size()), Prefix);
}

UserCommandFile ReadUserCommands(const Files& files, Clock& clock, const std::wstring& wincmdPath) {
  const std::wstring folder = DirectoryOf(wincmdPath);
  const std::wstring path = (folder.empty() ? folder : AddBackslash(folder)) + L"usercmd.ini";
  if (files.Stamp(path).Length > LargestFile) return {path, {}, FileError::Other};
  const ProfileFile read(files, clock, path);
  const ProfileFile file = Decoded(read.Content());
  UserCommandFile result{path, {}, read.ReadError()};
  std::unordered_set<std::wstring, HashIgnoringCase, EqualsIgnoringCase> names;
  for (std::wstring& name : file.SectionNames()) {
    if (!IsUsable(name) || !names.insert(name).second) continue;
    std::wstring description = DescriptionOf(file.Section(name));
    result.Commands.push_back({std::move(name), std::move(description)});
  }
  return result;
}

void ReplaceUserRows(Catalogue& catalogue, std::vector<UserCommand> commands, std::wstring heading,
                     const HotkeyNotation& notation) {
  std::vector<CommandEntry>& rows = catalogue.lvwHidden;
  const auto firstOwn = rows.end() - static_cast<std::ptrdiff_t>(catalogue.UserRows);
  const std::vector<CommandEntry> former(firstOwn, rows.end());
  rows.erase(firstOwn, rows.end());
  const auto formerTexts =
      std::exchange(catalogue.UserTexts, std::make_shared<const UserCommandTexts>(UserCommandTexts{
                                             std::move(heading), std::move(commands)}));
  // Without own commands, as most users open their file, the names of all others are not wanted.
  const bool hasNone = catalogue.UserTexts->Commands.empty();
  const RowsByName taken = hasNone ? RowsByName() : RowsOf(rows);
  const std::size_t masterRows = rows.size();
  if (!rows.empty()) catalogue.LastKey = std::max(catalogue.LastKey, rows.back().Key);
  for (const UserCommand& command : catalogue.UserTexts->Commands) {
    if (taken.contains(command.Name)) continue;
    if (rows.size() == masterRows) rows.push_back(Heading(catalogue.UserTexts->Heading));
    rows.push_back(RowFor(command, notation));
  }
  for (std::size_t row = masterRows; row < rows.size(); ++row) rows[row].Key = ++catalogue.LastKey;
  catalogue.UserRows = rows.size() - masterRows;
  const RowsByName own = RowsOf(std::span(rows).subspan(masterRows));
  for (const CommandEntry& row : former) {
    const auto found = own.find(row.CommandName);
    catalogue.Given.Move(row.Key, found == own.end() ? 0 : found->second);
  }
}

}  // namespace tessera
