// What the program must show and write, worked out from the files by the simplest means.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/e2e/MainWindow.h"

namespace tessera::e2e {

class Folder;

/// The lines "name=value" of a section, in file order, trimmed; comments left out.
[[nodiscard]] std::vector<std::pair<std::string, std::string>> SectionLines(
    const std::string& file, const std::string& section);

/// The value of a line of a section; empty when there is none.
[[nodiscard]] std::string SectionValue(const std::string& file, const std::string& section,
                                       const std::string& name);

/// The rows of the command list in file order, heading rows included.
[[nodiscard]] std::vector<RowTexts> ExpectedRows(const Folder& folder);

/// Names the rows that differ.
[[nodiscard]] testing::AssertionResult SameRows(const std::vector<RowTexts>& shown,
                                                const std::vector<RowTexts>& expected);

/// The rows without the heading rows.
[[nodiscard]] std::vector<RowTexts> WithoutHeadings(const std::vector<RowTexts>& rows);

/// The lines that a save of these rows writes to section "Shortcuts", each with its CR LF.
[[nodiscard]] std::string ExpectedShortcuts(const std::vector<RowTexts>& rows);

/// The file with other lines in the place of those of section "Shortcuts", all else as it was.
/// The section's lines must stand together.
[[nodiscard]] std::string WithShortcuts(const std::string& file, const std::string& lines);

/// True when the rows are in the order of their texts in a column, letter case ignored.
[[nodiscard]] bool Sorted(const std::vector<RowTexts>& rows, std::size_t column, bool descending);

}  // namespace tessera::e2e
