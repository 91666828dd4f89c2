#ifndef DESKTOP_GRID_DELEGATE_H_
#define DESKTOP_GRID_DELEGATE_H_

#include <QLineEdit>
#include <QPointer>
#include <QStyledItemDelegate>
#include <functional>
#include <optional>

#include "grid/grid.h"

namespace survey {

// What a table does for the line that its user types into.
struct EditorActions {
  std::function<bool(QKeyEvent&)> key;              // true: done with it
  std::function<void(Qt::FocusReason)> focus_lost;  // the user works elsewhere
  std::function<void(const std::string&)> refuse;   // a key would make no entry, and why
  std::function<void()> commit;                     // the cursor leaves the cell
};

// Makes the line that a cell is typed into. Each key is put to the grid first: one that cannot
// lead to an entry changes nothing.
class GridDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  // `grid` must outlive the delegate.
  GridDelegate(const Grid& grid, QFont font, EditorActions actions, QObject* parent);

  // The open line; null while nothing is typed. The view owns it.
  QLineEdit* editor() const { return editor_; }
  // The cell it types into.
  Cell cell() const { return cell_; }
  // Whether the line differs from what the cell held when typing began.
  bool IsChanged() const { return editor_ && editor_->text() != before_; }

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;
  void destroyEditor(QWidget* editor, const QModelIndex& index) const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

 private:
  const Grid& grid_;
  QFont font_;
  EditorActions actions_;
  mutable QPointer<QLineEdit> editor_;  // Qt asks for it in const functions
  mutable Cell cell_;
  mutable std::optional<QString> before_;
};

}  // namespace survey

#endif  // DESKTOP_GRID_DELEGATE_H_
