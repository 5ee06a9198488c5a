// Command lines: the program that one starts, and what is left for it.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace tessera {

struct ProgramCall {
  std::wstring Program;    ///< without quotes
  std::wstring Arguments;  ///< with the blank before them
};

/// The program is what stands in the quotes at the begin. Without these it is the text before the
/// first blank, or before a later one, that `isFile` is true for; nothing when there is none, for
/// the system would take any of these parts for the program.
[[nodiscard]] std::optional<ProgramCall> SplitCommandLine(
    const std::wstring& commandLine, const std::function<bool(const std::wstring&)>& isFile);

/// The folder of a program, with its backslash; empty when the path names none.
[[nodiscard]] std::wstring FolderOfProgram(const std::wstring& program);

}  // namespace tessera
