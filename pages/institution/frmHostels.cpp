#include "pages/institution/frmHostels.h"

#include <algorithm>
#include <string_view>

#include "base/text.h"
#include "records/record_cells.h"
#include "store/dialect.h"

namespace survey {
namespace {

constexpr auto kText = CellAs::kText;
constexpr auto kQuoted = CellAs::kQuoted;

constexpr int kSetaYear = 2012;  // of accreditations, whatever the survey year is
constexpr int kHostelRows = 5;

constexpr Cell kName{4, 2};
constexpr Cell kBuilding{4, 4};
constexpr Cell kStreetNumber{4, 5};
constexpr Cell kStreetName{4, 6};
constexpr Cell kTown{4, 7};
constexpr Cell kPostalCode{7, 7};
constexpr Cell kTelephone{4, 8};
constexpr Cell kFax{7, 8};
constexpr Cell kLongitude{4, 10};
constexpr Cell kLatitude{4, 11};       // what is saved
constexpr Cell kShownLatitude{7, 11};  // where a stored one is shown

struct Seta {
  int id;
  const char* name;
  Cell cell;  // of the name; the box to tick stands right of it
};

// clang-format off
constexpr Seta kSetas[] = {
    {1, "AGRISETA", {2, 2}},    {2, "BANKSETA", {2, 3}},
    {3, "CATHSSET", {2, 4}},    {4, "CETA", {2, 5}},
    {5, "CHIETA", {4, 2}},      {6, "ETDP-SETA", {4, 3}},
    {7, "EWSETA", {4, 4}},      {8, "FASSET", {4, 5}},
    {9, "FOODBEV", {6, 2}},     {10, "FP&M SETA", {6, 3}},
    {11, "HWSETA", {6, 4}},     {12, "INSETA", {6, 5}},
    {13, "LGSETA", {8, 2}},     {14, "MERSETA", {8, 3}},
    {15, "MICT SETA", {8, 4}},  {16, "MQA", {8, 5}},
    {17, "PSETA", {10, 2}},     {18, "SASSETA", {10, 3}},
    {19, "SERVICES SETA", {10, 4}},  {20, "TETA", {10, 5}},
    {21, "W&R-SETA", {12, 2}},
};

const GridDesign& HostelListDesign() {
  static const GridDesign design = {
      .columns = 1,
      .rows = kHostelRows,
      .column_widths = {9000},
      .row_height = 300,
      .heads = {"Name of Hostel"},
      .locked_color = kWhite,
      .title = "Hostels of the site",
  };
  return design;
}

const GridDesign& HostelDesign() {
  static const GridDesign design = {
      .columns = 7,
      .rows = 11,
      .column_widths = {480, 240, 2600, 2900, 720, 2260, 1600},
      .row_height = 300,
      .texts = {
          {1, 1, "The following information must be completed for each hostel."},
          {1, 2, "1.15"},     {3, 2, "Name of Hostel"},
                              {3, 3, "Physical address"},
          {1, 4, "1.15.1"},   {3, 4, "Building"},
          {1, 5, "1.15.2"},   {3, 5, "Street Number"},
          {1, 6, "1.15.3"},   {3, 6, "Street Name"},
          {1, 7, "1.15.4"},   {3, 7, "Town or City"},      {6, 7, "1.15.5        Postal Code"},
          {1, 8, "1.15.6"},   {3, 8, "Telephone Number"},  {6, 8, " 1.15.7       Fax Number"},
          {1, 9, "Please provide GIS Coordinates for the hostel site mentioned "},
          {1, 10, "1.15.8"},  {3, 10, "GIS Longitude"},
          {1, 11, "1.15.9"},  {3, 11, "GIS Latitude"},
      },
      .rules = {
          {{4, 2, 7, 2}, Text(200)},
          {{4, 4}, Text(50)},
          {{4, 5}, Text(30)},
          {{4, 6, 7, 6}, Text(50)},
          {{4, 7, 5, 7}, Capitals(50)},  {{7, 7}, Digits(4)},
          {{4, 8}, Digits(10)},          {{7, 8}, Digits(10)},
          {{4, 10, 7, 10}, Text(200)},
          {{4, 11, 7, 11}, Text(100)},
      },
      .spans = {
          {1, 1, 7, 1},
          {1, 2, 2, 2},    {4, 2, 7, 2},
          {1, 3, 2, 3},    {3, 3, 7, 3},
          {1, 4, 2, 4},    {5, 4, 7, 4},
          {1, 5, 2, 5},    {5, 5, 7, 5},
          {1, 6, 2, 6},    {4, 6, 7, 6},
          {1, 7, 2, 7},    {4, 7, 5, 7},
          {1, 8, 2, 8},
          {1, 9, 7, 9},
          {1, 10, 2, 10},  {4, 10, 7, 10},
          {1, 11, 2, 11},  {4, 11, 6, 11},  // the last cell shows a stored latitude
      },
      .bold = {{1, 1}, {3, 3}, {1, 9}},
      .title = "Details of one hostel",
  };
  return design;
}
// clang-format on

GridDesign MakeSetaDesign() {
  GridDesign design = {
      .columns = 13,
      .rows = 5,
      .column_widths = {600, 1270, 420, 1270, 420, 1270, 420, 1270, 420, 1500, 420, 1270, 420},
      .row_height = 300,
      .texts = {{1, 1, "1.16"},
                {2, 1,
                 "Select the SETAS your college is registered or accredited with (More than one can"
                 " be selected) "},
                {13, 2, "0"}},
      .spans = {{2, 1, 13, 1}},
      .bold = {{1, 1, 2, 1}},
      .title = "SETAs the college is registered or accredited with",
  };
  for (const Seta& seta : kSetas) {
    design.texts.push_back({seta.cell.column, seta.cell.row, seta.name});
    design.rules.push_back({{seta.cell.column + 1, seta.cell.row}, CheckBoxCell()});
  }
  return design;
}

const GridDesign& SetaDesign() {
  static const GridDesign design = MakeSetaDesign();
  return design;
}

// 0 for a name that is none.
int SetaIdFromName(std::string_view name) {
  const auto seta = std::ranges::find(kSetas, name, &Seta::name);
  return seta == std::end(kSetas) ? 0 : seta->id;
}

// clang-format off
// In the order of the INSERT.
const std::vector<Answer> kAnswers = {
    {"HostelName", kName, kText},
    {"Physical_Building", kBuilding, kText},
    {"Physical_street", kStreetNumber, CellAs::kNumberAndName},
    {"Physical_city", kTown, kQuoted},
    {"Physical_Code", kPostalCode, kQuoted},
    {"Telephone", kTelephone, kQuoted},
    {"Facsimile", kFax, kQuoted},
    {"GISLat", kLatitude, kQuoted, kShownLatitude},
    {"GISlong", kLongitude, kQuoted},
};
// The postal code, which has a column of its own here, comes between.
const std::vector<const char*> kUpdateBeforeCode = {
    "Hostelname = ", ",physical_building =", ",physical_Street = ", ",physical_city = ",
};
const std::vector<const char*> kUpdateBehindCode = {
    ",telephone =", ",facsimile = ", ",GISlat = ", ",GISLong =",
};
// clang-format on

constexpr char kSelectHostels[] = "Select * from tbl_Hostels  WHERE collegeemisnumber = ";

Recordset ReadHostels(const SiteRecords& site) {
  Recordset hostels;
  hostels.Open(kSelectHostels + OfThisSite(site), site.connection);
  return hostels;
}

void ShowStored(const Recordset& hostel, Grid& grid) { ShowEachAnswer(hostel, kAnswers, grid); }

std::vector<Code> SetaCodes() {
  std::vector<Code> codes;
  for (const Seta& seta : kSetas) {
    codes.push_back({"tbl_SETAAccreditation", "SETAID", seta.id, seta.name});
  }
  return codes;
}

// Ticks only: a box that the user has ticked stays ticked.
void ShowSetas(const SiteRecords& site, Grid& grid) {
  Recordset stored;
  stored.Open("Select * from tbl_Setaaccreditation  WHERE collegeemisnumber = " + OfThisSite(site),
              site.connection);
  for (; !stored.Eof(); stored.MoveNext()) {
    for (const Seta& seta : kSetas) {
      if (stored.Field("setaID").Is(seta.id)) {
        grid.SetText(seta.cell.column + 1, seta.cell.row, "1");
      }
    }
  }
}

}  // namespace

const std::vector<KeptTable>& FrmHostels::Kept() {
  static const std::vector<KeptTable> tables = {
      {.number = "1.15",
       .grid = "gridGeneralInfo",
       .design = &HostelDesign(),
       .form = RecordForm{ReadHostels, ShowStored},
       .required = {{kName}}},
      {.number = "1.16",
       .grid = "gridSETA",
       .index = -1,
       .design = &SetaDesign(),
       .load = ShowSetas,
       .codes = SetaCodes},
  };
  return tables;
}

FrmHostels::FrmHostels(FormHost& host, const PageRow& page)
    : SurveyPage(host, page),
      gridGeneralInfo(*this, "gridGeneralInfo", HostelDesign()),
      gridhostels(*this, "gridhostels", HostelListDesign()),
      gridSETA(*this, "gridSETA", SetaDesign()) {
  Label3.Heading = true;
  gridGeneralInfo.on_change = [this](int, int) { cmdSaveHostel.BackColor = kYellow; };
  gridSETA.on_check = [this](int, int) { MarkUnsaved(); };
  gridhostels.on_click = [this](int, int row) {
    const std::string name = gridhostels.GetText(1, row);
    if (!name.empty()) ShowHostel(SqlEscape(name));
  };
  cmdSave.on_click = [this] { SavePage(); };
  cmdAdd.on_click = [this] { ClearHostel(); };
  cmdSaveHostel.on_click = [this] { SaveHostel(); };
  cmdDelete.on_click = [this] { DeleteHostel(); };
}

Layout FrmHostels::Body() {
  return ColumnOf({Place(Label3), Place(Label1), Place(gridGeneralInfo),
                   RowOf({Place(cmdAdd), Place(cmdSaveHostel), Place(cmdDelete), Space()}),
                   Place(Label2), Place(gridhostels), Place(gridSETA)});
}

void FrmHostels::Form_Activate() {
  survey().OpenDatabaseConnection();
  GetPage();
}

void FrmHostels::GetPage() {
  LoadSetaSelection();
  FillHostelList();
}

// ---- SETAs -----------------------------------------------------------------------------------

void FrmHostels::LoadSetaSelection() { ShowSetas(survey(), gridSETA); }

void FrmHostels::SaveSetaSelection() {
  const std::string college = NumberText(survey().CollegeEmisNumber);
  const std::string campus = NumberText(survey().CampusEmisNumber);
  survey().Execute("DELETE * FROM tbl_SETAAccreditation WHERE collegeemisnumber = " + college +
                   " and CampusEMISNumber = " + campus);
  for (int column = 3; column <= 13; column += 2) {
    for (int row = 2; row <= 5; ++row) {
      if (gridSETA.GetInteger(column, row) != 1) continue;
      const int id = SetaIdFromName(gridSETA.GetText(column - 1, row));
      survey().Execute(
          "Insert into tbl_SETAAccreditation(Collegeemisnumber,campusemisnumber,surveyyear,"
          "setaid)VALUES(" +
          college + "," + campus + "," + NumberText(kSetaYear) + "," + NumberText(id) + ")");
    }
  }
}

// ---- Hostels ---------------------------------------------------------------------------------

void FrmHostels::FillHostelList() {
  gridhostels.ClearRange(1, 1, 1, kHostelRows);
  Recordset hostels;
  hostels.Open(
      "Select hostelname from tbl_Hostels WHERE collegeemisnumber = " + OfThisSite(survey()),
      survey().DatabaseConnection.get());
  for (int row = 1; !hostels.Eof(); hostels.MoveNext(), ++row) {
    gridhostels.SetText(1, row, hostels.Field("hostelname").Text());
  }
}

void FrmHostels::ShowHostel(const std::string& escaped_name) {
  Recordset hostel;
  hostel.Open(kSelectHostels + OfThisSite(survey()) + " and hostelname = '" + escaped_name + "'",
              survey().DatabaseConnection.get());
  if (hostel.Eof()) return;
  ShowAnswers(hostel, kAnswers, gridGeneralInfo);
}

// A hostel is known by its name alone: a changed name makes a new one, and a change reaches the
// hostels of that name on every site.
void FrmHostels::SaveHostel() {
  const std::string& name = gridGeneralInfo.GetText(kName.column, kName.row);
  if (name.empty()) {
    boxes().UserMessage("You must enter the name of the hostel to save data");
    SetFocus(gridGeneralInfo, kName);
    return;
  }
  Recordset stored;
  stored.Open("Select * from tbl_Hostels WHERE hostelname = '" + SqlEscape(name) +
                  "' and collegeemisnumber = " + OfThisSite(survey()),
              survey().DatabaseConnection.get());
  if (stored.Eof()) {
    survey().Execute(
        "INSERT INTO tbl_Hostels (CollegeEmisNumber,CampusEMISnumber,SurveyYear,HostelName,"
        "Physical_Building,Physical_street,Physical_city,Physical_Code,Telephone, Facsimile,GISLat,"
        "GISlong)VALUES (" +
        NumberText(survey().CollegeEmisNumber) + "," + NumberText(survey().CampusEmisNumber) + "," +
        NumberText(survey().SurveyYear) + "," + ValuesOf(kAnswers, gridGeneralInfo) + ")");
  } else {
    survey().Execute(
        "UPDATE tbl_Hostels set " + Assignments(kUpdateBeforeCode, kAnswers, gridGeneralInfo) +
        ",physicalcode ='" + gridGeneralInfo.GetText(kPostalCode.column, kPostalCode.row) + "'" +
        Assignments(kUpdateBehindCode, kAnswers, gridGeneralInfo) + " WHERE hostelname = '" +
        SqlEscape(name) + "'");
  }
  cmdSaveHostel.BackColor = kButtonFace;
  FillHostelList();
}

// The latitude that is saved stays.
void FrmHostels::ClearHostel() {
  for (const Answer& answer : kAnswers) {
    gridGeneralInfo.SetText(answer.shown.column, answer.shown.row, "");
  }
  gridGeneralInfo.SetText(kStreetName.column, kStreetName.row, "");
}

void FrmHostels::DeleteHostel() {
  const std::string name = gridhostels.GetText(1, gridhostels.ActiveRow());
  if (name.empty()) {
    boxes().UserMessage("Please click on a hostel name to delete");
    return;
  }
  if (!boxes().UserWarning(
          "You will not be able to reverse this action. Are you sure you want to delete " + name +
          "?")) {
    return;
  }
  survey().Execute("DELETE from tbl_hostels where hostelname ='" + SqlEscape(name) + "'");
  FillHostelList();
}

}  // namespace survey
