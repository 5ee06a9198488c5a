// Where the program ends in a command line.
#include "platform/CommandLine.h"

#include <algorithm>

namespace tessera {

std::optional<ProgramCall> SplitCommandLine(
    const std::wstring& commandLine, const std::function<bool(const std::wstring&)>& isFile) {
  if (commandLine.starts_with(L'"')) {
    const std::size_t end = commandLine.find(L'"', 1);
    if (end == std::wstring::npos) return std::nullopt;
    return ProgramCall{commandLine.substr(1, end - 1), commandLine.substr(end + 1)};
  }
  std::size_t end = 0;
  while (end < commandLine.size()) {
    end = std::min(commandLine.find(L' ', end + 1), commandLine.size());
    const std::wstring candidate = commandLine.substr(0, end);
    if (isFile(candidate)) return ProgramCall{candidate, commandLine.substr(end)};
  }
  return std::nullopt;
}

std::wstring FolderOfProgram(const std::wstring& program) {
  return program.substr(0, program.rfind(L'\\') + 1);
}

}  // namespace tessera
