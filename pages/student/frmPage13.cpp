#include "pages/student/frmPage13.h"

#include "base/text.h"
#include "records/codes.h"
#include "store/dialect.h"
#include "store/recordset.h"

namespace survey {
namespace {

constexpr int kMale = 5;
constexpr int kFemale = 6;
constexpr int kFirstProvince = 3;
constexpr int kLastProvince = 11;
constexpr int kProvinceOffset = 2;  // from a ProvinceCD to its row
constexpr int kFirstCountry = 13;
constexpr int kLastCountry = 22;

// clang-format off
const GridDesign& BoardersDesign() {
  static const GridDesign design = {
      .columns = 7,
      .rows = 23,
      .column_widths = {1000, 2000, 2000, 2000, 1300, 1300, 1300},
      .row_height = 330,
      .row_heights = {330, 520},
      .head_rows = 2,
      .texts = {
          {1, 1, "3.19"},
          {2, 1, "RESIDENT BOARDERS"},

          {1, 2, "Specify the number of resident students from various provinces and other "
                 "countries in boarding at your college's hostels."},
          {5, 2, "Male"},  {6, 2, "Female"},  {7, 2, "TOTAL"},

          {1, 3, "1. Western Cape"},
          {1, 4, "2. Eastern Cape"},
          {1, 5, "3. Northern Cape"},
          {1, 6, "4. Free State"},
          {1, 7, "5. KwaZulu Natal"},
          {1, 8, "6. North West"},
          {1, 9, "7.Gauteng"},
          {1, 10, "8. Mpumalanga"},
          {1, 11, "9. Limpopo"},
          {1, 12, "Other countries: Specify"},
          {1, 23, "TOTAL"},
      },
      .rules = {
          {{5, 3, 7, 11}, Number(0, 99999), false},
          {{5, 13, 7, 23}, Number(0, 99999), false},
          {{5, 3, 6, 11}, Number(0, 99999)},
          {{5, 13, 6, 22}, Number(0, 99999)},
          {{1, 13, 1, 22}, Text(255)},
      },
      .totals = {
          {{5, 23, 6, 23}, {{5, 3, 5, 11}}},  // without the other countries
          {{7, 3, 7, 11}, {{5, 3, 6, 3}}},
          {{7, 13, 7, 23}, {{5, 13, 6, 13}}},
      },
      .spans = {
          {2, 1, 7, 1},   {1, 2, 4, 2},
          {1, 3, 4, 3},   {1, 4, 4, 4},   {1, 5, 4, 5},   {1, 6, 4, 6},   {1, 7, 4, 7},
          {1, 8, 4, 8},   {1, 9, 4, 9},   {1, 10, 4, 10}, {1, 11, 4, 11}, {1, 12, 7, 12},
          {1, 13, 4, 13}, {1, 14, 4, 14}, {1, 15, 4, 15}, {1, 16, 4, 16}, {1, 17, 4, 17},
          {1, 18, 4, 18}, {1, 19, 4, 19}, {1, 20, 4, 20}, {1, 21, 4, 21}, {1, 22, 4, 22},
          {1, 23, 4, 23},
      },
      .bold = {{1, 12}, {1, 23}},
      .title = "Table 3.19 RESIDENT BOARDERS",
  };
  return design;
}
// clang-format on

std::vector<Code> Provinces() {
  std::vector<Code> codes;
  for (int row = kFirstProvince; row <= kLastProvince; ++row) {
    codes.push_back({"tbl_StudentBoarders", "ProvinceCD", row - kProvinceOffset,
                     LabelOf(BoardersDesign(), {1, row})});
  }
  return codes;
}

void ShowBoarders(const SiteRecords& site, Grid& grid) {
  Recordset records;
  records.Open(
      "Select * from tbl_StudentBoarders where collegeemisnumber = " + OfThisSiteAndYear(site),
      site.connection);
  const auto show_counts = [&](int row) {
    grid.SetText(kMale, row, records.Field("maleenrolment").Text());
    grid.SetText(kFemale, row, records.Field("femaleenrolment").Text());
  };
  // More countries than the table has rows for run on into the totals and past them.
  int country_row = kFirstCountry;
  for (; !records.Eof(); records.MoveNext()) {
    const Value& province = records.Field("provincecd");
    if (!province.IsEmpty()) show_counts(ToWholeNumber(province.Number() + kProvinceOffset));
    const Value& country = records.Field("country");
    if (country.IsEmpty()) continue;
    grid.SetText(1, country_row, country.Text());
    show_counts(country_row);
    ++country_row;
  }
}

}  // namespace

const std::vector<KeptTable>& FrmPage13::Kept() {
  static const std::vector<KeptTable> tables = {
      {.number = "3.19",
       .grid = "gridPage13_1",
       .index = -1,
       .design = &BoardersDesign(),
       .load = ShowBoarders,
       .codes = Provinces},
  };
  return tables;
}

FrmPage13::FrmPage13(FormHost& host, const PageRow& page)
    : SurveyPage(host, page), gridPage13_1(*this, "gridPage13_1", BoardersDesign()) {
  MarkChangesOf(gridPage13_1);
}

Layout FrmPage13::Body() { return Place(gridPage13_1); }

void FrmPage13::PlaceCursor() { gridPage13_1.SetActiveCell(kMale, kFirstProvince); }

void FrmPage13::GetPage() { ShowBoarders(survey(), gridPage13_1); }

void FrmPage13::SavePage() {
  survey().Execute("Delete * from tbl_StudentBoarders where collegeemisnumber = " +
                   OfThisSiteAndYear(survey()));
  for (int row = kFirstProvince; row <= kLastProvince; ++row) SaveProvince(row);
  for (int row = kFirstCountry; row <= kLastCountry; ++row) SaveCountry(row);
}

FrmPage13::Counts FrmPage13::CountsOf(int row) const {
  return {gridPage13_1.GetInteger(kMale, row), gridPage13_1.GetInteger(kFemale, row)};
}

void FrmPage13::SaveProvince(int row) {
  const Counts counts = CountsOf(row);
  if (counts.male == 0 && counts.female == 0) return;
  Insert("ProvinceCD", std::to_string(row - kProvinceOffset), counts);
}

// The name decides: a country without numbers is kept with zeros, numbers without one are not.
void FrmPage13::SaveCountry(int row) {
  const std::string country = SqlEscape(gridPage13_1.GetText(1, row));
  const Counts counts = CountsOf(row);
  if (!country.empty()) Insert("Country", "'" + country + "'", counts);
}

void FrmPage13::Insert(const std::string& column, const std::string& origin, const Counts& counts) {
  survey().Execute("Insert into tbl_StudentBoarders(CollegeEmisNumber,CampusEmisnumber," + column +
                   ",MaleEnrolment,FemaleEnrolment,SurveyYear)VALUES(" +
                   NumberText(survey().CollegeEmisNumber) + "," +
                   NumberText(survey().CampusEmisNumber) + "," + origin + "," +
                   std::to_string(counts.male) + "," + std::to_string(counts.female) + "," +
                   NumberText(survey().SurveyYear) + ")");
}

}  // namespace survey
