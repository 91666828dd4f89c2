#include "pages/student/frmOtherProgrammes.h"

#include "base/text.h"
#include "pages/student/population_groups.h"
#include "records/cell_table.h"
#include "store/dialect.h"
#include "store/recordset.h"

namespace survey {
namespace {

constexpr int kFirstProgramme = 4;  // rows of gridlevel5
constexpr int kLastProgramme = 8;
constexpr Cell kPartnership{7, 1};  // whether there are such programmes: 1 yes, 2 no

// The grade and the level that a row of gridNSC and gridAET stands for are the row and 6, so that
// the first level of AET is kept as 10.
constexpr int kCodeOfRow = -6;

// clang-format off
const GridDesign& Level5Design() {
  static const GridDesign design = {
      .columns = 7,
      .rows = 9,
      .column_widths = {760, 3700, 700, 3300, 850, 850, 950},
      .row_height = 400,
      .row_heights = {560, 330, 330, 400, 400, 400, 400, 400, 330},
      .texts = {
          {1, 1, "3.11"},
          {2, 1, "Indicate whether you are offering programmes at level 5 or higher in partnership "
                 "with Higher Education Institutions (1=yes; 2= no)"},

          {2, 2, "If yes, please complete the details for each programme below"},
          {5, 2, "Number of students"},

          {2, 3, "Programme"},  {3, 3, "Level"},   {4, 3, "Higher Education Institution"},
          {5, 3, "Male"},       {6, 3, "Female"},  {7, 3, "TOTAL"},

          {1, 4, "3.11.1"},
          {1, 5, "3.11.2"},
          {1, 6, "3.11.3"},
          {1, 7, "3.11.4"},
          {1, 8, "3.11.5"},
          {4, 9, "Total"},
      },
      .rules = {
          {{7, 1}, Number(1, 2)},
          {{2, 4, 2, 8}, Text(255)},
          {{3, 4, 3, 8}, Number(5, 10)},
          {{4, 4, 4, 8}, Text(255)},
          {{5, 4, 6, 8}, Number(0, 9999)},
          {{7, 4, 7, 8}, Number(0, 99999), false},
          {{5, 9, 7, 9}, Number(0, 99999), false},
      },
      .totals = {
          {{7, 4, 7, 8}, {{5, 4, 6, 4}}},
          {{5, 9, 7, 9}, {{5, 4, 5, 8}}},
      },
      .spans = {{2, 1, 6, 1}, {2, 2, 4, 2}, {5, 2, 7, 2}},
      .alignments = {
          {{5, 2, 7, 2}, Alignment::kCenter},
          {{2, 3, 7, 3}, Alignment::kCenter},
          {{4, 9}, Alignment::kRight},
      },
      .bold = {{1, 1, 6, 1}, {1, 2, 7, 3}, {4, 9}},
      .title = "Table 3.11 Programmes at level 5 or higher offered with Higher Education "
               "Institutions",
  };
  return design;
}

const GridDesign& NscDesign() {
  static const GridDesign design = {
      .columns = 14,
      .rows = 7,
      .column_widths = {340, 780, 1200, 790, 790, 790, 790, 790, 790, 790, 790, 790, 790, 900},
      .row_height = 330,
      .head_rows = 3,
      .label_columns = 3,
      .texts = WithPopulationHeads({
          {2, 1, "3.12"},
          {3, 1, "Student Registration in NSC (Grade 10 to 12) subjects by Population Group and "
                 "Gender."},

          {3, 2, "Grade"},

          {1, 4, "1"},  {2, 4, "3.12.1"},  {3, 4, "Grade 10"},
          {1, 5, "2"},  {2, 5, "3.12.2"},  {3, 5, "Grade 11"},
          {1, 6, "3"},  {2, 6, "3.12.3"},  {3, 6, "Grade 12"},
                        {2, 7, "TOTALS"},
      }),
      .rules = {
          {{4, 4, 13, 6}, Number(0, 9999)},
          {{14, 4, 14, 6}, Number(0, 99999), false},
          {{4, 7, 14, 7}, Number(0, 99999), false},
      },
      .totals = {
          {{14, 4, 14, 6}, {{4, 4, 13, 4}}},
          {{4, 7, 14, 7}, {{4, 4, 4, 6}}},
      },
      .spans = WithPopulationSpans({{3, 1, 14, 1}, {3, 2, 3, 3}, {2, 7, 3, 7}}),
      .bold = {{2, 7}},
      .title = "Table 3.12 Student registration in NSC subjects",
  };
  return design;
}

const GridDesign& AetDesign() {
  static const GridDesign design = {
      .columns = 14,
      .rows = 8,
      .column_widths = {340, 780, 1200, 790, 790, 790, 790, 790, 790, 790, 790, 790, 790, 900},
      .row_height = 330,
      .head_rows = 3,
      .label_columns = 3,
      .texts = WithPopulationHeads({
          {2, 1, "3.13"},
          {3, 1, "Student Registration in Adult Education and Training by Population Group and "
                 "Gender."},

          {3, 2, "Grade"},

          {1, 4, "1"},  {2, 4, "3.13.1"},  {3, 4, "AET Level 1"},
          {1, 5, "2"},  {2, 5, "3.13.2"},  {3, 5, "AET Level 2"},
          {1, 6, "3"},  {2, 6, "3.13.3"},  {3, 6, "AET Level 3"},
                        {2, 7, "3.14.3"},  {3, 7, "AET Level 4"},  // as the survey prints it
                        {2, 8, "TOTALS"},
      }),
      .rules = {
          {{4, 4, 13, 7}, Number(0, 9999)},
          {{14, 4, 14, 7}, Number(0, 99999), false},
          {{4, 8, 14, 8}, Number(0, 99999), false},
      },
      .totals = {
          {{14, 4, 14, 7}, {{4, 4, 13, 4}}},
          {{4, 8, 14, 8}, {{4, 4, 4, 7}}},
      },
      .spans = WithPopulationSpans({{3, 1, 14, 1}, {3, 2, 3, 3}, {2, 8, 3, 8}}),
      .bold = {{2, 8}},
      .title = "Table 3.13 Student registration in Adult Education and Training",
  };
  return design;
}

const CellTable& Nsc() {
  static const CellTable table = {
      .select = "Select * from tbl_StudentPopulationGroupNSC where collegeemisnumber = ",
      .remove = "Delete * from tbl_StudentPopulationGroupNSC where collegeemisnumber = ",
      .insert = "Insert into tbl_StudentPopulationGroupNSC",
      .body = {4, 4, 13, 6},
      .walk = Walk::kColumnByColumn,
      .rows = {.fields = {"Grade"}, .offset = kCodeOfRow, .labels = {3}},
      .columns = PopulationColumns(),
      .values = {
          {"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus}, {"Grade", RowCode()},
          {"PopulationGroupCD", ColumnCode(0)}, {"GenderCD", ColumnCode(1)},
          {"SurveyYear", kYear}, {"Quantity", kQuantity}},
  };
  return table;
}

const CellTable& Aet() {
  static const CellTable table = {
      .select = "Select * from tbl_StudentPopulationGroupAET where collegeemisnumber = ",
      .remove = "Delete * from tbl_StudentPopulationGroupAET where collegeemisnumber = ",
      .insert = "Insert into tbl_StudentPopulationGroupAET",
      .body = {4, 4, 13, 7},
      .walk = Walk::kColumnByColumn,
      .rows = {.fields = {"AETLevel"}, .offset = kCodeOfRow, .labels = {3}},
      .columns = PopulationColumns(),
      .values = {
          {"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus},
          {"AETLevel", RowCode()}, {"PopulationGroupCD", ColumnCode(0)},
          {"GenderCD", ColumnCode(1)}, {"SurveyYear", kYear}, {"Quantity", kQuantity}},
  };
  return table;
}
// clang-format on

// A record for each programme; that there are any answers the question, which is not stored.
void ShowProgrammes(const SiteRecords& site, Grid& grid) {
  Recordset programmes;
  programmes.Open(
      "Select * from tbl_Level5Programmes where collegeemisnumber = " + OfThisSiteAndYear(site),
      site.connection);
  for (int row = kFirstProgramme; !programmes.Eof(); programmes.MoveNext(), ++row) {
    grid.SetText(2, row, programmes.Field("programmename").Text());
    grid.SetText(3, row, programmes.Field("programmelevel").Text());
    grid.SetText(4, row, programmes.Field("InstitutionHE").Text());
    grid.SetText(5, row, programmes.Field("maleenrolment").Text());
    grid.SetText(6, row, programmes.Field("femaleenrolment").Text());
    grid.SetText(kPartnership.column, kPartnership.row, "1");
  }
}

}  // namespace

const std::vector<KeptTable>& FrmOtherProgrammes::Kept() {
  static const std::vector<KeptTable> tables = {
      {.number = "3.11",
       .grid = "gridlevel5",
       .index = -1,
       .design = &Level5Design(),
       .load = ShowProgrammes},
      {"3.12", "gridNSC", -1, &NscDesign(), &Nsc()},
      {"3.13", "gridAET", -1, &AetDesign(), &Aet()},
  };
  return tables;
}

FrmOtherProgrammes::FrmOtherProgrammes(FormHost& host, const PageRow& page)
    : SurveyPage(host, page, {.menu = kToMainMenu}),
      gridlevel5(*this, "gridlevel5", Level5Design()),
      gridNSC(*this, "gridNSC", NscDesign()),
      gridAET(*this, "gridAET", AetDesign()) {
  MarkChangesOf(gridlevel5);
  MarkChangesOf(gridNSC);
  MarkChangesOf(gridAET);
}

Layout FrmOtherProgrammes::Body() {
  return ColumnOf({control_totals.Arrange(), Place(gridlevel5), Place(gridNSC), Place(gridAET)});
}

void FrmOtherProgrammes::Form_Activate() {
  Trap(row().errors.activate, [this] {
    GetPage();
    control_totals.Fill();
    PlaceCursor();
    control_totals.Check();
  });
}

void FrmOtherProgrammes::PlaceCursor() { gridlevel5.SetActiveCell(2, kFirstProgramme); }

void FrmOtherProgrammes::GetPage() {
  LoadLevel5();
  LoadAET();
  LoadNSC();
}

void FrmOtherProgrammes::SavePage() {
  control_totals.Check();
  SaveLevel5();
  SaveNSC();
  SaveAET();
}

// ---- Table 3.11: a record for each programme; the question itself is not stored ------------

void FrmOtherProgrammes::LoadLevel5() {
  ShowProgrammes(survey(), gridlevel5);
  AnswerNoWhereUnanswered();
}

void FrmOtherProgrammes::SaveLevel5() {
  survey().Execute("Delete * from tbl_Level5Programmes where collegeemisnumber = " +
                   OfThisSiteAndYear(survey()));
  for (int row = kFirstProgramme; row <= kLastProgramme; ++row) {
    const std::string& name = gridlevel5.GetText(2, row);
    const std::string& institution = gridlevel5.GetText(4, row);
    if (name.empty() || institution.empty()) continue;
    const auto number = [&](int column) {
      return NumberText(LeadingNumber(gridlevel5.GetText(column, row)));
    };
    survey().Execute(
        "Insert into tbl_level5programmes(CollegeEmisNumber,CampusEmisnumber,ProgrammeName,"
        "InstitutionHE,ProgrammeLevel,MaleEnrolment,SurveyYear,FemaleEnrolment)VALUES(" +
        NumberText(survey().CollegeEmisNumber) + "," + NumberText(survey().CampusEmisNumber) +
        ",'" + SqlEscape(name) + "','" + SqlEscape(institution) + "'," + number(3) + "," +
        number(5) + "," + NumberText(survey().SurveyYear) + "," + number(6) + ")");
    gridlevel5.SetText(kPartnership.column, kPartnership.row, "1");
  }
  AnswerNoWhereUnanswered();
}

void FrmOtherProgrammes::AnswerNoWhereUnanswered() {
  if (gridlevel5.GetText(kPartnership.column, kPartnership.row).empty()) {
    gridlevel5.SetText(kPartnership.column, kPartnership.row, "2");
  }
}

// ---- Tables 3.12 and 3.13 ------------------------------------------------------------------

void FrmOtherProgrammes::LoadNSC() { LoadCells(survey(), Nsc(), gridNSC); }

void FrmOtherProgrammes::LoadAET() { LoadCells(survey(), Aet(), gridAET); }

void FrmOtherProgrammes::SaveNSC() { SaveCells(survey(), Nsc(), gridNSC); }

void FrmOtherProgrammes::SaveAET() { SaveCells(survey(), Aet(), gridAET); }

}  // namespace survey
