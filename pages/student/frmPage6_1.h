#ifndef PAGES_STUDENT_FRMPAGE6_1_H_
#define PAGES_STUDENT_FRMPAGE6_1_H_

#include <array>

#include "forms/control_totals.h"
#include "forms/survey_page.h"

namespace survey {

// Tables 3.5 to 3.7: students of N4, N5 and N6 by vocational field, population group and gender,
// each measured against table 2.5.
class FrmPage6_1 : public SurveyPage {
 public:
  FrmPage6_1(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();

  std::array<GridControl, 2> gridPage6_2;  // N5, N4
  GridControl grid191;                     // N6; its changes do not set the unsaved mark

 protected:
  Layout Body() override;
  void PlaceCursor() override;
  void GetPage() override;
  void SavePage() override;

 private:
  struct Table {
    int code;  // ProgrammeRegistrationTypeCD
    GridControl& grid;
  };

  const std::array<Table, 3> tables_;  // in survey order
  ControlTotals control_totals_;
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMPAGE6_1_H_
