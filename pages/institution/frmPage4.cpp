#include "pages/institution/frmPage4.h"

#include "records/cell_table.h"

namespace survey {
namespace {

// clang-format off
const GridDesign& StaffDesign() {
  static const GridDesign design = {
      .columns = 12,
      .rows = 10,
      .column_widths = {640, 2000, 850, 830, 830, 830, 830, 830, 830, 830, 830, 950},
      .row_height = 420,
      .row_heights = {420, 330, 520},
      .head_rows = 3,
      .label_columns = 3,
      .texts = {
          {1, 1, "2.1 ALL STAFF MEMBERS"},  {3, 1, "Gender"},
          {4, 1, "Employees remunerated by PERSAL"},
          {8, 1, "Employees remunerated by the COLLEGE"},
          {9, 1, "College Appointments"},  // a leftover beneath the head before it
          {12, 1, "TOTAL"},

          {4, 2, "Full-Time"},  {6, 2, "Part-Time"},  {8, 2, "Full-Time"},  {10, 2, "Part-Time"},

          {4, 3, "Perm"},   {5, 3, "Temp/ Contract"},
          {6, 3, "Perm"},   {7, 3, "Temp/\nContract"},
          {8, 3, "Perm"},   {9, 3, "Temp/\nContract"},
          {10, 3, "Perm"},  {11, 3, "Temp/\nContract"},

          {1, 4, "2.1.1"},   {2, 4, "*Lecturing Staff"},      {3, 4, "Male"},
          {1, 5, "1.1"},     {2, 5, "* Lecturing staff"},     {3, 5, "Female"},
          {1, 6, "2.1.2"},   {2, 6, "** Management staff"},   {3, 6, "Male"},
          {1, 7, "1.2"},                                      {3, 7, "Female"},
          {1, 8, "2.1.3"},   {2, 8, "*** Support staff"},     {3, 8, "Male"},
          {1, 9, "1.3"},                                      {3, 9, "Female"},
          {1, 10, "TOTAL"},
      },
      .rules = {
          {{4, 4, 12, 10}, Number(0, 9999), false},
          {{4, 4, 11, 9}, Number(0, 9999)},
      },
      .totals = {
          {{4, 10, 11, 10}, {{4, 4, 4, 9}}},
          {{12, 4, 12, 9}, {{4, 4, 11, 4}}},
          {{12, 10}, {{12, 4, 12, 9}}},
      },
      .spans = {
          {1, 1, 2, 3},  {3, 1, 3, 3},  {4, 1, 7, 1},  {8, 1, 11, 1},  {12, 1, 12, 3},
          {4, 2, 5, 2},  {6, 2, 7, 2},  {8, 2, 9, 2},  {10, 2, 11, 2},
          {1, 10, 3, 10},
      },
      .title = "Table 2.1 All staff members",
  };
  return design;
}

const GridDesign& DegreeDesign() {
  static const GridDesign design = {
      .columns = 7,
      .rows = 7,
      .column_widths = {720, 3400, 1400, 1400, 1400, 1400, 1200},
      .row_height = 420,
      .row_heights = {480, 330},
      .head_rows = 2,
      .label_columns = 2,
      .texts = {
          {1, 1, "2.2. Highest Degree Obtained for Lecturing Staff Only."},
          {3, 1, "Employees remunerated by PERSAL"},
          {5, 1, "Employees remunerated by the COLLEGE"},
          {7, 1, "TOTAL"},

          {3, 2, "Male"},  {4, 2, "Female"},  {5, 2, "Male"},  {6, 2, "Female"},

          {1, 3, "2.2.1"},  {2, 3, "Bachelors Degree"},
          {1, 4, "2.2.2"},  {2, 4, "Honours Degree"},
          {1, 5, "2.2.3"},  {2, 5, "Masters Degree"},
          {1, 6, "2.2.4"},  {2, 6, "Doctoral or higher Degree"},
          {1, 7, "TOTAL"},
      },
      .rules = {
          {{3, 3, 7, 7}, Number(0, 9999.99), false},
          {{3, 3, 6, 6}, Number(0, 9999.99)},
      },
      .totals = {
          {{3, 7, 6, 7}, {{3, 3, 3, 6}}},
          {{7, 3, 7, 6}, {{3, 3, 6, 3}}},
          {{7, 7}, {{7, 3, 7, 6}}},
      },
      .spans = {{1, 1, 2, 2}, {3, 1, 4, 1}, {5, 1, 6, 1}, {7, 1, 7, 2}, {1, 7, 2, 7}},
      .title = "Table 2.2 Highest degree obtained, lecturing staff only",
  };
  return design;
}

const CellTable& StaffCount() {
  static const CellTable table = {
      .select = "Select * from tbl_staffcount where collegeemisnumber = ",
      .remove = "Delete * from tbl_StaffCount where collegeemisnumber = ",
      .insert = "Insert into tbl_StaffCount",
      .body = {4, 4, 11, 9},
      .walk = Walk::kRowByRow,
      .rows = {
          .fields = {"staffcategoryCD", "genderCd"},
          .positions = {
              {4, {1, 1}},  {5, {1, 2}},
              {6, {2, 1}},  {7, {2, 2}},
              {8, {3, 1}},  {9, {3, 2}},
          },
          .labels = {2, 3},
      },
      .columns = {
          .fields = {"remunerationCD", "DurationCD", "appointmentnaturecd"},
          .positions = {
              {4, {1, 1, 1}},   {5, {1, 1, 2}},   {6, {1, 2, 1}},   {7, {1, 2, 2}},
              {8, {2, 1, 1}},   {9, {2, 1, 2}},   {10, {2, 2, 1}},  {11, {2, 2, 2}},
          },
          .labels = {1, 2, 3},
      },
      .values = {
          {"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus},
          {"StaffcategoryCD", RowCode(0)}, {"GenderCD", RowCode(1)},
          {"RemunerationCD", ColumnCode(0)}, {"DurationCD", ColumnCode(1)},
          {"AppointmentnatureCD", ColumnCode(2)}, {"surveyyear", kYear}, {"quantity", kQuantity}},
  };
  return table;
}

const CellTable& LectureStaff() {
  static const CellTable table = {
      .select = "Select * from tbl_lecturestaff where collegeemisnumber = ",
      .remove = "Delete * from tbl_LectureStaff where collegeemisnumber = ",
      .insert = "Insert into tbl_LectureStaff",
      .body = {3, 3, 6, 6},
      .walk = Walk::kColumnByColumn,
      .rows = {.fields = {"degreetypecd"}, .offset = 2, .labels = {2}},
      .columns = {
          .fields = {"remunerationCD", "genderCd"},
          .positions = {{3, {1, 1}}, {4, {1, 2}}, {5, {2, 1}}, {6, {2, 2}}},
          .labels = {1, 2},
      },
      .values = {
          {"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus},
          {"RemunerationCD", ColumnCode(0)}, {"GenderCD", ColumnCode(1)},
          {"DegreetypeCD", RowCode()}, {"SurveyYear", kYear}, {"Quantity", kQuantity}},
  };
  return table;
}
// clang-format on

}  // namespace

const std::vector<KeptTable>& FrmPage4::Kept() {
  static const std::vector<KeptTable> tables = {
      {"2.1", "gridPage4_2", -1, &StaffDesign(), &StaffCount()},
      {"2.2", "gridLectureStaff", -1, &DegreeDesign(), &LectureStaff()},
  };
  return tables;
}

FrmPage4::FrmPage4(FormHost& host, const PageRow& page)
    : SurveyPage(host, page),
      gridPage4_2(*this, "gridPage4_2", StaffDesign()),
      gridLectureStaff(*this, "gridLectureStaff", DegreeDesign()) {
  Label4.Heading = true;
  MarkChangesOf(gridPage4_2);
  MarkChangesOf(gridLectureStaff);
  cmdStaff.on_click = [this] { FollowLink(cmdStaff); };
}

Layout FrmPage4::Body() {
  return ColumnOf({Place(Label4), Place(Label1), Place(gridPage4_2), Place(Label2),
                   Place(gridLectureStaff), RowOf({Place(Label3), Place(cmdStaff), Space()})});
}

void FrmPage4::PlaceCursor() { gridPage4_2.SetActiveCell(4, 4); }

void FrmPage4::GetPage() {
  LoadCells(survey(), StaffCount(), gridPage4_2);
  LoadCells(survey(), LectureStaff(), gridLectureStaff);
}

void FrmPage4::SavePage() {
  SaveCells(survey(), StaffCount(), gridPage4_2);
  SaveCells(survey(), LectureStaff(), gridLectureStaff);
}

}  // namespace survey
