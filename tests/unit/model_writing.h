// How the model of the rules writes the keys of its rows.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "tests/unit/model_tables.h"

namespace tessera::model {

inline Text WithoutNum(Text shown) {
  if (const std::size_t num = shown.find(L"Num"); num != Text::npos) shown.erase(num, 3);
  return Trim(shown);
}

/// The names that a save writes for a row.
[[nodiscard]] inline TextList NamesIn(const ModelRow& row, bool reversed) {
  TextList names;
  bool hasNum = false;
  for (const auto& [shown, name] : row.Pieces) {
    const Text plain = WrittenToFile(WithoutNum(shown), reversed);
    const bool isLost = row.Current.empty() || row.Current == Undefined || plain.empty() ||
                        plain[0] == L';' || KeyOf(plain) != KeyOf(name);
    const bool isNum = shown.find(L"Num") != Text::npos;
    if (isLost && !name.empty()) {
      names.push_back(name);
    } else {
      names.push_back(isNum && hasNum ? WrittenToFile(shown, reversed) : plain);
      hasNum |= isNum;
    }
  }
  return names;
}

/// The second keypad key of a cell is written with its "Num", but is the same key.
inline bool IsSameGift(const ModelKey& left, const ModelKey& right) {
  const auto plain = [](Text name) {
    if (const std::size_t num = name.find(L"Num"); num != Text::npos) name.erase(num, 3);
    std::erase(name, L' ');
    return name;
  };
  return left.Owner == right.Owner && Same(plain(left.Key), plain(right.Key));
}

/// The later, the greater; 0 for what no edit gave.
[[nodiscard]] inline std::size_t MomentOf(const ModelTables& tables, const ModelKey& line) {
  for (std::size_t i = 0; i < tables.Gifts.size(); ++i) {
    if (IsSameGift(tables.Gifts[i], line)) return i + 1;
  }
  return 0;
}

inline void Forget(ModelTables& tables, const ModelKey& gift) {
  std::erase_if(tables.Gifts, [&](const ModelKey& other) { return IsSameGift(other, gift); });
}

/// The one line for the first name and all that are equal to it.
[[nodiscard]] inline ModelLine LineFor(const ModelTables& tables,
                                       const std::vector<ModelKey>& written) {
  const ModelKey& first = written.front();
  const ModelKey* last = &first;
  const ModelKey* latest = &first;
  bool isOneRow = true;
  for (const ModelKey& other : written) {
    if (!Same(other.Key, first.Key)) continue;
    last = &other;
    if (MomentOf(tables, other) >= MomentOf(tables, *latest)) latest = &other;
    if (other.Owner != first.Owner) isOneRow = false;
  }
  const bool isGiven = !isOneRow && MomentOf(tables, *latest) != 0;
  return isGiven ? ModelLine{latest->Key, tables.Rows[latest->Owner].Name}
                 : ModelLine{first.Key, tables.Rows[last->Owner].Name};
}

inline void Write(ModelTables& tables) {
  std::vector<ModelKey> written;
  for (const std::size_t row : tables.Order) {
    for (const Text& name : NamesIn(tables.Rows[row], tables.Reversed)) {
      written.push_back({name, row});
    }
  }
  tables.Shortcuts.clear();
  while (!written.empty()) {
    tables.Shortcuts.push_back(LineFor(tables, written));
    std::erase_if(written, [&, name = written.front().Key](const ModelKey& other) {
      return Same(other.Key, name);
    });
  }
  for (ModelSlot& slot : tables.Slots) {
    if (!slot.Key.ends_with(L'*')) continue;
    std::erase_if(tables.StartMenu,
                  [&](const ModelLine& line) { return line.Name == slot.ValueName; });
    slot = {};
  }
}

}  // namespace tessera::model
