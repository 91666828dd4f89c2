#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;

constexpr char kTeaching[] = "frmEducatorTeaching";
constexpr char kQualified[] = "frmEducatorTeaching1";
const std::string kOfMember = kOfSite + " and IDnumber = '8001'";
const std::string kFields = "(CollegeEmisNumber,CampusEmisnumber,SurveyYear,IDnumber,";
const std::string kValues = ")VALUES(101,202,2012,'8001',";
const std::string kFigures = "TeachingExperience,TrainingYears" + kValues;
const std::string kTeachingInsert =
    "Insert into tbl_LecturerTeachingSubject" + kFields + "SubjectCode,TeachingHours," + kFigures;
const std::string kQualifiedInsert =
    "Insert into tbl_LecturerQualificationSubject" + kFields + "SubjectCode," + kFigures;
const std::string kMonthInsert =
    "Insert into tbl_LecturerContactMonth" + kFields + "MonthCD" + kValues;
const std::string kFind =
    "Select subjectCode,subjectid,description,programme from lst_Subject where ";
const std::string kAssigned = "The subject you have selected has already been assigned as a ";

class SubjectPages : public PageTest {
 protected:
  SubjectPages() : PageTest(kTeaching, "gridSubjects") {
    RunScript(
        "delete from lst_Subject; insert into lst_Subject values (7,'100','Maths N1','Report 191'),"
        "(8,'101','Maths N2','Report 191'),(9,'200','Art of 101','NC(V)'),"
        "(10,'300','Women''s Health','NSC'),(11,'400','Biology','Report 550'),"
        "(12,'201','Algebra','NC(V)'),(13,'202','Pottery','NC(V)x');"
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < 16) "
        "insert into lst_Subject select 20 + i, 'F' || i, 'Filler ' || i, 'Other' from n;");
    Open(kTeaching);
  }
  void Open(const std::string& page, const std::string& id = "8001") {
    survey.EndStatements();
    host.Unload(host.Get(page_));
    page_ = page;
    host.Unload(host.Get(page));
    host.Get(page).Property("EducatorId") = id;
    statements.clear();
    host.Start(page);
  }
  template <typename Kind>
  Kind& On(const char* control) {
    return The<Kind>(page_, control);
  }
  GridControl& Months() { return On<GridControl>("gridmonths"); }
  ComboBox& Combo() { return On<ComboBox>("cboSubject"); }
  const std::string& SearchText() { return On<TextBox>("txtSearch").Text; }
  void Search(const std::string& text) {
    On<TextBox>("txtSearch").Enter(text);
    statements.clear();
    Click("cmdGo");
  }
  void Remove(const std::string& line) {
    On<TextBox>("txtRow").Enter(line);
    Click("cmdRemove");
  }
  void Save() {
    statements.clear();
    PageTest::Save();
    EXPECT_FALSE(Unsaved());
  }
  // A line of the grid: "text|figures|code".
  std::string Line(int line) {
    std::string all;
    for (int column = 2; column <= Table().MaxColumns(); ++column) {
      all += (column > 2 ? "|" : "") + Table().GetText(column, line + 1);
    }
    return all;
  }
  std::vector<std::string> Offered() {
    std::vector<std::string> texts;
    for (const ListItem& item : Combo().items()) texts.push_back(item.text);
    return texts;
  }
};

TEST_F(SubjectPages, ASearchPicksItsFirstHitAndShowsTheOthers) {
  Search("MATHS");
  EXPECT_THAT(statements, ElementsAre(kFind + "description like  '%MATHS%'",
                                      "Select subjectcode from lst_subject where subjectid =7"));
  EXPECT_THAT(Offered(), ElementsAre("100 Maths N1 Report 191", "101 Maths N2 Report 191"));
  EXPECT_EQ(SearchText() + " / " + Line(1), " / 100 Maths N1 Report 191||||100");
  EXPECT_FALSE(Unsaved());
  EXPECT_EQ(Combo().BackColor, kYellow);
  On<OptionButton>("optCode").Click();
  Search("10");  // a prefix, and the same first hit
  EXPECT_EQ(statements.at(0), kFind + "subjectcode like  '10%'");
  EXPECT_EQ(LastBox(), kAssigned + "teaching subject.");
  Combo().Choose(1);
  EXPECT_EQ(Combo().BackColor, kWhite);
  Search("00");
  EXPECT_EQ(LastBox(), "The subject could not be located");
  EXPECT_THAT(Offered(), IsEmpty());
  On<OptionButton>("optname").Click();
  RunScript("insert into lst_Subject values (99,'500','W\u00eareldgeskiedenis','NSC')");
  Search("W\u00caRELD");
  EXPECT_EQ(Line(3), "500 W\u00eareldgeskiedenis NSC||||500");
  Search("women's");
  EXPECT_EQ(Line(4), "300 Women's Health NSC||||300");
}

TEST_F(SubjectPages, TheTypesOfferTheirProgrammeAndAreClearedBehindTheCatalogue) {
  for (const auto& [page, button, type, first] :
       {std::tuple{kTeaching, "cmdSubject", "opt550", "400 Biology Report 550"},
        {kTeaching, "cmdSubject", "optNCV", "201 Algebra NC(V)"},
        {kQualified, "cmdAddSubject", "optReport191", "100 Maths N1 Report 191"},
        {kQualified, "cmdAddSubject", "optNSC", "300 Women's Health NSC"}}) {
    Open(page);
    On<TextBox>("txtSearch").Enter("art");
    auto& option = On<OptionButton>(type);
    option.Click();
    EXPECT_EQ(statements.back(), "Select * from lst_subject where programme = '" + option.Caption +
                                     "' order by programme,description");
    const auto offered = Offered();
    EXPECT_EQ(offered.at(0), first);
    EXPECT_EQ(SearchText() + " / " + Table().GetText(2, 2), " / ");
    modal_scripts = {[](Form& form) { form.Find<Button>("cmdDone").Click(); }};
    Click(button);
    EXPECT_THAT(modal_scripts, IsEmpty());
    EXPECT_FALSE(option.Value());
    EXPECT_EQ(Offered(), offered);                                  // until it is asked anew
    EXPECT_THAT(statements.back(), EndsWith("IDnumber = '8001'"));  // activated again
  }
}

TEST_F(SubjectPages, ASixteenthSubjectIsDroppedAndAGapTakesTheNext) {
  Search("Filler");
  for (int i = 1; i < 16; ++i) Combo().Choose(i);
  EXPECT_EQ(Line(15), "F15 Filler 15 Other||||F15");
  EXPECT_THAT(dialogs.seen, IsEmpty());
  for (const char* line : {"", "0", "16", "99999999999999"}) {
    Remove(line);
    EXPECT_EQ(LastBox(), "Please enter a grid line number between 1 and 15 to remove.") << line;
  }
  EXPECT_FALSE(Unsaved());
  Remove("-3x");  // digits alone are taken
  EXPECT_TRUE(Unsaved());
  EXPECT_EQ(Table().GetText(1, 4) + ": " + Line(3) + " / " + Line(4),
            "3: |||| / F4 Filler 4 Other||||F4");
  Combo().Choose(15);
  EXPECT_EQ(Line(3), "F16 Filler 16 Other||||F16");
}

TEST_F(SubjectPages, KeepsWholeNumbersOfTheLinesWithACode) {
  Search("Maths");
  Combo().Choose(1);
  Search("Biology");
  for (const auto& [column, text] : {std::pair{3, "2.5"}, {4, "3.5"}, {5, "9999999.99"}}) {
    EXPECT_TRUE(Table().Type(column, 2, text).taken);
  }
  EXPECT_FALSE(Table().Type(3, 2, "10000000").taken || Table().Type(3, 2, "-1").taken ||
               Table().Type(2, 2, "x").taken);
  Table().Type(3, 9, "4");  // on no subject
  for (const int month : {2, 13, 5, 5}) Months().Tick(month, 3);
  Remove("2");
  Save();
  EXPECT_THAT(
      statements,
      ElementsAre("Delete * from tbl_LecturerContactMonth " + kOfMember, kMonthInsert + "1)",
                  kMonthInsert + "12)", "Delete * from tbl_LecturerTeachingSubject " + kOfMember,
                  kTeachingInsert + "'100',2,4,10000000)", kTeachingInsert + "'400',0,0,0)"));
  Months().Tick(3, 3);
  EXPECT_TRUE(Unsaved());
  Open(kTeaching);
  EXPECT_EQ(Line(1) + " / " + Line(3), "100 Maths N1 Report 191|2|4|10000000|100 / ||||");
  for (const auto& [month, tick] : {std::pair{2, "1"}, {3, ""}, {13, "1"}}) {
    EXPECT_EQ(Months().GetText(month, 3), tick) << month;
  }
}

TEST_F(SubjectPages, TheQualifiedListGoesByTheSameRulesInItsOwnTable) {
  survey.Execute(kTeachingInsert + "'100',1,1,1)");
  Open(kQualified);
  Search("Maths");
  Search("Maths");
  EXPECT_EQ(LastBox(), kAssigned + "subject.");
  Table().Type(3, 2, "0.5");
  Table().Type(4, 2, "1.5");
  Save();
  EXPECT_THAT(statements, ElementsAre("Delete * from tbl_LecturerQualificationSubject " + kOfMember,
                                      kQualifiedInsert + "'100',0,2)"));
  survey.Execute(kQualifiedInsert + "'gone',1,1)");
  survey.Execute(kQualifiedInsert + "'300',null,2.5)");
  Open(kQualified);
  EXPECT_EQ(Line(1) + " / " + Line(2),
            "100 Maths N1 Report 191|0|2|100 / 300 Women's Health NSC||2|300");
  Save();  // a line whose subject has left the catalogue goes
  EXPECT_THAT(Query("select SubjectCode as r from tbl_LecturerQualificationSubject order by rowid"),
              ElementsAre("100", "300"));
}

TEST_F(SubjectPages, ABrokenPrinterAndASearchThatFailsAreTold) {
  for (const auto& [page, print] :
       {std::pair{kTeaching, "frmEducatorTraining"}, {kQualified, "frmEducatorTraining1"}}) {
    Open(page);
    printer = {};
    Click("cmdPrintPage");
    EXPECT_EQ(printer.operations.at(4), "Print \" Campus EMIS NUMBER: 202 Staff ID: 8001\"");
    printer.broken = true;
    Click("cmdPrintPage");
    EXPECT_THAT(LastBox(), ToldBy(print, "Print Routine"));
  }
  RunScript("drop table lst_Subject");
  Search("x");
  EXPECT_THAT(LastBox(), ToldBy("frmEducatorTeaching1", "cmdGo_Click"));
}

TEST_F(SubjectPages, OnlyTheWayForwardAsks) {
  for (const auto& [page, ahead, aside] :
       {std::tuple{kTeaching, "frmEducatorTeaching2", "frmEducatorTeaching1"},
        {kQualified, "frmEducatorTeaching", "frmLecQualifications2"}}) {
    Open(page, "8002");
    EXPECT_THAT(host.Front()->Caption, EndsWith("Emis Number : 202-  ID number: 8002"));
    Table().Type(3, 2, "1");
    Click("cmdForward");
    EXPECT_EQ(Front(), page);
    dialogs.answers = {kAnswerYes};
    Click("cmdForward");
    EXPECT_EQ(Front() + " " + host.Front()->Property("EducatorId"), ahead + std::string(" 8002"));
    Open(page, "8003");
    Table().Type(3, 2, "1");
    dialogs.seen.clear();
    Click("cmdNext");
    EXPECT_EQ(Front() + " " + host.Front()->Property("EducatorId"), aside + std::string(" 8003"));
    EXPECT_THAT(dialogs.seen, IsEmpty());
  }
}

}  // namespace
}  // namespace survey::testing
