// Random edits, sorts, saves and opens against a model of the rules; every table is compared after
// every step.
#include "tests/unit/conflict_model.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "shortcuts/SaveShortcuts.h"
#include "tests/unit/conflict_history.h"
#include "tests/unit/conflict_session.h"
#include "tests/unit/model_files.h"
#include "tests/unit/model_order.h"
#include "tests/unit/model_reading.h"
#include "tests/unit/rounds.h"
#include "text/Text.h"

namespace tessera::conflict_model_test {
namespace {

using namespace model;

/// Program and model, side by side.
class Pair {
 public:
  explicit Pair(unsigned seed, bool takesBack = false) : engine_(seed), takesBack_(takesBack) {
    session_.Notation.ReverseOrderHotkey = model_.Reversed = seed % 4 == 3;
    const RandomInput input(engine_, model_);
    commands_ = input.Commands;
    defaults_ = input.Defaults;
    session_.Files.Contents[DataPath] = input.DefaultKeys;
    session_.Files.Contents[IniPath] = FileOf(model_);
    Open();
  }

  void Step() {
    const std::size_t kind = Below(takesBack_ ? 130 : 100);
    if (kind >= 100) {
      kind < 118 ? Undo() : Redo();
    } else if (kind < 45) {
      Edit(true);
    } else if (kind < 75) {
      Edit(false);
    } else if (kind < 83) {
      DeleteOne();
    } else if (kind < 84) {
      DeleteAll();
    } else if (kind < 94) {
      Order();
    } else if (kind < 98) {
      Save();
    } else {
      Open();
    }
  }

  [[nodiscard]] bool CanUndo() const { return history_.CanUndo(); }
  [[nodiscard]] bool CanRedo() const { return history_.CanRedo(); }

  /// Without a step both do nothing.
  void Undo() {
    ASSERT_EQ(session_.List.Undo().Restored, history_.CanUndo());
    if (history_.CanUndo()) history_.Undo(model_);
  }

  void Redo() {
    ASSERT_EQ(session_.List.Redo().Restored, history_.CanRedo());
    if (history_.CanRedo()) history_.Redo(model_);
  }

  void Compare() const {
    ASSERT_EQ(session_.Tables.Edits.ToUndo() != nullptr, history_.CanUndo());
    ASSERT_EQ(session_.Tables.Edits.ToRedo() != nullptr, history_.CanRedo());
    ASSERT_EQ(session_.Tables.Edits.AtSaved(), history_.IsSaved());
    ASSERT_EQ(session_.Tables.ListView1.Count(), model_.Order.size());
    ASSERT_EQ(session_.List.SelectedRow(), model_.Selected + 1);
    for (std::size_t i = 0; i < model_.Order.size(); ++i) {
      const CommandEntry& row = session_.Tables.ListView1.At(i);
      const ModelRow& expected = model_.Rows[model_.Order[i]];
      ASSERT_EQ(row.Key, model_.Order[i] + 1);
      ASSERT_EQ(row.DefaultKeys, expected.Defaults) << i;
      ASSERT_EQ(row.CurrentKeys, expected.Current) << i;
      ASSERT_EQ(row.Icon, expected.Icon) << i;
      ASSERT_EQ(row.DefaultKeysAreRed, expected.IsRed) << i;
    }
    CompareIndex(session_.Tables.lvwDefKeys, model_.Defaults);
    CompareIndex(session_.Tables.lvwCurrKeys, model_.Currents);
    for (std::size_t i = 0; i < 24; ++i) {
      ASSERT_EQ(session_.Tables.StartMenuKeys[i].Key, model_.Slots[i].Key);
      ASSERT_EQ(session_.Tables.StartMenuKeys[i].Caption, model_.Slots[i].Caption);
    }
    ASSERT_EQ(session_.Options.SortedColumn, model_.StoredColumn);
    ASSERT_EQ(session_.Options.SortOrder, model_.StoredOrder);
    CompareHolders();
  }

 private:
  std::size_t Below(std::size_t limit) { return engine_() % limit; }

  static void CompareIndex(const KeyIndex& index, const std::vector<ModelKey>& expected) {
    ASSERT_EQ(index.Count(), expected.size());
    std::size_t i = 0;
    for (const KeyIndex::EntryId id : index.Ids()) {
      ASSERT_EQ(index.At(id).Text, expected[i].Key);
      ASSERT_EQ(index.At(id).Owner, expected[i].Owner + 1);
      ++i;
    }
  }

  /// Of the last key, of another one, and of those of a row, of each in turn.
  void CompareHolders() const {
    const ModelRow& shown = model_.Rows[nextRow_++ % model_.Rows.size()];
    TextList keys{lastKey_,
                  Shown(nextRow_ % 8, Vocabulary[nextRow_ % Vocabulary.size()], model_.Reversed)};
    for (const Text& key : KeysIn(shown.Defaults)) keys.push_back(key);
    for (const Text& key : KeysIn(shown.Current)) keys.push_back(Lower(key));
    for (const Text& key : keys) {
      SCOPED_TRACE(Encode(key));
      const HoldersOfKey holders = session_.Tables.ListView1.HoldersOf(key, session_.Notation);
      HoldersOfKey expected;
      for (const auto& [row, isOverridden] : DefaultHolders(model_, key)) {
        expected.Defaults.push_back({row + 1, isOverridden});
      }
      for (const std::size_t row : CurrentHolders(model_, key)) {
        expected.Currents.push_back(row + 1);
      }
      ASSERT_EQ(holders, expected);
    }
  }

  void Open() {
    session_.Open(commands_);
    Read(model_, defaults_);
    history_.Open();
  }

  void Save() {
    ASSERT_EQ(SaveShortcuts(session_.Tables, session_.Notation, {IniPath, false}, session_.Files,
                            session_.Clock, session_.Environment)
                  .Error,
              FileError::None);
    Write(model_);
    history_.Save();
    ASSERT_EQ(session_.Files.Contents[IniPath], FileOf(model_));
  }

  void Select() {
    const std::size_t position = Below(model_.Order.size());
    session_.List.ShowRowDetails(session_.Tables.ListView1.At(position).Key);
    model_.Selected = model_.Order[position];
  }

  void BeginEdit() {
    session_.MessageBoxes.Answers.clear();
    session_.MessageBoxes.Shown.clear();
    session_.MessageBoxes.BeepCount = 0;
    for (int i = 0; i < 30; ++i) {
      session_.MessageBoxes.Answers.push_back(Below(4) == 0 ? BoxAnswer::No : BoxAnswer::Yes);
    }
    model_.Answers = session_.MessageBoxes.Answers;
    before_ = model_;
  }

  void EndEdit(bool changed, bool expected, bool selects = true) {
    history_.Keep(before_, model_, expected, selects);
    ASSERT_EQ(changed, expected);
    ASSERT_EQ(session_.MessageBoxes.BeepCount, model_.Beeps);
    ASSERT_EQ(session_.MessageBoxes.Shown.size(), model_.Questions.size());
    for (std::size_t i = 0; i < model_.Questions.size(); ++i) {
      ASSERT_EQ(session_.MessageBoxes.Shown[i].Text, model_.Questions[i]);
      ASSERT_EQ(session_.MessageBoxes.Shown[i].Default, BoxDefault::Second);
    }
  }

  void Edit(bool assigns) {
    Select();
    // Few keys for many edits, so that they meet; now and then any key.
    const std::size_t key = Below(3) == 0 ? Below(Vocabulary.size()) : std::size_t{3} * Below(22);
    const auto modifiers = static_cast<unsigned>(Below(2) == 0 ? Below(8) : 3);
    for (const Modifier box : AllModifiers) {
      session_.Panel.SetBox(box, (modifiers >> static_cast<unsigned>(box) & 1U) != 0);
    }
    session_.Panel.ChooseKey(static_cast<int>(key));
    BeginEdit();
    const Text shown = lastKey_ = Shown(modifiers, Vocabulary[key], model_.Reversed);
    if (assigns) {
      const bool changed = session_.Panel.Assign().Changed;
      EndEdit(changed, model_.Assign(shown));
    } else {
      const bool changed = session_.Panel.Add().Changed;
      EndEdit(changed, model_.Add(shown));
    }
  }

  void DeleteOne() {
    Select();
    BeginEdit();
    const bool changed = session_.Panel.Delete().Changed;
    EndEdit(changed, model_.Delete());
  }

  void DeleteAll() {
    BeginEdit();
    const bool changed = session_.Panel.DeleteAll().Changed;
    EndEdit(changed, model_.DeleteAll(), false);
  }

  void Order() {
    if (Below(2) == 0) {
      const int column = 1 + static_cast<int>(Below(4));
      session_.List.SortByColumn(column);
      ClickColumn(model_, column);
    } else if (model_.SortedView) {
      session_.List.RestoreFileOrder();
      RestoreFileOrder(model_);
    } else {
      session_.List.SortCommandList();
      SortRows(model_);
    }
  }

  std::mt19937 engine_;
  bool takesBack_;
  mutable unsigned nextRow_ = 0;
  Text lastKey_;
  Session session_;
  Model model_;
  Model before_;  ///< the last edit
  ModelHistory history_;
  std::string commands_;
  std::vector<Text> defaults_;  ///< of each row
};

TEST(ConflictModel, EveryTableIsWhatTheRulesSayAfterEveryStep) {
  for (int seed = 0; seed < Rounds(60); ++seed) {
    Pair pair(static_cast<unsigned>(seed));
    for (int step = 0; step < 120; ++step) {
      SCOPED_TRACE(testing::Message() << "seed " << seed << ", step " << step);
      ASSERT_NO_FATAL_FAILURE(pair.Compare());
      pair.Step();
      if (HasFatalFailure()) return;
    }
  }
}

TEST(ConflictModel, EveryEditIsTakenBackAndMadeAgain) {
  for (int seed = 0; seed < Rounds(60); ++seed) {
    Pair pair(static_cast<unsigned>(seed), true);
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    for (int step = 0; step < 80; ++step) {
      pair.Step();
      ASSERT_NO_FATAL_FAILURE(pair.Compare()) << "step " << step;
    }
    while (pair.CanUndo()) {
      pair.Undo();
      ASSERT_NO_FATAL_FAILURE(pair.Compare());
    }
    while (pair.CanRedo()) {
      pair.Redo();
      ASSERT_NO_FATAL_FAILURE(pair.Compare());
    }
  }
}

/// Every key with every set of modifiers, one after the other on three rows.
TEST(ConflictModel, EveryKeyIsSavedAndReadBackAsItWasShown) {
  for (const bool reversed : {false, true}) {
    Session session;
    session.Notation.ReverseOrderHotkey = reversed;
    session.Files.Contents[IniPath] = "";
    session.Open("cm_A=1;a\r\ncm_B=2;b\r\n");
    for (unsigned modifiers = 0; modifiers < 8; ++modifiers) {
      for (std::size_t key = 0; key < Vocabulary.size(); ++key) {
        const Text shown = Shown(modifiers, Vocabulary[key], reversed);
        for (const Modifier box : AllModifiers) {
          session.Panel.SetBox(box, (modifiers >> static_cast<unsigned>(box) & 1U) != 0);
        }
        session.Panel.ChooseKey(static_cast<int>(key));
        session.List.ShowRowDetails(1 + key % 2);
        session.MessageBoxes.Answers = {BoxAnswer::Yes};
        ASSERT_TRUE(session.Panel.Assign().Changed);
        ASSERT_EQ(session.Tables.ListView1.Row(1 + key % 2).CurrentKeys, shown);
        ASSERT_EQ(SaveShortcuts(session.Tables, session.Notation, {IniPath, false}, session.Files,
                                session.Clock, session.Environment)
                      .Error,
                  FileError::None);
        Session next;
        next.Notation = session.Notation;
        next.Files.Contents = session.Files.Contents;
        next.Open("cm_A=1;a\r\ncm_B=2;b\r\n");
        ASSERT_EQ(next.Tables.ListView1.Row(1 + key % 2).CurrentKeys, shown);
      }
    }
  }
}

}  // namespace
}  // namespace tessera::conflict_model_test
