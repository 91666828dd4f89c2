#include "collect/returned_file.h"

#include <algorithm>
#include <cmath>

#include "base/run_time_error.h"
#include "base/text.h"
#include "store/recordset.h"
#include "store/survey.h"
#include "template/store_tables.h"

namespace survey {
namespace {

constexpr double kNoSurvey = 26;  // as the engine tells of a file that is none of its databases

// ---- The schema --------------------------------------------------------------------------------

std::vector<std::string> Texts(Connection& connection, const std::string& query,
                               const char* field) {
  Recordset rows;
  rows.Open(query, &connection);
  std::vector<std::string> texts;
  for (; !rows.Eof(); rows.MoveNext()) texts.push_back(rows.Field(field).Text());
  return texts;
}

bool Holds(const std::vector<std::string>& names, const std::string& name) {
  return std::ranges::any_of(
      names, [&](const std::string& other) { return EqualsIgnoringCase(other, name); });
}

// A database that lacks something of the schema is not read: its answers would be half ones.
void RequireSchema(Connection& connection, const std::string& path) {
  const auto refuse = [&](const std::string& what) {
    throw RunTimeError(kNoSurvey, '"' + path + "\" is of another schema: it has no " + what);
  };
  const std::vector<std::string> tables =
      Texts(connection, "select name from sqlite_master where type = 'table'", "name");
  for (const StoreTable& table : StoreTables()) {
    if (!Holds(tables, table.name)) refuse("table " + table.name);
    const std::vector<std::string> columns =
        Texts(connection, "PRAGMA table_info(" + table.name + ")", "name");
    for (const StoreColumn& column : table.columns) {
      if (!Holds(columns, column.name)) refuse("column " + column.name + " in " + table.name);
    }
  }
}

void TellOtherTables(Connection& connection, std::vector<Problem>& problems) {
  for (const std::string& name :
       Texts(connection, "select name from sqlite_master where type = 'table'", "name")) {
    const bool own = std::ranges::any_of(StoreTables(), [&](const StoreTable& table) {
      return EqualsIgnoringCase(table.name, name);
    });
    if (own || BeginsWith(name, "sqlite_")) continue;
    problems.push_back({.kind = "other table",
                        .table = name,
                        .text = "Holds a table that the survey does not have; it is left out"});
  }
}

// ---- The sites ---------------------------------------------------------------------------------

const char* KindOf(Finding::Kind kind) {
  switch (kind) {
    case Finding::Kind::kUnbalanced:
      return "unbalanced";
    case Finding::Kind::kCompulsory:
      return "compulsory";
    case Finding::Kind::kEmptyTable:
      return kEmptyTable;
    case Finding::Kind::kIncompleteStaff:
      return "incomplete staff";
  }
  return "";
}

Problem ProblemOf(const SiteOfFile& site, const Finding& finding) {
  Problem problem{.kind = KindOf(finding.kind),
                  .college = site.college_emis_number,
                  .campus = site.campus_emis_number,
                  .page = finding.page,
                  .table = finding.table,
                  .id_number = finding.id_number,
                  .text = finding.text};
  if (finding.kind == Finding::Kind::kUnbalanced) {
    problem.total = finding.stored;
    problem.control_total = finding.expected;
  }
  return problem;
}

void TellYears(const SiteOfFile& site, std::vector<Problem>& problems) {
  const auto tell = [&](const char* kind, const std::string& text) {
    problems.push_back({.kind = kind,
                        .college = site.college_emis_number,
                        .campus = site.campus_emis_number,
                        .text = text});
  };
  const std::string collected = std::to_string(kCollectedYear);
  if (site.listed_year.empty()) {
    tell("unknown site", "The database does not know this site");
  } else if (site.listed_year != collected) {
    tell("not listed", "The site is listed under " + site.listed_year + ", not " + collected);
  }
  for (const int year : site.years) {
    if (year == kCollectedYear) continue;
    tell("other year", "Holds answers of " + std::to_string(year) + ", which are not counted here");
  }
}

void CheckSites(Connection& connection, ReturnedFile& file) {
  for (SiteOfFile& site : SitesOf(connection)) {
    SiteChecks checks =
        CheckSite(connection, site.college_emis_number, site.campus_emis_number, kCollectedYear);
    TellYears(site, file.problems);
    for (const Finding& finding : checks.findings) {
      file.problems.push_back(ProblemOf(site, finding));
    }
    file.sites.push_back({std::move(site), std::move(checks)});
  }
  if (!file.sites.empty()) return;
  file.problems.push_back(
      {.kind = "no site", .text = "No site was chosen in it, and it holds no answers"});
}

// ---- The records -------------------------------------------------------------------------------

// The template has a record for each site of the country, which is no answer of anybody.
std::string OfSites(const StoreTable& table, const std::vector<CheckedSite>& sites) {
  if (table.name != "tbl_GeneralInformation") return "";
  std::string condition = " where 0 = 1";
  for (const CheckedSite& checked : sites) {
    condition += " or (CollegeEmisNumber = " + NumberText(checked.site.college_emis_number) +
                 " and CampusEmisNumber = " + NumberText(checked.site.campus_emis_number) + ")";
  }
  return condition;
}

Records RecordsOf(const StoreTable& table, Connection& connection, const ReturnedFile& file) {
  std::string columns;
  for (const StoreColumn& column : table.columns) {
    (columns += columns.empty() ? "" : ",") += column.name;
  }
  Recordset rows;
  rows.Open("select " + columns + " from " + table.name + OfSites(table, file.sites), &connection);
  return rows.Rows();
}

// The store takes a text where a number belongs; the columns of what it is gathered into do not,
// and would refuse the records of all other files with it.
void LeaveTextsOutOfNumbers(const StoreTable& table, Records& records,
                            std::vector<Problem>& problems) {
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    if (table.columns[i].is_text) continue;
    std::size_t left_out = 0;
    for (auto& row : records) {
      if (row[i].IsNull() || (row[i].IsNumber() && std::isfinite(row[i].Number()))) continue;
      if (!row[i].IsEmpty()) ++left_out;
      row[i] = Value();
    }
    if (left_out == 0) continue;
    problems.push_back({.kind = "no number",
                        .table = table.name,
                        .text = "Answers in " + table.columns[i].name + " of " + table.name +
                                " are no numbers and are left out: " + std::to_string(left_out)});
  }
}

void ReadRecords(Connection& connection, ReturnedFile& file) {
  for (const StoreTable& table : StoreTables()) {
    file.records.push_back(RecordsOf(table, connection, file));
    LeaveTextsOutOfNumbers(table, file.records.back(), file.problems);
  }
}

void Read(const std::string& path, Reading reading, CipherKeys& keys, ReturnedFile& file) {
  const auto connection = Connection::OpenToRead(path, DatabasePassword(), keys);
  connection->RequireSoundFile();
  RequireSchema(*connection, path);
  TellOtherTables(*connection, file.problems);
  CheckSites(*connection, file);
  if (reading == Reading::kChecksAndRecords) ReadRecords(*connection, file);
}

}  // namespace

ReturnedFile ReadReturnedFile(const std::string& path, Reading reading, CipherKeys& keys) {
  ReturnedFile file{.name = ToValidUtf8(path)};
  try {
    Read(path, reading, keys, file);
  } catch (const std::exception& failure) {  // whatever a hostile file brings about
    file = {.name = file.name, .failure = failure.what()};
    file.problems.push_back({.kind = kNotRead, .text = file.failure});
  }
  return file;
}

}  // namespace survey
