#ifndef DESKTOP_PANE_H_
#define DESKTOP_PANE_H_

#include <QDockWidget>
#include <QTreeWidget>
#include <vector>

namespace survey {

// What calls for the user's attention: white on this, and this in front of white.
inline constexpr QRgb kAlarm = 0xFFB00020;
// The colour of a sign that calls for attention, on the ground of a list.
QColor AlarmOn(const QPalette& palette);

// A list in a pane. ENTER or a click chooses a line.
class PaneList : public QTreeWidget {
  Q_OBJECT

 public:
  PaneList(const QString& name, int columns);

 Q_SIGNALS:
  void Chosen(QTreeWidgetItem* line);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

// A pane beside the forms. TAB stays within it and never leads into it, for it goes through the
// controls of the form; whoever owns the pane says which key does.
class Pane : public QDockWidget {
  Q_OBJECT

 public:
  Pane(const QString& name, const QString& title, PaneList* list, QWidget* window);

  PaneList& list() const { return *list_; }
  // Adds a widget below the list.
  void AddBelow(QWidget* widget);

 Q_SIGNALS:
  void CloseAsked();  // by the button of its title
  void Left();        // by Esc, for the form

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  PaneList* list_;
  std::vector<QWidget*> stops_;
};

}  // namespace survey

#endif  // DESKTOP_PANE_H_
