// Only what concerns the content beside a file differs from the other files.
#include "settings/ini/UnsavedFiles.h"

#include "settings/ini/ReplaceContent.h"

namespace tessera {

UnsavedFiles::UnsavedFiles(Files& files) : files_(files) {}

void UnsavedFiles::TakeAway() {
  for (const auto& [path, bytes] : former_) {
    if (bytes) {
      static_cast<void>(files_.Write(path, *bytes));
    } else {
      files_.Remove(path);
    }
  }
  former_.clear();
}

bool UnsavedFiles::Exists(const std::wstring& path) const { return files_.Exists(path); }

FileError UnsavedFiles::Read(const std::wstring& path, std::string& bytes) const {
  return files_.Read(path, bytes);
}

FileStamp UnsavedFiles::Stamp(const std::wstring& path) const { return files_.Stamp(path); }

std::wstring UnsavedFiles::Resolve(const std::wstring& path) const { return files_.Resolve(path); }

FileError UnsavedFiles::Write(const std::wstring& path, std::string_view bytes) {
  return files_.Write(path, bytes);
}

FileError UnsavedFiles::Replace(const std::wstring& target, const std::wstring& replacement,
                                const std::wstring& /*backup*/) {
  return Move(replacement, target + std::wstring(UnsavedEnding));
}

FileError UnsavedFiles::Move(const std::wstring& from, const std::wstring& to) {
  if (!to.ends_with(UnsavedEnding) || former_.contains(to)) return files_.Move(from, to);
  std::string bytes;
  const FileError read = files_.Read(to, bytes);
  // What cannot be put back is not written over.
  if (read != FileError::None && read != FileError::NotFound) return read;
  const FileError error = files_.Move(from, to);
  if (error == FileError::None) {
    former_[to] = read == FileError::None ? std::optional(bytes) : std::nullopt;
  }
  return error;
}

FileError UnsavedFiles::Remove(const std::wstring& path) {
  // After a replace a save takes the content away that an earlier one could not put in place.
  return path.ends_with(UnsavedEnding) ? FileError::None : files_.Remove(path);
}

}  // namespace tessera
