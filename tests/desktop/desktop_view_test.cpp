#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>

#include "desktop/qt_dialogs.h"
#include "desktop_fixture.h"

namespace survey::testing {
namespace {

constexpr char kUnsaved[] =
    "You have NOT saved your data. Are you sure you want to exit without saving?";

TEST_F(DesktopTest, TheFirstFormAnswersAndEndsByItsCloseBox) {
  desktop_->host().Start("frmSelectDatabase");
  EXPECT_EQ(desktop_->view().window().windowTitle(), "Corvale Annual Survey 2012 (Ostrel)");
  ExpectBox("User Message", "You have no existing databases on this computer.");
  user_->Click("chkExisting");
  EXPECT_FALSE(user_->The<QCheckBox>("chkExisting").isChecked());

  user_->Click("chkNew");
  EXPECT_FALSE(user_->Find("lstFiles").isEnabled());
  EXPECT_EQ(ColorOf("cmdContinue"), QColor(Qt::yellow));
  EXPECT_EQ(user_->Find("cmdContinue").palette().color(QPalette::ButtonText), QColor(Qt::black));
  EXPECT_EQ(&user_->Focus(), &user_->Find("cmdContinue"));
  user_->Click("chNetwork");
  EXPECT_FALSE(user_->The<QCheckBox>("chkNew").isChecked());
  user_->Click("chNetwork");
  EXPECT_NE(ColorOf("cmdContinue"), QColor(Qt::yellow));
  desktop_->view().window().close();
  EXPECT_TRUE(ended_);
  EXPECT_FALSE(desktop_->view().window().isVisible());
}

TEST_F(DesktopTest, ANewDatabaseIsNamedInADialogOfItsOwn) {
  desktop_->host().Start("frmSelectDatabase");
  user_->Click("chkNew");
  user_->OnDialog([this](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Create New Database");
    EXPECT_EQ(&user_->Focus(), &user_->Find("txtDatabaseName"));
    ExpectBox("Corvale Annual Survey", "Please enter a Database name.", false);
    user_->Click("cmdOk");
    EXPECT_EQ(&user_->Focus(), &user_->Find("txtDatabaseName"));
    // ENTER goes on to the button, and presses it.
    user_->Type("Free");
    user_->Press(Qt::Key_Return);
    user_->Press(Qt::Key_Enter);
  });
  user_->Press(Qt::Key_Return);
  EXPECT_EQ(Front(), "frmSelectCollege");
  EXPECT_TRUE(std::filesystem::exists(folder_.path() / "Data2012" / "Free.mdb"));
}

TEST_F(DesktopTest, ADialogLeftByItsCloseBoxMakesNoDatabase) {
  desktop_->host().Start("frmSelectDatabase");
  user_->Click("chkNew");
  user_->OnDialog([](QWidget& dialog) { dialog.close(); });
  ExpectBox("User Message", "Please select a database to continue.");
  user_->Click("cmdContinue");
  EXPECT_TRUE(ended_);
}

TEST_F(DesktopTest, ASiteIsChosenByProvinceCollegeAndCampus) {
  OpenSiteAt("frmSelectCollege");
  EXPECT_EQ(ColorOf("cmdAdd"), QColor(Qt::yellow));
  user_->Click("cmdAdd");
  EXPECT_TRUE(user_->Find("cboProvince").isVisible());
  EXPECT_FALSE(user_->Find("cmdGeneral").isVisible()) << "its frame is hidden";
  user_->Click("optCampus");
  user_->Usable("cboProvince").setFocus();
  user_->Press(Qt::Key_Down);
  EXPECT_GT(user_->The<QComboBox>("cboCollege").count(), 0) << "colleges follow at once";
  user_->Choose("cboProvince", "Western Cape");
  EXPECT_EQ(user_->The<QComboBox>("cboCollege").currentIndex(), -1);
  user_->Choose("cboCollege", "Blouklip FET College");
  user_->Choose("cboCampus", "Duinekop Campus");
  EXPECT_EQ(user_->The<QLineEdit>("txtCamEmis").text(), "108107587");
  EXPECT_TRUE(user_->The<QLineEdit>("txtCamEmis").isReadOnly());

  user_->Usable("cmdContinue").setFocus();
  user_->Press(Qt::Key_Return);
  EXPECT_FALSE(user_->Find("cboProvince").isVisible());
  EXPECT_TRUE(user_->Find("cmdLearner(7)").isVisible());
  EXPECT_EQ(&user_->Focus(), &user_->Find("cmdGeneral")) << "where the menu begins";
}

TEST_F(DesktopTest, AnUnsavedPageAsksBeforeItIsLeft) {
  OpenSiteAt("frmPage3");
  EXPECT_NE(ColorOf("cmdSave"), QColor(Qt::yellow));
  user_->Type("25");
  user_->Press(Qt::Key_Return);
  EXPECT_EQ(ColorOf("cmdSave"), QColor(Qt::yellow));
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    user_->OnDialog([&](QWidget& dialog) {
      const auto& box = dynamic_cast<QMessageBox&>(dialog);
      EXPECT_EQ(box.windowTitle(), "Data has NOT been Saved");
      EXPECT_EQ(box.text(), kUnsaved);
      EXPECT_FALSE(box.iconPixmap().isNull());
      user_->Press(key);  // both are No
    });
    user_->Click("cmdMenu");
    EXPECT_EQ(Front(), "frmPage3");
    EXPECT_EQ(user_->CellText("gridEnrolment", 7, 3), "25");
  }
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
  const auto progress = dialogs.BeginProgress("");
  progress->Step(0, 2, text.toStdString());
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == "Progress") expect_whole(*window);
  }
}

TEST_F(DesktopTest, SavingAndLeavingTakeWhatIsStillBeingTyped) {
  OpenSiteAt("frmPage3");
  user_->Type("31");
  user_->Press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_NE(ColorOf("cmdSave"), QColor(Qt::yellow));
  EXPECT_EQ(&user_->Focus(), &user_->Find("gridEnrolment")) << "typing goes on where it was";
  user_->Press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Front(), "frmPage5");
  user_->Type("7");
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

TEST_F(DesktopTest, AboutShowsTheWholeDisclaimerAndClosesByEsc) {
  OpenSiteAt("frmMainMenu");
  user_->OnDialog([this](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "About Corvale Annual Survey");
    EXPECT_EQ(dialog.findChild<QScrollArea*>()->verticalScrollBar()->maximum(), 0);
    user_->Press(Qt::Key_Escape);
  });
  user_->Click("cmdDisclaimer");
  EXPECT_EQ(Front(), "frmMainMenu");
  EXPECT_FALSE(ended_);
}

}  // namespace
}  // namespace survey::testing
