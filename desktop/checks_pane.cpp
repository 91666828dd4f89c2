#include "desktop/checks_pane.h"

#include <algorithm>

namespace survey {
namespace {

enum Column { kTable, kText, kColumns };

}  // namespace

ChecksPane::ChecksPane(QWidget* window)
    : Pane("checksPane", tr("Checks"), new PaneList("checks", kColumns), window) {
  connect(&list(), &PaneList::Chosen, this, [this](QTreeWidgetItem* line) {
    const int at = list().indexOfTopLevelItem(line);
    if (at < std::ssize(shown_)) Q_EMIT Chosen(shown_[at]);
  });
}

void ChecksPane::Refresh(const SiteChecks* checks) {
  const int row = std::max(0, list().indexOfTopLevelItem(list().currentItem()));
  list().clear();
  shown_ = checks == nullptr ? std::vector<Finding>() : checks->findings;
  for (const Finding& finding : shown_) {
    Add(QString::fromStdString(finding.table), QString::fromStdString(finding.text));
  }
  if (checks == nullptr) {
    Add({}, tr("The database could not be read."));
  } else if (shown_.empty()) {
    Add({}, tr("Nothing to report"));
  }
  list().setCurrentItem(list().topLevelItem(std::min(row, list().topLevelItemCount() - 1)));
  setWindowTitle(shown_.empty() ? tr("Checks") : tr("Checks: %1").arg(shown_.size()));
}

void ChecksPane::Add(const QString& table, const QString& text) {
  auto* line = new QTreeWidgetItem(&list(), {table, text});
  line->setToolTip(kText, text);
  line->setData(kTable, Qt::AccessibleTextRole, (table + " " + text).trimmed());
}

}  // namespace survey
