#include "pages/institution/frmPage2.h"

#include <algorithm>
#include <iterator>

#include "base/text.h"
#include "records/codes.h"
#include "records/record_cells.h"

namespace survey {
namespace {

constexpr auto kText = CellAs::kText;
constexpr auto kQuoted = CellAs::kQuoted;
constexpr auto kNumber = CellAs::kNumber;

constexpr Cell kCampusName{5, 5};
constexpr Cell kStreetNumber{4, 9};
constexpr Cell kStreetName{4, 10};
constexpr Cell kTown{4, 11};
constexpr Cell kManager{4, 17};
constexpr Cell kHasMis{7, 19};
constexpr Cell kHasMisManager{7, 24};  // never stored; a stored manager's name answers it

// clang-format off
const GridDesign& IdentityDesign() {
  static const GridDesign design = {
      .columns = 12,
      .rows = 6,
      .column_widths = {720, 1120, 1120, 1120, 900, 900, 760, 760, 760, 940, 940, 960},
      .row_height = 330,
      .row_heights = {330, 330, 330, 330, 330, 480},
      .texts = {
          {2, 1, "College EMIS Number"},  {7, 1, "Campus EMIS Number"},
          {1, 2, "GENERAL INFORMATION"},
          {1, 3, "1.1"},  {2, 3, "Information for (1=Central Office, 2=Campus)"},
          {1, 4, "1.2"},  {2, 4, "Name of Corvale college"},
          {1, 5, "1.3"},  {2, 5, "Name of Corvale college campus"},
          {1, 6, "1.4"},  {2, 6, "Location of college [1=Western Cape; 2=Eastern Cape; "
                                 "3=Northern Cape; 4=Free State; 5=KwaZulu Natal; 6=North West; "
                                 "7=Gauteng; 8=Mpumalanga; 9=Limpopo]"},
      },
      .rules = {
          {{5, 1, 6, 1}, Number(0, 999999999.99), false},
          {{10, 1, 12, 1}, Number(0, 999999999.99), false},
          {{12, 6}, Number(0, 9), false},
      },
      .spans = {
          {2, 1, 4, 1},   {5, 1, 6, 1},   {7, 1, 9, 1},  {10, 1, 12, 1},
          {1, 2, 12, 2},
          {2, 3, 10, 3},  {11, 3, 12, 3},
          {2, 4, 4, 4},   {5, 4, 12, 4},
          {2, 5, 4, 5},   {5, 5, 12, 5},
          {2, 6, 11, 6},
      },
      .alignments = {{{11, 3}, Alignment::kRight}},
      .bold = {{2, 1}, {7, 1}, {1, 2}},
      .title = "General information: the site",
  };
  return design;
}

const GridDesign& QuestionsDesign() {
  static const GridDesign design = {
      .columns = 7,
      .rows = 36,
      .column_widths = {480, 240, 3200, 2830, 720, 2100, 1430},
      .row_height = 320,
      .row_heights = {480, 320, 320, 320, 320, 320, 320, 320, 320, 320, 320, 320, 320, 110,
                      320, 320, 320, 320, 320, 320, 320, 320, 320, 320, 320, 320, 320, 110,
                      320, 500, 470, 470, 470, 720, 470, 720},
      .texts = {
          {1, 1, "ADDRESS: Enter the postal address in Section 1.5 and the physical address in "
                 "Section 1.6\nIf the postal address is the same as the physical address then "
                 "only complete Section 1.6"},
          {1, 2, "1.5"},      {3, 2, "Postal Address"},
          {1, 3, "1.5.1"},    {3, 3, "P O Box"},
          {1, 4, "1.5.2"},    {3, 4, "Private Bag"},
          {1, 5, "1.5.3"},    {3, 5, "Post Office"},
          {1, 6, "1.5.4"},    {3, 6, "Town or City"},      {6, 6, "1.5.5      Postal Code"},
          {1, 7, "1.6"},      {3, 7, "Physical Address (Compulsory)"},
          {1, 8, "1.6.1"},    {3, 8, "Building"},
          {1, 9, "1.6.2"},    {3, 9, "Street Number"},
          {1, 10, "1.6.3"},   {3, 10, "Street Name"},
          {1, 11, "1.6.4"},   {3, 11, "Town or City"},     {6, 11, "1.6.5        Postal Code"},
          {1, 12, "1.7."},    {3, 12, "Local Municipality"},
          {1, 13, "1.8"},     {3, 13, "Telephone Number"}, {5, 13, "1.9"}, {6, 13, " Fax Number"},

          {1, 15, "1.10"},    {3, 15, "E-mail Address"},
          {1, 16, "1.11"},    {3, 16, "College Website Address"},
          {1, 17, "1.12"},    {3, 17, "Name of Principal/Campus Manager"},
          {1, 18, "1.13"},    {3, 18, "Cell Phone Number of Principal/Campus Manager"},
          {1, 19, "1.14"},    {3, 19, "Does the campus/site have a computerised Management "
                                      "Information System? [1=yes; 2=no]"},
          {1, 20, "1.14.1"},  {3, 20, "If the answer to question 1.14 is YES, then please "
                                      "indicate the name of the MIS"},
                              {3, 21, "(1=COLTECH, 2=DB2000; 3=ITS, 4=THUSANANG; 5 = Other). If "
                                      "other, specify the name of the product below"},
          {1, 23, "1.14.2"},  {3, 23, "When was the MIS introduced at your campus/college? "
                                      "Please give year"},
          {1, 24, "1.14.3"},  {3, 24, "Do you have a person who is responsible for managing your "
                                      "campus/college MIS? (1=yes; 2=no)"},
          {1, 25, "1.14.4"},  {3, 25, "Name of the MIS manager at the campus/college"},
          {1, 26, "1.14.5"},  {3, 26, "Telephone Number"}, {5, 26, "1.14.6"}, {6, 26, "Fax Number"},
          {1, 27, "1.14.7"},  {3, 27, "E-mail Address"},

          {1, 29, "SURVEY SIGNATURE PAGE"},
          {1, 30, "I,"},      {4, 30, "Principal of"},
          {1, 31, "fully understand the provision made in the Corvale Colleges Act no 16 of 2006, "
                  "regarding the duty of colleges to provide quality information."},
          {1, 32, "This act provides that every college must supply such information about the "
                  "college as is reasonably required by the Head of the Provincial Education "
                  "Department."},
          {1, 33, "I certify that the information provided on this form is to to the best of my "
                  "knowledge and belief correct and complete."},
          {1, 34, "Campus Manager"},     {5, 34, "Signature"},  {7, 34, "Date"},
          {1, 35, "I certify that the information provided on this form is to to the best of my "
                  "knowledge and belief correct and complete."},
          {1, 36, "College Principal"},  {5, 36, "Signature"},  {7, 36, "Date"},
      },
      .rules = {
          {{4, 3, 5, 3}, Text(50)},
          {{4, 4}, Text(40)},
          {{4, 5, 5, 5}, Text(50)},
          {{4, 6, 5, 6}, Capitals(50)},    {{7, 6}, Digits(4)},
          {{4, 8}, Text(50)},
          {{4, 9}, Text(30)},
          {{4, 10, 7, 10}, Text(50)},
          {{4, 11, 5, 11}, Capitals(50)},  {{7, 11}, Digits(4)},
          {{4, 12, 7, 12}, Text(50)},
          {{4, 13}, Digits(10)},           {{7, 13}, Digits(10)},
          {{4, 15, 7, 15}, Text(200)},
          {{4, 16, 7, 16}, Text(100)},
          {{4, 17, 7, 17}, Text(60)},
          {{5, 18, 6, 18}, Digits(10)},
          {{7, 19}, Number(1, 2)},
          {{7, 20}, Number(1, 5)},
          {{3, 22, 7, 22}, Text(50)},
          {{7, 23}, Digits(4)},
          {{7, 24}, Number(1, 2)},
          {{5, 25, 7, 25}, Text(60)},
          {{4, 26}, Text(10)},             {{7, 26}, Text(10)},  // not digits alone, as above
          {{4, 27, 7, 27}, Text(200)},
      },
      .spans = {  // the open cells of a question are one answer; numbers take two columns
          {1, 1, 7, 1},
          {1, 2, 2, 2},    {3, 2, 7, 2},
          {1, 3, 2, 3},    {4, 3, 5, 3},    {6, 3, 7, 3},
          {1, 4, 2, 4},    {5, 4, 7, 4},
          {1, 5, 2, 5},    {4, 5, 5, 5},    {6, 5, 7, 5},
          {1, 6, 2, 6},    {4, 6, 5, 6},
          {1, 7, 2, 7},    {3, 7, 7, 7},
          {1, 8, 2, 8},    {5, 8, 7, 8},
          {1, 9, 2, 9},    {5, 9, 7, 9},
          {1, 10, 2, 10},  {4, 10, 7, 10},
          {1, 11, 2, 11},  {4, 11, 5, 11},
          {1, 12, 2, 12},  {4, 12, 7, 12},
          {1, 13, 2, 13},
          {1, 14, 7, 14},
          {1, 15, 2, 15},  {4, 15, 7, 15},
          {1, 16, 2, 16},  {4, 16, 7, 16},
          {1, 17, 2, 17},  {4, 17, 7, 17},
          {1, 18, 2, 18},  {3, 18, 4, 18},  {5, 18, 6, 18},
          {1, 19, 2, 19},  {3, 19, 6, 19},
          {1, 20, 2, 20},  {3, 20, 6, 20},
          {1, 21, 2, 21},  {3, 21, 7, 21},
          {1, 22, 2, 22},  {3, 22, 7, 22},
          {1, 23, 2, 23},  {3, 23, 6, 23},
          {1, 24, 2, 24},  {3, 24, 6, 24},
          {1, 25, 2, 25},  {3, 25, 4, 25},  {5, 25, 7, 25},
          {1, 26, 2, 26},
          {1, 27, 2, 27},  {4, 27, 7, 27},
          {1, 28, 7, 28},
          {1, 29, 7, 29},
          {2, 30, 3, 30},  {5, 30, 7, 30},
          {1, 31, 7, 31},
          {1, 32, 7, 32},
          {1, 33, 7, 33},
          {1, 34, 4, 34},  {5, 34, 6, 34},
          {1, 35, 7, 35},
          {1, 36, 4, 36},  {5, 36, 6, 36},
      },
      .shades = {  // to write on by hand
          {{1, 30, 7, 30}, kWhite},
          {{1, 34, 7, 34}, kWhite},
          {{1, 36, 7, 36}, kWhite},
      },
      .alignments = {{{1, 29}, Alignment::kCenter}},
      .bold = {{1, 1}, {1, 2, 3, 2}, {1, 7, 3, 7}, {1, 29}},
      .title = "General information: address, management, information system",
  };
  return design;
}

// The record's fields in the order of showing: what stands before a street that cannot be shown
// is seen, what stands behind it is not.
const std::vector<FieldCell> kIdentity = {
    {"Collegename", {5, 4}},  {"CampusName", kCampusName},
    {"ProvinceCD", {12, 6}},  {"sitetype", {11, 3}},
};
const std::vector<Answer> kAnswers = {
    {"Postal_box", {4, 3}, kText},      {"Postal_bag", {4, 4}, kText},
    {"Postal_office", {4, 5}, kText},   {"Postal_city", {4, 6}, kText},
    {"Postal_Code", {7, 6}, kQuoted},   {"Physical_Building", {4, 8}, kText},
    {"Physical_Street", kStreetNumber, CellAs::kNumberAndName},
    {"Physical_City", kTown, kText},    {"Physical_Code", {7, 11}, kQuoted},
    {"Cellphone", {5, 18}, kQuoted},    {"email", {4, 15}, kText},
    {"website", {4, 16}, kText},        {"MISSystem", kHasMis, kNumber},
    {"MISProgramme", {7, 20}, kNumber}, {"MISProgrammeOther", {3, 22}, kText},
    {"MISManagerName", {5, 25}, kText}, {"Municipalarea", {4, 12}, kText},
    {"Manager", kManager, kText},       {"Telephone", {4, 13}, kQuoted},
    {"Facsimile", {7, 13}, kQuoted},    {"MISTelephone", {4, 26}, kText},
    {"MISFacsimile", {7, 26}, kText},   {"MISEmail", {4, 27}, kText},
    {"MISYear", {7, 23}, kQuoted},
};
const std::vector<const char*> kUpdate = {
    "Postal_box = ", ",Postal_bag = ", ",Postal_office = ", ",Postal_city = ", ",Postal_Code = ",
    ", Physical_Building = ", ", Physical_Street = ", ",Physical_City = ", ",Physical_Code = ",
    ", Cellphone = ", ",email = ", ",website = ", ", MISSystem = ", ",MISProgramme = ",
    ", MISProgrammeOther = ", ", MISManagerName = ", ",Municipalarea = ", ", Manager = ",
    ",Telephone = ", ",Facsimile = ", ", MISTelephone = ", ",MISFacsimile = ", ",MISEmail= ",
    ",MISYear = ",
};

// In the order of asking.
const std::vector<RequiredCell> kCompulsory = {
    {kStreetName, Need::kNotEmpty, "Please complete the physical address of the college to continue"},
    {kTown, Need::kNotEmpty, "Please complete the physical address of the college to continue"},
    {kManager, Need::kNotEmpty,
     "Please complete the name of the principal or campus manager to continue"},
    {kHasMis, Need::kNotZero, "Please complete question 1.14 to continue"},
};
// clang-format on

Recordset ReadSite(const SiteRecords& site) {
  Recordset stored;
  stored.Open("Select * from tbl_GeneralInformation WHERE CollegeEmisNumber = " +
                  NumberText(site.college_emis_number) +
                  " and CampusEMISnumber = " + NumberText(site.campus_emis_number),
              site.connection);
  return stored;
}

std::vector<Code> Codes() {
  constexpr char kTable[] = "tbl_GeneralInformation";
  static constexpr Answer kOfIdentity[] = {{"SiteType", {11, 3}, kNumber},
                                           {"ProvinceCD", {12, 6}, kNumber}};
  std::vector<Code> codes = CodesOf(kTable, kOfIdentity, IdentityDesign());
  std::ranges::move(CodesOf(kTable, kAnswers, QuestionsDesign()), std::back_inserter(codes));
  return codes;
}

void ShowQuestions(const SiteRecords& site, Grid& grid) {
  const Recordset stored = ReadSite(site);
  if (!stored.Eof()) ShowEachAnswer(stored, kAnswers, grid);
}

}  // namespace

const std::vector<KeptTable>& FrmPage2::Kept() {
  static const std::vector<KeptTable> tables = {
      {.number = "1.5 - 1.14",
       .grid = "gridGeneralInfo",
       .design = &QuestionsDesign(),
       .load = ShowQuestions,
       .required = kCompulsory,
       .codes = Codes},
  };
  return tables;
}

FrmPage2::FrmPage2(FormHost& host, const PageRow& page)
    : SurveyPage(host, page, {.previous = kToMainMenu, .menu = kNoButton}),
      gridPage2_1(*this, "gridPage2_1", IdentityDesign()),
      gridGeneralInfo(*this, "gridGeneralInfo", QuestionsDesign()) {
  MarkChangesOf(gridPage2_1);
  MarkChangesOf(gridGeneralInfo);
  gridGeneralInfo.on_cell = [this](int, int row) { LockByMisAnswer(row); };
}

Layout FrmPage2::Body() { return ColumnOf({Place(gridPage2_1), Place(gridGeneralInfo)}); }

void FrmPage2::Form_Activate() {
  Trap(row().errors.activate, [this] { GetPage(); });
  if (gridPage2_1.GetText(kCampusName.column, kCampusName.row).empty()) {
    gridPage2_1.SetText(kCampusName.column, kCampusName.row, survey().ChosenDatabaseName);
  }
  gridGeneralInfo.SetActiveCell(4, 3);
  gridPage2_1.SetText(5, 1, survey().CollegeEmisNumber);
  gridPage2_1.SetText(10, 1, survey().CampusEmisNumber);
}

void FrmPage2::GetPage() {
  const Recordset site = ReadSite(survey());
  if (site.Eof()) return;
  ShowFields(site, kIdentity, gridPage2_1);
  ShowAnswers(site, kAnswers, gridGeneralInfo);
  if (!site.Field("MISManagerName").IsEmpty()) {
    gridGeneralInfo.SetText(kHasMisManager.column, kHasMisManager.row, 1);
  }
}

bool FrmPage2::MaySave() {
  for (const RequiredCell& required : kCompulsory) {
    if (!IsMissing(gridGeneralInfo, required)) continue;
    boxes().UserMessage(required.request);
    SetFocus(gridGeneralInfo, required.cell);
    return false;
  }
  return true;
}

void FrmPage2::SavePage() {
  TrapStatements(row().errors.save, [this] {
    survey().Execute("UPDATE tbl_GeneralInformation set " +
                     Assignments(kUpdate, kAnswers, gridGeneralInfo) +
                     ",SurveyYear = " + NumberText(survey().SurveyYear) +
                     " where CollegeEmisNumber = " + NumberText(survey().CollegeEmisNumber) +
                     " and CampusEMISnumber = " + NumberText(survey().CampusEmisNumber));
  });
}

// The rule is that of a sheet with more columns. On this one its answer is a cell that there is
// not, so it never locks anything, and the questions stay open whatever is answered.
void FrmPage2::LockByMisAnswer(int row) {
  const double answer = LeadingNumber(gridGeneralInfo.GetText(12, 16));
  if (row != 16 || (answer != 1 && answer != 2)) return;
  for (const auto& [column, follow_up_row] :
       {Cell{12, 17}, Cell{2, 18}, Cell{11, 19}, Cell{11, 20}, Cell{12, 21}}) {
    gridGeneralInfo.SetLock(column, follow_up_row, answer == 2);
    if (answer == 2) gridGeneralInfo.SetText(column, follow_up_row, "");
  }
}

}  // namespace survey
