// Measures each ratio in a process of its own: on a heap that other benchmarks have left in pieces,
// some take up to ten times as long.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <regex>

#include "benchmarks/portable/OwnProcess.h"
#include "benchmarks/Ratios.h"
#include "benchmarks/Tables.h"

namespace tessera {
namespace {

std::vector<Ratio> AllRatios() {
  std::vector<Ratio> all;
  for (const auto& rows : {IniRatios(), OpeningRatios(), EditorRatios(), PageRatios()}) {
    all.insert(all.end(), rows.begin(), rows.end());
  }
  return all;
}

/// Prints the ratio; false when one of its benchmarks gave no time.
bool Measure(const Ratio& ratio) {
  RatioReporter reporter;
  const std::string both = "^(" + ratio.Measured + "|" + ratio.Reference + ")$";
  benchmark::RunSpecifiedBenchmarks(&reporter, both);
  const double value =
      reporter.TimeOf(ratio.Measured) / reporter.TimeOf(ratio.Reference) / ratio.Scale;
  PrintRatio(std::cout, ratio.What, value, ratio.Goal);
  std::cout.flush();
  return value > 0;
}

}  // namespace
}  // namespace tessera

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const std::regex wanted(benchmark::GetBenchmarkFilter());
  std::cout << std::left << std::setw(72) << "what, against which reference" << std::right
            << std::setw(8) << "ratio" << std::setw(7) << "goal" << std::endl;
  bool allMeasured = true;
  for (const tessera::Ratio& ratio : tessera::AllRatios()) {
    if (!std::regex_search(ratio.Measured, wanted)) continue;
    allMeasured = tessera::RunInOwnProcess([&] { return tessera::Measure(ratio); }) && allMeasured;
  }
  return allMeasured ? EXIT_SUCCESS : EXIT_FAILURE;
}
