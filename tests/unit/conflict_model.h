// A model of the rules for keys, their owners and their marks: the edits and their questions. Its
// plain lists are searched from their begin to their end.
#pragma once

#include <cstddef>
#include <deque>
#include <vector>

#include "platform/MessageBoxes.h"
#include "tests/unit/model_tables.h"
#include "tests/unit/model_writing.h"

namespace tessera::model {

class Model : public ModelTables {
 public:
  std::deque<BoxAnswer> Answers;  ///< to the next questions
  TextList Questions;             ///< asked by the last edit
  int Beeps = 0;

  bool Assign(const Text& key) {
    Begin();
    if (Rows[Selected].IsHeading) return Beep();
    if (!AskStartMenu(key) || !AskOwners(key, true)) return false;
    Release(Selected);
    Rows[Selected].Current = key;
    Rows[Selected].Pieces = {{key, {}}};
    Remember(key);
    Rows[Selected].Icon = RowIcon::HasKey;
    return true;
  }

  bool Add(const Text& key) {
    Begin();
    if (Rows[Selected].IsHeading || Rows[Selected].Current == Undefined) return Beep();
    if (!AskStartMenu(key) || !AskOwners(key, false)) return false;
    Text& cell = Rows[Selected].Current;
    cell = cell == Undefined ? key : cell + L" = " + key;
    Rows[Selected].Pieces.push_back({key, {}});
    Remember(key);
    return true;
  }

  bool Delete() {
    Begin();
    return Rows[Selected].IsHeading ? Beep() : DeleteKeysOf(Selected);
  }

  bool DeleteAll() {
    Begin();
    if (!Ask(L"You are about to delete Current Hotkeys for ALL commands.\n\nAre you sure?")) {
      return false;
    }
    bool changed = false;
    for (const std::size_t row : Order) {
      if (!Rows[row].IsHeading && DeleteKeysOf(row)) changed = true;
    }
    return changed;
  }

 private:
  void Begin() {
    Questions.clear();
    Beeps = 0;
  }

  bool Beep() {
    ++Beeps;
    return false;
  }

  bool Ask(const Text& question) {
    Questions.push_back(question);
    const BoxAnswer answer = Answers.front();
    Answers.pop_front();
    return answer == BoxAnswer::Yes;
  }

  void Remember(const Text& key) {
    const Text name = WrittenToFile(WithoutNum(key), Reversed);
    Forget(*this, {name, Selected});
    Gifts.push_back({name, Selected});
  }

  void ChangeCell(std::size_t row, const Text& cell, const std::vector<ModelPiece>& pieces) {
    const TextList before = NamesIn(Rows[row], Reversed);
    Rows[row].Current = cell;
    Rows[row].Pieces = pieces;
    for (const Text& name : before) {
      bool stays = false;
      for (const Text& left : NamesIn(Rows[row], Reversed)) {
        stays |= IsSameGift({left, row}, {name, row});
      }
      if (!stays) Forget(*this, {name, row});
    }
  }

  [[nodiscard]] Text ToWhom() const {
    return L"\n\nDo you want assign it to :  " + Rows[Selected].Name;
  }

  bool AskStartMenu(const Text& key) {
    bool goesOn = true;
    for (ModelSlot& slot : Slots) {
      if (slot.Key.empty() || !Same(slot.Key, key)) continue;
      goesOn = Ask(L"Current hotkey for :  [" + slot.Caption +
                   L"] in your Total Commander Start Menu" + ToWhom());
      if (goesOn) slot.Key += L" *";
    }
    return goesOn;
  }

  static ModelKey* Find(std::vector<ModelKey>& index, const Text& key) {
    for (ModelKey& entry : index) {
      if (Same(entry.Key, key) || Lower(entry.Key).starts_with(Lower(key) + L" ")) return &entry;
    }
    return nullptr;
  }

  bool AskOwners(const Text& key, bool replaces) {
    if (Rows[Selected].Current == key) return Beep();
    if (ModelKey* const entry = Find(Defaults, key)) {
      ModelRow& owner = Rows[entry->Owner];
      if (!Ask(L"Default hotkey for :  " + owner.Name + L"\t" + ToWhom() + L"\t")) return false;
      entry->Key += L" *";
      owner.IsRed = true;
      owner.Defaults += L" *";
      if (owner.Current == Undefined) owner.Icon = RowIcon::None;
      Currents.push_back({key, Selected});
      return true;
    }
    if (ModelKey* const entry = Find(Currents, key)) {
      ModelRow& owner = Rows[entry->Owner];
      if (!Ask(L"Current hotkey for :  " + owner.Name + ToWhom())) return false;
      entry->Owner = Selected;
      Text left;
      for (const Text& piece : Split(owner.Current, L"=")) {
        if (Trim(piece) != key) left += Trim(piece) + L" = ";
      }
      std::vector<ModelPiece> pieces = owner.Pieces;
      std::erase_if(pieces, [&](const ModelPiece& piece) { return Trim(piece.Shown) == key; });
      const std::size_t former = static_cast<std::size_t>(&owner - Rows.data());
      ChangeCell(former, left.empty() ? Undefined : left.substr(0, left.size() - 3), pieces);
      const bool hasNone = owner.Defaults == Undefined && owner.Current == Undefined;
      if (owner.Defaults.ends_with(L'*') || hasNone) owner.Icon = RowIcon::None;
      return true;
    }
    Currents.push_back({key, Selected});
    if (replaces && Rows[Selected].Current != Undefined) RemoveEntriesOf(Selected);
    return true;
  }

  void RemoveEntriesOf(std::size_t row) {
    std::erase_if(Currents, [&](const ModelKey& entry) { return entry.Owner == row; });
  }

  void Release(std::size_t row) {
    const Text cell = Rows[row].Current;
    ChangeCell(row, Undefined, {});
    if (Rows[row].Defaults == Undefined) Rows[row].Icon = RowIcon::None;
    for (const Text& key : KeysIn(cell)) {
      for (ModelSlot& slot : Slots) {
        if (Same(slot.Key, key + L" *")) slot.Key.resize(slot.Key.size() - 2);
      }
      for (ModelKey& entry : Defaults) {
        if (!Same(entry.Key, key + L" *")) continue;
        entry.Key.resize(entry.Key.size() - 2);
        Text& defaults = Rows[entry.Owner].Defaults;
        defaults.resize(defaults.size() - 2);
        Rows[entry.Owner].Icon = RowIcon::HasKey;
        break;
      }
    }
  }

  bool DeleteKeysOf(std::size_t row) {
    if (Rows[row].Current == Undefined) return false;
    Release(row);
    RemoveEntriesOf(row);
    return true;
  }
};

}  // namespace tessera::model
