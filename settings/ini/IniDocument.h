// The content of one INI file, read and edited as bytes with the rules of the Windows profile
// functions. An edit touches only the lines it is about; every other byte stays.
#pragma once

#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "settings/ini/IniNames.h"
#include "settings/ini/IniSection.h"
#include "settings/ini/IniText.h"

namespace tessera {

/// What becomes of a key line of a section whose entries are replaced.
enum class FormerLine {
  Goes,
  Dropped,  ///< goes, and is given back
  Stays,    ///< where it is
  Follows   ///< moves behind the new entries, with its bytes
};

class IniDocument {
 public:
  /// Names and values in and out are bytes in this encoding, whatever the file is written in.
  enum class Encoding {
    Ansi,    ///< bytes as they stand in the file
    Utf16Le  ///< the file starts with FF FE; names and values are UTF-8
  };

  using Entry = IniEntry;

  IniDocument();

  /// Takes the content of a file; any bytes are accepted.
  explicit IniDocument(std::string_view bytes);

  /// As above; the bytes are shared, not copied, and must not be null.
  explicit IniDocument(std::shared_ptr<const std::string> bytes);

  IniDocument(IniDocument&&) = default;
  IniDocument& operator=(IniDocument&&) = default;

  // -- Queries. Views stay valid until the next change.

  [[nodiscard]] Encoding FileEncoding() const;

  /// The first section of that name; null when there is none.
  [[nodiscard]] const IniSection* Section(std::string_view name) const;

  /// The value as it stands in the file, trimmed, its quotes kept; nothing when absent.
  [[nodiscard]] std::optional<std::string_view> Find(std::string_view section,
                                                     std::string_view key) const;

  /// All sections in file order, repeated ones included.
  [[nodiscard]] std::vector<std::string_view> SectionNames() const;

  /// The lines of a section that have a key, in file order, repeated ones included.
  [[nodiscard]] std::vector<Entry> Entries(std::string_view section) const;

  /// The lines of a section, comments left out, each trimmed and without blanks around its "=".
  [[nodiscard]] std::vector<std::string> Lines(std::string_view section) const;

  /// The bytes of the file as it now is.
  [[nodiscard]] std::string Bytes() const;

  /// A text, in the encoding of names and values, as bytes of the file.
  [[nodiscard]] std::string Encoded(std::string text) const;

  // -- Changes. Removing what is absent changes nothing.

  /// Sets a key to a value, written verbatim; creates section and line as needed.
  void Set(std::string_view section, std::string_view key, std::string_view value);
  void Remove(std::string_view section, std::string_view key);
  void RemoveSection(std::string_view section);

  /// Puts `entries` in the place of a section's key lines, in their order, in one step. The section
  /// stays where it is, and so do its comments and blank lines; `becomes`, which is asked in file
  /// order, tells what happens to its key lines. The new lines stand where the first line that they
  /// replace stood. A section left with nothing at all goes; one that was missing is appended. Of
  /// equal keys in `entries` the last value counts, in the place of the first. An entry whose key
  /// begins with ";" or "[" or holds a line break is left out: it would be read as another kind of
  /// line, and every later key of the section might be lost with it. Gives the dropped lines, whole
  /// but for their ends.
  std::vector<std::string> ReplaceEntries(
      std::string_view section, const std::vector<std::pair<std::string, std::string>>& entries,
      const std::function<FormerLine(const Entry& line)>& becomes);

 private:
  using SectionIndex = std::unordered_map<std::string_view, std::size_t, IniNameHash, IniNameEqual>;
  using LineList = std::vector<std::string_view>;

  [[nodiscard]] bool IsOnlyOne(const IniSection& section) const;

  /// The code page in which names are compared.
  [[nodiscard]] unsigned NameCodePage() const;

  /// The first section of that name; null when there is none.
  [[nodiscard]] IniSection* SectionNamed(std::string_view name);

  /// Finds the sections of the content.
  void Divide();
  void AddSection(std::string_view text);
  const SectionIndex& SectionsByName() const;

  /// The whole content, in the encoding of names and values.
  [[nodiscard]] std::string Text() const;

  /// Starts anew from a text, for the changes after which sections are no longer what they were.
  void Reset(std::string text);

  /// Keeps a written text that lines are to be views of.
  std::string_view Store(std::string text);

  void AppendSection(std::string text);

  /// Gives line `number` an end when it has none.
  void EndLine(IniSection& section, std::size_t number);

  [[nodiscard]] LineList WithAdded(const IniSection& section, LineList lines,
                                   std::optional<std::size_t> firstReplaced,
                                   std::string& added) const;

  /// Makes `lines` all that there is of a section.
  void PutLines(const IniSection& section, const LineList& lines);

  Encoding encoding_ = Encoding::Ansi;
  std::string oddByte_;  ///< the half of a character at the end of a UTF-16 file
  std::shared_ptr<const std::string> content_;  ///< the text that sections are views of
  std::list<std::string> written_;              ///< every line that was written into it
  std::vector<IniSection> sections_;            ///< the first holds what stands before all headers
  // Made when first asked for: with it, a load takes 3.4 times a copy of the bytes, without it 1.5.
  mutable std::optional<SectionIndex> sectionsByName_;  ///< of equal names the first one
};

/// A value without the one pair of equal quotes (" or ') around it, where it has one.
[[nodiscard]] std::string_view WithoutQuotes(std::string_view value);

}  // namespace tessera
