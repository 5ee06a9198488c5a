// Closing Total Commander before a save, and starting it again afterwards.
#pragma once

#include <string>
#include <string_view>

#include "platform/Clock.h"
#include "platform/Environment.h"
#include "platform/Files.h"
#include "platform/Programs.h"

namespace tessera {

/// Total Commander's main window; 0 when it is not running.
[[nodiscard]] WindowId FindTotalCommander(const Programs& programs);

/// Waits half a second, at midnight too, while window events are handled.
void Pause(Clock& clock);

struct RestartRequest {
  std::wstring WincmdPath;
  bool CloseIt = false;  ///< true: ask it to close; false: start it
  bool WithIni = true;   ///< start it with `ArgPrefix` and the quoted path
  std::wstring ArgPrefix = L" /i=";
};

enum class RestartResult {
  Done,
  NotAllowed,  ///< to ask it to close: it stays, and another one must not be started
  NotStarted   ///< its program is not there, or cannot be started
};

/// Closes or starts Total Commander. The program that is started is "Totalcmd.exe" in the folder
/// that Commander_Path names ("\" when it is not set, deliberately), or "Totalcmd64.exe" there when
/// only that one exists. Until Total Commander has answered the
/// request to close, which may take it a question to its user, events are handled, for ten minutes
/// at most.
[[nodiscard]] RestartResult RestartTotalCommander(Programs& programs, Clock& clock,
                                                  const Files& files,
                                                  const Environment& environment,
                                                  const RestartRequest& request);

/// The program of Total Commander's main window; empty when it is not running, or when the program
/// has another name than Total Commander's.
[[nodiscard]] std::wstring RunningTotalCommander(const Programs& programs);

/// Starts that program with the arguments of the request; false when that fails.
bool StartTotalCommander(Programs& programs, const std::wstring& executable,
                         const RestartRequest& request);

}  // namespace tessera
