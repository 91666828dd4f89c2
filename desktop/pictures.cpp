#include "desktop/pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

namespace survey {
namespace {

// All drawings are made on a sheet of this side and scaled from there.
constexpr int kSheet = 48;

const QColor kBlue(0x1f, 0x5f, 0xa8);
const QColor kLeaf(0x2e, 0x7d, 0x32);
const QColor kAmber(0xc7, 0x6a, 0x00);
const QColor kCrimson(0xb7, 0x1c, 0x1c);

QPainterPath Disc() {
  QPainterPath path;
  path.addEllipse(QRectF(2, 2, 44, 44));
  return path;
}

QPainterPath Octagon() {
  QPolygonF corners;
  for (int corner = 0; corner < 8; ++corner) {
    const qreal angle = M_PI / 8 + corner * M_PI / 4;
    corners << QPointF(24 + 23.5 * qCos(angle), 24 + 23.5 * qSin(angle));
  }
  QPainterPath path;
  path.addPolygon(corners);
  path.closeSubpath();
  return path;
}

QPainterPath Line(const QPolygonF& points) {
  QPainterPath path;
  path.addPolygon(points);
  return path;
}

QPainterPath Dot(qreal y) {
  QPainterPath path(QPointF(24, y));
  path.lineTo(24, y + 0.01);
  return path;
}

QPainterPath LetterI() {
  QPainterPath path = Dot(14);
  path.addPath(Line({{24, 23}, {24, 35}}));
  return path;
}

QPainterPath ExclamationMark() {
  QPainterPath path = Dot(35);
  path.addPath(Line({{24, 12}, {24, 26}}));
  return path;
}

QPainterPath QuestionMark() {
  QPainterPath path;
  path.moveTo(17.5, 18.5);
  path.cubicTo(17.5, 9.5, 31.5, 9.5, 31.5, 18);
  path.cubicTo(31.5, 23.5, 24, 23, 24, 28.5);
  path.addPath(Dot(36.5));
  return path;
}

QPainterPath Cross() {
  QPainterPath path = Line({{16, 16}, {32, 32}});
  path.addPath(Line({{32, 16}, {16, 32}}));
  return path;
}

struct Drawing {
  QPainterPath ground;
  QColor color;
  QPainterPath sign;
};

Drawing DrawingOf(Picture picture) {
  switch (picture) {
    case Picture::kMessage:
      return {Disc(), kBlue, LetterI()};
    case Picture::kSaved:
      return {Disc(), kLeaf, Line({{14, 25}, {21, 32}, {34, 17}})};
    case Picture::kStop:
      return {Octagon(), kAmber, ExclamationMark()};
    case Picture::kQuestion:
      return {Disc(), kBlue, QuestionMark()};
    case Picture::kError:
      return {Disc(), kCrimson, Cross()};
    case Picture::kNone:
      break;
  }
  return {};
}

QPixmap Sheet(int size, qreal pixel_ratio) {
  QPixmap pixmap(QSize(size, size) * pixel_ratio);
  pixmap.setDevicePixelRatio(pixel_ratio);
  pixmap.fill(Qt::transparent);
  return pixmap;
}

void Prepare(QPainter& painter, int size) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(qreal(size) / kSheet, qreal(size) / kSheet);
}

// A printed table with one answer filled in.
QPixmap ProgramPicture(int size) {
  QPixmap pixmap = Sheet(size, 1);
  QPainter painter(&pixmap);
  Prepare(painter, size);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kBlue);
  painter.drawRoundedRect(QRectF(2, 2, 44, 44), 8, 8);
  painter.setBrush(Qt::white);
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 2; ++column) {
      painter.setOpacity(row == 0 ? 0.55 : 1);
      painter.drawRect(QRectF(9 + column * 16, 10 + row * 10, 14, 8));
    }
  }
  painter.setOpacity(1);
  painter.setBrush(QColor(0xff, 0xd5, 0x4f));
  painter.drawRect(QRectF(25, 30, 14, 8));
  return pixmap;
}

}  // namespace

QPixmap BoxPicture(Picture picture, int size, qreal pixel_ratio) {
  if (picture == Picture::kNone) return {};
  const Drawing drawing = DrawingOf(picture);
  QPixmap pixmap = Sheet(size, pixel_ratio);
  QPainter painter(&pixmap);
  Prepare(painter, size);
  painter.fillPath(drawing.ground, drawing.color);
  painter.strokePath(drawing.sign, QPen(Qt::white, 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  return pixmap;
}

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) icon.addPixmap(ProgramPicture(size));
  return icon;
}

}  // namespace survey
