// The gateway to INI files for single reads and writes: every operation takes the file's full path,
// and nothing is kept open. Bulk work uses ProfileFile, with the same results.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Clock.h"
#include "platform/Files.h"
#include "settings/ini/ProfileFile.h"

namespace tessera {

class cProfile {
 public:
  cProfile(Files& files, Clock& clock);

  // -- Single values

  [[nodiscard]] std::wstring ReadStringValue(std::wstring_view section, std::wstring_view key,
                                             std::wstring_view defaultValue,
                                             const std::wstring& file,
                                             std::size_t bufferLength = ProfileBufferLength) const;
  [[nodiscard]] double ReadIntegerValue(std::wstring_view section, std::wstring_view key,
                                        std::wstring_view defaultText, const std::wstring& file,
                                        std::size_t bufferLength = ProfileBufferLength) const;
  void WriteStringValue(std::wstring_view section, std::wstring_view key, std::wstring_view value,
                        const std::wstring& file, bool quoted = false);
  void WriteIntegerValue(std::wstring_view section, std::wstring_view key, double number,
                         const std::wstring& file);
  void DeleteValue(std::wstring_view section, std::wstring_view key, const std::wstring& file);
  void DeleteSection(std::wstring_view section, const std::wstring& file);

  // -- Lists, filled by one call and then walked by index from 0 to the upper index (-1: empty).
  // An index outside a list throws std::out_of_range. A list holds what fits into a buffer of that
  // many characters, the last text cut; names that are empty are left out.

  void ReadFileSectionsName(const std::wstring& file, std::size_t bufferLength);
  void ReadSectionKeysNameAndValue(std::wstring_view section, const std::wstring& file,
                                   std::size_t bufferLength);
  void ReadSectionKeysNameOnly(std::wstring_view section, const std::wstring& file,
                               std::size_t bufferLength);

  [[nodiscard]] const std::wstring& FileSectionsNameList(int index) const;
  [[nodiscard]] const std::wstring& SectionKeysNameAndValueList(int index) const;
  [[nodiscard]] const std::wstring& SectionKeysNameOnlyList(int index) const;
  [[nodiscard]] int FileSectionsNameUpperIndex() const;
  [[nodiscard]] int SectionKeysNameAndValueUpperIndex() const;
  [[nodiscard]] int SectionKeysNameOnlyUpperIndex() const;

  /// Sorts the key names by character code, ascending.
  void SortKeysNameOnlyList();

 private:
  using List = std::vector<std::wstring>;

  void Change(const std::wstring& file, const std::function<void(ProfileFile&)>& change);

  Files& files_;
  Clock& clock_;
  List sectionNames_;
  List keyNamesAndValues_;
  List keyNames_;
};

}  // namespace tessera
