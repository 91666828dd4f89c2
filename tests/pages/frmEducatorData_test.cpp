#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;

constexpr char kPage[] = "frmEducatorData";
constexpr char kRecords[] =
    "select CollegeEmisNumber || ' ' || CampusEmisNumber || ' ' || SurveyYear || ' ' || IDNumber "
    "|| ' ' || Surname || ' ' || SiteType as r from tbl_StaffDetail order by rowid";

const std::vector<Typed> kAll = {
    {7, 1, "2"},      {7, 2, "3"},           {2, 3, "MR"},          {4, 3, "A B"},
    {6, 3, "O'NEIL"}, {2, 4, "0012"},        {6, 4, "E'1"},         {2, 5, "0034"},
    {7, 5, "1"},      {4, 6, "1"},           {5, 8, "France"},      {2, 9, "1980/02/29"},
    {7, 9, "4"},      {2, 10, "0820000001"}, {6, 10, "0120000002"}, {7, 11, "13"},
    {7, 12, "7"},     {2, 13, "some'"},      {7, 15, "6"},          {7, 16, "2"},
    {7, 17, "1"},     {7, 18, "2"}};
const std::vector<Typed> kNeeded = {{4, 3, "A"},  {6, 3, "b"}, {2, 3, "C"},        {4, 6, "1"},
                                    {7, 1, "1"},  {7, 2, "1"}, {2, 9, "19800228"}, {7, 5, "2"},
                                    {7, 18, "1"}, {7, 12, "1"}};

class EducatorData : public PageTest {
 protected:
  EducatorData() : PageTest(kPage, "gridgeneral") { host.Start("frmSelectEducator"); }
  void Open(const std::string& id, const char* mode) {
    host.Get(kPage).Property("EducatorId") = id;
    host.Get(kPage).Property("FormMode") = mode;
    Reopen();
  }
  void Fill(const std::vector<Typed>& answers) { PageTest::Fill(Table(), answers); }
  GridControl& Training() { return The<GridControl>(kPage, "gridTraining"); }
  std::string SaveAndHear() {
    statements.clear();
    Save();
    return LastBox();
  }
};

TEST_F(EducatorData, OpensANewRecordUnderItsId) {
  Open("AB/12", "New");
  EXPECT_EQ(host.Front()->Caption,
            " Corvale ANNUAL Survey -  Emis Number : 202-  ID number: AB/12");
  EXPECT_EQ(The<Frame>(kPage, "Frame1").Caption, "AB/12");
  EXPECT_EQ(Shown({{2, 7}, {6, 7}}), "AB/12|AB/12");
  std::vector<CellRange> open;
  for (const auto& [column, row, text] : kAll) open.emplace_back(column, row);
  ExpectOpen(open);
}

TEST_F(EducatorData, InsertsThenUpdatesAndShowsWhatWasSaved) {
  survey.SurveyYear = 2010;  // the record's own year is fixed
  Open("8001", "New");
  Fill(kAll);
  EXPECT_EQ(SaveAndHear(), "");
  EXPECT_EQ(statements.at(1),
            "insert into tbl_staffdetail(CollegeEmisnumber,CampusEMISNumber,Sitetype,"
            "StaffCategoryCD,Title,Initials,Surname,IDNumber,citizenstatusCD,persalno,sacenumber,"
            "gendercd,dateofbirth,populationgroupcd,cellphone,hometelephone,homelanguagecd,"
            "disabilitycd,disabilityother,personnelcategorycd,appointmentnaturecd,RemunerationCD,"
            "durationcd,employeenumber,nationality,surveyyear) values (101,202,2,3,'MR','A B',"
            "'O''NEIL','8001',1,'0012','0034',1,#1980/02/29#,4,'0820000001','0120000002',13,7,"
            "'some''',6,2,2,1,'E''1','',2012)");
  Open("8001", "Edit");
  for (const auto& [column, row, text] : kAll) {
    EXPECT_EQ(At(column, row), row == 8 ? "" : text);  // citizenship is not stored
  }
  Fill({{7, 1, "1"}, {6, 3, "van wyk"}, {7, 17, ""}});
  SaveAndHear();
  EXPECT_EQ(statements.at(1),
            "Update tbl_staffDetail set IDnumber = '8001',CollegeEMISNumber = 101,"
            "campusemisnumber = 202,surname = 'VAN WYK', CitizenstatusCD = 1,Title = 'MR',"
            "Initials = 'A B', PersalNo = '0012',Sacenumber = '0034', gendercd = 1, dateofbirth = "
            "#1980/02/29#,populationgroupCD = 4,cellphone = '0820000001',homeTelephone = "
            "'0120000002',HomelanguageCD = 13,disabilityCD = 7,disabilityother = 'some''', "
            "StaffCategoryCD=3,personnelcategoryCD = 6,AppointmentNatureCD= 2,remunerationCD = 2,"
            "DurationCD = 0, EmployeeNumber = 'E''1', Nationality = '', surveyyear = 2012 where "
            "IDNumber = '8001'");
}

TEST_F(EducatorData, HighlightsAllThatIsMissingAndStillStoresTheCourses) {
  Open("8001", "New");
  Fill({{4, 6, "1"}, {4, 3, " "}, {7, 5, "1"}});
  Training().Type(2, 4, "First aid");
  Save();
  EXPECT_EQ(LastBox(), "Please complete the highlighted fields to continue ");
  for (const auto& [column, row, text] : kNeeded) {
    const bool given = row == 6 || row == 5;
    EXPECT_EQ(Table().BackColor(column, row), given ? kWhite : kYellow) << column << "," << row;
  }
  EXPECT_EQ(std::pair(Table().ActiveColumn(), Table().ActiveRow()), std::pair(7, 1));  // the first
  EXPECT_EQ(host.Front()->TakeFocusRequest(), &Table());
  EXPECT_THAT(Query(kRecords), ElementsAre());
  EXPECT_THAT(Query("select CourseName as r from tbl_StaffTraining"), ElementsAre("First aid"));
  EXPECT_FALSE(Unsaved());  // whatever became of the record
  Fill(kNeeded);
  EXPECT_EQ(SaveAndHear(), "");
  EXPECT_EQ(Table().BackColor(4, 3), kWhite);
}

TEST_F(EducatorData, ChecksComeInTheirOrder) {
  Open("8001", "New");
  Save();  // question 4.10 comes before any colour
  EXPECT_EQ(dialogs.seen.at(0).title, "Error : 13");
  EXPECT_THAT(LastBox(), ToldBy("frmEducatordata", "SaveEducatorInformation Routine"));
  for (const auto& [last, told] : std::vector<std::pair<Typed, std::string>>{
           {{2, 9, "1980/2/28"},
            "You must complete the date of birth in the format yyyymmdd to save"},
           {{4, 6, "0"}, "You must answer 4.10 to save"},
           {{4, 6, "1"}, ""}}) {
    Fill(kNeeded);
    Table().SetText(last.column, last.row, last.text);
    EXPECT_EQ(SaveAndHear(), told);
    if (!told.empty()) {
      EXPECT_EQ(Table().ActiveRow(), last.row);
    }
  }
  // A citizen's number is no passport's, a passport's would do for a citizen.
  Open("8001", "Edit");
  Fill({{4, 6, "2"}, {4, 3, ""}});
  EXPECT_EQ(SaveAndHear(), "You must complete the ID number or Passport number to save");
  Open("x-1", "New");
  Fill(kNeeded);
  Fill({{4, 6, "2"}});
  EXPECT_EQ(SaveAndHear(), "");
  Fill({{4, 6, "1"}});
  EXPECT_EQ(SaveAndHear(), "");
  EXPECT_THAT(Query(kRecords), ElementsAre("101 202 2012 8001 B 1", "101 202 2012 x-1 B 1"));
}

TEST_F(EducatorData, TakesOverFromAnotherCampusAndDoublesFromAnotherCollege) {
  StoreAll(
      "insert into tbl_StaffDetail(SurveyYear,Surname,SiteType,CollegeEmisNumber,"
      "CampusEmisNumber,IDNumber)values(2010,'Old',2,",
      {"101,203,'1'", "0,202,'2'"});
  for (const std::string id : {"1", "2"}) {
    Open(id, "Edit");
    EXPECT_EQ(Shown({{6, 3}, {6, 7}}), "Old|" + id);  // of no known citizenship
    Fill(kNeeded);
    EXPECT_EQ(SaveAndHear(), "");
  }
  EXPECT_THAT(Query(kRecords),
              ElementsAre("101 202 2012 1 B 2", "0 202 2010 2 Old 2", "101 202 2012 2 B 1"));
}

TEST_F(EducatorData, CoursesAreReplacedAndCloseUp) {
  survey.SurveyYear = 2010;
  const std::string insert =
      "Insert into tbl_StaffTraining(CollegeEmisNumber,CampusEmisnumber,SurveyYear,IDnumber,"
      "CourseName,CourseHours,Serviceprovider)VALUES(101,";
  StoreAll(insert, {"202,2012,'8001','other year',1,''", "203,2010,'8001','other site',1,''"});
  Open("8001", "Edit");
  EXPECT_EQ(Training().GetText(2, 2), "");
  PageTest::Fill(Training(),
                 {{2, 9, "Last's"}, {4, 9, "P'"}, {2, 3, "First"}, {3, 3, "12"}, {3, 5, "7"}});
  SaveAndHear();
  EXPECT_THAT(statements,
              ElementsAre("Delete * from tbl_Stafftraining  where collegeemisnumber = 101 and "
                          "campusemisnumber = 202 and surveyyear = 2010 and IDnumber = '8001'",
                          insert + "202,2010,'8001','First',12,'')",
                          insert + "202,2010,'8001','Last''s',0,'P''')"));
  Open("8001", "Edit");
  EXPECT_EQ(Shown(Training(), {{2, 2}, {3, 2}, {2, 3}, {3, 3}, {4, 3}, {2, 4}, {3, 5}}),
            "First|12|Last's|0|P'||");
}

TEST_F(EducatorData, AFailedLoadIsReportedByTheRoutineWithinToo) {
  RunScript("alter table tbl_StaffDetail rename to gone");
  Open("a'b", "Edit");  // as it stands in the statements on courses
  EXPECT_THAT(dialogs.seen.at(0).prompt,
              ToldBy("frmEducatordata", "GetEducatorInformation Routine"));
}

TEST_F(EducatorData, ACommitThatFailsLeavesThePageUnsavedAndNew) {
  Open("8001", "New");
  Fill(kNeeded);
  auto reader = HoldCommits();
  EXPECT_THAT(SaveAndHear(), ToldBy(kPage, "cmdSave_Click"));
  EXPECT_TRUE(Unsaved());
  EXPECT_EQ(host.Get(kPage).Property("FormMode"), "New");
  Click("cmdPrevious");
  EXPECT_EQ(Front(), kPage) << "asks, and stays";
  reader.reset();
  dialogs.seen.clear();
  EXPECT_EQ(SaveAndHear(), "");
  EXPECT_FALSE(Unsaved());
  EXPECT_EQ(host.Get(kPage).Property("FormMode"), "Edit");
}

TEST_F(EducatorData, BackAsksItsOwnQuestionAndNextAsksNothing) {
  Open("8001", "New");
  Type(7, 1, "1");
  Click("cmdPrevious");
  EXPECT_EQ(Front() + ": " + LastBox(),  // No is the default, and stays
            "frmEducatorData: You have not yet saved your data changes.\nAre you sure you want to "
            "continue without saving?");
  Open("8001", "New");
  Training().Type(3, 2, "1");
  EXPECT_TRUE(Unsaved());
  Click("cmdNext");
  EXPECT_TRUE(dialogs.seen.empty());
  EXPECT_EQ(Front() + " " + host.Front()->Property("EducatorId"), "frmLecQualifications1 8001");
}

}  // namespace
}  // namespace survey::testing
