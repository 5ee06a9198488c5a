// Reaching Total Commander by its window, and starting it by the environment's word.
#include "settings/commander/RestartTotalCommander.h"

#include "settings/Paths.h"
#include "text/Text.h"

namespace tessera {
namespace {

constexpr const wchar_t* UsualProgram = L"Totalcmd.exe";
constexpr const wchar_t* Program64Bit = L"Totalcmd64.exe";

constexpr float PauseLength = 0.5F;               // seconds
constexpr std::uint64_t PauseMilliseconds = 500;  // the same
constexpr int PauseStep = 5;  // milliseconds; keeps the pause from taking a whole processor

// Milliseconds. A program that is closing may be asking its user something meanwhile.
constexpr std::uint64_t LongestWaitForAnswer = 600000;

std::wstring ExecutablePath(const Files& files, const Environment& environment) {
  // Deliberate: an unset variable gives "\", so no other place is ever looked at.
  const std::wstring directory = AddBackslash(environment.Variable(L"Commander_Path"));
  const std::wstring folder = AddBackslash(ExpandPath(environment, directory));
  const std::wstring usual = folder + UsualProgram;
  const std::wstring only64Bit = folder + Program64Bit;
  const bool use64Bit = !FileExists(files, usual, false) && FileExists(files, only64Bit, false);
  return use64Bit ? only64Bit : usual;
}

/// Events are handled meanwhile: a window that does not is taken for one that hangs.
void WaitForAnswer(const Programs& programs, Clock& clock) {
  const std::uint64_t end = clock.Milliseconds() + LongestWaitForAnswer;
  while (programs.AwaitsAnswer() && clock.Milliseconds() < end) {
    clock.DoEvents();
    clock.Sleep(PauseStep);
  }
}

}  // namespace

WindowId FindTotalCommander(const Programs& programs) {
  return programs.FindWindowOfClass(L"TTOTAL_CMD");
}

void Pause(Clock& clock) {
  const float target = clock.SecondsSinceMidnight() + PauseLength;
  const std::uint64_t end = clock.Milliseconds() + PauseMilliseconds;
  if (target <= 0.0F) return;
  for (;;) {
    const float now = clock.SecondsSinceMidnight();
    clock.DoEvents();
    // The time of day never gets there when it begins anew at midnight or is set back.
    if (now >= target || clock.Milliseconds() >= end) return;
    clock.Sleep(PauseStep);
  }
}

RestartResult RestartTotalCommander(Programs& programs, Clock& clock, const Files& files,
                                    const Environment& environment, const RestartRequest& request) {
  const std::wstring executable = ExecutablePath(files, environment);
  const WindowId window = FindTotalCommander(programs);
  bool allowed = true;
  if (window != 0) {
    programs.SetForeground(window);
    if (request.CloseIt) {
      allowed = programs.SendClose(window);
      WaitForAnswer(programs, clock);
    }
  }
  Pause(clock);
  if (!allowed) return RestartResult::NotAllowed;
  if (request.CloseIt) return RestartResult::Done;
  const bool started = StartTotalCommander(programs, executable, request);
  return started ? RestartResult::Done : RestartResult::NotStarted;
}

std::wstring RunningTotalCommander(const Programs& programs) {
  const std::wstring path = programs.PathOf(FindTotalCommander(programs));
  const std::wstring_view name = std::wstring_view(path).substr(path.rfind(L'\\') + 1);
  const bool isKnown =
      EqualIgnoringCase(name, UsualProgram) || EqualIgnoringCase(name, Program64Bit);
  return isKnown ? path : L"";
}

bool StartTotalCommander(Programs& programs, const std::wstring& executable,
                         const RestartRequest& request) {
  const std::wstring arguments = request.ArgPrefix + L'"' + request.WincmdPath + L'"';
  return programs.Start(request.WithIni ? executable + arguments : executable);
}

}  // namespace tessera
