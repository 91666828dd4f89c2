// The department's command: reads the databases that the colleges hand in.

#include <unistd.h>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <string_view>

#include "collect/collect.h"

namespace {

constexpr int kAllRead = 0;
constexpr int kSomeNotRead = 1;
constexpr int kFailed = 2;  // nothing was gathered, or the command was not understood

constexpr char kUsage[] = R"(usage: survey-collect check FILE...
       survey-collect gather --out FOLDER FILE...

check   tells what is in each database: its sites, which tables hold answers, totals that do not
        balance, compulsory answers that are missing, incomplete staff records
gather  writes what all hold into a new folder: TABLE.csv for each table of the store, for sites,
        problems and codes, and survey.sqlite, a database of the same without a password

The files are only read. Ends with 0; with 1 where a file could not be read; with 2 where nothing
could be done.
)";

int Usage() {
  std::cerr << kUsage;
  return kFailed;
}

// On a terminal alone: in a log it would be noise.
survey::Run RunOf(int argc, char** argv, int first) {
  survey::Run run;
  run.paths.assign(argv + first, argv + argc);
  if (isatty(STDERR_FILENO) != 0) {
    run.progress = [](std::size_t done, std::size_t all) {
      std::cerr << '\r' << done << " of " << all << " files" << (done == all ? "\n" : "")
                << std::flush;
    };
  }
  return run;
}

int Finish(const survey::Counts& counts) {
  std::cout << survey::SummaryOf(counts) << std::flush;
  if (!std::cout) throw std::runtime_error("the report cannot be written");
  return counts.not_read > 0 ? kSomeNotRead : kAllRead;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view command = argc > 1 ? argv[1] : "";
  if (command == "--help" && argc == 2) {
    std::cout << kUsage;
    return kAllRead;
  }
  try {
    if (command == "check" && argc > 2) {
      return Finish(survey::CheckFiles(RunOf(argc, argv, 2), std::cout));
    }
    constexpr int kFirstFile = 4;
    if (command == "gather" && argc > kFirstFile && std::string_view(argv[2]) == "--out") {
      return Finish(survey::GatherFiles(RunOf(argc, argv, kFirstFile), argv[3], std::cout));
    }
  } catch (const std::exception& failure) {
    std::cerr << "survey-collect: " << failure.what() << "\n";
    return kFailed;
  }
  return Usage();
}
