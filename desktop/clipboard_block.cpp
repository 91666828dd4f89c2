#include "desktop/clipboard_block.h"

namespace survey {
namespace {

constexpr QChar kQuote = u'"';
constexpr QChar kTab = u'\t';
constexpr QChar kLineEnd = u'\n';

bool EndsCell(const QString& text, qsizetype at) {
  return at >= text.size() || text[at] == kTab || text[at] == kLineEnd;
}

// The quote that closes the cell opened at `at`; -1 where none does. A cell that merely begins
// with a quote is written as it is, and would else swallow what follows.
qsizetype ClosingQuote(const QString& text, qsizetype at) {
  for (++at; at < text.size(); ++at) {
    if (text[at] != kQuote) continue;
    if (at + 1 >= text.size() || text[at + 1] != kQuote) return EndsCell(text, at + 1) ? at : -1;
    ++at;
  }
  return -1;
}

// Reads the cell that starts at `at` and leaves `at` on the tab or line end behind it.
QString ReadCell(const QString& text, qsizetype& at) {
  const qsizetype start = at;
  if (const qsizetype close = text[at] == kQuote ? ClosingQuote(text, at) : -1; close > 0) {
    at = close + 1;
    return text.mid(start + 1, close - start - 1).replace(QStringLiteral("\"\""), kQuote);
  }
  while (!EndsCell(text, at)) ++at;
  return text.mid(start, at - start);
}

QString WriteCell(QString cell) {
  if (!cell.contains(kTab) && !cell.contains(kLineEnd) && !cell.contains(kQuote)) return cell;
  return kQuote + cell.replace(kQuote, QStringLiteral("\"\"")) + kQuote;
}

}  // namespace

ClipboardBlock ParseBlock(const QString& text) {
  QString plain = text;
  plain.replace(QStringLiteral("\r\n"), kLineEnd).replace(u'\r', kLineEnd);
  ClipboardBlock block;
  qsizetype at = 0;
  while (at < plain.size()) {
    QStringList row;
    while (true) {
      row << (at < plain.size() ? ReadCell(plain, at) : QString());
      if (at >= plain.size() || plain[at] != kTab) break;
      ++at;
    }
    ++at;  // the line end
    block.push_back(row);
  }
  return block;
}

QString WriteBlock(const ClipboardBlock& block) {
  QStringList lines;
  for (const QStringList& row : block) {
    QStringList cells;
    for (const QString& cell : row) cells << WriteCell(cell);
    lines << cells.join(kTab);
  }
  return lines.join(kLineEnd);
}

}  // namespace survey
