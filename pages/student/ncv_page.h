#ifndef PAGES_STUDENT_NCV_PAGE_H_
#define PAGES_STUDENT_NCV_PAGE_H_

#include <string_view>
#include <vector>

#include "forms/control_totals.h"
#include "forms/survey_page.h"

namespace survey {

struct NcvLevel;

// Students of one NC(V) level by programme, population group and gender, measured against the
// control table. The three levels are one page three times over.
class NcvPage : public SurveyPage {
 protected:
  // Both throw std::out_of_range for a page of no level.
  static std::vector<KeptTable> KeptOf(std::string_view page);
  NcvPage(FormHost& host, const PageRow& page);

  Layout Body() override;
  void PlaceCursor() override;
  void GetPage() override;
  void SavePage() override;

 private:
  const NcvLevel& level_;
  GridControl grid_;  // gridNCV or gridPage8_2, index 1
  ControlTotals control_totals_{*this, "Label3"};
};

}  // namespace survey

#endif  // PAGES_STUDENT_NCV_PAGE_H_
