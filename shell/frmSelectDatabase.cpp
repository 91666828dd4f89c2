#include "shell/frmSelectDatabase.h"

#include <system_error>

#include "base/text.h"
#include "shell/chosen_database.h"
#include "store/recordset.h"

namespace survey {
namespace {

// Where the path last typed or browsed is kept.
constexpr char kApplication[] = "OSTRELCORVALEANNUALSURVEY";
constexpr char kSection[] = "Startup";
constexpr char kKey[] = "Database";

constexpr ErrorName kContinueError = {"frmSelectDatabase", "Continue"};

}  // namespace

FrmSelectDatabase::FrmSelectDatabase(FormHost& host)
    : Form(host, "frmSelectDatabase", "Corvale Annual Survey 2012 (Ostrel)"),
      data_folder_(host.platform().program_folder.Path()) {
  lblTitle.Heading = true;
  chkExisting.on_click = [this] {
    if (chkExisting.Value()) ChooseExisting();
  };
  chkNew.on_click = [this] { ChooseNew(); };
  chNetwork.on_click = [this] { ChooseNetwork(); };
  lstFiles.on_click = [this] {
    Ready();
    survey().ChosenDatabaseName = lstFiles.SelectedText();
  };
  lstFiles.Default = &cmdContinue;
  cmdBrowse.on_click = [this] { Browse(); };
  cmdContinue.on_click = [this] { Trap(kContinueError, [this] { Continue(); }); };
  cmdAbout.on_click = [this] { this->host().ShowModal("frmAbout"); };
  cmdExit.on_click = [this] { this->host().UnloadAll(); };
}

Layout FrmSelectDatabase::Arrange() {
  return ColumnOf({Place(lblTitle), Place(lblPeriod),
                   RowOf({ColumnOf({Place(chkExisting), Place(chkNew), Place(lblNew), Space()}, 1),
                          FrameOf(fraDatabases, Place(lstFiles, 1), 1)},
                         1),
                   Place(lblNetwork), Place(chNetwork),
                   RowOf({Place(txtpath, 1), Place(cmdBrowse)}),
                   FootOf(RowOf({Place(cmdAbout), Space(), Place(cmdExit), Place(cmdContinue)}))});
}

void FrmSelectDatabase::Form_Load() {
  remembered_path_.clear();
  lstFiles.Enabled = false;
  ListDatabases();
  GetRegistry();
}

void FrmSelectDatabase::ListDatabases() {
  // A folder that had to be made is not listed on this run.
  if (data_folder_.MakeSure() != Found::kYes) return;
  for (const std::string& name : data_folder_.Names()) lstFiles.AddItem(name);
}

void FrmSelectDatabase::GetRegistry() {
  txtpath.Text = host().platform().settings.Get(kApplication, kSection, kKey);
}

void FrmSelectDatabase::SaveRegistry() {
  // The second write replaces the first: only a path that was typed or browsed is remembered.
  const std::filesystem::path folder = host().platform().program_folder.Path();
  Settings& settings = host().platform().settings;
  settings.Save(kApplication, kSection, kKey, Utf8(folder / "CorvaleAnnualOstrel.mdb"));
  settings.Save(kApplication, kSection, kKey, remembered_path_);
}

void FrmSelectDatabase::ClearDatabaseList() {
  lstFiles.SetListIndex(-1);
  lstFiles.Enabled = false;
}

bool FrmSelectDatabase::IsDatabaseListed() {
  if (lstFiles.ListIndex() >= 0) {
    survey().DatabaseName = lstFiles.SelectedText();
    survey().DatabasePath = data_folder_.PathOf(survey().DatabaseName);
  }
  return !survey().DatabaseName.empty();
}

bool FrmSelectDatabase::IsCorrectDatabase() {
  survey().OpenDatabaseConnection();
  try {
    Recordset records;
    records.Open("Select * from tbl_SETAAccreditation", survey().DatabaseConnection.get());
    return true;
  } catch (const RunTimeError&) {
    cmdContinue.BackColor = kButtonFace;
    return false;
  }
}

// New databases are copies of it; one that was filled in would go out to everybody.
bool FrmSelectDatabase::IsTemplate(const std::string& path) const {
  std::error_code error;
  return std::filesystem::equivalent(
      ToPath(path), host().platform().program_folder.Path() / kTemplateFile, error);
}

void FrmSelectDatabase::Ready() {
  cmdContinue.BackColor = kYellow;
  SetFocus(cmdContinue);
}

void FrmSelectDatabase::ChooseExisting() {
  cmdContinue.BackColor = kButtonFace;
  chkNew.SetValue(false);
  chNetwork.SetValue(false);
  lstFiles.Enabled = true;
  if (lstFiles.items().empty()) {
    boxes().UserMessage("You have no existing databases on this computer.");
    chkExisting.SetValue(false);
  }
}

void FrmSelectDatabase::ChooseNew() {
  if (!chkNew.Value()) {
    cmdContinue.BackColor = kButtonFace;
    return;
  }
  Ready();
  chkExisting.SetValue(false);
  chNetwork.SetValue(false);
  ClearDatabaseList();
}

void FrmSelectDatabase::ChooseNetwork() {
  if (!chNetwork.Value()) {
    cmdContinue.BackColor = kButtonFace;
    return;
  }
  Ready();
  chkExisting.SetValue(false);
  chkNew.SetValue(false);
  ClearDatabaseList();
}

void FrmSelectDatabase::Browse() {
  const std::string path =
      host().platform().dialogs.OpenFile("Database Files (*.mdb)|*.mdb", data_folder_.path());
  survey().DatabasePath = path;
  txtpath.Text = path;
  if (path.empty() || (!IsTemplate(path) && IsCorrectDatabase())) return;
  boxes().UserMessage("The database you have selected is not the correct database.");
  txtpath.Text.clear();
  survey().DatabasePath.clear();
}

bool FrmSelectDatabase::ContinueWithExisting() {
  if (!IsDatabaseListed()) {
    if (txtpath.Text.empty()) {
      boxes().UserMessage("Please select a database.");
      return false;
    }
    survey().DatabasePath = txtpath.Text;
    remembered_path_ = txtpath.Text;
  }
  survey().OpenDatabaseConnection();
  if (IsCorrectDatabase()) return true;
  boxes().UserMessage(
      "The database you have selected is not an Corvale database or it no longer exists.");
  survey().DatabasePath.clear();
  return false;
}

void FrmSelectDatabase::Continue() {
  remembered_path_.clear();  // a path that was refused before is not what is chosen now
  if (chkNew.Value()) {
    // The choice goes on here when frmDatabase has made the file, or was given up.
    host().Unload(*this);
    host().ShowModal("frmDatabase");
  } else if (chkExisting.Value()) {
    if (!ContinueWithExisting()) return;
  } else if (chNetwork.Value()) {
    survey().DatabasePath = txtpath.Text;
    remembered_path_ = txtpath.Text;
  }
  if (survey().DatabasePath.empty()) {
    boxes().UserMessage("Please select a database to continue.");
    return;
  }
  if (!chkNew.Value() && !CareForChosenDatabase(host(), data_folder_)) return;
  SaveRegistry();
  host().Show("frmSelectCollege");
  host().Unload(*this);
}

}  // namespace survey
