#include "desktop/entry_line.h"

#include <QPaintEvent>
#include <QPainter>

namespace survey {
namespace {

constexpr QColor kRefusal(192, 0, 0);
constexpr int kFrameWidth = 2;  // pixels

}  // namespace

void EntryLine::SetRefused(bool refused) {
  refused_ = refused;
  update();
}

void EntryLine::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (!refused_) return;
  QPainter painter(this);
  painter.setPen(QPen(kRefusal, kFrameWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  const int inset = kFrameWidth / 2;
  painter.drawRect(rect().adjusted(inset, inset, -inset, -inset));
}

}  // namespace survey
