#ifndef TOOLS_BENCH_MEASURE_H_
#define TOOLS_BENCH_MEASURE_H_

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

#include "report.h"
#include "support/headless_program.h"

struct sqlite3;

// What all measurements share. Ours and a baseline run by turns; the ratio is what counts, the
// times depend on the machine.
namespace survey::bench {

// The counter that holds what a measurement may take.
inline constexpr char kBound[] = "bound";

[[noreturn]] void Fail(const std::string& why);

// A program on a site of its own, without anybody in front of it: a box is a fault.
struct Program : testing::HeadlessProgram {
  Program();
  ~Program() override;

  // What the engine is given while `work` runs, in its own words.
  std::vector<std::string> StatementsOf(const std::function<void()>& work);
};

// The bare engine on the same file: a connection with the raw key, no word of ours.
class Bare {
 public:
  explicit Bare(const std::string& path);
  ~Bare();
  Bare(const Bare&) = delete;
  Bare& operator=(const Bare&) = delete;

  // Fields of all rows are read as texts, as a page does.
  void Run(const std::string& statement);
  // In one transaction that survives a power cut, as a handler of ours.
  void RunAsOne(const std::vector<std::string>& statements);

 private:
  sqlite3* database_ = nullptr;
};

// Measures both by turns; a ratio over `bound` fails the run.
void Compare(benchmark::State& state, const std::function<void()>& ours,
             const std::function<void()>& baseline, double bound = kNoBound);

// Runs all that is registered and reports it. For main.
int RunMeasurements(int argc, char** argv);

}  // namespace survey::bench

#endif  // TOOLS_BENCH_MEASURE_H_
