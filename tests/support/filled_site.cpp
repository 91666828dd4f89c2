#include "support/filled_site.h"

#include "pages/survey_pages.h"
#include "shell/register_shell.h"
#include "support/page_filler.h"

namespace survey::testing {
namespace {

std::string RowsOf(Connection& connection, const std::string& table) {
  Recordset columns;
  columns.Open("PRAGMA table_info(" + table + ")", &connection);
  std::string fields = "''";
  for (; !columns.Eof(); columns.MoveNext()) {
    fields += "||','||quote(" + columns.Field("name").Text() + ")";
  }
  Recordset rows;
  rows.Open("select " + fields + " as r from " + table + " order by 1", &connection);
  std::string all;
  for (; !rows.Eof(); rows.MoveNext()) all += rows.Field("r").Text() + "\n";
  return all;
}

}  // namespace

std::vector<std::string> PageNames() {
  std::vector<std::string> names;
  for (const PageRow& page : SurveyPages()) names.emplace_back(page.name);
  return names;
}

std::string TextsOf(const Form& form) {
  std::string all;
  ForEachCell(form, [&](const GridControl& grid, Cell cell) {
    all += grid.GetText(cell.column, cell.row) + "|";
  });
  return all;
}

std::map<std::string, std::string> AllRows(const std::string& path) {
  static CipherKeys keys;
  const auto connection = Connection::Open(path, DatabasePassword(), keys);
  Recordset tables;
  tables.Open("select name from sqlite_master where type = 'table'", connection.get());
  std::map<std::string, std::string> all;
  for (; !tables.Eof(); tables.MoveNext()) {
    const std::string name = tables.Field("name").Text();
    all[name] = RowsOf(*connection, name);
  }
  return all;
}

FilledSite::FilledSite() {
  RegisterShell(host);
  RegisterPages(host);
  OpenSite(101, 202);
  const std::string member = std::string("select 101,202,2012,'") + kStaffMember + "',SubjectCode ";
  const std::string key = "(CollegeEmisNumber,CampusEmisNumber,SurveyYear,IDNumber,SubjectCode) ";
  const std::string from_catalogue = "from lst_Subject where SubjectID < 4;";
  RunScript(("insert into tbl_GeneralInformation(CollegeEmisNumber,CampusEmisNumber,CollegeName,"
             "CampusName,ProvinceCD,SiteType,SurveyYear) "
             "values(101,202,'College','Campus',7,2,'2012');"
             "insert into tbl_LecturerTeachingSubject" +
             key + member + from_catalogue + "insert into tbl_LecturerQualificationSubject" + key +
             member + from_catalogue +
             "insert into tbl_StudentRegistrationOccupational(CollegeEmisNumber,CampusEmisNumber,"
             "NQFID,Quantity,SurveyYear) select 101,202,NQFID,0,2012 from "
             "lst_OccupationalQualification limit 20")
                .c_str());
}

Form& FilledSite::Open(const std::string& page, const std::string& staff_member) {
  Form& form = host.Get(page);
  host.Unload(form);
  survey.OpenDatabaseConnection();  // some pages work on what the one before them has left open
  ChooseStaffMember(form, staff_member);
  host.Start(page);
  return form;
}

void FilledSite::Fill(Form& page, int version) {
  Figures figures = Figures::OfVersion(version);
  AnswerGrids(page, figures);
}

void FilledSite::SaveAll(int version) {
  for (const std::string& page : PageNames()) {
    Form& form = Open(page);
    Fill(form, version);
    Click(page, "cmdSave");
    host.Unload(form);
  }
}

}  // namespace survey::testing
