#include <tuple>

#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr char kMenu[] = "frmMainMenu";
constexpr char kList[] = "frmSelectEducator";

class SurveyPrint : public PageTest {
 protected:
  SurveyPrint() : PageTest(kList, "gridEducator") {
    for (const char* id : {"7501", "", "7502"}) {
      Store(
          "insert into tbl_StaffDetail(CollegeEmisNumber,CampusEmisNumber,SurveyYear,IDNumber,"
          "Surname) values(101,202,2012,'" +
          std::string(id) + "','S" + std::to_string(++members_) + "')");
    }
    Reopen();
  }

  void OpenMenu() {
    host.Unload(host.Get(kList));
    host.Get(kMenu).Property("EditMode") = "Edit";
    host.Start(kMenu);
    The<TextBox>(kMenu, "txtColEmis").Text = "101";
    The<TextBox>(kMenu, "txtCamEmis").Text = "202";
  }
  void PrintSurvey() { HeadlessProgram::Click(kMenu, "cmdPrintSurvey"); }
  std::ptrdiff_t CountOf(const char* operation) const {
    return std::ranges::count(printer.operations, operation);
  }
  void ExpectNothingLoadedBut(const std::string& name) {
    EXPECT_THAT(host.shown(), ElementsAre(&host.Get(name)));
    for (const char* page : {"frmPage2", "frmPage3", "frmPage12_1", "frmEducatorData"}) {
      EXPECT_FALSE(host.Get(page).loaded()) << page;
    }
  }

  int members_ = 0;
  const std::ptrdiff_t sheets_ =  // of the printed campus survey
      std::ranges::count(host.pages(), true, &PageRow::in_campus_print);
};

TEST_F(SurveyPrint, PrintsTheCampusPageByPageForTheYear2010) {
  for (const auto year : {std::int16_t{2010}, std::int16_t{2012}}) {
    survey.SurveyYear = year;
    host.Start("frmPage3");
    The<GridControl>("frmPage3", "gridEnrolment").Type(7, 3, std::to_string(year * 10));
    HeadlessProgram::Click("frmPage3", "cmdSave");
    host.CloseBox(host.Get("frmPage3"));
  }
  OpenMenu();
  survey.CampusEmisNumber = survey.CollegeEmisNumber = 9;
  std::vector<std::string> figures;
  printer.on_draw = [&](const Grid& grid) { figures.push_back(grid.GetText(7, 3)); };
  PrintSurvey();
  EXPECT_THAT(figures, Contains("20100"));
  EXPECT_THAT(figures, Not(Contains("20120")));
  EXPECT_EQ(CountOf("ShowPrinter"), 1);
  EXPECT_EQ(CountOf("EndDoc"), sheets_);
  EXPECT_EQ(CountOf("landscape"), 1);
  EXPECT_EQ(std::tuple(survey.CollegeEmisNumber, survey.CampusEmisNumber, survey.SurveyYear),
            std::tuple(101, 202, 2010));
  EXPECT_THAT(dialogs.seen, IsEmpty());
  const std::string sheets = std::to_string(sheets_);
  EXPECT_EQ(std::ssize(dialogs.steps_seen), sheets_);
  EXPECT_EQ(dialogs.steps_seen[15], "Print Campus Survey: 15/" + sheets + " Page 16 of " + sheets);
  ExpectNothingLoadedBut(kMenu);
  // The year stays until the menu is loaded anew.
  HeadlessProgram::Click(kMenu, "cmdLearner", 7);
  EXPECT_EQ(The<GridControl>("frmPage3", "gridEnrolment").GetText(7, 3), "20100");
  HeadlessProgram::Click("frmPage3", "cmdMenu");
  EXPECT_EQ(survey.SurveyYear, 2012);
}

TEST_F(SurveyPrint, AFailureIsToldOnceAndLeavesOutTheRestAsAStopDoes) {
  OpenMenu();
  const auto expect_failure_after = [this](std::ptrdiff_t jobs) {
    printer.operations.clear();
    PrintSurvey();
    EXPECT_EQ(CountOf("EndDoc"), jobs);
    EXPECT_EQ(dialogs.seen.size(), 1u);
    EXPECT_THAT(LastBox(), ToldBy(kMenu, "Print Routine"));
    ExpectNothingLoadedBut(kMenu);
  };
  printer.cancel = true;
  expect_failure_after(0);
  EXPECT_EQ(survey.SurveyYear, 2012);
  printer.cancel = false;
  printer.full = true;
  expect_failure_after(sheets_);
  printer.full = false;
  RunScript("alter table tbl_StudentRegistration rename to gone");
  expect_failure_after(4);  // within the page's own trap
  RunScript("drop table tbl_Hostels");
  expect_failure_after(1);  // within none
  dialogs.stop_at = 1;
  PrintSurvey();
  EXPECT_THAT(dialogs.seen, IsEmpty()) << "a stop is no failure";
  survey.DatabasePath += "gone";
  expect_failure_after(0);  // while the connection is opened
}

TEST_F(SurveyPrint, PrintsTheSixPagesOfTheSelectedAsOneJob) {
  Table().Click(1, 1);
  Click("cmdPrintSurvey");
  EXPECT_EQ(printer.job, "site staff survey 7501");
  const std::string rest = " 11906 16838 page 1";
  EXPECT_THAT(
      printer.operations,
      ElementsAre("ShowPrinter", "Font Times New Roman 12 bold", "X 140", "Y 130",
                  "Print \" EMIS NUMBER: 202 Staff ID: 7501\"", "Print \"\"", "X 500",
                  "Print \" Personnel Details\"", "Print \"\"", "bold off",
                  "Draw gridgeneral 300 1200" + rest, "Draw gridTraining 300 8000" + rest,
                  "NewPage", "Draw gridQual 300 1200" + rest, "NewPage",
                  "Draw gridQual 300 1200" + rest, "Draw gridSubjects 300 7500" + rest, "NewPage",
                  "Draw gridmonths 300 1200" + rest, "Draw gridSubjects 300 3000" + rest, "NewPage",
                  "Draw gridFields 300 1200" + rest, "EndDoc"));
  ExpectNothingLoadedBut(kList);
  EXPECT_EQ(host.Get("frmEducatorData").Property("EducatorId"), "");
  Click("cmdEdit");  // still selected
  EXPECT_EQ(host.Front()->Property("EducatorId"), "7501");
}

TEST_F(SurveyPrint, PrintsAllStaffInOneJobWithoutThoseWhoHaveNoId) {
  std::vector<std::string> surnames;
  printer.on_draw = [&](const Grid& grid) {
    if (grid.MaxColumns() == 7 && grid.MaxRows() == 18) surnames.push_back(grid.GetText(6, 3));
  };
  The<CheckBox>(kList, "chAll").Click();
  Table().Click(1, 1);
  Click("cmdPrintSurvey");
  EXPECT_THAT(surnames, ElementsAre("S1", "S3"));
  EXPECT_EQ(CountOf("NewPage"), 2 * 5);
  EXPECT_EQ(CountOf("EndDoc"), 1);
  EXPECT_EQ(dialogs.steps_seen[1], "Print Full Staff Survey: 1/3 S2  ");
  EXPECT_THAT(dialogs.seen, IsEmpty());
  EXPECT_EQ(Table().ChosenRow(), 0);
  Click("cmdEdit");
  EXPECT_EQ(LastBox(), "Please select a staff member to continue");

  printer.operations.clear();
  dialogs.stop_at = 2;
  Click("cmdPrintSurvey");
  EXPECT_EQ(CountOf("NewPage"), 5);
  EXPECT_EQ(printer.operations.back(), "EndDoc");
}

TEST_F(SurveyPrint, NobodySelectedOrAFailureOfOnePageIsTold) {
  for (const int row : {0, 2}) {  // the heads; a row without an ID
    Table().Click(1, row);
    Click("cmdPrintSurvey");
    EXPECT_EQ(LastBox(), "Please select a staff member to continue");
  }
  EXPECT_THAT(printer.operations, ElementsAre("ShowPrinter", "ShowPrinter"));
  The<CheckBox>(kList, "chAll").Click();
  printer.on_draw = [this](const Grid& grid) {  // of the second
    if (grid.GetText(6, 3) == "S3") throw RunTimeError(482, "Printer error");
  };
  Click("cmdPrintSurvey");
  EXPECT_EQ(dialogs.seen.size(), 1u);
  EXPECT_THAT(LastBox(), ToldBy("frmselecteducator", "Print Routine"));
  EXPECT_EQ(std::tuple(CountOf("NewPage"), CountOf("EndDoc")), std::tuple(5, 0));
  ExpectNothingLoadedBut(kList);
  EXPECT_EQ(Table().ChosenRow(), 3);
  Click("cmdEdit");  // whose print failed is selected
  EXPECT_EQ(host.Front()->Property("EducatorId"), "7502");
  host.CloseBox(*host.Front());
  printer.cancel = true;
  Click("cmdPrint");
  EXPECT_THAT(LastBox(), ToldBy("frmSelectEducator", "Print Routine"));
  printer.cancel = false;
  printer.full = true;  // found out when all is printed
  printer.on_draw = {};
  for (const auto& [button, form] :
       {std::pair{"cmdPrint", "frmSelectEducator"}, {"cmdPrintSurvey", "frmselecteducator"}}) {
    Click(button);
    EXPECT_THAT(LastBox(), ToldBy(form, "Print Routine"));
  }
}

TEST_F(SurveyPrint, PrintsTheListOverAllItsPages) {
  printer.pages = 2;
  Click("cmdPrint");
  EXPECT_THAT(printer.operations,
              ElementsAre("ShowPrinter", "portrait", "Count gridEducator 100 1000 11906 15838",
                          "Font Times New Roman 12 bold", "X 140", "Y 130", "Print \"\"", "X 500",
                          "Print \"Educator List \"", "X 500", "Print \"\"", "bold off",
                          "Draw gridEducator 300 800 11906 15838 page 1", "NewPage",
                          "Draw gridEducator 300 800 11906 15838 page 2", "EndDoc"));
}

}  // namespace
}  // namespace survey::testing
