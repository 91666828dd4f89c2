// ui-fuzzer SEED STEPS: works the real windows at random, unseen, as hands can: any key, click,
// word and paste, boxes and dialogs answered somehow, the window closed and the program started
// again, over a filled database in a folder of its own. Says each action before it is done, and the
// first fault.
//
// After each step keys must go somewhere, every total must be the sum of its cells, and a page that
// was saved must load as it was.

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QPointer>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <utility>
#include <vector>

#include "base/text.h"
#include "desktop/desktop.h"
#include "desktop_driver.h"
#include "offscreen.h"
#include "pages/survey_pages.h"
#include "platform/program_folder.h"
#include "shell/register_shell.h"
#include "support/filled_site.h"
#include "support/page_filler.h"

namespace survey::testing {
namespace {

namespace fs = std::filesystem;

// What the fuzzer presses, types and pastes. What stands twice comes more often.

const QStringList kKeys =
    QString(
        "Return Return Shift+Return Ctrl+Return Num+Enter Up Down Left Right Shift+Up Shift+Down "
        "Shift+Left Shift+Right Ctrl+Down Alt+Down Tab Tab Shift+Backtab Esc F2 F4 Shift+F10 Menu "
        "Del Backspace Ins Home End Ctrl+Home Ctrl+End Shift+End PgUp PgDown Ctrl+A Ctrl+C Ctrl+X "
        "Ctrl+V Ctrl+Z Ctrl+S Ctrl+S Ctrl+S Ctrl+P Ctrl+M Ctrl+PgDown Ctrl+PgUp Space Space")
        .split(' ');
const QStringList kWords =
    QString(
        "0|7|31|007|1.5|-1|12 A|9999999|O'Brien|Söhne|中|😀|e\u0301|2012/02/30|%_*|1980-01-04|"
        "\u200f1|x|Y| ")
        .split('|');
const QStringList kBlocks =
    QString(
        "1\t2\t3\r\n4\t5\t6\r\n|\"a\nb\"\t\"c\"\"d\"|\"open\t1\n2|\t\t\t|\r\n\r\n|12|x\ty||1\r2\r3|"
        "8001015009087|\u2028\u2029|😀\t中")
        .split('|');
const QStringList kNames = {"North", "South Campus", "8001015009087", "A1"};

constexpr int kLookEveryMs = 1;
// Looks during which an action neither ends nor opens a dialog: it waits for its menu to be closed.
constexpr int kLongInAction = 400;

// The figures of a page that takes nothing else, and stores them all; zeros that some do not store
// and totals left out. None of other pages, which drop lines that are not complete.
std::optional<std::vector<std::string>> FiguresOf(const Form& form) {
  std::vector<std::string> figures;
  bool takes_other = false;
  for (const Control* control : form.controls()) {
    takes_other = takes_other || dynamic_cast<const ComboBox*>(control) != nullptr;
  }
  ForEachCell(form, [&](const GridControl& grid, Cell cell) {
    const auto [column, row] = cell;
    if (!grid.IsOpen(column, row) || grid.IsTotal(column, row)) return;
    takes_other = takes_other || grid.Kind(column, row).type != CellKind::Type::kNumber;
    const std::string& text = grid.GetText(column, row);
    figures.push_back(text == "0" ? "" : text);
  });
  if (takes_other) return std::nullopt;
  return figures;
}

void ExpectTotal(const Grid& grid, const Total& total, Cell cell) {
  if (grid.IsOpen(cell.column, cell.row)) return;  // it holds what was typed over it
  const Cell moved{cell.column - total.cells.column, cell.row - total.cells.row};
  double sum = 0;
  for (const CellRange& added : total.adds) {
    for (int row = added.row + moved.row; row <= added.last_row + moved.row; ++row) {
      for (int c = added.column + moved.column; c <= added.last_column + moved.column; ++c) {
        sum += LeadingNumber(grid.GetText(c, row));
      }
    }
  }
  const std::string& shown = grid.GetText(cell.column, cell.row);
  if (std::abs(LeadingNumber(shown) - sum) < 0.001) return;
  throw Mismatch("total in row " + std::to_string(cell.row) + " is " + shown + ", its cells " +
                 NumberText(sum));
}

void ExpectTotals(const Form& form) {
  ForEachCell(form, [](const GridControl& grid, Cell cell) {
    for (const Total& total : grid.design().totals) {
      if (total.cells.Contains(cell)) ExpectTotal(grid, total, cell);
    }
  });
}

std::string NameOf(const QWidget& widget) {
  const QString name = widget.objectName();
  return std::string(widget.metaObject()->className()) + " " + name.toStdString();
}

class UiFuzzer {
 public:
  UiFuzzer(std::uint32_t seed, int steps) : dice_(seed), steps_(steps) {
    fs::copy_file(TemplateFile(), folder_.path() / kTemplateFile);
    fs::create_directory(folder_.path() / "Data2012");
    reader_.SaveAll(1);
    fs::copy_file(reader_.survey.DatabasePath, folder_.path() / "Data2012" / "Filled.mdb");
    // What a dialog may touch is the folder alone, and no program is found to be started.
    qputenv("HOME", QByteArray::fromStdString(folder_.path().string()));
    qputenv("PATH", "");
    fs::current_path(folder_.path());
    QObject::connect(&watch_, &QTimer::timeout, &watch_, [this] { LookForDialog(); });
    watch_.setSingleShot(true);
  }
  ~UiFuzzer() {
    desktop_.reset();
    fs::current_path("/");
  }

  bool Run() {
    watch_.start(kLookEveryMs);
    while (step_ < steps_ && fault_.empty()) {
      Try([this] {
        if (!desktop_ || desktop_->host().Ended()) Start();
        Act();
        QCoreApplication::processEvents();
        CheckLoads();
      });
    }
    watch_.stop();
    std::cout << step_ << " steps on " << forms_.size() << " forms, " << loads_
              << " saves read again\n";
    if (!fault_.empty()) std::cout << "FAULT: " << fault_ << std::endl;
    return fault_.empty();
  }

 private:
  int Roll(int below) { return std::uniform_int_distribution(0, below - 1)(dice_); }
  bool Chance(int percent) { return Roll(100) < percent; }
  template <typename List>
  auto& Any(List& list) {
    return list[static_cast<std::size_t>(Roll(static_cast<int>(std::size(list))))];
  }
  void Note(const std::string& action) { std::cout << step_ << " " << action << std::endl; }
  // Nothing may be thrown through an event loop.
  template <typename Work>
  void Try(Work work) {
    try {
      work();
    } catch (const std::exception& error) {
      if (fault_.empty()) fault_ = error.what();
    }
  }

  // ---- The program and its windows -------------------------------------------------------------
  void Start() {
    Note("starts the program");
    desktop_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QString settings = QString::fromStdString((folder_.path() / "settings.ini").string());
    desktop_ = std::make_unique<Desktop>(DesktopPlaces{folder_.path(), settings});
    RegisterShell(desktop_->host());
    RegisterPages(desktop_->host());
    Survey& survey = desktop_->survey();
    survey.DatabasePath = (folder_.path() / "Data2012" / "Filled.mdb").string();
    survey.CollegeEmisNumber = survey.CampusEmisNumber = 0;
    const bool knows_the_way = Chance(80);  // to the menu of the filled site
    if (knows_the_way) {
      survey.CollegeEmisNumber = 101;
      survey.CampusEmisNumber = 202;
      desktop_->host().Get("frmMainMenu").Property("EditMode") = "Edit";
    }
    desktop_->host().Start(knows_the_way ? "frmMainMenu" : "frmSelectDatabase");
    QCoreApplication::processEvents();
  }

  QWidget* Front() const {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    return desktop_->view().FrontWindow();
  }

  // Runs within every event loop. An action that has opened a dialog goes on when that is closed.
  void LookForDialog() {
    watch_.start(kLookEveryMs);
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible() || std::ranges::count(worked_on_, dialog) > 0) {
      QWidget* popup = QApplication::activePopupWidget();
      if (++looks_ % kLongInAction == 0 && popup != nullptr) popup->close();
      return;
    }
    worked_on_.push_back(dialog);
    // One that could reach beyond the folder, or has been worked on for long enough.
    const bool is_closed = dialog->inherits("QFileDialog") || dialog->inherits("QPrintDialog") ||
                           Chance(4) || step_ >= steps_ || !fault_.empty();
    if (is_closed) {
      ++step_;
      dialog->close();
    } else {
      auto* line = qobject_cast<QInputDialog*>(dialog) ? dialog->findChild<QLineEdit*>() : nullptr;
      if (line != nullptr && Chance(50)) line->setText(Any(kNames));
      Try([this] { Act(); });
    }
    worked_on_.pop_back();
  }

  // ---- One action ------------------------------------------------------------------------------
  void Act() {
    ++step_;
    looks_ = 0;
    QPointer<QWidget> front = Front();
    if (front == nullptr || front->windowHandle() == nullptr) return;
    if (QApplication::activePopupWidget() == nullptr && QApplication::activeWindow() != front) {
      front->activateWindow();
      QCoreApplication::processEvents();
      if (front == nullptr || Front() != front) return;
    }
    Do(*front);
    QCoreApplication::processEvents();
    CheckShown();
  }

  void Do(QWidget& front) {
    const int what = Roll(100);
    if (what < 32) return Press(front);
    if (what < 52) return Type(front);
    if (what < 72) return Click<QAbstractButton>(front);
    if (what < 92) return Click<QWidget>(front);
    if (what < 99) return Paste(front);
    if (!Chance(front.parentWidget() == nullptr ? 20 : 100)) return;
    Note("closes " + NameOf(front));
    front.close();
  }

  void Press(QWidget& front) {
    const QKeyCombination keys = QKeySequence(Any(kKeys))[0];
    PressKey(front, keys.key(), keys.keyboardModifiers());
  }

  void PressKey(QWidget& front, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    const QWidget* focus = QApplication::focusWidget();
    Note("presses " + QKeySequence(key | modifiers).toString().toStdString() + " in " +
         (focus == nullptr ? "nothing" : NameOf(*focus)));
    const QPointer<QWindow> window = front.windowHandle();
    if (QApplication::activePopupWidget() == &front) {  // may be gone with the first of two events
      QKeyEvent press(QEvent::KeyPress, key, modifiers);
      QCoreApplication::sendEvent(window, &press);
      return;
    }
    QTest::keyPress(window, key, modifiers);
    if (window) QTest::keyRelease(window, key, modifiers);
  }

  void Type(QWidget& front) {
    const QString word = Chance(60) ? QString::number(Roll(300)) : Any(kWords);
    Note("types \"" + word.toStdString() + "\"");
    const QPointer<QWindow> window = front.windowHandle();
    for (const QChar character : word) {
      if (!window) return;
      const bool plain = character.unicode() < 128;
      const int key = plain ? character.toUpper().unicode() : static_cast<int>(Qt::Key_unknown);
      QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(character));
      QCoreApplication::sendEvent(window, &press);
    }
    if (window && Chance(50)) QTest::keyClick(window, Qt::Key_Return);
  }

  void Paste(QWidget& front) {
    QString text = Any(kBlocks);
    if (Chance(10)) text = QString("123\t45\r\n").repeated(Chance(20) ? 20000 : 300);
    if (Chance(5)) text = QString(100'000, QChar('9'));
    QApplication::clipboard()->setText(text);
    PressKey(front, Qt::Key_V, Qt::ControlModifier);
  }

  // A visible part of the window; ways out of the program are taken rarely.
  template <typename Kind>
  Kind* AnyPart(const QWidget& front) {
    QList<Kind*> parts;
    for (Kind* part : front.findChildren<Kind*>()) {
      const bool is_exit = part->objectName() == "cmdExit" || part->objectName() == "cmdList";
      if (part->isVisible() && part->window() == &front && (!is_exit || Chance(5))) parts << part;
    }
    return parts.isEmpty() ? nullptr : Any(parts);
  }

  template <typename Kind>
  void Click(QWidget& front) {
    const QWidget* part = AnyPart<Kind>(front);
    const QRect rect = part == nullptr ? QRect() : part->visibleRegion().boundingRect();
    if (rect.isEmpty()) return;
    const QPoint place =
        part->mapTo(&front, rect.topLeft() + QPoint(Roll(rect.width()), Roll(rect.height())));
    const QWidget* hit = front.childAt(place);
    const bool is_exit = hit != nullptr && hit->objectName() == "cmdExit";
    if (!front.rect().contains(place) || (is_exit && !Chance(10))) return;
    const auto button = Chance(10) ? Qt::RightButton : Qt::LeftButton;
    Note((button == Qt::LeftButton ? "clicks " : "clicks right on ") +
         NameOf(hit == nullptr ? front : *hit) + " at " + std::to_string(place.x()) + "," +
         std::to_string(place.y()));
    const QPointer<QWindow> window = front.windowHandle();
    QTest::mousePress(window, button, {}, place);
    if (window) QTest::mouseRelease(window, button, {}, place);
    if (!Chance(12) || !window || !window->isVisible()) return;
    Note("clicks once more");
    QTest::mouseDClick(window, button, {}, place);
  }

  // ---- What must be ----------------------------------------------------------------------------
  // A form whose handler waits for a box is in the middle of something.
  void CheckShown() {
    if (!desktop_ || desktop_->host().Ended()) return;
    const QWidget* modal = QApplication::activeModalWidget();
    const QWidget* front = desktop_->view().FrontWindow();
    if (modal != (worked_on_.empty() ? nullptr : worked_on_.back()) ||
        (modal != nullptr && modal != front))
      return;
    for (const FormWidget* form : front->findChildren<FormWidget*>()) {
      if (!form->isVisible()) continue;
      forms_.insert(form->form().name());
      ExpectTotals(form->form());
    }
    if (QApplication::activePopupWidget() != nullptr) return;
    const QWidget* focus = QApplication::focusWidget();
    if (focus == nullptr ? QApplication::activeWindow() == front
                         : !focus->isVisible() || !focus->isEnabled()) {
      throw Mismatch("keys go nowhere in " + desktop_->host().Front()->name());
    }
  }

  // What a page shows right after its save, another program reads from the file.
  void CheckLoads() {
    const FormHost& host = desktop_->host();
    const Survey& survey = desktop_->survey();
    if (host.Ended() || !worked_on_.empty()) return;
    const Form& front = *host.Front();
    const auto figures = FiguresOf(front);
    if (!figures || figures->empty()) return;
    const bool unsaved = front.Find<Button>("cmdSave").BackColor == kYellow;
    if (!std::exchange(unsaved_, unsaved) || unsaved || front.name() != shown_) {
      shown_ = front.name();
      return;
    }
    ++loads_;
    reader_.survey.DatabasePath = survey.DatabasePath;
    reader_.survey.CollegeEmisNumber = survey.CollegeEmisNumber;
    reader_.survey.CampusEmisNumber = survey.CampusEmisNumber;
    reader_.survey.SurveyYear = survey.SurveyYear;
    if (FiguresOf(reader_.Open(front.name())) != figures) {
      throw Mismatch(front.name() + " is not loaded as it was saved");
    }
  }

  std::mt19937 dice_;
  int steps_;
  TemporaryFolder folder_;
  FilledSite reader_;
  std::string shown_;     // the page of figures last seen
  bool unsaved_ = false;  // then
  std::unique_ptr<Desktop> desktop_;
  QTimer watch_;
  std::vector<QWidget*> worked_on_;  // dialogs that actions work on, the last one in front
  std::string fault_;                // the first
  // What was done.
  int step_ = 0, loads_ = 0;
  int looks_ = 0;  // since an action began
  std::set<std::string> forms_;
};

}  // namespace
}  // namespace survey::testing

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: ui-fuzzer SEED STEPS\n";
    return 2;
  }
  survey::UseOffscreenPlatform();
  const QApplication application(argc, argv);
  survey::SetUpApplication();
  const auto seed = static_cast<std::uint32_t>(std::strtoul(argv[1], nullptr, 10));
  return survey::testing::UiFuzzer(seed, std::atoi(argv[2])).Run() ? 0 : 1;
}
