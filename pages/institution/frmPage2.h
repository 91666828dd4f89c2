#ifndef PAGES_INSTITUTION_FRMPAGE2_H_
#define PAGES_INSTITUTION_FRMPAGE2_H_

#include "forms/survey_page.h"

namespace survey {

// Section 1: who the site is, where it is found, who manages it. One record per site, which is
// there from the beginning: the page changes it and never makes or removes one. The survey's
// signature section stands at the foot, to be signed on paper.
class FrmPage2 : public SurveyPage {
 public:
  FrmPage2(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();

  // Unlike other pages goes on after a failed load: the site's numbers are always shown.
  void Form_Activate() override;

  GridControl gridPage2_1;      // who the site is; read only
  GridControl gridGeneralInfo;  // the questions and the signature section

 protected:
  Layout Body() override;
  void GetPage() override;
  // Reports a statement that fails itself, so that the mark is cleared after it too.
  void SavePage() override;
  bool MaySave() override;

 private:
  void LockByMisAnswer(int row);
};

}  // namespace survey

#endif  // PAGES_INSTITUTION_FRMPAGE2_H_
