// How the model of the rules reads the keys of its file.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "tests/unit/model_order.h"
#include "tests/unit/model_tables.h"

namespace tessera::model {

inline void ReadStartMenu(ModelTables& tables) {
  tables.Slots.assign(24, {});
  Text caption;
  for (const ModelLine& line : tables.StartMenu) {
    if (line.Name.starts_with(L"menu")) caption = line.Value;
    const int slot = line.Name.starts_with(L"key") ? std::stoi(line.Value) : 0;
    if (slot < 1 || slot > 24) continue;
    const unsigned modifiers = slot > 12 ? 7 : 3;
    const Text key = L"F" + std::to_wstring(slot > 12 ? slot - 12 : slot);
    tables.Slots[static_cast<std::size_t>(slot) - 1] = {Shown(modifiers, key, tables.Reversed),
                                                        caption, line.Name};
  }
}

inline void ReadLine(ModelTables& tables, const ModelLine& line) {
  // A name that stands twice has the value of its first line.
  Text value;
  for (const ModelLine& other : tables.Shortcuts) {
    if (!Same(other.Name, line.Name)) continue;
    value = other.Value;
    break;
  }
  for (ModelRow& row : tables.Master) {
    const bool isMeant = Same(row.Name, value) || Same(row.Code, value) ||
                         Same(row.Defaults, value) || Same(row.Current, value);
    if (row.IsHeading || !isMeant) continue;
    const Text key = ShownFromFile(line.Name, tables.Reversed);
    row.Current = row.Current == Undefined ? key : row.Current + L" = " + key;
    row.Pieces.push_back({key, line.Name});
    return;
  }
}

inline void Read(ModelTables& tables, const std::vector<Text>& defaultsOfRows) {
  ReadStartMenu(tables);
  for (std::size_t i = 0; i < tables.Master.size(); ++i) {
    if (!tables.Master[i].IsHeading) tables.Master[i].Defaults = defaultsOfRows[i];
  }
  for (const ModelLine& line : tables.Shortcuts) ReadLine(tables, line);
  tables.Rows = tables.Master;
  tables.Order.clear();
  tables.Defaults.clear();
  tables.Currents.clear();
  for (std::size_t i = 0; i < tables.Rows.size(); ++i) {
    ModelRow& row = tables.Rows[i];
    tables.Order.push_back(i);
    row.Icon = row.IsHeading                                           ? RowIcon::CommentBlock
               : row.Defaults != Undefined || row.Current != Undefined ? RowIcon::HasKey
                                                                       : RowIcon::None;
    if (row.IsHeading) continue;
    for (const Text& key : KeysIn(row.Defaults)) tables.Defaults.push_back({key, i});
    for (const Text& key : KeysIn(row.Current)) tables.Currents.push_back({key, i});
  }
  for (const ModelKey& current : tables.Currents) {
    for (ModelKey& entry : tables.Defaults) {
      if (!Same(entry.Key, current.Key)) continue;
      tables.Rows[entry.Owner].IsRed = true;
      tables.Rows[entry.Owner].Defaults += L" *";
      entry.Key += L" *";
      break;
    }
  }
  tables.Selected = tables.Order.front();
  if (tables.SortedView) SortRows(tables);
}

}  // namespace tessera::model
