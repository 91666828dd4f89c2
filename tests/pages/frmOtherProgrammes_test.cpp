#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;

constexpr char kPage[] = "frmOtherProgrammes";
const std::string kProgramme =
    "Insert into tbl_level5programmes(CollegeEmisNumber,CampusEmisnumber,ProgrammeName,"
    "InstitutionHE,ProgrammeLevel,MaleEnrolment,SurveyYear,FemaleEnrolment)VALUES(101,202,";
const std::string kNsc =
    "Insert into tbl_StudentPopulationGroupNSC(CollegeEmisNumber,CampusEmisnumber,Grade,"
    "PopulationGroupCD,GenderCD,SurveyYear,Quantity)VALUES(101,202,";
const std::string kAet =
    "Insert into tbl_StudentPopulationGroupAET(CollegeEmisNumber,CampusEmisnumber,AETLevel,"
    "PopulationGroupCD,GenderCD,SurveyYear,Quantity)VALUES(101,202,";

class OtherProgrammes : public PageTest {
 protected:
  OtherProgrammes() : PageTest(kPage, "gridlevel5") {}
  GridControl& Nsc() { return The<GridControl>(kPage, "gridNSC"); }
  GridControl& Aet() { return The<GridControl>(kPage, "gridAET"); }
  std::string Answer() { return At(7, 1); }
  std::vector<Color> TotalColors() {
    return {Table().BackColor(7, 9), Nsc().BackColor(14, 7), Aet().BackColor(14, 8)};
  }
};

TEST_F(OtherProgrammes, EachTableTakesItsCellsAndAddsThemUp) {
  for (GridControl* grid : {&Table(), &Nsc(), &Aet()}) {
    The<Button>(kPage, "cmdSave").BackColor = kButtonFace;
    Fill(*grid, {{6, 4, "9999"}, {5, 5, "1"}});
    EXPECT_TRUE(Unsaved()) << grid->name();
    EXPECT_FALSE(grid->Type(6, 5, "10000").taken);
  }
  EXPECT_FALSE(Type(3, 4, "4") || Type(3, 4, "11") || Type(7, 1, "3") || Type(7, 4, "1"));
  EXPECT_EQ(Shown({{7, 4}, {5, 9}, {6, 9}, {7, 9}}), "9999|1|9999|10000");
  EXPECT_EQ(Shown(Nsc(), {{14, 7}, {4, 7}}), "10000|");
  EXPECT_TRUE(Aet().Type(13, 7, "5").taken && !Aet().Type(13, 8, "5").taken);
  EXPECT_EQ(Shown(Aet(), {{14, 8}}), "10005");
}

TEST_F(OtherProgrammes, SavesTheProgrammesThenTheTablesColumnByColumn) {
  StoreAll(
      "Insert into tbl_StudentRegistration(CampusEmisnumber,ProgrammeRegistrationTypeCD,"
      "Quantity)VALUES(202,",
      {"12,18", "13,3", "15,5"});
  Reopen();
  EXPECT_EQ(Answer(), "2");
  Fill(Table(), {{2, 4, "Women's studies"}, {3, 4, "6"}, {4, 4, "St. Mary's"}, {5, 4, "7"}});
  Fill(Table(), {{6, 4, "8"}, {2, 5, "No institution"}, {4, 6, "No name"}});
  // What lacks a name or an institution is lost with the save, but counts until then.
  Fill(Table(), {{5, 5, "3"}, {2, 8, "Bare"}, {4, 8, "HEI"}});
  Fill(Nsc(), {{5, 4, "3"}, {4, 6, "0"}});
  Fill(Aet(), {{4, 4, "1"}, {13, 7, "4"}});
  EXPECT_THAT(TotalColors(), ElementsAre(kRed, kRed, kRed));
  statements.clear();
  Save();
  EXPECT_THAT(TotalColors(), ElementsAre(kGreen, kGreen, kGreen));
  EXPECT_FALSE(Unsaved());
  EXPECT_EQ(Answer(), "1");
  EXPECT_THAT(statements, ElementsAre("Delete * from tbl_Level5Programmes" + kOfSite,
                                      kProgramme + "'Women''s studies','St. Mary''s',6,7,2012,8)",
                                      kProgramme + "'Bare','HEI',0,0,2012,0)",
                                      "Delete * from tbl_StudentPopulationGroupNSC" + kOfSite,
                                      kNsc + "12,1,1,2012,0)", kNsc + "10,1,2,2012,3)",
                                      "Delete * from tbl_StudentPopulationGroupAET" + kOfSite,
                                      kAet + "10,1,1,2012,1)", kAet + "13,5,2,2012,4)"));
  Reopen();
  EXPECT_EQ(Shown({{2, 4}, {4, 4}, {7, 4}, {2, 5}, {3, 5}, {2, 6}}),
            "Women's studies|St. Mary's|15|Bare|0|");
  EXPECT_THAT(TotalColors(), ElementsAre(kRed, kGreen, kGreen));
}

TEST_F(OtherProgrammes, WithoutProgrammesTheAnswerIsForgotten) {
  Type(7, 1, "1");
  Save();
  EXPECT_EQ(Answer(), "1");
  Reopen();
  EXPECT_EQ(Answer(), "2");
}

}  // namespace
}  // namespace survey::testing
