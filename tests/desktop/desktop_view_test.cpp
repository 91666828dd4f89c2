#include <QLabel>

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
    // ENTER goes on to the button, and presses it.
    user_->Type("Free");
    user_->Press(Qt::Key_Return);
    user_->Press(Qt::Key_Enter);
  });
  user_->Press(Qt::Key_Return);
  EXPECT_EQ(Front(), "frmSelectCollege");
  EXPECT_TRUE(std::filesystem::exists(folder_.path() / "Data2012" / "Free.mdb"));
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

}  // namespace
}  // namespace survey::testing
