// Reads "Totalcmd.inc" line by line.
#include "shortcuts/InternalCommands.h"

#include <algorithm>

#include "text/Lines.h"
#include "text/Numbers.h"
#include "text/Text.h"
#include "text/Trim.h"
#include "text/Utf8.h"

namespace tessera {
namespace {

constexpr std::wstring_view CommandPrefix = L"cm_";

bool IsBlank(wchar_t character) {
  return character == L' ' || character == L'\t' || character == L'\r' || character == L'\n';
}

bool IsCommand(std::wstring_view line) {
  return EqualIgnoringCase(line.substr(0, CommandPrefix.size()), CommandPrefix);
}

void ReadCommand(std::wstring_view line, const std::wstring& undefinedHotkey, CommandEntry& row) {
  // A sign that is missing deliberately stands at the last character, which the name or the code
  // then loses.
  const std::size_t last = line.size() - 1;
  const std::size_t equals = std::min(line.find(L'='), last);
  const std::size_t semicolon = std::min(line.find(L';'), last);

  row.CommandName = Trim(line.substr(0, equals), IsBlank);
  if (semicolon > equals) {
    row.CommandCode = Trim(line.substr(equals + 1, semicolon - equals - 1), IsBlank);
  }
  row.Description = Trim(line.substr(semicolon + 1), IsBlank);
  row.DefaultKeys = undefinedHotkey;
  row.CurrentKeys = undefinedHotkey;
  row.Tag = row.CommandCode;
}

void ReadHeading(std::wstring_view line, CommandEntry& row) {
  const std::size_t equals = line.ends_with(L'0') ? line.rfind(L'=') : std::wstring_view::npos;
  const bool endsInZero = equals != std::wstring_view::npos &&
                          LeadingNumber(Trim(line.substr(equals + 1), IsBlank)) == 0.0;

  row.Description = endsInZero ? line.substr(0, equals) : line;
  row.Tag = CommentBlockTag;
}

}  // namespace

std::wstring DecodeInternalCommands(std::string_view bytes) {
  if (!bytes.starts_with(Utf8Mark)) return Decode(bytes);
  return Decode(bytes.substr(Utf8Mark.size()), Utf8CodePage);
}

std::vector<CommandEntry> ReadInternalCommands(std::wstring_view text,
                                               const std::wstring& undefinedHotkey,
                                               const ProgressStep& step) {
  const std::vector<std::wstring_view> lines = SplitIntoLines(text);
  std::vector<CommandEntry> rows;
  rows.reserve(lines.size());
  for (const std::wstring_view untrimmed : lines) {
    const std::wstring_view line = Trim(untrimmed, IsBlank);
    step();
    if (line.empty()) continue;
    CommandEntry& row = rows.emplace_back();
    row.Key = rows.size();
    if (IsCommand(line)) {
      ReadCommand(line, undefinedHotkey, row);
    } else {
      ReadHeading(line, row);
    }
  }
  return rows;
}

}  // namespace tessera
