// The standard error of a program that has windows, and may have no console.
#pragma once

#include <string>

namespace tessera {

/// Writes a line where whoever started this program has said, in UTF-8 unless that is a console;
/// else to the console that it was started from, else nowhere.
void WriteErrorLine(const std::wstring& line);

}  // namespace tessera
