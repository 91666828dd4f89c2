#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include "desktop_fixture.h"

namespace survey::testing {
namespace {

// One control of each kind that no form of the program has in this state.
class SampleForm : public Form {
 public:
  explicit SampleForm(FormHost& host) : Form(host, "frmSample", "Sample") {
    txtDigits.takes_key = [](char32_t key) { return key >= U'0' && key <= U'9'; };
    cboSearch.on_key_press = [this](char32_t key) {
      typed += static_cast<char>(key);
      const std::string start =
          cboSearch.Text().substr(0, cboSearch.SelectionStart) + static_cast<char>(key);
      cboSearch.DroppedDown = true;
      for (int i = 0; i < static_cast<int>(cboSearch.items().size()); ++i) {
        if (!cboSearch.items()[i].text.starts_with(start)) continue;
        cboSearch.SetListIndex(i);
        cboSearch.SelectionStart = static_cast<int>(start.size());
        cboSearch.SelectionLength =
            static_cast<int>(cboSearch.Text().size()) - cboSearch.SelectionStart;
        return;
      }
    };
    cboSearch.on_edit = [this] { cboSearch.SetListIndex(1); };
    cboChoice.on_got_focus = [this] { cboChoice.BackColor = kWhite; };
    cmdCount.on_click = [this] { ++clicks; };
    cmdCount.on_key_down = [this] { ++keys; };
    lstNames.on_click = [this] { SetFocus(cmdCount); };
  }
  Layout Arrange() override {
    return ColumnOf(
        {FieldsOf({{lblDigits, txtDigits}, {lblSearch, cboSearch}, {lblChoice, cboChoice}}),
         RowOf({Place(optYes), Place(optNo)}), Place(lstNames), Place(cmdCount)});
  }

  Label lblDigits{*this, "lblDigits", "Digits:"};
  TextBox txtDigits{*this, "txtDigits", ""};
  Label lblSearch{*this, "lblSearch", "Search"};
  ComboBox cboSearch{*this, "cboSearch", "Search"};
  Label lblChoice{*this, "lblChoice", "Choice"};
  ComboBox cboChoice{*this, "cboChoice", ""};
  OptionButton optYes{*this, "optYes", "Yes", "answer"};
  OptionButton optNo{*this, "optNo", "No", "answer"};
  ListBox lstNames{*this, "lstNames", "Names"};
  Button cmdCount{*this, "cmdCount", "Count"};
  std::string typed;
  int clicks = 0;
  int keys = 0;

 protected:
  void Form_Load() override {
    for (int i = 0; i < 10000; ++i) cboSearch.AddItem(std::to_string(100000 + i) + " entry", i);
    for (const char* name : {"first", "second", "third"}) {
      cboChoice.AddItem(name, 0);
      lstNames.AddItem(name);
    }
    cboChoice.SetText("not in the list");
    cboChoice.BackColor = kYellow;
  }
};

class ControlViewTest : public DesktopTest {
 protected:
  ControlViewTest() {
    desktop_->host().Register("frmSample",
                              [](FormHost& host) { return std::make_unique<SampleForm>(host); });
    desktop_->host().Start("frmSample");
  }
  SampleForm& sample() { return dynamic_cast<SampleForm&>(desktop_->host().Get("frmSample")); }
};

TEST_F(ControlViewTest, ATextBoxTakesWhatItsControlTakesAndKeepsTheCursor) {
  auto& line = user_->The<QLineEdit>("txtDigits");
  EXPECT_EQ(line.accessibleName(), "Digits") << "as the label beside it says";
  QSignalSpy changes(&line, &QLineEdit::textChanged);
  user_->Type("1x9");
  EXPECT_EQ(line.text(), "19");
  EXPECT_EQ(changes.count(), 2) << "a refused letter is not heard to come and go";
  line.setCursorPosition(1);
  user_->Type("y23z");
  EXPECT_EQ(sample().txtDigits.Text, "1239");
  EXPECT_EQ(line.cursorPosition(), 3);
  user_->Press(Qt::Key_Backspace);
  EXPECT_EQ(line.text(), "1239") << "this box does not take the backspace";
  user_->Press(Qt::Key_Delete);
  EXPECT_EQ(line.text(), "123");
}

TEST_F(ControlViewTest, TypingAheadShowsTheTextAndSelectionOfTheControl) {
  const QLineEdit& line = *user_->The<QComboBox>("cboSearch").lineEdit();
  user_->Usable("cboSearch").setFocus();
  user_->Type("1000");
  EXPECT_EQ(sample().typed, "1000");
  EXPECT_EQ(line.text(), "100000 entry");
  EXPECT_EQ(line.selectedText(), "00 entry");
  EXPECT_TRUE(user_->The<QComboBox>("cboSearch").view()->isVisible());
  EXPECT_FALSE(sample().cboSearch.DroppedDown);
  user_->Press(Qt::Key_Backspace);
  EXPECT_EQ(line.text(), "100001 entry") << "what editing does to the line is the control's choice";
  sample().cboSearch.SelectionStart = 3;
  QInputMethodEvent composed;
  composed.setCommitString("9");
  QCoreApplication::sendEvent(&user_->Find("cboSearch"), &composed);
  EXPECT_EQ(line.text(), "100900 entry");
  user_->Type("x");
  EXPECT_EQ(line.text(), "100900 entry") << "a character that leads nowhere is dropped";
  user_->Press(Qt::Key_Return);
  EXPECT_EQ(sample().cboSearch.ListIndex(), 900);
  EXPECT_EQ(line.selectedText(), "100900 entry") << "what is typed now begins anew";
  EXPECT_EQ(line.cursorPosition(), 0) << "and the beginning stays in sight";
  user_->Type("10");
  EXPECT_EQ(line.text(), "100000 entry");
  user_->Press(Qt::Key_Tab);
  EXPECT_FALSE(user_->The<QComboBox>("cboSearch").view()->isVisible());
  EXPECT_EQ(&user_->Focus(), &user_->Find("cboChoice"));
}

TEST_F(ControlViewTest, AListToChooseFromKeepsItsTextUntilOneIsChosen) {
  auto& box = user_->The<QComboBox>("cboChoice");
  EXPECT_EQ(box.palette().color(QPalette::Button), QColor(Qt::yellow));
  user_->Focus();
  box.setFocus();
  EXPECT_NE(box.palette().color(QPalette::Button), QColor(Qt::yellow));
  user_->Type("st");
  QWheelEvent wheel(QPointF(5, 5), box.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&box, &wheel);
  EXPECT_EQ(sample().cboChoice.Text(), "not in the list");
  user_->Press(Qt::Key_Down);
  EXPECT_EQ(sample().cboChoice.Text(), "first");
  user_->Choose("cboChoice", "third");
  EXPECT_EQ(sample().cboChoice.Text(), "third");
  user_->Press(Qt::Key_F4);
  user_->Type("SE");  // in the open list it finds
  user_->Press(Qt::Key_Tab);
  EXPECT_EQ(sample().cboChoice.Text(), "second");
  EXPECT_EQ(&user_->Focus(), &user_->Find("optYes"));
}

TEST_F(ControlViewTest, ListsAndButtonsWorkByKeyAndDisabledOnesDoNot) {
  user_->Usable("lstNames").setFocus();
  user_->Press(Qt::Key_Down);
  EXPECT_EQ(sample().lstNames.SelectedText(), "first");
  ASSERT_EQ(&user_->Focus(), &user_->Find("cmdCount")) << "where code put it";
  user_->Press(Qt::Key_Return);
  user_->Press(Qt::Key_Space);
  EXPECT_EQ(sample().clicks, 2);
  EXPECT_EQ(sample().keys, 2);
  user_->ClickEntry("lstNames", "third");
  EXPECT_EQ(sample().lstNames.ListIndex(), 2);
  const auto& list = user_->The<QListView>("lstNames");
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.viewport()->rect().bottomRight());
  EXPECT_TRUE(list.selectionModel()->hasSelection()) << "still, after a click below the entries";

  sample().lstNames.Clear();
  sample().lstNames.AddItem("only");
  desktop_->view().Refresh();
  user_->Usable("lstNames").setFocus();
  user_->Press(Qt::Key_Down);
  EXPECT_EQ(sample().lstNames.ListIndex(), 0) << "also where the key has nowhere to go";

  sample().cmdCount.Enabled = false;
  sample().lstNames.Clear();
  desktop_->view().Refresh();
  EXPECT_THROW(user_->Click("cmdCount"), Mismatch);
  EXPECT_EQ(list.model()->rowCount(), 0);
}

}  // namespace
}  // namespace survey::testing
