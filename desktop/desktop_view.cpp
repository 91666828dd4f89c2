#include "desktop/desktop_view.h"

#include <QCloseEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <functional>

#include "desktop/pictures.h"

namespace survey {
namespace {

constexpr QSize kWindowSize(1200, 720);
constexpr QSize kSmallestWindow(640, 420);
// Room for the window's own frame and title, and for the desktop's bars.
constexpr QSize kWindowBorders(16, 48);

class MainWindow : public QMainWindow {
 public:
  explicit MainWindow(std::function<void()> on_close) : on_close_(std::move(on_close)) {}

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    on_close_();
  }

 private:
  std::function<void()> on_close_;
};

}  // namespace

// The window of a modal form.
class FormDialog : public QDialog {
 public:
  FormDialog(Form& form, QWidget* parent) : QDialog(parent), contents_(new FormWidget(form, this)) {
    setObjectName(QString::fromStdString(form.name()) + "Dialog");
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(contents_);
  }

  Form& form() const { return contents_->form(); }

  void Refresh() {
    if (!form().loaded()) {
      done(Accepted);
      return;
    }
    setWindowTitle(QString::fromStdString(form().Caption));
    contents_->Refresh();
  }

  // Esc: the key of the form's Cancel, nothing where it has none.
  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    form().host().CloseBox(form());
  }

 private:
  FormWidget* contents_;
};

DesktopView::DesktopView(FormHost& host)
    : host_(host),
      window_(std::make_unique<MainWindow>([this] { CloseMainWindow(); })),
      column_(new QVBoxLayout),
      pages_(new QStackedWidget) {
  window_->setObjectName("mainWindow");
  window_->setWindowIcon(ProgramIcon());
  window_->setMinimumSize(kSmallestWindow);
  window_->resize(kWindowSize.boundedTo(window_->screen()->availableSize() - kWindowBorders));
  auto* picture = new QLabel(pages_);
  picture->setAlignment(Qt::AlignCenter);
  picture->setPixmap(ProgramIcon().pixmap(QSize(128, 128)));
  no_page_ = picture;
  pages_->addWidget(no_page_);
  column_->setContentsMargins(0, 0, 0, 0);
  column_->setSpacing(0);
  column_->addWidget(pages_, 1);
  auto* center = new QWidget(window_.get());
  center->setLayout(column_);
  window_->setCentralWidget(center);
  host_.set_view(this);
}

DesktopView::~DesktopView() { host_.set_view(nullptr); }

QWidget* DesktopView::FrontWindow() const {
  if (!dialogs_.empty()) return dialogs_.back();
  return window_.get();
}

FormWidget* DesktopView::FrontForm() const {
  return qobject_cast<FormWidget*>(pages_->currentWidget());
}

void DesktopView::AddOverForms(QWidget& widget) {
  column_->insertWidget(column_->count() - 1, &widget);
}

void DesktopView::Refresh() {
  if (refreshing_) {
    again_ = true;
    return;
  }
  {
    const QScopedValueRollback refreshing(refreshing_, true);
    do {
      again_ = false;
      RefreshWindows();
    } while (again_);
  }
  Q_EMIT ActionEnded();
  if (host_.Ended() && dialogs_.empty()) {
    window_->hide();
    Q_EMIT Ended();
  }
}

void DesktopView::RunModal(Form& form) {
  FormDialog dialog(form, FrontWindow());
  dialogs_.push_back(&dialog);
  dialog.Refresh();
  dialog.resize(dialog.sizeHint());  // left alone it takes two thirds of the screen at most
  dialog.exec();
  // Still loaded where the whole desktop is closing and has ended the dialog itself.
  if (form.loaded()) host_.CloseBox(form);
  std::erase(dialogs_, &dialog);
}

void DesktopView::RefreshWindows() {
  DropUnloaded();
  Form* front = nullptr;
  for (Form* form : host_.shown()) {
    if (!host_.IsModal(*form)) front = form;
  }
  if (front != nullptr) {
    ShowInMainWindow(*front);
  } else {
    pages_->setCurrentWidget(no_page_);
  }
  for (FormDialog* dialog : dialogs_) dialog->Refresh();
}

void DesktopView::DropUnloaded() {
  std::erase_if(widgets_, [this](const auto& shown) {
    const auto& [form, widget] = shown;
    if (form->loaded()) return false;
    pages_->removeWidget(widget);
    // Later: this may run within a click of one of its buttons.
    widget->deleteLater();
    return true;
  });
}

void DesktopView::ShowInMainWindow(Form& form) {
  FormWidget*& widget = widgets_[&form];
  if (widget == nullptr) {
    widget = new FormWidget(form);
    pages_->addWidget(widget);
  }
  window_->setWindowTitle(QString::fromStdString(form.Caption));
  widget->Refresh();
  pages_->setCurrentWidget(widget);
  window_->show();
}

void DesktopView::CloseMainWindow() {
  if (!dialogs_.empty()) return;
  if (Form* front = host_.Front()) host_.CloseBox(*front);
}

}  // namespace survey
