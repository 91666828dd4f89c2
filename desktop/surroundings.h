#ifndef DESKTOP_SURROUNDINGS_H_
#define DESKTOP_SURROUNDINGS_H_

#include <QAction>
#include <QPointer>
#include <functional>

#include "desktop/checks_pane.h"
#include "desktop/contents_pane.h"
#include "desktop/desktop_view.h"
#include "desktop/grid_view.h"
#include "desktop/guide_window.h"
#include "desktop/status_line.h"
#include "desktop/window_memory.h"
#include "desktop/year_band.h"
#include "guide/site_guide.h"

namespace survey {

// What stands around the forms in the main window and is not theirs: the panes with the contents of
// the survey and its checks, the status line, the band that warns of another year, the users'
// guide, and where all this was left in the run before. It takes nothing from the forms but what
// anybody can see there.
class Surroundings : public QObject {
  Q_OBJECT

 public:
  // Both must outlive it. Before the first form is shown.
  Surroundings(DesktopView& view, FormHost& host);

 protected:
  // The window has another size.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QAction* AddAction(const char* name, const QString& text, Qt::Key key,
                     const std::function<void()>& run);
  void AddPane(Pane& pane, Qt::DockWidgetArea area, QAction& action);
  void Connect();

  void Refresh();
  void ShowPanes();
  bool Wants(const Pane& pane) const;
  void Toggle(Pane& pane, bool shown);
  void FollowFocus(const QWidget* focus);
  void ShowCell();

  void GoOn();  // to the next pane, or to the form
  void FocusForm();
  void Lead(const std::function<bool()>& go);
  void LeadToCell(const Finding& finding);
  void PrintAllPages();
  void OpenGuide();

  DesktopView& view_;
  FormHost& host_;
  SiteGuide guide_;
  WindowMemory memory_;
  QAction* contents_action_;
  QAction* checks_action_;
  QAction* guide_action_;
  ContentsPane* contents_;
  ChecksPane* checks_;
  StatusLine* status_;
  YearBand* band_;
  QPointer<GuideWindow> guide_window_;
  QPointer<GridView> table_;  // that has the focus
  QMetaObject::Connection selection_;
  std::uint64_t shown_reading_ = 0;
};

}  // namespace survey

#endif  // DESKTOP_SURROUNDINGS_H_
