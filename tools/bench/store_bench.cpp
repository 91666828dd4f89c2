// What our own code costs over the bare engine: a connection, every page, pages among many sites
// and many people.

#include <algorithm>
#include <memory>

#include "checks/site_checks.h"
#include "many_records.h"
#include "measure.h"
#include "pages/survey_pages.h"
#include "shell/chosen_database.h"

namespace survey::bench {
namespace {

using testing::Figures;

// What may be, ours over the baseline's.
constexpr double kConnectionBound = 3;
constexpr double kOpenPageBound = 4;
constexpr double kSavePageBound = 2;
constexpr double kAmongManyBound = 1.3;
constexpr double kChooseDatabaseBound = 4;
constexpr double kCheckMillisecondsBound = 10;

// A site with every table filled, and so many people with all their pages.
struct FilledProgram : Program {
  explicit FilledProgram(int people) {
    Figures figures;
    testing::FillCampus(host, figures);
    AddStaff(host, people, figures);
    dialogs.seen.clear();  // the instrument has something to say about some answers
  }

  Form& Page(const std::string& name) {
    Form& page = host.Get(name);
    testing::ChooseStaffMember(page, StaffId(1));
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
      [&] { const Bare bare(program.survey.DatabasePath); }, kConnectionBound);
}
BENCHMARK(OpenConnection)->UseManualTime();

// ---- Every page --------------------------------------------------------------------------------

// From the click to the filled page, against one connection and the page's statements.
void OpenPage(benchmark::State& state, const std::string& page) {
  FilledProgram& program = OneSite();
  const auto open = [&] {
    program.Open(page);
    program.Close(page);
  };
  const std::vector<std::string> statements = program.StatementsOf(open);
  const auto bare_statements = [&] {
    Bare bare(program.survey.DatabasePath);
    for (const std::string& statement : statements) bare.Run(statement);
  };
  Compare(state, open, bare_statements, kOpenPageBound);
}

// The full page saved, against its statements in one transaction.
void SavePage(benchmark::State& state, const std::string& page) {
  FilledProgram& program = OneSite();
  program.Open(page);
  const std::vector<std::string> statements = program.StatementsOf([&] { program.Save(page); });
  Bare bare(program.survey.DatabasePath);
  Compare(
      state, [&] { program.Save(page); }, [&] { bare.RunAsOne(statements); }, kSavePageBound);
  program.Close(page);
}

void MeasurePages(const std::string& what, void (*measure)(benchmark::State&, const std::string&)) {
  for (const PageRow& page : SurveyPages()) {
    const std::string name(page.name);
    benchmark::RegisterBenchmark((what + " " + name).c_str(), measure, name)
        ->UseManualTime()
        ->MinTime(0.2);
  }
}

// ---- Many sites, many people -------------------------------------------------------------------

void OpenAndSaveAll(FilledProgram& program, Section section) {
  for (const PageRow& page : SurveyPages()) {
    if (page.section != section) continue;
    const std::string name(page.name);
    program.Open(name);
    program.Save(name);
    program.Close(name);
  }
}

// All pages of a campus opened and saved among so many filled sites, against one alone.
void AmongSites(benchmark::State& state) {
  FilledProgram many(1);
  FilledProgram alone(1);
  AddSites(many.host, static_cast<int>(state.range(0)) - 1);
  Compare(
      state, [&] { OpenAndSaveAll(many, Section::kCampus); },
      [&] { OpenAndSaveAll(alone, Section::kCampus); }, kAmongManyBound);
}
BENCHMARK(AmongSites)->Arg(1)->Arg(30)->Arg(300)->UseManualTime();

// What is in a site's survey, of one site with 100 people among so many.
void CheckOfASite(benchmark::State& state) {
  constexpr int kPeople = 100;
  FilledProgram program(kPeople);
  AddSites(program.host, static_cast<int>(state.range(0)) - 1);
  const auto connection = program.survey.OpenAside();
  for (auto _ : state) {
    benchmark::DoNotOptimize(CheckSite(*connection, program.survey.CollegeEmisNumber,
                                       program.survey.CampusEmisNumber, 2012));
  }
  state.counters[kBound] = kCheckMillisecondsBound;
}
BENCHMARK(CheckOfASite)->Arg(1)->Arg(300);

// What is done when a database of so many filled sites is chosen: all its pages read, and compared
// with the last copy. Against the bare engine that reads each table once.
void ChooseDatabase(benchmark::State& state) {
  FilledProgram program(1);
  AddSites(program.host, static_cast<int>(state.range(0)) - 1);
  const DataFolder data(program.folder.path());
  data.MakeSure();
  const auto choose = [&] { CareForChosenDatabase(program.host, data); };
  choose();  // makes the copy
  std::vector<std::string> tables;
  for (const std::string& table : program.Query("select name as r from sqlite_master where type = "
                                                "'table' and name not like 'sqlite%'")) {
    tables.push_back("select count(*) from " + table + " not indexed");
  }
  Compare(
      state, choose,
      [&] {
        Bare bare(program.survey.DatabasePath);
        for (const std::string& table : tables) bare.Run(table);
      },
      kChooseDatabaseBound);
}
BENCHMARK(ChooseDatabase)->Arg(1)->Arg(300)->UseManualTime();

// All pages of a person opened and saved among so many people, against among ten.
void AmongPeople(benchmark::State& state) {
  FilledProgram many(static_cast<int>(state.range(0)));
  Compare(
      state, [&] { OpenAndSaveAll(many, Section::kStaffMember); },
      [&] { OpenAndSaveAll(OneSite(), Section::kStaffMember); }, kAmongManyBound);
}
BENCHMARK(AmongPeople)->Arg(10)->Arg(100)->Arg(1000)->UseManualTime();

}  // namespace
}  // namespace survey::bench

int main(int argc, char** argv) {
  survey::bench::MeasurePages("OpenPage", survey::bench::OpenPage);
  survey::bench::MeasurePages("SavePage", survey::bench::SavePage);
  return survey::bench::RunMeasurements(argc, argv);
}
