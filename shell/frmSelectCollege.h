#ifndef SHELL_FRMSELECTCOLLEGE_H_
#define SHELL_FRMSELECTCOLLEGE_H_

#include "forms/form.h"

namespace survey {

// Lists the sites that were started in this database.
class FrmSelectCollege : public Form {
 public:
  explicit FrmSelectCollege(FormHost& host);
  Layout Arrange() override;

  Label lblSelect{*this, "lblSelect",
                  "Select a college or campus to add/edit/view data and click on Continue"};
  Label lblAdd{*this, "lblAdd",
               "Click on Add new college or campus to add a site that is not on the list"};
  GridControl gridcollege;
  Button cmdContinue{*this, "cmdContinue", "Continue"};
  Button cmdAdd{*this, "cmdAdd", "Add new College or Campus"};
  Button cmdExit{*this, "cmdExit", "Exit"};

 protected:
  void Form_Load() override;

 private:
  void LoadSiteList();
  void Continue();
};

}  // namespace survey

#endif  // SHELL_FRMSELECTCOLLEGE_H_
