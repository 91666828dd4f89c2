#include "desktop/status_line.h"

#include <QPainter>
#include <QStyle>
#include <QToolButton>

#include "desktop/year_band.h"

namespace survey {
namespace {

constexpr int kLeastCharacters = 3;
constexpr int kMargin = 6;

}  // namespace

// ---- ShortLabel ----------------------------------------------------------------------------

ShortLabel::ShortLabel(const QString& name) {
  setObjectName(name);
  setTextFormat(Qt::PlainText);
  hide();
}

void ShortLabel::Show(const std::string& text) {
  const QString shown = QString::fromStdString(text);
  if (this->text() != shown) {
    setText(shown);
    setToolTip(shown);
  }
  setVisible(!shown.isEmpty());
}

QSize ShortLabel::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * kLeastCharacters, QLabel::minimumSizeHint().height()};
}

void ShortLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QString part = fontMetrics().elidedText(text(), Qt::ElideRight, width());
  style()->drawItemText(&painter, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                        part, foregroundRole());
}

// ---- StatusLine ----------------------------------------------------------------------------

StatusLine::StatusLine(const std::vector<QAction*>& actions)
    : site_(Add("statusSite", 3)),
      database_(Add("statusDatabase", 2)),
      page_(Add("statusPage", 0)),
      saved_(Add("statusSaved", 0)),
      cell_(Add("statusCell", 4)),
      year_(new QLabel) {
  setObjectName("statusLine");
  setSizeGripEnabled(false);
  setContentsMargins(kMargin, 0, kMargin, 0);
  year_->setObjectName("statusYear");
  year_->setMargin(2);
  year_->hide();
  PaintAlarm(*year_);
  addPermanentWidget(year_);
  for (QAction* action : actions) {
    auto* button = new QToolButton;
    button->setObjectName(action->objectName() + "Button");
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    addPermanentWidget(button);
  }
}

ShortLabel* StatusLine::Add(const QString& name, int share) {
  auto* label = new ShortLabel(name);
  addWidget(label, share);
  return label;
}

void StatusLine::Show(const Whereabouts& where) {
  site_->Show(where.site);
  database_->Show(where.database);
  page_->Show(where.page);
  saved_->Show(where.saved);
  year_->setText(QString::fromStdString(where.year));
  year_->setToolTip(QString::fromStdString(where.warning));
  year_->setVisible(!where.year.empty());
}

void StatusLine::ShowCell(const std::string& facts) { cell_->Show(facts); }

}  // namespace survey
