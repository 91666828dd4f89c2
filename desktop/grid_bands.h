#ifndef DESKTOP_GRID_BANDS_H_
#define DESKTOP_GRID_BANDS_H_

#include <QHeaderView>
#include <functional>

namespace survey {

// What a table does for the parts of it that stay in view. Places are the part's own.
struct BandActions {
  std::function<void(QPainter&, const QRect& exposed)> paint;
  std::function<void(QPoint)> click;
  std::function<void(QWheelEvent&)> wheel;
};

// The head rows above a table, or the label columns left of it: they scroll along with it and
// are drawn by it, cell for cell, spans included.
class GridBand : public QHeaderView {
  Q_OBJECT

 public:
  GridBand(Qt::Orientation orientation, BandActions actions, QWidget* parent);

  // Height of the head rows, width of the label columns.
  void SetThickness(int thickness);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  BandActions actions_;
};

// Where the two bands cross; never scrolls.
class GridCorner : public QWidget {
  Q_OBJECT

 public:
  GridCorner(BandActions actions, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  BandActions actions_;
};

}  // namespace survey

#endif  // DESKTOP_GRID_BANDS_H_
