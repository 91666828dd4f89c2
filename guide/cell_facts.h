#ifndef GUIDE_CELL_FACTS_H_
#define GUIDE_CELL_FACTS_H_

#include <string>
#include <vector>

#include "grid/grid.h"

namespace survey {

// What a cell takes, "0 to 99999, whole number"; "" for one that only shows. Of a total: what its
// colour means.
std::string CellFacts(const Grid& grid, Cell cell);

// Sum and count of the numbers in several cells, "Sum 128, count 4"; "" where there are none.
std::string SumOf(const Grid& grid, const std::vector<Cell>& cells);

}  // namespace survey

#endif  // GUIDE_CELL_FACTS_H_
