// The main window learns of a failure from those who have no reference to it.
#pragma once

namespace tessera {

/// The class of the main window.
inline constexpr wchar_t MainWindowClass[] = L"frmMain";

/// Lets the main window of this thread do at once what it does after an exception that a window
/// procedure caught; false when there is none.
[[nodiscard]] bool TellFailure();

}  // namespace tessera
