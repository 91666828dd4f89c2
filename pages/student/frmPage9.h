#ifndef PAGES_STUDENT_FRMPAGE9_H_
#define PAGES_STUDENT_FRMPAGE9_H_

#include "pages/student/ncv_page.h"

namespace survey {

// Table 3.9: students in NC(V) level 3.
class FrmPage9 : public NcvPage {
 public:
  FrmPage9(FormHost& host, const PageRow& page) : NcvPage(host, page) {}
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept() {
    static const std::vector<KeptTable> tables = KeptOf("frmPage9");
    return tables;
  }
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMPAGE9_H_
