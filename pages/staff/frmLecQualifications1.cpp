#include "pages/staff/frmLecQualifications1.h"

namespace survey {
namespace {

// clang-format off
const QualificationList& FirstHalf() {
  static const QualificationList list = WithRows({
      .rows = {
          {3, 1, "School leaving certificate"},
          {4, 2, "National certificate in Adult Basic Education and Training Practice"},

          {6, 3, "Two-year Teacher's Certificate"},
          {7, 4, "Certificate in Adult Education, Training and Development"},
          {8, 5, "National Higher Certificate in Adult Basic Education and Training Practice"},
          {9, 6, "National Diploma in Adult Basic Education and Training Practice"},
          {10, 7, "One-year National Teacher's Diploma"},
          {11, 8, "Three-year Teacher's Diploma"},
          {12, 9, "National Professional Diploma in Education"},
          {13, 10, "Three-year Diploma: Grade R Teaching (new 2012)"},
          {14, 11, "Four-year Higher Diploma in Education"},
          {15, 12, "Four-year Professional Teaching Degree"},
          {16, 13, "One-year Postgraduate Professional teaching qualification"},
          {17, 14, "One-year National Higher Diploma/B Tech"},
          {18, 15, "Diploma in Tertiary Education/Postgraduate Certificate in Higher Education"},

          {20, 16, "Three-year approved Bachelors degree"},
          {21, 17, "Four-year approved Bachelors degree"},
          {22, 18, "Three-year National Diploma"},
          {23, 19, "Other"},

          {25, 20, "Post professional teacher's certificate"},
          {26, 21, "One-year Higher Diploma in Education"},
          {27, 22, "Diploma in Specialized Education"},
          {28, 23, "Further Diploma in Education"},
          {29, 24, "Advanced Certificate in Education"},
          {30, 25, "Advanced Diploma in Education (new 2012)"},
          {31, 26, "One-year National Higher Diploma"},
          {32, 27, "One-year Bachelor of Technology"},
          {33, 28, "Partially completed first Bachelors Degree"},
          {34, 29, "Completed first Bachelors degree"},
      },
      .design = {
          .columns = 3,
          .rows = 34,
          .column_widths = {700, 8600, 1000},
          .row_height = 300,
          .row_heights = {480},
          .head_rows = 1,
          .label_columns = 2,
          .texts = {
              {1, 1, "4.25. Indicate all qualification types attained by the staff member. More "
                     "than one can be selected.\nThe list continues on the NEXT page"},
              {1, 2, "Initial (first) qualifications"},
              {1, 5, "Initial professional teaching qualifications"},
              {1, 19, "First Academic or Occupational qualifications"},
              {2, 19, "Three-year National DiplomaFirst academic "},
              {1, 24, "Post Initial/Continuing professional development qualifications"},
          },
          .spans = {{1, 1, 3, 1}, {1, 2, 3, 2}, {1, 5, 3, 5}, {1, 19, 3, 19}, {1, 24, 3, 24}},
          .bold = {{1, 2}, {1, 5}, {1, 19}, {1, 24}},
          .title = "4.25 Qualification types of the staff member, first part",
      },
      .remove = "Delete from  tbl_staffqualificationtype where IDnumber = '",
      .remove_tail = "' and qualificationtypeCD < 30 and surveyyear = ",
  });
  return list;
}
// clang-format on

std::vector<Code> Codes() { return CodesOf(FirstHalf()); }

}  // namespace

const std::vector<KeptTable>& FrmLecQualifications1::Kept() {
  static const std::vector<KeptTable> tables = {
      {.number = "4.25",
       .grid = "gridQual",
       .design = &FirstHalf().design,
       .staff = StaffRecords{"tbl_StaffQualificationType", " and QualificationTypeCD < 30", true},
       .codes = Codes},
  };
  return tables;
}

FrmLecQualifications1::FrmLecQualifications1(FormHost& host, const PageRow& page)
    : QualificationPage(
          host, page,
          {.next = {"Next", ButtonRole::kNext}, .previous = kNoButton, .menu = kToStaffList},
          FirstHalf()) {}

}  // namespace survey
