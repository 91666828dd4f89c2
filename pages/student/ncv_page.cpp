#include "pages/student/ncv_page.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "pages/student/population_groups.h"
#include "records/cell_table.h"

namespace survey {

// What one level has of its own.
struct NcvLevel {
  std::string_view page;
  std::string table;
  std::string title;
  const char* grid;
  int code;                      // ProgrammeRegistrationTypeCD
  std::vector<CellRule> limits;  // of the rows 20 to 22, where they are not the common ones
};

namespace {

constexpr int kGridIndex = 1;
constexpr int kRowOffset = 3;  // ProgrammeNCVCD is the row less this

struct Programme {
  const char* number;  // the instrument numbers them unevenly
  const char* name;
};

// clang-format off
const std::vector<NcvLevel>& Levels() {
  static const std::vector<CellRule> lower_levels = {
      {{4, 20, 13, 20}, Number(0, 99999)},
      {{4, 21, 13, 22}, Number(0, 9999.99)},
      {{14, 21, 14, 22}, Number(0, 9999.99), false},
  };
  static const std::vector<NcvLevel> levels = {
      {"frmPage8", "3.8",
       "Student Registration in NC(V) Level 2 programmes by Population Group, Gender and NC(V) "
       "programmes.",
       "gridNCV", 9, lower_levels},
      {"frmPage9", "3.9",
       "Student Registration in NC(V) Level 3 programmes by Population Group, Gender and NC(V) "
       "programmes.",
       "gridNCV", 10, lower_levels},
      {"frmPage9_1", "3.10",
       "Student Registration in NC(V) Level 4 Programmes by Population Group, Gender and NC(V) "
       "programmes.",
       "gridPage8_2", 11,
       {{{4, 20, 13, 22}, Number(0, 9999.99)}}},
  };
  return levels;
}

// From row 4 on, in the order of their codes.
constexpr Programme kProgrammes[] = {
    {"1",  "Civil Engineering and Building Construction"},
    {"2",  "Drawing Office Practice"},
    {"3",  "Education and Development"},
    {"4",  "Electrical Infrastructure and Construction"},
    {"5",  "Engineering and Related Design"},
    {"6",  "Finance, Economics and Accounting"},
    {"7",  "Hospitality"},
    {"8",  "Information Technology and Computer Science"},
    {"9",  "Management"},
    {"10", "Marketing"},
    {"11", "Mechatronics"},
    {"12", "Office Administration"},
    {"13", "Primary Agriculture"},
    {"",   "Process Instrumentation"},
    {"",   "Process Plant Operations"},
    {"",   "Safety in Society"},
    {"",   "Tourism"},
    {"",   "Transport and Logistics"},
    {"14", "Primary Health"},
};

GridDesign MakeDesign(const NcvLevel& level) {
  GridDesign design = {
      .columns = 14,
      .rows = 23,
      .column_widths = {350, 740, 3000, 640, 640, 640, 640, 640, 640, 640, 640, 640, 640, 800},
      .row_height = 330,
      .row_heights = {540, 540, 330, 540, 330, 330, 540, 540, 540, 330, 540},
      .head_rows = 3,
      .label_columns = 3,
      .texts = WithPopulationHeads({
          {2, 1, level.table},  {3, 1, level.title},
          {3, 2, "NC (V) Programmes"},
          {2, 23, "TOTALS"},
      }),
      .rules = {
          {{4, 4, 13, 22}, Number(0, 9999)},
          {{4, 15, 13, 15}, Number(0, 9999.99)},
          {{14, 4, 14, 22}, Number(0, 99999), false},
          {{14, 17, 14, 19}, Number(0, 9999999.99), false},
          {{4, 23, 14, 23}, Number(0, 99999), false},
      },
      .totals = {
          {{14, 4, 14, 22}, {{4, 4, 13, 4}}},
          {{4, 23, 14, 23}, {{4, 4, 4, 22}}},
      },
      .spans = WithPopulationSpans({{3, 1, 14, 1}, {3, 2, 3, 3}, {2, 23, 3, 23}}),
      .bold = {{2, 23}},
      .title = "Table " + level.table + " " + level.title,
  };
  int row = kRowOffset;
  for (const Programme& programme : kProgrammes) {
    ++row;
    design.texts.push_back({1, row, programme.number});
    design.texts.push_back({2, row, level.table + "." + std::to_string(row - kRowOffset)});
    design.texts.push_back({3, row, programme.name});
  }
  design.rules.insert(design.rules.end(), level.limits.begin(), level.limits.end());
  return design;
}

// All levels share the table and are told apart by the code that the page passes.
const CellTable& PopulationGroups() {
  static const CellTable table = {
      .select = "Select * from tbl_StudentPopulationGroupNCV where collegeemisnumber = ",
      .remove = "Delete * from tbl_StudentPopulationGroupNCV where collegeemisnumber = ",
      .insert = "Insert into tbl_StudentPopulationGroupNCV",
      .body = {4, 4, 13, 22},
      .walk = Walk::kColumnByColumn,
      .rows = {.fields = {"programmeNCVCD"}, .offset = kRowOffset, .labels = {3}},
      .columns = PopulationColumns(),
      .values = {
          {"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus},
          {"ProgrammeRegistrationTypeCD", kCode}, {"programmeNCVCD", RowCode()},
          {"PopulationGroupCD", ColumnCode(0)}, {"GenderCD", ColumnCode(1)},
          {"SurveyYear", kYear}, {"Quantity", kQuantity}},
      .select_tail = " and programmeregistrationtypeCD = ",
      .remove_tail = " and programmeregistrationtypeCd = ",
  };
  return table;
}
// clang-format on

const NcvLevel& LevelOf(std::string_view page) {
  const auto level = std::find_if(Levels().begin(), Levels().end(),
                                  [&](const NcvLevel& row) { return row.page == page; });
  if (level == Levels().end()) throw std::out_of_range(std::string(page) + " has no NC(V) level");
  return *level;
}

const GridDesign& DesignOf(const NcvLevel& level) {
  static const std::vector<GridDesign> designs = [] {
    std::vector<GridDesign> made;
    for (const NcvLevel& each : Levels()) made.push_back(MakeDesign(each));
    return made;
  }();
  return designs[static_cast<std::size_t>(&level - Levels().data())];
}

}  // namespace

std::vector<KeptTable> NcvPage::KeptOf(std::string_view page) {
  const NcvLevel& level = LevelOf(page);
  return {{level.table, level.grid, kGridIndex, &DesignOf(level), &PopulationGroups(), level.code}};
}

NcvPage::NcvPage(FormHost& host, const PageRow& page)
    : SurveyPage(host, page),
      level_(LevelOf(page.name)),
      grid_(*this, level_.grid, DesignOf(level_), kGridIndex) {
  MarkChangesOf(grid_);
}

Layout NcvPage::Body() { return ColumnOf({control_totals_.Arrange(), Place(grid_)}); }

void NcvPage::PlaceCursor() { grid_.SetActiveCell(4, 4); }

void NcvPage::GetPage() {
  control_totals_.Fill();
  LoadCells(survey(), PopulationGroups(), grid_, level_.code);
  control_totals_.Check();
}

void NcvPage::SavePage() {
  control_totals_.Check();
  SaveCells(survey(), PopulationGroups(), grid_, level_.code);
}

}  // namespace survey
