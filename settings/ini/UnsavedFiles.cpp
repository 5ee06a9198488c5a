// Only what concerns the content beside a file differs from the other files.
#include "settings/ini/UnsavedFiles.h"

#include "settings/ini/ReplaceContent.h"

namespace tessera {

UnsavedFiles::UnsavedFiles(Files& files, Targets targets) : files_(files), targets_(targets) {}

void UnsavedFiles::Begin() {
  left_.clear();
  pending_.clear();
}

std::vector<std::wstring> UnsavedFiles::Left() const {
  if (!pending_.empty()) return {};
  return {left_.begin(), left_.end()};
}

void UnsavedFiles::TakeAway() {
  while (!former_.empty()) PutBack(std::wstring(former_.begin()->first));
}

FileError UnsavedFiles::PutBack(const std::wstring& path) {
  const auto former = former_.extract(path);
  if (former.empty()) return FileError::None;
  left_.erase(path);
  return former.mapped() ? files_.Write(path, *former.mapped()) : files_.Remove(path);
}

bool UnsavedFiles::Exists(const std::wstring& path) const { return files_.Exists(path); }

FileError UnsavedFiles::Read(const std::wstring& path, std::string& bytes) const {
  return files_.Read(path, bytes);
}

bool UnsavedFiles::IsReadOnly(const std::wstring& path) const { return files_.IsReadOnly(path); }

FileStamp UnsavedFiles::Stamp(const std::wstring& path) const { return files_.Stamp(path); }

std::wstring UnsavedFiles::Resolve(const std::wstring& path) const { return files_.Resolve(path); }

FileError UnsavedFiles::Write(const std::wstring& path, std::string_view bytes) {
  if (!path.ends_with(UnsavedEnding)) {
    pending_.insert(path);
  } else if (const auto former = former_.find(path);
             former != former_.end() && former->second == bytes) {
    former_.erase(former);  // another of this kind has put it back
  }
  return files_.Write(path, bytes);
}

FileError UnsavedFiles::Append(const std::wstring& path, std::string_view bytes) {
  return targets_ == Targets::Replaced ? files_.Append(path, bytes) : FileError::None;
}

FileError UnsavedFiles::Replace(const std::wstring& target, const std::wstring& replacement,
                                const std::wstring& backup) {
  if (targets_ == Targets::LeftAlone) {
    const FileError error = Move(replacement, target + std::wstring(UnsavedEnding));
    // After these two a save would find another way to its target.
    return error == FileError::NotFound || error == FileError::NotSupported ? FileError::Other
                                                                            : error;
  }
  const FileError error = files_.Replace(target, replacement, backup);
  if (error == FileError::None) pending_.erase(replacement);
  return error;
}

FileError UnsavedFiles::Move(const std::wstring& from, const std::wstring& to) {
  const FileError error =
      to.ends_with(UnsavedEnding) ? MoveBeside(from, to) : files_.Move(from, to);
  if (error == FileError::None) pending_.erase(from);
  return error;
}

FileError UnsavedFiles::MoveBeside(const std::wstring& from, const std::wstring& to) {
  std::string bytes;
  const FileError read = former_.contains(to) ? FileError::None : files_.Read(to, bytes);
  // What cannot be put back is not written over.
  if (read != FileError::None && files_.Exists(to)) return read;
  const FileError error = files_.Move(from, to);
  if (error != FileError::None) return error;
  former_.try_emplace(to, read == FileError::None ? std::optional(bytes) : std::nullopt);
  left_.insert(to);
  return FileError::None;
}

FileError UnsavedFiles::Remove(const std::wstring& path) {
  if (!path.ends_with(UnsavedEnding)) return files_.Remove(path);
  // After a replace a save takes the content away that an earlier one could not put in place.
  return targets_ == Targets::Replaced ? PutBack(path) : FileError::None;
}

}  // namespace tessera
