#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;

constexpr char kInsert[] = "Insert into tbl_StudentBoarders(CollegeEmisNumber,CampusEmisnumber,";

struct Boarders : PageTest {
  Boarders() : PageTest("frmPage13", "gridPage13_1") {}
  // Name, male, female and total of each row.
  std::vector<std::string> Lines(const std::vector<int>& rows) {
    std::vector<std::string> lines;
    for (const int row : rows) lines.push_back(Shown({{1, row}, {5, row}, {6, row}, {7, row}}));
    return lines;
  }
  void StoreRecord(const std::string& columns, const std::string& values) {
    Store(kInsert + columns + ",MaleEnrolment,FemaleEnrolment,SurveyYear)VALUES(101,202," + values +
          ",2012)");
  }
};

TEST_F(Boarders, SavesProvincesByCodeAndCountriesByName) {
  ExpectOpen({{5, 3, 6, 11}, {5, 13, 6, 22}, {1, 13, 1, 22}});
  EXPECT_FALSE(Type(6, 3, "100000"));
  for (const int column : {5, 6}) Table().SetText(column, 5, column - 2.5);  // an older file's
  Fill(Table(), {{5, 3, "99999"}, {6, 11, "2"}, {5, 4, "0"}, {6, 4, "0"}});
  // The 4 is of no country.
  Fill(Table(), {{5, 13, "4"}, {1, 14, "Cote d'Ivoire"}, {6, 14, "7"}, {1, 22, "Chad"}});
  EXPECT_THAT(Lines({14}), ElementsAre("Cote d'Ivoire||7|7"));
  Save();
  const std::string tail = ",MaleEnrolment,FemaleEnrolment,SurveyYear)VALUES(101,202,";
  EXPECT_THAT(StatementsWithout(kInsert),
              ElementsAre("Select * from tbl_StudentBoarders" + kOfSite,
                          "Delete * from tbl_StudentBoarders" + kOfSite,
                          "ProvinceCD" + tail + "1,99999,0,2012)",
                          "ProvinceCD" + tail + "3,2,4,2012)", "ProvinceCD" + tail + "9,0,2,2012)",
                          "Country" + tail + "'Cote d''Ivoire',0,7,2012)",
                          "Country" + tail + "'Chad',0,0,2012)"));
  Reopen();
  EXPECT_THAT(
      Lines({3, 4, 5, 13, 14, 15, 23}),  // the total leaves out the other countries
      ElementsAre("1. Western Cape|99999|0|99999", "2. Eastern Cape|||", "3. Northern Cape|2|4|6",
                  "Cote d'Ivoire|0|7|7", "Chad|0|0|0", "|||", "TOTAL|100001|6|100007"));
}

TEST_F(Boarders, ARecordMayNameAProvinceACountryBothOrNone) {
  StoreRecord("Country", "'Mali',1,2");
  StoreRecord("ProvinceCD,Country", "4,'Niger',3,4");
  StoreRecord("ProvinceCD,Country", "'','',5,6");
  StoreRecord("ProvinceCD,Country", "5,'',null,8");
  Reopen();
  EXPECT_EQ(Shown({{5, 2}, {6, 2}}), "Male|Female");
  EXPECT_THAT(Lines({6, 7, 13, 14, 15}), ElementsAre("4. Free State|3|4|7", "5. KwaZulu Natal||8|8",
                                                     "Mali|1|2|3", "Niger|3|4|7", "|||"));
}

TEST_F(Boarders, TheEleventhCountryWritesOnTheTotals) {
  for (int i = 1; i <= 12; ++i) StoreRecord("Country", "'" + std::string(i, 'C') + "',1,1");
  Reopen();
  EXPECT_THAT(Lines({22, 23}), ElementsAre("CCCCCCCCCC|1|1|2", "CCCCCCCCCCC|1|1|2"));
  Save();
  EXPECT_EQ(Query("select Country as r from tbl_StudentBoarders").size(), 10u);
}

}  // namespace
}  // namespace survey::testing
