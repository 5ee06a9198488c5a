// A model of the rules for keys, their owners and their marks, in plain lists that are searched
// from their begin to their end.
#pragma once

#include <algorithm>
#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "platform/MessageBoxes.h"
#include "shortcuts/CommandEntry.h"
#include "tests/unit/model_keys.h"
#include "text/Text.h"

namespace tessera::model {

struct ModelPiece {
  Text Shown;
  Text Name;  ///< by which it was read; empty when an edit made it
};

struct ModelRow {
  bool IsHeading = false;
  Text Description, Name, Code, Defaults, Current;
  RowIcon Icon = RowIcon::None;
  bool IsRed = false;
  std::vector<ModelPiece> Pieces;  ///< of the current keys
};

struct ModelKey {
  Text Key;
  std::size_t Owner = 0;
};

struct ModelSlot {
  Text Key, Caption, ValueName;
};

struct ModelLine {
  Text Name, Value;
};

class Model {
 public:
  bool Reversed = false;
  std::vector<ModelRow> Master;
  std::vector<ModelRow> Rows;      ///< displayed copies, in file order
  std::vector<std::size_t> Order;  ///< indexes into Rows, as displayed
  std::vector<ModelKey> Defaults, Currents;
  std::vector<ModelSlot> Slots = std::vector<ModelSlot>(24);
  std::vector<ModelLine> Shortcuts, StartMenu;  ///< the lines of the two sections of the file
  bool SortedView = false, IsSorted = false, Descending = false;
  int StoredOrder = 0, StoredColumn = 3;
  std::size_t Selected = 0;
  std::deque<BoxAnswer> Answers;  ///< to the next questions
  TextList Questions;             ///< asked by the last edit
  int Beeps = 0;
  std::vector<ModelKey> Gifts;  ///< what edits gave and none took, as written; the latest last

  void Open(const std::vector<Text>& defaultsOfRows) {
    ReadStartMenu();
    for (std::size_t i = 0; i < Master.size(); ++i) {
      if (!Master[i].IsHeading) Master[i].Defaults = defaultsOfRows[i];
    }
    for (const ModelLine& line : Shortcuts) ReadLine(line);
    Rows = Master;
    Order.clear();
    Defaults.clear();
    Currents.clear();
    for (std::size_t i = 0; i < Rows.size(); ++i) {
      ModelRow& row = Rows[i];
      Order.push_back(i);
      row.Icon = row.IsHeading                                           ? RowIcon::CommentBlock
                 : row.Defaults != Undefined || row.Current != Undefined ? RowIcon::HasKey
                                                                         : RowIcon::None;
      if (row.IsHeading) continue;
      for (const Text& key : KeysIn(row.Defaults)) Defaults.push_back({key, i});
      for (const Text& key : KeysIn(row.Current)) Currents.push_back({key, i});
    }
    for (const ModelKey& current : Currents) {
      for (ModelKey& entry : Defaults) {
        if (!Same(entry.Key, current.Key)) continue;
        Rows[entry.Owner].IsRed = true;
        Rows[entry.Owner].Defaults += L" *";
        entry.Key += L" *";
        break;
      }
    }
    Selected = Order.front();
    if (SortedView) Sort();
  }

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

  void Sort() {
    SortedView = true;
    if (StoredColumn < 1 || StoredColumn > 4) StoredColumn = 3;
    std::erase_if(Order, [&](std::size_t row) { return Rows[row].IsHeading; });
    IsSorted = true;
    Descending = StoredOrder == 0;
    ClickColumn(StoredColumn);
    Selected = Order.front();
  }

  void Unsort() {
    SortedView = IsSorted = false;
    Order.clear();
    for (std::size_t row = 0; row < Rows.size(); ++row) Order.push_back(row);
    ClickColumn(3);
    Selected = Order.front();
  }

  void ClickColumn(int column) {
    if (!IsSorted) {
      StoredOrder = 1;
      StoredColumn = 3;
      return;
    }
    Descending = column == StoredColumn ? !Descending : StoredOrder == 1;
    StoredOrder = Descending ? 1 : 0;
    StoredColumn = column;
    const auto cell = [&](std::size_t row) -> const Text& {
      const ModelRow& shown = Rows[row];
      const Text* const cells[] = {&shown.Description, &shown.Name, &shown.Defaults,
                                   &shown.Current};
      return *cells[column - 1];
    };
    // Insertion keeps the order of equal texts.
    std::vector<std::size_t> sorted;
    for (const std::size_t row : Order) {
      auto place = sorted.end();
      while (place != sorted.begin()) {
        const int comparison = CompareTexts(cell(row), cell(*(place - 1)));
        if (Descending ? comparison <= 0 : comparison >= 0) break;
        --place;
      }
      sorted.insert(place, row);
    }
    Order = sorted;
  }

  struct Holder {
    std::size_t Row = 0;
    bool IsOverridden = false;
  };

  /// The rows whose default keys show the key.
  [[nodiscard]] std::vector<Holder> DefaultHolders(const Text& key) const {
    std::vector<Holder> holders;
    for (std::size_t row = 0; row < Rows.size(); ++row) {
      const TextList keys = KeysIn(Rows[row].Defaults);
      for (const Text& shown : keys) {
        Text marked = key;
        while (marked.size() < shown.size()) marked += L" *";
        if (!Same(shown, marked)) continue;
        const bool isMarked = keys.size() == 1
                                  ? shown.size() > key.size()
                                  : keys.back().ends_with(L" *") && !CurrentHolders(key).empty();
        holders.push_back({row, isMarked});
        break;
      }
    }
    return holders;
  }

  /// The rows whose current keys show the key.
  [[nodiscard]] std::vector<std::size_t> CurrentHolders(const Text& key) const {
    std::vector<std::size_t> holders;
    for (std::size_t row = 0; row < Rows.size(); ++row) {
      for (const Text& shown : KeysIn(Rows[row].Current)) {
        if (!Same(shown, key)) continue;
        holders.push_back(row);
        break;
      }
    }
    return holders;
  }

  void Save() {
    std::vector<ModelKey> written;
    for (const std::size_t row : Order) {
      for (const Text& name : NamesIn(Rows[row])) written.push_back({name, row});
    }
    Shortcuts.clear();
    while (!written.empty()) {
      Shortcuts.push_back(LineFor(written));
      std::erase_if(written, [&, name = written.front().Key](const ModelKey& other) {
        return Same(other.Key, name);
      });
    }
    for (ModelSlot& slot : Slots) {
      if (!slot.Key.ends_with(L'*')) continue;
      std::erase_if(StartMenu, [&](const ModelLine& line) { return line.Name == slot.ValueName; });
      slot = {};
    }
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

  void ReadStartMenu() {
    Slots.assign(24, {});
    Text caption;
    for (const ModelLine& line : StartMenu) {
      if (line.Name.starts_with(L"menu")) caption = line.Value;
      const int slot = line.Name.starts_with(L"key") ? std::stoi(line.Value) : 0;
      if (slot < 1 || slot > 24) continue;
      const unsigned modifiers = slot > 12 ? 7 : 3;
      const Text key = L"F" + std::to_wstring(slot > 12 ? slot - 12 : slot);
      Slots[static_cast<std::size_t>(slot) - 1] = {Shown(modifiers, key, Reversed), caption,
                                                   line.Name};
    }
  }

  void ReadLine(const ModelLine& line) {
    // A name that stands twice has the value of its first line.
    Text value;
    for (const ModelLine& other : Shortcuts) {
      if (!Same(other.Name, line.Name)) continue;
      value = other.Value;
      break;
    }
    for (ModelRow& row : Master) {
      const bool isMeant = Same(row.Name, value) || Same(row.Code, value) ||
                           Same(row.Defaults, value) || Same(row.Current, value);
      if (row.IsHeading || !isMeant) continue;
      const Text key = ShownFromFile(line.Name, Reversed);
      row.Current = row.Current == Undefined ? key : row.Current + L" = " + key;
      row.Pieces.push_back({key, line.Name});
      return;
    }
  }

  static Text WithoutNum(Text shown) {
    if (const std::size_t num = shown.find(L"Num"); num != Text::npos) shown.erase(num, 3);
    return Trim(shown);
  }

  /// The names that a save writes for a row.
  [[nodiscard]] TextList NamesIn(const ModelRow& row) const {
    TextList names;
    bool hasNum = false;
    for (const auto& [shown, name] : row.Pieces) {
      const Text plain = WrittenToFile(WithoutNum(shown), Reversed);
      const bool isLost = row.Current.empty() || row.Current == Undefined || plain.empty() ||
                          plain[0] == L';' || KeyOf(plain) != KeyOf(name);
      const bool isNum = shown.find(L"Num") != Text::npos;
      if (isLost && !name.empty()) {
        names.push_back(name);
      } else {
        names.push_back(isNum && hasNum ? WrittenToFile(shown, Reversed) : plain);
        hasNum |= isNum;
      }
    }
    return names;
  }

  /// The one line for the first name and all that are equal to it.
  [[nodiscard]] ModelLine LineFor(const std::vector<ModelKey>& written) const {
    const ModelKey& first = written.front();
    const ModelKey* last = &first;
    const ModelKey* latest = &first;
    bool isOneRow = true;
    for (const ModelKey& other : written) {
      if (!Same(other.Key, first.Key)) continue;
      last = &other;
      if (MomentOf(other) >= MomentOf(*latest)) latest = &other;
      if (other.Owner != first.Owner) isOneRow = false;
    }
    const bool isGiven = !isOneRow && MomentOf(*latest) != 0;
    return isGiven ? ModelLine{latest->Key, Rows[latest->Owner].Name}
                   : ModelLine{first.Key, Rows[last->Owner].Name};
  }

  /// The second keypad key of a cell is written with its "Num", but is the same key.
  static bool IsSameGift(const ModelKey& left, const ModelKey& right) {
    const auto plain = [](Text name) {
      if (const std::size_t num = name.find(L"Num"); num != Text::npos) name.erase(num, 3);
      std::erase(name, L' ');
      return name;
    };
    return left.Owner == right.Owner && Same(plain(left.Key), plain(right.Key));
  }

  [[nodiscard]] std::size_t MomentOf(const ModelKey& line) const {
    for (std::size_t i = 0; i < Gifts.size(); ++i) {
      if (IsSameGift(Gifts[i], line)) return i + 1;
    }
    return 0;
  }

  void Forget(const ModelKey& gift) {
    std::erase_if(Gifts, [&](const ModelKey& other) { return IsSameGift(other, gift); });
  }

  void Remember(const Text& key) {
    const Text name = WrittenToFile(WithoutNum(key), Reversed);
    Forget({name, Selected});
    Gifts.push_back({name, Selected});
  }

  void ChangeCell(std::size_t row, const Text& cell, const std::vector<ModelPiece>& pieces) {
    const TextList before = NamesIn(Rows[row]);
    Rows[row].Current = cell;
    Rows[row].Pieces = pieces;
    for (const Text& name : before) {
      bool stays = false;
      for (const Text& left : NamesIn(Rows[row])) stays |= IsSameGift({left, row}, {name, row});
      if (!stays) Forget({name, row});
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
