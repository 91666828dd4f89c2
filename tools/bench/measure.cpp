#include "measure.h"

#define SQLITE_HAS_CODEC 1
#include <sqlite3.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "pages/survey_pages.h"
#include "shell/register_shell.h"
#include "store/dialect.h"

namespace survey::bench {
namespace {

double Seconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

int ReadRow(void*, int columns, char** texts, char**) {
  for (int i = 0; i < columns; ++i) {
    benchmark::DoNotOptimize(std::string(texts[i] == nullptr ? "" : texts[i]));
  }
  return 0;
}

constexpr char kBareMilliseconds[] = "bare_ms";

// Without a baseline a bound is one of our milliseconds.
class BoundReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      const double ours = 1e3 * run.real_accumulated_time / static_cast<double>(run.iterations);
      const auto bare = run.counters.find(kBareMilliseconds);
      const double bound = run.counters.at(kBound);
      const std::string name =
          run.run_name.function_name + (run.run_name.args.empty() ? "" : " " + run.run_name.args);
      if (bare == run.counters.end()) {
        report_.Amount(name, ours, "ms", bound);
      } else {
        report_.Ratio(name, ours, bare->second, "ms", bound);
      }
    }
  }
  const Report& report() const { return report_; }

 private:
  Report report_{"The store and the pages"};
};

}  // namespace

void Fail(const std::string& why) {
  std::fprintf(stderr, "%s\n", why.c_str());
  std::exit(1);
}

Program::Program() {
  RegisterShell(host);
  RegisterPages(host);
  OpenSite(199010830, 108107587);  // one of the template's
  survey.set_statement_observer({});
}

Program::~Program() {
  if (!dialogs.seen.empty()) Fail(dialogs.seen.front().prompt);
}

std::vector<std::string> Program::StatementsOf(const std::function<void()>& work) {
  std::vector<std::string> seen;
  survey.set_statement_observer(
      [&](std::string_view statement) { seen.push_back(ToEngineSql(statement)); });
  work();
  survey.set_statement_observer({});
  return seen;
}

Bare::Bare(const std::string& path) {
  static CipherKeys keys;
  Salt salt;
  std::ifstream(path, std::ios::binary).read(reinterpret_cast<char*>(salt.data()), kSaltBytes);
  const std::string& key = keys.RawKey(DatabasePassword(), salt);
  sqlite3_open_v2(path.c_str(), &database_, SQLITE_OPEN_READWRITE, nullptr);
  sqlite3_key(database_, key.data(), static_cast<int>(key.size()));
  Run("select count(*) from sqlite_master");
}

Bare::~Bare() { sqlite3_close(database_); }

void Bare::Run(const std::string& statement) {
  if (sqlite3_exec(database_, statement.c_str(), ReadRow, nullptr, nullptr) != SQLITE_OK) {
    Fail(statement + ": " + sqlite3_errmsg(database_));
  }
}

void Bare::RunAsOne(const std::vector<std::string>& statements) {
  Run("PRAGMA synchronous = EXTRA");
  Run("BEGIN");
  for (const std::string& statement : statements) Run(statement);
  Run("COMMIT");
}

void Compare(benchmark::State& state, const std::function<void()>& ours,
             const std::function<void()>& baseline, double bound) {
  double our_seconds = 0;
  double bare_seconds = 0;
  for (auto _ : state) {
    bare_seconds += Seconds(baseline);
    const double once = Seconds(ours);
    our_seconds += once;
    state.SetIterationTime(once);
  }
  state.counters[kBareMilliseconds] = 1e3 * bare_seconds / static_cast<double>(state.iterations());
  state.counters[kBound] = bound;
}

int RunMeasurements(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  BoundReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return reporter.report().ExitCode();
}

}  // namespace survey::bench
