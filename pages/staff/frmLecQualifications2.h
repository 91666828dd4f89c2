#ifndef PAGES_STAFF_FRMLECQUALIFICATIONS2_H_
#define PAGES_STAFF_FRMLECQUALIFICATIONS2_H_

#include "pages/staff/qualification_page.h"

namespace survey {

// Qualification types 30 to 42, and questions 4.26 and 4.27 on the trade. The trade and the years
// of experience are kept with each ticked type of this page: where none is ticked they are lost.
// Typing them does not set the unsaved mark.
class FrmLecQualifications2 : public QualificationPage {
 public:
  FrmLecQualifications2(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();

  Button cmdEducatorList{*this, "cmdEducatorList", "Staff List", ButtonRole::kMenu};

 protected:
  void ShowDetails(const Recordset& qualification) override;
  QualificationDetails DetailsToSave() const override;
};

}  // namespace survey

#endif  // PAGES_STAFF_FRMLECQUALIFICATIONS2_H_
