#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// ---- frmPage2 ---------------------------------------------------------------------------------

// An answer as it is typed and as it comes back. Only the numbers of the site itself are digits
// alone, and so are the codes and the year.
struct Answer {
  Cell cell;
  std::size_t length;
  bool digits;
  const char* typed;
  const char* shown;
};

// clang-format off
const Answer kAnswers[] = {
    {{4, 3}, 50, false, "12 O'", "12 O'"},              {{4, 4}, 40, false, "X45", "X45"},
    {{4, 5}, 50, false, "Noord", "Noord"},              {{4, 6}, 50, false, "d'al", "D'AL"},
    {{7, 6}, 4, true, "0041", "0041"},                  {{4, 8}, 50, false, "Blok C", "Blok C"},
    {{4, 9}, 30, false, "12 A", "12"},                  {{4, 10}, 50, false, "K's Rd", "A K's Rd"},
    {{4, 11}, 50, false, "Côte", "CÔTE"},               {{7, 11}, 4, true, "0042", "0042"},
    {{4, 12}, 50, false, "Dal", "Dal"},                 {{4, 13}, 10, true, "021555010", "021555010"},
    {{7, 13}, 10, true, "021555011", "021555011"},      {{4, 15}, 200, false, "a@b.c", "a@b.c"},
    {{4, 16}, 100, false, "www.b.c", "www.b.c"},        {{4, 17}, 60, false, "P O'Brien", "P O'Brien"},
    {{5, 18}, 10, true, "082555012", "082555012"},      {{3, 22}, 50, false, "'n'", "'n'"},
    {{7, 23}, 4, true, "2009", "2009"},                 {{5, 25}, 60, false, "T d'Or", "T d'Or"},
    {{4, 26}, 10, false, "x12'", "x12'"},               {{7, 26}, 10, false, "none'", "none'"},
    {{4, 27}, 200, false, "m@b'.c", "m@b'.c"},
};
// clang-format on

class Page2 : public PageTest {
 protected:
  Page2() : PageTest("frmPage2", "gridGeneralInfo") {
    survey.ChosenDatabaseName = "Berg 2012";
    RunScript(
        "insert into tbl_GeneralInformation (CollegeEmisNumber, CampusEmisNumber, CollegeName,"
        " CampusName, ProvinceCD, SiteType, SurveyYear) values"
        " (101, 202, 'Veldrand College', 'Berg Campus', 3, 2, '2010')");
    Reopen();
    statements.clear();
  }
  GridControl& Site() { return The<GridControl>("frmPage2", "gridPage2_1"); }
  std::string SaveAndRead() {
    Save();
    return LastBox();
  }
};

TEST_F(Page2, AllAnswersAreOneStatementAndComeBack) {
  for (const Answer& answer : kAnswers) Type(answer.cell.column, answer.cell.row, answer.typed);
  Fill(Table(), {{7, 19, "1"}, {7, 20, "5"}, {7, 24, "2"}});
  EXPECT_TRUE(Unsaved());
  EXPECT_EQ(SaveAndRead(), "");
  EXPECT_FALSE(Unsaved());
  EXPECT_THAT(
      statements,
      ElementsAre(
          "UPDATE tbl_GeneralInformation set Postal_box = '12 O''',Postal_bag = 'X45',"
          "Postal_office = 'Noord',Postal_city = 'D''AL',Postal_Code = '0041', Physical_Building = "
          "'Blok C', Physical_Street = '12 A K''s Rd',Physical_City = 'CÔTE',Physical_Code = "
          "'0042', Cellphone = '082555012',email = 'a@b.c',website = 'www.b.c', MISSystem = 1,"
          "MISProgramme = 5, MISProgrammeOther = '''n''', MISManagerName = 'T d''Or',Municipalarea"
          " = 'Dal', Manager = 'P O''Brien',Telephone = '021555010',Facsimile = '021555011',"
          " MISTelephone = 'x12''',MISFacsimile = 'none''',MISEmail= 'm@b''.c',MISYear = '2009',"
          "SurveyYear = 2012 where CollegeEmisNumber = 101 and CampusEMISnumber = 202"));
  Reopen();
  Type(4, 17, "Nobody");  // gone as soon as the page is in front again
  host.Get("frmPage2").Form_Activate();
  for (const Answer& answer : kAnswers) EXPECT_EQ(Shown({answer.cell}), answer.shown);
  EXPECT_EQ(At(7, 24), "1");  // there is a manager, whatever was answered
}

TEST_F(Page2, OpensTheAnswersAloneForWhatTheyAskFor) {
  std::vector<CellRange> open{{7, 19}, {7, 20}, {7, 24}};
  for (const Answer& answer : kAnswers) open.emplace_back(answer.cell.column, answer.cell.row);
  ExpectOpen(open);
  for (const auto& [cell, length, digits, typed, shown] : kAnswers) {
    const auto [column, row] = cell;
    EXPECT_EQ(Type(column, row, "a"), !digits) << column << "," << row;
    EXPECT_TRUE(Type(column, row, std::string(length, '7'))) << row;
    EXPECT_FALSE(Type(column, row, std::string(length + 1, '7'))) << row;
  }
  for (const auto& [row, most] : {std::pair{19, 2}, {20, 5}, {24, 2}}) {
    EXPECT_FALSE(Type(7, row, "0") || Type(7, row, std::to_string(most + 1)));
    EXPECT_TRUE(Type(7, row, "1") && Type(7, row, std::to_string(most)));
  }
}

TEST_F(Page2, WhatIsCompulsoryIsAskedForInOrder) {
  constexpr char kAddress[] = "Please complete the physical address of the college to continue";
  constexpr char kQuestion[] = "Please complete question 1.14 to continue";
  Type(7, 20, "3");
  EXPECT_EQ(SaveAndRead(), kAddress);
  EXPECT_EQ(Table().ActiveRow(), 10);
  for (const auto& [column, row, text, request] :
       {std::tuple{4, 10, "Main Road", kAddress},
        {4, 11, " ", "Please complete the name of the principal or campus manager to continue"},
        {4, 17, " ", kQuestion},     // a blank is an answer
        {7, 19, "0", kQuestion}}) {  // as an older record holds it
    Table().SetText(column, row, text);
    EXPECT_EQ(SaveAndRead(), request);
    EXPECT_EQ(host.Front()->TakeFocusRequest(), &Table());
  }
  EXPECT_EQ(std::pair(Table().ActiveColumn(), Table().ActiveRow()), std::pair(7, 19));
  EXPECT_THAT(statements, IsEmpty());
  EXPECT_TRUE(Type(7, 19, "2") && Type(7, 20, ""));
  EXPECT_EQ(SaveAndRead(), "");
  EXPECT_THAT(Query("select Physical_Street || '|' || MISProgramme || '|' || MISYear || '|' as r "
                    "from tbl_GeneralInformation where CampusEmisNumber = 202"),
              ElementsAre(" Main Road|0||"));
  Reopen();
  EXPECT_EQ(Shown({{4, 9}, {4, 10}, {7, 24}}), "|Main Road|");  // no manager's name
}

TEST_F(Page2, AStreetWithoutABlankEndsTheLoadButNotTheOpening) {
  RunScript("update tbl_GeneralInformation set Physical_Street = 'Main', Physical_City = 'PAARL'");
  Reopen();
  EXPECT_EQ(dialogs.seen.at(0).title, "Error : 5");
  EXPECT_THAT(LastBox(), ToldBy("frmPage2", "GetPage Routine"));
  EXPECT_EQ(Shown({{4, 9}, {4, 10}, {4, 11}}), "|Main|");
  EXPECT_EQ(Shown(Site(), {{5, 1}, {11, 3}, {5, 5}, {12, 6}}), "101|2|Berg Campus|3");
}

// ---- frmHostels -------------------------------------------------------------------------------

const std::string kSite = "collegeemisnumber = 101 and CampusEMisNumber = 202";
const std::string kList = "Select hostelname from tbl_Hostels WHERE " + kSite;
constexpr char kHostelRows[] =
    "select CampusEmisNumber || ' ' || SurveyYear || ' ' || HostelName || '|' || Physical_Street "
    "|| '|' || Physical_Code || '|' || GISLat as r from tbl_Hostels";

// The table in hand is that of a hostel's details.
class Hostels : public PageTest {
 protected:
  Hostels() : PageTest("frmHostels", "gridGeneralInfo") {
    survey.SurveyYear = 2010;          // as after printing the survey
    survey.CloseDatabaseConnection();  // the page opens its own when it comes to the front
    Reopen();
    statements.clear();
  }
  GridControl& List() { return The<GridControl>("frmHostels", "gridhostels"); }
  GridControl& Setas() { return The<GridControl>("frmHostels", "gridSETA"); }
  void AddHostel(const char* name) {
    Click("cmdAdd");
    Type(4, 2, name);
    Click("cmdSaveHostel");
  }
  void SaveKings() {
    const std::vector<Typed> details = {
        {4, 2, "King's"},  {4, 4, "Blok 'C'"}, {4, 5, "12"},         {4, 6, "O' Road"},
        {4, 7, "Paarl"},   {7, 7, "0041"},     {4, 8, "0215550101"}, {7, 8, "0215550102"},
        {4, 10, "18.96E"}, {4, 11, "33.73S"}};
    Fill(Table(), details);
    EXPECT_TRUE(Yellow("cmdSaveHostel") && !Unsaved());
    Click("cmdSaveHostel");
    EXPECT_FALSE(Yellow("cmdSaveHostel"));
  }
  std::string Listed() { return Shown(List(), {{1, 1}, {1, 2}, {1, 3}, {1, 4}, {1, 5}}); }
};

TEST_F(Hostels, SetasReplaceThoseOfAnyYearDownTheColumnsUnderTheFixedYear) {
  RunScript(
      "insert into tbl_SETAAccreditation values (101, 202, 2009, 4), (101, 202, null, null),"
      " (101, 202, 2009, 22), (101, 203, 2012, 5)");
  Setas().Tick(3, 2);
  host.Get("frmHostels").Form_Activate();
  EXPECT_EQ(Shown(Setas(), {{3, 2}, {3, 5}, {5, 2}, {13, 2}}), "1|1||0");  // a load only ticks
  statements.clear();
  std::vector<std::string> expected = {
      "DELETE * FROM tbl_SETAAccreditation WHERE collegeemisnumber = 101 and CampusEMISNumber = "
      "202"};
  for (int id = 1; id <= 21; ++id) {
    EXPECT_TRUE(Setas().Tick(3 + (id - 1) / 4 * 2, 2 + (id - 1) % 4).taken);
    if (id == 1 || id == 4) continue;  // ticked before, and now no more
    expected.push_back(std::to_string(id) + ")");
  }
  EXPECT_FALSE(Setas().Tick(13, 3).taken);
  Save();
  EXPECT_EQ(StatementsWithout(
                "Insert into tbl_SETAAccreditation(Collegeemisnumber,campusemisnumber,surveyyear,"
                "setaid)VALUES(101,202,2012,"),
            expected);
  EXPECT_TRUE(Unsaved());  // saved as it is
}

TEST_F(Hostels, ANewOneIsInsertedAKnownOneChangedWithoutTheLatitudeThatIsShown) {
  const std::string look = "Select * from tbl_Hostels WHERE hostelname = 'King''s' and " + kSite;
  SaveKings();
  Type(7, 7, "0042");
  Click("cmdSaveHostel");
  List().Click(1, 1);
  EXPECT_THAT(
      statements,
      ElementsAre(look,
                  "INSERT INTO tbl_Hostels (CollegeEmisNumber,CampusEMISnumber,SurveyYear,"
                  "HostelName,Physical_Building,Physical_street,Physical_city,Physical_Code,"
                  "Telephone, Facsimile,GISLat,GISlong)VALUES (101,202,2010,'King''s','Blok ''C''',"
                  "'12 O'' Road','PAARL','0041','0215550101','0215550102','33.73S','18.96E')",
                  kList, look,
                  "UPDATE tbl_Hostels set Hostelname = 'King''s',physical_building ='Blok ''C''',"
                  "physical_Street = '12 O'' Road',physical_city = 'PAARL',physicalcode ='0042',"
                  "telephone ='0215550101',facsimile = '0215550102',GISlat = '33.73S',"
                  "GISLong ='18.96E' WHERE hostelname = 'King''s'",
                  kList,
                  "Select * from tbl_Hostels  WHERE " + kSite + " and hostelname = 'King''s'"));
  Click("cmdAdd");
  EXPECT_EQ(Shown({{4, 2}, {4, 6}, {7, 8}, {4, 11}}), "|||33.73S");
  Reopen();
  List().Click(1, 1);
  EXPECT_EQ(Shown({{4, 2}, {4, 4}, {4, 5}, {4, 6}, {4, 7}, {7, 7}, {4, 8}, {7, 8}}),
            "King's|Blok 'C'|12|O' Road|PAARL|0042|0215550101|0215550102");
  EXPECT_EQ(Shown({{4, 10}, {4, 11}, {7, 11}}), "18.96E||33.73S");
  Click("cmdSaveHostel");
  EXPECT_THAT(Query(kHostelRows), ElementsAre("202 2010 King's|12 O' Road|0042|"));
}

TEST_F(Hostels, ANameIsCompulsoryAndAChangedOneIsAnotherHostel) {
  Type(4, 4, "B");
  Click("cmdSaveHostel");
  EXPECT_EQ(LastBox(), "You must enter the name of the hostel to save data");
  EXPECT_TRUE(Yellow("cmdSaveHostel"));
  Click("cmdMenu");  // details that are not saved are lost without a question
  EXPECT_EQ(Front(), "frmMainMenu");
  Reopen();
  AddHostel("Rose");
  List().Click(1, 1);
  Type(4, 2, "Protea");
  Click("cmdSaveHostel");
  EXPECT_EQ(Listed(), "Rose|Protea|||");
  for (const char* name : {"C", "D", "E", "F"}) AddHostel(name);
  EXPECT_EQ(Listed(), "Rose|Protea|C|D|E");  // the list has five rows, the store has not
  List().Click(1, 2);
  dialogs.answers = {kAnswerYes};
  Click("cmdDelete");
  EXPECT_EQ(Listed() + " / " + At(4, 2), "Rose|C|D|E|F / Protea");
}

TEST_F(Hostels, ANameReachesTheHostelsOfOtherSitesToo) {
  RunScript(
      "insert into tbl_Hostels (CollegeEmisNumber, CampusEmisNumber, SurveyYear, HostelName)"
      " values (105, 505, 2009, 'King''s')");
  Click("cmdDelete");
  EXPECT_EQ(LastBox(), "Please click on a hostel name to delete");
  SaveKings();
  Type(4, 5, "99");
  Click("cmdSaveHostel");
  EXPECT_THAT(Query(kHostelRows), ElementsAre("505 2009 King's|99 O' Road|0041|33.73S",
                                              "202 2010 King's|99 O' Road|0041|33.73S"));
  Click("cmdDelete");
  EXPECT_EQ(LastBox(),
            "You will not be able to reverse this action. Are you sure you want to delete King's?");
  dialogs.answers = {kAnswerYes};
  Click("cmdDelete");
  EXPECT_THAT(Query(kHostelRows), IsEmpty());
}

TEST_F(Hostels, AQuoteInATownEndsTheProgram) {
  Fill(Table(), {{4, 2, "Aloe"}, {4, 7, "d'Urban"}});
  Click("cmdSaveHostel");
  EXPECT_THAT(LastBox(), ::testing::HasSubstr("Run-time error '1'"));
  EXPECT_TRUE(host.Ended());
}

}  // namespace
}  // namespace survey::testing
