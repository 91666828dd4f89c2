#include "desktop/pictures.h"

#include <QDir>

namespace survey {
namespace {

QString DrawingOf(Picture picture) {
  switch (picture) {
    case Picture::kMessage:
      return QStringLiteral("message");
    case Picture::kSaved:
      return QStringLiteral("saved");
    case Picture::kStop:
      return QStringLiteral("stop");
    case Picture::kQuestion:
      return QStringLiteral("question");
    case Picture::kError:
      return QStringLiteral("error");
    case Picture::kNone:
      break;
  }
  return {};
}

// The drawing in all its sizes.
QIcon IconOf(const QString& drawing) {
  QIcon icon;
  const QDir pictures(QStringLiteral(":/pictures"));
  for (const QString& file : pictures.entryList({drawing + QStringLiteral("-*.png")})) {
    icon.addFile(pictures.filePath(file));
  }
  return icon;
}

}  // namespace

QPixmap BoxPicture(Picture picture, int size, qreal pixel_ratio) {
  if (picture == Picture::kNone) return {};
  return IconOf(DrawingOf(picture)).pixmap(QSize(size, size), pixel_ratio);
}

QIcon ProgramIcon() { return IconOf(QStringLiteral("program")); }

}  // namespace survey
