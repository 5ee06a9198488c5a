// What becomes of the lines that section "Shortcuts" of a file holds when a save begins.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "platform/Pinned.h"
#include "settings/ini/ProfileFile.h"
#include "shortcuts/CommandEntry.h"
#include "shortcuts/CommandFinder.h"
#include "text/TextHash.h"

namespace tessera {

/// Lines of section "Shortcuts": key and command of each.
using ShortcutLines = std::vector<std::pair<std::wstring, std::wstring>>;

class FormerLines : Pinned {
 public:
  /// `written` takes the place of the lines of `file`. `seen` is the content that the user knows,
  /// of the last open or save; null stands for that of the file. Rows and lines must outlive this
  /// object.
  FormerLines(const ProfileFile& file, const ShortcutLines& written,
              const std::vector<CommandEntry>& rows, std::shared_ptr<const std::string> seen);

  /// To be asked about each line of the file once, in their order. A line goes whose command has a
  /// row: that writes its keys. It is dropped when it is not written and the user does not know it.
  /// A line without a row follows when such lines are kept, if it is in force and its key is not
  /// written; else it is dropped.
  FormerLine FateOf(const std::wstring& name, const std::wstring& value, bool isKept);

 private:
  [[nodiscard]] bool WasSeen(const std::wstring& name, const std::wstring& value);

  const std::vector<CommandEntry>& rows_;
  std::shared_ptr<const std::string> seen_;
  ShortcutLines linesInFile_;
  CommandFinder finder_;

  std::unordered_map<std::wstring, std::wstring_view> written_;  ///< commands by their keys
  std::unordered_set<std::wstring, HashIgnoringCase, EqualsIgnoringCase> names_;
  std::optional<std::unordered_set<std::wstring>> seenLines_;  ///< made when first asked for
};

}  // namespace tessera
