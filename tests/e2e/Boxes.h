// Message boxes and file dialogs of the program: what they say, and answering them.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tessera::e2e {

struct Box {
  HWND Window = nullptr;
  std::wstring Title;
  std::wstring Text;
  std::vector<int> Buttons;  ///< IDOK, IDYES, ... in the order in which they stand
  int DefaultButton = 0;     ///< the one with the focus
};

/// Waits for a message box of that process. `limit` in milliseconds.
[[nodiscard]] Box WaitForBox(DWORD process, unsigned limit = 10000);

/// Waits for an open-file dialog of that process.
[[nodiscard]] HWND WaitForFileDialog(DWORD process);

/// Clicks that button, and waits for the box to be gone.
void Answer(const Box& box, int button);

/// Presses a key, and waits for the box or dialog to be gone.
void AnswerByKey(HWND window, WORD key);

/// Message boxes and dialogs that are open now, for the message of a failed test.
[[nodiscard]] std::string DescribeOpenBoxes(DWORD process);

}  // namespace tessera::e2e
