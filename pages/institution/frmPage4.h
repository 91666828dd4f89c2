#ifndef PAGES_INSTITUTION_FRMPAGE4_H_
#define PAGES_INSTITUTION_FRMPAGE4_H_

#include "forms/survey_page.h"

namespace survey {

// Tables 2.1 and 2.2, the staff in numbers, and the door to the individual staff records.
class FrmPage4 : public SurveyPage {
 public:
  FrmPage4(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();

  Label Label4{*this, "Label4", "STAFF TABLES"};
  Label Label1{*this, "Label1",
               "Table 2.1 + Section 4 must be completed by the college central office and each "
               "campus"};
  GridControl gridPage4_2;
  Label Label2{*this, "Label2", "Table 2.2 must be completed for all lecturing staff"};
  GridControl gridLectureStaff;
  Label Label3{*this, "Label3", "Section 4: "};
  // Leaves without asking: what is not saved is lost.
  Button cmdStaff{*this, "cmdStaff", " Individual staff pages"};

 protected:
  Layout Body() override;
  void PlaceCursor() override;
  void GetPage() override;
  void SavePage() override;
};

}  // namespace survey

#endif  // PAGES_INSTITUTION_FRMPAGE4_H_
