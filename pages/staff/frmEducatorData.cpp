#include "pages/staff/frmEducatorData.h"

#include <optional>
#include <tuple>

#include "base/text.h"
#include "grid/cell_entry.h"
#include "records/codes.h"
#include "records/record_cells.h"
#include "store/dialect.h"

namespace survey {
namespace {

constexpr auto kText = CellAs::kText;
constexpr auto kQuoted = CellAs::kQuoted;
constexpr auto kBare = CellAs::kBare;
constexpr auto kNumber = CellAs::kNumber;

constexpr int kFirstCourse = 2;  // row
constexpr int kLastCourse = 9;

constexpr Cell kSiteType{7, 1};
constexpr Cell kStaffCategory{7, 2};
constexpr Cell kTitle{2, 3};
constexpr Cell kInitials{4, 3};
constexpr Cell kSurname{6, 3};
constexpr Cell kPersalNumber{2, 4};
constexpr Cell kEmployeeNumber{6, 4};
constexpr Cell kSaceNumber{2, 5};
constexpr Cell kGender{7, 5};
constexpr Cell kCitizen{4, 6};
constexpr Cell kIdNumber{2, 7};
constexpr Cell kPassportNumber{6, 7};
constexpr Cell kNationality{5, 8};
constexpr Cell kSavedNationality{10, 8};  // a cell there is not: an empty text is saved
constexpr Cell kDateOfBirth{2, 9};
constexpr Cell kPopulationGroup{7, 9};
constexpr Cell kCellphone{2, 10};
constexpr Cell kHomeTelephone{6, 10};
constexpr Cell kHomeLanguage{7, 11};
constexpr Cell kDisability{7, 12};
constexpr Cell kOtherDisability{2, 13};
constexpr Cell kPersonnelCategory{7, 15};
constexpr Cell kAppointment{7, 16};
constexpr Cell kContract{7, 17};
constexpr Cell kRemuneration{7, 18};

constexpr ErrorName kLoadRoutine = {"frmEducatordata", "GetEducatorInformation Routine"};
constexpr ErrorName kSaveRoutine = {"frmEducatordata", "SaveEducatorInformation Routine"};

// clang-format off
const GridDesign& GeneralDesign() {
  static const GridDesign design = {
      .columns = 7,
      .rows = 18,
      .column_widths = {2000, 1900, 1400, 1400, 1400, 2300, 900},
      .row_heights = {280, 280, 280, 280, 280, 450, 450, 450, 450, 280, 450, 280, 280, 280, 1020,
                      280, 280, 280},
      .texts = {
          {1, 1, "4.1 Indicate if you are a staff member at (1=Central Office; 2 = Campus)"},
          {1, 2, "4.2 Staff member category (1=Lecturing staff; 2=Management staff; "
                 "3=Support staff)"},
          {1, 3, "4.3 Title"},  {3, 3, "4.4 Initials"},  {5, 3, "4.5 Surname"},
          {1, 4, "4.6 Persal Number"},   {3, 4, "4.7 College Employee Number"},
          {1, 5, "4.8 SACE Number"},     {3, 5, "4.9 Gender (1=M; 2=F)"},
          {1, 6, "4.10 Are you a South African citizen? (1=yes; 2=no)"},
          {1, 7, "4.11 SA ID Number"},   {3, 7, "4.12 Passport number if NOT SA citizen:"},
          {1, 8, "4.13 If NOT SA citizen, please provide country of citizenship"},
                                         {3, 8, "3.11 Home telephone"},
          {1, 9, "4.14 Date of Birth"},  {3, 9, "4.15 Population group [1=Black African; "
                                                "2=Coloured; 3=Indian; 4=White; 5=Other]"},
          {1, 10, "4.16 Cellphone"},     {3, 10, "4.17 Home Telephone"},
          {1, 11, "4.18 Home language [1=Afrikaans; 2=English; 3=ISiNdebele; 4=Sepedi; 5=Siswati; "
                  "6=Xitsonga; 7=Tshivenda; 8=Setswana; 9=ISsiXhosa; 10=IsiZulu; 11=Sesotho; "
                  "12=SASL; 13=Other]"},
          {1, 12, "4.19 Disability status [1=Sight; 2=Hearing; 3=Physical; 4=Multiple; 5=Epilepsy; "
                  "6=Other; 7=None]"},
          {1, 13, "Other"},
          {1, 14, "4.20 Personnel Category "},
          {1, 15, "Management staff [1=Principal; 2=Deputy Principal) \n"
                  "Lecturing staff (3=HOD; 4=Lecturer; 5=Education Specialist)\n"
                  "Support staff (6=Support; 7 = Other)\n\n"},
          {1, 16, "4.21 Nature of appointment [1=Permanent; 2=Temporary/Contract]"},
          {1, 17, "4.22 Type of Contract [1=Full time; 2=Part time]"},
          {1, 18, "4.23 Rumuneration (1= by PERSAL; 2 = by College)"},
      },
      .rules = {
          {{7, 1}, Number(1, 2)},
          {{7, 2}, Number(1, 3)},
          {{2, 3}, Capitals(60)},  {{4, 3}, Capitals(60)},  {{6, 3}, Capitals(60)},
          {{2, 4}, Digits(60)},          {{6, 4}, Text(15)},
          {{2, 5}, Digits(15)},          {{7, 5}, Number(1, 2)},
          {{4, 6}, Number(1, 2)},
          {{2, 7}, Digits(13), false},   {{6, 7}, Text(60), false},
          {{5, 8, 7, 8}, Text(40)},
          {{2, 9}, Date()},              {{7, 9}, Number(1, 5)},
          {{2, 10}, Digits(10)},         {{6, 10}, Digits(10)},
          {{7, 11}, Number(1, 13)},
          {{7, 12}, Number(1, 7)},
          {{2, 13}, Text(30)},
          {{7, 15}, Number(1, 7)},
          {{7, 16}, Number(1, 2)},
          {{7, 17}, Number(1, 2)},
          {{7, 18}, Number(1, 2)},
      },
      .spans = {  // the cells of a question are one label and one answer
          {1, 1, 6, 1},
          {1, 2, 6, 2},
          {6, 3, 7, 3},
          {3, 4, 5, 4},    {6, 4, 7, 4},
          {3, 5, 6, 5},
          {1, 6, 3, 6},    {5, 6, 7, 6},
          {3, 7, 5, 7},    {6, 7, 7, 7},
          {1, 8, 2, 8},    {3, 8, 4, 8},    {5, 8, 7, 8},
          {3, 9, 6, 9},
          {3, 10, 5, 10},  {6, 10, 7, 10},
          {1, 11, 6, 11},
          {1, 12, 6, 12},
          {2, 13, 4, 13},  {5, 13, 7, 13},
          {1, 14, 7, 14},
          {1, 15, 6, 15},
          {1, 16, 6, 16},
          {1, 17, 6, 17},
          {1, 18, 6, 18},
      },
      .bold = {{1, 14}},
      .title = "Details of the staff member",
  };
  return design;
}

const GridDesign& TrainingDesign() {
  static const GridDesign design = {
      .columns = 4,
      .rows = kLastCourse,
      .column_widths = {800, 5000, 1800, 3700},
      .row_height = 300,
      .row_heights = {1100},
      .head_rows = 1,
      .label_columns = 1,
      .texts = {
          {1, 1, "4.24"},
          {2, 1, "Indicate the training and/or skills development that the staff member has "
                 "undergone during the current year \n\nName of course"},
          {3, 1, "Number of contact hours on course"},
          {4, 1, "Name of Service Provider"},
          {1, 2, "4.24.1"},  {1, 3, "4.24.2"},  {1, 4, "4.24.3"},  {1, 5, "4.24.4"},
          {1, 6, "4.24.5"},  {1, 7, "4.24.6"},  {1, 8, "4.24.7"},  {1, 9, "4.24.8"},
      },
      .rules = {
          {{2, 2, 2, 9}, Text(60)},
          {{3, 2, 3, 9}, Number(0, 9999)},
          {{4, 2, 4, 9}, Text(60)},
      },
      .title = "4.24 Training courses of the staff member this year",
  };
  return design;
}

// In the order of the INSERT; the ID number comes behind the surname.
const std::vector<Answer> kAnswers = {
    {"Sitetype", kSiteType, kBare},
    {"StaffCategoryCD", kStaffCategory, kNumber},
    {"Title", kTitle, kText},
    {"Initials", kInitials, kText},
    {"Surname", kSurname, kText},
    {"citizenstatusCD", kCitizen, kBare},
    {"persalno", kPersalNumber, kText},
    {"sacenumber", kSaceNumber, kText},
    {"gendercd", kGender, kNumber},
    {"dateofbirth", kDateOfBirth, CellAs::kDate},
    {"populationgroupcd", kPopulationGroup, kNumber},
    {"cellphone", kCellphone, kQuoted},
    {"hometelephone", kHomeTelephone, kQuoted},
    {"homelanguagecd", kHomeLanguage, kNumber},
    {"disabilitycd", kDisability, kNumber},
    {"disabilityother", kOtherDisability, kText},
    {"personnelcategorycd", kPersonnelCategory, kNumber},
    {"appointmentnaturecd", kAppointment, kNumber},
    {"RemunerationCD", kRemuneration, kNumber},
    {"durationcd", kContract, kNumber},
    {"employeenumber", kEmployeeNumber, kText},
    {"nationality", kSavedNationality, kText, kNationality},
};
constexpr int kAnswersBeforeId = 5;

// Behind the ID number and the site's; the site type stays what it was.
const std::vector<const char*> kUpdate = {
    ",surname = ", ", CitizenstatusCD = ", ",Title = ", ",Initials = ", ", PersalNo = ",
    ",Sacenumber = ", ", gendercd = ", ", dateofbirth = ", ",populationgroupCD = ",
    ",cellphone = ", ",homeTelephone = ", ",HomelanguageCD = ", ",disabilityCD = ",
    ",disabilityother = ", ", StaffCategoryCD=", ",personnelcategoryCD = ",
    ",AppointmentNatureCD= ", ",remunerationCD = ", ",DurationCD = ", ", EmployeeNumber = ",
    ", Nationality = ",
};

constexpr RequiredCell kRequired[] = {
    {kInitials, Need::kNotBlank},      {kSurname, Need::kNotBlank},
    {kTitle, Need::kNotBlank},         {kCitizen, Need::kNotBlank},
    {kSiteType, Need::kNotBlank},      {kStaffCategory, Need::kNotBlank},
    {kDateOfBirth, Need::kNotBlank},   {kGender, Need::kNotBlank},
    {kRemuneration, Need::kNotZero},   {kDisability, Need::kNotZero},
};
// What is asked for besides, one by one.
constexpr RequiredCell kRequiredBesides[] = {
    {kIdNumber}, {kDateOfBirth, Need::kWholeDate}, {kCitizen, Need::kNotZero},
};
// clang-format on

const std::string& TextOf(const Grid& grid, Cell cell) {
  return grid.GetText(cell.column, cell.row);
}

void ShowMember(const Recordset& member, Grid& grid) {
  ShowAnswers(member, kAnswers, grid);
  const bool citizen = member.Field("citizenstatusCD").Is(1);
  ShowFields(member, {{"IDnumber", citizen ? kIdNumber : kPassportNumber}}, grid);
}

// Who comes from elsewhere and was not saved on this site since is not among them.
Recordset ReadMembers(const SiteRecords& site) {
  Recordset members;
  members.Open("Select * from tbl_StaffDetail where collegeEmisNumber =" + OfThisSite(site) +
                   " order by surname",
               site.connection);
  return members;
}

std::vector<Code> Codes() { return CodesOf("tbl_StaffDetail", kAnswers, GeneralDesign()); }

void ShowStored(const Recordset& member, Grid& grid) {
  ShowFields(member, {{"IDNumber", kIdNumber}}, grid);
  ShowMember(member, grid);
}

}  // namespace

const std::vector<KeptTable>& FrmEducatorData::Kept() {
  static const std::vector<KeptTable> tables = [] {
    std::vector<RequiredCell> required(std::begin(kRequired), std::end(kRequired));
    required.insert(required.end(), std::begin(kRequiredBesides), std::end(kRequiredBesides));
    return std::vector<KeptTable>{
        {.number = "4.1 - 4.23",
         .grid = "gridgeneral",
         .design = &GeneralDesign(),
         .form = RecordForm{ReadMembers, ShowStored, "IDNumber"},
         .required = required,
         .codes = Codes},
        {.number = "4.24",
         .grid = "gridTraining",
         .design = &TrainingDesign(),
         .staff = StaffRecords{"tbl_StaffTraining"}},
    };
  }();
  return tables;
}

FrmEducatorData::FrmEducatorData(FormHost& host, const PageRow& page)
    : StaffPage(host, page,
                {.next = {"Next", ButtonRole::kNext}, .previous = kToStaffList, .menu = kNoButton}),
      gridgeneral(*this, "gridgeneral", GeneralDesign()),
      gridTraining(*this, "gridTraining", TrainingDesign()) {
  MarkChangesOf(gridgeneral);
  MarkChangesOf(gridTraining);
  cmdSave.on_click = [this] {
    SavePage();
    survey().EndStatements();
    cmdSave.BackColor = kButtonFace;  // whatever the checks or the store refused of the record
    FormMode = "Edit";
  };
  cmdPrevious->on_click = [this] {
    if (cmdSave.BackColor == kYellow &&
        !boxes().UserQuestion("You have not yet saved your data changes.\n"
                              "Are you sure you want to continue without saving?")) {
      return;
    }
    FollowLink(*cmdPrevious);
  };
}

Layout FrmEducatorData::Body() {
  return ColumnOf({Place(gridgeneral), Place(lblID), Place(gridTraining)});
}

void FrmEducatorData::Form_Load() {
  Caption = StaffCaption();
  Frame1.Caption =
      "Please complete this information for every staff member at the college or campus";
}

void FrmEducatorData::Form_Activate() {
  GetPage();
  gridgeneral.SetActiveCell(kSiteType.column, kSiteType.row);
}

void FrmEducatorData::GetPage() {
  if (FormMode == "Edit") {
    GetEducatorInformation(EducatorId);
    LoadTraining();
    return;
  }
  for (const Cell& cell : {kIdNumber, kPassportNumber}) {
    gridgeneral.SetText(cell.column, cell.row, EducatorId);
  }
  Frame1.Caption = EducatorId;
}

void FrmEducatorData::SavePage() {
  SaveEducatorInformation();
  SaveTraining();
}

// ---- The record --------------------------------------------------------------------------------

// Of any site and year: who comes from elsewhere comes with the old details.
void FrmEducatorData::GetEducatorInformation(const std::string& id) {
  Trap(kLoadRoutine, [&] {
    gridgeneral.SetText(kIdNumber.column, kIdNumber.row, id);
    Recordset member;
    member.Open("Select * from tbl_StaffDetail WHERE IDNumber = '" + SqlEscape(id) + "'",
                survey().DatabaseConnection.get());
    if (member.Eof()) return;
    ShowMember(member, gridgeneral);
  });
}

void FrmEducatorData::SaveEducatorInformation() {
  TrapStatements(kSaveRoutine, [this] {
    const std::string id = TextOf(gridgeneral, IsSouthAfrican() ? kIdNumber : kPassportNumber);
    if (!IsComplete(id)) return;
    Recordset stored;
    stored.Open(" Select * FROM tbl_staffDetail WHERE CollegeEMISNumber = " +
                    NumberText(survey().CollegeEmisNumber) + " and IDNumber = '" +
                    SqlEscape(EducatorId) + "'",
                survey().DatabaseConnection.get());
    survey().Execute(stored.Eof() ? Insert(id) : Update(id));
  });
}

// Question 4.10. Throws TypeMismatch() where it is not answered.
bool FrmEducatorData::IsSouthAfrican() const {
  const auto answer = NumberHeld(TextOf(gridgeneral, kCitizen));
  if (!answer) throw TypeMismatch();
  return *answer == 1;
}

bool FrmEducatorData::IsComplete(const std::string& id) {
  const auto text = [this](Cell cell) -> const std::string& { return TextOf(gridgeneral, cell); };
  const auto ask_for = [this](Cell cell, const char* request) {
    boxes().UserMessage(request);
    SetFocus(gridgeneral, cell);
    return false;
  };
  if (id.empty()) {
    return ask_for(IsSouthAfrican() ? kIdNumber : kPassportNumber,
                   "You must complete the ID number or Passport number to save");
  }
  if (!CheckHighlightedFields()) {
    boxes().PlainBox("Please complete the highlighted fields to continue ");
    return false;
  }
  if (CharacterCount(text(kDateOfBirth)) != 10) {
    return ask_for(kDateOfBirth,
                   "You must complete the date of birth in the format yyyymmdd to save");
  }
  if (LeadingNumber(text(kCitizen)) == 0) return ask_for(kCitizen, "You must answer 4.10 to save");
  for (const Cell cell : {kSiteType, kStaffCategory}) {
    if (text(cell).empty()) return ask_for(cell, "You must answer 4.1 and 4.2 to save");
  }
  return true;
}

bool FrmEducatorData::CheckHighlightedFields() {
  std::optional<Cell> first;  // in the order of reading
  for (const RequiredCell& required : kRequired) {
    const auto& [column, row] = required.cell;
    const bool missing = IsMissing(gridgeneral, required);
    gridgeneral.SetBackColor(column, row, missing ? kYellow : kWhite);
    if (!missing) continue;
    if (!first || std::tie(row, column) < std::tie(first->row, first->column)) {
      first = required.cell;
    }
  }
  if (first) SetFocus(gridgeneral, *first);
  return !first;
}

// The year is that of the instrument in both statements, whatever the survey year is.
std::string FrmEducatorData::Insert(const std::string& id) const {
  const std::span answers(kAnswers);
  const auto before_id = answers.first(kAnswersBeforeId);
  const auto behind_id = answers.subspan(kAnswersBeforeId);
  return "insert into tbl_staffdetail(CollegeEmisnumber,CampusEMISNumber," + ColumnsOf(before_id) +
         ",IDNumber," + ColumnsOf(behind_id) + ",surveyyear) values (" +
         NumberText(survey().CollegeEmisNumber) + "," + NumberText(survey().CampusEmisNumber) +
         "," + ValuesOf(before_id, gridgeneral) + ",'" + SqlEscape(id) + "'," +
         ValuesOf(behind_id, gridgeneral) + ",2012)";
}

std::string FrmEducatorData::Update(const std::string& id) const {
  return "Update tbl_staffDetail set IDnumber = '" + SqlEscape(id) +
         "',CollegeEMISNumber = " + NumberText(survey().CollegeEmisNumber) +
         ",campusemisnumber = " + NumberText(survey().CampusEmisNumber) +
         Assignments(kUpdate, kAnswers, gridgeneral) + ", surveyyear = 2012 where IDNumber = '" +
         SqlEscape(EducatorId) + "'";
}

// ---- Training ----------------------------------------------------------------------------------

void FrmEducatorData::LoadTraining() {
  Recordset courses;
  courses.Open(
      "SELECT tbl_StaffTraining.CollegeEmisNumber, tbl_StaffTraining.CampusEmisNumber,  "
      "tbl_StaffTraining.SurveyYear, tbl_StaffTraining.IDnumber,  tbl_StaffTraining.CourseName, "
      "tbl_StaffTraining.CourseHours,  tbl_StaffTraining.Serviceprovider from tbl_Stafftraining "
      "Where collegeemisnumber = " +
          OfThisStaffMember(),
      survey().DatabaseConnection.get());
  for (int row = kFirstCourse; !courses.Eof(); courses.MoveNext(), ++row) {
    ShowFields(courses,
               {{"coursename", {2, row}}, {"coursehours", {3, row}}, {"serviceprovider", {4, row}}},
               gridTraining);
  }
}

// A course without a name is dropped.
void FrmEducatorData::SaveTraining() {
  survey().Execute("Delete * from tbl_Stafftraining  where collegeemisnumber = " +
                   OfThisStaffMember());
  for (int row = kFirstCourse; row <= kLastCourse; ++row) {
    const std::string& course = gridTraining.GetText(2, row);
    if (course.empty()) continue;
    survey().Execute(
        "Insert into tbl_StaffTraining(CollegeEmisNumber,CampusEmisnumber,SurveyYear,IDnumber,"
        "CourseName,CourseHours,Serviceprovider)VALUES(" +
        KeyValues() + "'" + SqlEscape(course) + "'," +
        NumberText(LeadingNumber(gridTraining.GetText(3, row))) + ",'" +
        SqlEscape(gridTraining.GetText(4, row)) + "')");
  }
}

}  // namespace survey
