#ifndef TOOLS_BENCH_REPORT_H_
#define TOOLS_BENCH_REPORT_H_

#include <limits>
#include <string>

namespace survey::bench {

inline constexpr double kNoBound = std::numeric_limits<double>::infinity();

// One line for each measurement, with the bound that it must keep.
class Report {
 public:
  explicit Report(const char* title);

  // What we take, what a bare baseline takes in the same run, and the ratio, which counts.
  void Ratio(const std::string& name, double ours, double baseline, const char* unit,
             double bound = kNoBound);
  // Where there is nothing to compare with.
  void Amount(const std::string& name, double ours, const char* unit, double bound = kNoBound);

  // For main: 1 where a bound is passed.
  int ExitCode() const { return passed_ ? 1 : 0; }

 private:
  void EndLine(double measured, double bound);

  bool passed_ = false;
};

}  // namespace survey::bench

#endif  // TOOLS_BENCH_REPORT_H_
