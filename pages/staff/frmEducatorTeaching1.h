#ifndef PAGES_STAFF_FRMEDUCATORTEACHING1_H_
#define PAGES_STAFF_FRMEDUCATORTEACHING1_H_

#include "pages/staff/subject_page.h"

namespace survey {

// Question 4.28: subjects that a staff member is qualified to teach but does not teach this year.
// A subject may stand here and on frmEducatorTeaching: neither page looks at the other.
class FrmEducatorTeaching1 : public SubjectPage {
 public:
  FrmEducatorTeaching1(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();
};

}  // namespace survey

#endif  // PAGES_STAFF_FRMEDUCATORTEACHING1_H_
