// The program without its window, on a small installation of Total Commander in memory.
#pragma once

#include <gtest/gtest.h>

#include "app/Editor.h"
#include "tests/unit/fakes/FakeClipboard.h"
#include "tests/unit/fakes/FakeClock.h"
#include "tests/unit/fakes/FakeDialogs.h"
#include "tests/unit/fakes/FakeEnvironment.h"
#include "tests/unit/fakes/FakeMessageBoxes.h"
#include "tests/unit/fakes/FakePrograms.h"
#include "tests/unit/fakes/FakeRegistry.h"
#include "tests/unit/fakes/MemoryFiles.h"

namespace tessera {

inline const std::wstring settingsPath = L"C:\\Tessera\\vantor.ini";
inline const std::wstring dataPath = L"C:\\Tessera\\Data Files\\tc default hotkeys.hky";
inline const std::wstring incPath = L"C:\\TC\\Totalcmd.inc";
inline const std::wstring iniPath = L"C:\\TC\\Wincmd.ini";
inline const std::wstring otherIniPath = L"C:\\TC\\Other.ini";

inline constexpr const char* incContent =
    "[___File___]=0\r\n"
    "cm_Copy=101;Copy files\r\n"
    "cm_View=102;View a file\r\n"
    "[___Other___]=0\r\n"
    "cm_Pack=103;Pack files\r\n";
inline constexpr const char* dataContent = "[TC Default Hotkeys]\r\n101=F5\r\n102=F3\r\n";
inline constexpr const char* iniContent =
    "[Configuration]\r\nkey=value\r\n"
    "[Shortcuts]\r\nC+F3=cm_View\r\nF3=cm_Copy\r\n"
    "[user]\r\nmenu1=Paint\r\nkey1=1\r\n"
    "[Colors]\r\nred=1\r\n";

// Positions in file order
inline constexpr std::size_t Heading = 0;
inline constexpr std::size_t Copy = 1;
inline constexpr std::size_t View = 2;
inline constexpr std::size_t Pack = 4;

class EditorTest : public testing::Test {
 protected:
  EditorTest() {
    files_.Contents[incPath] = incContent;
    files_.Contents[iniPath] = iniContent;
    files_.Contents[dataPath] = dataContent;
    environment_.Variables[L"Commander_Path"] = L"C:\\TC";
    registry_.SetText(RootKey::CurrentUser, L"Software\\Ghisler\\Total Commander", L"IniFileName",
                      iniPath);
    clock_.StepPerReading = 0.1F;
  }

  void Start() {
    editor_.Load();
    editor_.Activate();
  }

  void Choose(std::wstring_view key) {
    const auto keys = KeyVocabulary();
    editor_.ChooseKey(static_cast<int>(std::find(keys.begin(), keys.end(), key) - keys.begin()));
  }

  void Assign(std::size_t position, std::wstring_view key) {
    editor_.SelectRow(position);
    Choose(key);
    editor_.AssignKey();
  }

  std::string& Ini() { return files_.Contents[iniPath]; }
  std::string& SettingsFile() { return files_.Contents[settingsPath]; }

  Log log_;
  MemoryFiles files_;
  FakeRegistry registry_;
  FakeEnvironment environment_;
  FakeMessageBoxes messageBoxes_;
  FakeDialogs dialogs_;
  FakePrograms programs_{log_};
  FakeClock clock_;
  FakeClipboard clipboard_;
  System system_{files_,   registry_, environment_, messageBoxes_,
                 dialogs_, programs_, clock_,       clipboard_};
  std::vector<bool> progressShown_;
  Editor editor_{system_, [this](const LoadProgress& progress) {
                   progressShown_.push_back(progress.Visible());
                 }};
};

}  // namespace tessera
