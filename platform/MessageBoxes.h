// Standard message boxes under the program's title, and the beep.
#pragma once

#include <string>

namespace tessera {

/// The title of every box, and of the main window.
inline constexpr wchar_t ProgramTitle[] = L"Tessera";

enum class BoxButtons { Ok, YesNo, YesNoCancel, RetryCancel };
enum class BoxIcon { Critical, Question, Exclamation, Information };
enum class BoxDefault { First, Second };
enum class BoxAnswer { Ok = 1, Cancel = 2, Retry = 4, Yes = 6, No = 7 };

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;

  /// Shows a box and waits for its answer. A line break in `text` is one line feed.
  virtual BoxAnswer Show(const std::wstring& text, BoxButtons buttons, BoxIcon icon,
                         BoxDefault defaultButton = BoxDefault::First) = 0;

  virtual void Beep() = 0;
};

}  // namespace tessera
