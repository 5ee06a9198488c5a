// Saving: a file's new content takes the place of the old in one step, or not at all.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Clock.h"
#include "platform/Files.h"

namespace tessera {

/// Follows a file's name where a save that failed has left the new content.
inline constexpr std::wstring_view UnsavedEnding = L".unsaved";

/// What is left beside a file that is saved.
enum class KeepCopies {
  No,
  Yes  ///< the former content as ".bak"; the new one as ".unsaved" when it could not be put in
       ///< place
};

/// Reads a file; one that is held by another program is tried again as in ReplaceContent.
[[nodiscard]] FileError ReadWhenFree(const Files& files, Clock& clock, const std::wstring& path,
                                     std::string& bytes);

/// Appends to a file; one that is held by another program is tried again likewise.
[[nodiscard]] FileError AppendWhenFree(Files& files, Clock& clock, const std::wstring& path,
                                       std::string_view bytes);

/// Runs a save, which reads its file and then replaces it, again from its start when it gives
/// ChangedMeanwhile; three times at most. Gives the last result.
[[nodiscard]] FileError SaveFromTheStart(const std::function<FileError()>& save);

/// What a file held when it was read, with the stamp that it had just before.
struct FormerContent {
  std::shared_ptr<const std::string> Bytes;  ///< never null
  FileStamp Stamp;
};

/// Writes `bytes` to a temporary file beside `path` and swaps it in. A link is followed. A file
/// held open for a moment is tried again for at most two seconds. Gives None when the new content
/// is in place; after any error the file at `path` is as it was. ChangedMeanwhile tells that
/// another program has left something else there than `former`, which `bytes` were made from; null
/// leaves that out.
[[nodiscard]] FileError ReplaceContent(Files& files, Clock& clock, const std::wstring& path,
                                       std::string_view bytes, KeepCopies copies,
                                       const FormerContent* former = nullptr);

/// Leaves beside the file at `path`, as ".unsaved", what it should hold and could not be given;
/// nothing where that cannot be written.
void LeaveUnsaved(Files& files, const std::wstring& path, std::string_view bytes);

/// Clears up what a save of `path` left when the program was killed in it; reads no file when there
/// is nothing. When the file itself is gone, the former content returns, or else the new one where
/// that is whole. Otherwise the former content gets the name that `copies` gives it; an empty one
/// never takes the place of a backup.
void ClearLeftOvers(Files& files, const std::wstring& path, KeepCopies copies);

/// True when the user's file at `path` exists, or a killed save left its content beside it, which
/// is then put back.
[[nodiscard]] bool ExistsOrReturns(Files& files, const std::wstring& path);

}  // namespace tessera
