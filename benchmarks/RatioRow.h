// One row of the table that the benchmarks print.
#pragma once

#include <iosfwd>
#include <limits>
#include <string>

namespace tessera {

inline constexpr double NoGoal = std::numeric_limits<double>::infinity();

/// Prints a row, with "MISSED" behind a ratio that is above its goal.
void PrintRatio(std::ostream& out, const std::string& what, double ratio, double goal);

}  // namespace tessera
