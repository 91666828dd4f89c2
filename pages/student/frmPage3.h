#ifndef PAGES_STUDENT_FRMPAGE3_H_
#define PAGES_STUDENT_FRMPAGE3_H_

#include "forms/survey_page.h"
#include "records/cell_table.h"

namespace survey {

// Table 2.5, which every other student table is measured against.
class FrmPage3 : public SurveyPage {
 public:
  FrmPage3(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();

  GridControl gridEnrolment;

 protected:
  Layout Body() override;
  void PlaceCursor() override;
  void GetPage() override;
  void SavePage() override;
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMPAGE3_H_
