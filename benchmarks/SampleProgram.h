// The program without its window, on files in memory with as many commands as a benchmark wants.
#pragma once

#include <string>

#include "app/Editor.h"
#include "tests/unit/fakes/FakeClipboard.h"
#include "tests/unit/fakes/FakeClock.h"
#include "tests/unit/fakes/FakeDialogs.h"
#include "tests/unit/fakes/FakeEnvironment.h"
#include "tests/unit/fakes/FakePrograms.h"
#include "tests/unit/fakes/FakeRegistry.h"
#include "tests/unit/fakes/MemoryFiles.h"

namespace tessera {

inline constexpr int FewCommands = 600;  ///< as many as Total Commander has
inline constexpr int ManyCommands = 100'000;

class YesToAll final : public MessageBoxes {
 public:
  BoxAnswer Show(const std::wstring& text, BoxButtons buttons, BoxIcon icon,
                 BoxDefault defaultButton) override;
  void Beep() override {}
};

class SampleProgram {
 public:
  static constexpr const wchar_t* IniPath = L"C:\\TC\\Wincmd.ini";
  static constexpr const wchar_t* CommandsPath = L"C:\\TC\\Totalcmd.inc";
  static constexpr const wchar_t* DefaultKeysPath =
      L"C:\\Tessera\\Data Files\\tc default hotkeys.hky";

  /// Every fifth command has a default key, every tenth a current one.
  explicit SampleProgram(int commands);

  void Start();

  MemoryFiles Files;
  tessera::Editor Editor;

 private:
  Log log_;
  FakeRegistry registry_;
  FakeEnvironment environment_;
  YesToAll messageBoxes_;
  FakeDialogs dialogs_;
  FakePrograms programs_{log_};
  FakeClock clock_;
  FakeClipboard clipboard_;
};

}  // namespace tessera
