#ifndef PAGES_STUDENT_FRMPAGE9_H_
#define PAGES_STUDENT_FRMPAGE9_H_

#include "pages/student/ncv_page.h"

namespace survey {

// Table 3.9: students in NC(V) level 3.
class FrmPage9 : public NcvPage {
 public:
  FrmPage9(FormHost& host, const PageRow& page) : NcvPage(host, page) {}
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMPAGE9_H_
