// The tables that are kept as one record for each filled cell, with their limits, codes and
// statements. What is odd about some of them stands in table_quirks_test.cpp.

#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::Contains;

// Cells that take typing.
struct Block {
  CellRange cells;
  const char* most;
  const char* too_much;
};

struct CellTableCase {
  const char* grid;
  int index;
  std::vector<Block> open;
  const char* too_fine;       // a figure of too many decimals
  std::vector<Typed> totals;  // when every open cell holds the most
  bool sets_mark = true;
};

struct Answer {
  int table;
  Typed typed;
};

struct TablePage {
  std::string page;
  std::vector<CellTableCase> tables;
  std::vector<Answer> answers;
  std::vector<std::string> inserts;  // up to what differs from cell to cell
  std::vector<std::string> saved;    // "0 1,2)": as the first of `inserts` goes on; @: of the site
  std::vector<std::string> loaded;   // when it is opened again, among others
};

// clang-format off
TablePage NcvLevel(const char* page, const char* grid, const std::string& code,
                   const char* most_of_20, const char* too_much_for_20, const char* total) {
  return {page,
          {{grid, 1, {{{4, 4, 13, 19}, "9999", "10000"},
                      {{4, 20, 13, 20}, most_of_20, too_much_for_20},
                      {{4, 21, 13, 22}, "9999", "10000"}}, "1.5",
            {{14, 4, "99990"}, {14, 23, total}}}},
          {{0, {13, 22, "1"}}, {0, {12, 21, "1"}}, {0, {11, 20, "1"}}, {0, {10, 19, "1"}},
           {0, {9, 18, "1"}}, {0, {8, 17, "1"}}, {0, {7, 16, "1"}}, {0, {6, 15, "1"}},
           {0, {5, 14, "1"}}, {0, {4, 13, "1"}}, {0, {4, 4, "7"}}, {0, {4, 22, "0"}}},
          {"Insert into tbl_StudentPopulationGroupNCV(CollegeEmisNumber,CampusEmisnumber,"
           "ProgrammeRegistrationTypeCD,programmeNCVCD,PopulationGroupCD,GenderCD,SurveyYear,"
           "Quantity)VALUES(101,202," + code},
          {"Delete * from tbl_StudentPopulationGroupNCV@ and programmeregistrationtypeCd = " + code,
           "0 ,1,1,1,2012,7)", "0 ,10,1,1,2012,1)", "0 ,19,1,1,2012,0)", "0 ,11,1,2,2012,1)",
           "0 ,12,2,1,2012,1)", "0 ,13,2,2,2012,1)", "0 ,14,3,1,2012,1)", "0 ,15,3,2,2012,1)",
           "0 ,16,4,1,2012,1)", "0 ,17,4,2,2012,1)", "0 ,18,5,1,2012,1)", "0 ,19,5,2,2012,1)"},
          {"Select * from tbl_StudentPopulationGroupNCV@ and programmeregistrationtypeCD = " +
           code}};
}

const std::vector<TablePage>& Pages() {
  static const std::vector<TablePage> pages = {
      {"frmPage4",
       {{"gridPage4_2", kNoIndex, {{{4, 4, 11, 9}, "9999", "10000"}}, "99.5",
         {{12, 4, "79992"}, {4, 10, "59994"}, {12, 10, "479952"}}},
        {"gridLectureStaff", kNoIndex, {{{3, 3, 6, 6}, "9999", "10000"}}, "1.5",
         {{7, 3, "39996"}, {3, 7, "39996"}, {7, 7, "159984"}}}},
       {{1, {3, 4, "2"}}, {1, {5, 6, "0"}}, {1, {6, 3, "31"}},
        {0, {4, 9, "9999"}}, {0, {11, 4, "411"}}, {0, {6, 4, "406"}}, {0, {9, 7, "709"}}},
       {"Insert into tbl_StaffCount(CollegeEmisNumber,CampusEmisnumber,StaffcategoryCD,GenderCD,"
        "RemunerationCD,DurationCD,AppointmentnatureCD,surveyyear,quantity)VALUES(101,202,",
        "Insert into tbl_LectureStaff(CollegeEmisNumber,CampusEmisnumber,RemunerationCD,GenderCD,"
        "DegreetypeCD,SurveyYear,Quantity)VALUES(101,202,"},
       {"Delete * from tbl_StaffCount@", "0 1,1,1,2,1,2012,406)", "0 1,1,2,2,2,2012,411)",
        "0 2,2,2,1,2,2012,709)", "0 3,2,1,1,1,2012,9999)",
        "Delete * from tbl_LectureStaff@", "1 1,1,2,2012,2)", "1 2,1,4,2012,0)",
        "1 2,2,1,2012,31)"},
       {}},
      {"frmStudentTotal",
       {{"gridEnrolment", kNoIndex, {{{3, 4, 12, 4}, "999999", "1000000"}}, "1.5",
         {{13, 4, "9999990"}}},
        {"gridAgreements", kNoIndex, {{{3, 4, 10, 6}, "99999", "100000"}}, "1.5",
         {{11, 4, "799992"}, {3, 7, "299997"}, {11, 7, "2399976"}}}},
       {{0, {12, 4, "12"}}, {0, {11, 4, "11"}}, {0, {10, 4, "10"}}, {0, {9, 4, "9"}},
        {0, {8, 4, "8"}}, {0, {7, 4, "7"}}, {0, {5, 4, "5"}}, {0, {4, 4, "4"}}, {0, {3, 4, "3"}},
        {1, {10, 6, "106"}}, {1, {3, 5, "35"}}, {1, {7, 4, "74"}}, {1, {8, 4, "84"}},
        {1, {9, 6, "96"}}, {1, {6, 5, "99999"}}},
       {"Insert into tbl_StudentEnrolment(CollegeEmisNumber,CampusEmisnumber,ProgrammeTypeCD,"
        "GenderCD,SurveyYear,Quantity)VALUES(101,202,",
        "Insert into tbl_StudentAgreements(CollegeEmisNumber,CampusEmisnumber,ProgrammeTypeCD,"
        "AgreementTypeCD,GenderCD,SurveyYear,Quantity)VALUES(101,202,"},
       {"Delete * from tbl_StudentEnrolment@", "0 1,1,2012,3)", "0 1,2,2012,4)", "0 2,1,2012,5)",
        "0 4,1,2012,7)", "0 4,2,2012,8)", "0 3,1,2012,9)", "0 3,2,2012,10)", "0 5,1,2012,11)",
        "0 5,2,2012,12)",
        "Delete * from tbl_StudentAgreements@", "1 3,1,1,2012,74)", "1 3,1,2,2012,84)",
        "1 1,2,1,2012,35)", "1 2,2,2,2012,99999)", "1 5,3,1,2012,96)", "1 5,3,2,2012,106)"},
       {"Select * from tbl_studentEnrolment@", "Select * from tbl_studentagreements@"}},
      {"frmPage3",
       {{"gridEnrolment", kNoIndex, {{{7, 3, 10, 8}, "99999", "100000"},
                                     {{5, 9, 10, 14}, "99999", "100000"},
                                     {{4, 15, 4, 24}, "99999", "100000"},
                                     {{4, 25, 10, 30}, "99999", "100000"}}, "1.5",
         {{11, 3, "399996"}, {11, 14, "599994"}, {11, 24, "99999"}, {11, 30, "699993"}}}},
       {{0, {9, 30, "930"}}, {0, {8, 3, "803"}}, {0, {7, 3, "703"}}, {0, {8, 6, "806"}},
        {0, {10, 8, "1008"}}, {0, {5, 9, "509"}}, {0, {6, 14, "614"}}, {0, {4, 15, "415"}},
        {0, {4, 20, "420"}}, {0, {4, 22, "422"}}, {0, {4, 23, "423"}}, {0, {4, 29, "0"}}},
       {"Insert into tbl_StudentRegistration(CollegeEmisNumber,CampusEmisnumber,"
        "ProgrammeRegistrationTypeCD,ProgrammeDurationTypeCD,GenderCD,SurveyYear,Quantity)VALUES("
        "101,202,"},
       {"Delete * from tbl_StudentRegistration@", "0 1,4,1,2012,703)", "0 1,5,1,2012,803)",
        "0 2,5,2,2012,806)", "0 3,7,2,2012,1008)", "0 4,2,1,2012,509)", "0 6,3,2,2012,614)",
        "0 9,1,1,2012,415)", "0 11,1,2,2012,420)", "0 12,1,2,2012,422)", "0 13,1,1,2012,423)",
        "0 16,1,1,2012,0)", "0 16,6,2,2012,930)"},
       {}},
      {"frmPage5",
       {{"gridFTE", 1, {{{4, 3, 6, 5}, "9999999.99", "9999999.991"}}, "1.2345",
         {{7, 3, "29999999.97"}, {7, 6, "89999999.91"}}},
        {"gridFTE", 2, {{{4, 3, 6, 3}, "9999999.99", "9999999.991"}}, "1.2345",
         {{7, 3, "29999999.97"}}},
        {"gridFTE", 0, {{{4, 3, 6, 8}, "9999999.99", "9999999.991"}}, "1.2345",
         {{7, 8, "29999999.97"}, {7, 9, "179999999.82"}}},
        {"gridReport191", 2, {{{4, 4, 13, 6}, "9999", "10000"}}, "1.5",
         {{14, 6, "99990"}, {14, 7, "299970"}}, false}},
       {{0, {4, 3, "1.235"}}, {0, {6, 5, "-0.5"}}, {1, {5, 3, "12"}}, {2, {5, 3, "0"}},
        {2, {4, 8, "3.1"}}, {3, {5, 4, "7"}}, {3, {4, 6, "8"}}, {3, {13, 5, "0"}}},
       {"Insert into tbl_StudentFTE(CollegeEmisNumber,CampusEmisnumber,"
        "ProgrammeRegistrationTypeCD,VocationalFieldFTECD,SurveyYear,Quantity)VALUES(101,202,",
        "Insert into tbl_StudentPopulationGroup191(CollegeEmisNumber,CampusEmisnumber,"
        "programmeregistrationtypeCD,VocationalField191CD,PopulationGroupCD,GenderCD,SurveyYear,"
        "Quantity)VALUES(101,202,"},
       {"Delete * from tbl_StudentFTE@", "0 4,6,2012,3.1)", "0 5,1,2012,0)", "0 2,5,2012,12)",
        "0 9,7,2012,1.235)", "0 11,9,2012,-0.5)",
        "Delete * from tbl_StudentPopulationGroup191@ and programmeregistrationtypeCD < 4",
        "1 3,3,1,1,2012,8)", "1 1,1,1,2,2012,7)", "1 2,2,5,2,2012,0)"},
       {"Select * from tbl_studentFTE@",
        "Select * from tbl_StudentPopulationGroup191@ and programmeregistrationtypeCD < 4 "}},
      {"frmPage6_1",
       {{"gridPage6_2", 1, {{{4, 4, 13, 9}, "9999", "10000"}}, "1.5", {{14, 10, "599940"}}},
        {"gridPage6_2", 0, {{{4, 4, 13, 9}, "9999", "10000"}}, "1.5", {{14, 10, "599940"}}},
        {"grid191", 0, {{{4, 4, 13, 9}, "9999", "10000"}}, "1.5",
         {{14, 9, "99990"}, {14, 10, "599940"}}, false}},
       {{2, {13, 9, "0"}}, {1, {4, 5, "51"}}, {0, {5, 4, "42"}}, {0, {4, 9, "41"}}},
       {"Insert into tbl_StudentPopulationGroup191(CollegeEmisNumber,CampusEmisnumber,"
        "ProgrammeRegistrationTypeCD,VocationalField191CD,PopulationGroupCD,GenderCD,SurveyYear,"
        "Quantity)VALUES(101,202,"},
       {"Delete * from tbl_StudentPopulationGroup191@ and programmeregistrationtypeCd = 4",
        "0 4,6,1,1,2012,41)", "0 4,1,1,2,2012,42)",
        "Delete * from tbl_StudentPopulationGroup191@ and programmeregistrationtypeCd = 5",
        "0 5,2,1,1,2012,51)",
        "Delete * from tbl_StudentPopulationGroup191@ and programmeregistrationtypeCd = 6",
        "0 6,6,5,2,2012,0)"},
       {}},
      NcvLevel("frmPage8", "gridNCV", "9", "99999", "100000", "2799810"),
      NcvLevel("frmPage9", "gridNCV", "10", "99999", "100000", "2799810"),
      NcvLevel("frmPage9_1", "gridPage8_2", "11", "9999", "10000", "1899810"),
      {"frmPage12_2",
       {{"gridPage12_1", 0, {{{4, 4, 13, 15}, "9999", "10000"}}, "1.5", {{14, 16, "1199880"}}}},
       {{0, {4, 15, "5"}}, {0, {4, 4, "0"}}, {0, {9, 13, "7"}}},
       {"Insert into tbl_StudentPopulationGroupOcc(CollegeEmisNumber,CampusEmisnumber,"
        "OrganisingFieldCD,PopulationGroupCD,GenderCD,SurveyYear,Quantity)VALUES(101,202,"},
       {"Delete * from tbl_StudentPopulationGroupOcc@", "0 1,1,1,2012,0)", "0 12,1,1,2012,5)",
        "0 10,3,2,2012,7)"},
       {}},
      {"frmPage9_10",
       {{"gridPage9_1", kNoIndex, {{{2, 3, 20, 28}, "9999999", "10000000"}}, "1.5",
         {{21, 28, "189999981"}, {20, 29, "259999974"}, {21, 29, "4939999506"}}}},
       {{0, {3, 28, "9999999"}}, {0, {20, 3, "0"}}, {0, {2, 4, "8"}}, {0, {3, 3, "9"}}},
       {"Insert into tbl_StudentAgeLevel2(CollegeEmisNumber,CampusEmisnumber,ProgrammeNCVCD,Age,"
        "SurveyYear,Quantity)VALUES(101,202,"},
       {"Delete * from tbl_StudentAgeLevel2@", "0 1,16,2012,8)", "0 2,15,2012,9)",
        "0 2,40,2012,9999999)", "0 19,15,2012,0)"},
       {}},
      {"frmPage9_10_1",
       {{"gridPage9_1", kNoIndex, {{{2, 4, 13, 29}, "9999999", "10000000"}}, "1.5",
         {{14, 29, "59999994"}, {15, 30, "1559999844"}, {13, 30, "259999974"}}}},
       {{0, {2, 5, "4"}}, {0, {3, 5, "8"}}, {0, {4, 5, "16"}}, {0, {5, 5, "32"}}, {0, {6, 5, "64"}},
        {0, {7, 5, "128"}}, {0, {8, 5, "256"}}, {0, {9, 5, "512"}}, {0, {10, 5, "1024"}},
        {0, {11, 5, "2048"}}, {0, {12, 5, "4096"}}, {0, {13, 5, "8192"}}, {0, {13, 29, "1"}}},
       {"Insert into tbl_StudentAgeEnrolment(CollegeEmisNumber,CampusEmisnumber,ProgrammeTypeCD,"
        "Age,GenderCD,SurveyYear,Quantity)VALUES(101,202,"},
       {"Delete * from tbl_StudentAgeEnrolment@", "0 6,16,1,2012,4)", "0 6,16,2,2012,8)",
        "0 7,16,1,2012,16)", "0 7,16,2,2012,32)", "0 2,16,1,2012,64)", "0 2,16,2,2012,128)",
        "0 4,16,1,2012,256)", "0 4,16,2,2012,512)", "0 3,16,1,2012,1024)", "0 3,16,2,2012,2048)",
        "0 5,16,1,2012,4096)", "0 5,16,2,2012,8192)", "0 5,40,2,2012,1)"},
       {}},
      {"frmPage14",
       {{"gridPage9_1", kNoIndex, {{{2, 4, 11, 19}, "9999999.99", "10000000"},
                                   {{12, 14, 13, 14}, "7", "10000000"}}, "1.255",
         {{12, 4, "49999999.95"}, {2, 20, "159999999.84"}, {13, 20, "750000006.25"}}}},
       {{0, {2, 4, "2"}}, {0, {3, 5, "3"}}, {0, {4, 6, "4"}}, {0, {5, 7, "5"}}, {0, {6, 8, "6"}},
        {0, {7, 9, "7"}}, {0, {8, 10, "8"}}, {0, {9, 11, "9"}}, {0, {10, 12, "10"}},
        {0, {11, 13, "11"}}, {0, {2, 19, "2.5"}}, {0, {10, 19, "0.25"}}},
       {"Insert into tbl_SNEStudentEnrolment(CollegeEmisNumber,CampusEmisnumber,ProgrammeTypeCD,"
        "DisabilityCD,GenderCD,SurveyYear,Quantity)VALUES(101,202,"},
       {"Delete * from tbl_SNEStudentEnrolment@", "0 1,1,1,2012,2)", "0 1,16,1,2012,2.5)",
        "0 1,2,2,2012,3)", "0 2,3,1,2012,4)", "0 2,4,2,2012,5)", "0 4,5,1,2012,6)",
        "0 4,6,2,2012,7)", "0 3,7,1,2012,8)", "0 3,8,2,2012,9)", "0 5,9,1,2012,10)",
        "0 5,16,1,2012,0.25)", "0 5,10,2,2012,11)"},
       {}},
  };
  return pages;
}
// clang-format on

struct CellTablesTest : PageTest, ::testing::WithParamInterface<TablePage> {
  CellTablesTest() : PageTest(GetParam().page, "") {}
  GridControl& Of(const CellTableCase& table) {
    return The<GridControl>(GetParam().page, table.grid, table.index);
  }
  static std::vector<std::string> Whole(std::vector<std::string> statements) {
    for (std::string& statement : statements) {
      if (statement[1] == ' ') statement.replace(0, 2, GetParam().inserts[statement[0] - '0']);
      const auto site = statement.find('@');
      if (site != std::string::npos) statement.replace(site, 1, kOfSite);
    }
    return statements;
  }
};

TEST_P(CellTablesTest, TakesWhatItsCellsMayHoldAndAddsItUp) {
  for (const CellTableCase& table : GetParam().tables) {
    SCOPED_TRACE(table.grid + std::to_string(table.index));
    EXPECT_FALSE(Unsaved());
    GridControl& grid = Of(table);
    std::vector<CellRange> open;
    for (const auto& [cells, most, too_much] : table.open) {
      open.push_back(cells);
      for (int row = cells.row; row <= cells.last_row; ++row) {
        for (int column = cells.column; column <= cells.last_column; ++column) {
          EXPECT_TRUE(grid.Type(column, row, most).taken) << column << "," << row;
          for (const char* refused : {too_much, table.too_fine}) {
            EXPECT_FALSE(grid.Type(column, row, refused).taken) << column << "," << row;
          }
        }
      }
    }
    ExpectOpen(grid, open);
    for (const auto& [column, row, total] : table.totals) {
      EXPECT_EQ(grid.GetText(column, row), total);
    }
    EXPECT_EQ(Unsaved(), table.sets_mark);
    The<Button>(GetParam().page, "cmdSave").BackColor = kButtonFace;
  }
}

TEST_P(CellTablesTest, StoresEachCellUnderItsCodesAndShowsItAgain) {
  for (const auto& [table, typed] : GetParam().answers) Fill(Of(GetParam().tables[table]), {typed});
  EXPECT_TRUE(Unsaved());
  statements.clear();
  Save();
  EXPECT_FALSE(Unsaved());
  EXPECT_EQ(statements, Whole(GetParam().saved));
  Reopen();
  for (const auto& loaded : Whole(GetParam().loaded)) EXPECT_THAT(statements, Contains(loaded));
  for (const auto& [table, typed] : GetParam().answers) {
    EXPECT_EQ(Of(GetParam().tables[table]).GetText(typed.column, typed.row), typed.text);
  }
  EXPECT_FALSE(Unsaved());
}

INSTANTIATE_TEST_SUITE_P(, CellTablesTest, ::testing::ValuesIn(Pages()),
                         [](const auto& page) { return page.param.page; });

}  // namespace
}  // namespace survey::testing
