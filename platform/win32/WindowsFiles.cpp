// Reads share everything, so that no other program is ever kept from its files.
#include "platform/win32/WindowsFiles.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/LongPath.h"
#include "platform/win32/Handle.h"

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
  const DWORD length = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring full(length, L'\0');
  full.resize(GetFullPathNameW(path.c_str(), length, full.data(), nullptr));
  return full.empty() ? path : WithLongPrefix(full);
}

/// The path behind an open file, with the volume named by its letter or by its number (`volume`);
/// empty where it has no such name.
std::wstring FinalPath(HANDLE file, DWORD volume) {
  const DWORD length = GetFinalPathNameByHandleW(file, nullptr, 0, volume);
  std::wstring path(length, L'\0');
  const DWORD written = GetFinalPathNameByHandleW(file, path.data(), length, volume);
  path.resize(written < length ? written : 0);
  return path;
}

bool IsProtected(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

bool IsFolder(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// Takes a file's protection from being written away; false when there is none, or it stays.
bool RemoveProtection(const std::wstring& path) {
  return IsProtected(path) &&
         SetFileAttributesW(path.c_str(), GetFileAttributesW(path.c_str()) &
                                              ~DWORD{FILE_ATTRIBUTE_READONLY}) != FALSE;
}

void Protect(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return;
  SetFileAttributesW(path.c_str(), attributes | FILE_ATTRIBUTE_READONLY);
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
    DWORD count = 0;
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
  WIN32_FILE_ATTRIBUTE_DATA data{};
  return GetFileAttributesExW(SystemPath(path).c_str(), GetFileExInfoStandard, &data) != FALSE &&
         (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
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
    DWORD count = 0;
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
  return IsProtected(SystemPath(path));
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
  const DWORD attributes = GetFileAttributesW(SystemPath(path).c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return path;
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return WithNameOnDisk(path);
  const UniqueHandle file = OpenExisting(path, FILE_READ_ATTRIBUTES);
  if (!file) return path;
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
  if (error == FileError::None) return error;
  if (SetFilePointerEx(file.get(), end, nullptr, FILE_BEGIN) != FALSE) SetEndOfFile(file.get());
  return error;
}

FileError WindowsFiles::Replace(const std::wstring& target, const std::wstring& replacement,
                                const std::wstring& backup) {
  // Wine finds another error, after which the folder would be renamed.
  if (IsFolder(SystemPath(target))) return FileError::AccessDenied;
  return ResultOf(ReplaceFileW(SystemPath(target).c_str(), SystemPath(replacement).c_str(),
                               SystemPath(backup).c_str(), REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                               nullptr));
}

FileError WindowsFiles::Move(const std::wstring& from, const std::wstring& to) {
  const auto move = [from = SystemPath(from), to = SystemPath(to)] {
    return ResultOf(
        MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
  };
  const FileError error = move();
  // Whoever moves has decided that `to` may go. A backup, for one, is as protected as the file was
  // that it was made of.
  const bool again = error == FileError::AccessDenied && RemoveProtection(SystemPath(to));
  if (!again) return error;
  const FileError second = move();
  // The denial came from somewhere else.
  if (second != FileError::None) Protect(SystemPath(to));
  return second;
}

FileError WindowsFiles::Remove(const std::wstring& path) {
  return ResultOf(DeleteFileW(SystemPath(path).c_str()));
}

}  // namespace tessera
