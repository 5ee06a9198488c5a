// The classes that keep the rules for keys, put together as the program does it.
#pragma once

#include <memory>
#include <string>

#include "editing/CommandList.h"
#include "editing/HotkeyAssignment.h"
#include "editing/HotkeyPanel.h"
#include "shortcuts/DefaultHotkeys.h"
#include "shortcuts/InternalCommands.h"
#include "shortcuts/StartMenuKeys.h"
#include "shortcuts/WincmdIni.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeEnvironment.h"
#include "tests/support/FakeMessageBoxes.h"
#include "tests/support/MemoryFiles.h"

namespace tessera::model {

const std::wstring IniPath = L"C:\\TC\\Wincmd.ini";
const std::wstring DataPath = L"C:\\keys.hky";

class Session {
 public:
  MemoryFiles Files;
  FakeClock Clock;
  FakeEnvironment Environment;
  FakeMessageBoxes MessageBoxes;
  Settings Options;
  HotkeyNotation Notation;
  Texts Language{Files};
  Catalogue Tables;
  CommandList List{Tables, Options};
  HotkeyAssignment Assignment{Tables, Notation, Language, MessageBoxes};
  HotkeyPanel Panel{Tables, List, Assignment, Notation, Options, MessageBoxes};

  void Open(const std::string& commands) {
    const WincmdIni wincmd(Files, Clock, Environment, IniPath);
    Tables.StartMenuKeys = ReadStartMenuKeys(wincmd.StartMenu(), Notation);
    if (Tables.lvwHidden.empty()) {
      Tables.Text = std::make_shared<const std::wstring>(DecodeInternalCommands(commands));
      Tables.lvwHidden = ReadInternalCommands(*Tables.Text, Notation.UndefinedHotkey, [] {});
    }
    FillDefaultKeys(Tables.lvwHidden, ProfileFile(Files, DataPath), Notation, [] {});
    ReadShortcuts(Tables.lvwHidden, wincmd.Shortcuts(), Notation, [] {});
    BuildDisplayTable(Tables, Notation, [] {});
    BuildKeyIndexes(Tables, Notation);
    MarkOverriddenDefaults(Tables);
    List.ShowFirstRow();
    if (Options.SortedList != 0) List.SortCommandList();
  }
};

}  // namespace tessera::model
