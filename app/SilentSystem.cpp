// What is refused is an error that no waiting helps against.
#include "app/SilentSystem.h"

#include <algorithm>

#include "text/Text.h"

namespace tessera {

ReadOnlyFiles::ReadOnlyFiles(const Files& files) : files_(files) {}

std::optional<std::wstring> ReadOnlyFiles::Unread() const {
  const auto found = std::ranges::find_if(reads_, [](const auto& read) {
    return read.second != FileError::None && read.second != FileError::NotFound;
  });
  return found == reads_.end() ? std::nullopt : std::optional(found->first);
}

bool ReadOnlyFiles::IsInput(const std::wstring& path) const {
  const std::wstring resolved = Resolve(path);
  return std::ranges::any_of(
      reads_, [&](const auto& read) { return EqualIgnoringCase(Resolve(read.first), resolved); });
}

bool ReadOnlyFiles::Exists(const std::wstring& path) const { return files_.Exists(path); }

FileError ReadOnlyFiles::Read(const std::wstring& path, std::string& bytes) const {
  const FileError error = files_.Read(path, bytes);
  reads_[path] = error;
  return error;
}

bool ReadOnlyFiles::IsReadOnly(const std::wstring& path) const { return files_.IsReadOnly(path); }

FileStamp ReadOnlyFiles::Stamp(const std::wstring& path) const { return files_.Stamp(path); }

std::wstring ReadOnlyFiles::Resolve(const std::wstring& path) const { return files_.Resolve(path); }

FileError ReadOnlyFiles::Write(const std::wstring& /*path*/, std::string_view /*bytes*/) {
  return FileError::Other;
}

FileError ReadOnlyFiles::Append(const std::wstring& /*path*/, std::string_view /*bytes*/) {
  return FileError::Other;
}

FileError ReadOnlyFiles::Replace(const std::wstring& /*target*/,
                                 const std::wstring& /*replacement*/,
                                 const std::wstring& /*backup*/) {
  return FileError::Other;
}

FileError ReadOnlyFiles::Move(const std::wstring& /*from*/, const std::wstring& /*to*/) {
  return FileError::Other;
}

FileError ReadOnlyFiles::Remove(const std::wstring& /*path*/) { return FileError::Other; }

const std::wstring& UnshownBoxes::FirstText() const { return firstText_; }

BoxAnswer UnshownBoxes::Show(const std::wstring& text, BoxButtons buttons, BoxIcon /*icon*/,
                             BoxDefault /*defaultButton*/) {
  if (firstText_.empty()) firstText_ = text;
  if (buttons == BoxButtons::Ok) return BoxAnswer::Ok;
  return buttons == BoxButtons::YesNo ? BoxAnswer::No : BoxAnswer::Cancel;
}

void UnshownBoxes::Beep() {}

std::optional<std::wstring> UnshownDialogs::Open(const FileDialogRequest& /*request*/) {
  return std::nullopt;
}

std::optional<std::wstring> UnshownDialogs::Save(const FileDialogRequest& /*request*/) {
  return std::nullopt;
}

std::optional<std::uint32_t> UnshownDialogs::Color() { return std::nullopt; }

bool UnshownDialogs::Font(FontRecord& /*font*/) { return false; }

SilentSystem::SilentSystem(const System& system) : system_(system), files_(system.Files) {}

System SilentSystem::Seams() {
  return {files_,   system_.Registry, system_.Environment, boxes_,
          dialogs_, system_.Programs, system_.Clock,       system_.Clipboard};
}

const ReadOnlyFiles& SilentSystem::Files() const { return files_; }

const UnshownBoxes& SilentSystem::Boxes() const { return boxes_; }

}  // namespace tessera
