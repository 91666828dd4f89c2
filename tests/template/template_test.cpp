#include "template/template.h"

#include "store/store_fixture.h"

namespace survey {
namespace {

using testing::ElementsAre;

class TemplateTest : public StoreTest {};

TEST_F(TemplateTest, HoldsTheListsAndOneEarlierRowForEachSite) {
  const auto connection = Open();
  Recordset rows;
  rows.Open("Select * from tbl_Generalinformation where surveyyear = '2011'", connection.get());
  ASSERT_EQ(rows.RecordCount(), 2);
  EXPECT_EQ(rows.Field("CollegeName").Text(), "North 'n South");
  rows.MoveNext();
  EXPECT_EQ(rows.Field("CampusName").Text(), "Élan");
  EXPECT_TRUE(rows.Field("sitetype").Is(2) && rows.Field("ProvinceCD").Is(7));
  for (const char* open : {"Physical_street", "Postal_box", "MISSystem", "MISYear", "Manager"}) {
    EXPECT_TRUE(rows.Field(open).IsNull()) << open;
  }
  EXPECT_EQ(Answer("select subjectid || subjectcode from lst_Subject where programme = 'nc(v)'",
                   *connection),
            "10456");
  EXPECT_EQ(Answer("select NQFLevel from lst_OccupationalQualification", *connection), "Level 2");
}

TEST_F(TemplateTest, AppearsWholeOrNotAtAll) {
  SurveyLists bad = SmallLists();
  bad.subjects.push_back({"1", std::string("cut\0off", 7), "NSC"});
  const std::string before = ReadBytes(path_);
  EXPECT_THROW(MakeTemplate(bad, path_), RunTimeError);
  EXPECT_EQ(ReadBytes(path_), before);
  EXPECT_THAT(FilesInFolder(), ElementsAre("Site.mdb"));
  WriteBytes(path_ + ".unfinished", "left by a program that was killed");
  MakeTemplate(SmallLists(), path_);
  EXPECT_NE(ReadBytes(path_), before);
  FailsWith(14, [&] { MakeTemplate(SmallLists(), folder_.string()); });
  FailsWith(14, [&] { MakeTemplate(SmallLists(), (folder_ / "none" / "x.mdb").string()); });
  EXPECT_THAT(FilesInFolder(), ElementsAre("Site.mdb"));
}

TEST_F(TemplateTest, KindsOfColumnsBehaveAsThePagesExpect) {
  const auto connection = Open();
  connection->Execute(
      "Insert into tbl_StudentBoarders(CollegeEmisNumber,CampusEmisnumber,Country,"
      "MaleEnrolment,FemaleEnrolment,SurveyYear)VALUES(10,11,'Côte',1,0,2012)");
  EXPECT_EQ(Answer("select ifnull(ProvinceCD, 'null') || FemaleEnrolment from tbl_StudentBoarders "
                   "where Country = 'cÔTE'",
                   *connection),
            "null0");
  for (const char* born : {"#2012/1/4#", "#1999/12/31#", "#2012/01/30#", "#2011/9/9#"}) {
    connection->Execute("Insert into tbl_staffdetail(dateofbirth,EmployeeNumber) values (" +
                        std::string(born) + ",'007')");
  }
  EXPECT_EQ(Answer("select group_concat(dateofbirth) from (select dateofbirth from "
                   "tbl_staffdetail order by dateofbirth)",
                   *connection),
            "1999/12/31,2011/09/09,2012/01/04,2012/01/30");
  EXPECT_EQ(Answer("select min(employeenumber) from tbl_staffdetail", *connection), "007");
}

TEST_F(TemplateTest, BothSpellingsOfAHostelsPostalCodeAreOne) {
  const auto connection = Open();
  const std::string codes =
      "select group_concat(Physical_Code || '=' || physicalcode) from tbl_Hostels";
  connection->Execute("INSERT INTO tbl_Hostels (HostelName,Physical_Code) VALUES ('A','0081')");
  connection->Execute("INSERT INTO tbl_Hostels (HostelName,physicalcode) VALUES ('B','0082')");
  EXPECT_EQ(Answer(codes, *connection), "0081=0081,0082=0082");
  connection->Execute("UPDATE tbl_Hostels set physicalcode ='ab' WHERE hostelname = 'a'");
  connection->Execute("UPDATE tbl_Hostels set Physical_Code ='' WHERE hostelname = 'b'");
  EXPECT_EQ(Answer(codes, *connection), "ab=ab,=");
  connection->Execute("UPDATE tbl_Hostels set Hostelname = 'C',physicalcode ='AB'");
  EXPECT_EQ(Answer(codes, *connection), "AB=AB,AB=AB");
}

}  // namespace
}  // namespace survey
