#ifndef PAGES_STUDENT_FRMPAGE9_10_H_
#define PAGES_STUDENT_FRMPAGE9_10_H_

#include "pages/student/year_of_birth_page.h"

namespace survey {

// Table 3.16: students of NC(V) Level 2 by year of birth and programme.
class FrmPage9_10 : public YearOfBirthPage {
 public:
  FrmPage9_10(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMPAGE9_10_H_
