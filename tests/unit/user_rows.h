// The program with rows of the user's own commands.
#pragma once

#include <cstddef>
#include <string>

#include "tests/unit/editor_fixture.h"

namespace tessera::user_rows {

const std::wstring UserFile = L"C:\\TC\\usercmd.ini";

/// Positions of the first open, behind those of the small installation.
inline constexpr std::size_t OwnHeading = 5;
inline constexpr std::size_t Mine = 6;
inline constexpr std::size_t Yours = 7;

class UserRowsTest : public EditorTest {
 protected:
  UserRowsTest() {
    StoredSettings() = "[Tessera]\r\nShowUserCommands=1\r\n";
    UserCommands() = "[em_Mine]\r\nmenu=My command\r\n[em_Yours]\r\ncmd=yours.exe\r\n";
    Ini() = "[Shortcuts]\r\nF3=cm_Copy\r\nA+F5=em_mine\r\n";
  }

  std::string& UserCommands() { return Files.Contents[UserFile]; }
  [[nodiscard]] const DisplayTable& Rows() const { return Editor.Document().Rows(); }
  [[nodiscard]] std::wstring Keys(std::size_t position) const {
    return Rows().At(position).CurrentKeys;
  }
  void Reopen() { Editor.OpenShortcutFile(false, IniFile, false); }

  void ShowOwn(bool show) {
    OptionsSelection& options = Editor.BeginOptions();
    if (options.Checked(OptionBox::ShowUserCommands) != show) {
      options.Click(OptionBox::ShowUserCommands);
    }
    options.Apply();
    Editor.EndOptions();
  }
};

}  // namespace tessera::user_rows
