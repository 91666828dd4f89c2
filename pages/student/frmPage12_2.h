#ifndef PAGES_STUDENT_FRMPAGE12_2_H_
#define PAGES_STUDENT_FRMPAGE12_2_H_

#include "forms/control_totals.h"
#include "forms/survey_page.h"

namespace survey {

// Table 3.15: headcount for occupational qualifications by organising field.
class FrmPage12_2 : public SurveyPage {
 public:
  FrmPage12_2(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();
  // Without a trap: a page that cannot be filled ends the program. Throws RunTimeError.
  void Form_Activate() override;

  GridControl gridPage12_1;
  ControlTotals control_totals{*this, "Label1"};

 protected:
  void Form_Load() override;
  Layout Body() override;
  void PlaceCursor() override;
  void GetPage() override;
  void SavePage() override;
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMPAGE12_2_H_
