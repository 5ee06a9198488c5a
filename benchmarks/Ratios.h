// Results as ratios: each row of the table compares two benchmarks of the same run.
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

/// Prints a table of ratios of processor times. Of repetitions the quickest counts: whatever else
/// runs on the machine only ever adds time.
class RatioReporter : public benchmark::BenchmarkReporter {
 public:
  explicit RatioReporter(std::vector<Ratio> ratios);

  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

  /// False when a benchmark that a ratio needs gave no time.
  [[nodiscard]] bool EveryRatioKnown() const { return everyRatioKnown_; }

 private:
  [[nodiscard]] double TimeOf(const std::string& name) const;

  std::vector<Ratio> ratios_;
  std::map<std::string, double> times_;
  bool everyRatioKnown_ = true;
};

}  // namespace tessera
