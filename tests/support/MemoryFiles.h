// Files held in memory, which counts reads and writes and fails when told to.
#pragma once

#include <algorithm>
#include <deque>
#include <map>
#include <string>
#include <string_view>

#include "platform/Files.h"
#include "text/Text.h"

namespace tessera {

class MemoryFiles : public Files {
 public:
  std::map<std::wstring, std::string> Contents;  ///< by path, letter case as given
  std::map<std::wstring, std::wstring> Links;    ///< from a link to its target

  // The errors of the next calls, one for each call; None lets a call succeed.
  mutable std::deque<FileError> ReadErrors;
  std::deque<FileError> WriteErrors;
  std::deque<FileError> AppendErrors;
  std::deque<FileError> ReplaceErrors;
  std::deque<FileError> MoveErrors;

  mutable int Reads = 0;
  int Writes = 0;
  int Replaces = 0;

  [[nodiscard]] bool Exists(const std::wstring& path) const override {
    return Contents.contains(Resolve(path));
  }

  [[nodiscard]] FileError Read(const std::wstring& path, std::string& bytes) const override {
    ++Reads;
    bytes.clear();
    if (const FileError error = Next(ReadErrors); error != FileError::None) return error;
    const auto found = Contents.find(Resolve(path));
    if (found == Contents.end()) return FileError::NotFound;
    bytes = found->second;
    return FileError::None;
  }

  [[nodiscard]] bool IsReadOnly(const std::wstring& /*path*/) const override { return false; }

  [[nodiscard]] FileStamp Stamp(const std::wstring& path) const override {
    const auto found = Contents.find(Resolve(path));
    return found == Contents.end() ? FileStamp{} : FileStamp{1, found->second.size()};
  }

  [[nodiscard]] std::wstring Resolve(const std::wstring& path) const override {
    if (const auto link = Links.find(path); link != Links.end()) return link->second;
    if (Contents.contains(path)) return path;
    const auto found = std::ranges::find_if(
        Contents, [&](const auto& file) { return EqualIgnoringCase(file.first, path); });
    return found == Contents.end() ? path : found->first;
  }

  [[nodiscard]] FileError Write(const std::wstring& path, std::string_view bytes) override {
    ++Writes;
    const FileError error = Next(WriteErrors);
    // A write that fails may leave a part of the content behind.
    Contents[path] = bytes.substr(0, error == FileError::None ? bytes.size() : bytes.size() / 2);
    return error;
  }

  [[nodiscard]] FileError Append(const std::wstring& path, std::string_view bytes) override {
    const FileError error = Next(AppendErrors);
    if (error == FileError::None) Contents[path] += bytes;
    return error;
  }

  [[nodiscard]] FileError Replace(const std::wstring& target, const std::wstring& replacement,
                                  const std::wstring& backup) override {
    ++Replaces;
    if (!Contents.contains(target) || !Contents.contains(replacement)) return FileError::NotFound;
    const FileError error = Next(ReplaceErrors);
    if (error == FileError::None) {
      Rename(target, backup);
      Rename(replacement, target);
    } else if (error == FileError::UnableToMoveReplacement2) {
      Rename(target, backup);
    }
    return error;
  }

  [[nodiscard]] FileError Move(const std::wstring& from, const std::wstring& to) override {
    if (!Contents.contains(from)) return FileError::NotFound;
    if (const FileError error = Next(MoveErrors); error != FileError::None) return error;
    Rename(from, to);
    return FileError::None;
  }

  FileError Remove(const std::wstring& path) override {
    return Contents.erase(path) == 0 ? FileError::NotFound : FileError::None;
  }

 private:
  static FileError Next(std::deque<FileError>& errors) {
    if (errors.empty()) return FileError::None;
    const FileError error = errors.front();
    errors.pop_front();
    return error;
  }

  void Rename(const std::wstring& from, const std::wstring& to) {
    Contents[to] = std::move(Contents[from]);
    Contents.erase(from);
  }
};

}  // namespace tessera
