#ifndef PAGES_STUDENT_FRMPAGE9_H_
#define PAGES_STUDENT_FRMPAGE9_H_

#include "pages/student/ncv_page.h"

namespace survey {

// Table 3.9: students in NC(V) level 3.
class FrmPage9 : public NcvPage {
 public:
  explicit FrmPage9(FormHost& host) : NcvPage(host, "frmPage9") {}
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMPAGE9_H_
