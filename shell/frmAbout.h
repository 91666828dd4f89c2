#ifndef SHELL_FRMABOUT_H_
#define SHELL_FRMABOUT_H_

#include "forms/form.h"

namespace survey {

// Name, version and disclaimer of the program. Modal.
class FrmAbout : public Form {
 public:
  explicit FrmAbout(FormHost& host);
  Layout Arrange() override;

  Label lblTitle{*this, "lblTitle", " Corvale (Corvale) Annual Survey Utility 2012 "};
  Label lblVersion{*this, "lblVersion", "Version 14 October 2012"};
  Label lblDisclaimerTitle{*this, "lblDisclaimerTitle", "Disclaimer:"};
  Label lblDisclaimer{*this, "lblDisclaimer", "Disclaimer Text"};
  Button cmdOK{*this, "cmdOK", "OK", ButtonRole::kCancel};
  Button cmdSysInfo{*this, "cmdSysInfo", "&System Info..."};

 protected:
  void Form_Load() override;

 private:
  void StartSysInfo();
};

}  // namespace survey

#endif  // SHELL_FRMABOUT_H_
