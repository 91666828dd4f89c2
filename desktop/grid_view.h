#ifndef DESKTOP_GRID_VIEW_H_
#define DESKTOP_GRID_VIEW_H_

#include <QTableView>
#include <memory>

#include "forms/control_kinds.h"

namespace survey {

class EntryNote;
class GridBand;
class GridClipboard;
class GridCorner;
class GridEntry;
class GridModel;
class GridPainter;
class GridSheet;
struct BandActions;

// Shows one survey table, and takes the user's keys and clicks. It holds nothing of the survey: all
// that the user does goes to the grid, and Refresh() shows what the grid then holds. What is typed
// into a cell is the GridEntry's, what is done to a block of cells the GridClipboard's.
//
// An entry runs a user action of the form from inside the view's own event: whoever ends the view
// in such an action must do it by deleteLater().
class GridView : public QTableView {
  Q_OBJECT

 public:
  // `grid` must outlive the view.
  explicit GridView(GridControl& grid, QWidget* parent = nullptr);
  ~GridView() override;

  const Grid& grid() const { return grid_; }

  // Shows what has changed in the grid since the last call; cheap when nothing has.
  void Refresh();

  // Makes an entry of what is being typed, so that Save, Print or a link do not lose it. False
  // when it is refused: the typing then stays open and says why.
  bool CommitEntry();

  // Brings the focus to the first cell to be filled in, or to the last one.
  void Begin(bool at_end);
  // Brings the focus to a cell that code has moved the cursor to, with a word about it, or "".
  void Attend(Cell cell, const std::string& word);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  void keyboardSearch(const QString& search) override;

 Q_SIGNALS:
  // ENTER has gone past the last cell to be filled in, or Shift+ENTER past the first.
  void PassedEnd(bool back);

 protected:
  void changeEvent(QEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void updateGeometries() override;
  void showEvent(QShowEvent* event) override;

 private:
  // The parts of the view, with what scrolls in each.
  enum class Pane { kBody, kHeads, kLabels, kCorner };

  // ---- Looks
  void SetUp();
  void Measure();
  void LayOut();
  void SetSpans();
  void UpdatePanes();
  BandActions ActionsOf(Pane pane);
  CellRange BlockOf(Pane pane) const;
  QPoint OriginOf(Pane pane) const;
  QPoint Scroll() const;
  void PaintPane(Pane pane, QPainter& painter, const QRect& exposed) const;
  void FollowActiveCell();
  void ShowChosenRow();

  // ---- Keys and mouse
  bool TableKey(const QKeyEvent& event);
  bool ListKey(const QKeyEvent& event);
  void GoOn(QKeyEvent* key);
  void Step(bool back);
  void Choose();
  void ClickPane(Pane pane, QPoint place);
  void ClickCell(const QModelIndex& index);
  void TickBeside(Cell label);
  Cell Active() const { return {grid_.ActiveColumn(), grid_.ActiveRow()}; }

  GridControl& grid_;
  const bool list_;  // chosen from by rows, not typed into
  GridModel* model_;
  GridBand* heads_;
  GridBand* labels_;
  GridCorner* corner_;
  std::unique_ptr<GridSheet> sheet_;
  std::unique_ptr<GridPainter> painter_;
  std::unique_ptr<EntryNote> note_;
  GridEntry* entry_;
  std::unique_ptr<GridClipboard> clipboard_;
  std::uint64_t shown_ = 0;  // revision of the grid
  bool following_ = false;   // code moves the cursor, not the user
  bool pressing_ = false;    // the mouse does
  bool pressed_ = false;     // and has done so before
  bool goes_on_ = false;     // the mouse is down in a double click on an entry of a list
  QPoint released_at_;
};

}  // namespace survey

#endif  // DESKTOP_GRID_VIEW_H_
