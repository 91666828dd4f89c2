#ifndef DESKTOP_FORM_WIDGET_H_
#define DESKTOP_FORM_WIDGET_H_

#include <QScrollArea>
#include <QVBoxLayout>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "desktop/control_view.h"
#include "forms/form.h"

class QButtonGroup;

namespace survey {

// The contents of one form's window: builds widgets from the form's layout, each under its
// control's name, and shows what the controls hold. It scrolls where the window is too small; the
// form's foot stays in view.
class FormWidget : public QWidget {
  Q_OBJECT

 public:
  // `form` must be loaded, and outlive the widget.
  explicit FormWidget(Form& form, QWidget* parent = nullptr);
  ~FormWidget() override;

  Form& form() const { return form_; }
  // Shows what has changed in the controls, and moves the focus where code has set it.
  void Refresh();
  // Makes entries of all that is being typed; false when one is refused.
  bool CommitEntries();

  // Scrolls as far as needed to show a widget of the form.
  void BringIntoView(QWidget& widget);

  // The contents at a width that is comfortable to read, never more than the screen has.
  QSize sizeHint() const override;

 protected:
  bool focusNextPrevChild(bool next) override;
  void showEvent(QShowEvent* event) override;

 private:
  QVBoxLayout* AddBlock(QWidget& place);
  void Add(const Layout& part, QBoxLayout& box, QWidget* parent);
  static void AddTable(QWidget& table, QBoxLayout& box);
  void AddFields(const Layout& part, QBoxLayout& box, QWidget* parent);
  void AddFrame(const Layout& part, QBoxLayout& box, QWidget* parent);
  void AddParts(const Layout& part, QBoxLayout& box, QWidget* parent);
  QWidget* MakeWidget(Control& control, QWidget* parent);
  void Advise(ControlView& view);
  void NameByLabel(const std::vector<Layout>& row);
  QWidget* WidgetOf(const Control& control) const;
  QButtonGroup* OptionGroup(const std::string& group);
  void FitWidth();
  void BeginEntry();
  bool IsStop(const ControlView& view) const;
  void RunOn(const Control& from, bool back);
  void AddKey(const QKeySequence& key, Qt::ShortcutContext where,
              const std::function<void()>& press);
  void AddHistoryKeys();
  void AddZoomKeys();
  void SetZoom(int percent);
  void ShowZoom(int percent);
  void Attend(const EditHistory::Replay& replay);

  Form& form_;
  QScrollArea* scroll_;
  std::vector<QWidget*> blocks_;  // the scrolled contents, then the foot where there is one
  std::vector<std::unique_ptr<ControlView>> views_;  // in the order of the layout
  const Control* page_frame_ = nullptr;              // that holds all but the foot
  std::vector<const Label*> advice_;                 // of the control that is made next
  std::map<std::string, QButtonGroup*> option_groups_;
  int zoom_ = 100;      // of the tables, in percent
  bool begun_ = false;  // the focus has been given to the control that the user begins with
};

}  // namespace survey

#endif  // DESKTOP_FORM_WIDGET_H_
