#ifndef PAGES_STAFF_FRMLECQUALIFICATIONS1_H_
#define PAGES_STAFF_FRMLECQUALIFICATIONS1_H_

#include "pages/staff/qualification_page.h"

namespace survey {

// Qualification types 1 to 29.
class FrmLecQualifications1 : public QualificationPage {
 public:
  FrmLecQualifications1(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();

 protected:
  QualificationDetails DetailsToSave() const override { return {"", "0", 0}; }
};

}  // namespace survey

#endif  // PAGES_STAFF_FRMLECQUALIFICATIONS1_H_
