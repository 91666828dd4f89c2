// What our own code costs over the bare engine, measured by turns in one run: the ratio is what
// counts, the times depend on the machine.

#ifndef SQLITE_HAS_CODEC
#define SQLITE_HAS_CODEC
#endif
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>

#include "pages/register_pages.h"
#include "store/dialect.h"
#include "world.h"

namespace survey::bench {
namespace {

[[noreturn]] void Fail(const std::string& why) {
  std::fprintf(stderr, "%s\n", why.c_str());
  std::exit(1);
}

using testing::World;

// A program on a site of its own, without anybody in front of it: a box is a fault.
struct Program : World {
  Program() {
    RegisterPages(forms);
    OpenSite(101, 202);
    survey.set_statement_observer({});
  }
  ~Program() override {
    if (!dialogs.seen.empty()) Fail(dialogs.seen.front().prompt);
  }
};

// The bare engine on the same file: a connection with the raw key, no word of ours.
class Bare {
 public:
  explicit Bare(const std::string& path) {
    static CipherKeys keys;
    Salt salt;
    std::ifstream(path, std::ios::binary).read(reinterpret_cast<char*>(salt.data()), kSaltBytes);
    const std::string& key = keys.RawKey(DatabasePassword(), salt);
    sqlite3_open_v2(path.c_str(), &database_, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_key(database_, key.data(), static_cast<int>(key.size()));
    Run("select count(*) from sqlite_master");
  }
  ~Bare() { sqlite3_close(database_); }
  Bare(const Bare&) = delete;
  Bare& operator=(const Bare&) = delete;

  void Run(const std::string& sql, int (*take_row)(void*, int, char**, char**) = nullptr,
           void* taker = nullptr) {
    if (sqlite3_exec(database_, sql.c_str(), take_row, taker, nullptr) != SQLITE_OK) {
      Fail(sql + ": " + sqlite3_errmsg(database_));
    }
  }

 private:
  sqlite3* database_ = nullptr;
};

// A figure in every open cell.
void FillOpenCells(Grid& grid) {
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    for (int column = 1; column <= grid.MaxColumns(); ++column) {
      if (grid.IsOpen(column, row)) grid.SetText(column, row, 100 + column * row);
    }
  }
}

template <typename Work>
double Seconds(const Work& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Measures both by turns and gives the ratio of ours to the bare engine's.
void Compare(benchmark::State& state, const std::function<void()>& ours,
             const std::function<void()>& bare) {
  double our_seconds = 0;
  double bare_seconds = 0;
  for (auto _ : state) {
    bare_seconds += Seconds(bare);
    const double once = Seconds(ours);
    our_seconds += once;
    state.SetIterationTime(once);
  }
  state.counters["bare_us"] = 1e6 * bare_seconds / static_cast<double>(state.iterations());
  state.counters["ratio"] = our_seconds / bare_seconds;
}

void OpenConnection(benchmark::State& state) {
  Program program;
  program.survey.OpenDatabaseConnection();  // derives the key
  Compare(
      state, [&] { program.survey.OpenDatabaseConnection(); },
      [&] { const Bare bare(program.survey.DatabasePath); });
}
BENCHMARK(OpenConnection)->UseManualTime()->Unit(benchmark::kMicrosecond);

// The statements of a full page, as the engine takes them.
std::vector<std::string> StatementsOf(Program& program, Form& page) {
  std::vector<std::string> statements;
  program.survey.set_statement_observer(
      [&](std::string_view statement) { statements.push_back(ToEngineSql(statement)); });
  page.Find<Button>("cmdSave").Click();
  program.survey.set_statement_observer({});
  return statements;
}

void SaveTable(benchmark::State& state, const char* form, const char* grid, int index) {
  Program program;
  program.forms.Start(form);
  Form& page = program.forms.Get(form);
  FillOpenCells(page.Find<Grid>(grid, index));
  const std::vector<std::string> statements = StatementsOf(program, page);
  Bare bare(program.survey.DatabasePath);
  bare.Run("PRAGMA synchronous = EXTRA");
  Compare(
      state, [&] { page.Find<Button>("cmdSave").Click(); },
      [&] {
        bare.Run("BEGIN");
        for (const std::string& statement : statements) bare.Run(statement);
        bare.Run("COMMIT");
      });
  state.counters["statements"] = static_cast<double>(statements.size());
}
BENCHMARK_CAPTURE(SaveTable, 2_5, "frmPage3", "gridEnrolment", kNoIndex)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

// Reads every field of every row as text, as the page does.
int TakeRow(void* bytes, int columns, char** texts, char**) {
  for (int i = 0; i < columns; ++i) {
    *static_cast<std::size_t*>(bytes) += texts[i] == nullptr ? 0 : std::string(texts[i]).size();
  }
  return 0;
}

void LoadTable(benchmark::State& state, const char* form, const char* grid, int index) {
  Program program;
  program.forms.Start(form);
  Form& page = program.forms.Get(form);
  FillOpenCells(page.Find<Grid>(grid, index));
  page.Find<Button>("cmdSave").Click();
  std::string select;
  program.survey.set_statement_observer(
      [&](std::string_view statement) { select = ToEngineSql(statement); });
  page.Form_Activate();
  program.survey.set_statement_observer({});
  Bare bare(program.survey.DatabasePath);
  Compare(
      state, [&] { page.Form_Activate(); },
      [&] {
        std::size_t bytes = 0;
        bare.Run(select, TakeRow, &bytes);
        benchmark::DoNotOptimize(bytes);
      });
}
BENCHMARK_CAPTURE(LoadTable, 2_5, "frmPage3", "gridEnrolment", kNoIndex)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

BENCHMARK_CAPTURE(SaveTable, 3_16, "frmPage9_10", "gridPage9_1", kNoIndex)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

// ---- A database of the whole country ---------------------------------------------------------

// As many other sites, each with a full table 2.5 and tables 3.5 to 3.10.
void FillSites(World& world, int sites) {
  const std::string script =
      "create temp table site as with recursive n(i) as (select 1 union all select i + 1 from n "
      "where i < " +
      std::to_string(sites) +
      ") select i from n;"
      "create temp table digit as with recursive n(i) as (select 1 union all select i + 1 from n "
      "where i < 7) select i from n;"
      "create temp table code as with recursive n(i) as (select 1 union all select i + 1 from n "
      "where i < 19) select i from n;"
      "insert into tbl_StudentRegistration select 1000 + s.i, 5000 + s.i, c.i, d.i, g.i, 2012, 7 "
      "from site s, code c, digit d, digit g where c.i < 17 and g.i < 3;"
      "insert into tbl_StudentPopulationGroupNCV select 1000 + s.i, 5000 + s.i, 8 + l.i, c.i, d.i, "
      "g.i, 2012, 7 from site s, code c, digit d, digit g, digit l "
      "where d.i < 6 and g.i < 3 and l.i < 4;"
      "insert into tbl_StudentPopulationGroup191 select 1000 + s.i, 5000 + s.i, 3 + l.i, c.i, d.i, "
      "g.i, 2012, 7 from site s, code c, digit d, digit g, digit l "
      "where c.i < 7 and d.i < 6 and g.i < 3 and l.i < 4;";
  world.RunScript(("begin;" + script + "commit").c_str());
}

// A page among many sites against the same page among one other.
void ShowAmongSites(benchmark::State& state, const char* form) {
  Program one;
  Program many;
  FillSites(one, 1);
  FillSites(many, static_cast<int>(state.range(0)));
  const auto show = [form](Program& program) {
    program.forms.Start(form);
    program.forms.Unload(program.forms.Get(form));
  };
  for (Program* program : {&one, &many}) show(*program);
  Compare(
      state, [&] { show(many); }, [&] { show(one); });
}
BENCHMARK_CAPTURE(ShowAmongSites, one_control_total, "frmPage8")
    ->Arg(300)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ShowAmongSites, three_control_totals, "frmPage6_1")
    ->Arg(300)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

// ---- Long lists ------------------------------------------------------------------------------

void StaffList(benchmark::State& state) {
  Program program;
  program.RunScript(
      "insert into tbl_StaffDetail(CollegeEmisNumber, CampusEmisNumber, Surname, Initials, "
      "IDNumber)"
      " with recursive n(i) as (select 1 union all select i + 1 from n where i < 1000) "
      "select 101, 202, 'SURNAME ' || (i * 7919 % 1000), 'A', 'ID' || i from n");
  program.forms.Start("frmSelectEducator");
  Form& list = program.forms.Get("frmSelectEducator");
  for (auto _ : state) list.Form_Activate();
}
BENCHMARK(StaffList)->Unit(benchmark::kMicrosecond);

void SubjectSearch(benchmark::State& state) {
  Program program;
  program.RunScript(
      "insert into lst_Subject(SubjectCode, Description, Programme) "
      "with recursive n(i) as (select 1 union all select i + 1 from n where i < 10000) "
      "select 'C' || i, 'Subject of number ' || i, 'NSC' from n");
  program.forms.Start("frmEducatorTeaching");
  program.The<TextBox>("frmEducatorTeaching", "txtSearch").Enter("of number 99");
  for (auto _ : state) {
    program.The<TextBox>("frmEducatorTeaching", "txtSearch").Enter("of number 99");
    program.Click("frmEducatorTeaching", "cmdGo");
    program.dialogs.seen.clear();  // the first hit stands in the table already
  }
}
BENCHMARK(SubjectSearch)->Unit(benchmark::kMicrosecond);

void TypeAhead(benchmark::State& state) {
  Program program;
  program.RunScript(
      "insert into lst_OccupationalQualification(NQFID, QualificationTitle, NQFField, NQFLevel) "
      "with recursive n(i) as (select 1 union all select i + 1 from n where i < 10000) "
      "select 900000 + i, 'Certificate ' || i, 1, 'Level 2' from n");
  program.forms.Start("frmPage12_1");
  ComboBox& combo = program.The<ComboBox>("frmPage12_1", "cboSelect");
  for (auto _ : state) {
    combo.SetText("90999");
    combo.KeyPress('9');
  }
}
BENCHMARK(TypeAhead)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace survey::bench
