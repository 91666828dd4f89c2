#ifndef PAGES_STAFF_FRMEDUCATORDATA_H_
#define PAGES_STAFF_FRMEDUCATORDATA_H_

#include <string>

#include "pages/staff/staff_page.h"

namespace survey {

// Questions 4.1 to 4.24: who a staff member is, the appointment, this year's training courses.
// FormMode "Edit" fills the page from the store, anything else begins a new record; what Save
// does to the store does not depend on it.
class FrmEducatorData : public StaffPage {
 public:
  FrmEducatorData(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();

  void Form_Activate() override;

  double& EmisNumber = Declare<double>("EmisNumber");  // the college's; handed on, not read
  std::string& FormMode = Declare("FormMode");         // "New" or "Edit"
  GridControl gridgeneral;
  Label lblID{*this, "lblID", "ID or Passport number can only be updated from the staff list page"};
  GridControl gridTraining;

 protected:
  void Form_Load() override;  // opens no connection
  Layout Body() override;
  void GetPage() override;
  // The two halves go on independently of each other; a failure of the second is thrown.
  void SavePage() override;

 private:
  void GetEducatorInformation(const std::string& id);
  // Says what is missing, or reports a failure; the record is then as it was.
  void SaveEducatorInformation();
  // Paints the cells that must be filled, yellow where they are not; false if there are any.
  bool CheckHighlightedFields();
  void LoadTraining();
  void SaveTraining();

  bool IsSouthAfrican() const;
  // The checks before a save; false, after a message, where one fails.
  bool IsComplete(const std::string& id);
  std::string Insert(const std::string& id) const;
  std::string Update(const std::string& id) const;
};

}  // namespace survey

#endif  // PAGES_STAFF_FRMEDUCATORDATA_H_
