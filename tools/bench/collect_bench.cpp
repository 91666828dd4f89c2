// What the department's reading of returned files costs over the bare engine, which reads every
// record of the same files, as many at a time.

#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <sstream>
#include <thread>

#include "collect/collect.h"
#include "collect/in_order.h"
#include "many_records.h"
#include "measure.h"
#include "report.h"
#include "template/store_tables.h"

namespace survey::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kFiles = 500;
constexpr int kPeople = 100;  // in each
constexpr unsigned kAtATime = 2;

// What may be: ours over the baseline's, milliseconds for a file, the memory of all files over that
// of a tenth of them.
constexpr double kCheckBound = 3;
constexpr double kGatherBound = 5;
constexpr double kMillisecondsBound = 50;
constexpr double kMemoryBound = 1.3;

double Milliseconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

double MostMebibytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

// Links to one file: each is opened, deciphered and read for itself.
std::vector<std::string> ReturnedFiles(const fs::path& folder) {
  Program program;
  testing::Figures figures;
  testing::FillCampus(program.host, figures);
  AddStaff(program.host, kPeople, figures);
  program.dialogs.seen.clear();
  program.survey.CloseDatabaseConnection();
  const fs::path filled = folder / "0.mdb";
  fs::copy_file(program.survey.DatabasePath, filled);
  std::vector<std::string> paths = {filled.string()};
  for (int i = 1; i < kFiles; ++i) {
    paths.push_back((folder / (std::to_string(i) + ".mdb")).string());
    fs::create_hard_link(filled, paths.back());
  }
  return paths;
}

void ReadBare(const std::vector<std::string>& paths) {
  std::vector<std::string> queries;
  for (const StoreTable& table : StoreTables()) queries.push_back("select * from " + table.name);
  const Bare derives_the_key(paths.front());
  const auto read = [&](std::size_t file) {
    Bare bare(paths[file]);
    for (const std::string& query : queries) bare.Run(query);
    return file;
  };
  DoInOrder(
      paths.size(), kAtATime, [&] { return read; }, [](std::size_t) {});
}

int Run() {
  const testing::TemporaryFolder folder;
  const std::vector<std::string> paths = ReturnedFiles(folder.path());
  const std::vector<std::string> tenth(paths.begin(), paths.begin() + kFiles / 10);
  std::ostringstream told;
  const auto gather = [&](const std::vector<std::string>& files, const char* name) {
    GatherFiles({files, kAtATime}, folder.path() / name, told);
  };

  Report report("500 returned files, a file");
  gather(tenth, "tenth");
  const double memory_of_tenth = MostMebibytes();
  const double gathering = Milliseconds([&] { gather(paths, "all"); }) / kFiles;
  const double memory_of_all = MostMebibytes();
  const double bare = Milliseconds([&] { ReadBare(paths); }) / kFiles;
  const double checking = Milliseconds([&] { CheckFiles({paths, kAtATime}, told); }) / kFiles;
  report.Ratio("survey-collect check", checking, bare, "ms", kCheckBound);
  report.Ratio("survey-collect gather", gathering, bare, "ms", kGatherBound);
  report.Amount("survey-collect gather", gathering, "ms", kMillisecondsBound);
  report.Ratio("memory, of 500 to of 50", memory_of_all, memory_of_tenth, "MiB", kMemoryBound);
  return report.ExitCode();
}

}  // namespace
}  // namespace survey::bench

int main() {
  try {
    return survey::bench::Run();
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "collect-bench: %s\n", failure.what());
    return 1;
  }
}
