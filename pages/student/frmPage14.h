#ifndef PAGES_STUDENT_FRMPAGE14_H_
#define PAGES_STUDENT_FRMPAGE14_H_

#include "forms/survey_page.h"
#include "records/cell_table.h"

namespace survey {

// Table 3.18: students with special needs by primary disability, programme and gender.
class FrmPage14 : public SurveyPage {
 public:
  FrmPage14(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();

  GridControl gridPage9_1;

 protected:
  // Opens no connection: works on the one that stands open.
  void Form_Load() override;
  Layout Body() override;
  void PlaceCursor() override;
  void GetPage() override;
  void SavePage() override;
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMPAGE14_H_
