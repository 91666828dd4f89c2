#ifndef DESKTOP_STATUS_LINE_H_
#define DESKTOP_STATUS_LINE_H_

#include <QAction>
#include <QLabel>
#include <QStatusBar>
#include <vector>

#include "guide/site_guide.h"

namespace survey {

// A text on one line, cut off with dots where the room ends; the whole is its tooltip.
class ShortLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ShortLabel(const QString& name);
  void Show(const std::string& text);
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// The foot of the window: where the user is, what the cell under the cursor takes, and buttons for
// the window's own keys.
class StatusLine : public QStatusBar {
  Q_OBJECT

 public:
  explicit StatusLine(const std::vector<QAction*>& actions);

  void Show(const Whereabouts& where);
  void ShowCell(const std::string& facts);

 private:
  ShortLabel* Add(const QString& name, int share);

  ShortLabel* site_;
  ShortLabel* database_;
  ShortLabel* page_;
  ShortLabel* saved_;
  ShortLabel* cell_;
  QLabel* year_;
};

}  // namespace survey

#endif  // DESKTOP_STATUS_LINE_H_
