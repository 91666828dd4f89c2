#include "report.h"

#include <cstdio>

namespace survey::bench {

Report::Report(const char* title) {
  std::printf("\n%-34s%12s%12s%8s%8s\n", title, "ours", "baseline", "ratio", "bound");
}

void Report::Ratio(const std::string& name, double ours, double baseline, const char* unit,
                   double bound) {
  const double ratio = ours / baseline;
  std::printf("%-34s%8.2f %-3s%8.2f %-3s%8.2f", name.c_str(), ours, unit, baseline, unit, ratio);
  EndLine(ratio, bound);
}

void Report::Amount(const std::string& name, double ours, const char* unit, double bound) {
  std::printf("%-34s%8.2f %-3s%20s", name.c_str(), ours, unit, "");
  EndLine(ours, bound);
}

void Report::EndLine(double measured, double bound) {
  const bool passed = measured > bound;
  passed_ = passed_ || passed;
  if (bound == kNoBound) {
    std::printf("\n");
  } else {
    std::printf("%8g%s\n", bound, passed ? "  PASSED" : "");
  }
  std::fflush(stdout);
}

}  // namespace survey::bench
