// A small catalogue for tests: a heading, and commands with and without keys.
#pragma once

#include "shortcuts/Catalogue.h"
#include "tests/support/Kept.h"

namespace tessera {

namespace sample {

inline constexpr RowKey Heading = 1;
inline constexpr RowKey Copy = 2;     ///< default F5
inline constexpr RowKey View = 3;     ///< current F6
inline constexpr RowKey Pack = 4;     ///< no key
inline constexpr RowKey Refresh = 5;  ///< default F2 = Ctrl + R, current F7 = F8
inline constexpr RowKey Search = 6;   ///< default F9, overridden by the next row
inline constexpr RowKey Sync = 7;     ///< current F9

}  // namespace sample

inline CommandEntry SampleCommand(RowKey key, const std::wstring& name,
                                  const std::wstring& defaults, const std::wstring& current) {
  CommandEntry row;
  row.Key = key;
  row.Description = Kept(name + L" description");
  row.CommandName = Kept(L"cm_" + name);
  row.CommandCode = Kept(std::to_wstring(100 + key));
  row.Tag = row.CommandCode;
  row.DefaultKeys = defaults;
  row.CurrentKeys = current;
  return row;
}

/// Rows with these descriptions and the keys 1, 2 and so on.
inline DisplayTable DescribedRows(const std::vector<std::wstring>& descriptions) {
  std::vector<CommandEntry> rows;
  for (const std::wstring& description : descriptions) {
    CommandEntry row;
    row.Key = rows.size() + 1;
    row.Description = Kept(description);
    rows.push_back(std::move(row));
  }
  DisplayTable table;
  table.Fill(std::move(rows));
  return table;
}

inline Catalogue SampleCatalogue(const HotkeyNotation& notation = {}) {
  CommandEntry heading;
  heading.Key = sample::Heading;
  heading.Description = L"[___Group___]";
  heading.Tag = CommentBlockTag;
  Catalogue catalogue;
  catalogue.lvwHidden = {heading,
                         SampleCommand(sample::Copy, L"Copy", L"F5", L"---"),
                         SampleCommand(sample::View, L"View", L"---", L"F6"),
                         SampleCommand(sample::Pack, L"Pack", L"---", L"---"),
                         SampleCommand(sample::Refresh, L"Refresh", L"F2 = Ctrl + R", L"F7 = F8"),
                         SampleCommand(sample::Search, L"Search", L"F9", L"---"),
                         SampleCommand(sample::Sync, L"Sync", L"---", L"F9")};
  BuildDisplayTable(catalogue, notation, [] {});
  BuildKeyIndexes(catalogue, notation);
  MarkOverriddenDefaults(catalogue);
  return catalogue;
}

}  // namespace tessera
