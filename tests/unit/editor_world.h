// The program without its window, on a small installation of Total Commander in fakes.
#pragma once

#include <algorithm>

#include "app/Editor.h"
#include "tests/unit/fakes/FakeClipboard.h"
#include "tests/unit/fakes/FakeClock.h"
#include "tests/unit/fakes/FakeDialogs.h"
#include "tests/unit/fakes/FakeEnvironment.h"
#include "tests/unit/fakes/FakeMessageBoxes.h"
#include "tests/unit/fakes/FakePrograms.h"
#include "tests/unit/fakes/FakeRegistry.h"

namespace tessera::world {

inline const std::wstring SettingsFile = L"C:\\Tessera\\vantor.ini";
inline const std::wstring DataFile = L"C:\\Tessera\\Data Files\\tc default hotkeys.hky";
inline const std::wstring IncFile = L"C:\\TC\\Totalcmd.inc";
inline const std::wstring IniFile = L"C:\\TC\\Wincmd.ini";

/// `FilesFake` is one of the fakes that hold files in memory, in a field Contents.
template <typename FilesFake>
class EditorWorld {
 public:
  EditorWorld() {
    Files.Contents[IncFile] =
        "[___File___]=0\r\ncm_Copy=101;Copy files\r\ncm_View=102;View a file\r\n"
        "[___Other___]=0\r\ncm_Pack=103;Pack files\r\n";
    Files.Contents[DataFile] = "[TC Default Hotkeys]\r\n101=F5\r\n102=F3\r\n";
    Files.Contents[IniFile] = "";
    Environment.Variables[L"Commander_Path"] = L"C:\\TC";
    Registry.SetText(RootKey::CurrentUser, L"Software\\Ghisler\\Total Commander", L"IniFileName",
                     IniFile);
    Clock.StepPerReading = 0.1F;
  }

  void Start() {
    Program.Load();
    Program.Activate();
  }

  /// Chooses modifiers (bit 0 Ctrl, bit 1 Alt, bit 2 Shift) and a key of the vocabulary.
  void Compose(unsigned modifiers, int key) {
    for (const Modifier box : AllModifiers) {
      Program.SetBox(box, (modifiers >> static_cast<unsigned>(box) & 1U) != 0);
    }
    Program.ChooseKey(key);
  }

  void Compose(unsigned modifiers, std::wstring_view key) {
    const auto keys = KeyVocabulary();
    Compose(modifiers, static_cast<int>(std::find(keys.begin(), keys.end(), key) - keys.begin()));
  }

  void Assign(std::size_t position, unsigned modifiers, std::wstring_view key) {
    Program.SelectRow(position);
    Compose(modifiers, key);
    Program.AssignKey();
  }

  FilesFake Files;
  FakeRegistry Registry;
  FakeEnvironment Environment;
  FakeMessageBoxes MessageBoxes;
  FakeDialogs Dialogs;
  Log Calls;
  FakePrograms Programs{Calls};
  FakeClock Clock;
  FakeClipboard Clipboard;
  Editor Program{
      System{Files, Registry, Environment, MessageBoxes, Dialogs, Programs, Clock, Clipboard},
      [](const LoadProgress&) {}};
};

}  // namespace tessera::world
