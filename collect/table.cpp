#include "collect/table.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string_view>

#include "base/text.h"
#include "pages/survey_pages.h"

namespace survey {
namespace {

constexpr bool kIsText = true;
constexpr bool kIsNumber = false;

Value Whole(std::size_t number) { return Value(static_cast<double>(number)); }
Value Known(const std::optional<double>& number) { return number ? Value(*number) : Value(); }
Value EmisNumber(double number) { return number == 0 ? Value() : Value(number); }

// The spelling of the schema.
const StoreTable& TableNamed(const std::string& name) {
  const auto table = std::ranges::find_if(StoreTables(), [&](const StoreTable& candidate) {
    return EqualsIgnoringCase(candidate.name, name);
  });
  if (table == StoreTables().end()) throw std::logic_error("codes of no table: " + name);
  return *table;
}

std::string ColumnNamed(const StoreTable& table, const std::string& name) {
  const auto column = std::ranges::find_if(table.columns, [&](const StoreColumn& candidate) {
    return EqualsIgnoringCase(candidate.name, name);
  });
  if (column == table.columns.end()) throw std::logic_error("codes of no column: " + name);
  return column->name;
}

std::vector<Code> AllCodes() {
  std::vector<Code> codes;
  for (const PageRow& page : SurveyPages()) {
    for (const KeptTable& kept : page.kept()) {
      for (Code& code : CodesOf(kept)) {
        const StoreTable& table = TableNamed(code.table);
        code.table = table.name;
        code.column = ColumnNamed(table, code.column);
        codes.push_back(std::move(code));
      }
    }
  }
  return codes;
}

bool IsSameCode(const Code& one, const Code& other) {
  return one.column == other.column && one.code == other.code;
}

// A code that a page passes means what it means in the other tables.
void GiveMeaning(Code& code, const std::vector<Code>& all) {
  const auto known = std::ranges::find_if(
      all, [&](const Code& other) { return IsSameCode(code, other) && !other.meaning.empty(); });
  if (code.meaning.empty() && known != all.end()) code.meaning = known->meaning;
}

}  // namespace

std::string TablesThat(PageFill fill, const SiteChecks& checks) {
  std::string numbers;
  for (const PageState& page : checks.pages) {
    for (const TableState& table : page.tables) {
      if (table.fill != fill) continue;
      (numbers += numbers.empty() ? "" : "; ") += table.table->number;
    }
  }
  return numbers;
}

std::size_t CountOf(Finding::Kind kind, const SiteChecks& checks) {
  return static_cast<std::size_t>(std::ranges::count(checks.findings, kind, &Finding::kind));
}

const StoreTable& SitesTable() {
  static const StoreTable table = {"sites",
                                   {{"CollegeEmisNumber", kIsNumber},
                                    {"CampusEmisNumber", kIsNumber},
                                    {"CollegeName", kIsText},
                                    {"CampusName", kIsText},
                                    {"SiteType", kIsNumber},
                                    {"ProvinceCD", kIsNumber},
                                    {"ListedYear", kIsText},
                                    {"TablesFilled", kIsText},
                                    {"TablesEmpty", kIsText},
                                    {"Staff", kIsNumber},
                                    {"IncompleteStaff", kIsNumber},
                                    {"Unbalanced", kIsNumber},
                                    {"CompulsoryMissing", kIsNumber}}};
  return table;
}

Row SiteRow(const std::string& file, const CheckedSite& checked) {
  const auto& [site, checks] = checked;
  return {Value(file),
          EmisNumber(site.college_emis_number),
          EmisNumber(site.campus_emis_number),
          Value(site.college_name),
          Value(site.campus_name),
          EmisNumber(site.site_type),
          EmisNumber(site.province),
          Value(site.listed_year),
          Value(TablesThat(PageFill::kHoldsAnswers, checks)),
          Value(TablesThat(PageFill::kEmpty, checks)),
          Whole(static_cast<std::size_t>(checks.staff)),
          Whole(static_cast<std::size_t>(checks.incomplete_staff)),
          Whole(CountOf(Finding::Kind::kUnbalanced, checks)),
          Whole(CountOf(Finding::Kind::kCompulsory, checks))};
}

const StoreTable& ProblemsTable() {
  static const StoreTable table = {"problems",
                                   {{"CollegeEmisNumber", kIsNumber},
                                    {"CampusEmisNumber", kIsNumber},
                                    {"Kind", kIsText},
                                    {"Page", kIsText},
                                    {"SurveyTable", kIsText},
                                    {"IDNumber", kIsText},
                                    {"Total", kIsNumber},
                                    {"ControlTotal", kIsNumber},
                                    {"Problem", kIsText}}};
  return table;
}

Row ProblemRow(const std::string& file, const Problem& problem) {
  const auto text = [](const std::string& known) { return known.empty() ? Value() : Value(known); };
  return {Value(file),
          EmisNumber(problem.college),
          EmisNumber(problem.campus),
          Value(problem.kind),
          text(problem.page),
          text(problem.table),
          text(problem.id_number),
          Known(problem.total),
          Known(problem.control_total),
          Value(problem.text)};
}

const StoreTable& CodesTable() {
  static const StoreTable table = {
      "codes",
      {{"TableName", kIsText}, {"ColumnName", kIsText}, {"Code", kIsNumber}, {"Meaning", kIsText}}};
  return table;
}

std::vector<Row> CodeRows() {
  std::vector<Code> codes = AllCodes();
  std::vector<Row> rows;
  for (auto code = codes.begin(); code != codes.end(); ++code) {
    const bool known = std::any_of(codes.begin(), code, [&](const Code& before) {
      return before.table == code->table && IsSameCode(before, *code);
    });
    if (known) continue;
    GiveMeaning(*code, codes);
    rows.push_back({Value(code->table), Value(code->column), Value(static_cast<double>(code->code)),
                    Value(code->meaning)});
  }
  return rows;
}

}  // namespace survey
