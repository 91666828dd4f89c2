#include "filled_site.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "filled_survey.h"
#include "pages/survey_pages.h"
#include "shell/register_shell.h"

namespace survey::testing {
namespace {

const std::string& JoinedColumns(Connection& connection, const std::string& table) {
  static std::map<std::string, std::string> known;  // a table has the same columns in every file
  std::string& joined = known[table];
  if (!joined.empty()) return joined;
  Recordset columns;
  columns.Open("PRAGMA table_info(" + table + ")", &connection);
  for (; !columns.Eof(); columns.MoveNext()) {
    joined += (joined.empty() ? "quote(" : "||','||quote(") + columns.Field("name").Text() + ")";
  }
  return joined;
}

std::string NumberFor(const CellKind& kind, int position, int version) {
  const double highest = std::floor(kind.maximum);
  const double span = std::min(highest - kind.minimum + 1, 90.0);
  return NumberText(kind.minimum + std::fmod(position * 2 + version, span));
}

std::string AnswerFor(const CellKind& kind, int position, int version) {
  switch (kind.type) {
    case CellKind::Type::kNumber:
      return NumberFor(kind, position, version);
    case CellKind::Type::kText: {
      const std::string text = "V" + std::to_string(version) + "-" + std::to_string(position);
      return text.substr(0, static_cast<std::size_t>(kind.length));
    }
    case CellKind::Type::kDigits:
      return std::string(static_cast<std::size_t>(std::min(kind.length, 10)),
                         static_cast<char>('0' + version % 10));
    case CellKind::Type::kDate:
      return "1980/01/0" + std::to_string(1 + version % 9);
    default:
      return version % 2 == position % 2 ? "1" : "0";
  }
}

}  // namespace

const std::vector<SavedPart>& SavedParts() {
  const auto of_types = [](const char* condition) {
    return std::string("programmeregistrationtypecd ") + condition;
  };
  static const std::vector<SavedPart> parts = {
      {"frmPage2", "cmdSave", {"tbl_GeneralInformation"}},
      {"frmHostels", "cmdSaveHostel", {"tbl_Hostels"}},
      {"frmHostels", "cmdSave", {"tbl_SETAAccreditation"}},
      {"frmPage4", "cmdSave", {"tbl_StaffCount", "tbl_LectureStaff"}},
      {"frmStudentTotal", "cmdSave", {"tbl_StudentEnrolment", "tbl_StudentAgreements"}},
      {"frmPage3", "cmdSave", {"tbl_StudentRegistration"}},
      {"frmPage5", "cmdSave", {"tbl_StudentFTE"}},
      {"frmPage5", "cmdSave", {"tbl_StudentPopulationGroup191"}, of_types("< 4")},
      {"frmPage6_1", "cmdSave", {"tbl_StudentPopulationGroup191"}, of_types("> 3")},
      {"frmPage8", "cmdSave", {"tbl_StudentPopulationGroupNCV"}, of_types("= 9")},
      {"frmPage9", "cmdSave", {"tbl_StudentPopulationGroupNCV"}, of_types("= 10")},
      {"frmPage9_1", "cmdSave", {"tbl_StudentPopulationGroupNCV"}, of_types("= 11")},
      {"frmOtherProgrammes",
       "cmdSave",
       {"tbl_Level5Programmes", "tbl_StudentPopulationGroupNSC", "tbl_StudentPopulationGroupAET"}},
      {"frmPage12_1", "cmdSave", {"tbl_StudentRegistrationOccupational"}},
      {"frmPage12_2", "cmdSave", {"tbl_StudentPopulationGroupOcc"}},
      {"frmPage9_10", "cmdSave", {"tbl_StudentAgeLevel2"}},
      {"frmPage9_10_1", "cmdSave", {"tbl_StudentAgeEnrolment"}},
      {"frmPage14", "cmdSave", {"tbl_SNEStudentEnrolment"}},
      {"frmPage13", "cmdSave", {"tbl_StudentBoarders"}},
      {"frmEducatorData", "cmdSave", {"tbl_StaffDetail"}},
      {"frmEducatorData", "cmdSave", {"tbl_StaffTraining"}},
      {"frmLecQualifications1",
       "cmdSave",
       {"tbl_StaffQualificationType"},
       "QualificationTypeCD < 30"},
      {"frmLecQualifications2",
       "cmdSave",
       {"tbl_StaffQualificationType"},
       "QualificationTypeCD > 29"},
      {"frmEducatorTeaching1", "cmdSave", {"tbl_LecturerQualificationSubject"}},
      {"frmEducatorTeaching",
       "cmdSave",
       {"tbl_LecturerContactMonth", "tbl_LecturerTeachingSubject"}},
      {"frmEducatorTeaching2", "cmdSave", {"tbl_LecturerTeachingFields"}},
  };
  return parts;
}

std::vector<std::string> SavedPages() {
  std::vector<std::string> pages;
  for (const SavedPart& part : SavedParts()) {
    if (pages.empty() || pages.back() != part.page) pages.push_back(part.page);
  }
  return pages;
}

std::string RowsOf(Connection& connection, const std::string& table, const std::string& condition) {
  Recordset rows;
  rows.Open("select " + JoinedColumns(connection, table) + " as r from " + table + " where " +
                condition + " order by 1",
            &connection);
  std::string all;
  for (; !rows.Eof(); rows.MoveNext()) all += rows.Field("r").Text() + "\n";
  return all;
}

std::string RowsOf(Connection& connection, const SavedPart& part) {
  std::string all;
  for (const std::string& table : part.tables) all += RowsOf(connection, table, part.condition);
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
  survey.Execute(
      "Insert into "
      "tbl_GeneralInformation(CollegeEmisNumber,CampusEmisNumber,CollegeName,CampusName,"
      "ProvinceCD,SiteType,SurveyYear) values(101,202,'College','Campus',7,2,'2012')");
  const std::string member = std::string("101,202,2012,'") + kStaffMember + "',SubjectCode";
  const std::string from_catalogue = " from lst_Subject where SubjectID < 4";
  survey.Execute(
      "Insert into tbl_LecturerTeachingSubject(CollegeEmisNumber,CampusEmisNumber,"
      "SurveyYear,IDNumber,SubjectCode) select " +
      member + from_catalogue);
  survey.Execute(
      "Insert into tbl_LecturerQualificationSubject(CollegeEmisNumber,CampusEmisNumber,"
      "SurveyYear,IDNumber,SubjectCode) select " +
      member + from_catalogue);
  survey.Execute(
      "Insert into tbl_StudentRegistrationOccupational(CollegeEmisNumber,"
      "CampusEmisNumber,NQFID,Quantity,SurveyYear) select 101,202,NQFID,0,2012 from "
      "lst_OccupationalQualification limit 20");
  survey.EndStatements();
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
  for (Control* control : page.controls()) {
    auto* grid = dynamic_cast<GridControl*>(control);
    if (grid == nullptr) continue;
    for (auto cell = grid->NextOpenCell({0, 1}); cell; cell = grid->NextOpenCell(*cell)) {
      const auto [column, row] = *cell;
      const int position = row * grid->MaxColumns() + column;
      grid->Type(column, row, AnswerFor(grid->Kind(column, row), position, version));
    }
  }
  // What decides where the rest is kept.
  if (page.name() == "frmEducatorData") page.Find<GridControl>("gridgeneral").Type(4, 6, "1");
  if (page.name() == "frmHostels") page.Find<GridControl>("gridGeneralInfo").Type(4, 2, "Hostel");
}

void FilledSite::SaveAll(int version) {
  for (const std::string& page : SavedPages()) {
    Fill(Open(page), version);
    for (const SavedPart& part : SavedParts()) {
      if (part.page == page) Click(page, part.button);
    }
    host.Unload(host.Get(page));
  }
}

}  // namespace survey::testing
