// The whole program without its window, on an installation of Total Commander in fakes.
#pragma once

#include <algorithm>
#include <string_view>
#include <vector>

#include "app/Editor.h"
#include "tests/support/FakeClipboard.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeEnvironment.h"
#include "tests/support/FakeMessageBoxes.h"
#include "tests/support/FakePrograms.h"
#include "tests/support/FakeRegistry.h"
#include "tests/support/Installation.h"
#include "tests/support/MemoryFiles.h"

namespace tessera {

/// `FilesFake` is one of the fakes that hold files in memory, in a field Contents.
template <typename FilesFake = MemoryFiles>
class SampleProgram {
 public:
  explicit SampleProgram(const Installation& installation = SmallInstallation()) {
    Files.Contents[IncFile] = installation.Commands;
    Files.Contents[DataFile] = installation.DefaultKeys;
    Files.Contents[IniFile] = installation.Ini;
    Environment.Variables[L"Commander_Path"] = L"C:\\TC";
    Registry.SetText(RootKey::CurrentUser, L"Software\\Ghisler\\Total Commander", L"IniFileName",
                     IniFile);
    Clock.StepPerReading = 0.1F;
  }
  SampleProgram(const SampleProgram&) = delete;
  SampleProgram& operator=(const SampleProgram&) = delete;

  void Start() {
    Editor.Load();
    Editor.Activate();
  }

  /// Chooses a key of the vocabulary, and leaves the modifiers.
  void Choose(std::wstring_view key) {
    const auto keys = KeyVocabulary();
    Editor.Work(&HotkeyPanel::ChooseKey,
                static_cast<int>(std::find(keys.begin(), keys.end(), key) - keys.begin()));
  }

  /// Chooses modifiers (bit 0 Ctrl, bit 1 Alt, bit 2 Shift) and a key of the vocabulary.
  void Compose(unsigned modifiers, std::wstring_view key) {
    for (const Modifier box : AllModifiers) {
      Editor.Work(&HotkeyPanel::SetBox, box, (modifiers >> static_cast<unsigned>(box) & 1U) != 0);
    }
    Choose(key);
  }

  /// Gives the row at `position` the key, with the modifiers that are chosen.
  void Assign(std::size_t position, std::wstring_view key) {
    Editor.Work(&CommandList::SelectRow, position);
    Choose(key);
    Editor.Work(&HotkeyPanel::Assign);
  }

  void Assign(std::size_t position, unsigned modifiers, std::wstring_view key) {
    Editor.Work(&CommandList::SelectRow, position);
    Compose(modifiers, key);
    Editor.Work(&HotkeyPanel::Assign);
  }

  Log Calls;  ///< of other programs
  FilesFake Files;
  FakeRegistry Registry;
  FakeEnvironment Environment;
  FakeMessageBoxes MessageBoxes;
  FakeDialogs Dialogs;
  FakePrograms Programs{Calls};
  FakeClock Clock;
  FakeClipboard Clipboard;
  System Seams{Files, Registry, Environment, MessageBoxes, Dialogs, Programs, Clock, Clipboard};
  std::vector<bool> ProgressShown;  ///< whether the bar was to be seen, at each of its changes
  tessera::Editor Editor{
      Seams, [this](const LoadProgress& progress) { ProgressShown.push_back(progress.Visible()); }};
};

}  // namespace tessera
