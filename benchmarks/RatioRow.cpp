// The layout of a row.
#include "benchmarks/RatioRow.h"

#include <cmath>
#include <iomanip>
#include <ostream>

namespace tessera {

void PrintRatio(std::ostream& out, const std::string& what, double ratio, double goal) {
  out << std::left << std::setw(72) << what << std::right << std::fixed << std::setprecision(2)
      << std::setw(8) << ratio << std::setw(7);
  if (std::isinf(goal)) {
    out << "-\n";
  } else {
    out << goal << (ratio <= goal ? "\n" : "  MISSED\n");
  }
}

}  // namespace tessera
