#include "template/template.h"

#include <filesystem>
#include <initializer_list>

#include "base/run_time_error.h"
#include "base/text.h"
#include "store/connection.h"
#include "store/dialect.h"
#include "store/own_triggers.h"
#include "store/survey.h"
#include "template/schema.h"

namespace survey {
namespace {

std::string Quoted(std::string_view text) { return "'" + SqlEscape(text) + "'"; }

void Insert(Connection& connection, const std::string& table_and_columns,
            std::initializer_list<std::string> values) {
  std::string joined;
  for (const std::string& value : values) joined += (joined.empty() ? "" : ",") + value;
  connection.Execute("Insert into " + table_and_columns + "VALUES(" + joined + ")");
}

void InsertSites(Connection& connection, const std::vector<Site>& sites) {
  const std::string columns =
      "(CollegeEmisNumber,CollegeName,CampusEmisNumber,CampusName,SiteType,ProvinceCD";
  for (const Site& site : sites) {
    const std::string college = NumberText(site.college_emis_number);
    const std::string college_name = Quoted(site.college_name);
    const std::string campus = NumberText(site.campus_emis_number);
    const std::string campus_name = Quoted(site.campus_name);
    const std::string type = std::to_string(site.site_type);
    const std::string province = std::to_string(site.province);
    Insert(connection, "lst_college" + columns + ")",
           {college, college_name, campus, campus_name, type, province});
    // The year before the survey's: a site is listed once its user has chosen it.
    Insert(connection, "tbl_GeneralInformation" + columns + ",SurveyYear)",
           {college, college_name, campus, campus_name, type, province, "'2011'"});
  }
}

void InsertLists(Connection& connection, const SurveyLists& lists) {
  for (const Province& province : lists.provinces) {
    Insert(connection, "lst_province(ProvinceCD,Province)",
           {std::to_string(province.code), Quoted(province.name)});
  }
  InsertSites(connection, lists.sites);
  for (const Subject& subject : lists.subjects) {
    Insert(connection, "lst_Subject(SubjectCode,Description,Programme)",
           {Quoted(subject.code), Quoted(subject.description), Quoted(subject.programme)});
  }
  for (const OccupationalQualification& qualification : lists.qualifications) {
    Insert(connection, "lst_OccupationalQualification(NQFID,QualificationTitle,NQFField,NQFLevel)",
           {NumberText(qualification.nqf_id), Quoted(qualification.title),
            std::to_string(qualification.field), Quoted(qualification.level)});
  }
}

void Build(const SurveyLists& lists, const std::string& path) {
  const std::unique_ptr<Connection> connection = Connection::Create(path, DatabasePassword());
  connection->ExecuteScript("BEGIN");
  connection->ExecuteScript(kSchema);
  for (const std::string_view trigger : kOwnTriggers) connection->ExecuteScript(trigger.data());
  InsertLists(*connection, lists);
  connection->EndGroup();
}

}  // namespace

void MakeTemplate(const SurveyLists& lists, const std::string& path) {
  const std::string unfinished = path + ".unfinished";
  std::error_code error;
  std::filesystem::remove(ToPath(unfinished), error);
  try {
    Build(lists, unfinished);
  } catch (const RunTimeError&) {
    std::filesystem::remove(ToPath(unfinished), error);
    throw;
  }
  std::filesystem::rename(ToPath(unfinished), ToPath(path), error);
  if (error) {
    const std::string reason = error.message();
    std::filesystem::remove(ToPath(unfinished), error);
    constexpr double kCannotOpen = 14;  // as the engine tells of a file it cannot make
    throw RunTimeError(kCannotOpen, '"' + path + "\" cannot be written: " + reason);
  }
}

}  // namespace survey
