#ifndef PAGES_STUDENT_POPULATION_GROUPS_H_
#define PAGES_STUDENT_POPULATION_GROUPS_H_

#include <vector>

#include "grid/grid_design.h"
#include "records/cell_table.h"

namespace survey {

// What the tables by population group and gender share: the groups over columns 4 to 13, a
// column for each gender, and the row total in column 14.

// The group and gender that each column stands for.
const Axis& PopulationColumns();

// `texts` and the heads of the columns: groups in row 2, genders in row 3.
std::vector<CellText> WithPopulationHeads(std::vector<CellText> texts);

// `spans` and those of the heads.
std::vector<CellRange> WithPopulationSpans(std::vector<CellRange> spans);

}  // namespace survey

#endif  // PAGES_STUDENT_POPULATION_GROUPS_H_
