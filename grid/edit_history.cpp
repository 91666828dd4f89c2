#include "grid/edit_history.h"

#include <algorithm>
#include <utility>

#include "grid/grid.h"

namespace survey {

EditHistory::Block::Block(EditHistory& history) : history_(history) {
  if (history_.blocks_++ == 0) history_.ended_ = false;
}

EditHistory::Block::~Block() {
  if (--history_.blocks_ > 0 || history_.block_.empty()) return;
  history_.done_.push_back(std::exchange(history_.block_, {}));
}

void EditHistory::Record(Grid& grid, Cell cell, std::string before, std::string after) {
  if (replaying_) return;
  undone_.clear();
  Change change{&grid, cell, std::move(before), std::move(after)};
  if (blocks_ == 0) {
    done_.push_back({std::move(change)});
  } else if (!ended_) {  // the rest of a block alone would be half a step
    block_.push_back(std::move(change));
  }
}

void EditHistory::End() {
  ended_ = true;
  done_.clear();
  undone_.clear();
  block_.clear();
}

EditHistory::Replay EditHistory::Undo() {
  if (done_.empty()) return {};
  Step step = done_.back();
  std::ranges::reverse(step);
  for (Change& change : step) std::swap(change.before, change.after);
  const Replay replay = Play(std::move(step));
  if (replay.entry.taken && !ended_) {
    undone_.push_back(std::move(done_.back()));
    done_.pop_back();
  }
  return replay;
}

EditHistory::Replay EditHistory::Redo() {
  if (undone_.empty()) return {};
  const Replay replay = Play(undone_.back());
  if (replay.entry.taken && !ended_) {
    done_.push_back(std::move(undone_.back()));
    undone_.pop_back();
  }
  return replay;
}

EditHistory::Replay EditHistory::Play(Step step) {
  const auto first =
      std::ranges::min_element(step, {}, [](const Change& change) { return change.cell; });
  Replay replay{first->grid, first->cell, MayPlay(step)};
  if (!replay.entry.taken) return replay;
  ended_ = false;
  replaying_ = true;
  for (const Change& change : step) {
    change.grid->Restore(change.cell.column, change.cell.row, change.after);
  }
  replay.grid->MoveTo(replay.cell.column, replay.cell.row);
  replaying_ = false;
  return replay;
}

Entry EditHistory::MayPlay(const Step& step) {
  for (const auto& [grid, cell, before, after] : step) {
    if (Entry entry = grid->MayEnter(cell.column, cell.row); !entry.taken) return entry;
  }
  return {};
}

}  // namespace survey
