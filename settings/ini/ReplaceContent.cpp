// The order of steps that keeps the old content or the new one in place at every moment.
#include "settings/ini/ReplaceContent.h"

#include <algorithm>

#include "settings/ini/IniText.h"

namespace tessera {
namespace {

constexpr int FirstPause = 20;     // milliseconds, doubled from try to try
constexpr int LongestWait = 2000;  // milliseconds, over all pauses of one save
constexpr int MostSaves = 3;
constexpr int LongestWaitForAccess = 300;  // a read-only file stays so; a scanner is gone by then

struct Names {
  std::wstring Target;

  // Both lie beside the target, since a file can be renamed only within its volume.
  [[nodiscard]] std::wstring Prepared() const { return Target + L".tessera-new"; }
  [[nodiscard]] std::wstring Former() const { return Target + L".tessera-old"; }
  [[nodiscard]] std::wstring Backup() const { return Target + L".bak"; }
  [[nodiscard]] std::wstring Unsaved() const { return Target + std::wstring(UnsavedEnding); }
};

/// How long an error of this kind is worth waiting for, in milliseconds.
int WaitFor(FileError error) {
  switch (error) {
    case FileError::SharingViolation:
    case FileError::LockViolation:
    case FileError::UnableToRemoveReplaced:
    case FileError::UnableToMoveReplacement:
    case FileError::UnableToMoveReplacement2:
      return LongestWait;
    case FileError::AccessDenied:
      return LongestWaitForAccess;
    default:
      return 0;
  }
}

/// The waiting time of one save, shared by all its steps.
class Patience {
 public:
  explicit Patience(Clock& clock) : clock_(clock) {}

  /// Tries a step again, with pauses, while its error may pass. Gives its last result.
  template <typename Step>
  FileError Try(Step step) {
    FileError error = step();
    while (waited_ < WaitFor(error)) {
      const int pause = std::min(nextPause_, WaitFor(error) - waited_);
      clock_.Sleep(pause);
      waited_ += pause;
      nextPause_ *= 2;
      error = step();
    }
    return error;
  }

  [[nodiscard]] bool HasWaited() const { return waited_ > 0; }

 private:
  Clock& clock_;
  int waited_ = 0;
  int nextPause_ = FirstPause;
};

/// None when the file holds that content, and when it cannot be read for good: the replace tells
/// what that means. One that is being written is to be looked at again.
FileError CompareWith(const std::string& content, const Files& files, const std::wstring& path) {
  std::string present;
  const FileError error = files.Read(path, present);
  if (error == FileError::SharingViolation) return error;
  return error == FileError::None && present != content ? FileError::ChangedMeanwhile
                                                        : FileError::None;
}

/// A swap where the file system has no replace: the target's name is free for a moment, and the
/// former content is whole under one of two names all the time.
FileError SwapByMoves(Files& files, const Names& names) {
  // A replace refuses it; renamed, it would be as good as written.
  if (files.IsReadOnly(names.Target)) return FileError::AccessDenied;
  const FileError error = files.Move(names.Target, names.Former());
  // A target that is not there may stand aside already, after a try that could not be undone.
  if (error != FileError::None && error != FileError::NotFound) return error;
  const FileError moved = files.Move(names.Prepared(), names.Target);
  const bool mustReturn = moved != FileError::None && error == FileError::None;
  if (mustReturn) static_cast<void>(files.Move(names.Former(), names.Target));
  return moved;
}

/// One try to put the prepared content in place. After an error the former content is in place
/// again, unless nothing could be renamed to the target's name; then it stands under its own.
FileError Swap(Files& files, const Names& names) {
  const FileError error = files.Replace(names.Target, names.Prepared(), names.Former());
  // The replace itself finds out whether there is a target: a separate look could take a file that
  // cannot be reached for one that is not there, and overwrite it.
  if (error == FileError::NotFound) return files.Move(names.Prepared(), names.Target);
  if (error == FileError::NotSupported) return SwapByMoves(files, names);
  if (error != FileError::UnableToMoveReplacement2) return error;
  if (files.Move(names.Former(), names.Target) == FileError::None) return error;
  // The target's name is free, and the former content is safe under another one.
  return files.Move(names.Prepared(), names.Target) == FileError::None ? FileError::None : error;
}

/// Gives the former content its lasting name. An empty one, as a crash of the system may leave it,
/// is worth less than any backup.
FileError MakeBackup(Files& files, const Names& names) {
  const FileStamp former = files.Stamp(names.Former());
  const bool isEmpty = former != FileStamp{} && former.Length == 0;
  if (isEmpty && files.Exists(names.Backup())) return files.Remove(names.Former());
  return files.Move(names.Former(), names.Backup());
}

/// Clears up beside a file whose new content is in place. What cannot be renamed or removed here is
/// no reason to report the save as failed: the next start removes it.
void TidyUp(Files& files, Patience& patience, const Names& names, KeepCopies copies) {
  if (copies == KeepCopies::No) {
    files.Remove(names.Former());
    return;
  }
  // The former content gets its lasting name only now, so that a failed save never costs the
  // backup of the save before it.
  static_cast<void>(patience.Try([&] { return MakeBackup(files, names); }));
  files.Remove(names.Unsaved());
}

/// Clears up beside a file that could not be replaced.
void GiveUp(Files& files, const Names& names, KeepCopies copies) {
  const bool kept =
      copies == KeepCopies::Yes && files.Move(names.Prepared(), names.Unsaved()) == FileError::None;
  if (!kept) files.Remove(names.Prepared());
}

/// For a target that is not there, nor its former content. Gives NotFound for the part of a
/// content.
FileError PutPreparedInPlace(Files& files, const Names& names) {
  std::string content;
  const FileError error = files.Read(names.Prepared(), content);
  if (error != FileError::None) return error;
  // Where there was no file, all that is written are lines with their ends.
  const bool isWhole = content.ends_with(IniLineEnd);
  return isWhole ? files.Move(names.Prepared(), names.Target) : FileError::NotFound;
}

}  // namespace

FileError ReadWhenFree(const Files& files, Clock& clock, const std::wstring& path,
                       std::string& bytes) {
  return Patience(clock).Try([&] { return files.Read(path, bytes); });
}

FileError AppendWhenFree(Files& files, Clock& clock, const std::wstring& path,
                         std::string_view bytes) {
  return Patience(clock).Try([&] { return files.Append(path, bytes); });
}

FileError SaveFromTheStart(const std::function<FileError()>& save) {
  FileError error = save();
  for (int saves = 1; error == FileError::ChangedMeanwhile && saves < MostSaves; ++saves) {
    error = save();
  }
  return error;
}

FileError ReplaceContent(Files& files, Clock& clock, const std::wstring& path,
                         std::string_view bytes, KeepCopies copies, const FormerContent* former) {
  const Names names{files.Resolve(path)};
  Patience patience(clock);

  FileError error = patience.Try([&] { return files.Write(names.Prepared(), bytes); });
  if (error != FileError::None) {
    files.Remove(names.Prepared());  // a part of the content is of no use
    return error;
  }
  error = patience.Try([&] {
    // Whoever held the file may have written it, and so may others while the new content was made.
    const bool mayDiffer =
        former != nullptr && (patience.HasWaited() || files.Stamp(names.Target) != former->Stamp);
    const FileError difference =
        mayDiffer ? CompareWith(*former->Bytes, files, names.Target) : FileError::None;
    return difference == FileError::None ? Swap(files, names) : difference;
  });
  if (error == FileError::None) {
    TidyUp(files, patience, names, copies);
  } else {
    GiveUp(files, names, copies);
  }
  return error;
}

void LeaveUnsaved(Files& files, const std::wstring& path, std::string_view bytes) {
  const Names names{files.Resolve(path)};
  const bool isWritten = files.Write(names.Prepared(), bytes) == FileError::None;
  GiveUp(files, names, isWritten ? KeepCopies::Yes : KeepCopies::No);
}

void ClearLeftOvers(Files& files, const std::wstring& path, KeepCopies copies) {
  const Names names{files.Resolve(path)};
  const bool hasFormer = files.Exists(names.Former());
  if (!hasFormer && !files.Exists(names.Prepared())) return;

  std::string content;
  FileError target = files.Read(names.Target, content);
  if (target == FileError::NotFound) {
    target =
        hasFormer ? files.Move(names.Former(), names.Target) : PutPreparedInPlace(files, names);
  } else if (hasFormer && target == FileError::None) {
    // The same content twice stems from a save that was not completed.
    const bool isBackup =
        copies == KeepCopies::Yes &&
        CompareWith(content, files, names.Former()) == FileError::ChangedMeanwhile;
    if (isBackup) {
      static_cast<void>(MakeBackup(files, names));
    } else {
      files.Remove(names.Former());
    }
  }
  // With the target neither there nor surely absent, what is left may be all there is.
  if (target == FileError::None || target == FileError::NotFound) files.Remove(names.Prepared());
}

bool ExistsOrReturns(Files& files, const std::wstring& path) {
  ClearLeftOvers(files, path, KeepCopies::Yes);
  return files.Exists(path);
}

}  // namespace tessera
