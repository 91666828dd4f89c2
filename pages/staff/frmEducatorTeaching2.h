#ifndef PAGES_STAFF_FRMEDUCATORTEACHING2_H_
#define PAGES_STAFF_FRMEDUCATORTEACHING2_H_

#include "pages/staff/staff_page.h"

namespace survey {

// Questions 4.31, the fields of occupational qualifications that a staff member teaches, and
// 4.32, all other short courses together. The page follows the person: it reads and replaces what
// was stored from any site. Ticking alone does not set the unsaved mark.
class FrmEducatorTeaching2 : public StaffPage {
 public:
  FrmEducatorTeaching2(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();

  GridControl gridFields;

 protected:
  void Form_Load() override;  // opens no connection
  Layout Body() override;
  void PlaceCursor() override;
  void GetPage() override;
  void SavePage() override;

 private:
  // Stores the figures of a row under a field's code.
  void Insert(int row, int code);
};

}  // namespace survey

#endif  // PAGES_STAFF_FRMEDUCATORTEACHING2_H_
