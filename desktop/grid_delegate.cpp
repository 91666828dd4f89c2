#include "desktop/grid_delegate.h"

#include <QKeyEvent>
#include <QValidator>
#include <utility>

#include "desktop/grid_names.h"

namespace survey {
namespace {

// Lets a line hold only what may still become an entry.
class EntryValidator : public QValidator {
 public:
  EntryValidator(const Grid& grid, Cell cell, QObject* parent)
      : QValidator(parent), grid_(grid), cell_(cell) {}

  const std::string& reason() const { return reason_; }

  State validate(QString& input, int&) const override {
    if (grid_.Kind(cell_.column, cell_.row).upper_case) input = input.toUpper();
    const Entry entry = grid_.MayBecome(cell_.column, cell_.row, input.toStdString());
    if (entry.taken || input.isEmpty()) return Acceptable;
    reason_ = entry.reason;
    return Invalid;
  }

 private:
  const Grid& grid_;
  Cell cell_;
  mutable std::string reason_;
};

// Black on white as the open cell itself, under any desktop colours.
QPalette EntryColors() {
  QPalette palette;
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::Highlight, QColor(0, 60, 140));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

Qt::Alignment SideOf(Alignment alignment) {
  if (alignment == Alignment::kRight) return Qt::AlignRight;
  return alignment == Alignment::kCenter ? Qt::AlignHCenter : Qt::AlignLeft;
}

}  // namespace

GridDelegate::GridDelegate(const Grid& grid, QFont font, EditorActions actions, QObject* parent)
    : QStyledItemDelegate(parent),
      grid_(grid),
      font_(std::move(font)),
      actions_(std::move(actions)) {}

QWidget* GridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const {
  cell_ = {index.column() + 1, index.row() + 1};
  auto* line = new QLineEdit(parent);
  line->setObjectName(QStringLiteral("cellEditor"));
  line->setAccessibleName(CellName(grid_, cell_));
  line->setFont(font_);
  line->setPalette(EntryColors());
  line->setFrame(false);
  line->setAlignment(SideOf(grid_.AlignmentOf(cell_.column, cell_.row)) | Qt::AlignVCenter);
  auto* validator = new EntryValidator(grid_, cell_, line);
  line->setValidator(validator);
  connect(line, &QLineEdit::inputRejected, this,
          [this, validator] { actions_.refuse(validator->reason()); });
  editor_ = line;
  before_.reset();
  return line;
}

// Qt sets the line again whenever the table changes; what is being typed must outlast that.
void GridDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  if (before_) return;
  QStyledItemDelegate::setEditorData(editor, index);
  before_ = editor_->text();
}

void GridDelegate::setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const {
  actions_.commit();
}

void GridDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex&) const {
  editor->setGeometry(option.rect.adjusted(1, 1, -2, -2));
}

void GridDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const {
  editor_ = nullptr;
  QStyledItemDelegate::destroyEditor(editor, index);
}

// The table decides what keys and leaving mean; Qt's own rules would drop a refused text without
// a word.
bool GridDelegate::eventFilter(QObject* watched, QEvent* event) {
  if (watched != editor_) return false;
  if (event->type() == QEvent::KeyPress) return actions_.key(static_cast<QKeyEvent&>(*event));
  if (event->type() == QEvent::FocusOut) {
    actions_.focus_lost(static_cast<QFocusEvent&>(*event).reason());
    return false;
  }
  if (event->type() == QEvent::ShortcutOverride &&
      static_cast<QKeyEvent&>(*event).key() == Qt::Key_Escape) {
    event->accept();  // else a dialog around the table would close
    return true;
  }
  return false;
}

// A box is ticked through the grid alone.
bool GridDelegate::editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&,
                               const QModelIndex&) {
  return false;
}

}  // namespace survey
