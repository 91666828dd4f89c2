#ifndef RECORDS_CODES_H_
#define RECORDS_CODES_H_

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "records/cell_table.h"
#include "records/kept_table.h"
#include "records/record_cells.h"

namespace survey {

// What the numbers in the store mean, read from the heads, labels and questions that the users
// read.

// What stands in a cell, or in the block that is drawn over it: one line, without the marks and
// the counting ("1. ", "* ") before the words.
std::string LabelOf(const GridDesign& design, Cell cell);

// Of the axes of a table, each code once; and `code`, in the column where the page puts it, with no
// meaning.
std::vector<Code> CodesOf(const CellTable& table, const GridDesign& design,
                          std::optional<int> code = {});

// Of the answers whose questions list them, "[1=yes; 2=no]", left of the cell or below that.
std::vector<Code> CodesOf(const char* table, std::span<const Answer> answers,
                          const GridDesign& design);

}  // namespace survey

#endif  // RECORDS_CODES_H_
