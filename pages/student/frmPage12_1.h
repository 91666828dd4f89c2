#ifndef PAGES_STUDENT_FRMPAGE12_1_H_
#define PAGES_STUDENT_FRMPAGE12_1_H_

#include <cstdint>
#include <optional>
#include <string>

#include "forms/survey_page.h"

namespace survey {

// Table 3.14: registration for occupational qualifications. Each line of the grid holds one
// qualification that the user picks from the catalogue; the enrolment alone is typed. A yellow
// cmdOK says that a picked qualification is not in the grid yet.
class FrmPage12_1 : public SurveyPage {
 public:
  FrmPage12_1(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();
  // Reads the catalogue and the lines anew, also when frmAddQualification has closed; lines that
  // were not saved are lost then.
  void Form_Activate() override;

  // Fills a combo with the catalogue, id and title, the id as item data. The shared connection is
  // none after it. Throws RunTimeError.
  void Fillsubjectcombo2(ComboBox& combo);
  // Whether no line of the grid holds this NQF id; tells the user of each that does.
  bool IsNewQualification(std::int32_t id);
  // Tells that the data is saved. No handler calls it.
  void DataSaved();

  Label Label1{*this, "Label1", "Select Qualification"};
  ComboBox cboSelect{*this, "cboSelect", "Select Qualification"};
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdAdd{*this, "cmdAdd", "Add Qualification not in List"};
  GridControl gridPage12_2;
  Frame Frame3{*this, "Frame3"};
  Label Label4{*this, "Label4", "Line Number:"};
  TextBox txtRow{*this, "txtRow", "Line Number:"};
  Button cmdRemove{*this, "cmdRemove", "Remove data in line from grid"};

 protected:
  void Form_Load() override;
  Layout Body() override;
  void GetPage() override;
  void SavePage() override;
  bool MaySave() override;

 private:
  // What the grid shows of a qualification.
  struct Qualification {
    std::int32_t id = 0;
    std::string title;
    std::int16_t field = 0;
    std::string level;
  };

  void TypeAhead(char32_t character);
  void TakeChoice();
  std::optional<Qualification> ReadChoice();
  void EnterInFirstFreeLine(const Qualification& qualification);
  void MarkOldLevel(const std::string& level, int row);
  void RemoveLine();

  ShownRecords shown_;  // by their NQF ids
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMPAGE12_1_H_
