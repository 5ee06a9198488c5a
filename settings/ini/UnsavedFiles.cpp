// Only what concerns the content beside a file differs from the other files.
#include "settings/ini/UnsavedFiles.h"

#include "settings/ini/ReplaceContent.h"

namespace tessera {

UnsavedFiles::UnsavedFiles(Files& files, Targets targets) : files_(files), targets_(targets) {}

bool UnsavedFiles::HoldAll() const { return !former_.empty() && pending_.empty(); }

std::vector<std::wstring> UnsavedFiles::Left() const {
  std::vector<std::wstring> paths;
  for (const auto& [path, bytes] : former_) paths.push_back(path);
  return paths;
}

void UnsavedFiles::TakeAway() {
  while (!former_.empty()) PutBack(std::wstring(former_.begin()->first));
}

FileError UnsavedFiles::PutBack(const std::wstring& path) {
  const auto former = former_.extract(path);
  if (former.empty()) return FileError::None;
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
  if (targets_ == Targets::LeftAlone) pending_.insert(path);
  return files_.Write(path, bytes);
}

FileError UnsavedFiles::Append(const std::wstring& path, std::string_view bytes) {
  return targets_ == Targets::Replaced ? files_.Append(path, bytes) : FileError::None;
}

FileError UnsavedFiles::Replace(const std::wstring& target, const std::wstring& replacement,
                                const std::wstring& backup) {
  if (targets_ == Targets::Replaced) return files_.Replace(target, replacement, backup);
  return Move(replacement, target + std::wstring(UnsavedEnding));
}

FileError UnsavedFiles::Move(const std::wstring& from, const std::wstring& to) {
  if (!to.ends_with(UnsavedEnding)) return files_.Move(from, to);
  std::string bytes;
  const FileError read = former_.contains(to) ? FileError::None : files_.Read(to, bytes);
  // What cannot be put back is not written over.
  if (read != FileError::None && files_.Exists(to)) return read;
  const FileError error = files_.Move(from, to);
  if (error != FileError::None) return error;
  former_.try_emplace(to, read == FileError::None ? std::optional(bytes) : std::nullopt);
  pending_.erase(from);
  return FileError::None;
}

FileError UnsavedFiles::Remove(const std::wstring& path) {
  if (!path.ends_with(UnsavedEnding)) return files_.Remove(path);
  // After a replace a save takes the content away that an earlier one could not put in place.
  return targets_ == Targets::Replaced ? PutBack(path) : FileError::None;
}

}  // namespace tessera
