#include "desktop/contents_pane.h"

#include <QEvent>
#include <QPushButton>

namespace survey {
namespace {

enum Column { kTables, kSign, kAbout, kColumns };

QString Text(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

ContentsPane::ContentsPane(QWidget* window)
    : Pane("contentsPane", tr("Contents"), new PaneList("contents", kColumns), window) {
  connect(&list(), &PaneList::Chosen, this, [this](QTreeWidgetItem* line) {
    QTreeWidgetItem* part = line->parent();
    if (part == nullptr) return;
    const int at = list().indexOfTopLevelItem(part);
    Q_EMIT Chosen(shown_[at].entries[part->indexOfChild(line)]);
  });
  auto* print = new QPushButton(tr("Print all pages of 2012"));
  print->setObjectName("printAllPages");
  print->setToolTip(tr("The sheets of Print Campus Survey with the saved figures of 2012"));
  print->setAutoDefault(false);
  connect(print, &QPushButton::clicked, this, &ContentsPane::PrintAsked);
  AddBelow(print);
}

void ContentsPane::Refresh(const std::vector<ContentsPart>& contents) {
  if (contents == shown_) return;
  shown_ = contents;
  if (list().topLevelItemCount() == 0) Build();
  for (std::size_t part = 0; part < shown_.size(); ++part) {
    for (std::size_t at = 0; at < shown_[part].entries.size(); ++at) {
      QTreeWidgetItem* of = list().topLevelItem(static_cast<int>(part));
      Show(*of->child(static_cast<int>(at)), shown_[part].entries[at]);
    }
  }
}

// Which lines there are never changes.
void ContentsPane::Build() {
  QFont bold = font();
  bold.setBold(true);
  for (const ContentsPart& part : shown_) {
    auto* title = new QTreeWidgetItem(&list(), {Text(part.title)});
    title->setFont(kTables, bold);
    title->setFirstColumnSpanned(true);
    title->setFlags(Qt::ItemIsEnabled);
    for (std::size_t i = 0; i < part.entries.size(); ++i) new QTreeWidgetItem(title);
    title->setExpanded(true);
  }
}

void ContentsPane::Show(QTreeWidgetItem& line, const ContentsEntry& entry) {
  const std::string_view sign = SignOf(entry.state);
  const bool alarm =
      entry.state == EntryState::kIncomplete || entry.state == EntryState::kUnbalanced;
  QString told = Text(entry.tables + " " + entry.about).trimmed();
  if (!entry.words.empty()) told += ": " + Text(entry.words);
  line.setText(kTables, Text(entry.tables));
  line.setText(kSign, QString::fromUtf8(sign.data(), std::ssize(sign)));
  line.setText(kAbout, Text(entry.about));
  line.setForeground(kSign, alarm ? QBrush(AlarmOn(palette())) : QBrush());
  // Told once, where the cursor is.
  line.setData(kTables, Qt::AccessibleTextRole, told);
  QFont font = this->font();
  font.setBold(entry.in_front);
  for (const int column : {kTables, kSign, kAbout}) {
    line.setToolTip(column, told);
    line.setFont(column, font);
  }
  if (entry.in_front) list().setCurrentItem(&line);
}

void ContentsPane::changeEvent(QEvent* event) {
  Pane::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) Refresh(std::exchange(shown_, {}));
}

}  // namespace survey
