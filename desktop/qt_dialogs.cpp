#include "desktop/qt_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>

#include "desktop/pictures.h"
#include "desktop/system_habits.h"
#include "forms/message_boxes.h"

namespace survey {
namespace {

constexpr int kPictureSize = 48;
constexpr int kButtonsMask = 0xF;
constexpr int kUnnoticed = 500;  // milliseconds that a user waits without asking

QString Title(const std::string& title) {
  return QString::fromStdString(title.empty() ? kProgramName : title);
}

// "Database Files (*.mdb)|*.mdb" names each kind of file, then its pattern; the names hold the
// pattern already.
QString NameFilter(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split('|');
  QStringList names;
  for (qsizetype i = 0; i < parts.size(); i += 2) names << parts[i];
  return names.join(";;");
}

// A name of the survey's may look like markup, or like a letter to underline.
void ShowAsItIs(QLabel& label) {
  label.setTextFormat(Qt::PlainText);
  label.setBuddy(nullptr);
}

// "mdb" of the filter above: what a typed name without an ending gets.
QString Suffix(const std::string& filter) {
  return QString::fromStdString(filter).section("|*.", 1, 1);
}

class QtProgress : public Progress {
 public:
  QtProgress(const QString& title, QWidget* parent) : dialog_(parent) {
    dialog_.setObjectName("Progress");
    dialog_.setWindowTitle(title);
    auto* label = new QLabel;
    label->setAlignment(Qt::AlignCenter);
    ShowAsItIs(*label);
    dialog_.setLabel(label);
    dialog_.setCancelButtonText(QObject::tr("Stop"));
    dialog_.setWindowModality(Qt::ApplicationModal);
    dialog_.setMinimumDuration(kUnnoticed);
    dialog_.setAutoReset(false);
  }

  bool Step(int done, int total, std::string_view what) override {
    dialog_.setMaximum(total);
    dialog_.setLabelText(QString::fromUtf8(what.data(), std::ssize(what)));
    dialog_.setValue(done);  // takes the user's clicks, once the dialog is seen
    return !dialog_.wasCanceled();
  }

 private:
  QProgressDialog dialog_;
};

}  // namespace

QtDialogs::QtDialogs(std::function<QWidget*()> window_in_front)
    : window_in_front_(std::move(window_in_front)) {}

int QtDialogs::ShowMessage(const MessageBox& box) {
  QWidget* parent = window_in_front_();
  QMessageBox message(parent);
  message.setObjectName("MessageBox");
  message.setWindowTitle(Title(box.title));
  message.setTextFormat(Qt::PlainText);
  message.setText(QString::fromStdString(box.prompt).replace("\r\n", "\n"));
  if (box.picture != Picture::kNone) {
    const qreal ratio = parent == nullptr ? qApp->devicePixelRatio() : parent->devicePixelRatioF();
    message.setIconPixmap(BoxPicture(box.picture, kPictureSize, ratio));
  } else if ((box.type & kIconMask) == kInformationIcon) {
    message.setIcon(QMessageBox::Information);  // the toolkit sounds for its own icons alone
  }
  if (message.icon() == QMessageBox::NoIcon) SoundBox(box.picture);
  if ((box.type & kButtonsMask) != kYesNo) {
    message.setStandardButtons(QMessageBox::Ok);
    message.exec();
    return kAnswerOk;
  }
  message.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  message.setDefaultButton((box.type & kSecondButtonDefault) != 0 ? QMessageBox::No
                                                                  : QMessageBox::Yes);
  message.setEscapeButton(QMessageBox::No);
  return message.exec() == QMessageBox::Yes ? kAnswerYes : kAnswerNo;
}

std::string QtDialogs::OpenFile(const std::string& filter, const std::filesystem::path& folder) {
  QFileDialog dialog(window_in_front_(), QObject::tr("Open"), {}, NameFilter(filter));
  dialog.setObjectName("OpenFileDialog");
  dialog.setDirectory(QDir(folder));
  // What is wrong with a file, or that there is none, the program says in its own words.
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setDefaultSuffix(Suffix(filter));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return QDir::toNativeSeparators(dialog.selectedFiles().constFirst()).toStdString();
}

std::string QtDialogs::InputBox(const std::string& prompt, const std::string& title) {
  QInputDialog dialog(window_in_front_());
  dialog.setObjectName("InputBox");
  dialog.setWindowTitle(Title(title));
  const QString text = QString::fromStdString(prompt);
  dialog.sizeHint();  // makes the parts
  for (QLabel* label : dialog.findChildren<QLabel*>()) ShowAsItIs(*label);
  dialog.setLabelText(text);  // not before: a label once told of a letter to underline goes on so
  for (QLineEdit* line : dialog.findChildren<QLineEdit*>()) line->setAccessibleName(text);
  if (dialog.exec() != QDialog::Accepted) return {};
  return dialog.textValue().toStdString();
}

std::unique_ptr<Progress> QtDialogs::BeginProgress(const std::string& title) {
  return std::make_unique<QtProgress>(Title(title), window_in_front_());
}

}  // namespace survey
