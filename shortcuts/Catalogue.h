// The command catalogue: all commands of Total Commander with their default and current keys.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "shortcuts/CommandEntry.h"
#include "shortcuts/DisplayTable.h"
#include "shortcuts/EditHistory.h"
#include "shortcuts/GivenKeys.h"
#include "shortcuts/HotkeyNotation.h"
#include "shortcuts/KeyIndex.h"
#include "shortcuts/StartMenuKeys.h"

namespace tessera {

/// Called once per line, value or row that a long load handles.
using ProgressStep = std::function<void()>;

/// One of the user's own commands.
struct UserCommand {
  std::wstring Name;
  std::wstring Description;
};

struct UserCommandTexts {
  std::wstring Heading;
  std::vector<UserCommand> Commands;
};

struct Catalogue {
  std::shared_ptr<const std::wstring> Text;  ///< of "Totalcmd.inc"; the rows hold views of it
  std::shared_ptr<const UserCommandTexts> UserTexts;  ///< likewise of the rows of user commands
  std::vector<CommandEntry> lvwHidden;  ///< the master rows, read once per run; then user commands
  std::size_t UserRows = 0;             ///< how many of these, with their heading, stand at the end
  RowKey LastKey = 0;                   ///< the highest that a row of the run has had, or more
  DisplayTable ListView1;               ///< what is shown, edited, saved and exported
  KeyIndex lvwDefKeys;                  ///< the default keys of the displayed rows, one by one
  KeyIndex lvwCurrKeys;                 ///< their current keys
  StartMenuKeyTable StartMenuKeys;
  GivenKeys Given;    ///< by edits of this run, whatever files are opened meanwhile
  EditHistory Edits;  ///< of the file that is open
};

/// Copies the master rows into ListView1, in their order, and gives each its icon.
void BuildDisplayTable(Catalogue& catalogue, const HotkeyNotation& notation,
                       const ProgressStep& step);

/// Fills the two indexes anew with every single key of the displayed command rows. What was edited
/// before cannot be taken back any more.
void BuildKeyIndexes(Catalogue& catalogue, const HotkeyNotation& notation);

/// Marks every default key that is somewhere a current key: " *" on the index entry and on the
/// whole default-keys cell of its row, and that cell red.
void MarkOverriddenDefaults(Catalogue& catalogue);

}  // namespace tessera
