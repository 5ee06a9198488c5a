// Reads share everything, so that no other program is ever kept from its files.
#include "platform/win32/WindowsFiles.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "platform/LongPath.h"
#include "platform/win32/Handle.h"
#include "platform/win32/SystemText.h"

namespace tessera {
namespace {

constexpr std::size_t LongPath = 248;  // from here on a path needs a prefix
/// No file that this program reads comes near it; memory and 32-bit lengths stay within bounds.
constexpr LONGLONG LargestFile = 1LL << 30;

constexpr std::size_t LargestStep = 0x40000000;  // bytes read or written by one call

constexpr std::array<std::pair<DWORD, FileError>, 13> Errors{{
    {ERROR_FILE_NOT_FOUND, FileError::NotFound},
    {ERROR_PATH_NOT_FOUND, FileError::NotFound},
    {ERROR_ACCESS_DENIED, FileError::AccessDenied},
    {ERROR_SHARING_VIOLATION, FileError::SharingViolation},
    {ERROR_LOCK_VIOLATION, FileError::LockViolation},
    {ERROR_HANDLE_DISK_FULL, FileError::DiskFull},
    {ERROR_DISK_FULL, FileError::DiskFull},
    {ERROR_INVALID_FUNCTION, FileError::NotSupported},
    {ERROR_NOT_SUPPORTED, FileError::NotSupported},
    {ERROR_INVALID_PARAMETER, FileError::NotSupported},
    {ERROR_UNABLE_TO_REMOVE_REPLACED, FileError::UnableToRemoveReplaced},
    {ERROR_UNABLE_TO_MOVE_REPLACEMENT, FileError::UnableToMoveReplacement},
    {ERROR_UNABLE_TO_MOVE_REPLACEMENT_2, FileError::UnableToMoveReplacement2},
}};

FileError LastError() {
  const DWORD code = GetLastError();
  const auto* const found = std::ranges::find(Errors, code, &std::pair<DWORD, FileError>::first);
  return found == Errors.end() ? FileError::Other : found->second;
}

FileError ResultOf(BOOL succeeded) { return succeeded != FALSE ? FileError::None : LastError(); }

/// The path in a form that the system accepts at any length.
std::wstring SystemPath(const std::wstring& path) {
  if (path.size() < LongPath || HasLongPrefix(path)) return path;
  const std::wstring full = SystemText([&path](wchar_t* buffer, DWORD size) {
    return GetFullPathNameW(path.c_str(), size, buffer, nullptr);
  });
  return full.empty() ? path : WithLongPrefix(full);
}

/// The path behind an open file, with the volume named by its letter or by its number (`volume`);
/// empty where it has no such name, and for a file that could not be opened.
std::wstring FinalPath(HANDLE file, DWORD volume) {
  return SystemText([file, volume](wchar_t* buffer, DWORD size) {
    return GetFinalPathNameByHandleW(file, buffer, size, volume);
  });
}

/// Empty when there is no such file or folder. Some file systems give a file no bit at all.
std::optional<DWORD> AttributesOf(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(SystemPath(path).c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return std::nullopt;
  return attributes;
}

bool HasAttribute(const std::wstring& path, DWORD attribute) {
  return (AttributesOf(path).value_or(0) & attribute) != 0;
}

FileError MoveOver(const std::wstring& from, const std::wstring& to) {
  return ResultOf(MoveFileExW(SystemPath(from).c_str(), SystemPath(to).c_str(),
                              MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
}

UniqueHandle OpenExisting(const std::wstring& path, DWORD access) {
  constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  return Own(CreateFileW(SystemPath(path).c_str(), access, ShareAll, nullptr, OPEN_EXISTING,
                         FILE_ATTRIBUTE_NORMAL, nullptr));
}

std::uint64_t Joined(DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; }

/// A file that is there, under its name on the disk: whoever gives a path may write it otherwise.
std::wstring WithNameOnDisk(const std::wstring& path) {
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW(SystemPath(path).c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return path;
  FindClose(search);
  return path.substr(0, path.find_last_of(L"\\/:") + 1) + found.cFileName;
}

DWORD NextStep(std::size_t remaining) {
  return static_cast<DWORD>(std::min(remaining, LargestStep));
}

FileError WriteAndFlush(HANDLE file, std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD count{};
    if (WriteFile(file, bytes.data(), NextStep(bytes.size()), &count, nullptr) == FALSE) {
      return LastError();
    }
    if (count == 0) return FileError::Other;
    bytes.remove_prefix(count);
  }
  const FileError flushed = ResultOf(FlushFileBuffers(file));
  return flushed == FileError::NotSupported ? FileError::None : flushed;
}

}  // namespace

bool WindowsFiles::Exists(const std::wstring& path) const {
  return AttributesOf(path) && !HasAttribute(path, FILE_ATTRIBUTE_DIRECTORY);
}

FileError WindowsFiles::Read(const std::wstring& path, std::string& bytes) const {
  bytes.clear();
  const UniqueHandle file = OpenExisting(path, GENERIC_READ);
  LARGE_INTEGER size{};
  if (!file || GetFileSizeEx(file.get(), &size) == FALSE) return LastError();
  if (size.QuadPart > LargestFile) return FileError::Other;
  std::string content(static_cast<std::size_t>(size.QuadPart), '\0');
  std::size_t done = 0;
  while (done < content.size()) {
    DWORD count{};
    if (ReadFile(file.get(), content.data() + done, NextStep(content.size() - done), &count,
                 nullptr) == FALSE) {
      return LastError();
    }
    if (count == 0) break;  // the file has been cut short
    done += count;
  }
  // A file that another program is writing: what was read of it may be neither its old content nor
  // its new one.
  if (done < content.size() || GetFileSizeEx(file.get(), &size) == FALSE ||
      static_cast<std::size_t>(size.QuadPart) != done) {
    return FileError::SharingViolation;
  }
  bytes = std::move(content);
  return FileError::None;
}

bool WindowsFiles::IsReadOnly(const std::wstring& path) const {
  return HasAttribute(path, FILE_ATTRIBUTE_READONLY);
}

FileStamp WindowsFiles::Stamp(const std::wstring& path) const {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (GetFileAttributesExW(SystemPath(path).c_str(), GetFileExInfoStandard, &data) == FALSE) {
    return {};
  }
  return {Joined(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime),
          Joined(data.nFileSizeHigh, data.nFileSizeLow)};
}

std::wstring WindowsFiles::Resolve(const std::wstring& path) const {
  if (!AttributesOf(path)) return path;
  if (!HasAttribute(path, FILE_ATTRIBUTE_REPARSE_POINT)) return WithNameOnDisk(path);
  const UniqueHandle file = OpenExisting(path, FILE_READ_ATTRIBUTES);
  const std::wstring named = FinalPath(file.get(), VOLUME_NAME_DOS);
  if (!named.empty()) return WithoutLongPrefix(named);
  // A volume that is mounted in a folder alone has no letter; its number needs the prefix.
  const std::wstring numbered = FinalPath(file.get(), VOLUME_NAME_GUID);
  return numbered.empty() ? path : numbered;
}

FileError WindowsFiles::Write(const std::wstring& path, std::string_view bytes) {
  const UniqueHandle file = Own(CreateFileW(SystemPath(path).c_str(), GENERIC_WRITE, 0, nullptr,
                                            CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  return file ? WriteAndFlush(file.get(), bytes) : LastError();
}

FileError WindowsFiles::Append(const std::wstring& path, std::string_view bytes) {
  const UniqueHandle file =
      Own(CreateFileW(SystemPath(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                      OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  LARGE_INTEGER end{};
  if (!file || SetFilePointerEx(file.get(), {}, &end, FILE_END) == FALSE) return LastError();
  const FileError error = WriteAndFlush(file.get(), bytes);
  if (error != FileError::None && SetFilePointerEx(file.get(), end, nullptr, FILE_BEGIN) != FALSE) {
    SetEndOfFile(file.get());
  }
  return error;
}

FileError WindowsFiles::Replace(const std::wstring& target, const std::wstring& replacement,
                                const std::wstring& backup) {
  // Wine finds another error, after which the folder would be renamed.
  if (HasAttribute(target, FILE_ATTRIBUTE_DIRECTORY)) return FileError::AccessDenied;
  return ResultOf(ReplaceFileW(SystemPath(target).c_str(), SystemPath(replacement).c_str(),
                               SystemPath(backup).c_str(), REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                               nullptr));
}

FileError WindowsFiles::Move(const std::wstring& from, const std::wstring& to) {
  const FileError error = MoveOver(from, to);
  if (error != FileError::AccessDenied || !IsReadOnly(to)) return error;
  // Whoever moves has decided that `to` may go. A backup, for one, is as protected as the file was
  // that it was made of.
  const DWORD attributes = AttributesOf(to).value_or(FILE_ATTRIBUTE_READONLY);
  SetFileAttributesW(SystemPath(to).c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
  const FileError second = MoveOver(from, to);
  // The denial came from somewhere else.
  if (second != FileError::None) SetFileAttributesW(SystemPath(to).c_str(), attributes);
  return second;
}

FileError WindowsFiles::Remove(const std::wstring& path) {
  return ResultOf(DeleteFileW(SystemPath(path).c_str()));
}

}  // namespace tessera
