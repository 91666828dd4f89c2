#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>

#include "desktop/qt_dialogs.h"
#include "desktop_fixture.h"

namespace survey::testing {
namespace {

constexpr char kUnsaved[] =
    "You have NOT saved your data. Are you sure you want to exit without saving?";

TEST_F(DesktopTest, ANewDatabaseIsNamedInADialogOfItsOwn) {
  desktop_->host().Start("frmSelectDatabase");
  user_->Click("chkNew");
  user_->OnDialog([this](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Create New Database");
    EXPECT_EQ(&user_->Focus(), &user_->Find("txtDatabaseName"));
    ExpectBox("Corvale Annual Survey", "Please enter a Database name.", false);
    user_->Click("cmdOk");
    EXPECT_EQ(&user_->Focus(), &user_->Find("txtDatabaseName"));
    user_->Press(Qt::Key_Escape);  // its Exit would end the program
    EXPECT_TRUE(dialog.isVisible());
    // ENTER goes on to the button, and presses it.
    user_->Type("Free");
    user_->Press(Qt::Key_Return);
    user_->Press(Qt::Key_Enter);
  });
  user_->Press(Qt::Key_Return);
  EXPECT_EQ(Front(), "frmSelectCollege");
  EXPECT_TRUE(std::filesystem::exists(folder_.path() / "Data2012" / "Free.mdb"));
}

TEST_F(DesktopTest, BoxesShowTextsAsTheyAre) {
  const QString text = "Smith & Jones <b>x</b>  AB && <";
  QtDialogs dialogs([] { return nullptr; });
  const auto expect_whole = [&](QWidget& dialog) {
    int shown = 0;
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
      if (label->text() != text) continue;
      ++shown;
      EXPECT_GE(label->sizeHint().width(), label->fontMetrics().horizontalAdvance(text));
      EXPECT_EQ(label->buddy(), nullptr) << "whose letters would be underlined";
    }
    EXPECT_EQ(shown, 1);
    dialog.close();
  };
  user_->OnDialog(expect_whole);
  MessageBox box;
  box.prompt = text.toStdString();
  dialogs.ShowMessage(box);
  user_->OnDialog(expect_whole);
  dialogs.InputBox(text.toStdString(), "");
  const auto progress = dialogs.BeginProgress("Print");
  QProgressDialog* dialog = nullptr;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* found = qobject_cast<QProgressDialog*>(window)) dialog = found;
  }
  ASSERT_NE(dialog, nullptr);
  EXPECT_TRUE(progress->Step(0, 20, "Page 1"));
  EXPECT_FALSE(dialog->isVisible()) << "for a job that may soon be done";
  dialog->setMinimumDuration(0);
  EXPECT_TRUE(progress->Step(1, 20, text.toStdString()));
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(dialog->value(), 1);
  dialog->findChild<QPushButton*>()->click();
  EXPECT_FALSE(progress->Step(2, 20, text.toStdString())) << "the user has stopped it";
  expect_whole(*dialog);
}

TEST_F(DesktopTest, SavingAndLeavingTakeWhatIsStillBeingTyped) {
  OpenSiteAt("frmPage3");
  user_->Type("31");
  user_->Press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_NE(ColorOf("cmdSave"), QColor(Qt::yellow));
  EXPECT_EQ(&user_->Focus(), &user_->Find("gridEnrolment")) << "typing goes on where it was";
  DoubleClick(user_->Find("cmdNext"), [this] { return &user_->Find("cmdNext"); }, {9, 9});
  EXPECT_EQ(Front(), "frmPage5") << "and not a page further";
  user_->Press(Qt::Key_PageUp, Qt::ControlModifier);
  user_->Press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Front(), "frmPage5");
  user_->Type("7");
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    user_->OnDialog([this, key](QWidget&) { user_->Press(key); });  // both are No
    user_->Press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(Front(), "frmPage5");
    EXPECT_EQ(ColorOf("cmdSave"), QColor(Qt::yellow));
  }
  ExpectBox("Data has NOT been Saved", kUnsaved, true, "Yes");
  user_->Press(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(user_->CellText("gridEnrolment", 7, 3), "31");
  user_->Type("32");
  user_->Click("cmdSave");
  user_->Press(Qt::Key_M, Qt::ControlModifier);
  user_->Click("cmdLearner(7)");
  EXPECT_EQ(user_->CellText("gridEnrolment", 7, 3), "32");
  user_->Type("99");
  user_->Press(Qt::Key_Return);
  desktop_->view().window().close();  // asks nothing
  EXPECT_TRUE(ended_);
}

TEST_F(DesktopTest, ADoubleClickInAListGoesOnToWhatIsChosen) {
  OpenSiteAt("frmSelectEducator");
  for (const char* statement :
       {"insert into tbl_StaffDetail(CollegeEmisNumber,CampusEmisNumber,IDNumber,Surname)values("
        "199010830,108107587,'7501','Adams')",
        "update tbl_GeneralInformation set SurveyYear = '2012' where CampusEmisNumber = 108107587"})
    survey().Execute(statement);
  survey().EndStatements();
  std::filesystem::create_directory(folder_.path() / "Data2012");
  std::filesystem::copy_file(folder_.path() / "site.mdb", folder_.path() / "Data2012/North.mdb");
  desktop_->host().Start("frmSelectDatabase");
  user_->Click("chkExisting");
  DoubleClickList("lstFiles");
  ASSERT_EQ(Front(), "frmSelectCollege");
  DoubleClickList("gridcollege");
  ASSERT_EQ(Front(), "frmMainMenu");
  user_->Click("cmdStaff");
  DoubleClickList("gridEducator");
  ASSERT_EQ(Front(), "frmEducatorData");
  EXPECT_EQ(user_->CellText("gridgeneral", 2, 7), "7501");
  user_->Click("cmdPrevious");
  EXPECT_EQ(&user_->Focus(), &user_->Find("gridEducator")) << "back where staff are chosen";
}

TEST_F(DesktopTest, BrowsingBeginsInTheDataFolderAndAnswersInTheProgramsWords) {
  desktop_->host().Start("frmSelectDatabase");
  user_->OnDialog([this](QWidget& dialog) {
    auto& files = dynamic_cast<QFileDialog&>(dialog);
    EXPECT_EQ(files.directory(), QDir(folder_.path() / "Data2012"));
    auto* name = files.findChild<QLineEdit*>("fileNameEdit");
    EXPECT_EQ(name->text(), "");
    name->setText("nowhere");
    QTest::keyClick(name, Qt::Key_Return);
  });
  user_->OnBox([](QMessageBox& box) { EXPECT_TRUE(box.text().contains("Database Access Error")); },
               "OK");
  ExpectBox("User Message", "The database you have selected is not the correct database.");
  user_->Click("cmdBrowse");
  EXPECT_EQ(user_->The<QLineEdit>("txtpath").text(), "");
}

TEST_F(DesktopTest, EscInADialogPressesItsCancelWithItsQuestion) {
  OpenSiteAt("frmPage12_1");
  user_->OnDialog([this](QWidget& dialog) {
    user_->Type("txtTitle", "Bee keeping");
    for (const char* answer : {"No", "Yes"}) {
      EXPECT_TRUE(dialog.isVisible());
      ExpectBox("Data has NOT been Saved", kUnsaved, true, answer);
      user_->Press(Qt::Key_Escape);
    }
    EXPECT_FALSE(dialog.isVisible());
  });
  user_->Click("cmdAdd");
  user_->Press(Qt::Key_M, Qt::ControlModifier);
  user_->OnDialog([this](QWidget&) { user_->Press(Qt::Key_Escape); });
  user_->Click("cmdDisclaimer");
  EXPECT_EQ(Front(), "frmMainMenu");
}

TEST_F(DesktopTest, ENTERSearchesASubjectAndATextTicksTheBoxBesideIt) {
  OpenSiteAt("frmEducatorTeaching");
  user_->Type("txtSearch", "no such subject");
  ExpectBox("User Message", "The subject could not be located");
  user_->Press(Qt::Key_Return);
  desktop_->host().Start("frmHostels");
  user_->ClickCell("gridSETA", 2, 3);
  EXPECT_EQ(user_->CellText("gridSETA", 3, 3), "1");
  desktop_->host().Start("frmLecQualifications1");
  const auto& table = user_->The<GridView>("gridQual");
  QTest::mouseClick(table.verticalHeader()->viewport(), Qt::LeftButton, {},
                    {table.verticalHeader()->width() / 2, table.rowViewportPosition(2) + 5});
  EXPECT_EQ(user_->CellText("gridQual", 3, 3), "1");
}

}  // namespace
}  // namespace survey::testing
