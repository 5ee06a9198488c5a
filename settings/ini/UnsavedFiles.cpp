// Only a replace, and the removal that follows it, differ from those of the other files.
#include "settings/ini/UnsavedFiles.h"

namespace tessera {
namespace {

constexpr std::wstring_view UnsavedEnding = L".unsaved";

}  // namespace

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
  const std::wstring unsaved = target + std::wstring(UnsavedEnding);
  if (!former_.contains(unsaved)) {
    std::string bytes;
    const bool isThere = files_.Read(unsaved, bytes) == FileError::None;
    former_[unsaved] = isThere ? std::optional(bytes) : std::nullopt;
  }
  return files_.Move(replacement, unsaved);
}

FileError UnsavedFiles::Move(const std::wstring& from, const std::wstring& to) {
  return files_.Move(from, to);
}

FileError UnsavedFiles::Remove(const std::wstring& path) {
  // After a replace a save takes the content away that an earlier one could not put in place.
  return path.ends_with(UnsavedEnding) ? FileError::None : files_.Remove(path);
}

}  // namespace tessera
