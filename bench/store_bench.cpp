// What our own code costs over the bare engine: a connection, every page, pages among many sites
// and many people.

#include <algorithm>
#include <memory>

#include "filled_survey.h"
#include "measure.h"
#include "shell/chosen_database.h"

namespace survey::bench {
namespace {

using testing::Figures;
using testing::kCampusPages;
using testing::kStaffPages;

constexpr char kStaffId[] = "7001010001";  // the first that AddStaff adds

// A site with every table filled, and so many people with all their pages.
struct FilledProgram : Program {
  explicit FilledProgram(int people) {
    Figures figures;
    testing::FillCampus(host, figures);
    testing::AddStaff(host, people, figures);
    dialogs.seen.clear();  // the instrument has something to say about some answers
  }

  Form& Page(const std::string& name) {
    Form& page = host.Get(name);
    testing::ChooseStaffMember(page, kStaffId);
    return page;
  }
  void Open(const std::string& name) {
    Page(name);
    host.Start(name);
  }
  void Close(const std::string& name) { host.Unload(host.Get(name)); }
  void Save(const std::string& name) { Page(name).Find<Button>("cmdSave").Click(); }
};

FilledProgram& OneSite() {
  static FilledProgram program(10);
  return program;
}

void OpenConnection(benchmark::State& state) {
  Program program;
  program.survey.OpenDatabaseConnection();  // derives the key
  Compare(
      state, [&] { program.survey.OpenDatabaseConnection(); },
      [&] { const Bare bare(program.survey.DatabasePath); });
}
BENCHMARK(OpenConnection)->UseManualTime()->Unit(benchmark::kMicrosecond);

// ---- Every page --------------------------------------------------------------------------------

// From the click to the filled page, against one connection and the page's statements.
void OpenPage(benchmark::State& state, const char* page) {
  FilledProgram& program = OneSite();
  const auto open = [&] {
    program.Open(page);
    program.Close(page);
  };
  const std::vector<std::string> statements = program.StatementsOf(open);
  Compare(state, open, [&] {
    Bare bare(program.survey.DatabasePath);
    for (const std::string& statement : statements) bare.Run(statement);
  });
  state.counters["statements"] = static_cast<double>(statements.size());
}

// The full page saved, against its statements in one transaction.
void SavePage(benchmark::State& state, const char* page) {
  FilledProgram& program = OneSite();
  program.Open(page);
  const std::vector<std::string> statements = program.StatementsOf([&] { program.Save(page); });
  Bare bare(program.survey.DatabasePath);
  Compare(
      state, [&] { program.Save(page); }, [&] { bare.RunAsOne(statements); });
  state.counters["statements"] = static_cast<double>(statements.size());
  program.Close(page);
}

void MeasurePages(const std::string& what, void (*measure)(benchmark::State&, const char*)) {
  const auto add = [&](const char* page) {
    benchmark::RegisterBenchmark((what + "/" + page).c_str(), measure, page)
        ->UseManualTime()
        ->MinTime(0.2)
        ->Unit(benchmark::kMicrosecond);
  };
  for (const char* page : kCampusPages) add(page);
  for (const char* page : kStaffPages) add(page);
}

// ---- Many sites, many people -------------------------------------------------------------------

template <std::size_t kPages>
void OpenAndSaveAll(FilledProgram& program, const char* const (&pages)[kPages]) {
  for (const char* page : pages) {
    program.Open(page);
    program.Save(page);
    program.Close(page);
  }
}

// All pages of a campus opened and saved among so many filled sites, against one alone.
void AmongSites(benchmark::State& state) {
  FilledProgram many(1);
  FilledProgram alone(1);
  testing::AddSites(many.host, static_cast<int>(state.range(0)) - 1);
  Compare(
      state, [&] { OpenAndSaveAll(many, kCampusPages); },
      [&] { OpenAndSaveAll(alone, kCampusPages); });
}
BENCHMARK(AmongSites)->Arg(1)->Arg(30)->Arg(300)->UseManualTime()->Unit(benchmark::kMillisecond);

// What is done when a database of so many filled sites is chosen: all its pages read, and compared
// with the last copy. Against the bare engine that reads each table once.
void ChooseDatabase(benchmark::State& state) {
  FilledProgram program(1);
  testing::AddSites(program.host, static_cast<int>(state.range(0)) - 1);
  const DataFolder data(program.folder.path());
  data.MakeSure();
  const auto choose = [&] { CareForChosenDatabase(program.host, data); };
  choose();  // makes the copy
  std::vector<std::string> tables;
  for (const std::string& table : program.Query("select name as r from sqlite_master where type = "
                                                "'table' and name not like 'sqlite%'")) {
    tables.push_back("select count(*) from " + table + " not indexed");
  }
  Compare(state, choose, [&] {
    Bare bare(program.survey.DatabasePath);
    for (const std::string& table : tables) bare.Run(table);
  });
  state.counters["MB"] =
      static_cast<double>(std::filesystem::file_size(program.survey.DatabasePath)) / 1e6;
}
BENCHMARK(ChooseDatabase)->Arg(1)->Arg(300)->UseManualTime()->Unit(benchmark::kMillisecond);

// All pages of a person opened and saved among so many people, against among ten.
void AmongPeople(benchmark::State& state) {
  FilledProgram many(static_cast<int>(state.range(0)));
  Compare(
      state, [&] { OpenAndSaveAll(many, kStaffPages); },
      [&] { OpenAndSaveAll(OneSite(), kStaffPages); });
}
BENCHMARK(AmongPeople)
    ->Arg(10)
    ->Arg(100)
    ->Arg(1000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace survey::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  survey::bench::MeasurePages("OpenPage", survey::bench::OpenPage);
  survey::bench::MeasurePages("SavePage", survey::bench::SavePage);
  benchmark::RunSpecifiedBenchmarks();
}
