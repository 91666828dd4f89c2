#include "checks/site_checks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "base/text.h"
#include "pages/survey_pages.h"
#include "support/filled_site.h"
#include "support/page_filler.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::StartsWith;
using Kind = Finding::Kind;

struct SiteChecksOfPages : FilledSite, ::testing::Test {
  SiteChecks Check(int year = 2012) { return CheckSite(*survey.OpenAside(), 101, 202, year); }
  std::vector<Finding> Findings(Kind kind) {
    std::vector<Finding> found = Check().findings;
    std::erase_if(found, [&](const Finding& finding) { return finding.kind != kind; });
    return found;
  }
  std::vector<std::string> Texts(Kind kind) {
    std::vector<std::string> texts;
    for (const Finding& finding : Findings(kind)) texts.push_back(finding.text);
    return texts;
  }
  std::set<std::string> FilledPages() {
    std::set<std::string> pages;
    for (const PageState& page : Check().pages) {
      if (page.fill == PageFill::kHoldsAnswers) pages.emplace(page.page->name);
    }
    return pages;
  }
  void Clear() {
    RunScript(
        "delete from tbl_StudentRegistrationOccupational; delete from tbl_LecturerTeachingSubject;"
        "delete from tbl_LecturerQualificationSubject");
  }
};

TEST_F(SiteChecksOfPages, NothingFilledIsAllEmptyAndAllCompulsoryAnswersMissing) {
  Clear();
  std::string tables;
  for (const Finding& finding : Findings(Kind::kEmptyTable)) tables += finding.table + ", ";
  EXPECT_THAT(tables, StartsWith("1.5 - 1.14, 1.15, 1.16, 2.1, 2.2, 2.3, 2.4, 2.5, 3.1, 3.2, 3.3, "
                                 "3.4, 3.5, 3.6, 3.7, 3.8, 3.9, 3.10, 3.11, 3.12, 3.13, 3.14, "
                                 "3.15, 3.16, 3.17, 3.18, 3.19, "));
  EXPECT_THAT(tables, EndsWith(", 4.1 - 4.23, "));
  EXPECT_THAT(Texts(Kind::kCompulsory),
              ElementsAre("No answer to 1.6.3 Street Name", "No answer to 1.6.4 Town or City",
                          "No answer to 1.12 Name of Principal/Campus Manager",
                          "No answer to 1.14 Does the campus/site have a computerised Management "
                          "Information System? [1=yes; 2=no]"));
  EXPECT_THAT(FilledPages(), IsEmpty());
  EXPECT_EQ(Check().staff, 0);
  EXPECT_EQ(Check().findings.size(), Findings(Kind::kEmptyTable).size() + 4)
      << "two empty tables agree";
}

// Each page that is answered and saved holds answers from then on, and no other one does.
TEST_F(SiteChecksOfPages, APageHoldsAnswersOnceItIsSaved) {
  Clear();
  std::set<std::string> saved;
  for (const std::string& name : PageNames()) {
    Figures figures = Figures::OfVersion(1);
    Form& page = Open(name);
    FillPage(page, figures);
    saved.insert(name);
    EXPECT_EQ(FilledPages(), saved);
    host.Unload(page);
  }
  EXPECT_THAT(Texts(Kind::kEmptyTable), IsEmpty());
  EXPECT_EQ(Check().staff, 1);
  EXPECT_THAT(Check(2010).findings, ::testing::SizeIs(::testing::Gt(20)));
}

// What the pages paint red, and by how much, is what does not balance.
TEST_F(SiteChecksOfPages, TotalsBalanceWhereThePagesShowThemGreen) {
  SaveAll(1);
  RunScript(
      "delete from tbl_StudentRegistration where ProgrammeRegistrationTypeCD in (4, 12);"
      "delete from tbl_Level5Programmes");
  std::map<std::string, std::string> unbalanced;  // by table
  for (const Finding& finding : Findings(Kind::kUnbalanced)) {
    const auto& grid = static_cast<const Grid&>(
        Open(finding.page).Find<GridControl>(finding.grid, finding.grid_index));
    EXPECT_EQ(grid.BackColor(finding.column, finding.row), kRed) << finding.table;
    EXPECT_EQ(grid.GetText(finding.column, finding.row), NumberText(finding.stored));
    unbalanced[finding.table] = NumberText(finding.expected);
  }
  std::size_t red = 0;
  for (const PageRow& page : SurveyPages()) {
    for (const Reconciliation& total : page.totals) {
      const Form& form = Open(std::string(page.name));
      red +=
          form.Find<Grid>(total.grid, total.index).BackColor(total.total.column, total.total.row) ==
          kRed;
    }
  }
  EXPECT_EQ(unbalanced.size(), red);
  EXPECT_EQ(unbalanced["3.5"], "0");
  EXPECT_EQ(unbalanced.count("3.11"), 0U) << "nothing there, nothing in table 2.5";
}

// The cell that a finding leads to is the one that the page asks for.
TEST_F(SiteChecksOfPages, CompulsoryAnswersAreThoseThatThePagesAskFor) {
  SaveAll(1);
  EXPECT_THAT(Texts(Kind::kCompulsory), IsEmpty());
  for (const char* missing :
       {"MISSystem = 0", "Manager = ''", "Physical_City = null", "Physical_Street = '12 '"}) {
    RunScript(("update tbl_GeneralInformation set " + std::string(missing) +
               " where CampusEmisNumber = 202")
                  .c_str());
    const Finding first = Findings(Kind::kCompulsory).front();
    auto& grid = Open("frmPage2").Find<GridControl>(first.grid);
    Click("frmPage2", "cmdSave");
    EXPECT_EQ(grid.ActiveColumn(), first.column) << missing;
    EXPECT_EQ(grid.ActiveRow(), first.row) << missing;
  }
  RunScript("insert into tbl_Hostels(CollegeEmisNumber,CampusEmisNumber) values(101,202)");
  EXPECT_EQ(Texts(Kind::kCompulsory).back(), "No answer to 1.15 Name of Hostel");
}

TEST_F(SiteChecksOfPages, StaffRecordsAreCompleteWhereTheirPageSavesThem) {
  SaveAll(1);
  EXPECT_EQ(Check().incomplete_staff, 0);
  RunScript("update tbl_StaffDetail set DisabilityCD = 0, GenderCD = null, DateOfBirth = '1975'");
  const std::vector<Finding> found = Findings(Kind::kIncompleteStaff);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found.front().id_number, kStaffMember);
  EXPECT_EQ(found.front().text,
            "Staff member 8001015009087 without an answer to 4.9 Gender (1=M; 2=F); "
            "4.14 Date of Birth; 4.19 Disability status [1=Sight; 2=Hearing; 3=Physical; "
            "4=Multiple; 5=Epilepsy; 6=Other; 7=None]");
  auto& grid = Open("frmEducatorData").Find<GridControl>(found.front().grid);
  Click("frmEducatorData", "cmdSave");
  EXPECT_EQ(grid.BackColor(found.front().column, found.front().row), kYellow);

  RunScript("update tbl_StaffDetail set CollegeEmisNumber = 0");  // removed
  EXPECT_EQ(Check().staff, 0);
}

TEST_F(SiteChecksOfPages, TheSitesOfAFileAreThoseChosenAndThoseWithAnswers) {
  const auto sites = [this] {
    std::string all;
    for (const SiteOfFile& site : SitesOf(*survey.OpenAside())) {
      all += NumberText(site.college_emis_number) + "/" + NumberText(site.campus_emis_number) +
             " " + site.campus_name + " " + site.listed_year + ":";
      for (const int year : site.years) all += " " + std::to_string(year);
      all += "\n";
    }
    return all;
  };
  EXPECT_EQ(sites(), "101/202 Campus 2012: 2012\n");
  RunScript(
      "update tbl_GeneralInformation set SurveyYear = '2010' where CampusEmisNumber = 202;"
      "insert into tbl_StudentEnrolment(CollegeEmisNumber,CampusEmisNumber,SurveyYear) "
      "values(101,202,2010),(9,9,2012)");
  EXPECT_EQ(sites(), "9/9  : 2012\n101/202 Campus 2010: 2010 2012\n");
}

}  // namespace
}  // namespace survey::testing
