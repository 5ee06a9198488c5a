// Files in memory that fail, or end the program, where a test says so.
#pragma once

#include <algorithm>
#include <deque>
#include <map>
#include <set>
#include <string>

#include "platform/Files.h"
#include "tests/support/Log.h"
#include "text/Text.h"

namespace tessera {

/// How an operation on a file can fail, but for a file that is not there.
inline constexpr FileError Faults[] = {FileError::AccessDenied,
                                       FileError::SharingViolation,
                                       FileError::LockViolation,
                                       FileError::DiskFull,
                                       FileError::NotSupported,
                                       FileError::Other,  // of a write: only a part was written
                                       FileError::UnableToRemoveReplaced,
                                       FileError::UnableToMoveReplacement,
                                       FileError::UnableToMoveReplacement2};

/// Thrown in place of the end of the program.
struct Killed {};

class FaultyFiles final : public Files {
 public:
  std::map<std::wstring, std::string> Contents;
  std::map<std::wstring, std::wstring> Links;  ///< a link's path to what it leads to
  std::set<std::wstring> ReadOnly;             ///< paths; a replace is left to its script
  Log Calls;                                   ///< the changes asked for, as "Write C:\a"

  // Results of the next calls of each operation; None lets a call through, as an empty script does.
  mutable std::deque<FileError> ReadErrors;
  std::deque<FileError> WriteErrors, AppendErrors, ReplaceErrors, MoveErrors, RemoveErrors;

  // The fault of one call, counted over all operations from 0: that call alone, every later call of
  // its operation too, or every later call. It does not hit Resolve, which gives no error.
  enum class FaultLasts { Once, ForItsOperation, ForGood };
  int FaultAtCall = -1;  ///< negative: none
  FileError Fault = FileError::None;
  FaultLasts FaultStays = FaultLasts::Once;
  mutable int CallCount = 0;

  FileError LastAppend = FileError::None;  ///< what the last append gave

  int StepsUntilKilled = -1;  ///< elementary changes before Killed is thrown; negative: never

  [[nodiscard]] bool Exists(const std::wstring& path) const override {
    return Next(noErrors_, Operation::Exists) == FileError::None &&
           Contents.contains(Resolve(path));
  }

  [[nodiscard]] FileError Read(const std::wstring& path, std::string& bytes) const override {
    bytes.clear();
    if (const FileError error = Next(ReadErrors, Operation::Read); error != FileError::None) {
      return error;
    }
    const auto found = Contents.find(Resolve(path));
    if (found == Contents.end()) return FileError::NotFound;
    bytes = found->second;
    return FileError::None;
  }

  [[nodiscard]] bool IsReadOnly(const std::wstring& path) const override {
    return ReadOnly.contains(path);
  }

  [[nodiscard]] FileStamp Stamp(const std::wstring& path) const override {
    if (Next(noErrors_, Operation::Exists) != FileError::None) return {};
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
    Calls.push_back(L"Write " + path);
    const FileError error = Next(WriteErrors, Operation::Write);
    const bool isPartWritten = error == FileError::DiskFull || error == FileError::Other;
    if (error != FileError::None && !isPartWritten) return error;
    Step();
    Contents[path] = bytes.substr(0, bytes.size() / 2);
    if (isPartWritten) return error;
    Step();
    Contents[path] = bytes;
    return FileError::None;
  }

  [[nodiscard]] FileError Append(const std::wstring& path, std::string_view bytes) override {
    Calls.push_back(L"Append " + path);
    const FileError error = LastAppend = Next(AppendErrors, Operation::Append);
    const bool isPartWritten = error == FileError::Other;  // and could not be taken back
    if (error != FileError::None && !isPartWritten) return error;
    Step();
    Contents[path] += bytes.substr(0, bytes.size() / 2);
    if (isPartWritten) return error;
    Step();
    Contents[path] += bytes.substr(bytes.size() / 2);
    return FileError::None;
  }

  [[nodiscard]] FileError Replace(const std::wstring& target, const std::wstring& replacement,
                                  const std::wstring& backup) override {
    Calls.push_back(L"Replace " + target);
    const FileError error = Next(ReplaceErrors, Operation::Replace);
    if (error != FileError::None && error != FileError::UnableToMoveReplacement2) return error;
    if (!Contents.contains(target) || !Contents.contains(replacement)) return FileError::NotFound;
    Rename(target, backup);
    if (error != FileError::None) return error;
    Rename(replacement, target);
    return FileError::None;
  }

  [[nodiscard]] FileError Move(const std::wstring& from, const std::wstring& to) override {
    Calls.push_back(L"Move " + from + L" " + to);
    if (const FileError error = Next(MoveErrors, Operation::Move); error != FileError::None) {
      return error;
    }
    if (!Contents.contains(from)) return FileError::NotFound;
    Rename(from, to);
    return FileError::None;
  }

  FileError Remove(const std::wstring& path) override {
    Calls.push_back(L"Remove " + path);
    if (const FileError error = Next(RemoveErrors, Operation::Remove); error != FileError::None) {
      return error;
    }
    Step();
    return Contents.erase(path) != 0 ? FileError::None : FileError::NotFound;
  }

 private:
  enum class Operation { Exists, Read, Write, Append, Replace, Move, Remove };

  FileError Next(std::deque<FileError>& errors, Operation operation) const {
    const int call = CallCount++;
    if (call == FaultAtCall) faultyOperation_ = operation;
    const bool isHit =
        call == FaultAtCall ||
        (FaultAtCall >= 0 && call > FaultAtCall &&
         (FaultStays == FaultLasts::ForGood ||
          (FaultStays == FaultLasts::ForItsOperation && operation == faultyOperation_)));
    if (isHit) return Fault;
    if (errors.empty()) return FileError::None;
    const FileError error = errors.front();
    errors.pop_front();
    return error;
  }

  void Step() {
    if (StepsUntilKilled == 0) throw Killed{};
    if (StepsUntilKilled > 0) --StepsUntilKilled;
  }

  void Rename(const std::wstring& from, const std::wstring& to) {
    Step();
    Contents[to] = Contents.extract(from).mapped();
  }

  mutable std::deque<FileError> noErrors_;
  mutable Operation faultyOperation_ = Operation::Exists;
};

}  // namespace tessera
