#include "desktop/form_area.h"

#include <QEvent>
#include <QLayout>
#include <QStyle>
#include <algorithm>

namespace survey {

int BarWidth(const QWidget& widget) {
  return widget.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &widget);
}

int FormContents::heightForWidth(int width) const {
  return layout()->hasHeightForWidth() ? layout()->minimumHeightForWidth(width)
                                       : layout()->totalMinimumSize().height();
}

void FormArea::resizeEvent(QResizeEvent* event) {
  FitContents();
  QScrollArea::resizeEvent(event);
}

bool FormArea::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) FitContents();
  return QScrollArea::eventFilter(watched, event);
}

void FormArea::FitContents() {
  const int bar = BarWidth(*this);
  const int least = widget()->minimumSizeHint().width();
  const bool too_wide = least > width() - bar;
  const QSize room(width() - bar, height() - (too_wide ? bar : 0));
  const int across = std::max(room.width(), least);
  const int down = widget()->heightForWidth(across);
  const bool too_high = down > room.height();
  setHorizontalScrollBarPolicy(too_wide ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(too_high ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  setViewportMargins(0, 0, too_high ? 0 : bar, 0);
  widget()->resize(across, std::max(down, room.height()));
}

}  // namespace survey
