#ifndef DESKTOP_CHECKS_PANE_H_
#define DESKTOP_CHECKS_PANE_H_

#include <vector>

#include "checks/site_checks.h"
#include "desktop/pane.h"

namespace survey {

// What an auditor would query, in survey order; leads to each.
class ChecksPane : public Pane {
  Q_OBJECT

 public:
  explicit ChecksPane(QWidget* window);

  // Null: the store could not be read.
  void Refresh(const SiteChecks* checks);

 Q_SIGNALS:
  void Chosen(const Finding& finding);

 private:
  void Add(const QString& table, const QString& text);

  std::vector<Finding> shown_;
};

}  // namespace survey

#endif  // DESKTOP_CHECKS_PANE_H_
