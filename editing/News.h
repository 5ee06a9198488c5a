// What has happened last, as a value: what the line under the panel tells of it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "shortcuts/CommandEntry.h"
#include "shortcuts/EditHistory.h"

namespace tessera {

enum class NewsKind {
  None,
  Opened,
  Saved,
  Assigned,
  Added,
  Deleted,
  DeletedAll,
  Undone,
  Redone,
  NotSaved,
  PageNotWritten,
  PageNotOpened
};

struct News {
  NewsKind Kind = NewsKind::None;
  RowKey Row = 0;       ///< whose keys an edit changed
  std::wstring Keys{};  ///< that the row got or lost, in display notation
  RowKey From = 0;      ///< the other row that the key was taken from; 0 for none
  std::vector<std::wstring> FromStartMenu{};  ///< captions of entries that it was taken from
  std::wstring File{};                        ///< that was opened or saved, or of the page
  EditKind Step{};                  ///< of that row and key, which was taken back or made again
  bool StartMenuKeyIsGone = false;  ///< it had one that a save has taken out of the file
  std::size_t Rows{};  ///< how many rows have current keys after an open, or lost theirs

  // Of an open
  bool HasFormerKeys = false;  ///< keys of files that were opened before are shown too
  std::wstring UnreadFile{};   ///< of own commands; empty unless it is there and could not be read

  // Of a save
  std::wstring KeysFile{};     ///< where the keys are, if in another file; else empty
  std::size_t DroppedLines{};  ///< how many lines were left out
  std::wstring DroppedIn{};    ///< the file that they are in now
  bool DroppedLost = false;    ///< they are there only until the next save

  // Of a save, failed or not
  bool CommanderIsClosed = false;  ///< and was not found to be started again
  std::wstring Commander{};        ///< the program that was closed; empty for an unknown one
};

}  // namespace tessera
