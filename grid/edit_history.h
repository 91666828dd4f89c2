#ifndef GRID_EDIT_HISTORY_H_
#define GRID_EDIT_HISTORY_H_

#include <string>
#include <vector>

#include "grid/cell.h"
#include "grid/entry.h"

namespace survey {

class Grid;

// What the user has done to the cells of some grids, in steps that can be taken back and done
// again. A write by code ends it: the cells do not hold what the steps started from any more.
class EditHistory {
 public:
  // What is done while it lives is one step, be it in a thousand cells.
  class Block {
   public:
    // `history` must outlive the block.
    explicit Block(EditHistory& history);
    ~Block();
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;

   private:
    EditHistory& history_;
  };

  // What has been taken back, or done again.
  struct Replay {
    Grid* grid = nullptr;  // null: there was no step
    Cell cell;             // its first one, where the cursor is now
    Entry entry;  // refused where a cell of the step has been closed; it then stays as it was
  };
  // Through the user's side of the grids, which tell the forms of it as of any entry.
  Replay Undo();
  Replay Redo();

  // The grids': the user has changed what a cell held.
  void Record(Grid& grid, Cell cell, std::string before, std::string after);
  // The grids': code has.
  void End();

 private:
  struct Change {
    Grid* grid;
    Cell cell;
    std::string before;
    std::string after;
  };
  using Step = std::vector<Change>;

  Replay Play(Step step);
  static Entry MayPlay(const Step& step);

  std::vector<Step> done_;
  std::vector<Step> undone_;  // the one to do again last
  Step block_;
  int blocks_ = 0;  // that live, within each other
  bool replaying_ = false;
  bool ended_ = false;  // within the block or the replay that is under way
};

}  // namespace survey

#endif  // GRID_EDIT_HISTORY_H_
