// What every end-to-end test starts from: a fresh folder, and the program in it.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "tests/e2e/Boxes.h"
#include "tests/e2e/Dialog.h"
#include "tests/e2e/Folder.h"
#include "tests/e2e/MainWindow.h"
#include "tests/support/win32/Program.h"

namespace tessera::e2e {

class EndToEndTest : public testing::Test {
 protected:
  /// Keeps a screenshot of a failed test, and ends the program.
  void TearDown() override;

  /// Starts the program in the folder, and waits for its window. The arguments are Program's.
  void Start(const std::wstring& argument = {}, WORD showCommand = SW_SHOWNORMAL);

  /// The same, and waits until the list shows as many rows as the files have.
  void StartAndLoad();

  /// Closes the window, and waits for the program to end.
  void Close();

  /// Waits for a window of that class, one of the program's dialogs or its keys list.
  [[nodiscard]] Dialog NextDialog(const std::wstring& className) const;

  /// The settings file. Where the system needs two steps to put a file in another's place, there
  /// is none between them; this waits for it.
  [[nodiscard]] std::string SettingsText() const;

  /// A setting as the settings file holds it.
  [[nodiscard]] std::string Setting(const std::string& name,
                                    const std::string& section = "Tessera") const;

  /// Clicks the row of a command.
  void Select(const std::wstring& command);
  /// Selects the row below the selected one by its key, which is answered after all of a click; the
  /// release of the button may still be to come when the click has selected a row.
  void SelectNext();

  /// The texts of a command's row.
  [[nodiscard]] RowTexts RowOf(const std::wstring& command) const;

  /// Waits until the cell of a command's current keys holds that text.
  void WaitForKeys(const std::wstring& command, const std::wstring& keys) const;

  /// Gives a command that has no conflict a key, by mouse alone: the first unsaved change.
  void MakeAChange();

  /// File > Save by the toolbar, and waits until it is disabled again.
  void Save();

  [[nodiscard]] bool Modified() const;
  [[nodiscard]] Box NextBox() const;

  /// True when no message box and no dialog of the program is open.
  [[nodiscard]] bool NoBoxOpen() const;

  Folder folder_;
  std::optional<std::wstring> commanderPath_ = folder_.Commander();
  std::unique_ptr<Program> program_;
  std::unique_ptr<MainWindow> window_;
};

}  // namespace tessera::e2e
