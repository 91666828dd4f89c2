#ifndef DESKTOP_GUIDE_WINDOW_H_
#define DESKTOP_GUIDE_WINDOW_H_

#include <QWidget>

class QTextBrowser;

namespace survey {

// The users' guide, which comes with the program.
class GuideWindow : public QWidget {
  Q_OBJECT

 public:
  // A window of its own that goes with `window`.
  explicit GuideWindow(QWidget* window);

 Q_SIGNALS:
  void Closed();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;  // Esc and F1 close it

 private:
  QTextBrowser* text_;
};

}  // namespace survey

#endif  // DESKTOP_GUIDE_WINDOW_H_
