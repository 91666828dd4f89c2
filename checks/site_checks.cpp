#include "checks/site_checks.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "base/text.h"
#include "pages/survey_pages.h"
#include "records/site_records.h"

namespace survey {
namespace {

constexpr char kTicked[] = "1";
constexpr char kListedYear[] = "2012";

// ---- What a grid shows -------------------------------------------------------------------------

bool IsAnswered(const Grid& grid, Cell cell) {
  const std::string& text = grid.GetText(cell.column, cell.row);
  return grid.IsCheckBox(cell.column, cell.row) ? text == kTicked : !text.empty();
}

bool HoldsAnswers(const Grid& grid) {
  for (auto cell = grid.NextOpenCell({0, 1}); cell; cell = grid.NextOpenCell(*cell)) {
    if (!grid.IsTotal(cell->column, cell->row) && IsAnswered(grid, *cell)) return true;
  }
  return false;
}

// The question that a cell answers: its number and the words to the left of it, on one line.
std::string QuestionOf(const Grid& grid, Cell cell) {
  std::string number = grid.GetText(1, cell.row);
  std::string words;
  for (int column = cell.column - 1; column > 0 && words.empty(); --column) {
    words = grid.GetText(column, cell.row);
  }
  if (words != number && words.find_first_of("0123456789") != 0) words = number + " " + words;
  std::ranges::replace(words, '\n', ' ');
  return Trim(words);
}

// ---- One site ----------------------------------------------------------------------------------

class SiteChecker {
 public:
  explicit SiteChecker(const SiteRecords& site) : site_(site) {}

  SiteChecks Check() {
    for (const PageRow& page : SurveyPages()) CheckPage(page);
    return std::move(checks_);
  }

 private:
  PageState& State() { return checks_.pages.back(); }

  void CheckPage(const PageRow& page) {
    checks_.pages.push_back({&page, PageFill::kEmpty, {}, {}});
    for (const KeptTable& table : page.kept()) {
      const bool filled = CheckTable(table);
      State().tables.push_back({&table, filled ? PageFill::kHoldsAnswers : PageFill::kEmpty});
      if (filled) State().fill = PageFill::kHoldsAnswers;
    }
  }

  // Whether the table holds answers.
  bool CheckTable(const KeptTable& table) {
    if (table.staff) return CheckStaffTable(table);
    if (table.form) return CheckForm(table);
    Grid grid(*table.design);
    LoadTable(table, site_, grid);
    const bool filled = HoldsAnswers(grid);
    if (!filled) AddEmpty(table, grid);
    for (const RequiredCell& required : table.required) CheckRequired(table, grid, required);
    for (const Reconciliation& total : State().page->totals) {
      if (total.grid == table.grid && total.index == table.index) CheckTotal(table, grid, total);
    }
    return filled;
  }

  // Nobody's answers are missed where there is nobody.
  bool CheckStaffTable(const KeptTable& table) {
    const auto& [records, condition, of_any_site] = *table.staff;
    const std::string same_site =
        " and t.CollegeEmisNumber = d.CollegeEmisNumber and t.CampusEmisNumber = "
        "d.CampusEmisNumber";
    Recordset found;
    found.Open(
        "Select t.IDNumber from tbl_StaffDetail AS d CROSS JOIN " + std::string(records) +
            " AS t where d.CollegeEmisNumber = " + NumberText(site_.college_emis_number) +
            " and d.CampusEmisNumber = " + NumberText(site_.campus_emis_number) +
            " and t.IDNumber = d.IDNumber and t.SurveyYear = " + NumberText(site_.survey_year) +
            (of_any_site ? "" : same_site) + condition + " limit 1",
        site_.connection);
    if (found.Eof() && checks_.staff > 0) AddEmpty(table, Grid(*table.design));
    return !found.Eof();
  }

  bool CheckForm(const KeptTable& table) {
    Grid grid(*table.design);
    Recordset records = table.form->records(site_);
    if (records.Eof()) AddEmpty(table, grid);
    const bool filled = !records.Eof();
    for (; !records.Eof(); records.MoveNext()) {
      table.form->show(records, grid);
      if (table.form->id_number != nullptr) {
        CheckMember(table, grid, records);
      } else {
        for (const RequiredCell& required : table.required) CheckRequired(table, grid, required);
      }
    }
    return filled;
  }

  void CheckMember(const KeptTable& table, const Grid& grid, const Recordset& member) {
    ++checks_.staff;
    std::vector<Cell> missing;
    for (const RequiredCell& required : table.required) {
      if (IsMissing(grid, required)) missing.push_back(required.cell);
    }
    if (missing.empty()) return;
    ++checks_.incomplete_staff;
    std::ranges::sort(missing, {}, [](Cell cell) { return std::pair(cell.row, cell.column); });
    missing.erase(std::unique(missing.begin(), missing.end()), missing.end());
    std::string questions;
    for (const Cell cell : missing) {
      (questions += questions.empty() ? "" : "; ") += QuestionOf(grid, cell);
    }
    Finding& finding = Add(Finding::Kind::kIncompleteStaff, table, missing.front());
    finding.id_number = member.Field(table.form->id_number).Text();
    finding.text = "Staff member " + finding.id_number + " without an answer to " + questions;
  }

  void CheckRequired(const KeptTable& table, const Grid& grid, const RequiredCell& required) {
    if (!IsMissing(grid, required)) return;
    Add(Finding::Kind::kCompulsory, table, required.cell).text =
        "No answer to " + QuestionOf(grid, required.cell);
  }

  void CheckTotal(const KeptTable& table, const Grid& grid, const Reconciliation& total) {
    const double stored = LeadingNumber(grid.GetText(total.total.column, total.total.row));
    const double expected = ControlTotalOf(site_.connection, site_.college_emis_number,
                                           site_.campus_emis_number, total.code);
    const double difference = stored - expected;
    if (difference == 0) return;
    Finding& finding = Add(Finding::Kind::kUnbalanced, table, total.total);
    finding.stored = stored;
    finding.expected = expected;
    finding.text = "The total of table " + finding.table + " is " + NumberText(stored) + ", " +
                   NumberText(std::abs(difference)) + (difference > 0 ? " more" : " less") +
                   " than the control table (" + NumberText(expected) + ")";
  }

  void AddEmpty(const KeptTable& table, const Grid& grid) {
    Add(Finding::Kind::kEmptyTable, table, grid.NextOpenCell({0, 1}).value_or(Cell{1, 1})).text =
        "Table " + std::string(table.number) + " is empty";
  }

  Finding& Add(Finding::Kind kind, const KeptTable& table, Cell cell) {
    State().findings.push_back(checks_.findings.size());
    return checks_.findings.emplace_back(Finding{.kind = kind,
                                                 .page = std::string(State().page->name),
                                                 .table = std::string(table.number),
                                                 .grid = std::string(table.grid),
                                                 .grid_index = table.index,
                                                 .column = cell.column,
                                                 .row = cell.row,
                                                 .id_number = {},
                                                 .text = {}});
  }

  const SiteRecords site_;
  SiteChecks checks_;
};

// ---- The sites of a file -----------------------------------------------------------------------

using SiteKey = std::pair<double, double>;  // college, campus

SiteKey KeyOf(const Recordset& row) {
  const auto number = [&](const char* field) {
    const Value& value = row.Field(field);
    return value.IsNull() ? 0 : value.Number();
  };
  return {number("CollegeEmisNumber"), number("CampusEmisNumber")};
}

using Sites = std::map<SiteKey, SiteOfFile>;

Sites::iterator AddSite(Sites& sites, const SiteKey& key) {
  const auto [site, is_new] = sites.try_emplace(key);
  site->second.college_emis_number = key.first;
  site->second.campus_emis_number = key.second;
  return site;
}

// The tables that hold answers of a campus, and who its staff are: what is kept of a person counts
// for the site that lists the person.
std::vector<std::string> TablesBySite(Connection& connection) {
  Recordset tables;
  tables.Open(
      "Select name from sqlite_master where type = 'table' and name like 'tbl_%' and "
      "sql like '%CampusEmisNumber%' and name <> 'tbl_GeneralInformation' and "
      "(sql not like '%IDNumber%' or name = 'tbl_StaffDetail')",
      &connection);
  std::vector<std::string> names;
  for (; !tables.Eof(); tables.MoveNext()) names.push_back(tables.Field("name").Text());
  return names;
}

// Who was removed from a site belongs to none, to college 0.
void FindSites(Connection& connection, Sites& sites) {
  for (const std::string& table : TablesBySite(connection)) {
    Recordset found;
    found.Open(
        "Select distinct CollegeEmisNumber,CampusEmisNumber,SurveyYear from \"" + table + "\"",
        &connection);
    for (; !found.Eof(); found.MoveNext()) {
      const SiteKey key = KeyOf(found);
      if (key.first == 0) continue;
      std::vector<int>& years = AddSite(sites, key)->second.years;
      const int year = static_cast<int>(LeadingNumber(found.Field("SurveyYear").Text()));
      if (std::ranges::find(years, year) == years.end()) years.push_back(year);
    }
  }
}

void DescribeSites(Connection& connection, Sites& sites) {
  Recordset known;
  known.Open(
      "Select CollegeEmisNumber,CampusEmisNumber,CollegeName,CampusName,SiteType,ProvinceCD,"
      "SurveyYear,MISSystem from tbl_GeneralInformation",
      &connection);
  for (; !known.Eof(); known.MoveNext()) {
    const std::string year = known.Field("SurveyYear").Text();
    const bool saved = !known.Field("MISSystem").IsNull();  // under whatever year
    const auto [college, campus] = KeyOf(known);
    auto site = sites.find({college, campus});
    if (site == sites.end()) {
      if (!saved && year != kListedYear) continue;
      site = AddSite(sites, {college, campus});
    }
    site->second.college_name = known.Field("CollegeName").Text();
    site->second.campus_name = known.Field("CampusName").Text();
    site->second.site_type = static_cast<int>(LeadingNumber(known.Field("SiteType").Text()));
    site->second.province = static_cast<int>(LeadingNumber(known.Field("ProvinceCD").Text()));
    site->second.listed_year = year;
  }
}

}  // namespace

SiteChecks CheckSite(Connection& connection, double college_emis_number, double campus_emis_number,
                     int survey_year) {
  return SiteChecker({&connection, college_emis_number, campus_emis_number, survey_year}).Check();
}

std::vector<SiteOfFile> SitesOf(Connection& connection) {
  Sites sites;
  FindSites(connection, sites);
  DescribeSites(connection, sites);
  std::vector<SiteOfFile> all;
  for (auto& [key, site] : sites) {
    std::ranges::sort(site.years);
    all.push_back(std::move(site));
  }
  return all;
}

}  // namespace survey
