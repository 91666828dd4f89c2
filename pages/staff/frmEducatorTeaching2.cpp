#include "pages/staff/frmEducatorTeaching2.h"

#include "base/text.h"
#include "records/codes.h"
#include "records/record_cells.h"

namespace survey {
namespace {

constexpr int kMarkColumn = 4;
constexpr int kHoursColumn = 6;
constexpr int kExperienceColumn = 8;
constexpr int kTrainingColumn = 10;

constexpr int kFirstField = 3;  // rows
constexpr int kLastField = 14;
constexpr int kRowsAboveFields = kFirstField - 1;
constexpr int kOtherCoursesRow = 17;
constexpr int kOtherCoursesCode = 13;

constexpr char kMarked[] = "1";

// clang-format off
const GridDesign& FieldsDesign() {
  static const GridDesign design = {
      .columns = 10,
      .rows = 20,
      .column_widths = {0, 900, 4600, 1100, 250, 1300, 250, 1300, 250, 1300},
      .row_height = 400,
      .row_heights = {560, 1150, 400, 400, 400, 400, 400, 400, 400, 400,
                      400, 400, 400, 400, 400, 1150, 400, 400, 400, 900},
      .head_rows = 2,
      .label_columns = 3,
      .texts = {
          {2, 1, "4.31"},
          {3, 1, "Indicate the teaching field that the staff member is teaching in 2012 \n"
                 "for Occupational Qualifications"},

          {3, 2, "Teaching Field"},
          {4, 2, "More than one field may be  marked"},
          {5, 2, "Number of hours per week"},
          {6, 2, "Male"},  // beneath the head to its left
          {7, 2, "Number of years teaching experience in field"},
          {9, 2, "Number of years formal training in the field"},

          {1, 3, "1"},    {2, 3, "4.31.1"},    {3, 3, "Agriculture and Nature Conservation "},
          {1, 4, "2"},    {2, 4, "4.31.2"},    {3, 4, "Culture and Arts"},
          {1, 5, "3"},    {2, 5, "4.31.3"},    {3, 5, "Business, Commerce and Management Studies"},
          {1, 6, "4"},    {2, 6, "4.31.4"},    {3, 6, "Communication Studies and Language"},
          {1, 7, "5"},    {2, 7, "4.31.5"},    {3, 7, "Education, Training and Development"},
          {1, 8, "6"},    {2, 8, "4.31.6"},    {3, 8, "Manufacturing, Engineering and Technology"},
          {1, 9, "7"},    {2, 9, "4.31.7"},    {3, 9, "Human and Social Studies"},
          {1, 10, "8"},   {2, 10, "4.31.8"},   {3, 10, "Law, Military Science and Security"},
          {1, 11, "9"},   {2, 11, "4.31.9"},   {3, 11, "Health Sciences and Social Services"},
          {1, 12, "10"},  {2, 12, "4.31.10"},  {3, 12, "Physical/Mathematical/Computer & Life "
                                                       "Science"},
          {1, 13, "11"},  {2, 13, "4.31.11"},  {3, 13, "Services"},
          {1, 14, "12"},  {2, 14, "4.31.12"},  {3, 14, "Physical Planning and Construction"},

          {2, 15, "4.32"},  {3, 15, "Other Courses"},
          {2, 16, "4.32"},
          {3, 16, "Other Courses being taught in 2012\n(add all short courses together)"},
          {5, 16, "Number of hours per week"},
          {7, 16, "Number of years teaching experience in these courses"},
          {9, 16, "Number of years formal training for these courses"},
          {2, 17, "Other (Short courses, workshops etc)"},

          {2, 20, "Signature of Staff Member"},  {6, 20, "Date"},
      },
      .rules = {
          {{4, 3, 4, 14}, CheckBoxCell()},
          {{5, 3, 5, 14}, Number(0, 9999), false},  {{6, 3, 6, 14}, Number(0, 9999)},
          {{7, 3, 7, 14}, Number(0, 9999), false},  {{8, 3, 8, 14}, Number(0, 9999)},
          {{9, 3, 9, 14}, Number(0, 9999), false},  {{10, 3, 10, 14}, Number(0, 9999)},
          {{6, 17}, Number(0, 9999999.99)},
          {{8, 17}, Number(0, 9999999.99)},
          {{10, 17}, Number(0, 9999999.99)},
      },
      .spans = {
          {3, 1, 10, 1},
          {5, 2, 6, 2},    {7, 2, 8, 2},    {9, 2, 10, 2},
          {3, 15, 10, 15},
          {3, 16, 4, 16},  {5, 16, 6, 16},  {7, 16, 8, 16},  {9, 16, 10, 16},
          {2, 17, 4, 17},
          {2, 18, 10, 19},
          {2, 20, 5, 20},  {6, 20, 10, 20},
      },
      .shades = {{{2, 18, 10, 20}, kWhite}},  // room to sign
      .bold = {{2, 1, 10, 1}, {2, 15, 10, 15}},
      .title = "4.31 and 4.32 Teaching fields and other courses of the staff member",
  };
  return design;
}
// clang-format on

void ShowFigures(const Recordset& field, int row, Grid& grid) {
  ShowFields(field,
             {{"Teachinghours", {kHoursColumn, row}},
              {"Teachingexperience", {kExperienceColumn, row}},
              {"Trainingyears", {kTrainingColumn, row}}},
             grid);
}

std::vector<Code> Fields() {
  constexpr int kNameColumn = 3;
  const auto code = [](int number, int row) {
    return Code{"tbl_LecturerTeachingFields", "OrganisingFieldCD", number,
                LabelOf(FieldsDesign(), {kNameColumn, row})};
  };
  std::vector<Code> codes;
  for (int row = kFirstField; row <= kLastField; ++row) {
    codes.push_back(code(row - kRowsAboveFields, row));
  }
  codes.push_back(code(kOtherCoursesCode, kLastField + 1));
  return codes;
}

}  // namespace

const std::vector<KeptTable>& FrmEducatorTeaching2::Kept() {
  static const std::vector<KeptTable> tables = {
      {.number = "4.31 - 4.32",
       .grid = "gridFields",
       .design = &FieldsDesign(),
       .staff = StaffRecords{"tbl_LecturerTeachingFields", "", true},
       .codes = Fields},
  };
  return tables;
}

FrmEducatorTeaching2::FrmEducatorTeaching2(FormHost& host, const PageRow& page)
    : StaffPage(host, page,
                {.next = {"Previous", ButtonRole::kPrevious},
                 .previous = kToStaffList,
                 .menu = kNoButton}),
      gridFields(*this, "gridFields", FieldsDesign()) {
  MarkChangesOf(gridFields);
}

void FrmEducatorTeaching2::Form_Load() { Caption = StaffCaption(); }

Layout FrmEducatorTeaching2::Body() { return Place(gridFields); }

void FrmEducatorTeaching2::PlaceCursor() { gridFields.SetActiveCell(kMarkColumn, kFirstField); }

void FrmEducatorTeaching2::GetPage() {
  Recordset fields;
  fields.Open(
      "Select * from tbl_LecturerTeachingFields where IDnumber = '" + OfThisStaffMemberOnAnySite(),
      survey().DatabaseConnection.get());
  for (; !fields.Eof(); fields.MoveNext()) {
    const Value& code = fields.Field("OrganisingFieldCD");
    if (code.IsNull()) continue;
    if (code.Number() < kOtherCoursesCode) {
      const int row = ToWholeNumber(code.Number() + kRowsAboveFields);
      gridFields.SetText(kMarkColumn, row, kMarked);
      ShowFigures(fields, row, gridFields);
    } else if (code.Is(kOtherCoursesCode)) {
      ShowFigures(fields, kOtherCoursesRow, gridFields);
    }
  }
}

// Figures without a mark, and other courses without hours, are dropped.
void FrmEducatorTeaching2::SavePage() {
  survey().Execute("Delete * from tbl_LecturerTeachingFields where IDnumber = '" +
                   OfThisStaffMemberOnAnySite());
  for (int row = kFirstField; row <= kLastField; ++row) {
    if (gridFields.GetText(kMarkColumn, row) == kMarked) Insert(row, row - kRowsAboveFields);
  }
  if (LeadingNumber(gridFields.GetText(kHoursColumn, kOtherCoursesRow)) != 0) {
    Insert(kOtherCoursesRow, kOtherCoursesCode);
  }
}

void FrmEducatorTeaching2::Insert(int row, int code) {
  const auto figure = [&](int column) {
    return "," + NumberText(LeadingNumber(gridFields.GetText(column, row)));
  };
  survey().Execute(
      "Insert into tbl_LecturerTeachingFields(CollegeEMISNumber,CampusEmisNumber,surveyyear,"
      "IDNumber,OrganisingFieldCD,Teachinghours,Teachingexperience,TrainingYears)VALUES(" +
      KeyValues() + NumberText(code) + figure(kHoursColumn) + figure(kExperienceColumn) +
      figure(kTrainingColumn) + ")");
}

}  // namespace survey
