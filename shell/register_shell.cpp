#include "shell/register_shell.h"

#include "shell/frmAbout.h"
#include "shell/frmDatabase.h"
#include "shell/frmMainMenu.h"
#include "shell/frmSelectCollege.h"
#include "shell/frmSelectDatabase.h"

namespace survey {

void RegisterShell(FormHost& host) {
  host.Register<FrmSelectDatabase>("frmSelectDatabase");
  host.Register<FrmDatabase>("frmDatabase");
  host.Register<FrmSelectCollege>("frmSelectCollege");
  host.Register<FrmMainMenu>("frmMainMenu");
  host.Register<FrmAbout>("frmAbout");
}

}  // namespace survey
