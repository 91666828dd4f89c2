#ifndef TESTS_GRID_TEST_DESIGNS_H_
#define TESTS_GRID_TEST_DESIGNS_H_

#include <memory>
#include <string>
#include <vector>

#include "grid/grid.h"

namespace survey {

// One open cell of a kind.
inline GridDesign OneCell(CellKind kind) {
  return {.columns = 1, .rows = 1, .column_widths = {1000}, .rules = {{{1, 1}, kind}}};
}

// What the user's side of `grid` tells from now on, in its order: "change 2,3".
inline std::shared_ptr<std::vector<std::string>> Listen(Grid& grid) {
  auto heard = std::make_shared<std::vector<std::string>>();
  const auto hear = [heard](const char* what) {
    return [heard, what](int column, int row) {
      heard->push_back(what + (" " + std::to_string(column)) + "," + std::to_string(row));
    };
  };
  grid.on_change = hear("change");
  grid.on_check = hear("check");
  grid.on_click = hear("click");
  grid.on_cell = hear("cell");
  return heard;
}

}  // namespace survey

#endif  // TESTS_GRID_TEST_DESIGNS_H_
