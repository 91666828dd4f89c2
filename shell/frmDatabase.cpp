#include "shell/frmDatabase.h"

#include "base/text.h"
#include "shell/database_name.h"

namespace survey {

FrmDatabase::FrmDatabase(FormHost& host)
    : Form(host, "frmDatabase", "Create New Database"),
      data_folder_(host.platform().program_folder.Path()) {
  cmdOk.on_click = [this] { Ok(); };
  cmdCancel.on_click = [this] { this->host().UnloadAll(); };
}

Layout FrmDatabase::Arrange() {
  return ColumnOf({FrameOf(fraName, RowOf({Place(lblName), Place(txtDatabaseName, 1)})),
                   RowOf({Space(), Place(cmdOk), Place(cmdCancel)})});
}

bool FrmDatabase::ValidateDatabaseName() {
  const std::string name = Trim(txtDatabaseName.Text);
  if (name.empty()) {
    boxes().PlainBox("Please enter a Database name.");
  } else if (const std::string refusal = WhyNoName(name); !refusal.empty()) {
    boxes().UserMessage(refusal);  // the name stays, to be put right
  } else {
    return true;
  }
  SetFocus(txtDatabaseName);
  return false;
}

void FrmDatabase::Ok() {
  survey().ChosenDatabaseName = txtDatabaseName.Text;
  if (!ValidateDatabaseName()) return;
  const std::string name = Trim(txtDatabaseName.Text);
  data_folder_.MakeSure();
  if (data_folder_.Look(name) != Found::kNo) {
    boxes().UserMessage("This database name already exists. Please supply another name.");
    txtDatabaseName.Text.clear();
    SetFocus(txtDatabaseName);
    return;
  }
  // A copy that fails is not told here: the next form cannot open the file, and says so and why.
  survey().WhyNotMade = data_folder_.CopyTemplate(name);
  survey().DatabaseName = name;
  survey().DatabasePath = data_folder_.PathOf(name);
  host().Unload(*this);
  host().Unload(host().Get("frmSelectDatabase"));
}

}  // namespace survey
