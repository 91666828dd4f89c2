#include "pages/student/frmPage12_2.h"

#include "pages/student/population_groups.h"
#include "records/cell_table.h"

namespace survey {
namespace {

// clang-format off
const GridDesign& OccupationalDesign() {
  static const GridDesign design = {
      .columns = 14,
      .rows = 16,
      .column_widths = {340, 780, 2720, 640, 640, 640, 640, 640, 640, 640, 640, 640, 640, 860},
      .row_height = 480,
      .row_heights = {480, 330, 330},
      .head_rows = 3,
      .label_columns = 3,
      .texts = WithPopulationHeads({
          {2, 1, "3.15"},
          {3, 1, "Headcount Student Registration for Occupational qualifications by Population "
                 "Group, Gender and Organising Field"},

          {3, 2, "NQF Organising field"},

          {1, 4, "1"},    {2, 4, "3.15.1"},    {3, 4, "Agriculture and Nature Conservation "},
          {1, 5, "2"},    {2, 5, "3.15.2"},    {3, 5, "Culture and Arts"},
          {1, 6, "3"},    {2, 6, "3.15.3"},    {3, 6, "Business, Commerce and Management Studies"},
          {1, 7, "4"},    {2, 7, "3.15.4"},    {3, 7, "Communication Studies and Language"},
          {1, 8, "5"},    {2, 8, "3.15.5"},    {3, 8, "Education, Training and Development"},
          {1, 9, "6"},    {2, 9, "3.15.6"},    {3, 9, "Manufacturing, Engineering and Technology"},
          {1, 10, "7"},   {2, 10, "3.15.7"},   {3, 10, "Human and Social Studies"},
          {1, 11, "8"},   {2, 11, "3.15.8"},   {3, 11, "Law, Military Science and Security"},
          {1, 12, "9"},   {2, 12, "3.15.9"},   {3, 12, "Health Sciences and Social Services"},
          {1, 13, "10"},  {2, 13, "3.15.10"},
          {3, 13, "Physical/Mathematical/Computer & Life Science"},
          {1, 14, "11"},  {2, 14, "3.15.11"},  {3, 14, "Services"},
          {1, 15, "12"},  {2, 15, "3.15.12"},  {3, 15, "Physical Planning and Construction"},
                          {2, 16, "TOTALS"},
      }),
      .rules = {
          {{4, 4, 13, 15}, Number(0, 9999)},
          {{14, 4, 14, 15}, Number(0, 99999), false},
          {{4, 16, 14, 16}, Number(0, 99999), false},
      },
      .totals = {
          {{14, 4, 14, 15}, {{4, 4, 13, 4}}},
          {{4, 16, 14, 16}, {{4, 4, 4, 15}}},
      },
      .spans = WithPopulationSpans({{3, 1, 14, 1}, {3, 2, 3, 3}, {2, 16, 3, 16}}),
      .bold = {{2, 16}},
      .title = "Table 3.15 Student registration for occupational qualifications by organising "
               "field",
  };
  return design;
}

const CellTable& Occupational() {
  static const CellTable table = {
      .select = "Select * from tbl_StudentPopulationGroupOcc where collegeemisnumber = ",
      .remove = "Delete * from tbl_StudentPopulationGroupOcc where collegeemisnumber = ",
      .insert = "Insert into tbl_StudentPopulationGroupOcc",
      .body = {4, 4, 13, 15},
      .walk = Walk::kColumnByColumn,
      .rows = {.fields = {"OrganisingFieldCD"}, .offset = 3, .labels = {3}},
      .columns = PopulationColumns(),
      .values = {
          {"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus},
          {"OrganisingFieldCD", RowCode()}, {"PopulationGroupCD", ColumnCode(0)},
          {"GenderCD", ColumnCode(1)}, {"SurveyYear", kYear}, {"Quantity", kQuantity}},
  };
  return table;
}
// clang-format on

}  // namespace

const std::vector<KeptTable>& FrmPage12_2::Kept() {
  static const std::vector<KeptTable> tables = {
      {"3.15", "gridPage12_1", 0, &OccupationalDesign(), &Occupational()},
  };
  return tables;
}

FrmPage12_2::FrmPage12_2(FormHost& host, const PageRow& page)
    : SurveyPage(host, page, {.menu = kToMainMenu}),
      gridPage12_1(*this, "gridPage12_1", OccupationalDesign(), 0) {
  MarkChangesOf(gridPage12_1);
  cmdSave.on_key_down = [this] { MarkUnsaved(); };
}

Layout FrmPage12_2::Body() { return ColumnOf({control_totals.Arrange(), Place(gridPage12_1)}); }

void FrmPage12_2::Form_Load() { Caption = survey().SurveyCaption(row().caption); }

void FrmPage12_2::Form_Activate() {
  survey().OpenDatabaseConnection();
  control_totals.Fill();
  GetPage();
  PlaceCursor();
  control_totals.Check();
}

void FrmPage12_2::PlaceCursor() { gridPage12_1.SetActiveCell(4, 4); }

void FrmPage12_2::GetPage() { LoadCells(survey(), Occupational(), gridPage12_1); }

void FrmPage12_2::SavePage() {
  control_totals.Check();
  SaveCells(survey(), Occupational(), gridPage12_1);
}

}  // namespace survey
