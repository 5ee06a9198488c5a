// Runs the benchmarks and prints their ratios.
#include <benchmark/benchmark.h>

#include "benchmarks/Ratios.h"
#include "benchmarks/Tables.h"

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  std::vector<tessera::Ratio> ratios;
  for (const auto& rows : {tessera::IniRatios(), tessera::OpeningRatios(), tessera::EditorRatios(),
                           tessera::PageRatios()}) {
    ratios.insert(ratios.end(), rows.begin(), rows.end());
  }
  tessera::RatioReporter reporter(std::move(ratios));
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return reporter.EveryRatioKnown() ? 0 : 1;
}
