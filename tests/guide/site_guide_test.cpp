#include "guide/site_guide.h"

#include <algorithm>

#include "grid/cell_entry.h"
#include "guide/cell_facts.h"
#include "pages/survey_pages.h"
#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr char kMenu[] = "frmMainMenu";

class SiteGuideTest : public PageTest {
 protected:
  SiteGuideTest() : PageTest("frmPage3", "gridEnrolment") {
    Store(
        "insert into tbl_GeneralInformation(CollegeEmisNumber,CampusEmisNumber,SurveyYear,"
        "CollegeName,CampusName) values(101,202,'2012','North College','Hill')");
    Store(
        "insert into tbl_StaffDetail(CollegeEmisNumber,CampusEmisNumber,SurveyYear,IDNumber,"
        "Surname,Initials) values(101,202,2012,'7501','Adams','B C')");
    host.Get(kMenu).Property("EditMode") = "Edit";
    guide.Attend();
  }

  // What happens when an action of the user's has ended.
  void Refresh() override { guide.Attend(); }
  const ContentsEntry& Entry(const std::string& tables) {
    for (const ContentsPart& part : guide.contents()) {
      for (const ContentsEntry& entry : part.entries) {
        if (entry.tables == tables) return entry;
      }
    }
    throw std::out_of_range(tables);
  }
  bool GoTo(const std::string& tables) { return guide.GoTo(ContentsEntry(Entry(tables))); }

  SiteGuide guide{host};
};

TEST_F(SiteGuideTest, KnowsThePageWhatIsSavedAndWhoseItIs) {
  EXPECT_EQ(guide.where().site, "North College, Hill");
  EXPECT_EQ(guide.where().page,
            "Page 5 of " + std::to_string(std::ranges::count(SurveyPages(), Section::kCampus,
                                                             &PageRow::section)));
  EXPECT_EQ(guide.where().saved, "");
  EXPECT_EQ(Entry("2.5").state, EntryState::kEmpty);
  Type(7, 3, "12");
  EXPECT_EQ(guide.where().saved, "not saved");
  EXPECT_EQ(Entry("2.5").state, EntryState::kUnsaved);
  EXPECT_THAT(Entry("2.5").words, HasSubstr("not saved; empty"));
  statements.clear();
  Save();
  EXPECT_THAT(guide.where().saved, ::testing::MatchesRegex("saved [0-9][0-9]:[0-9][0-9]"));
  EXPECT_EQ(Entry("2.5").state, EntryState::kHoldsAnswers);
  EXPECT_THAT(statements, Each(HasSubstr("StudentRegistration"))) << "the page's, and no others";
  EXPECT_EQ(guide.contents().back().entries.front().about,
            "Staff list: 1 member, 1 incomplete record");
  // The way to a staff page goes over whose page was in front, else ends at the list.
  EXPECT_TRUE(GoTo("4.28"));
  EXPECT_EQ(Front(), "frmSelectEducator");
  The<GridControl>("frmSelectEducator", "gridEducator").Click(1, 1);
  Click("frmSelectEducator", "cmdLoad");
  EXPECT_EQ(guide.where().site, "B C Adams, North College, Hill");
  EXPECT_EQ(guide.where().page, "Page 5 of 6");
  EXPECT_TRUE(GoTo("4.25 - 4.27"));  // which only the page before leads to
  EXPECT_EQ(Front(), "frmLecQualifications2");
  EXPECT_EQ(host.Front()->Property("EducatorId"), "7501");
  host.Unload(host.Get("frmSelectEducator"));
  Click("frmLecQualifications2", "cmdEducatorList");
  Click("frmSelectEducator", "cmdMenu");
  Click(kMenu, "cmdList");
  EXPECT_FALSE(guide.SiteChosen());
}

TEST_F(SiteGuideTest, GoesByTheFormsOwnButtonsAndStaysWhereTheUserDoes) {
  Type(7, 3, "12");
  dialogs.answers = {kAnswerNo};
  EXPECT_FALSE(GoTo("3.8"));
  EXPECT_EQ(Front(), "frmPage3");
  EXPECT_EQ(At(7, 3), "12");
  dialogs.answers = {kAnswerYes};
  EXPECT_TRUE(GoTo("3.8"));
  EXPECT_EQ(Front(), "frmPage8");
  EXPECT_EQ(dialogs.seen.size(), 2u);
  // A menu that adds a site is opened by the list of sites instead; one that is not listed there
  // leaves the user at the list.
  host.Get(kMenu).Property("EditMode") = "Add";
  EXPECT_TRUE(GoTo("1.1 - 1.14"));
  EXPECT_EQ(Front(), "frmPage2");
  EXPECT_EQ(host.Get(kMenu).Property("EditMode"), "Edit");
  host.Get(kMenu).Property("EditMode") = "Add";
  Store("update tbl_GeneralInformation set SurveyYear = '2010' where CampusEmisNumber = 202");
  EXPECT_FALSE(GoTo("2.5"));
  EXPECT_EQ(Front(), "frmSelectCollege");
  // A staff page that its own button would leave without a word is asked about.
  host.Get(kMenu).Property("EditMode") = "Edit";
  host.Start(kMenu);
  Finding finding;
  finding.page = "frmEducatorTeaching2";
  finding.id_number = "7501";
  EXPECT_TRUE(guide.GoTo(finding));
  The<Button>("frmEducatorTeaching2", "cmdSave").BackColor = kYellow;
  dialogs.seen.clear();
  dialogs.answers = {kAnswerNo};
  EXPECT_FALSE(GoTo("2.5"));
  EXPECT_EQ(Front(), "frmEducatorTeaching2");
  EXPECT_THAT(LastBox(), HasSubstr("NOT saved"));
}

TEST_F(SiteGuideTest, WarnsOfAnotherYearAndLeadsBack) {
  EXPECT_EQ(guide.where().warning, "");
  host.Start(kMenu);
  survey.SurveyYear = 2010;
  guide.Attend();
  EXPECT_EQ(guide.where().year, "Year 2010!");
  EXPECT_THAT(guide.where().warning, HasSubstr("that you open now show 2010"));
  Click(kMenu, "cmdGeneral");
  EXPECT_THAT(guide.where().warning, HasSubstr("takes the site off the list"));
  EXPECT_TRUE(guide.GoToYearOfSurvey());
  EXPECT_EQ(survey.SurveyYear, 2012);
  survey.SurveyYear = 2010;
  EXPECT_TRUE(guide.GoToYearOfSurvey()) << "from the menu itself";
  EXPECT_EQ(survey.SurveyYear, 2012);
  EXPECT_EQ(Front(), kMenu);
  EXPECT_EQ(guide.where().year, "");
}

TEST_F(SiteGuideTest, PrintsTheSheetsOf2012WhateverTheYearIs) {
  for (const auto year : {std::int16_t{2010}, std::int16_t{2012}}) {
    survey.SurveyYear = year;
    Type(7, 3, std::to_string(year * 10));
    Save();
  }
  survey.SurveyYear = 2010;
  guide.Attend();
  std::vector<std::string> figures;
  printer.on_draw = [&](const Grid& grid) { figures.push_back(grid.GetText(7, 3)); };
  statements.clear();
  guide.PrintYearOfSurvey();
  EXPECT_THAT(figures, Contains("20120"));
  EXPECT_THAT(figures, Not(Contains("20100")));
  EXPECT_EQ(printer.job, "site campus survey 2012");
  const auto sheets = std::ranges::count(host.pages(), true, &PageRow::in_campus_print);
  EXPECT_EQ(std::ranges::count(printer.operations, "EndDoc"), sheets);
  EXPECT_EQ(std::ssize(dialogs.steps_seen), sheets);
  EXPECT_EQ(survey.SurveyYear, 2010);
  EXPECT_EQ(At(7, 3), "20120") << "the page in front stays as it is";
  EXPECT_THAT(statements, IsEmpty());
  dialogs.stop_at = 1;
  printer.cancel = true;
  guide.PrintYearOfSurvey();
  EXPECT_THAT(dialogs.seen, IsEmpty()) << "neither Stop nor Cancel is a failure";
  printer.cancel = false;
  printer.full = true;
  guide.PrintYearOfSurvey();
  EXPECT_THAT(LastBox(), ToldBy("Contents", "Print all pages of 2012"));
}

TEST_F(SiteGuideTest, AFileThatCannotBeReadLeavesTheStatesOpen) {
  RunScript("alter table tbl_StaffDetail rename to gone");
  Store("update tbl_GeneralInformation set CampusName = 'Hall' where CampusEmisNumber = 202");
  guide.Attend();
  EXPECT_FALSE(guide.checks());
  EXPECT_EQ(Entry("2.5").state, EntryState::kUnknown);
  EXPECT_THAT(dialogs.seen, IsEmpty());
}

TEST_F(SiteGuideTest, TellsWhatACellTakesAndWhatColoursMean) {
  const auto facts = [this](Cell cell) { return CellFacts(Table(), cell); };
  EXPECT_EQ(facts({7, 3}), "0 to 99999, whole number");
  EXPECT_EQ(facts({1, 3}), "");
  EXPECT_EQ(facts({11, 3}), "Total, adds up by itself");
  Table().SetBackColor(11, 3, kRed);
  EXPECT_THAT(facts({11, 3}), HasSubstr("did not balance when it was last checked"));
  Table().SetNote(11, 3, {"=", "Balances."});
  EXPECT_EQ(facts({11, 3}), "Total: Balances.");
  Type(7, 3, "12");
  Type(7, 4, "30");
  EXPECT_EQ(SumOf(Table(), {{7, 3}, {7, 4}, {7, 5}, {1, 3}}), "Sum 42, count 2");
  EXPECT_EQ(LimitsOf(Number(0, 9999.99)) + "|" + LimitsOf(Number(0, 9.5, 1)) + "|" +
                LimitsOf(Digits(13)) + "|" + LimitsOf(Text(50)),
            "0 to 9999, whole number|0 to 9.5, up to 1 decimal|digits only, up to 13|"
            "text, up to 50 characters");
}

}  // namespace
}  // namespace survey::testing
