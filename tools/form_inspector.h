#ifndef TOOLS_FORM_INSPECTOR_H_
#define TOOLS_FORM_INSPECTOR_H_

#include <string>
#include <vector>

#include "desktop_driver.h"

class QAccessibleInterface;

namespace survey {

// Of two colours, as eyes weigh them: 1 where they are alike, 21 for black on white.
double Contrast(const QColor& a, const QColor& b);

// Tries out what is on screen as people with good and with bad eyes, with and without a mouse do,
// and notes a line for each thing that would stop one of them: "frmPage3 cmdSave: is cut off".
class FormInspector {
 public:
  explicit FormInspector(DesktopDriver& user) : user_(user) {}

  // What was noted since the last time; empty where all was well.
  std::vector<std::string> TakeFaults();

  // These change nothing. `window` is one that holds a form, or a message box.

  // Every text is seen whole and stands out from its ground, each table shows cells, and Save is in
  // view.
  void Look(const QWidget& window);
  // Every control, and every open cell, has a name for a screen reader; cells have different ones.
  void Listen(QWidget& window);

  // These work in the form in front.

  // TAB reaches every control that takes keys; no key has two buttons, and each key is told.
  void WalkByTab();
  // Types a figure into every open cell of each table, going on by ENTER alone: the cursor keeps
  // the order of reading, rests on no closed cell and passes no open one by. TAB then leaves.
  void FillTables();
  int tables_filled() const { return tables_filled_; }

 private:
  void Require(bool holds, const QObject& where, const std::string& fault);
  void LookAtForm(const FormWidget& form);
  void LookAt(const QWidget& widget);
  void LookAtTable(const GridView& table);
  void ListenTo(QAccessibleInterface& spoken);
  void ListenToCells(const Grid& grid, QWidget& widget);
  void CheckKeys(const FormWidget& form);
  void FillByEnter(GridControl& grid, const QWidget& widget);
  void ExpectNonePassed(const Grid& grid, Cell from, Cell to, const QWidget& widget);

  DesktopDriver& user_;
  std::vector<std::string> faults_;
  int tables_filled_ = 0;
};

}  // namespace survey

#endif  // TOOLS_FORM_INSPECTOR_H_
