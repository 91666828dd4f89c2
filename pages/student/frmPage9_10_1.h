#ifndef PAGES_STUDENT_FRMPAGE9_10_1_H_
#define PAGES_STUDENT_FRMPAGE9_10_1_H_

#include "pages/student/year_of_birth_page.h"

namespace survey {

// Table 3.17: students of all programmes by year of birth and gender.
class FrmPage9_10_1 : public YearOfBirthPage {
 public:
  FrmPage9_10_1(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMPAGE9_10_1_H_
