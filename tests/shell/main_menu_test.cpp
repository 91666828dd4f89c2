#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/register_shell.h"
#include "world.h"

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

  void StartAdding() {
    forms.Start(kList);
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
  // The first site of that type in the lists.
  KnownSite Site(int type) {
    const auto of_lists = [&](const std::string& field) {
      return Query("select " + field +
                   " as r from lst_college inner join lst_province on lst_college.provincecd = "
                   "lst_province.provincecd where sitetype = " +
                   std::to_string(type))[0];
    };
    return {of_lists("province"),          of_lists("collegename"),      of_lists("campusname"),
            of_lists("collegeemisnumber"), of_lists("campusemisnumber"), type};
  }
  void Pick(const KnownSite& site) {
    The<OptionButton>(kMenu, site.type == 1 ? "optHO" : "optCampus").Click();
    Choose("cboProvince", site.province);
    Choose("cboCollege", site.college);
    Choose("cboCampus", site.campus);
  }
};

TEST_F(MainMenu, AnEmptyDatabasePointsToTheOnlyUsefulButton) {
  forms.Start(kList);
  EXPECT_EQ(The<Button>(kList, "cmdAdd").BackColor, kYellow);
  EXPECT_EQ(survey.DatabaseConnection, nullptr);
  Click(kList, "cmdContinue");
  EXPECT_EQ(LastBox(), "Please select a college or campus to continue");
  EXPECT_EQ(Front(), kList);
}

TEST_F(MainMenu, ASiteIsPickedThroughProvinceCollegeAndCampusAndClaimed) {
  for (const int type : {1, 2}) {
    StartAdding();
    EXPECT_TRUE(Picking());
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
    EXPECT_FALSE(Picking());

    // Back in the list it stands with its kind, and opens for editing.
    Click(kMenu, "cmdList");
    EXPECT_EQ(Sites().GetText(4, type), site.campus_number);
    EXPECT_EQ(Sites().GetText(5, type), type == 1 ? "Central Office" : "Campus");
    survey.CampusEmisNumber = 0;
    Sites().Click(1, type);
    Click(kList, "cmdContinue");
    EXPECT_EQ(survey.CampusEmisNumber, std::stod(site.campus_number));
    EXPECT_EQ(The<Frame>(kMenu, "Frame1").Caption, site.college);
    EXPECT_EQ(Combo("cboProvince").Text(), site.province);
    EXPECT_TRUE(The<OptionButton>(kMenu, type == 1 ? "optHO" : "optCampus").Value());
    EXPECT_TRUE(The<Frame>(kMenu, "Frame4").Visible);
    forms.Unload(forms.Get(kMenu));
  }
}

TEST_F(MainMenu, AClaimedSiteIsNotClaimedTwiceAndAFailedClaimIsSilent) {
  const std::string fresh = "update tbl_GeneralInformation set SurveyYear = ";
  StartAdding();
  Pick(Site(2));
  RunScript((fresh + "'2012'").c_str());
  Click(kMenu, "cmdContinue");
  EXPECT_EQ(LastBox(),
            "The campus or college that you have selected already exists in the database. Return "
            "to the institution list and select the institution for editing.");
  RunScript((fresh + "'2011'; create trigger refuse before update on tbl_GeneralInformation begin "
                     "select raise(abort, 'refused'); end")
                .c_str());
  Click(kMenu, "cmdContinue");
  EXPECT_THAT(dialogs.seen, IsEmpty());
  EXPECT_TRUE(Picking());
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
  EXPECT_EQ(Combo("cboCampus").items().size(),
            Query("select campusname as r from lst_college where sitetype = 2 and "
                  "collegeemisnumber = " +
                  site.college_number)
                .size());
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
  EXPECT_TRUE(Picking());
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
}

TEST_F(MainMenu, AddStaysInForceUntilTheListIsUsed) {
  StartAdding();
  Pick(Site(2));
  Click(kMenu, "cmdContinue");
  modal_scripts.push_back([](Form& form) { form.Find<Button>("cmdOK").Click(); });
  Click(kMenu, "cmdDisclaimer");  // coming back activates the menu
  EXPECT_TRUE(Picking());
}

}  // namespace
}  // namespace survey::testing
