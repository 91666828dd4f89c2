// Long lists: nobody waits for them.

#include "measure.h"

namespace survey::bench {
namespace {

// Milliseconds.
constexpr double kMostForAList = 20;
constexpr double kMostForAKey = 5;

void Bind(benchmark::State& state, double milliseconds) { state.counters[kBound] = milliseconds; }

void StaffList(benchmark::State& state) {
  Program program;
  program.RunScript(
      "insert into tbl_StaffDetail(CollegeEmisNumber, CampusEmisNumber, Surname, Initials, "
      "IDNumber)"
      " with recursive n(i) as (select 1 union all select i + 1 from n where i < 1000) "
      "select 199010830, 108107587, 'SURNAME ' || (i * 7919 % 1000), 'A', 'ID' || i from n");
  program.host.Start("frmSelectEducator");
  Form& list = program.host.Get("frmSelectEducator");
  for (auto _ : state) list.Form_Activate();
  Bind(state, kMostForAList);
}
BENCHMARK(StaffList);

void SubjectSearch(benchmark::State& state) {
  Program program;
  program.RunScript(
      "insert into lst_Subject(SubjectCode, Description, Programme) "
      "with recursive n(i) as (select 1 union all select i + 1 from n where i < 10000) "
      "select 'C' || i, 'Subject of number ' || i, 'NSC' from n");
  program.host.Start("frmEducatorTeaching");
  program.The<TextBox>("frmEducatorTeaching", "txtSearch").Enter("of number 99");
  for (auto _ : state) {
    program.The<TextBox>("frmEducatorTeaching", "txtSearch").Enter("of number 99");
    program.Click("frmEducatorTeaching", "cmdGo");
    program.dialogs.seen.clear();  // the first hit stands in the table already
  }
  Bind(state, kMostForAList);
}
BENCHMARK(SubjectSearch);

void TypeAhead(benchmark::State& state) {
  Program program;
  program.RunScript(
      "insert into lst_OccupationalQualification(NQFID, QualificationTitle, NQFField, NQFLevel) "
      "with recursive n(i) as (select 1 union all select i + 1 from n where i < 10000) "
      "select 900000 + i, 'Certificate ' || i, 1, 'Level 2' from n");
  program.host.Start("frmPage12_1");
  ComboBox& combo = program.The<ComboBox>("frmPage12_1", "cboSelect");
  for (auto _ : state) {
    combo.SetText("90999");
    combo.KeyPress('9');
  }
  Bind(state, kMostForAKey);
}
BENCHMARK(TypeAhead);

}  // namespace
}  // namespace survey::bench
