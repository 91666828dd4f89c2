#include "pages/staff/frmAddSubjects.h"

#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;

constexpr char kForm[] = "frmAddSubjects";
const std::string kSelect = "Select subjectCode,description,programme from lst_Subject ";
const std::string kAll = kSelect + "order by programme, description";

class AddSubjects : public PageTest {
 protected:
  AddSubjects() : PageTest(kForm, "gridSubjectList") {
    RunScript(
        "delete from lst_Subject; insert into lst_Subject(SubjectCode,Description,Programme) "
        "values ('30','beta','NSC'),('10','Beta','NC(V)'),('9','Zulu','Report 191 (old)'),"
        "('20','alpha','Report 550'),('21','Women''s Art','NC(V)')");
    Reopen();
  }
  FrmAddSubjects& Dialog() { return dynamic_cast<FrmAddSubjects&>(host.Get(kForm)); }
  std::string Codes() {
    std::string codes;
    for (int row = 1; row <= Table().MaxRows(); ++row) codes += At(1, row) + " ";
    return codes;
  }
  void Filter(int index) { The<OptionButton>(kForm, "optFilterSubjects", index).Click(); }
  void Search(int by, const std::string& text) {
    The<OptionButton>(kForm, "optSearch", by).Click();
    Dialog().txtSearch.Enter(text);
    Click("cmdSubjects");
  }
  void Describe(const std::string& code, const std::string& name, int programme) {
    Dialog().txtSubjectCode.KeyDown();
    Dialog().txtSubjectCode.Enter(code);
    Dialog().txtSubjectName.Enter(name);
    if (programme >= 0) Dialog().cboProgramme.Choose(programme);
  }
  std::string Details() {
    return Dialog().txtSubjectCode.Text + "|" + Dialog().txtSubjectName.Text + "|" +
           Dialog().cboProgramme.Text();
  }
};

TEST_F(AddSubjects, ShowsAllThenWhatIsFilteredOrFound) {
  EXPECT_THAT(statements, ElementsAre(kAll, kAll));
  EXPECT_EQ(Codes() + "/ " + Shown({{2, 2}, {3, 2}}), "10 21 30 9 20 / Women's Art|NC(V)");
  Click("cmdSubjects");  // neither way of searching is chosen
  EXPECT_EQ(statements.size(), 2u);
  for (const auto& [filter, programme, codes] : {std::tuple{1, "Report 191", "9 "},
                                                 {2, "NSC", "30 "},
                                                 {3, "NC(V)", "10 21 "},
                                                 {4, "Report 550", "20 "}}) {
    Filter(filter);
    EXPECT_EQ(statements.back(),
              kSelect + "where programme like  '" + programme + "%' order by description");
    EXPECT_EQ(Codes(), codes);
  }
  for (const auto& [by, text, condition, codes] :
       {std::tuple{1, "2", "subjectcode like  '2%'", "20 21 "},
        {2, "N'S", "description like  '%N''S%'", "21 "},
        {2, "nothing", "description like  '%nothing%'", " "}}) {
    Search(by, text);
    EXPECT_EQ(statements.back(), kSelect + "where " + condition);
    EXPECT_EQ(Codes(), codes);
  }
  EXPECT_EQ(Shown({{2, 1}, {3, 1}}), "|");
  Filter(5);
  EXPECT_EQ(statements.back(), kAll);
  EXPECT_EQ(Dialog().TransformFilters(5), "ALL");
  EXPECT_EQ(Dialog().TransformFilters(6), "");
}

TEST_F(AddSubjects, AClickOnAHeadSortsTheList) {
  Table().Click(2, 0);
  EXPECT_EQ(Codes(), "20 10 30 21 9 ");  // equal names as they stood
  Table().Click(2, 3);                   // no head
  Table().Click(2, 0);
  EXPECT_EQ(Codes(), "9 21 10 30 20 ");
  Table().Click(1, 0);
  EXPECT_EQ(Codes(), "10 20 21 30 9 ");  // as text
  EXPECT_EQ(Shown({{2, 5}, {3, 5}}), "Zulu|Report 191 (old)");
  RunScript("insert into lst_Subject values (99,'11','\u00c1lgebra','NC(V)')");
  Filter(3);
  EXPECT_EQ(Table().ChosenRow(), 0);
  Table().Click(1, 0);  // the list is another one
  EXPECT_EQ(Codes(), "10 11 21 ");
  Table().Click(2, 0);  // an accented letter beside its plain one
  EXPECT_EQ(Codes(), "11 10 21 ");
}

TEST_F(AddSubjects, AddsASubjectOfThreeDetails) {
  Dialog().txtSubjectName.KeyDown();
  EXPECT_TRUE(Yellow("cmdSaveSubject"));
  for (const auto& [code, name, programme, details] : {std::tuple{"5", "Name", -1, "5|Name|"},
                                                       {"5", "", 1, "5||NC(V)"},
                                                       {"", "N", 1, "|N|NC(V)"}}) {
    Describe(code, name, programme);
    Click("cmdSaveSubject");
    EXPECT_EQ(LastBox(), "Please complete all subject details before saving.");
    EXPECT_FALSE(Yellow("cmdSaveSubject"));
    EXPECT_EQ(Details(), details);
  }
  Filter(2);
  Describe("0-7 5\b", "O'Level", 1);
  EXPECT_EQ(Details(), "075|O'Level|NC(V)");
  statements.clear();
  Click("cmdSaveSubject");
  EXPECT_THAT(statements,
              ElementsAre("Select subjectcode from lst_subject where subjectcode = '075'",
                          "INSERT into lst_Subject(subjectcode,description,programme) "
                          "VALUES('075','O''Level','NC(V)')",
                          kAll, kAll));
  EXPECT_EQ(Details() + " / " + Codes(), "|| / 10 075 21 30 9 20 ");
  EXPECT_NE(Query("select SubjectID as r from lst_Subject where SubjectCode = '075'").at(0), "");
  Describe("075", "Other", 0);
  Click("cmdSaveSubject");
  EXPECT_EQ(LastBox(), "This subject code already exists and cannot be used again.");
  EXPECT_EQ(Details() + " / " + Codes(), "|| / 10 075 21 30 9 20 ");
}

TEST_F(AddSubjects, FailuresAreReportedAndTheStepsGoOn) {
  Describe("77", "Name", 3);
  RunScript("drop table lst_Subject");
  Click("cmdSaveSubject");
  ASSERT_EQ(dialogs.seen.size(), 2u);
  EXPECT_THAT(dialogs.seen[0].prompt,
              ToldBy("frmAddSubjects", "CheckDuplicationBeforeSave Routine"));
  EXPECT_THAT(LastBox(), ToldBy("frmAddSubject", "Get Subject Routine"));
  EXPECT_EQ(Details() + " / " + Codes(), "|| /      ");
}

}  // namespace
}  // namespace survey::testing
