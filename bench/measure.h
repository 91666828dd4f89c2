#ifndef BENCH_MEASURE_H_
#define BENCH_MEASURE_H_

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

#include "world.h"

struct sqlite3;

// What all measurements share. Ours and a baseline run by turns; the ratio is what counts, the
// times depend on the machine.
namespace survey::bench {

[[noreturn]] void Fail(const std::string& why);

// A program on a site of its own, without anybody in front of it: a box is a fault.
struct Program : testing::World {
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

// Measures both by turns. Gives "ratio", ours over the baseline's, and "bare_us", the baseline's
// microseconds.
void Compare(benchmark::State& state, const std::function<void()>& ours,
             const std::function<void()>& baseline);

}  // namespace survey::bench

#endif  // BENCH_MEASURE_H_
