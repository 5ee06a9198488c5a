// Results as ratios of the times of two benchmarks.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

#include "benchmarks/RatioRow.h"

namespace tessera {

struct Ratio {
  std::string What;
  std::string Measured;   ///< the name of a benchmark
  std::string Reference;  ///< the name of another one
  double Scale = 1;       ///< the ratio of their sizes, which the times are divided by
  double Goal = NoGoal;   ///< the largest ratio wanted, if any is
};

/// Gathers processor times, and prints nothing but errors. Of repetitions the quickest counts:
/// whatever else runs on the machine only ever adds time.
class RatioReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;

  /// Of the benchmark of that name; not a number for one that did not run.
  [[nodiscard]] double TimeOf(const std::string& name) const;

 private:
  std::map<std::string, double> times_;
};

}  // namespace tessera
