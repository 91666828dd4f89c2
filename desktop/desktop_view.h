#ifndef DESKTOP_DESKTOP_VIEW_H_
#define DESKTOP_DESKTOP_VIEW_H_

#include <QDialog>
#include <QMainWindow>
#include <map>
#include <memory>
#include <vector>

#include "desktop/form_widget.h"
#include "forms/form_host.h"

class QStackedWidget;
class QVBoxLayout;

namespace survey {

class FormDialog;

// Shows the forms: the one in front fills the main window, modal forms are dialogs over it.
class DesktopView : public QObject, public FormsView {
  Q_OBJECT

 public:
  // `host` must outlive the view, and shows its forms by it from now on.
  explicit DesktopView(FormHost& host);
  ~DesktopView() override;

  void Refresh() override;
  void RunModal(Form& form) override;

  QMainWindow& window() const { return *window_; }
  // The form that fills the main window; null for none.
  FormWidget* FrontForm() const;
  // Puts a widget over the form, whichever it is; it belongs to the window from now on.
  void AddOverForms(QWidget& widget);
  // The window that boxes belong to: the last dialog, else the main window.
  QWidget* FrontWindow() const;

 Q_SIGNALS:
  // A user action has ended, and is on screen.
  void ActionEnded();
  // The program has ended; its windows are gone from the screen.
  void Ended();

 private:
  void RefreshWindows();
  void DropUnloaded();
  void ShowInMainWindow(Form& form);
  void CloseMainWindow();

  FormHost& host_;
  std::unique_ptr<QMainWindow> window_;
  QVBoxLayout* column_;  // the stack, and what is over it
  QStackedWidget* pages_;
  QWidget* no_page_;  // seen while a modal form has no other beneath
  std::map<Form*, FormWidget*> widgets_;
  std::vector<FormDialog*> dialogs_;  // the last one in front
  bool refreshing_ = false;
  bool again_ = false;  // something changed during a refresh
};

}  // namespace survey

#endif  // DESKTOP_DESKTOP_VIEW_H_
