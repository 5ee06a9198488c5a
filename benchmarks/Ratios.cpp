// The table of ratios.
#include "benchmarks/Ratios.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <iostream>
#include <limits>

namespace tessera {

RatioReporter::RatioReporter(std::vector<Ratio> ratios) : ratios_(std::move(ratios)) {}

bool RatioReporter::ReportContext(const Context& context) {
  static_cast<void>(context);
  return true;
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.error_occurred) {
      GetErrorStream() << run.benchmark_name() << ": " << run.error_message << "\n";
    } else if (run.run_type == Run::RT_Iteration) {
      const auto [time, isFirst] = times_.emplace(
          run.run_name.function_name + "/" + run.run_name.args, run.GetAdjustedCPUTime());
      if (!isFirst) time->second = std::min(time->second, run.GetAdjustedCPUTime());
    }
  }
}

void RatioReporter::Finalize() {
  std::ostream& out = GetOutputStream();
  out << std::left << std::setw(72) << "what, against which reference" << std::right << std::setw(8)
      << "ratio" << std::setw(8) << "goal\n";
  for (const Ratio& ratio : ratios_) {
    const double measured = TimeOf(ratio.Measured);
    const double reference = TimeOf(ratio.Reference);
    const double value = measured / reference / ratio.Scale;
    everyRatioKnown_ = everyRatioKnown_ && !std::isnan(value);
    // Neither of the two was asked for.
    if (std::isnan(measured) && std::isnan(reference)) continue;
    PrintRatio(out, ratio.What, value, ratio.Goal);
  }
}

/// Not a number for a benchmark that did not run, so that its row cannot meet a goal.
double RatioReporter::TimeOf(const std::string& name) const {
  const auto found = times_.find(name);
  return found == times_.end() ? std::numeric_limits<double>::quiet_NaN() : found->second;
}

}  // namespace tessera
