#include "shell/frmAbout.h"

namespace survey {
namespace {

constexpr char kDisclaimer[] =
    "This product is supplied free of charge by the Ostrel. It is supplied 'as is' without any "
    "warranty of any kind,  express or implied. The developers do not warrant that the operations "
    "of the product will be uninterrupted or error free,  nor do they assume any responsibility or "
    "liability whatsoever for any damages suffered as a result of the use of, or inability to use, "
    "the product.";

}  // namespace

FrmAbout::FrmAbout(FormHost& host) : Form(host, "frmAbout", "About Corvale Annual Survey") {
  lblTitle.Heading = true;
  cmdOK.on_click = [this] { this->host().Unload(*this); };
  cmdSysInfo.on_click = [this] { StartSysInfo(); };
}

Layout FrmAbout::Arrange() {
  return ColumnOf({Place(lblTitle), Place(lblVersion), Place(lblDisclaimerTitle),
                   Place(lblDisclaimer), RowOf({Place(cmdSysInfo), Space(), Place(cmdOK)})});
}

void FrmAbout::Form_Load() { lblDisclaimer.Caption = kDisclaimer; }

void FrmAbout::StartSysInfo() {
  if (host().platform().program_folder.StartSystemInformation()) return;
  boxes().PlainBox("System Information Is Unavailable At This Time");
}

}  // namespace survey
