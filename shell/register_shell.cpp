#include "shell/register_shell.h"

#include "shell/frmAbout.h"
#include "shell/frmDatabase.h"
#include "shell/frmMainMenu.h"
#include "shell/frmSelectCollege.h"
#include "shell/frmSelectDatabase.h"

namespace survey {

void RegisterShell(Forms& forms) {
  forms.Register<FrmSelectDatabase>("frmSelectDatabase");
  forms.Register<FrmDatabase>("frmDatabase");
  forms.Register<FrmSelectCollege>("frmSelectCollege");
  forms.Register<FrmMainMenu>("frmMainMenu");
  forms.Register<FrmAbout>("frmAbout");
}

}  // namespace survey
