// The files that were opened last, newest first, and the entries that show them in menus.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "localisation/Texts.h"
#include "platform/MessageBoxes.h"
#include "platform/Pinned.h"
#include "settings/SettingsFile.h"

namespace tessera {

struct RecentEntry {
  std::wstring Caption;  ///< with mnemonic
  bool Enabled = true;
};

/// A path as a menu shows it: whole up to 48 characters, otherwise cut in the middle, between its
/// drive and its file name. A long path without "\" stays whole.
[[nodiscard]] std::wstring ShortenPath(std::wstring_view path);

class cRecentFiles : Pinned {
 public:
  cRecentFiles(const Texts& texts, MessageBoxes& messageBoxes);

  // -- Queries. Indexes are 1-based; 1 is the newest.

  [[nodiscard]] int Max() const;

  /// The path at an index; the missing marker for a slot that is empty or does not exist.
  [[nodiscard]] std::wstring ListItems(int index) const;

  /// One entry per file; without any file, one disabled entry that says so.
  [[nodiscard]] std::vector<RecentEntry> MenuEntries() const;

  /// The entry behind a menu's separator that empties the list.
  [[nodiscard]] RecentEntry ClearEntry() const;

  // -- Changes

  /// Empties the list and gives it `max` slots, 1 or more.
  void Setup(int max);

  /// Fetches the texts of the fixed entries in the language in use.
  void ChangeLanguage();

  /// Puts the path on top, in the letter case given; one that was in the list, in any letter case,
  /// moves. The oldest falls off a full list. Nothing is done for "" and the missing marker.
  void AddFile(const std::wstring& path);
  void PutAsFirstItem(int index);

  /// An index without a file changes nothing, here and above.
  void RemoveFile(int index);

  /// Asks, then empties the list; false when the user keeps it.
  bool Clear();

  // -- Storage: one key per file, `prefix` and the index, in a section of the settings file

  /// Reads as many paths as there are slots; gaps between them are closed.
  void ReadList(const ProfileFile& stored, std::wstring_view section, std::wstring_view prefix);

  /// Writes the paths, and deletes the keys of empty slots.
  void SaveList(SettingsFile& settingsFile, std::wstring_view section,
                std::wstring_view prefix) const;

 private:
  [[nodiscard]] int Find(std::wstring_view path) const;
  [[nodiscard]] bool Holds(int index) const;

  const Texts& texts_;
  MessageBoxes& messageBoxes_;
  int max_ = 0;
  std::vector<std::wstring> paths_;  ///< the occupied slots
  std::wstring noFiles_;
  std::wstring clearList_;
  std::wstring areYouSure_;
};

}  // namespace tessera
