#include "desktop/year_band.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QPushButton>

#include "desktop/pane.h"

namespace survey {

void PaintAlarm(QWidget& widget) {
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Window, kAlarm);
  palette.setColor(QPalette::WindowText, Qt::white);
  widget.setPalette(palette);
  widget.setAutoFillBackground(true);
  QFont bold = widget.font();
  bold.setBold(true);
  widget.setFont(bold);
}

YearBand::YearBand() : text_(new QLabel) {
  setObjectName("yearBand");
  auto* row = new QHBoxLayout(this);
  text_->setObjectName("yearWarning");
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  PaintAlarm(*this);
  PaintAlarm(*text_);
  row->addWidget(text_, 1);
  auto* back = new QPushButton(tr("Back to 2012"));
  back->setObjectName("backToYear");
  back->setAutoDefault(false);
  back->setFocusPolicy(Qt::ClickFocus);
  connect(back, &QPushButton::clicked, this, &YearBand::BackAsked);
  row->addWidget(back);
  hide();
}

void YearBand::Show(const std::string& warning) {
  const QString told = QString::fromStdString(warning);
  setVisible(!warning.empty());
  if (text_->text() == told) return;
  text_->setText(told);
  QAccessibleEvent alert(text_, QAccessible::Alert);
  if (!warning.empty()) QAccessible::updateAccessibility(&alert);
}

}  // namespace survey
