// One INI file, read once and then looked up, changed and written as often as needed.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Clock.h"
#include "platform/Files.h"
#include "settings/ini/IniDocument.h"
#include "settings/ini/ReplaceContent.h"
#include "text/Text.h"

namespace tessera {

/// The buffer length, in bytes with the terminator, of every read that has no reason for another.
inline constexpr std::size_t ProfileBufferLength = 4096;

/// What files held when they were last read or saved, by their paths.
using KnownContents = std::map<std::wstring, std::shared_ptr<const std::string>>;

class ProfileFile;

/// One section of a file, for many look-ups in it; it must not outlive the file's next change.
class ProfileSection {
 public:
  /// The value as ProfileFile::ReadString gives it, nothing when the key is absent; `bufferLength`
  /// is at least 1.
  [[nodiscard]] std::optional<std::wstring> Find(
      std::wstring_view key, std::size_t bufferLength = ProfileBufferLength) const;

 private:
  friend ProfileFile;
  ProfileSection(const ProfileFile& file, const IniSection* section)
      : file_(&file), section_(section) {}

  const ProfileFile* file_;
  const IniSection* section_;  ///< null when the file has no such section
};

/// In a file of the ANSI code page (or the one in use) a value that begins with the UTF-8 byte
/// order mark is UTF-8. A value that the code page cannot hold is written so; in a name, a
/// character that it cannot hold becomes "?". A file in UTF-16 with a byte order mark stays so, and
/// holds any text.
class ProfileFile {
 public:
  /// Reads the file; one that cannot be read is empty.
  ProfileFile(const Files& files, std::wstring path);

  /// Reads a file that is to be saved, or must not be missed: waits while it is held by another
  /// program.
  ProfileFile(const Files& files, Clock& clock, std::wstring path);

  /// What a file once held, for look-ups alone; not null.
  explicit ProfileFile(std::shared_ptr<const std::string> content);

  // -- Queries

  [[nodiscard]] const std::wstring& Path() const;

  /// How reading the file went.
  [[nodiscard]] FileError ReadError() const;

  /// The file is there, and reading it failed.
  [[nodiscard]] bool Unread() const;

  /// The whole content as it was read or last saved; never null.
  [[nodiscard]] const std::shared_ptr<const std::string>& Content() const;

  /// The value without its quotes, cut at `bufferLength` - 1 bytes (characters in a UTF-16 file);
  /// `defaultValue` (without its trailing blanks) when the key is absent.
  [[nodiscard]] std::wstring ReadString(std::wstring_view section, std::wstring_view key,
                                        std::wstring_view defaultValue,
                                        std::size_t bufferLength = ProfileBufferLength) const;

  [[nodiscard]] ProfileSection Section(std::wstring_view name) const;

  /// The leading number of what ReadString gives.
  [[nodiscard]] double ReadInteger(std::wstring_view section, std::wstring_view key,
                                   std::wstring_view defaultText,
                                   std::size_t bufferLength = ProfileBufferLength) const;

  /// All section names in file order, repeated ones included.
  [[nodiscard]] std::vector<std::wstring> SectionNames() const;

  /// The lines of a section without comments, as IniDocument::Lines.
  [[nodiscard]] std::vector<std::wstring> Lines(std::wstring_view section) const;

  /// Names and values (quotes removed) of a section, in file order, with no limit to its size.
  [[nodiscard]] std::vector<std::pair<std::wstring, std::wstring>> Entries(
      std::wstring_view section) const;

  /// Dropped lines below a comment, as bytes of another file in this one's encoding, each with its
  /// end; what begins a file has the byte order mark, where there is one.
  [[nodiscard]] std::string CommentedLines(std::wstring_view comment,
                                           const std::vector<std::string>& lines,
                                           bool beginsFile) const;

  // -- How the file is read

  /// Passes over a UTF-8 byte order mark, which else hides a header that the file begins with. For
  /// a file that is not changed.
  void PassOverMark();

  /// Takes what a file that could not be read is known to have held. A save of it fails all the
  /// same, but can leave its changes beside it.
  void Assume(std::shared_ptr<const std::string> content);

  // -- Changes, kept in memory until Save

  /// From now on bytes are decoded with this code page, in place of the ANSI one.
  void UseCodePage(unsigned codePage);

  /// Trims the value of blanks and sets it, in double quotes when `quoted`; the missing marker is
  /// not written.
  void WriteString(std::wstring_view section, std::wstring_view key, std::wstring_view value,
                   bool quoted = false);

  /// Sets a key to a number in decimal digits, without an exponent; 0 for what is no finite number.
  void WriteInteger(std::wstring_view section, std::wstring_view key, double number);

  void DeleteValue(std::wstring_view section, std::wstring_view key);
  void DeleteSection(std::wstring_view section);

  /// As IniDocument::ReplaceEntries; `becomes` gets the value without its quotes. The lines that
  /// are given back are for CommentedLines.
  std::vector<std::string> ReplaceEntries(
      std::wstring_view section, const std::vector<std::pair<std::wstring, std::wstring>>& entries,
      const std::function<FormerLine(const std::wstring& key, const std::wstring& value)>& becomes);

  /// Writes the file when its bytes differ from those read; a missing file that was only read stays
  /// missing, and any change creates it. A file that exists and could not be read is not written:
  /// the result is the error of reading it.
  [[nodiscard]] FileError Save(Files& files, Clock& clock, KeepCopies copies);

  /// Leaves the changed content beside the file, as a failed save does; nothing where there is no
  /// change, or where it is not known what the file held.
  void KeepUnsaved(Files& files) const;

 private:
  friend ProfileSection;

  void Take(std::shared_ptr<const std::string> content);

  [[nodiscard]] bool IsUtf16() const;
  [[nodiscard]] unsigned CodePage() const;
  [[nodiscard]] bool IsUtf8(std::string_view value) const;
  [[nodiscard]] std::wstring DecodeName(std::string_view bytes) const;
  [[nodiscard]] std::string EncodeName(std::wstring_view name) const;
  [[nodiscard]] std::wstring DecodeValue(std::string_view bytes) const;
  [[nodiscard]] std::string EncodeValue(std::wstring_view value) const;

  std::wstring path_;
  FormerContent former_;  ///< of the file as read or last saved
  FileError readError_ = FileError::None;
  IniDocument document_;
  unsigned codePage_ = AnsiCodePage;
  bool isChanged_ = false;
  bool isAssumed_ = false;
};

}  // namespace tessera
