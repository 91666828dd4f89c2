#include "random_hands.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <map>
#include <memory>
#include <random>
#include <utility>
#include <vector>

#include "desktop/desktop.h"
#include "desktop_driver.h"
#include "filled_site.h"
#include "findings.h"
#include "hand_inputs.h"
#include "pages/survey_pages.h"
#include "platform/program_folder.h"
#include "shell/register_shell.h"
#include "shown_form.h"
#include "store/connection.h"

namespace survey::testing {
namespace {

namespace fs = std::filesystem;

constexpr int kLookEveryMs = 1;
constexpr int kLongInDialog = 60;  // steps, after which it is closed
// Looks during which an action neither ends nor opens a dialog: it waits for something to be
// dropped.
constexpr int kLongInAction = 400;

std::string NameOf(const QWidget& widget) {
  const QString name = widget.objectName();
  return std::string(widget.metaObject()->className()) + " " + name.toStdString();
}

class RandomHands {
 public:
  RandomHands(std::uint32_t seed, int steps, std::function<void(const std::string&)> on_action)
      : dice_(seed), steps_(steps), on_action_(std::move(on_action)) {
    fs::copy_file(TemplateFile(), folder_.path() / kTemplateFile);
    fs::create_directory(folder_.path() / "Data2012");
    FilledSite site;
    site.SaveAll(1);
    fs::copy_file(site.survey.DatabasePath, folder_.path() / "Data2012" / "Filled.mdb");
    // What a dialog may touch is the folder alone, and no program is found to be started.
    qputenv("HOME", folder_.path().c_str());
    qputenv("PATH", "");
    fs::current_path(folder_.path());
    QObject::connect(&watch_, &QTimer::timeout, &watch_, [this] { LookForDialog(); });
    watch_.setSingleShot(true);
  }
  ~RandomHands() {
    desktop_.reset();
    fs::current_path("/");
  }

  RandomHandsReport Run() {
    watch_.start(kLookEveryMs);
    while (report_.steps < steps_ && findings_.first().empty()) {
      try {
        if (!desktop_ || desktop_->host().Ended()) Start();
        Act();
        QCoreApplication::processEvents();
        CheckFiles();
      } catch (const std::exception& error) {
        findings_.Require(false, std::string("thrown out of the program: ") + error.what());
      }
    }
    watch_.stop();
    report_.fault = findings_.first();
    return report_;
  }

 private:
  int Roll(int below) { return std::uniform_int_distribution(0, below - 1)(dice_); }
  bool Chance(int percent) { return Roll(100) < percent; }
  template <typename List>
  auto& Any(List& list) {
    return list[static_cast<std::size_t>(Roll(static_cast<int>(std::size(list))))];
  }
  void Note(const std::string& action) { on_action_(std::to_string(report_.steps) + " " + action); }

  // ---- The program and its windows -------------------------------------------------------------
  void Start() {
    Note("starts the program");
    ++report_.starts;
    desktop_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QString settings = QString::fromStdString((folder_.path() / "settings.ini").string());
    desktop_ =
        std::make_unique<Desktop>(DesktopPlaces{folder_.path(), settings, PrintInto(print_file_)});
    RegisterShell(desktop_->host());
    RegisterPages(desktop_->host());
    desktop_->host().Start("frmSelectDatabase");
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
      if (++looks_ % kLongInAction == 0) DropWhatIsDragged();
      return;
    }
    worked_on_.push_back(dialog);
    if (dialog != last_dialog_) in_dialog_ = 0;
    last_dialog_ = dialog;
    ++report_.dialogs;
    ++in_dialog_;
    const bool long_enough =
        in_dialog_ > kLongInDialog || report_.steps >= steps_ || !findings_.first().empty();
    if (long_enough) {
      dialog->reject();
    } else if (!AnswerDialog(*dialog)) {
      Act();
    }
    worked_on_.pop_back();
  }

  void DropWhatIsDragged() {
    QWindow* window = QGuiApplication::focusWindow();
    if (window != nullptr) QTest::keyClick(window, Qt::Key_Escape);
  }

  // ---- Dialogs that could reach beyond the folder, and those that wait for words ---------------
  bool AnswerDialog(QDialog& dialog) {
    if (auto* files = qobject_cast<QFileDialog*>(&dialog)) {
      ++report_.steps;
      files->setOption(QFileDialog::ReadOnly);
      const char* const file = Chance(70) ? "Data2012/Filled.mdb" : "settings.ini";
      Note(std::string("picks the file ") + file);
      files->setDirectory(QString::fromStdString(folder_.path().string()));
      files->selectFile(QString::fromStdString((folder_.path() / file).string()));
      End(dialog);
      return true;
    }
    if (dialog.inherits("QPrintDialog")) {
      ++report_.steps;
      Note("answers the print dialog");
      auto* name = dialog.findChild<QLineEdit*>("filename");
      const bool to_file = name != nullptr && name->isVisible() && name->isEnabled();
      if (to_file) name->setText(PrintFile());
      if (to_file) {
        End(dialog);
      } else {
        dialog.reject();
      }
      return true;
    }
    if (qobject_cast<QInputDialog*>(&dialog) != nullptr && Chance(50)) {
      if (auto* line = dialog.findChild<QLineEdit*>()) line->setText(Any(kNames));
    }
    return false;
  }

  void End(QDialog& dialog) {
    if (Chance(70)) {
      QMetaObject::invokeMethod(&dialog, "accept");
    } else {
      dialog.reject();
    }
  }

  QString PrintFile() const {
    return QString::fromStdString((folder_.path() / "print.pdf").string());
  }

  // ---- One action ------------------------------------------------------------------------------
  void Act() {
    ++report_.steps;
    looks_ = 1;
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
    if (what < 26) return Press(front);
    if (what < 42) return Type(front);
    if (what < 60) return PushAny(front);
    if (what < 78) return Click(front);
    if (what < 83) return Drag(front);
    if (what < 87) return Wheel(front);
    if (what < 93) return Paste(front);
    if (what < 95) return PressAlt(front);
    if (what < 97) return Resize();
    if (what < 98) return ChangeLooks();
    if (what < 99) return PrintElsewhere();
    if (!Chance(front.parentWidget() == nullptr ? 20 : 100)) return;
    Note("closes " + NameOf(front));
    front.close();
  }

  void Press(QWidget& front) {
    const auto& [key, modifiers] = Any(kKeys);
    PressKey(front, key, modifiers);
  }

  void PressAlt(QWidget& front) {
    PressKey(front, static_cast<Qt::Key>(Qt::Key_A + Roll(26)), Qt::AltModifier);
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
    QObject* focus = QGuiApplication::focusObject();
    Note("types \"" + word.toStdString() + "\"");
    if (focus != nullptr && Chance(10)) {
      QInputMethodEvent whole;
      whole.setCommitString(word);
      QCoreApplication::sendEvent(focus, &whole);
      return;
    }
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
      if (part->isVisible() && !part->size().isEmpty() && part->window() == &front &&
          (!is_exit || Chance(5))) {
        parts << part;
      }
    }
    return parts.isEmpty() ? nullptr : Any(parts);
  }

  QPoint PlaceOn(const QWidget& front) {
    const QWidget* part = Chance(80) ? AnyPart<QWidget>(front) : &front;
    if (part == nullptr) part = &front;
    const QRect rect = part->visibleRegion().boundingRect();
    if (rect.isEmpty()) return {Roll(front.width()), Roll(front.height())};
    const QPoint place = rect.topLeft() + QPoint(Roll(rect.width()), Roll(rect.height()));
    return part->mapTo(&front, place);
  }

  void ClickAt(QWidget& front, QPoint place, Qt::MouseButton button, bool twice) {
    const QWidget* hit = front.childAt(place);
    const bool is_exit = hit != nullptr && hit->objectName() == "cmdExit";
    if (!front.rect().contains(place) || (is_exit && !Chance(10))) return;
    Note((button == Qt::LeftButton ? "clicks " : "clicks right on ") +
         std::string(twice ? "twice " : "") + NameOf(hit == nullptr ? front : *hit) + " at " +
         std::to_string(place.x()) + "," + std::to_string(place.y()));
    const QPointer<QWindow> window = front.windowHandle();
    QTest::mousePress(window, button, {}, place);
    if (window) QTest::mouseRelease(window, button, {}, place);
    if (!twice || !window || !window->isVisible()) return;
    QTest::mouseDClick(window, button, {}, place);
  }

  void Click(QWidget& front) {
    ClickAt(front, PlaceOn(front), Chance(10) ? Qt::RightButton : Qt::LeftButton, Chance(12));
  }

  // Buttons, and what leads on at the start.
  void PushAny(QWidget& front) {
    if (desktop_->host().Front() != nullptr && LeadOn(front)) return;
    if (auto* button = AnyPart<QAbstractButton>(front)) {
      ClickAt(front, button->mapTo(&front, QPoint(button->height() / 2, button->height() / 2)),
              Qt::LeftButton, false);
    }
  }

  bool LeadOn(QWidget& front) {
    const std::string form = desktop_->host().Front()->name();
    const auto click = [&](const char* name, QPoint place = {12, 12}) {
      auto* part = front.findChild<QWidget*>(name);
      if (part == nullptr || !part->isVisible()) return false;
      if (auto* view = qobject_cast<QAbstractItemView*>(part)) part = view->viewport();
      ClickAt(front, part->mapTo(&front, place), Qt::LeftButton, false);
      return true;
    };
    if (form == "frmSelectDatabase" && Chance(70)) {
      if (!click("chkExisting") || Front() != &front) return true;
      if (!click("lstFiles") || Front() != &front) return true;
      return click("cmdContinue");
    }
    if (form == "frmSelectCollege" && Chance(70))
      return click("gridcollege") && click("cmdContinue");
    return false;
  }

  void Drag(QWidget& front) {
    const QPoint from = PlaceOn(front);
    const QPoint to = PlaceOn(front);
    const QWidget* hit = front.childAt(from);
    Note("drags in " + NameOf(hit == nullptr ? front : *hit));
    const QPointer<QWindow> window = front.windowHandle();
    QTest::mousePress(window, Qt::LeftButton, {}, from);
    if (window) QTest::mouseMove(window, (from + to) / 2);
    if (window) QTest::mouseMove(window, to);
    if (window) QTest::mouseRelease(window, Qt::LeftButton, {}, to);
  }

  void Wheel(QWidget& front) {
    const QPoint place = PlaceOn(front);
    Note("turns the wheel");
    const QPoint angle = Chance(20) ? QPoint(120, 0) : QPoint(0, 120 * (Roll(11) - 5));
    QWheelEvent wheel(place, front.mapToGlobal(place), {}, angle, Qt::NoButton,
                      Chance(10) ? Qt::ControlModifier : Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(front.windowHandle(), &wheel);
  }

  void Resize() {
    const QSize size = Chance(30) ? QSize(1, 1) : QSize(1 + Roll(1800), 1 + Roll(1100));
    Note("resizes the window to " + std::to_string(size.width()) + " x " +
         std::to_string(size.height()));
    desktop_->view().FrontWindow()->resize(size);
  }

  void ChangeLooks() {
    Note("changes font and colours");
    QFont font = QApplication::font();
    font.setPointSize(6 + Roll(20));
    QApplication::setFont(font);
    QApplication::setPalette(Chance(50) ? QPalette(QColor(45, 45, 45)) : QPalette(Qt::lightGray));
  }

  void PrintElsewhere() {
    const bool asks = Chance(30);
    Note(asks ? "will print after the dialog" : "will print into the file");
    print_file_ = asks ? QString() : PrintFile();
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
      report_.forms.insert(form->form().name());
      const std::string difference = WhereShownDiffers(*form);
      findings_.Require(difference.empty(), difference);
    }
    if (QApplication::activePopupWidget() != nullptr) return;
    const QWidget* focus = QApplication::focusWidget();
    findings_.Require(focus != nullptr || QApplication::activeWindow() != front,
                      "keys go nowhere in " + desktop_->host().Front()->name());
    findings_.Require(focus == nullptr || (focus->isVisible() && focus->isEnabled()),
                      "keys go to what cannot be used");
  }

  void CheckFiles() {
    for (const auto& entry : fs::directory_iterator(folder_.path() / "Data2012")) {
      if (entry.path().extension() != ".mdb") continue;
      const auto written = entry.last_write_time();
      if (std::exchange(written_[entry.path().string()], written) == written) continue;
      ++report_.saves;
      Connection::Open(entry.path().string(), DatabasePassword(), keys_);
    }
  }

  std::mt19937 dice_;
  int steps_;
  std::function<void(const std::string&)> on_action_;
  TemporaryFolder folder_;
  CipherKeys keys_;
  std::map<std::string, fs::file_time_type> written_;
  QString print_file_;  // "": the print dialog asks
  std::unique_ptr<Desktop> desktop_;
  QTimer watch_;
  std::vector<QWidget*> worked_on_;  // dialogs that actions work on, the last one in front
  QWidget* last_dialog_ = nullptr;
  int in_dialog_ = 0;  // steps
  int looks_ = 1;      // since an action began
  Findings findings_{"random hands"};
  RandomHandsReport report_;
};

}  // namespace

RandomHandsReport RunRandomHands(std::uint32_t seed, int steps,
                                 const std::function<void(const std::string&)>& on_action) {
  return RandomHands(seed, steps, on_action).Run();
}

}  // namespace survey::testing
