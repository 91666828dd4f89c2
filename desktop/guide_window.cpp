#include "desktop/guide_window.h"

#include <QImage>
#include <QKeyEvent>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace survey {
namespace {

constexpr QSize kUsualSize(760, 640);
constexpr int kPictureWidth = 640;
constexpr int kTextMargin = 12;

// Pictures are no wider than the lines of the text.
class GuideText : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;

  QVariant loadResource(int type, const QUrl& name) override {
    QVariant resource = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource) return resource;
    QImage picture = resource.typeId() == QMetaType::QByteArray
                         ? QImage::fromData(resource.toByteArray())
                         : resource.value<QImage>();
    if (picture.width() <= kPictureWidth) return picture;
    return picture.scaledToWidth(kPictureWidth, Qt::SmoothTransformation);
  }
};

}  // namespace

GuideWindow::GuideWindow(QWidget* window)
    : QWidget(window, Qt::Window), text_(new GuideText(this)) {
  setObjectName("guideWindow");
  setWindowTitle(tr("User's guide"));
  resize(kUsualSize.boundedTo(screen()->availableSize()));
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(text_);
  text_->setObjectName("guideText");
  text_->setAccessibleName(windowTitle());
  text_->setFrameShape(QFrame::NoFrame);
  text_->setSource(QUrl("qrc:/guide/guide.md"));
  text_->document()->setDocumentMargin(kTextMargin);
}

void GuideWindow::closeEvent(QCloseEvent* event) {
  QWidget::closeEvent(event);
  Q_EMIT Closed();
}

void GuideWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape && event->key() != Qt::Key_F1) {
    return QWidget::keyPressEvent(event);
  }
  close();
}

}  // namespace survey
