// What holds on every form of the program, whatever stands on it.

#include <gmock/gmock.h>

#include <QAbstractScrollArea>
#include <map>
#include <set>

#include "desktop/colors.h"
#include "desktop_fixture.h"
#include "form_inspector.h"
#include "support/page_filler.h"

namespace survey::testing {
namespace {

using ::testing::IsEmpty;

class EveryFormTest : public DesktopTest {
 protected:
  // Each form in turn in front, in a window of that size.
  template <typename Inspect>
  void ForEachForm(QSize window, Inspect inspect) {
    std::set<std::string> names = {"frmSelectDatabase",   "frmDatabase",      "frmSelectCollege",
                                   "frmMainMenu",         "frmAbout",         "frmAddSubjects",
                                   "frmAddQualification", "frmSelectEducator"};
    for (const PageRow& page : desktop_->host().pages()) names.emplace(page.name);
    if (!survey().DatabaseConnection) OpenSiteAt("frmMainMenu");
    for (const std::string& name : names) {
      Form& form = desktop_->host().Get(name);
      testing::ChooseStaffMember(form, "8001015009087", "New");
      desktop_->host().Start(name);
      desktop_->view().window().resize(window);
      QCoreApplication::processEvents();
      ASSERT_EQ(Front(), name);
      EXPECT_EQ(desktop_->view().window().size(), window) << name << " wants a larger screen";
      inspect();
      EXPECT_THAT(inspector_.TakeFaults(), IsEmpty());
      desktop_->host().Unload(form);
    }
  }
  QWidget& Window() { return desktop_->view().window(); }

  FormInspector inspector_{*user_};
};

TEST_F(EveryFormTest, ATableIsFilledByFiguresAndEnterAlone) {
  ForEachForm({640, 420}, [this] { inspector_.FillTables(); });
  EXPECT_GT(inspector_.tables_filled(), 30);
}

// Going from page to page nothing jumps: tables begin and end at one place, and so do the buttons.
TEST_F(EveryFormTest, AllPagesHaveOneGrid) {
  // The second is what a screen of 1366 x 768 has at 200 %.
  for (const QSize window : {QSize(1366, 700), QSize(667, 336)}) {
    std::map<std::string, std::set<int>> places;
    ForEachForm(window, [&] {
      const auto note = [&](const std::string& what, const QWidget& widget, int across) {
        places[what].insert(widget.mapTo(&Window(), QPoint(across, 0)).x());
      };
      for (const char* name : {"cmdPrevious", "cmdMenu"}) {
        const auto* button = user_->Front().findChild<QPushButton*>(name);
        if (button != nullptr && button->text() != "Staff List" && button->text() != "Main Menu") {
          note(name, *button, 0);
        }
      }
      if (const auto* save = user_->Front().findChild<QPushButton*>("cmdSave");
          save != nullptr && user_->Front().findChild<QPushButton*>("cmdPrintPage") != nullptr) {
        note("cmdSave", *save, save->width());
        for (const GridView* table : user_->Front().findChildren<GridView*>()) {
          note("left", *table, 0);
          // Rows below its heads; some styles take a few pixels of them.
          EXPECT_GT(table->height(), table->minimumSizeHint().height() * 9 / 10) << Front();
          // In a narrow window some forms are wider than it, and scroll.
          if (window.width() > 1000) note("right", *table, table->width());
        }
      }
    });
    for (const auto& [what, at] : places) EXPECT_EQ(at.size(), 1U) << what;
    if (window.width() > 1000) {
      EXPECT_EQ(places["cmdSave"], places["right"]);
    }
  }
}

TEST_F(EveryFormTest, TabReachesEveryControlAndScreenReadersFindANameForIt) {
  ForEachForm({1366, 700}, [this] {
    inspector_.WalkByTab();
    inspector_.Listen(Window());
  });
}

// Also run at 150 %, where a line may fall between two pixels.
TEST_F(EveryFormTest, TheFrameOfAListIsClosed) {
  desktop_->host().Start("frmSelectDatabase");
  Window().resize(1200, 800);  // none of it lies out of sight
  auto& list = user_->The<QAbstractScrollArea>("lstFiles");
  for (const bool enabled : {false, true}) {
    list.setEnabled(enabled);
    const QImage image = Window().grab().toImage();
    const qreal ratio = image.devicePixelRatio();
    const QRect frame =
        QRectF(QPointF(list.mapTo(&Window(), QPoint())) * ratio, QSizeF(list.size()) * ratio)
            .toAlignedRect();
    const QPoint middle = frame.center();
    const auto has_line = [&](QPoint edge, QPoint inwards) {
      const int ground = image.pixelColor(edge + 6 * inwards).lightness();
      bool found = false;
      for (int i = 0; i < 4; ++i) {
        found |= image.pixelColor(edge + i * inwards).lightness() < ground - 15;
      }
      return found;
    };
    EXPECT_TRUE(has_line({frame.left(), middle.y()}, {1, 0})) << enabled;
    EXPECT_TRUE(has_line({frame.right(), middle.y()}, {-1, 0})) << enabled;
    EXPECT_TRUE(has_line({middle.x(), frame.top()}, {0, 1})) << enabled;
    EXPECT_TRUE(has_line({middle.x(), frame.bottom()}, {0, -1})) << enabled;
  }
}

QPalette DarkPalette() {
  QPalette palette(QColor(45, 45, 45));
  palette.setColor(QPalette::Base, QColor(25, 25, 25));
  return palette;
}

// The fonts and screens that desktops offer; 960 x 540 is full HD at 200 %.
TEST_F(EveryFormTest, NothingIsCutOffAndAllCanBeRead) {
  const QFont usual = QApplication::font();
  const QPalette light = QApplication::palette();
  for (const auto& [points, window] : {std::pair(7, QSize(1366, 700)),
                                       {9, QSize(1366, 700)},
                                       {9, QSize(1092, 564)},
                                       {9, QSize(960, 490)},
                                       {18, QSize(1366, 700)}}) {
    SCOPED_TRACE(std::to_string(points) + " points, " + std::to_string(window.width()));
    QFont font = usual;
    font.setPointSize(points);
    QApplication::setFont(font);
    if (window.width() == 960) QApplication::setPalette(DarkPalette());
    ForEachForm(window, [this] { inspector_.Look(Window()); });
    QApplication::setPalette(light);
  }
  QApplication::setFont(usual);
  // The texts of a table are black under any theme.
  for (const Color color : {kWhite, kLockedGrey, kGreen, kRed, kYellow}) {
    EXPECT_GE(Contrast(Qt::black, ToQColor(color)), 4.5) << color;
  }
}

}  // namespace
}  // namespace survey::testing
