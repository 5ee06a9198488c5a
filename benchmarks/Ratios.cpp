// The times of benchmarks by their names.
#include "benchmarks/Ratios.h"

#include <algorithm>
#include <limits>
#include <ostream>

namespace tessera {

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

double RatioReporter::TimeOf(const std::string& name) const {
  const auto found = times_.find(name);
  return found == times_.end() ? std::numeric_limits<double>::quiet_NaN() : found->second;
}

}  // namespace tessera
