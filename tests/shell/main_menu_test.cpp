#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "pages/survey_pages.h"
#include "shell/register_shell.h"
#include "support/headless_program.h"

namespace survey::testing {
namespace {

using ::testing::IsEmpty;

constexpr char kMenu[] = "frmMainMenu";
constexpr char kList[] = "frmSelectCollege";

// Sites of one college in the department's lists, by their type.
struct KnownSite {
  int type;
  std::string option, campus, campus_number, kind;
};
const KnownSite kOffice{1, "optHO", "Blouklip FET College Central Office", "199010831",
                        "Central Office"};
const KnownSite kCampus{2, "optCampus", "Duinekop Campus", "108107587", "Campus"};
constexpr char kCollege[] = "Blouklip FET College";

class MainMenu : public HeadlessProgram, public ::testing::Test {
 protected:
  MainMenu() {
    RegisterShell(host);
    RegisterPages(host);
    OpenSite(0, 0);
    survey.SurveyYear = 0;
  }

  void StartAdding() {
    host.Start(kList);
    Click(kList, "cmdAdd");
  }
  ComboBox& Combo(std::string_view name) { return The<ComboBox>(kMenu, name); }
  std::string& Text(std::string_view name) { return The<TextBox>(kMenu, name).Text; }
  // Whether the frame for picking a site is there; the links are there when it is not.
  bool Picking() {
    const auto visible = [this](const char* frame) { return The<Frame>(kMenu, frame).Visible; };
    EXPECT_NE(visible("Frame1"), visible("Frame3") && visible("Frame4"));
    return visible("Frame1");
  }
  GridControl& Sites() { return The<GridControl>(kList, "gridcollege"); }

  void Choose(std::string_view combo, const std::string& text) {
    Combo(combo).DropDown();
    const auto& items = Combo(combo).items();
    for (std::size_t i = 0; i < items.size(); ++i) {
      if (items[i].text == text) return Combo(combo).Choose(static_cast<int>(i));
    }
    ADD_FAILURE() << combo << " does not offer " << text;
  }
  void Pick(const KnownSite& site) {
    The<OptionButton>(kMenu, site.option).Click();
    Choose("cboProvince", "Western Cape");
    Choose("cboCollege", kCollege);
    Choose("cboCampus", site.campus);
  }
};

TEST_F(MainMenu, ASiteIsPickedThroughProvinceCollegeAndCampusAndClaimed) {
  for (const KnownSite& site : {kOffice, kCampus}) {
    StartAdding();
    EXPECT_TRUE(Picking());
    Pick(site);
    EXPECT_EQ(Text("txtColEmis"), "199010830");
    EXPECT_EQ(Text("txtCamEmis"), site.campus_number);
    EXPECT_EQ(The<Button>(kMenu, "cmdContinue").BackColor, kYellow);

    statements.clear();
    Click(kMenu, "cmdContinue");
    EXPECT_THAT(statements, ::testing::ElementsAre(
                                "Select * from tbl_Generalinformation where campusemisnumber = " +
                                    site.campus_number + " and surveyyear = '2012'",
                                "Update tbl_generalinformation set surveyyear = '2012' where "
                                "campusemisnumber = " +
                                    site.campus_number));
    EXPECT_EQ(survey.CollegeEmisNumber, 199010830);
    EXPECT_EQ(survey.CampusEmisNumber, std::stod(site.campus_number));
    EXPECT_EQ(survey.SurveyYear, 2012);
    EXPECT_FALSE(Picking());
    modal_scripts.push_back([](Form& form) { form.Find<Button>("cmdOK").Click(); });
    Click(kMenu, "cmdDisclaimer");  // coming back activates the menu, which is still adding
    EXPECT_TRUE(Picking());

    // Back in the list it stands with its kind, and opens for editing.
    Click(kMenu, "cmdList");
    EXPECT_EQ(Sites().GetText(4, site.type), site.campus_number);
    EXPECT_EQ(Sites().GetText(5, site.type), site.kind);
    survey.CampusEmisNumber = 0;
    Sites().Click(1, site.type);
    Click(kList, "cmdContinue");
    EXPECT_EQ(survey.CampusEmisNumber, std::stod(site.campus_number));
    EXPECT_EQ(The<Frame>(kMenu, "Frame1").Caption, kCollege);
    EXPECT_EQ(Combo("cboProvince").Text(), "Western Cape");
    EXPECT_TRUE(The<OptionButton>(kMenu, site.option).Value());
    EXPECT_TRUE(The<Frame>(kMenu, "Frame4").Visible);
    host.Unload(host.Get(kMenu));
  }
}

TEST_F(MainMenu, AClaimedSiteIsNotClaimedTwiceAndAFailedClaimIsSilentButNotItsCommit) {
  const std::string fresh = "update tbl_GeneralInformation set SurveyYear = ";
  StartAdding();
  Pick(kCampus);
  RunScript((fresh + "'2012'").c_str());
  Click(kMenu, "cmdContinue");
  EXPECT_EQ(LastBox(),
            "The campus or college that you have selected already exists in the database. Return "
            "to the institution list and select the institution for editing.");
  RunScript((fresh + "'2011'").c_str());
  auto reader = HoldCommits();
  Click(kMenu, "cmdContinue");
  EXPECT_THAT(LastBox(),
              ::testing::EndsWith("\r\nLocation: frmMainMenu\r\nProcedure: cmdContinue_Click"));
  EXPECT_TRUE(Picking());
  EXPECT_EQ(survey.CampusEmisNumber, 0);
  reader.reset();
  survey.DatabaseConnection->ExecuteScript(
      "create temp trigger refuse before update on tbl_GeneralInformation begin "
      "select raise(abort, 'refused'); end");
  Click(kMenu, "cmdContinue");
  EXPECT_THAT(dialogs.seen, IsEmpty());
  EXPECT_TRUE(Picking());
  EXPECT_EQ(survey.CampusEmisNumber, 0);
}

TEST_F(MainMenu, OptionsAndCombosClearWhatNoLongerHolds) {
  StartAdding();
  EXPECT_EQ(Combo("cboProvince").items().size(), 9u);
  Choose("cboProvince", "Limpopo");
  EXPECT_EQ(LastBox(), "Please indicate if you are a central office or campus site");
  EXPECT_THAT(Combo("cboCollege").items(), IsEmpty());

  Pick(kCampus);
  EXPECT_EQ(Combo("cboCampus").items().size(), 5u);
  Combo("cboCollege").DropDown();
  EXPECT_EQ(Text("txtColEmis") + "/" + Text("txtCamEmis"), "/");
  Choose("cboCampus", kCampus.campus);
  EXPECT_EQ(Text("txtCamEmis"), kCampus.campus_number);
  Combo("cboProvince").DropDown();
  EXPECT_THAT(Combo("cboCollege").items(), IsEmpty());
  EXPECT_EQ(Text("txtCamEmis"), "");
  Combo("cboCampus").Choose(0);
  EXPECT_EQ(LastBox(), "You must select a college before you can select a site");

  The<OptionButton>(kMenu, "optHO").Click();
  EXPECT_EQ(Combo("cboProvince").Text(), "");
  EXPECT_THAT(Combo("cboCampus").items(), IsEmpty());
  Click(kMenu, "cmdContinue");  // a statement that cannot run: nothing happens
  EXPECT_THAT(dialogs.seen, IsEmpty());
  EXPECT_TRUE(Picking());
}

TEST_F(MainMenu, LinksTestTheSiteAndLeaveTheMenu) {
  StartAdding();
  Click(kMenu, "cmdList");
  Click(kList, "cmdContinue");
  EXPECT_EQ(LastBox(), "Please select a college or campus to continue");
  host.Get(kMenu).Property("EditMode") = "Edit";
  host.Start(kMenu);
  for (const char* needs_site : {"cmdGeneral", "cmdHostel", "cmdStafffSummary"}) {
    Click(kMenu, needs_site);
    EXPECT_EQ(Front(), kMenu) << needs_site;
  }
  survey.CollegeEmisNumber = survey.CampusEmisNumber = 7;
  Click(kMenu, "cmdGeneral");
  EXPECT_EQ(Front(), "frmPage2");
  EXPECT_FALSE(host.Get(kMenu).loaded());
}

}  // namespace
}  // namespace survey::testing
