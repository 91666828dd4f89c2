#include "pages/staff/frmLecQualifications2.h"

#include <algorithm>
#include <iterator>

#include "base/text.h"
#include "records/codes.h"
#include "records/record_cells.h"
#include "store/dialect.h"

namespace survey {
namespace {

constexpr Cell kTrade{2, 19};
constexpr Cell kExperience{3, 20};

// clang-format off
const QualificationList& SecondHalf() {
  static const QualificationList list = WithRows({
      .rows = {
          {3, 30, "Postgraduate Diploma"},
          {4, 31, "Postgradaute Diploma in Education"},
          {5, 32, "Honours Degree"},
          {6, 33, "Masters Degree"},
          {7, 34, "Doctors Degree"},

          {9, 35, "ABET Practioners Certificate"},
          {10, 36, "ABET Practioners Diploma/Higher Diploma"},
          {11, 37, "National First Degree in Adult Basic Education and Training"},
          {12, 38, "N3 Certificate + Trade Test "},
          {13, 39, "N4 Certificate"},
          {14, 40, "N5/N6 Certificates"},
          {15, 41, "National N Diploma (with or without trade test)"},
          {16, 42, "Other"},
      },
      .design = {
          .columns = 3,
          .rows = 20,
          .column_widths = {700, 8600, 1000},
          .row_height = 660,  // of the last one
          .row_heights = {272, 272, 272, 272, 272, 272, 272, 272, 272, 272,
                          272, 272, 272, 272, 272, 272, 272, 272, 272},
          .head_rows = 1,
          .label_columns = 1,
          .texts = {
              {1, 1, "4.25 Indicate all qualification types attained by the staff member. More "
                     "than one can be selected"},
              {1, 2, "Postgraduate qualifications"},
              {1, 8, "Other recognised qualifications"},
              {1, 18, "4.26"},
              {2, 18, "If you have marked number 38 to 40 in Question 4.25, please specify the "
                      "trade if trade test completed"},
              {1, 20, "4.27"},
              {2, 20, "If you have marked number 38 to 40 in Question 4.25, please indicate your "
                      "number of workplace experience years \n(1= < 5 years; 2 = > 5 years)"},
          },
          .rules = {
              {{2, 19}, Text(255)},
              {{3, 20}, Number(1, 2)},
          },
          .spans = {{1, 1, 3, 1}, {1, 2, 3, 2}, {1, 8, 3, 8}, {1, 17, 3, 17}, {2, 18, 3, 18},
                    {2, 19, 3, 19}},
          .bold = {{1, 2}, {1, 8}},
          .title = "4.25 to 4.27 Qualification types of the staff member, second part",
      },
      .remove = "Delete from  tbl_StaffQualificationType where IDnumber = '",
      .remove_tail = "' and qualificationtypeCD > 29 and surveyyear = ",
  });
  return list;
}
// clang-format on

std::vector<Code> Codes() {
  static constexpr Answer kAnswers[] = {{"WorkplaceExperience", kExperience, CellAs::kNumber}};
  std::vector<Code> codes = CodesOf(SecondHalf());
  std::ranges::move(CodesOf("tbl_StaffQualificationType", kAnswers, SecondHalf().design),
                    std::back_inserter(codes));
  return codes;
}

}  // namespace

const std::vector<KeptTable>& FrmLecQualifications2::Kept() {
  static const std::vector<KeptTable> tables = {
      {.number = "4.25 - 4.27",
       .grid = "gridQual",
       .design = &SecondHalf().design,
       .staff = StaffRecords{"tbl_StaffQualificationType", " and QualificationTypeCD > 29", true},
       .codes = Codes},
  };
  return tables;
}

FrmLecQualifications2::FrmLecQualifications2(FormHost& host, const PageRow& page)
    : QualificationPage(
          host, page,
          {.next = {"Previous", ButtonRole::kPrevious}, .previous = kNoButton, .menu = kNoButton},
          SecondHalf()) {
  AddLink(cmdEducatorList);
}

void FrmLecQualifications2::ShowDetails(const Recordset& qualification) {
  ShowFields(qualification, {{"tradedescription", kTrade}, {"workplaceexperience", kExperience}},
             gridQual);
}

QualificationDetails FrmLecQualifications2::DetailsToSave() const {
  return {.trade = SqlEscape(gridQual.GetText(kTrade.column, kTrade.row)),
          .other = "",
          .workplace_experience = gridQual.GetInteger(kExperience.column, kExperience.row)};
}

}  // namespace survey
