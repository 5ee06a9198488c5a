// Reads "Totalcmd.inc" line by line.
#include "shortcuts/InternalCommands.h"

#include <algorithm>

#include "platform/Lines.h"
#include "platform/Text.h"
#include "settings/ProfileFile.h"

namespace tessera {

namespace {

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
constexpr std::wstring_view CommandPrefix = L"cm_";

bool IsBlank(wchar_t character) {
  return character == L' ' || character == L'\t' || character == L'\r' || character == L'\n';
}

std::wstring_view Trimmed(std::wstring_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
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

  row.CommandName = Trimmed(line.substr(0, equals));
  if (semicolon > equals) {
    row.CommandCode = Trimmed(line.substr(equals + 1, semicolon - equals - 1));
  }
  row.Description = Trimmed(line.substr(semicolon + 1));
  row.DefaultKeys = undefinedHotkey;
  row.CurrentKeys = undefinedHotkey;
  row.Tag = row.CommandCode;
}

void ReadHeading(std::wstring_view line, CommandEntry& row) {
  const std::size_t equals = line.ends_with(L'0') ? line.rfind(L'=') : std::wstring_view::npos;
  const bool endsInZero =
      equals != std::wstring_view::npos && LeadingNumber(Trimmed(line.substr(equals + 1))) == 0.0;

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
    const std::wstring_view line = Trimmed(untrimmed);
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
