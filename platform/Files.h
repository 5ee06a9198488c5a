// The file system as the program needs it: whole files, read and replaced at once.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessera {

enum class FileError {
  None,
  NotFound,
  AccessDenied,
  SharingViolation,
  LockViolation,
  DiskFull,
  NotSupported,  ///< by the file system; some of networks and of the cloud lack a replace
  // Three ways in which a replace can stop half way; Files::Replace says what each leaves behind.
  UnableToRemoveReplaced,
  UnableToMoveReplacement,
  UnableToMoveReplacement2,
  // Given by no operation of Files: what was to be replaced is no longer what was read.
  ChangedMeanwhile,
  Other,
};

/// Two stamps of a file differ when it was written between them, but for a write of the same length
/// within one tick of the file system's clock.
struct FileStamp {
  std::uint64_t Time = 0;
  std::uint64_t Length = 0;
  bool operator==(const FileStamp&) const = default;
};

class Files {
 public:
  virtual ~Files() = default;

  /// True for a file whose length can be read; false for a directory and on any error.
  [[nodiscard]] virtual bool Exists(const std::wstring& path) const = 0;

  /// Reads the whole file; `bytes` is empty unless the result is None. SharingViolation tells also
  /// that another program changed the length meanwhile.
  [[nodiscard]] virtual FileError Read(const std::wstring& path, std::string& bytes) const = 0;

  /// True for a file that its owner protects from being written; false when it cannot be told.
  [[nodiscard]] virtual bool IsReadOnly(const std::wstring& path) const = 0;

  /// The stamp of a file as it is now, without reading it; an empty one when it cannot be told.
  [[nodiscard]] virtual FileStamp Stamp(const std::wstring& path) const = 0;

  /// The file that a symbolic link at `path` leads to, or `path` itself when it is no link; its
  /// name as it stands on the disk, in that letter case. `path` when there is nothing.
  [[nodiscard]] virtual std::wstring Resolve(const std::wstring& path) const = 0;

  /// Creates or overwrites a file, and returns after its content has reached the disk, where the
  /// file system can tell. On an error a part of the content may stand there.
  [[nodiscard]] virtual FileError Write(const std::wstring& path, std::string_view bytes) = 0;

  /// Writes behind what the file holds, creating it when it is missing, and returns as Write does.
  /// After an error nothing of the bytes stands there, where the file system can take them back.
  [[nodiscard]] virtual FileError Append(const std::wstring& path, std::string_view bytes) = 0;

  /// Puts `replacement` in the place of `target`, which keeps its attributes and security, and
  /// leaves the former target under the name `backup`, replacing what was there. After
  /// UnableToMoveReplacement2 the former target stands under `backup` and nothing under `target`;
  /// after any other error both files are where they were.
  [[nodiscard]] virtual FileError Replace(const std::wstring& target,
                                          const std::wstring& replacement,
                                          const std::wstring& backup) = 0;

  /// Renames a file within its folder, replacing a file named `to`.
  [[nodiscard]] virtual FileError Move(const std::wstring& from, const std::wstring& to) = 0;

  /// Deletes a file; NotFound when there is none.
  virtual FileError Remove(const std::wstring& path) = 0;
};

}  // namespace tessera
