// Appends dropped lines beside the file that held them.
#include "shortcuts/DroppedLines.h"

#include <algorithm>
#include <utility>

#include "settings/ini/ReplaceContent.h"

namespace tessera {
namespace {

std::wstring TwoDigits(int number) { return (number < 10 ? L"0" : L"") + std::to_wstring(number); }

std::wstring TextOf(const DateAndTime& now) {
  return std::to_wstring(now.Year) + L'-' + TwoDigits(now.Month) + L'-' + TwoDigits(now.Day) +
         L' ' + TwoDigits(now.Hour) + L':' + TwoDigits(now.Minute) + L':' + TwoDigits(now.Second);
}

}  // namespace

void PutAside(std::vector<std::string> lines, const ProfileFile& file, Files& files, Clock& clock,
              DroppedLines& dropped) {
  std::vector<std::string> added = lines;
  if (dropped.Error == FileError::None) {
    std::erase_if(added, [&](const std::string& line) {
      return std::ranges::find(dropped.Lines, line) != dropped.Lines.end();
    });
  }
  dropped = {std::move(lines), files.Resolve(file.Path()).append(DroppedEnding)};
  if (added.empty()) return;
  const bool beginsFile = files.Stamp(dropped.Path).Length == 0;
  const std::wstring comment = TextOf(clock.Now()) + L' ' + file.Path();
  dropped.Error =
      AppendWhenFree(files, clock, dropped.Path, file.CommentedLines(comment, added, beginsFile));
}

}  // namespace tessera
