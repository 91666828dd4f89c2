#include "template/survey_lists.h"

#include <sys/stat.h>

#include "store/store_fixture.h"

namespace survey {
namespace {

const std::string kProvinces = "ProvinceCD,Province\n1,Western Cape\n7,Gauteng\n";
const std::string kCollegeHead =
    "CollegeEmisNumber,CollegeName,CampusEmisNumber,CampusName,SiteType,ProvinceCD\n";
const std::string kColleges = kCollegeHead + "10,North,10,Central,1,7\n10,North,11,Hill,2,7\n";
const std::string kSubjects = "SubjectCode,Description,Programme\n0456,Maths,NC(V)\n";
const std::string kQualifications =
    "NQFID,QualificationTitle,NQFField,NQFLevel\n58761,Baker,11,2\n";

class SurveyListsTest : public StoreTest {
 protected:
  SurveyListsTest() {
    WriteBytes(folder_ / "provinces.csv", kProvinces);
    WriteBytes(folder_ / "colleges.csv", kColleges);
    WriteBytes(folder_ / "subjects.csv", kSubjects);
    WriteBytes(folder_ / "qualifications.csv", kQualifications);
  }

  std::string Fault() {
    try {
      ReadSurveyLists(folder_.string());
    } catch (const BadList& fault) {
      return fault.what();
    }
    return "no fault";
  }
};

TEST_F(SurveyListsTest, ReadsWhatASpreadsheetSaves) {
  WriteBytes(folder_ / "subjects.csv",
             "\xEF\xBB\xBFSubjectCode,Description,Programme\r\n\r\n"
             "0456,\"Maths, \"\"pure\"\"\",NC(V)\r\n 456 ,Élan,Report 191");
  const SurveyLists lists = ReadSurveyLists(folder_.string());
  ASSERT_EQ(lists.subjects.size(), 2u);
  EXPECT_EQ(lists.subjects[0].code + "|" + lists.subjects[1].code, "0456|456");
  EXPECT_EQ(lists.subjects[0].description + "|" + lists.subjects[1].description,
            "Maths, \"pure\"|Élan");
  ASSERT_EQ(lists.sites.size(), 2u);
  const auto& [college, college_name, campus, campus_name, type, province] = lists.sites[1];
  EXPECT_EQ(std::tuple(college, campus, type, province), std::tuple(10, 11, 2, 7));
  EXPECT_EQ(college_name + "|" + campus_name, "North|Hill");
  EXPECT_EQ(lists.provinces[1].name, "Gauteng");
  const auto& [nqf_id, title, field, level] = lists.qualifications[0];
  EXPECT_EQ(std::tuple(nqf_id, title, field, level), std::tuple(58761, "Baker", 11, "2"));
}

TEST_F(SurveyListsTest, EachFaultIsToldWithFileLineAndReason) {
  const struct {
    std::string file, content, place, reason;
  } faults[] = {
      {"provinces.csv", "", ":1: ", "must read ProvinceCD,Province"},
      {"provinces.csv", "ProvinceCD,Province\n", ":1: ", "empty"},
      {"provinces.csv", kProvinces + "7,Limpopo\n", ":4: ", "7 stands in the list twice"},
      {"provinces.csv", kProvinces + "10,Limpopo\n", ":4: ", "from 1 to 9: 10"},
      {"provinces.csv", kProvinces + "2,\n", ":4: ", "Province is missing"},
      {"provinces.csv", kProvinces + "2,a,b\n", ":4: ", "3 fields in place of 2"},
      {"provinces.csv", kProvinces + "\n\n2,Lim\xE9\n", ":6: ", "not UTF-8"},
      {"provinces.csv", kProvinces + "2,a\"b\n", ":4: ", "quote"},
      {"provinces.csv", kProvinces + "2,\"a\nb\n", ":4: ", "not closed"},
      {"colleges.csv", kColleges + "10,North,12,x,2,3\n", ":4: ", "unknown province 3"},
      {"colleges.csv", kColleges + "10,North,12,x,3,7\n", ":4: ", "SiteType"},
      {"colleges.csv", kColleges + "10,North,11,x,2,7\n", ":4: ", "11 stands in the list twice"},
      {"colleges.csv", kColleges + "10,South,12,x,2,7\n", ":4: ", "is called North"},
      {"colleges.csv", kColleges + "10,North,12,x,2,1\n", ":4: ", "in province 7"},
      {"colleges.csv", kColleges + "10,North,12,x,1,7\n", ":4: ", "second central office"},
      {"colleges.csv", kColleges + "20,S,20,x,2,7\n20,S,21,y,2,7\n", ":4: ", "no central office"},
      {"colleges.csv", kColleges + "10,North,1.5,x,2,7\n", ":4: ", "CampusEmisNumber is no number"},
      {"colleges.csv", kColleges + "10,North,3000000000,x,2,7\n", ":4: ", "is no number"},
      {"colleges.csv", kColleges + "10,\"No\nrth\n\",12,x,2,7\n10,North,12,x,2,7\n",
       ":4: ", "is called North"},
      {"colleges.csv", kCollegeHead + "10,\"N\n\n\",10,x,1,7\n10,N,11,x,2,7\n",
       ":5: ", "is called"},
      {"subjects.csv", kSubjects + "0456,Art,NSC\n", ":3: ", "0456 stands in the list twice"},
      {"subjects.csv", kSubjects + "04A,Art,NSC\n", ":3: ", "more than digits: 04A"},
      {"subjects.csv", kSubjects + "7,Art,ncv\n", ":3: ", "unknown programme ncv"},
      {"qualifications.csv", kQualifications + "1,x,13,2\n", ":3: ", "NQFField"},
      {"qualifications.csv", kQualifications + "1,,1,2\n", ":3: ", "QualificationTitle is missing"},
  };
  for (const auto& [file, content, place, reason] : faults) {
    const std::string good = ReadBytes(folder_ / file);
    WriteBytes(folder_ / file, content);
    EXPECT_THAT(Fault(),
                testing::AllOf(testing::StartsWith(file + place), testing::HasSubstr(reason)));
    WriteBytes(folder_ / file, good);
  }
  EXPECT_EQ(Fault(), "no fault");
}

TEST_F(SurveyListsTest, AListThatIsNoFileIsNamed) {
  std::filesystem::remove(folder_ / "subjects.csv");
  EXPECT_EQ(Fault(), "subjects.csv: the file cannot be read");
  std::filesystem::create_directory(folder_ / "subjects.csv");
  EXPECT_EQ(Fault(), "subjects.csv: the file cannot be read");
  std::filesystem::remove(folder_ / "subjects.csv");
#ifndef _WIN32
  ASSERT_EQ(mkfifo((folder_ / "subjects.csv").c_str(), 0600), 0);
  EXPECT_EQ(Fault(), "subjects.csv: the file cannot be read");
#endif
}

}  // namespace
}  // namespace survey
