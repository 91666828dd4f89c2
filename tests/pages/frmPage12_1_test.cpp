#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr char kPage[] = "frmPage12_1";
const std::string kInsert =
    "INSERT INTO tbl_StudentRegistrationOccupational(CollegeEMISNumber,CampusEmisNumber,NQFID,"
    "Quantity,Surveyyear)VALUES";
constexpr char kRows[] =
    "select NQFID || ' ' || Quantity || ' ' || SurveyYear as r from "
    "tbl_StudentRegistrationOccupational";

class Page12_1 : public PageTest {
 protected:
  Page12_1() : PageTest(kPage, "gridPage12_2") {
    RunScript(
        "delete from lst_OccupationalQualification; insert into lst_OccupationalQualification("
        "NQFID, QualificationTitle, NQFField, NQFLevel) values "
        "(300, '\xc3\x89t\xc3\xa9', 12, 'Level 2'), (100, 'Aquaculture', 1, 'Level 3'),"
        "(1250, 'baking', 6, 'Level 4'), (125, 'Baking', 6, 'Level 4'), (555, 'Old five', 3, '5'),"
        "(666, 'Old six', 3, '6'), (777, 'Old seven', 3, '7'), (888, 'Old eight', 3, '8'),"
        "(900, 'No field', null, 'Level 2'), (901, 'Field nought', 0, 'Level 2')");
    Reopen();
  }
  ComboBox& Select() { return The<ComboBox>(kPage, "cboSelect"); }
  void Pick(int id) {
    const auto& items = Select().items();
    const auto item = std::ranges::find(items, id, &ListItem::item_data);
    ASSERT_NE(item, items.end()) << id << " is not offered";
    Select().Choose(static_cast<int>(item - items.begin()));
  }
  void Take(int id) {
    Pick(id);
    Click("cmdOK");
  }
  std::string Line(int row) {
    return Shown({{3, row}, {4, row}, {5, row}, {6, row}, {7, row}, {8, row}});
  }
};

TEST_F(Page12_1, OffersThoseOfAFieldByIdAndTypingSelectsTheFirstThatBeginsSo) {
  std::string offered;
  for (const ListItem& item : Select().items()) offered += item.text + ";";
  EXPECT_EQ(offered,
            "100 Aquaculture;125 Baking;300 \xc3\x89t\xc3\xa9;555 Old five;666 Old six;"
            "777 Old seven;888 Old eight;1250 baking;");
  // From where to where is marked before (-1: as it was left), the keys, and what is seen then.
  const std::tuple<int, int, const char*, const char*> steps[] = {
      {-1, 0, "1", "100 Aquaculture 1+14"},
      {-1, 0, "250 BA", "1250 baking 7+4"},
      {-1, 0, "x", "1250 baking 7+4"},  // begins nothing: swallowed
      {2, 9, "5", "125 Baking 3+7"},
      {3, 0, "7", "125 Baking 3+0"},  // nothing marked: goes on behind the whole line
      {0, 10, "300 ", "300 \xc3\x89t\xc3\xa9 4+3"},
      {5, 2, "T", "300 \xc3\x89t\xc3\xa9 6+1"}};
  for (const auto& [start, length, keys, seen] : steps) {
    if (start >= 0) {
      Select().SelectionStart = start;
      Select().SelectionLength = length;
    }
    for (const char key : std::string_view(keys)) Select().KeyPress(static_cast<char32_t>(key));
    EXPECT_EQ(Select().Text() + " " + std::to_string(Select().SelectionStart) + "+" +
                  std::to_string(Select().SelectionLength),
              seen);
    EXPECT_TRUE(Select().DroppedDown && Yellow("cmdOK"));
  }
  Select().KeyPress(U'\u00e9');  // changes the line, so the list is read anew
  EXPECT_EQ(Select().Text(), "");
  Pick(125);
  Select().Edit();
  EXPECT_EQ(Select().Text(), "");
}

TEST_F(Page12_1, OkEntersTheChoiceOnceAndAsksForOne) {
  Click("cmdOK");
  EXPECT_EQ(LastBox(), "Please select a qualification to continue.");
  Pick(300);
  statements.clear();
  Click("cmdOK");
  EXPECT_THAT(statements, ElementsAre("Select NQFID, QualificationTitle,NQFField,NQFLevel from "
                                      "lst_OccupationalQualification where nqfid = 300"));
  EXPECT_EQ(Line(3), "300|\xc3\x89t\xc3\xa9||12|Level 2|");
  EXPECT_FALSE(Unsaved() || Type(4, 3, "x") || Type(8, 3, "100000"));
  Type(8, 3, "9");
  EXPECT_TRUE(Unsaved());
  Take(300);
  EXPECT_EQ(LastBox(), "You have already entered this qualification");
  EXPECT_EQ(Line(4), "|||||");
  EXPECT_FALSE(Yellow("cmdOK"));
}

TEST_F(Page12_1, BareDigitLevelsTickAndUnlockAsEver) {
  int row = 3;
  for (const auto& [id, line, open] : {std::tuple{555, "555|1||3|5|", "o__"},
                                       {666, "666|Old six|1|3|6|", "_o_"},
                                       {777, "777|Old seven||1|7|", "__o"},
                                       {888, "888|Old eight||3|8|", "o_o"}}) {
    Take(id);
    EXPECT_EQ(Line(row), line);
    EXPECT_EQ(OpenIn(row++, 4, 6), open);
  }
  EXPECT_EQ(Shown({{4, 38}, {5, 38}, {6, 38}}), "1|1|10");
}

TEST_F(Page12_1, AFullGridAddsUpAndRefusesWithoutAWord) {
  for (int row = 3; row <= 36; ++row) Table().SetText(3, row, 5000 + row);
  for (int row = 3; row <= 37; ++row) Type(8, row, std::to_string(row));
  EXPECT_EQ(Shown({{7, 38}, {8, 38}}), "52|700");  // the first eight lines, and all
  for (const int id : {100, 125}) Take(id);
  EXPECT_EQ(Shown({{3, 37}, {3, 38}}), "100|");
  EXPECT_THAT(dialogs.seen, IsEmpty());
}

TEST_F(Page12_1, ALineIsRemovedByItsNumberWhateverThatIs) {
  const auto remove = [&](std::string_view number) {
    The<TextBox>(kPage, "txtRow").Enter(number);
    Click("cmdRemove");
  };
  remove("");
  EXPECT_EQ(LastBox(), "Please enter a grid line number between 1 and 20 to remove.");
  EXPECT_FALSE(Unsaved());
  Take(100);
  Take(125);
  remove("1");
  EXPECT_EQ(Shown({{3, 3}, {3, 4}}), "|125");  // nothing moves up
  EXPECT_TRUE(Unsaved());
  EXPECT_EQ(The<TextBox>(kPage, "txtRow").Text, "");
  Take(300);  // into the gap
  Type(8, 23, "5");
  for (const char* number : {"21", "99", "0"}) remove(number);
  EXPECT_EQ(At(3, 3) + " / " + Line(23) + " / " + Line(2), "300 / ||||| / |||||");
  EXPECT_THAT(dialogs.seen, IsEmpty());
  remove("abc");
  EXPECT_THAT(LastBox(), ToldBy(kPage, "cmdRemove"));
}

TEST_F(Page12_1, SavesEachLineWithAnIdAndLoadsThemById) {
  Take(300);
  Take(100);
  Fill(Table(), {{8, 3, "7"}, {8, 10, "55"}});  // of no qualification: not stored
  statements.clear();
  Save();
  EXPECT_THAT(statements,
              ElementsAre("DELETE * FROM tbl_StudentRegistrationOccupational WHERE "
                          "CampusEMISNumber = 202 and CollegeEMISNumber = 101",
                          kInsert + "(101,202,300,7,2012)", kInsert + "(101,202,100,0,2012)"));
  EXPECT_FALSE(Unsaved());
  // Of another year, of no known qualification, of another campus.
  StoreAll(kInsert, {"(101,202,125,3,2010", "(101,202,4711,3,2012", "(101,203,666,3,2012"});
  Reopen();
  EXPECT_EQ(Line(3), "100|Aquaculture||1|Level 3|0");
  EXPECT_EQ(Line(4), "125|Baking||6|Level 4|3");
  EXPECT_EQ(Shown({{3, 5}, {8, 5}, {3, 6}}), "300|7|");
  Save();
  EXPECT_THAT(Query(kRows), ElementsAre("666 3 2012", "100 0 2012", "125 3 2012", "300 7 2012"));
}

TEST_F(Page12_1, AChoiceThatWaitsForOkHoldsTheSaveBackButNotTheLeaving) {
  Take(100);
  Pick(125);
  Save();
  EXPECT_EQ(LastBox(),
            "Please click on the OK button to retrieve any previous data before continuing.");
  EXPECT_THAT(Query(kRows), IsEmpty());
  Click("cmdNext");
  EXPECT_EQ(Front(), "frmPage12_2");
  EXPECT_THAT(dialogs.seen, IsEmpty());
}

TEST_F(Page12_1, FailuresOfLinesAreSilentAndThoseOfTheCatalogueAreTold) {
  Take(100);
  Type(8, 3, "1");
  RunScript("drop table tbl_StudentRegistrationOccupational");
  Save();
  EXPECT_FALSE(Unsaved());
  Reopen();
  EXPECT_THAT(dialogs.seen, IsEmpty());
  EXPECT_EQ(Line(3), "|||||");
  Pick(125);
  RunScript("drop table lst_OccupationalQualification");
  Click("cmdOK");
  EXPECT_THAT(LastBox(), ToldBy(kPage, "cmdOK"));
}

TEST_F(Page12_1, LinesThatCouldNotBeReadAreNotReplaced) {
  const auto spoil = [this] {
    RunScript("alter table tbl_StudentRegistrationOccupational rename to gone");
  };
  const auto mend = [this] {
    RunScript("alter table gone rename to tbl_StudentRegistrationOccupational");
  };
  StoreAll(kInsert, {"(101,202,125,3,2012", "(101,202,300,7,2012"});
  spoil();
  Reopen();
  EXPECT_THAT(dialogs.seen, IsEmpty());
  Take(100);
  Type(8, 3, "1");
  Save();
  EXPECT_THAT(LastBox(), ToldBy(kPage, "SavePage Routine"));
  mend();
  Save();
  EXPECT_THAT(LastBox(), ::testing::HasSubstr("open the page anew"));
  EXPECT_TRUE(Unsaved());
  EXPECT_THAT(Query(kRows), ElementsAre("125 3 2012", "300 7 2012"));
  // Where nothing is stored there is nothing to lose, and a save is followed by another.
  spoil();
  Reopen();
  mend();
  Store("DELETE * FROM tbl_StudentRegistrationOccupational");
  for (const int id : {100, 125}) {
    Take(id);
    Save();
  }
  EXPECT_THAT(dialogs.seen, IsEmpty());
  EXPECT_THAT(Query(kRows), ElementsAre("100 0 2012", "125 0 2012"));
}

// The user in the dialog over the page: fills it (-1: leaves a list alone) and saves.
void SaveNew(Form& form, int field, const char* id, const char* title, int level) {
  if (field >= 0) form.Find<ComboBox>("cboField").Choose(field);
  form.Find<TextBox>("txtNQFID").Enter(id);
  form.Find<TextBox>("txtTitle").Enter(title);
  if (level >= 0) form.Find<ComboBox>("cboLevel").Choose(level);
  form.Find<Button>("cmdSave").Click();
}

TEST_F(Page12_1, AddingAQualificationLosesUnsavedLines) {
  Take(300);
  Type(8, 3, "1");
  modal_scripts.push_back([&](Form& form) {
    statements.clear();
    SaveNew(form, 11, "150 A", "Masonry", 1);
  });
  Click("cmdAdd");
  statements.resize(2);
  EXPECT_THAT(
      statements,
      ElementsAre("Select NQFid, qualificationtitle from lst_occupationalqualification where "
                  "NQFID =150",
                  "insert into lst_occupationalqualification(NQFField,NQFId,QualificationTitle,"
                  "NQFLevel)VALUES(12,150,'Masonry','Level 3')"));
  EXPECT_TRUE(Unsaved());
  Take(150);
  EXPECT_EQ(Line(3), "150|Masonry||12|Level 3|");
}

TEST_F(Page12_1, TheDialogAsksInOrder) {
  const std::tuple<int, const char*, const char*, int, const char*, const char*> requests[] = {
      {-1, "", "", -1, "You must select the NQF field", "cboField"},
      {3, "", "", -1, "You must enter the qualification title", "txtTitle"},
      {-1, "none", "Women's work", -1, "You must enter the NQF ID number", "txtNQFID"},
      {-1, "125", "Women's work", -1, "You must enter the qualification level", "cboLevel"},
      {-1, "125", "Women's work", 0,
       "Please enter a new NQFID as the ID already exists for the qualification Baking",
       "txtNQFID"}};
  modal_scripts.push_back([&](Form& form) {
    for (const auto& [field, id, title, level, request, control] : requests) {
      SaveNew(form, field, id, title, level);
      EXPECT_EQ(LastBox(), request);
      EXPECT_EQ(form.TakeFocusRequest(), &form.Find<Control>(control));
    }
    EXPECT_EQ(form.Find<TextBox>("txtNQFID").Text, "");
    SaveNew(form, -1, "126", "Women's work", 0);  // the quote ends the statement early
    EXPECT_THAT(LastBox(), ToldBy("frmAddQualification", "SavePage Routine"));
    form.Find<Button>("cmdCancel").Click();
    EXPECT_TRUE(form.loaded());  // answered No
    dialogs.answers = {kAnswerYes};
    form.Find<Button>("cmdCancel").Click();
    EXPECT_FALSE(form.loaded());
  });
  Click("cmdAdd");
  EXPECT_EQ(Select().items().size(), 8u);
}

}  // namespace
}  // namespace survey::testing
