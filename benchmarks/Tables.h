// The rows that each file of benchmarks adds to the table of ratios.
#pragma once

#include <vector>

#include "benchmarks/Ratios.h"

namespace tessera {

inline constexpr int FewCommands = 600;  ///< as many as Total Commander has
inline constexpr int ManyCommands = 100'000;

inline void ForSizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(FewCommands)->Arg(ManyCommands);
}

[[nodiscard]] std::vector<Ratio> EditorRatios();
[[nodiscard]] std::vector<Ratio> OpeningRatios();
[[nodiscard]] std::vector<Ratio> IniRatios();
[[nodiscard]] std::vector<Ratio> PageRatios();

}  // namespace tessera
