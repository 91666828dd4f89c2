#ifndef PAGES_STUDENT_FRMSTUDENTTOTAL_H_
#define PAGES_STUDENT_FRMSTUDENTTOTAL_H_

#include "forms/survey_page.h"
#include "records/cell_table.h"

namespace survey {

// Tables 2.3 and 2.4: each student counted once, and the agreements among them. Nothing measures
// these figures against another table.
class FrmStudentTotal : public SurveyPage {
 public:
  FrmStudentTotal(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();

  Label Label4;
  Label Label3;
  Label Label2;
  Label Label1;
  GridControl gridEnrolment;
  GridControl gridAgreements;

 protected:
  // Works on the connection that the page before left.
  void Form_Load() override;
  Layout Body() override;
  void PlaceCursor() override;
  void GetPage() override;
  void SavePage() override;
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMSTUDENTTOTAL_H_
