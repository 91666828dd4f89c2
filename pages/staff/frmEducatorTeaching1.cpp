#include "pages/staff/frmEducatorTeaching1.h"

namespace survey {
namespace {

// clang-format off
const SubjectList& QualificationSubjects() {
  static const SubjectList list = WithLines({
      .design = {
          .columns = 5,
          .rows = 16,
          .column_widths = {700, 7500, 1550, 1550, 0},
          .row_height = 450,
          .row_heights = {1100},
          .head_rows = 1,
          .label_columns = 2,
          .texts = {
              {1, 1, "4.28"},
              {2, 1, "Indicate the subjects that the staff member is qualified to teach but is not "
                     "teaching in 2012 for Report 191, NC(V) and NSC"},
              {3, 1, "Number of years teaching experience in the subject"},
              {4, 1, "Number of years formal training for this subject"},
          },
          .rules = {{{3, 2, 4, 16}, Number(0, 9999999.99, 2)}},
          .bold = {{1, 1, 2, 1}},
          .title = "4.28 Subjects that the staff member is qualified to teach",
      },
      .figures = {{"TeachingExperience", 3}, {"TrainingYears", 4}},
      .code_column = 5,
      .select =
          "SELECT tbl_LecturerQualificationSubject.CollegeEmisNumber, "
          "tbl_LecturerQualificationSubject.CampusEmisNumber,  "
          "tbl_LecturerQualificationSubject.SurveyYear, "
          "tbl_LecturerQualificationSubject.IDnumber,  "
          "tbl_LecturerQualificationSubject.SubjectCode,  "
          "tbl_LecturerQualificationSubject.TeachingExperience, "
          "tbl_LecturerQualificationSubject.TrainingYears,  "
          "lst_Subject.Description,lst_Subject.programme FROM lst_Subject  "
          "INNER JOIN tbl_LecturerQualificationSubject ON lst_Subject.SubjectCode = "
          "tbl_LecturerQualificationSubject.SubjectCode  Where collegeemisnumber = ",
      .remove = "Delete * from tbl_LecturerQualificationSubject  where collegeemisnumber = ",
      .insert = "Insert into tbl_LecturerQualificationSubject(CollegeEmisNumber,CampusEmisnumber,"
                "SurveyYear,IDnumber,SubjectCode,TeachingExperience,TrainingYears)VALUES",
      .already_assigned = "The subject you have selected has already been assigned as a subject.",
      .title = "4.28 Subjects that staff member is qualified to teach for Report 191, NC(V) and "
               "NSC ",
      .advice = {
          "Data is only required for a maximum of 15 subjects",
          "If the specific level of the subject is not available, select the nearest level as the "
          "data is required per subject. A subject only needs to be selected once and not for each "
          "level.",
          "If the subject is not on the drop down list at all, then please add the subect by "
          "clicking on the add subject button",
      },
      .offers_report_550 = false,
      .add_button = "cmdAddSubject",
      .printing_routine = {"frmEducatorTraining1", "Print Routine"},
  });
  return list;
}
// clang-format on

}  // namespace

const std::vector<KeptTable>& FrmEducatorTeaching1::Kept() {
  static const std::vector<KeptTable> tables = {
      {.number = "4.28",
       .grid = "gridSubjects",
       .design = &QualificationSubjects().design,
       .staff = StaffRecords{"tbl_LecturerQualificationSubject", kOfTheCatalogue}},
  };
  return tables;
}

FrmEducatorTeaching1::FrmEducatorTeaching1(FormHost& host, const PageRow& page)
    : SubjectPage(host, page, QualificationSubjects()) {}

}  // namespace survey
