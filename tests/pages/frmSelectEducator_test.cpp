#include "base/text.h"
#include "store/dialect.h"
#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;

constexpr char kList[] = "frmSelectEducator";
constexpr char kNobody[] = "Please select a staff member to continue";
constexpr char kNoNumber[] = "You must select a staff member to continue.";
constexpr char kRecords[] =
    "select IDNumber || ' ' || CollegeEmisNumber || ' ' || SurveyYear as r from tbl_StaffDetail";

class SelectEducator : public PageTest {
 protected:
  SelectEducator() : PageTest(kList, "gridEducator") {
    Staff("7502", "Zulu", "101,202,2010");
    Staff("7501", "adams");
    Staff("O'9", "Mokoena");
    Staff("8000", "Baker", "101,203,2012");
    Reopen();
  }
  void Staff(const std::string& id, const std::string& surname,
             const std::string& key = "101,202,2012") {
    Store(
        "insert into tbl_StaffDetail(CollegeEmisNumber,CampusEmisNumber,SurveyYear,IDNumber,"
        "Surname,Initials,PersalNo,EmployeeNumber) values(" +
        key + ",'" + SqlEscape(id) + "','" + surname + "','A B','P1','E1')");
  }
  std::string Line(int row) { return Shown({{1, row}, {2, row}, {3, row}, {4, row}}); }
  std::string Count() { return The<TextBox>(kList, "txtNumber").Text; }
  std::string Answer(const char* button) {
    Click(button);
    return LastBox();
  }
  // The page that a button opens, whose it is and how.
  std::string Opens(const char* button) {
    Click(button);
    const auto* mode = host.Front()->FindProperty<std::string>("FormMode");
    return Front() + " " + host.Front()->Property("EducatorId") + " " + (mode ? *mode : "");
  }
};

TEST_F(SelectEducator, ListsTheSitesStaffBySurnameAndCountsMoreThanItLists) {
  EXPECT_EQ(Line(1) + " " + Line(2), "adams  A B|7501|P1|E1 Mokoena  A B|O'9|P1|E1");
  EXPECT_EQ(Line(3) + " " + Line(4), "Zulu  A B|7502|P1|E1 |||");
  EXPECT_EQ(Count(), "3");
  EXPECT_FALSE(Table().IsRowHidden(3));
  EXPECT_TRUE(Table().IsRowHidden(4));
  for (int i = 1; i <= 198; ++i) Staff(std::to_string(i), "x");
  Reopen();
  EXPECT_EQ(Count() + " " + At(1, 200), "201 x  A B");  // and Zulu is not seen
  Store("Delete * from tbl_StaffDetail");
  Reopen();
  EXPECT_EQ(Count() + " " + Line(1), "0 |||");
}

TEST_F(SelectEducator, EveryButtonTestsTheSelectionItsOwnWay) {
  Table().Click(1, 0);  // the heads select nobody
  for (const char* button :
       {"cmdEdit", "cmdSpecialisation", "cmdStaffteaching", "cmdLoad", "cmdLoad2"}) {
    EXPECT_EQ(Answer(button), kNobody) << button;
  }
  EXPECT_EQ(Answer("cmdDelete"), "Please select a staff member to remove from this campus");
  EXPECT_EQ(Answer("cmdUpdateID"), kNoNumber);
  Table().Click(1, 9);  // an empty row selects somebody without a number
  EXPECT_EQ(Answer("cmdUpdateID"), kNoNumber);
  EXPECT_EQ(Answer("cmdDelete"), "Are you sure you want to remove  from this campus?");
  EXPECT_NE(Answer("cmdEdit"), kNobody);
}

TEST_F(SelectEducator, OpensThePagesOfTheSelectedAndForgetsThemOnReturn) {
  Staff("0", "Aa");
  Reopen();
  Table().Click(3, 1);  // "0" is a number like any other
  EXPECT_EQ(Table().ChosenRow(), 1);
  EXPECT_EQ(Opens("cmdEdit"), "frmEducatorData 0 Edit");
  EXPECT_EQ(host.Front()->Property<double>("EmisNumber"), 101);
  HeadlessProgram::Click("frmEducatorData", "cmdPrevious");
  EXPECT_EQ(Table().ChosenRow(), 0) << "the list shows nobody as selected";
  EXPECT_EQ(Answer("cmdSpecialisation"), kNobody);
  Table().Click(1, 2);
  EXPECT_EQ(Opens("cmdSpecialisation"), "frmLecQualifications1 7501 ");
}

TEST_F(SelectEducator, AddsAnIdAndOpensOneFoundAnywhereForEditing) {
  EXPECT_EQ(Answer("cmdAddNew"), "You must enter an ID number to continue");
  for (const auto& [id, mode] : std::vector<std::pair<std::string, std::string>>{
           {"8000", "Edit"}, {"not there'", "New"}, {"o'9", "Edit"}}) {
    dialogs.inputs = {id};
    EXPECT_EQ(Opens("cmdAddNew"), "frmEducatorData " + id + " " + mode);
    HeadlessProgram::Click("frmEducatorData", "cmdPrevious");
  }
  EXPECT_EQ(dialogs.inputs_seen[0], ": Please enter the ID number of the Staff Member");
}

TEST_F(SelectEducator, RemovesFromTheCollegeOnly) {
  Table().Click(1, 2);
  Table().Click(1, 3);
  EXPECT_EQ(Answer("cmdDelete"), "Are you sure you want to remove 7502 from this campus?");
  EXPECT_EQ(Count(), "3");
  dialogs.answers = {kAnswerYes, kAnswerYes};
  Click("cmdDelete");
  EXPECT_EQ(Query(kRecords)[0], "7502 0 2010");
  EXPECT_EQ(Table().ChosenRow(), 0) << "nor is whoever stands there now";
  EXPECT_EQ(Count() + " " + Line(3), "2 |||");
  EXPECT_FALSE(Table().IsRowHidden(3));  // once shown, a row stays
  Table().Click(1, 2);                   // a quote in the ID breaks the statement
  EXPECT_THAT(Answer("cmdDelete"), ToldBy("Delete Function", " cmddelete Educator"));
}

TEST_F(SelectEducator, CorrectsTheIdInSevenTables) {
  Table().Click(1, 2);
  EXPECT_EQ(Answer("cmdUpdateID"), "You have not entered a new ID number for the staff member");
  EXPECT_EQ(dialogs.inputs_seen[0],
            "Staff member: O'9: Enter the correct ID number for Mokoena  A B");
  EXPECT_EQ(Table().ChosenRow(), 0);
  EXPECT_EQ(Answer("cmdUpdateID"), kNoNumber);
  survey.SurveyYear = 2010;
  Table().Click(1, 2);
  dialogs.inputs = {"7502'"};
  statements.clear();
  Click("cmdUpdateID");
  ASSERT_EQ(statements.size(), 8u);  // the list is read last
  statements.pop_back();
  const std::string tail = "7502''' WHERE IDNumber = 'O''9' and surveyyear = 2010";
  EXPECT_THAT(statements,
              ElementsAre("update tbl_lecturercontactmonth set Idnumber = '" + tail,
                          "update tbl_lecturerqualificationsubject set Idnumber = '" + tail,
                          "update  tbl_lecturerteachingfields set Idnumber = '" + tail,
                          "update  tbl_lecturerteachingsubject set Idnumber = '" + tail,
                          "update  tbl_staffdetail set Idnumber = '7502''',surveyyear = 2010 WHERE "
                          "IDNumber = 'O''9'",
                          "update  tbl_staffqualificationtype set Idnumber = '" + tail,
                          "update tbl_stafftraining set Idnumber = '" + tail));
  EXPECT_EQ(Line(2), "Mokoena  A B|7502'|P1|E1");
}

TEST_F(SelectEducator, AFailureEndsTheHandlerAndNotTheProgram) {
  Table().Click(1, 1);
  RunScript("alter table tbl_StaffQualificationType rename to gone");
  dialogs.inputs = {"7777"};
  EXPECT_THAT(Answer("cmdUpdateID"), ToldBy(kList, "cmdUpdateID_Click"));
  EXPECT_EQ(Query(kRecords)[1], "7777 101 2012");  // what was done stays
  RunScript("alter table tbl_StaffDetail rename to gone_too");
  Reopen();
  EXPECT_THAT(LastBox(), ToldBy("frmSelectSchool", "Load Schools Routine"));
  host.Get("frmMainMenu").Property("EditMode") = "Add";
  Click("cmdMenu");
  EXPECT_EQ(Front() + " " + host.Front()->Property("EditMode"), "frmMainMenu Edit");
}

}  // namespace
}  // namespace survey::testing
