#ifndef PAGES_STUDENT_FRMPAGE5_H_
#define PAGES_STUDENT_FRMPAGE5_H_

#include <array>

#include "forms/control_totals.h"
#include "forms/survey_page.h"

namespace survey {

// Tables 3.1 to 3.3, full-time equivalents, and table 3.4, students of N1 to N3 by population
// group and gender.
class FrmPage5 : public SurveyPage {
 public:
  FrmPage5(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();

  Label Label1;
  std::array<GridControl, 3> gridFTE;  // tables 3.3, 3.1, 3.2
  Label Label2;
  GridControl gridReport191;  // table 3.4; its changes do not set the unsaved mark

 protected:
  Layout Body() override;
  void PlaceCursor() override;
  void GetPage() override;
  void SavePage() override;

 private:
  void GetFTE();
  void SaveFTE();
  void GetReport191();
  void SaveReport191();

  // Says what the colours mean, as on the pages that have them; no total of this page is
  // measured against table 2.5.
  ControlTotals control_totals_;
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMPAGE5_H_
