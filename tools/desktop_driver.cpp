#include "desktop_driver.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QListView>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

namespace survey {
namespace {

constexpr int kLookEveryMs = 5;
constexpr int kPatienceMs = 10000;

QPoint Center(QAbstractItemView& view, const QModelIndex& index) {
  view.scrollTo(index);
  return view.visualRect(index).center();
}

QModelIndex EntryOf(const QAbstractItemModel& model, const std::string& text) {
  const QModelIndexList found = model.match(model.index(0, 0), Qt::DisplayRole,
                                            QString::fromStdString(text), 1, Qt::MatchExactly);
  if (found.isEmpty()) throw Mismatch("no entry \"" + text + "\"");
  return found.constFirst();
}

}  // namespace

PrinterChoice PrintInto(const QString& file) {
  return [&file](QPrinter& printer) {
    if (file.isEmpty()) return AskForPrinter(printer);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    return true;
  };
}

DesktopDriver::DesktopDriver(Desktop& desktop)
    : desktop_(desktop), watch_(std::make_unique<QTimer>()) {
  QObject::connect(watch_.get(), &QTimer::timeout, watch_.get(), [this] { AnswerDialog(); });
  watch_->setSingleShot(true);
  watch_->start(kLookEveryMs);
}

DesktopDriver::~DesktopDriver() = default;

void DesktopDriver::OnDialog(std::function<void(QWidget& dialog)> script) {
  scripts_.push_back(std::move(script));
}

void DesktopDriver::OnBox(std::function<void(QMessageBox& box)> read, const std::string& button) {
  OnDialog([read = std::move(read), button](QWidget& dialog) {
    auto* box = dynamic_cast<QMessageBox*>(&dialog);
    if (box == nullptr) throw Mismatch("no message box, but " + dialog.objectName().toStdString());
    read(*box);
    for (QAbstractButton* candidate : box->buttons()) {
      if (candidate->text().remove('&').toStdString() != button) continue;
      QTest::mouseClick(candidate, Qt::LeftButton);
      return;
    }
    throw Mismatch("the box has no button " + button);
  });
}

// Runs inside the event loop of the dialog that has opened: nothing may be thrown through it.
void DesktopDriver::AnswerDialog() {
  // Anew each time: a timer does not fire within its own event, but a script may open a dialog.
  watch_->start(kLookEveryMs);
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || !dialog->isVisible() || dialog == answered_) return;
  QWidget* const before = answered_;
  answered_ = dialog;
  try {
    if (scripts_.empty()) {
      const auto* box = qobject_cast<QMessageBox*>(dialog);
      throw Mismatch("unexpected window " + dialog->windowTitle().toStdString() + ": " +
                     (box == nullptr ? std::string() : box->text().toStdString()));
    }
    const auto script = std::move(scripts_.front());
    scripts_.pop_front();
    script(*dialog);
  } catch (const std::exception& mismatch) {
    if (failure_.empty()) failure_ = mismatch.what();
    dialog->close();
  }
  answered_ = before;
}

void DesktopDriver::Settle() {
  QCoreApplication::processEvents();
  if (answered_ != nullptr || failure_.empty()) return;
  throw Mismatch(std::exchange(failure_, {}));
}

FormWidget& DesktopDriver::Front() const {
  QWidget* window = desktop_.view().FrontWindow();
  for (FormWidget* form : window->findChildren<FormWidget*>()) {
    if (form->isVisible()) return *form;
  }
  throw Mismatch("no form is to be seen");
}

void DesktopDriver::ExpectFront(const std::string& form) const {
  const std::string front = Front().objectName().toStdString();
  if (front != form) throw Mismatch(front + " is in front, not " + form);
}

QWidget& DesktopDriver::Find(const std::string& name) const {
  auto* widget = Front().findChild<QWidget*>(QString::fromStdString(name));
  if (widget == nullptr) throw Mismatch(Front().objectName().toStdString() + " has no " + name);
  return *widget;
}

QWidget& DesktopDriver::Usable(const std::string& name) const {
  QWidget& widget = Find(name);
  if (!widget.isVisible()) throw Mismatch(name + " is hidden");
  if (!widget.isEnabled()) throw Mismatch(name + " is disabled");
  return widget;
}

void DesktopDriver::Click(const std::string& name) {
  QWidget& widget = Usable(name);
  Front().BringIntoView(widget);
  // At its left, where the mark of a check box stands.
  QTest::mouseClick(&widget, Qt::LeftButton, {}, {widget.height() / 2, widget.height() / 2});
  Settle();
}

// A window that has come to the front takes the focus a little later; where no window manager
// gives it back after a dialog, the window asks for it.
QWidget& DesktopDriver::Focus() const {
  if (QWidget* popup = QApplication::activePopupWidget()) {
    return popup->focusWidget() == nullptr ? *popup : *popup->focusWidget();
  }
  QWidget* dialog = QApplication::activeModalWidget();
  QWidget* window = dialog == nullptr ? desktop_.view().FrontWindow() : dialog;
  if (QApplication::activeWindow() != window) window->activateWindow();
  const auto has_focus = [window] {
    const QWidget* focus = QApplication::focusWidget();
    return focus != nullptr && focus->window() == window;
  };
  WaitUntil(has_focus, "the focus in " + window->objectName().toStdString());
  return *QApplication::focusWidget();
}

void DesktopDriver::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(&Focus(), key, modifiers);
  Settle();
}

void DesktopDriver::Type(const std::string& text) {
  for (const QChar character : QString::fromStdString(text)) {
    QTest::keyClicks(&Focus(), QString(character));
  }
  Settle();
}

void DesktopDriver::Type(const std::string& name, const std::string& text) {
  Usable(name).setFocus();
  Type(text);
}

void DesktopDriver::Choose(const std::string& combo_box, const std::string& entry) {
  Usable(combo_box).setFocus();
  Press(Qt::Key_F4);
  QAbstractItemView& list = *The<QComboBox>(combo_box).view();
  WaitUntil([&] { return list.isVisible(); }, "the list of " + combo_box);
  const QModelIndex index = EntryOf(*list.model(), entry);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, Center(list, index));
  Settle();
}

void DesktopDriver::ClickCell(const std::string& grid, int column, int row) {
  Usable(grid);
  auto& view = The<GridView>(grid);
  const QPoint cell = Center(view, view.model()->index(row - 1, column - 1));
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, cell);
  Settle();
}

void DesktopDriver::ClickEntry(const std::string& list, const std::string& entry) {
  Usable(list);
  auto& view = The<QListView>(list);
  const QModelIndex index = EntryOf(*view.model(), entry);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, Center(view, index));
  Settle();
}

std::string DesktopDriver::CellText(const std::string& grid, int column, int row) const {
  const auto& model = *The<GridView>(grid).model();
  return model.index(row - 1, column - 1).data().toString().toStdString();
}

void DesktopDriver::WaitUntil(const std::function<bool()>& condition,
                              const std::string& what) const {
  QElapsedTimer waited;
  waited.start();
  while (!condition()) {
    if (waited.hasExpired(kPatienceMs)) throw Mismatch("waited in vain for " + what);
    QTest::qWait(kLookEveryMs);
  }
}

}  // namespace survey
