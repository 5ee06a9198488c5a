// Starts the real program and the smallest one by turns, and prints how their times and memory
// compare, and how large it is. Usage: start_benchmark PROGRAM SMALLEST COMMANDER, where COMMANDER
// is the folder of a "Wincmd.ini" and a "Totalcmd.inc".
#include <windows.h>
#include <commctrl.h>
#include <psapi.h>

#include <algorithm>
#include <chrono>
#include <exception>
#include <filesystem>
#include <iostream>
#include <limits>

#include "benchmarks/RatioRow.h"
#include "tests/support/win32/Program.h"

namespace tessera {
namespace {

struct Start {
  double Seconds = std::numeric_limits<double>::infinity();
  double PrivateBytes = std::numeric_limits<double>::infinity();
};

/// The number of rows once the program answers; -1 before.
int RowsOf(const e2e::Program& program) {
  const std::vector<HWND> windows = e2e::VisibleWindows(program.Id(), L"frmMain");
  if (windows.empty()) return -1;
  const HWND list = FindWindowExW(windows.front(), nullptr, WC_LISTVIEWW, nullptr);
  // Does not return before the list's own thread looks for messages.
  return list == nullptr ? -1 : static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
}

/// What the process alone has in memory: its commit charge; under Wine its resident anonymous
/// memory.
double PrivateBytesOf(const e2e::Program& program) {
  PROCESS_MEMORY_COUNTERS counters{};
  GetProcessMemoryInfo(program.Process(), &counters, sizeof counters);
  return static_cast<double>(counters.PagefileUsage);
}

Start StartOnce(const std::wstring& executable, const std::wstring& commander, int rows) {
  constexpr int Limit = 30;  // seconds
  const auto begin = std::chrono::steady_clock::now();
  const auto elapsed = [&] {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
  };
  const e2e::Program program(executable, commander, L'"' + commander + L"\\Wincmd.ini\"");
  // Once nothing is left to be painted, the rows are on the screen. To look for them before that
  // would take the processor away from the start.
  if (WaitForInputIdle(program.Process(), Limit * 1000) != 0) {
    throw std::runtime_error("the program did not come to rest");
  }
  while (RowsOf(program) < rows) {
    if (!program.Running() || elapsed() > Limit) throw std::runtime_error("no list was filled");
    Sleep(1);
  }
  const Start start{elapsed(), PrivateBytesOf(program)};
  PostMessageW(program.WaitForWindow(), WM_CLOSE, 0, 0);
  static_cast<void>(program.WaitForEnd());
  return start;
}

/// Of repeated starts the least counts: whatever else runs on the machine only ever adds.
void KeepLeast(Start& least, const Start& start) {
  least.Seconds = std::min(least.Seconds, start.Seconds);
  least.PrivateBytes = std::min(least.PrivateBytes, start.PrivateBytes);
}

}  // namespace
}  // namespace tessera

int wmain(int argc, wchar_t** argv) {
  using namespace tessera;
  constexpr int Rounds = 25;
  constexpr int Rows = 600;  // the demonstration has some more
  constexpr double LargestSize = 1.5e6;
  if (argc != 4) return 2;
  try {
    Start program;
    Start smallest;
    for (int round = 0; round < Rounds; ++round) {
      KeepLeast(smallest, StartOnce(argv[2], argv[3], 0));
      KeepLeast(program, StartOnce(argv[1], argv[3], Rows));
    }
    PrintRatio(std::cout, "start to the filled list, against the smallest program like it",
               program.Seconds / smallest.Seconds, 1.3);
    PrintRatio(std::cout, "private memory with 600 rows, against the same program",
               program.PrivateBytes / smallest.PrivateBytes, 1.5);
    PrintRatio(std::cout, "size of the program, against 1.5 MB",
               static_cast<double>(std::filesystem::file_size(argv[1])) / LargestSize, 1);
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
  return 0;
}
