// Tells lines that the user has replaced or deleted from those that only this program leaves out.
#include "shortcuts/FormerLines.h"

#include "shortcuts/NativeKey.h"
#include "shortcuts/WincmdIni.h"
#include "text/Text.h"

namespace tessera {
namespace {

/// The same text for all spellings of a line.
std::wstring CanonicalLine(const std::wstring& name, const std::wstring& value) {
  return CanonicalKey(name) + L'=' + ToUpper(value);
}

}  // namespace

FormerLines::FormerLines(const ProfileFile& file, const ShortcutLines& written,
                         const std::vector<CommandEntry>& rows,
                         std::shared_ptr<const std::string> seen)
    : rows_(rows),
      seen_(std::move(seen)),
      linesInFile_(file.Entries(ShortcutsSection)),
      finder_(rows, linesInFile_) {
  for (const auto& [name, command] : written) written_[CanonicalKey(name)] = command;
}

FormerLine FormerLines::FateOf(const std::wstring& name, const std::wstring& value, bool isKept) {
  // A known command takes the name as well: a later line of that name is not in force.
  const bool isInForce = names_.insert(name).second;
  const auto row = finder_.Find(value);
  const auto written = written_.find(CanonicalKey(name));
  if (!row) {
    const bool follows = isKept && isInForce && written == written_.end();
    return follows ? FormerLine::Follows : FormerLine::Dropped;
  }
  const bool isWritten = written != written_.end() && written->second == rows_[*row].CommandName;
  return isWritten || WasSeen(name, value) ? FormerLine::Goes : FormerLine::Dropped;
}

bool FormerLines::WasSeen(const std::wstring& name, const std::wstring& value) {
  if (seen_ == nullptr) return true;
  if (!seenLines_) {
    seenLines_.emplace();
    for (const auto& [seenName, seenValue] : ProfileFile(seen_).Entries(ShortcutsSection)) {
      seenLines_->insert(CanonicalLine(seenName, seenValue));
    }
  }
  return seenLines_->contains(CanonicalLine(name, value));
}

}  // namespace tessera
