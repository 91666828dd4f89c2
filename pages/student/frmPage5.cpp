#include "pages/student/frmPage5.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "pages/student/population_groups.h"
#include "records/cell_table.h"

namespace survey {
namespace {

constexpr CellKind kFte = Number(-9999999.99, 9999999.99, 3);
constexpr CellKind kFteTotal = Number(0, 99999, 3);
constexpr int kFteRowHeight = 300;

std::vector<int> FteWidths() { return {300, 640, 4000, 1500, 1500, 1500, 1500}; }

// clang-format off
const GridDesign& NcvFteDesign() {
  static const GridDesign design = {
      .columns = 7,
      .rows = 6,
      .column_widths = FteWidths(),
      .row_height = kFteRowHeight,
      .head_rows = 2,
      .label_columns = 3,
      .texts = {
          {2, 1, "3.1"},
          {3, 1, "FULL TIME EQUIVALENT (FTE) for NC(V) Levels 2 to 4"},
          {3, 2, "Vocational field"},
          {4, 2, "Level 2"},  {5, 2, "Level 3"},  {6, 2, "Level 4"},  {7, 2, "TOTAL"},
          {1, 3, "1"},  {2, 3, "3.1.1"},  {3, 3, "Engineering"},
          {1, 4, "2"},  {2, 4, "3.1.2"},  {3, 4, "Non-Engineering"},
          {1, 5, "3"},  {2, 5, "3.1.3"},  {3, 5, "Services"},
          {2, 6, "TOTAL"},
      },
      .rules = {
          {{4, 3, 6, 5}, kFte},
          {{7, 3, 7, 6}, kFteTotal, false},
          {{4, 6, 6, 6}, kFteTotal, false},
      },
      .totals = {
          {{7, 3, 7, 5}, {{4, 3, 6, 3}}},
          {{4, 6, 7, 6}, {{4, 3, 4, 5}}},
      },
      .spans = {{3, 1, 7, 1}, {2, 6, 3, 6}},
      .bold = {{2, 6}},
      .title = "Table 3.1 Full time equivalent for NC(V) Levels 2 to 4",
  };
  return design;
}

const GridDesign& N1ToN3FteDesign() {
  static const GridDesign design = {
      .columns = 7,
      .rows = 3,
      .column_widths = FteWidths(),
      .row_height = kFteRowHeight,
      .head_rows = 2,
      .label_columns = 3,
      .texts = {
          {2, 1, "3.2"},
          {3, 1, "FULL TIME EQUIVALENT (FTE) for Report 191 for N1 to N3"},
          {3, 2, "Vocational field"},
          {4, 2, "N1"},  {5, 2, "N2"},  {6, 2, "N3"},  {7, 2, "TOTAL"},
          {1, 3, "1"},  {2, 3, "3.2.1"},  {3, 3, "Engineering"},
      },
      .rules = {
          {{4, 3, 6, 3}, kFte},
          {{7, 3}, kFteTotal, false},
      },
      .totals = {
          {{7, 3}, {{4, 3, 6, 3}}},
      },
      .spans = {{3, 1, 7, 1}},
      .title = "Table 3.2 Full time equivalent for Report 191 for N1 to N3",
  };
  return design;
}

const GridDesign& N4ToN6FteDesign() {
  static const GridDesign design = {
      .columns = 7,
      .rows = 9,
      .column_widths = FteWidths(),
      .row_height = kFteRowHeight,
      .row_heights = {520},
      .head_rows = 2,
      .label_columns = 3,
      .texts = {
          {2, 1, "3.3"},
          {3, 1, "Full Time Equivalent (FTE) for REPORT 191 (excluding N1, N2, N3)\n"
                 "students by Vocational Field and Level."},
          {3, 2, "Vocational field"},
          {4, 2, "N4"},  {5, 2, "N5"},  {6, 2, "N6"},  {7, 2, "TOTAL"},
          {1, 3, "1"},  {2, 3, "3.3.1"},  {3, 3, "Agriculture"},
          {1, 4, "2"},  {2, 4, "3.3.2"},  {3, 4, "Art and Music"},
          {1, 5, "3"},  {2, 5, "3.3.3"},  {3, 5, "Business Studies"},
          {1, 6, "4"},  {2, 6, "3.3.4"},  {3, 6, "Educare and Social Services"},
          {1, 7, "5"},  {2, 7, "3.3.5"},  {3, 7, "Engineering"},
          {1, 8, "6"},  {2, 8, "3.3.6"},  {3, 8, "Utility Studies"},
          {2, 9, "TOTAL"},
      },
      .rules = {
          {{4, 3, 6, 8}, kFte},
          {{7, 3, 7, 9}, kFteTotal, false},
          {{4, 9, 6, 9}, kFteTotal, false},
      },
      .totals = {
          {{7, 3, 7, 9}, {{4, 3, 6, 3}}},  // the last adds the totals beside it
          {{4, 9, 6, 9}, {{4, 3, 4, 8}}},
      },
      .spans = {{3, 1, 7, 1}, {2, 9, 3, 9}},
      .bold = {{2, 9}},
      .title = "Table 3.3 Full time equivalent for Report 191 (excluding N1, N2, N3) students by "
               "vocational field and level",
  };
  return design;
}

const GridDesign& Report191Design() {
  static const GridDesign design = {
      .columns = 14,
      .rows = 7,
      .column_widths = {300, 620, 2540, 700, 700, 700, 700, 700, 700, 700, 700, 700, 700, 840},
      .row_height = 300,
      .row_heights = {480},
      .head_rows = 3,
      .label_columns = 3,
      .texts = WithPopulationHeads({
          {2, 1, "3.4"},
          {3, 1, "Student Registration in N1 to N3 REPORT 191 programmes by Population Group, "
                 "Gender and Vocational Field "},
          {3, 2, "Vocational fields"},
          {1, 4, "1"},  {2, 4, "3.4.1"},  {3, 4, "Engineering N1"},
          {1, 5, "2"},  {2, 5, "3.4.2"},  {3, 5, "Engineering N2"},
          {1, 6, "3"},  {2, 6, "3.4.3"},  {3, 6, "Engineering N3"},
          {2, 7, "TOTALS"},
      }),
      .rules = {
          {{4, 4, 13, 6}, Number(0, 9999)},
          {{14, 4, 14, 7}, Number(0, 99999), false},
          {{4, 7, 13, 7}, Number(0, 99999), false},
      },
      .totals = {
          {{14, 4, 14, 6}, {{4, 4, 13, 4}}},
          {{4, 7, 14, 7}, {{4, 4, 4, 6}}},
      },
      .spans = WithPopulationSpans({{3, 1, 14, 1}, {3, 2, 3, 3}, {2, 7, 3, 7}}),
      .bold = {{2, 7}},
      .title = "Table 3.4 Student registration in N1 to N3 Report 191 programmes by population "
               "group, gender and vocational field",
  };
  return design;
}

// ---- Records ---------------------------------------------------------------------------------

CellTable FteCells(CellRange body, Axis rows, Axis columns, InsertValue field) {
  return {
      .select = "Select * from tbl_studentFTE where collegeemisnumber = ",
      .remove = "Delete * from tbl_StudentFTE where collegeemisnumber = ",
      .insert = "Insert into tbl_StudentFTE",
      .body = body,
      .walk = Walk::kColumnByColumn,
      .rows = std::move(rows),
      .columns = std::move(columns),
      .values = {
          {"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus},
          {"ProgrammeRegistrationTypeCD", ColumnCode()}, {"VocationalFieldFTECD", field},
          {"SurveyYear", kYear}, {"Quantity", kQuantity}},
  };
}

// One grid's share of the records.
struct FteTable {
  int grid;  // index in gridFTE
  int first_type, last_type;
  CellTable cells;
};

// In the order of storing. The type is the column, and the field the row, but for an offset; all
// of N1 to N3 is one row, and stored as field 5, engineering.
const std::vector<FteTable>& FteTables() {
  static const std::vector<FteTable> tables = {
      {0, 4, 6, FteCells({4, 3, 6, 8}, {.fields = {"VocationalFieldFTECD"}, .offset = 2, .labels = {3}},
                         {.fields = {"programmeregistrationtypeCD"}, .offset = 0, .labels = {2}}, RowCode())},
      {2, 1, 3, FteCells({4, 3, 6, 3}, {.fields = {}, .offset = 3},
                         {.fields = {"programmeregistrationtypeCD"}, .offset = 3, .labels = {2}}, Constant(5))},
      {1, 9, 11, FteCells({4, 3, 6, 5}, {.fields = {"VocationalFieldFTECD"}, .offset = -4, .labels = {3}},
                          {.fields = {"programmeregistrationtypeCD"}, .offset = -5, .labels = {2}}, RowCode())},
  };
  return tables;
}

// The records of N4 to N6 in the same table belong to another page. The vocational field is
// stored as the level, and not read.
const CellTable& Report191() {
  static const CellTable table = {
      .select = "Select * from tbl_StudentPopulationGroup191 where collegeemisnumber = ",
      .remove = "Delete * from tbl_StudentPopulationGroup191 where collegeemisnumber = ",
      .insert = "Insert into tbl_StudentPopulationGroup191",
      .body = {4, 4, 13, 6},
      .walk = Walk::kColumnByColumn,
      .rows = {
          .fields = {"programmeregistrationtypeCD"},
          .positions = {{4, {1}}, {5, {2}}, {6, {3}}},
          .labels = {3},
      },
      .columns = PopulationColumns(),
      .values = {
          {"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus},
          {"programmeregistrationtypeCD", RowCode()}, {"VocationalField191CD", RowCode()},
          {"PopulationGroupCD", ColumnCode(0)}, {"GenderCD", ColumnCode(1)},
          {"SurveyYear", kYear}, {"Quantity", kQuantity}},
      .select_tail = " and programmeregistrationtypeCD < 4 ",
      .remove_tail = " and programmeregistrationtypeCD < 4",
  };
  return table;
}
// clang-format on

// The table that a record of this type belongs to; null for one that is passed over.
const FteTable* FteTableOf(const Value& type) {
  if (type.IsNull()) return nullptr;
  const double number = type.Number();
  const auto& tables = FteTables();
  const auto table = std::find_if(tables.begin(), tables.end(), [&](const FteTable& candidate) {
    return candidate.first_type <= number && number <= candidate.last_type;
  });
  return table == tables.end() ? nullptr : &*table;
}

// Each record goes into the grid that `grid_of` gives for its table; null: nowhere.
void ShowFte(const SiteRecords& site, const std::function<Grid*(const FteTable&)>& grid_of) {
  Recordset records;
  records.Open(FteTables().front().cells.select + OfThisSiteAndYear(site), site.connection);
  for (; !records.Eof(); records.MoveNext()) {
    const FteTable* table = FteTableOf(records.Field("programmeregistrationtypeCD"));
    Grid* grid = table == nullptr ? nullptr : grid_of(*table);
    if (grid == nullptr) continue;
    Cell cell;
    table->cells.rows.Place(records, cell.row);
    table->cells.columns.Place(records, cell.column);
    grid->SetText(cell.column, cell.row, records.Field("quantity").Text());
  }
}

// The records of one of the three grids.
std::function<void(const SiteRecords&, Grid&)> FteOf(int index) {
  return [index](const SiteRecords& site, Grid& grid) {
    ShowFte(site, [&](const FteTable& table) { return table.grid == index ? &grid : nullptr; });
  };
}

void ShowReport191(const SiteRecords& site, Grid& grid) {
  const CellTable& table = Report191();
  Recordset records;
  records.Open(table.select + OfThisSiteAndYear(site) + table.select_tail, site.connection);
  Cell cell;
  for (; !records.Eof(); records.MoveNext()) {
    table.columns.Place(records, cell.column);
    cell.row = 0;  // a record of no level is passed over, not put where the one before went
    table.rows.Place(records, cell.row);
    grid.SetText(cell.column, cell.row, records.Field("quantity").Text());
  }
}

}  // namespace

const std::vector<KeptTable>& FrmPage5::Kept() {
  static const std::vector<KeptTable> tables = {
      {.number = "3.1",
       .grid = "gridFTE",
       .index = 1,
       .design = &NcvFteDesign(),
       .cells = &FteTables()[2].cells,
       .load = FteOf(1)},
      {.number = "3.2",
       .grid = "gridFTE",
       .index = 2,
       .design = &N1ToN3FteDesign(),
       .cells = &FteTables()[1].cells,
       .load = FteOf(2)},
      {.number = "3.3",
       .grid = "gridFTE",
       .index = 0,
       .design = &N4ToN6FteDesign(),
       .cells = &FteTables()[0].cells,
       .load = FteOf(0)},
      {.number = "3.4",
       .grid = "gridReport191",
       .index = 2,
       .design = &Report191Design(),
       .cells = &Report191(),
       .load = ShowReport191},
  };
  return tables;
}

FrmPage5::FrmPage5(FormHost& host, const PageRow& page)
    : SurveyPage(host, page),
      Label1(*this, "Label1", "FULL TIME EQUIVALENCE"),
      gridFTE{{{*this, "gridFTE", N4ToN6FteDesign(), 0},
               {*this, "gridFTE", NcvFteDesign(), 1},
               {*this, "gridFTE", N1ToN3FteDesign(), 2}}},
      Label2(*this, "Label2", "HEADCOUNT ENROLMENT"),
      gridReport191(*this, "gridReport191", Report191Design(), 2),
      control_totals_(*this, "Label3") {
  Label1.Heading = true;
  Label2.Heading = true;
  for (GridControl& grid : gridFTE) MarkChangesOf(grid);
}

Layout FrmPage5::Body() {
  return ColumnOf({control_totals_.Arrange(), Place(Label1), Place(gridFTE[1]), Place(gridFTE[2]),
                   Place(gridFTE[0]), Place(Label2), Place(gridReport191)});
}

void FrmPage5::PlaceCursor() { gridFTE[1].SetActiveCell(4, 3); }

void FrmPage5::GetPage() {
  GetFTE();
  GetReport191();
}

void FrmPage5::SavePage() {
  SaveFTE();
  SaveReport191();
}

void FrmPage5::GetFTE() {
  ShowFte(survey(), [this](const FteTable& table) { return &gridFTE[table.grid]; });
}

void FrmPage5::SaveFTE() {
  RemoveRecords(survey(), FteTables().front().cells);
  for (const FteTable& table : FteTables()) {
    InsertRecords(survey(), table.cells, gridFTE[table.grid]);
  }
}

void FrmPage5::GetReport191() { ShowReport191(survey(), gridReport191); }

void FrmPage5::SaveReport191() { SaveCells(survey(), Report191(), gridReport191); }

}  // namespace survey
