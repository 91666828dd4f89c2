#ifndef PAGES_STUDENT_FRMPAGE9_1_H_
#define PAGES_STUDENT_FRMPAGE9_1_H_

#include "pages/student/ncv_page.h"

namespace survey {

// Table 3.10: students in NC(V) level 4.
class FrmPage9_1 : public NcvPage {
 public:
  FrmPage9_1(FormHost& host, const PageRow& page) : NcvPage(host, page) {}
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMPAGE9_1_H_
