#ifndef PAGES_STUDENT_FRMADDQUALIFICATION_H_
#define PAGES_STUDENT_FRMADDQUALIFICATION_H_

#include <cstdint>
#include <string>

#include "forms/form.h"

namespace survey {

// Adds a qualification to the catalogue of table 3.14. Shown over frmPage12_1, which takes the new
// qualification into its list when this form closes.
class FrmAddQualification : public Form {
 public:
  explicit FrmAddQualification(FormHost& host);
  Layout Arrange() override;

  Label Label1{*this, "Label1", "Select the NQF Field:"};
  ComboBox cboField{*this, "cboField", "Select the NQF Field:"};
  Label Label2{*this, "Label2", "Enter the NQF ID of the qualification:"};
  TextBox txtNQFID{*this, "txtNQFID", "Enter the NQF ID of the qualification:"};
  Label Label3{*this, "Label3", "Enter the title of the qualification:"};
  TextBox txtTitle{*this, "txtTitle", "Enter the title of the qualification:"};
  Label Label4{*this, "Label4", "Select the Level of the qualification:"};
  ComboBox cboLevel{*this, "cboLevel", "Select the Level of the qualification:"};
  Button cmdSave{*this, "cmdSave", "Save Data", ButtonRole::kSave};
  Button cmdCancel{*this, "cmdCancel", "Cancel", ButtonRole::kCancel};

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void Save();
  bool IsComplete();
  bool IsNew();
  void Insert();
  void Ask(std::string_view request, Control& control);
  void MarkUnsaved() { cmdSave.BackColor = kYellow; }

  // What was chosen and typed, until the form is unloaded.
  std::int32_t field_ = 0;  // 1 to 12, 0 while none is chosen
  std::int32_t id_ = 0;     // as last taken from its box
  std::string title_;       // as last taken from its box
  std::string level_;
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMADDQUALIFICATION_H_
