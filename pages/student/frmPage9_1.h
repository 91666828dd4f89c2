#ifndef PAGES_STUDENT_FRMPAGE9_1_H_
#define PAGES_STUDENT_FRMPAGE9_1_H_

#include "pages/student/ncv_page.h"

namespace survey {

// Table 3.10: students in NC(V) level 4.
class FrmPage9_1 : public NcvPage {
 public:
  FrmPage9_1(FormHost& host, const PageRow& page) : NcvPage(host, page) {}
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept() {
    static const std::vector<KeptTable> tables = KeptOf("frmPage9_1");
    return tables;
  }
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMPAGE9_1_H_
