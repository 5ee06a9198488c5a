// Finds and saves the files of "Wincmd.ini", and reads the keys of section "Shortcuts".
#include "shortcuts/WincmdIni.h"

#include <algorithm>

#include "shortcuts/CommandFinder.h"
#include "shortcuts/ReadKeys.h"
#include "shortcuts/RedirectSection.h"
#include "text/Text.h"

namespace tessera {

WincmdIni::WincmdIni(Files& files, Clock& clock, const Environment& environment,
                     const std::wstring& path, KnownContents* known) {
  Read(files, clock, path, known);
  shortcuts_ = FileOfSection(ShortcutsSection, files, clock, environment, known);
  startMenu_ = FileOfSection(StartMenuSection, files, clock, environment, known);
}

const ProfileFile& WincmdIni::Shortcuts() const { return files_[shortcuts_]; }

const ProfileFile& WincmdIni::StartMenu() const { return files_[startMenu_]; }

ProfileFile& WincmdIni::Shortcuts() { return files_[shortcuts_]; }

ProfileFile& WincmdIni::StartMenu() { return files_[startMenu_]; }

const ProfileFile* WincmdIni::Unread() const {
  const auto unread = std::ranges::find_if(files_, &ProfileFile::Unread);
  return unread == files_.end() ? nullptr : &*unread;
}

FileError WincmdIni::Save(Files& files, Clock& clock, KnownContents* known) {
  FileError error = FileError::None;
  for (ProfileFile& file : files_) {
    if (error != FileError::None) {
      file.KeepUnsaved(files);
      continue;
    }
    error = file.Save(files, clock, KeepCopies::Yes);
    if (known != nullptr && error == FileError::None) (*known)[file.Path()] = file.Content();
  }
  return error;
}

void WincmdIni::Read(Files& files, Clock& clock, const std::wstring& path, KnownContents* known) {
  ClearLeftOvers(files, path, KeepCopies::Yes);
  ProfileFile& file = files_.emplace_back(files, clock, path);
  if (known == nullptr) return;
  if (!file.Unread()) {
    (*known)[path] = file.Content();
  } else if (const auto former = known->find(path); former != known->end()) {
    file.Assume(former->second);
  }
}

std::size_t WincmdIni::FileOfSection(std::wstring_view section, Files& files, Clock& clock,
                                     const Environment& environment, KnownContents* known) {
  const std::wstring path = PathOfSection(files_.front(), section, environment);
  const std::wstring target = files.Resolve(path);
  // Two copies of one file in memory would undo each other's changes.
  const auto same = std::ranges::find_if(files_, [&](const ProfileFile& file) {
    return EqualIgnoringCase(files.Resolve(file.Path()), target);
  });
  const auto index = static_cast<std::size_t>(same - files_.begin());
  if (same == files_.end()) Read(files, clock, path, known);
  return index;
}

void ReadShortcuts(std::vector<CommandEntry>& rows, const ProfileFile& file,
                   const HotkeyNotation& notation, const ProgressStep& step) {
  const ProfileSection section = file.Section(ShortcutsSection);
  auto lines = file.Entries(ShortcutsSection);
  // Of a name that stands twice, the first line's value counts both times.
  for (auto& [name, value] : lines) value = section.Find(name).value_or(L"");
  CommandFinder finder(rows, lines);
  for (const auto& [name, value] : lines) {
    step();
    if (name.empty() || EqualIgnoringCase(name, RedirectSectionKey)) continue;
    const auto row = finder.Find(value);
    if (!row) continue;

    const std::wstring& keys = rows[*row].CurrentKeys;
    finder.RemoveCurrentKeys(*row, keys);
    AddReadKey(rows[*row], name, notation);
    finder.AddCurrentKeys(*row, keys);
  }
}

}  // namespace tessera
