#ifndef DESKTOP_FORM_AREA_H_
#define DESKTOP_FORM_AREA_H_

#include <QScrollArea>

namespace survey {

// The width of a vertical scroll bar there, in pixels.
int BarWidth(const QWidget& widget);

// What scrolls as a whole only when its parts cannot be made any smaller. A scroll area asks for
// the height that its contents would like, and would rather scroll a large table out of view,
// heads and all, than let it scroll by itself.
class FormContents : public QWidget {
 public:
  int heightForWidth(int width) const override;
};

// Scrolls a form. The room of the vertical bar is kept where there is none, so that long and short
// forms have the same edges. It sizes its contents itself: left to do so, Qt keeps a bar once it
// was needed, although the texts may need no scrolling without it, and narrows what scrolls by
// another bar.
class FormArea : public QScrollArea {
 public:
  using QScrollArea::QScrollArea;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FitContents();
};

}  // namespace survey

#endif  // DESKTOP_FORM_AREA_H_
