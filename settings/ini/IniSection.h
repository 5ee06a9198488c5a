// One section of an INI file: its header line and the lines up to the next header.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "settings/ini/IniNames.h"

namespace tessera {

/// Owns no text: whoever makes a section keeps the texts alive that its lines are views of.
class IniSection {
 public:
  /// `text` begins with the header line, but for what stands before a file's first header.
  IniSection(std::string_view text, unsigned codePage) : text_(text), codePage_(codePage) {}

  // -- Queries

  /// The name in the header.
  [[nodiscard]] std::string_view Name() const;

  /// All lines with their ends, the header first. A removed line is an empty text.
  [[nodiscard]] const std::vector<std::string_view>& Lines() const;

  /// The value of the first line with that key, trimmed, its quotes kept. Spaces around the key are
  /// passed over.
  [[nodiscard]] std::optional<std::string_view> Find(std::string_view key) const;

  /// The number of the first line with that key.
  [[nodiscard]] std::optional<std::size_t> LineOf(std::string_view key) const;

  /// The number of the line behind the last line with a key; behind the header when there is none.
  [[nodiscard]] std::size_t AfterLastKey() const;

  void AppendTo(std::string& text) const;

  // -- Changes; none of them changes a line's name or the header.

  void ReplaceLine(std::size_t number, std::string_view line);

  /// Inserts a line behind all lines that have a key.
  void InsertBehindKeys(std::size_t number, std::string_view line);

  /// Removes a line that has a key.
  void RemoveLine(std::size_t number);

 private:
  using Index = std::unordered_map<std::string_view, std::size_t, IniNameHash, IniNameEqual>;

  struct Contents {
    std::vector<std::string_view> Lines;
    Index FirstLines;  ///< by key
    bool HasRepeatedKeys = false;

    /// Puts a line that has a key into the index, unless an earlier one has the same.
    void AddToIndex(std::size_t number);
  };

  Contents& Opened() const;

  std::string_view text_;
  unsigned codePage_;
  // Made when first asked for: made for every section, a load takes over 20 times a copy, not 1.5.
  mutable std::unique_ptr<Contents> contents_;
};

}  // namespace tessera
