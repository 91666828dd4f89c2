#ifndef PAGES_STUDENT_FRMPAGE8_H_
#define PAGES_STUDENT_FRMPAGE8_H_

#include "pages/student/ncv_page.h"

namespace survey {

// Table 3.8: students in NC(V) level 2.
class FrmPage8 : public NcvPage {
 public:
  FrmPage8(FormHost& host, const PageRow& page) : NcvPage(host, page) {}
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMPAGE8_H_
