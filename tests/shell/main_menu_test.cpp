#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "shell/register_shell.h"
#include "support/world.h"

namespace survey::testing {
namespace {

using ::testing::IsEmpty;

constexpr char kMenu[] = "frmMainMenu";
constexpr char kList[] = "frmSelectCollege";

// A site of the department's lists.
struct KnownSite {
  std::string province, college, campus, college_number, campus_number;
  int type;
};

class MainMenu : public World, public ::testing::Test {
 protected:
  MainMenu() {
    RegisterShell(forms);
    OpenSite(0, 0);
    survey.SurveyYear = 0;
  }

  void Start() { forms.Start(kList); }
  void StartAdding() {
    Start();
    Click(kList, "cmdAdd");
  }
  ComboBox& Combo(std::string_view name) { return The<ComboBox>(kMenu, name); }
  std::string& Text(std::string_view name) { return The<TextBox>(kMenu, name).Text; }
  bool Visible(std::string_view frame) { return The<Frame>(kMenu, frame).Visible; }
  GridControl& Sites() { return The<GridControl>(kList, "gridcollege"); }

  void Choose(std::string_view combo, const std::string& text) {
    Combo(combo).DropDown();
    const auto& items = Combo(combo).items();
    for (std::size_t i = 0; i < items.size(); ++i) {
      if (items[i].text == text) return Combo(combo).Choose(static_cast<int>(i));
    }
    ADD_FAILURE() << combo << " does not offer " << text;
  }
  // The first site of that type in the lists.
  KnownSite Site(int type) {
    const auto row = Query(
        "select province || ';' || collegename || ';' || campusname || ';' || collegeemisnumber "
        "|| ';' || campusemisnumber as r from lst_college inner join lst_province on "
        "lst_college.provincecd = lst_province.provincecd where sitetype = " +
        std::to_string(type))[0];
    std::istringstream fields(row);
    KnownSite site{};
    for (std::string* field :
         {&site.province, &site.college, &site.campus, &site.college_number, &site.campus_number}) {
      std::getline(fields, *field, ';');
    }
    site.type = type;
    return site;
  }
  void Pick(const KnownSite& site) {
    The<OptionButton>(kMenu, site.type == 1 ? "optHO" : "optCampus").Click();
    Choose("cboProvince", site.province);
    Choose("cboCollege", site.college);
    Choose("cboCampus", site.campus);
  }
};

TEST_F(MainMenu, AnEmptyDatabasePointsToTheOnlyUsefulButton) {
  Start();
  EXPECT_EQ(The<Button>(kList, "cmdAdd").BackColor, kYellow);
  EXPECT_EQ(survey.DatabaseConnection, nullptr);
  Click(kList, "cmdContinue");
  EXPECT_EQ(LastBox(), "Please select a college or campus to continue");
  EXPECT_EQ(Front(), kList);
}

TEST_F(MainMenu, ASiteIsPickedThroughProvinceCollegeAndCampusAndClaimed) {
  for (const int type : {1, 2}) {
    StartAdding();
    EXPECT_TRUE(Visible("Frame1"));
    EXPECT_FALSE(Visible("Frame3") || Visible("Frame4"));
    const KnownSite site = Site(type);
    Pick(site);
    EXPECT_EQ(Text("txtColEmis"), site.college_number);
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
    EXPECT_EQ(survey.CollegeEmisNumber, std::stod(site.college_number));
    EXPECT_EQ(survey.CampusEmisNumber, std::stod(site.campus_number));
    EXPECT_EQ(survey.SurveyYear, 2012);
    EXPECT_FALSE(Visible("Frame1"));
    EXPECT_TRUE(Visible("Frame3") && Visible("Frame4"));

    // Back in the list it stands with its kind, and opens for editing.
    Click(kMenu, "cmdList");
    const int row = type;
    EXPECT_EQ(Sites().GetText(4, row), site.campus_number);
    EXPECT_EQ(Sites().GetText(5, row), type == 1 ? "Central Office" : "Campus");
    survey.CampusEmisNumber = 0;
    Sites().Click(1, row);
    Click(kList, "cmdContinue");
    EXPECT_EQ(survey.CampusEmisNumber, std::stod(site.campus_number));
    EXPECT_EQ(The<Frame>(kMenu, "Frame1").Caption, site.college);
    EXPECT_EQ(Combo("cboProvince").Text(), site.province);
    EXPECT_TRUE(The<OptionButton>(kMenu, type == 1 ? "optHO" : "optCampus").Value());
    EXPECT_TRUE(Visible("Frame4"));
    forms.Unload(forms.Get(kMenu));
  }
}

TEST_F(MainMenu, AClaimedSiteIsNotClaimedTwice) {
  const KnownSite site = Site(2);
  RunScript(("update tbl_GeneralInformation set SurveyYear = '2012' where CampusEmisNumber = " +
             site.campus_number)
                .c_str());
  StartAdding();
  Pick(site);
  Click(kMenu, "cmdContinue");
  EXPECT_EQ(LastBox(),
            "The campus or college that you have selected already exists in the database. Return "
            "to the institution list and select the institution for editing.");
  EXPECT_TRUE(Visible("Frame1"));
  EXPECT_EQ(survey.CampusEmisNumber, 0);
}

TEST_F(MainMenu, OptionsAndCombosClearWhatNoLongerHolds) {
  StartAdding();
  EXPECT_EQ(Combo("cboProvince").items().size(), 9u);
  EXPECT_EQ(Combo("cboProvince").items()[0].text, "Eastern Cape");  // by name
  Choose("cboProvince", "Limpopo");
  EXPECT_EQ(LastBox(), "Please indicate if you are a central office or campus site");
  EXPECT_THAT(Combo("cboCollege").items(), IsEmpty());

  const KnownSite site = Site(2);
  Pick(site);
  Combo("cboCollege").DropDown();
  EXPECT_EQ(Text("txtColEmis") + Text("txtCamEmis"), "");
  Choose("cboCampus", site.campus);
  EXPECT_EQ(Text("txtCamEmis"), site.campus_number);
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
  EXPECT_TRUE(Visible("Frame1"));
}

TEST_F(MainMenu, CampusesAreThoseOfTheCollegeAndOfTheSiteType) {
  StartAdding();
  const KnownSite office = Site(1);
  Pick(office);
  EXPECT_EQ(Combo("cboCampus").items().size(), 1u);
  The<OptionButton>(kMenu, "optCampus").Click();
  Choose("cboProvince", office.province);
  Choose("cboCollege", office.college);
  EXPECT_EQ(Combo("cboCampus").items().size(),
            Query("select campusname as r from lst_college where sitetype = 2 and "
                  "collegeemisnumber = " +
                  office.college_number)
                .size());
}

TEST_F(MainMenu, AFailedClaimLeavesTheFrames) {
  StartAdding();
  Pick(Site(2));
  RunScript(
      "create trigger refuse before update on tbl_GeneralInformation begin "
      "select raise(abort, 'refused'); end");
  Click(kMenu, "cmdContinue");
  EXPECT_THAT(dialogs.seen, IsEmpty());
  EXPECT_TRUE(Visible("Frame1"));
  EXPECT_EQ(survey.CampusEmisNumber, 0);
}

TEST_F(MainMenu, LinksTestTheSiteOrDoNotAndUnbuiltPagesSaySo) {
  StartAdding();
  Click(kMenu, "cmdList");
  forms.Get(kMenu).EditMode = "Edit";
  forms.Start(kMenu);
  for (const char* needs_site : {"cmdGeneral", "cmdHostel", "cmdStafffSummary"}) {
    Click(kMenu, needs_site);
    EXPECT_EQ(LastBox(), "") << needs_site;
  }
  survey.CollegeEmisNumber = survey.CampusEmisNumber = 7;
  Click(kMenu, "cmdGeneral");
  EXPECT_EQ(LastBox(), "This part of the survey is not in the program yet.");
  EXPECT_EQ(Front(), kMenu);
  EXPECT_TRUE(forms.Get(kMenu).loaded());
}

TEST_F(MainMenu, AddStaysInForceUntilTheListIsUsed) {
  StartAdding();
  Pick(Site(2));
  Click(kMenu, "cmdContinue");
  modal_scripts.push_back([](Form& form) { form.Find<Button>("cmdOK").Click(); });
  Click(kMenu, "cmdDisclaimer");  // coming back activates the menu
  EXPECT_TRUE(Visible("Frame1"));
  EXPECT_FALSE(Visible("Frame4"));
}

}  // namespace
}  // namespace survey::testing
