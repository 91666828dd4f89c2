#ifndef PAGES_STUDENT_FRMPAGE8_H_
#define PAGES_STUDENT_FRMPAGE8_H_

#include "pages/student/ncv_page.h"

namespace survey {

// Table 3.8: students in NC(V) level 2.
class FrmPage8 : public NcvPage {
 public:
  FrmPage8(FormHost& host, const PageRow& page) : NcvPage(host, page) {}
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept() {
    static const std::vector<KeptTable> tables = KeptOf("frmPage8");
    return tables;
  }
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMPAGE8_H_
