#include "collect/collect.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

#include "base/run_time_error.h"
#include "base/text.h"
#include "pages/survey_pages.h"
#include "support/filled_site.h"
#include "support/page_filler.h"
#include "template/store_tables.h"

namespace survey::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using Rows = std::vector<std::vector<std::string>>;

std::string Bytes(const fs::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// As RFC 4180 says, and nothing beyond; a field without quotes is told with a mark before it.
Rows ReadCsv(const fs::path& path) {
  const std::string text = Bytes(path);
  Rows rows(1);
  std::string field;
  bool quoted = false;
  bool was_quoted = false;
  const auto end_field = [&] {
    rows.back().push_back((was_quoted ? "" : "#") + field);
    field.clear();
    was_quoted = false;
  };
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (quoted && text[i] == '"' && i + 1 < text.size() && text[i + 1] == '"') {
      field += text[i++];
    } else if (text[i] == '"') {
      quoted = !quoted;
      was_quoted = true;
    } else if (!quoted && text[i] == ',') {
      end_field();
    } else if (!quoted && text.compare(i, 2, "\r\n") == 0) {
      end_field();
      rows.emplace_back();
      ++i;
    } else {
      field += text[i];
    }
  }
  EXPECT_TRUE(rows.back().empty() && field.empty()) << path << " ends in the middle of a line";
  rows.pop_back();
  return rows;
}

// What a query of one field answers, in each of its rows.
std::vector<std::string> AskPlain(const fs::path& database, const std::string& query) {
  sqlite3* plain = nullptr;
  EXPECT_EQ(sqlite3_open_v2(database.c_str(), &plain, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
  std::vector<std::string> answers;
  const auto see = [](void* seen, int, char** fields, char**) {
    static_cast<std::vector<std::string>*>(seen)->push_back(fields[0] ? fields[0] : "null");
    return 0;
  };
  EXPECT_EQ(sqlite3_exec(plain, query.c_str(), see, &answers, nullptr), SQLITE_OK)
      << sqlite3_errmsg(plain);
  sqlite3_close(plain);
  return answers;
}

struct Collect : FilledSite, ::testing::Test {
  Collect() { fs::create_directory(returned); }

  // What has been saved, as a college hands it in.
  std::string HandIn(const std::string& name) {
    survey.CloseDatabaseConnection();
    fs::copy_file(survey.DatabasePath, returned / name);
    return (returned / name).string();
  }
  std::string HandIn(const std::string& name, const std::string& bytes) {
    std::ofstream(returned / name, std::ios::binary) << bytes;
    return (returned / name).string();
  }
  Counts Gather(const std::vector<std::string>& paths) {
    report.str("");
    return GatherFiles({paths, 2}, out, report);
  }
  std::string Checked(const std::string& path) {
    report.str("");
    CheckFiles({{path}}, report);
    return report.str();
  }
  std::map<std::string, std::string> Returned() {
    std::map<std::string, std::string> all;
    for (const auto& file : fs::directory_iterator(returned)) all[file.path()] = Bytes(file);
    return all;
  }
  std::vector<std::string> Ask(const std::string& query) {
    return AskPlain(out / "survey.sqlite", query);
  }

  const fs::path returned = folder.path() / "returned";
  const fs::path out = folder.path() / "gathered";
  std::ostringstream report;
};

TEST_F(Collect, TheSumsOfTheGatheredTablesAreTheTotalsOnTheSheets) {
  SaveAll(3);
  const std::string one = HandIn("one.mdb");
  const std::string other = HandIn("other.mdb");
  const auto before = Returned();
  const Counts counts = Gather({one, other, one});
  EXPECT_EQ(counts.files, 2U) << "a file that is given twice is read once";
  EXPECT_EQ(counts.repeated_sites, 1U);
  EXPECT_THAT(report.str(), HasSubstr("other.mdb: Campus 202 of college 101 is in " + one));
  EXPECT_EQ(Returned(), before);

  const auto sum = [&](const std::string& table, const std::string& condition = "1") {
    const auto sums =
        Ask("select sum(Quantity) from tbl_" + table + " where " + condition + " group by File");
    EXPECT_THAT(sums, ElementsAre(sums.front(), sums.front())) << table;
    return LeadingNumber(sums.front());
  };
  const auto total = [&](const std::string& page, const std::string& grid, int index, int column,
                         int row) {
    return LeadingNumber(Open(page).Find<Grid>(grid, index).GetText(column, row));
  };
  const std::tuple<double, double, const char*> sums[] = {
      {sum("StaffCount"), total("frmPage4", "gridPage4_2", -1, 12, 10), "2.1"},
      {sum("StudentAgreements"), total("frmStudentTotal", "gridAgreements", -1, 11, 7), "2.4"},
      {sum("StudentFTE", "ProgrammeRegistrationTypeCD > 8"), total("frmPage5", "gridFTE", 1, 7, 6),
       "3.1"},
      {sum("StudentPopulationGroupNCV", "ProgrammeRegistrationTypeCD = 9"),
       total("frmPage8", "gridNCV", 1, 14, 23), "3.8"},
      {sum("StudentPopulationGroupAET"), total("frmOtherProgrammes", "gridAET", -1, 14, 8), "3.13"},
      {sum("StudentRegistrationOccupational"), total("frmPage12_1", "gridPage12_2", -1, 8, 38),
       "3.14"},
      {sum("StudentAgeLevel2"), total("frmPage9_10", "gridPage9_1", -1, 21, 29), "3.16"},
  };
  for (const auto& [gathered, shown, table] : sums) {
    EXPECT_GT(shown, 1000) << table;
    EXPECT_NEAR(gathered, shown, 0.0005) << table;
  }

  for (const StoreTable& table : StoreTables()) {
    const Rows rows = ReadCsv(out / (table.name + ".csv"));
    EXPECT_EQ(rows.front().size(), table.columns.size() + 1);
    EXPECT_EQ(std::to_string(rows.size() - 1), Ask("select count(*) from " + table.name).front());
  }
  EXPECT_THAT(Ask("select File || Staff || Unbalanced from sites order by 1"),
              ElementsAre(one + "110", other + "110"));
  const std::string difference =
      NumberText(total("frmPage6_1", "gridPage6_2", 1, 14, 10) -
                 LeadingNumber(The<TextBox>("frmPage6_1", "txtN3").Text));
  EXPECT_THAT(Ask("select Total - ControlTotal from problems where SurveyTable = '3.5'"),
              ElementsAre(difference, difference));
  EXPECT_EQ(Ask("select count(*) from problems where Kind = 'repeated site'").front(), "2");
  EXPECT_THROW(Gather({one}), std::runtime_error) << "nothing that was gathered is lost";
}

TEST_F(Collect, TextsComeAsTheyWereAndNothingIsTakenForSomethingElse) {
  RunScript(
      "insert into tbl_StaffDetail(CollegeEmisNumber,CampusEmisNumber,SurveyYear,IDNumber,Surname,"
      "Title,Initials) values(101,202,2012,'=1+1','O\"Neill, \xC3\x89lan','a\r\nb',''),"
      "(101,202,2012,cast(x'1b5b324a4100' as text),'@x',null,'+1');"
      "insert into tbl_StaffCount(CollegeEmisNumber,CampusEmisNumber,Quantity) values(101,202,'')"
      ",(101,202,'lots'),(101,202,9e999)");
  Gather({HandIn("odd.mdb")});
  const auto at = [](const std::vector<std::string>& row) {
    return row[8] + "|" + row[7] + "|" + row[5] + "|" + row[6];
  };
  const Rows rows = ReadCsv(out / "tbl_StaffDetail.csv");
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(at(rows[0]), "IDNumber|Surname|Title|Initials");
  EXPECT_EQ(at(rows[1]), "=1+1|O\"Neill, \xC3\x89lan|a\r\nb|") << "an empty text is no null";
  EXPECT_EQ(at(rows[2]), "\x1b[2JA\xEF\xBF\xBD|@x|#|+1");
  EXPECT_EQ(rows[1][1], "#101");
  const Rows counts = ReadCsv(out / "tbl_StaffCount.csv");
  ASSERT_EQ(counts.size(), 4U);
  for (std::size_t i = 1; i < counts.size(); ++i) EXPECT_EQ(counts[i].back(), "#");
  EXPECT_THAT(
      Ask("select Problem from problems where Kind = 'no number'"),
      ElementsAre("Answers in Quantity of tbl_StaffCount are no numbers and are left out: 2"));
  EXPECT_EQ(Ask("select Title from tbl_StaffDetail where Initials = ''").front(), "a\r\nb");
  EXPECT_EQ(Checked((returned / "odd.mdb").string()).find('\x1b'), std::string::npos);
}

// Each is told in a line; the others are gathered, and no file is changed or has got another one
// beside it.
TEST_F(Collect, AFileThatCannotBeReadIsToldAndNotStoppedAt) {
  const std::string good = HandIn("good.mdb");
  const std::string bytes = Bytes(good);
  const auto flipped = [&](std::size_t at) {
    std::string changed = bytes;
    changed[at] = static_cast<char>(changed[at] ^ 1);
    return changed;
  };
  const auto changed_by = [&](const std::string& name, const char* script) {
    RunScript(script);
    return HandIn(name);
  };
  Connection::Create((returned / "password.mdb").string(), "other")
      ->ExecuteScript("create table tbl_StaffDetail(x)");
  std::vector<std::pair<std::string, const char*>> bad = {
      {HandIn("cut.mdb", bytes.substr(0, bytes.size() / 2048 * 1024)), "is damaged"},
      {HandIn("cut_short.mdb", bytes.substr(0, 700)), "too short"},
      {HandIn("flipped_head.mdb", flipped(100)), "another password"},
      {HandIn("flipped.mdb", flipped(bytes.size() - 1500)), "is damaged"},
      {(returned / "password.mdb").string(), "has another password"},
      {HandIn("letter.mdb", std::string(4096, 'x')), "is not a survey database"},
      {HandIn("left.mdb", bytes), "belongs to a save that was not finished"},
      {(returned / "none.mdb").string(), "does not exist"},
      {returned.string(), "is not a file"},
      {HandIn("locked.mdb", bytes), "is in use"},
      {changed_by("schema.mdb", "alter table tbl_StaffDetail rename to tbl_Staff"),
       "it has no table tbl_StaffDetail"},
      {changed_by("view.mdb", "create view v as select 1"), "things that run by themselves"},
  };
  HandIn("left.mdb-journal", "whatever");
  fs::copy_file(TemplateFile(), survey.DatabasePath, fs::copy_options::overwrite_existing);
  bad.emplace_back(changed_by("log.mdb", "pragma journal_mode = wal"), "keeps a log beside it");
  CipherKeys keys;
  const auto writer =
      Connection::Open((returned / "locked.mdb").string(), DatabasePassword(), keys);
  writer->ExecuteScript("begin exclusive");

  std::vector<std::string> paths = {good};
  for (const auto& [path, why] : bad) paths.push_back(path);
  const auto before = Returned();
  const Counts counts = Gather(paths);
  EXPECT_EQ(Returned(), before);
  EXPECT_EQ(counts.not_read, bad.size());
  for (const auto& [path, why] : bad) {
    EXPECT_THAT(
        Ask("select Problem from problems where Kind = 'not read' and File = '" + path + "'"),
        ElementsAre(HasSubstr(why)));
    EXPECT_THAT(report.str(), HasSubstr(path + ": "));
  }
  EXPECT_THAT(Ask("select File from sites"), ElementsAre(good));
}

TEST_F(Collect, TheCodesMeanWhatTheUsersRead) {
  Gather({HandIn("one.mdb")});
  const Rows rows = ReadCsv(out / "codes.csv");
  const std::vector<std::string> known[] = {
      {"tbl_StaffCount", "StaffCategoryCD", "#2", "Management staff"},
      {"tbl_StaffCount", "RemunerationCD", "#2", "Employees remunerated by the COLLEGE"},
      {"tbl_StudentEnrolment", "ProgrammeTypeCD", "#4", "NSC (Grade 10 - 12)"},
      {"tbl_StudentRegistration", "ProgrammeDurationTypeCD", "#1", "Year"},
      {"tbl_StudentFTE", "VocationalFieldFTECD", "#8", "Non-Engineering"},
      {"tbl_StudentPopulationGroup191", "ProgrammeRegistrationTypeCD", "#5",
       "REPORT 191 N5 Programmes"},
      {"tbl_StudentPopulationGroupNCV", "ProgrammeNCVCD", "#12", "Office Administration"},
      {"tbl_StudentPopulationGroupNCV", "PopulationGroupCD", "#3", "Indian"},
      {"tbl_StudentPopulationGroupAET", "AETLevel", "#13", "AET Level 4"},
      {"tbl_StudentAgeLevel2", "Age", "#40", ">/=40"},
      {"tbl_StudentAgeEnrolment", "ProgrammeTypeCD", "#7", "Report 191 (N4 - N6)"},
      {"tbl_SNEStudentEnrolment", "DisabilityCD", "#9", "Hard of hearing"},
      {"tbl_StudentBoarders", "ProvinceCD", "#7", "Gauteng"},
      {"tbl_GeneralInformation", "SiteType", "#1", "Central Office"},
      {"tbl_GeneralInformation", "MISProgramme", "#4", "THUSANANG"},
      {"tbl_SETAAccreditation", "SETAID", "#14", "MERSETA"},
      {"tbl_StaffDetail", "HomeLanguageCD", "#12", "SASL"},
      {"tbl_StaffDetail", "PersonnelCategoryCD", "#6", "Support"},
      {"tbl_StaffQualificationType", "QualificationTypeCD", "#38", "N3 Certificate + Trade Test"},
      {"tbl_StaffQualificationType", "WorkplaceExperience", "#1", "< 5 years"},
      {"tbl_LecturerContactMonth", "MonthCD", "#9", "Sept"},
      {"tbl_LecturerTeachingFields", "OrganisingFieldCD", "#13", "Other Courses"},
  };
  for (const auto& row : known) EXPECT_THAT(rows, Contains(row)) << row[0] << " " << row[1];
  for (const auto& row : rows) EXPECT_NE(row[3], "") << row[0] << " " << row[1] << row[2];
}

TEST_F(Collect, TheCommandTellsWhatItFoundAndWhetherAllCouldBeRead) {
  SaveAll(1);
  RunScript("update tbl_GeneralInformation set Manager = '' where CampusEmisNumber = 202");
  const std::string good = HandIn("good.mdb");
  const std::string bad = HandIn("bad.mdb", "no database");
  const auto run = [&](const std::string& arguments) {
    const std::string told = (folder.path() / "told").string();
    const int status =
        std::system((SURVEY_COLLECT " " + arguments + " > " + told + " 2>&1").c_str());
    return std::to_string(WEXITSTATUS(status)) + " " + Bytes(told);
  };
  EXPECT_THAT(
      run("check " + good + " " + bad),
      AllOf(HasSubstr("1 " + good + "\n  Campus 202 of college 101: Campus, College (campus)\n"),
            HasSubstr("    Empty: 1.15\n"),
            HasSubstr("1 staff member, 0 with an incomplete record\n"),
            HasSubstr("! No answer to 1.12 Name of Principal/Campus Manager\n"),
            HasSubstr(bad + "\n  ! \"" + bad + "\" is empty or too short"),
            HasSubstr("2 files, 1 of them not read; 1 site, 0 of them in more than one file; ")));
  EXPECT_THAT(run("gather --out " + out.string() + " " + good), HasSubstr("0 1 file, 0 of them"));
  EXPECT_THAT(run("gather --out " + out.string() + " " + good), HasSubstr("2 survey-collect: "));
  EXPECT_THAT(run("gather " + good), HasSubstr("2 usage: "));
}

}  // namespace
}  // namespace survey::testing
