// What is typed is what is stored: entries, ways through the tables, and taking back.

#include "tables_fixture.h"

namespace survey::testing {
namespace {

using ::testing::HasSubstr;
using TableEntryTest = TablesTest;

constexpr char kNo[] = "";
struct TypedText {
  const char* text;
  const char* held[kKinds];  // by the cells of kKindsDesign; kNo where they refuse it
};
// clang-format off
const TypedText kTyped[] = {
    {"1,5",            {kNo,    "1.5",    kNo,          "1,5",          kNo,          "1,5"}},
    {"1 234",          {"1234", "1234",   "1234",       "1 234",        kNo,          "1 234"}},
    {"-3",             {kNo,    "-3",     kNo,          "-3",           kNo,          "-3"}},
    {"12a",            {kNo,    kNo,      kNo,          "12A",          kNo,          "12a"}},
    {"2.5555",         {kNo,    kNo,      kNo,          "2.5555",       kNo,          "2.5555"}},
    {"(011) 765-4321", {kNo,    kNo,      "0117654321", kNo,            kNo,          kNo}},
    {"1975-03-09",     {kNo,    kNo,      "19750309",   "1975-03-09",   "1975/03/09", "1975-03-09"}},
};
// clang-format on

TEST_F(TableEntryTest, WhatIsTypedOrPastedIsTakenWholeOrNotAtAll) {
  QLocale::setDefault(QLocale::French);
  for (const auto& [text, held] : kTyped) {
    for (int row = 1; row <= kKinds; ++row) {
      SCOPED_TRACE(std::string(text) + " in row " + std::to_string(row));
      const std::string wanted = held[row - 1];
      Go(row, "before");
      user_->Type(text);
      const QString typed = row == 4 ? QString(text).toUpper() : QString(text);
      ASSERT_EQ(Editor()->text(), typed) << "no key is dropped";
      user_->Press(Qt::Key_Return);
      if (wanted == kNo) {
        ASSERT_NE(Editor(), nullptr);
        EXPECT_EQ(Editor()->selectedText(), typed);
        EXPECT_TRUE(IsRed());
        EXPECT_THAT(Note(), HasSubstr("Enter "));
        user_->Press(Qt::Key_Escape);
        EXPECT_EQ(Note(), "");
      }
      EXPECT_EQ(Editor(), nullptr);
      EXPECT_EQ(At(row), wanted == kNo ? "before" : wanted);
      Go(row, "before");
      Paste(text);
      EXPECT_EQ(At(row), wanted == kNo ? "before" : wanted);
      EXPECT_EQ(Note().empty(), wanted != kNo) << Note();
    }
  }
  QLocale::setDefault(QLocale::C);
  EXPECT_EQ(form().saves, 0);
}

TEST_F(TableEntryTest, AnImpossibleTextIsToldAtOnceAndUntilItIsPutRight) {
  Go(1, "12");
  user_->Type("1");
  EXPECT_FALSE(IsRed());
  user_->Type(",5");
  EXPECT_TRUE(IsRed());
  EXPECT_EQ(Note(), "Enter a whole number from 0 to 99999.");
  EXPECT_EQ(Editor()->accessibleDescription().toStdString(), Note());
  user_->Press(Qt::Key_End);
  user_->Press(Qt::Key_Backspace);
  EXPECT_TRUE(IsRed());
  user_->Press(Qt::Key_Backspace);
  EXPECT_FALSE(IsRed());
  EXPECT_EQ(Note(), "");
  Undo();  // of the line alone
  EXPECT_THAT(Editor()->text().toStdString(), HasSubstr(","));
  Editor()->selectAll();
  Paste("15\r\n");
  user_->Press(Qt::Key_Return);
  EXPECT_EQ(At(1), "15");
  // Only the end can tell that a date is too short.
  Go(5, "");
  user_->Type("1975-03");
  EXPECT_FALSE(IsRed());
  user_->Press(Qt::Key_Tab);
  EXPECT_TRUE(IsRed());
  EXPECT_THAT(Note(), HasSubstr("yyyy/mm/dd"));
  // And the window may go while it is open.
}

TEST_F(TableEntryTest, NoWayLeadsOutOfAnImpossibleText) {
  const auto click = [](QWidget* widget, QPoint place = {9, 9}) {
    return [=] { QTest::mouseClick(widget, Qt::LeftButton, {}, place); };
  };
  const auto press = [this](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    return [=, this] { user_->Press(key, modifiers); };
  };
  GridView& counts = Table("counts");
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"ENTER", press(Qt::Key_Return)},
      {"Shift+ENTER", press(Qt::Key_Enter, Qt::ShiftModifier)},
      {"TAB", press(Qt::Key_Tab)},
      {"Shift+TAB", press(Qt::Key_Backtab, Qt::ShiftModifier)},
      {"Up", press(Qt::Key_Up)},
      {"Left", press(Qt::Key_Left)},
      {"Page down", press(Qt::Key_PageDown)},
      {"key of Save", press(Qt::Key_S, Qt::ControlModifier)},
      {"Save", click(&user_->Find("cmdSave"))},
      {"Next", [&] { user_->The<QPushButton>("cmdNext").click(); }},
      {"check box", click(&user_->Find("chkOther"))},
      {"text box", click(&user_->Find("txtOther"))},
      {"blank", click(&user_->Front(), {3, 3})},
      {"cell", click(Table("kinds").viewport())},
      {"label", click(Table("kinds").verticalHeader()->viewport())},
      {"other table", click(counts.viewport())},
      {"other head", click(counts.horizontalHeader()->viewport())},
      {"code", [&] { counts.setFocus(); }}};
  for (const auto& [name, leave] : ways) {
    SCOPED_TRACE(name);
    Go(3, "011");
    user_->Type("1x");
    leave();
    QApplication::processEvents();
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(QApplication::focusWidget(), Editor());
    EXPECT_EQ(Editor()->selectedText(), "1x");
    EXPECT_THAT(Note(), HasSubstr("Enter digits"));
    EXPECT_EQ(form().kinds.ActiveRow(), 3);
    EXPECT_EQ(form().saves, 0);
    EXPECT_EQ(Counts(), ",,,;,,,;");
    user_->Press(Qt::Key_Escape);
    EXPECT_EQ(At(3), "011");
  }
  // What can stand goes with any of them.
  Go(3, "");
  user_->Type("7");
  user_->Click("cmdSave");
  EXPECT_EQ(At(3), "7");
  Go(3, "7");
  user_->Type("8");
  click(counts.viewport(), Place(counts, 2, 2).center())();
  EXPECT_EQ(QApplication::focusWidget(), &counts);
  EXPECT_EQ(form().counts.ActiveColumn(), 2);
  EXPECT_EQ(form().saves, 1);
}

TEST_F(TableEntryTest, EnterRunsOnThroughTheTablesToSaveAndBack) {
  Go(5, "");
  for (const char* text : {"", "END", "1", "2", "", "3", "4"}) {
    user_->Type(text);
    user_->Press(Qt::Key_Return);
  }
  EXPECT_EQ(At(6), "END");
  EXPECT_EQ(Counts(), "1,2,,3;3,4,,7;");
  EXPECT_EQ(form().counts.ActiveColumn(), 3);
  user_->Press(Qt::Key_Return);
  EXPECT_EQ(&user_->Focus(), &user_->Find("cmdSave"));
  EXPECT_TRUE(desktop_->view().window().testAttribute(Qt::WA_KeyboardFocusChange)) << "its ring";
  user_->Type("9");
  EXPECT_EQ(Counts(), "1,2,,3;3,4,,7;");
  form().keys = 0;
  user_->Press(Qt::Key_Shift);
  user_->Press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(form().keys, 0);
  EXPECT_EQ(form().saves, 0);
  user_->Press(Qt::Key_Return, Qt::ShiftModifier);
  user_->Type("5");
  for (int i = 0; i < 4; ++i) user_->Press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(Counts(), "1,2,,3;3,5,,8;");
  user_->Press(Qt::Key_Return, Qt::ShiftModifier);
  user_->Type("LAST");
  user_->Press(Qt::Key_Return);
  EXPECT_EQ(At(6), "LAST");
  EXPECT_EQ(&user_->Focus(), &Table("counts"));
}

TEST_F(TableEntryTest, WhatWasDoneIsTakenBackAndDoneAgain) {
  Table("counts").setFocus();
  user_->Type("1");
  user_->Press(Qt::Key_Return);
  user_->ClickCell("counts", 1, 2);
  user_->Press(Qt::Key_Down, Qt::ShiftModifier);
  user_->Press(Qt::Key_Right, Qt::ShiftModifier);
  Paste("5");  // into all of the selection
  user_->Press(Qt::Key_Delete);
  user_->ClickCell("counts", 2, 2);
  user_->Press(Qt::Key_Right);
  user_->Press(Qt::Key_Space);
  Go(6, "");  // in another table of the form; nothing is written
  user_->Type("w");
  user_->Press(Qt::Key_Return);
  const char* const states[] = {",,1,;,,,;", ",,,;,,,;", "5,5,,10;5,5,,10;", "1,,,1;,,,;",
                                ",,,;,,,;"};
  form().cmdSave.BackColor = kButtonFace;
  Undo();
  EXPECT_EQ(At(6), "");
  EXPECT_EQ(&user_->Focus(), &Table("kinds")) << "where it was done";
  EXPECT_EQ(form().cmdSave.BackColor, kYellow);
  for (std::size_t i = 0; i < std::size(states); ++i) {
    EXPECT_EQ(Counts(), states[i]);
    Undo();  // the last time of nothing
  }
  EXPECT_EQ(&user_->Focus(), &Table("counts"));
  for (std::size_t i = std::size(states); i-- > 0;) {
    EXPECT_EQ(Counts(), states[i]);
    i % 2 == 0 ? Redo() : user_->Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  }
  EXPECT_EQ(At(6), "w");
  form().counts.SetText(1, 2, "8");
  Undo();
  EXPECT_EQ(At(6), "w") << "code has written";
}

TEST_F(TableEntryTest, HeadsThatAreNotLockedTakeTypingAndArePassedOver) {
  OpenSiteAt("frmStudentTotal");
  const Grid& grid = desktop_->host().Get("frmStudentTotal").Find<GridControl>("gridEnrolment");
  user_->ClickCell("gridEnrolment", 3, 2);
  user_->Type("Figures");
  user_->Press(Qt::Key_Return);
  EXPECT_EQ(grid.GetText(3, 2), "Figures");
  EXPECT_EQ(ColorOf("cmdSave"), QColor(Qt::yellow));
  EXPECT_EQ(Cell(grid.ActiveColumn(), grid.ActiveRow()), Cell(3, 4));
  user_->Click("cmdSave");
  user_->Click("cmdNext");
  user_->Click("cmdPrevious");
  EXPECT_EQ(grid.GetText(3, 2), "Report 191") << "never stored";
}

}  // namespace
}  // namespace survey::testing
