// What edits of the open file changed, so that they can be taken back, and made again.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "shortcuts/CommandEntry.h"
#include "shortcuts/GivenKeys.h"
#include "shortcuts/KeyIndex.h"

namespace tessera {

struct Catalogue;

enum class EditKind {
  Assign,
  Add,
  Delete,
  DeleteAll,
  TakeFromStartMenu  ///< all that is left of an edit that was cancelled at a later question
};

struct EditName {
  EditKind Kind = EditKind::Assign;
  RowKey Row = 0;      ///< 0 for DeleteAll
  std::wstring Key{};  ///< in display notation; empty for keys that are deleted
};

/// Former values, in the order in which they were changed; what changed twice stands there twice.
struct FormerValues {
  std::vector<CommandEntry> Rows;
  std::vector<KeyIndex::FormerEntry> DefaultKeys;
  std::vector<KeyIndex::FormerEntry> CurrentKeys;
  std::vector<GivenKeys::FormerMoment> Given;
  std::vector<std::pair<std::size_t, std::wstring>> StartMenuKeys;  ///< of the slot at that index
};

class EditHistory {
 public:
  struct Step {
    EditName Name;
    FormerValues Values;      ///< those of the time after the step, once it is taken back
    std::size_t Version = 0;  ///< of the keys after the step
  };

  // -- Queries

  /// The step that is taken back or made again next; null for none.
  [[nodiscard]] const Step* ToUndo() const;
  [[nodiscard]] const Step* ToRedo() const;

  /// The keys of the commands are those of the last MarkSaved or Clear.
  [[nodiscard]] bool AtSaved() const;

  // -- Changes

  /// Makes an edit of the catalogue, which gives true when it changed the keys of a command, and
  /// keeps what it changed as a step. Also one that gives false may have changed Start Menu keys.
  bool Make(Catalogue& catalogue, EditName name, const std::function<bool()>& edit);

  /// Takes a step back, or makes it again; there must be one. The Start Menu keys that a save has
  /// taken out of the file stay away; false when there was such a key.
  bool Undo(Catalogue& catalogue);
  bool Redo(Catalogue& catalogue);

  void MarkSaved();

  /// Forgets all steps: what is there now is what was opened.
  void Clear();

 private:
  [[nodiscard]] std::size_t Version() const;

  std::vector<Step> steps_;
  std::size_t made_ = 0;  ///< of the steps; those behind can be made again
  std::size_t lastVersion_ = 0;
  std::size_t openedVersion_ = 0;
  std::size_t savedVersion_ = 0;
};

}  // namespace tessera
