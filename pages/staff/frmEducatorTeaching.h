#ifndef PAGES_STAFF_FRMEDUCATORTEACHING_H_
#define PAGES_STAFF_FRMEDUCATORTEACHING_H_

#include "pages/staff/subject_page.h"

namespace survey {

// Questions 4.29, the months in which a lecturer taught, and 4.30, the subjects taught this year.
class FrmEducatorTeaching : public SubjectPage {
 public:
  FrmEducatorTeaching(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();

  GridControl gridmonths;

 protected:
  Layout Body() override;
  void GetPage() override;
  void SavePage() override;

 private:
  void GetMonths();
  void SaveMonths();
};

}  // namespace survey

#endif  // PAGES_STAFF_FRMEDUCATORTEACHING_H_
