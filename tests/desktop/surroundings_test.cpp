#include <gmock/gmock.h>

#include <QDockWidget>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeWidget>

#include "desktop/checks_pane.h"
#include "desktop_fixture.h"

namespace survey::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class SurroundingsTest : public DesktopTest {
 protected:
  QMainWindow& Window() { return desktop_->view().window(); }
  template <typename Kind = QWidget>
  Kind& Around(const char* name) {
    auto* found = Window().findChild<Kind*>(name);
    if (found == nullptr) throw Mismatch(std::string("no ") + name);
    return *found;
  }
  bool Shows(const char* name) { return Around(name).isVisible(); }
  std::string Text(const char* label) { return Around<QLabel>(label).text().toStdString(); }
  QTreeWidget& Contents() { return Around<QTreeWidget>("contents"); }
  QTreeWidgetItem& Line(const QString& tables) {
    const auto found = Contents().findItems(tables, Qt::MatchExactly | Qt::MatchRecursive, 0);
    if (found.isEmpty()) throw Mismatch("no line " + tables.toStdString());
    return *found.front();
  }
  void ClickLine(QTreeWidget& list, QTreeWidgetItem& line) {
    list.scrollToItem(&line);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(&line).center());
    QCoreApplication::processEvents();
  }
  void Store(const char* statement) {
    survey().Execute(statement);
    survey().EndStatements();
  }
  // The next run of the program, with what is remembered of this one.
  void StartAgain() {
    while (!desktop_->host().Ended()) Window().close();
    user_.reset();
    desktop_ = std::make_unique<Desktop>(DesktopPlaces{
        folder_.path(), QString::fromStdString((folder_.path() / "settings.ini").string())});
    RegisterShell(desktop_->host());
    RegisterPages(desktop_->host());
    user_ = std::make_unique<DesktopDriver>(*desktop_);
    std::filesystem::remove(folder_.path() / "site.mdb");
  }
};

TEST_F(SurroundingsTest, PanesComeWithTheSiteAndAreFoundAsTheyWereLeft) {
  desktop_->host().Start("frmSelectDatabase");
  user_->Press(Qt::Key_F9);
  EXPECT_FALSE(Shows("contentsPane"));
  EXPECT_FALSE(Shows("statusSite"));
  Window().resize(1099, 640);
  OpenSiteAt("frmMainMenu");
  EXPECT_FALSE(Shows("contentsPane")) << "in a narrow window, unless it is wanted";
  Window().resize(1110, 640);
  user_->Click("cmdLearner(7)");
  EXPECT_TRUE(Shows("contentsPane"));
  EXPECT_FALSE(Shows("checksPane"));
  QTest::mouseClick(&Around("checksActionButton"), Qt::LeftButton);
  EXPECT_TRUE(Shows("checksPane"));
  user_->Press(Qt::Key_F9);
  EXPECT_FALSE(Shows("contentsPane"));
  user_->Press(Qt::Key_Minus, Qt::ControlModifier);
  Window().setGeometry(5000, 4000, 700, 500);
  StartAgain();
  EXPECT_EQ(Window().size(), QSize(700, 500));
  EXPECT_TRUE(Window().screen()->availableGeometry().contains(Window().geometry()));
  OpenSiteAt("frmPage3");
  const auto row = [&] { return user_->The<GridView>("gridEnrolment").rowHeight(6); };
  const int small = row();
  user_->Press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_NEAR(small, row() * 0.9, 2);
  EXPECT_FALSE(Shows("contentsPane"));
  EXPECT_TRUE(Shows("checksPane"));
  user_->Click("cmdMenu");
  user_->Click("cmdList");
  EXPECT_FALSE(Shows("checksPane")) << "while a site is chosen";
}

TEST_F(SurroundingsTest, TheContentsTellHowItStandsAndLeadToAPage) {
  Window().resize(1366, 768);
  OpenSiteAt("frmPage3");
  EXPECT_EQ(Contents().currentItem(), &Line("2.5"));
  user_->Type("12");
  user_->Press(Qt::Key_Return);
  EXPECT_EQ(Line("2.5").text(1), "\u270E");
  EXPECT_THAT(Line("2.5").toolTip(1).toStdString(), HasSubstr("programme: not saved"));
  EXPECT_EQ(Line("2.5").data(0, Qt::AccessibleTextRole), Line("2.5").toolTip(0));
  user_->OnBox([](QMessageBox& box) { EXPECT_EQ(box.windowTitle(), "Data has NOT been Saved"); },
               "No");
  ClickLine(Contents(), Line("3.8"));
  EXPECT_EQ(Front(), "frmPage3");
  EXPECT_EQ(&user_->Focus(), &user_->Find("gridEnrolment"));
  user_->Press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(Line("2.5").text(1), "\u25CF");
  // By keys alone: into the pane, to the line, and there; Esc and F6 come back.
  user_->Press(Qt::Key_F6);
  EXPECT_EQ(&user_->Focus(), &Contents());
  user_->Press(Qt::Key_Tab);
  EXPECT_EQ(&user_->Focus(), &Around("printAllPages"));
  user_->Press(Qt::Key_Escape);
  EXPECT_EQ(&user_->Focus(), &user_->Find("gridEnrolment"));
  user_->Press(Qt::Key_F6);
  user_->Type("3.9");
  user_->Press(Qt::Key_Return);
  EXPECT_EQ(Front(), "frmPage9");
  EXPECT_EQ(&user_->Focus(), &user_->Find("gridNCV(1)"));
  EXPECT_EQ(Contents().currentItem(), &Line("3.9"));
  // What is being typed counts, and keeps the user where it cannot stand.
  user_->Type("1,5");
  ClickLine(Contents(), Line("3.8"));
  EXPECT_EQ(Front(), "frmPage9");
  EXPECT_EQ(user_->Focus().objectName(), "cellEditor");
}

TEST_F(SurroundingsTest, ChecksLeadToTheCellAndSayWhenThereIsNothing) {
  OpenSiteAt("frmPage8");
  user_->Type("7");
  user_->Press(Qt::Key_S, Qt::ControlModifier);
  user_->Press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Front(), "frmPage9");
  user_->Press(Qt::Key_F8);
  auto& checks = Around<QTreeWidget>("checks");
  EXPECT_EQ(&user_->Focus(), &checks);
  const auto found = checks.findItems("3.8", Qt::MatchExactly, 0);
  ASSERT_EQ(found.size(), 1);
  const std::string told = found.front()->text(1).toStdString();
  EXPECT_THAT(told, HasSubstr("is 7, 7 more than the control table (0)"));
  checks.setCurrentItem(found.front());
  user_->Press(Qt::Key_Return);
  EXPECT_EQ(Front(), "frmPage8");
  const auto& table = user_->The<GridView>("gridNCV(1)");
  EXPECT_EQ(&user_->Focus(), &table);
  EXPECT_EQ(std::pair(table.grid().ActiveColumn(), table.grid().ActiveRow()), std::pair(14, 23));
  EXPECT_EQ(Text("entryNote"), told);
  ChecksPane none(&Window());
  const SiteChecks nothing;
  none.Refresh(&nothing);
  EXPECT_EQ(none.list().topLevelItem(0)->text(1), "Nothing to report");
}

TEST_F(SurroundingsTest, TheStatusLineFollowsTheCursorAndTheSelection) {
  Window().resize(1366, 768);
  OpenSiteAt("frmPage8");
  EXPECT_EQ(Text("statusSite"), "Blouklip FET College, Duinekop Campus");
  EXPECT_THAT(Text("statusDatabase") + "|" + Text("statusPage"), StartsWith("site|Page 8 of "));
  EXPECT_FALSE(Shows("statusSaved"));
  user_->Focus();
  EXPECT_THAT(Text("statusCell"), HasSubstr(", whole number"));
  user_->Type("4");
  user_->Press(Qt::Key_Return);
  EXPECT_EQ(Text("statusSaved"), "not saved");
  user_->Type("5");
  user_->Press(Qt::Key_Return);
  user_->Press(Qt::Key_Left);
  user_->Press(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(Text("statusCell"), "Sum 9, count 2");
  user_->Press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_THAT(Text("statusSaved"), HasSubstr("saved "));
  user_->ClickCell("gridNCV(1)", 14, 23);
  EXPECT_EQ(Text("statusCell"), "Total: 9 more than the control table (0).");
  user_->Find("cmdSave").setFocus();
  EXPECT_FALSE(Shows("statusCell"));
}

TEST_F(SurroundingsTest, AnotherYearIsAnAlarmOverThePage) {
  OpenSiteAt("frmMainMenu");
  EXPECT_FALSE(Shows("yearBand") || Shows("statusYear"));
  survey().SurveyYear = 2010;
  user_->Click("cmdGeneral");
  EXPECT_TRUE(Shows("yearBand"));
  EXPECT_EQ(Text("statusYear"), "Year 2010!");
  EXPECT_THAT(Text("yearWarning"), HasSubstr("takes the site off the list of sites"));
  EXPECT_LT(Around("yearBand").mapToGlobal(QPoint()).y(),
            user_->Find("gridPage2_1").mapToGlobal(QPoint()).y());
  QTest::mouseClick(&Around("backToYear"), Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(Front(), "frmMainMenu");
  EXPECT_EQ(survey().SurveyYear, 2012);
  EXPECT_FALSE(Shows("yearBand") || Shows("statusYear"));
}

TEST_F(SurroundingsTest, F1OpensTheGuideWithItsKeysAndPictures) {
  desktop_->host().Start("frmSelectDatabase");
  user_->Press(Qt::Key_F1);
  auto& guide = Around<QTextBrowser>("guideText");
  EXPECT_TRUE(guide.isVisible());
  const std::string text = guide.toPlainText().toStdString();
  EXPECT_THAT(text, HasSubstr("Print all pages of 2012"));
  EXPECT_THAT(text, ::testing::Not(HasSubstr("./bench")));
  EXPECT_THAT(guide.toHtml().toStdString(), HasSubstr("<table"));
  const QVariant picture =
      guide.loadResource(QTextDocument::ImageResource, QUrl("qrc:/guide/docs/menu.png"));
  EXPECT_GT(picture.value<QImage>().width(), 100);
  QTest::keyClick(&guide, Qt::Key_Escape);
  EXPECT_FALSE(Window().findChild<QWidget*>("guideWindow")->isVisible());
}

}  // namespace
}  // namespace survey::testing
