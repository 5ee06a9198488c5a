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

/// Closes or starts Total Commander. The program that is started is "Totalcmd.exe" in the folder
/// that Commander_Path names ("\" when it is not set, deliberately), or "Totalcmd64.exe" there when
/// only that one exists. A start that fails is ignored. Until Total Commander has answered the
/// request to close, which may take it a question to its user, events are handled, for ten minutes
/// at most. False when it may not be asked: it stays, and another one must not be started.
[[nodiscard]] bool RestartTotalCommander(Programs& programs, Clock& clock, const Files& files,
                                         const Environment& environment,
                                         const RestartRequest& request);

}  // namespace tessera
