#ifndef PAGES_STUDENT_FRMOTHERPROGRAMMES_H_
#define PAGES_STUDENT_FRMOTHERPROGRAMMES_H_

#include "forms/control_totals.h"
#include "forms/survey_page.h"

namespace survey {

// Tables 3.11 to 3.13: programmes offered with Higher Education Institutions, NSC subjects, and
// Adult Education and Training. The printed survey leaves this page out.
class FrmOtherProgrammes : public SurveyPage {
 public:
  FrmOtherProgrammes(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();
  void Form_Activate() override;

  // All of these throw RunTimeError; what was done before a failure stays done.
  void LoadLevel5();
  void LoadNSC();
  void LoadAET();
  // Leaves out a programme without a name or without an institution.
  void SaveLevel5();
  void SaveNSC();
  void SaveAET();

  GridControl gridlevel5;
  GridControl gridNSC;
  GridControl gridAET;
  ControlTotals control_totals{*this, "Label5"};

 protected:
  Layout Body() override;
  void PlaceCursor() override;
  void GetPage() override;
  void SavePage() override;

 private:
  void AnswerNoWhereUnanswered();
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMOTHERPROGRAMMES_H_
