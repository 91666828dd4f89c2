#include "desktop/grid_bands.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

namespace survey {

GridBand::GridBand(Qt::Orientation orientation, BandActions actions, QWidget* parent)
    : QHeaderView(orientation, parent), actions_(std::move(actions)) {
  setMinimumSectionSize(1);
  setSectionResizeMode(QHeaderView::Fixed);
  viewport()->setBackgroundRole(QPalette::Window);
}

void GridBand::SetThickness(int thickness) {
  if (orientation() == Qt::Horizontal) {
    setFixedHeight(thickness);
  } else {
    setFixedWidth(thickness);
  }
}

void GridBand::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  actions_.paint(painter, event->rect());
}

// No selecting and no resizing, which QHeaderView does on a press; only a click counts.
void GridBand::mousePressEvent(QMouseEvent* event) { event->accept(); }

void GridBand::mouseMoveEvent(QMouseEvent* event) { event->accept(); }

void GridBand::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && viewport()->rect().contains(event->pos())) {
    actions_.click(event->pos());
  }
}

void GridBand::wheelEvent(QWheelEvent* event) { actions_.wheel(*event); }

GridCorner::GridCorner(BandActions actions, QWidget* parent)
    : QWidget(parent), actions_(std::move(actions)) {}

void GridCorner::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  actions_.paint(painter, event->rect());
}

void GridCorner::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->pos())) {
    actions_.click(event->pos());
  }
}

}  // namespace survey
