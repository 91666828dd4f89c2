#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/form_host.h"
#include "support/headless_program.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> events;  // of all probes, in order

const GridDesign kDesign = {
    .columns = 1, .rows = 2, .column_widths = {900}, .rules = {{{1, 1, 1, 2}, Number(0, 99)}}};

// A form that tells what happens to it, and does what a test wants.
class Probe : public Form {
 public:
  Probe(FormHost& host, const std::string& name) : Form(host, name, name + " caption") {
    cmdDo.on_click = [this] {
      if (act) act(*this);
    };
    chk.on_click = [this] { events.push_back(this->name() + " check"); };
    opt1.on_click = [this] { events.push_back(this->name() + " one"); };
    opt2.on_click = [this] { events.push_back(this->name() + " two"); };
    cbo.on_click = [this] { events.push_back(this->name() + " combo " + cbo.Text()); };
  }
  Layout Arrange() override { return Place(cmdDo); }
  void Form_Activate() override { events.push_back(name() + " activate"); }

  std::string& EducatorId = Declare("EducatorId");
  Button cmdDo{*this, "cmdDo", "Do"};
  Button cmdSave{*this, "cmdSave", "Save"};
  CheckBox chk{*this, "chk", "Check"};
  OptionButton opt1{*this, "opt", "One", "group", 1};
  OptionButton opt2{*this, "opt", "Two", "group", 2};
  TextBox txt{*this, "txt", "Text"};
  ComboBox cbo{*this, "cbo", "Combo"};
  GridControl grid{*this, "grid", kDesign};
  std::function<void(Probe&)> act;
  using Form::Trap;

 protected:
  void Form_Load() override { events.push_back(name() + " load"); }
  void Form_Unload() override { events.push_back(name() + " unload"); }
};

class Host : public HeadlessProgram, public ::testing::Test {
 protected:
  Host() {
    for (const char* name : {"A", "B", "M"}) {
      host.Register(name, [name](FormHost& maker) { return std::make_unique<Probe>(maker, name); });
    }
    host.Start("A");
    events.clear();
  }
  Probe& P(const std::string& name) { return dynamic_cast<Probe&>(host.Get(name)); }
  void Do(const std::string& name, std::function<void(Probe&)> act) {
    P(name).act = std::move(act);
    Click(name, "cmdDo");
  }
};

TEST_F(Host, AFormIsActivatedOnceTheHandlerThatShowedItHasEnded) {
  Do("A", [this](Probe& a) {
    host.Show("B");
    host.Unload(a);
    events.push_back("handler ends");
  });
  EXPECT_THAT(events, ElementsAre("B load", "A unload", "handler ends", "B activate"));
  host.CloseBox(P("B"));
  EXPECT_TRUE(host.Ended());
}

TEST_F(Host, AModalFormStopsItsCallerAndActivatesTheFormBeneathWhenItCloses) {
  modal_scripts.push_back([this](Form& modal) {
    EXPECT_TRUE(host.IsModal(modal));
    dialogs.answers = {kAnswerYes};
    EXPECT_TRUE(host.boxes().UserQuestion("?"));  // a box activates nothing
    host.CloseBox(modal);
  });
  Do("A", [this](Probe&) {
    host.ShowModal("M");
    events.push_back("goes on");
  });
  EXPECT_THAT(events, ElementsAre("M load", "M activate", "M unload", "goes on", "A activate"));
}

TEST_F(Host, ControlsReturnToTheirDesignAtEachLoadAndPropertiesStay) {
  Probe& a = P("A");
  a.cmdSave.BackColor = kYellow;
  a.cmdSave.Enabled = false;
  a.txt.Text = "typed";
  a.chk.SetValue(true);
  a.cbo.AddItem("item", 1);
  a.Caption = "other";
  a.Property("EducatorId") = "123";
  host.Unload(a);
  host.Show("A");
  EXPECT_EQ(a.cmdSave.BackColor, kButtonFace);
  EXPECT_TRUE(a.cmdSave.Enabled);
  EXPECT_FALSE(a.chk.Value());
  EXPECT_THAT(a.cbo.items(), IsEmpty());
  EXPECT_EQ(a.txt.Text + "|" + a.Caption + "|" + a.Property("EducatorId"), "|A caption|123");
}

TEST_F(Host, CodeThatChangesAChoiceRaisesItsClick) {
  Probe& a = P("A");
  a.chk.SetValue(true);
  a.chk.SetValue(true);  // no change, no click
  a.opt1.SetValue(true);
  a.opt2.SetValue(true);  // takes opt1 back without a click
  a.cbo.AddItem("item", 1);
  a.cbo.SetListIndex(0);
  a.cbo.SetText("other");
  EXPECT_THAT(events, ElementsAre("A check", "A one", "A two", "A combo item"));
  EXPECT_FALSE(a.opt1.Value());
  EXPECT_EQ(a.cbo.ListIndex(), -1);
}

// Whoever has the grid alone in hand still works on the form.
TEST_F(Host, TheUsersSideOfAGridIsAlwaysAnActionOfTheForm) {
  Grid& grid = P("A").grid;
  grid.on_change = [](int, int) { throw Overflow(); };
  grid.Type(1, 1, "5");
  EXPECT_EQ(LastBox(), "Run-time error '6':\n\nOverflow") << "told by the form, not thrown";
  host.Start("A");
  P("A").grid.Enabled = false;
  EXPECT_FALSE(grid.Type(1, 1, "6").taken);
  grid.Click(1, 2);
  EXPECT_EQ(grid.GetText(1, 1), "");
  EXPECT_EQ(grid.ActiveRow(), 1);
}

TEST_F(Host, AHandlersWritesAreOneCommitAndSurviveItsFailure) {
  OpenSite(1, 2);
  Do("A", [this](Probe& a) {
    const bool done = a.Trap({"place", "routine"}, [this] {
      survey.Execute("insert into tbl_SETAAccreditation(SETAID)values(1)");
      EXPECT_THAT(Query("select SETAID as r from tbl_SETAAccreditation"), IsEmpty());
      survey.Execute("insert into tbl_Nowhere(SETAID)values(2)");
    });
    EXPECT_FALSE(done);
    // The box was shown after the commit, and the handler goes on.
    EXPECT_THAT(Query("select SETAID as r from tbl_SETAAccreditation"), ElementsAre("1"));
  });
  const MessageBox& box = dialogs.seen.at(0);
  EXPECT_EQ(box.title, "Error : 1");
  EXPECT_EQ(
      box.prompt,
      "Error Description: no such table: tbl_Nowhere\r\nLocation: place\r\nProcedure: routine");
  EXPECT_EQ(std::tuple(box.picture, box.type), std::tuple(Picture::kError, kInformationIcon));
}

TEST_F(Host, AFailureThatNobodyTrapsIsToldAndEndsTheProgram) {
  OpenSite(1, 2);
  const std::pair<std::function<void(Probe&)>, const char*> failures[] = {
      {[](Probe&) { throw Overflow(); }, "6':\n\nOverflow"},
      {[](Probe&) { throw std::bad_alloc(); }, "7':\n\nOut of memory"},
      {[](Probe& a) { a.Find<Button>("nowhere"); }, "51':\n\nA has no control nowhere"}};
  for (const auto& [fail, told] : failures) {
    host.Start("A");
    Do("A", [&, fail = fail](Probe& a) {
      survey.Execute("insert into tbl_SETAAccreditation(SETAID)values(1)");
      fail(a);
    });
    EXPECT_EQ(LastBox(), "Run-time error '" + std::string(told));
    EXPECT_TRUE(host.Ended());
  }
  EXPECT_THAT(Query("select count(*) as r from tbl_SETAAccreditation"), ElementsAre("3"));
}

TEST_F(Host, BoxesHaveTheirCaptionPictureAndDefault) {
  using Show = std::function<void(MessageBoxes&)>;
  const std::vector<std::tuple<Show, std::string, Picture, int>> cases = {
      {[](auto& b) { b.UserMessage("text"); }, "User Message", Picture::kMessage, 0x40},
      {[](auto& b) { EXPECT_FALSE(b.UserQuestion("text")); }, "User Question?", Picture::kQuestion,
       260 + 0x40},
      {[](auto& b) { EXPECT_FALSE(b.UserWarning("text")); }, "User Warning", Picture::kStop,
       260 + 0x40},
      {[](auto& b) { b.PlainBox("text"); }, "Corvale Annual Survey", Picture::kNone, 0},
      // With neither picture nor cursor the type goes through; a cursor changes it like a picture.
      {[](auto& b) { b.ExtendedMsgBox("text", 0x34, "t", Picture::kNone, ""); }, "t",
       Picture::kNone, 0x34},
      {[](auto& b) { b.ExtendedMsgBox("text", 0x134, "t", Picture::kNone, "x.ani"); }, "t",
       Picture::kNone, 0x144},
  };
  for (const auto& [show, title, picture, type] : cases) {
    show(host.boxes());
    const MessageBox& box = dialogs.seen.back();
    EXPECT_EQ(std::tie(box.prompt, box.title, box.picture, box.type),
              std::tuple("text", title, picture, type));
  }
}

}  // namespace
}  // namespace survey::testing
