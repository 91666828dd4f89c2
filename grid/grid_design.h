#ifndef GRID_GRID_DESIGN_H_
#define GRID_GRID_DESIGN_H_

#include <string>
#include <vector>

#include "grid/cell.h"
#include "grid/color.h"

namespace survey {

// What a cell takes from the user.
struct CellKind {
  enum class Type {
    kLabel,     // fixed text; takes nothing even when unlocked
    kNumber,    // minimum to maximum with at most `decimals` decimals
    kText,      // any characters, at most `length`
    kDigits,    // digits only, at most `length`; leading zeros count
    kDate,      // yyyy/mm/dd, from 1900/01/01 to 2100/12/31
    kCheckBox,  // "1" ticked, "0" unticked by the user, "" untouched
  };

  Type type = Type::kLabel;
  double minimum = 0;
  double maximum = 0;
  int decimals = 0;
  int length = 0;           // characters
  bool upper_case = false;  // text: capitals as it is typed

  bool operator==(const CellKind&) const = default;
};

constexpr CellKind Number(double minimum, double maximum, int decimals = 0) {
  return {CellKind::Type::kNumber, minimum, maximum, decimals, 0, false};
}
constexpr CellKind Text(int length) { return {CellKind::Type::kText, 0, 0, 0, length, false}; }
constexpr CellKind Capitals(int length) { return {CellKind::Type::kText, 0, 0, 0, length, true}; }
constexpr CellKind Digits(int length) { return {CellKind::Type::kDigits, 0, 0, 0, length, false}; }
constexpr CellKind Date() { return {CellKind::Type::kDate, 0, 0, 0, 10, false}; }
constexpr CellKind CheckBoxCell() { return {CellKind::Type::kCheckBox, 0, 0, 0, 0, false}; }

// How a block of cells is set: the last rule that names a cell holds. A cell that no rule names
// is a locked label.
struct CellRule {
  CellRange cells;
  CellKind kind;
  bool open = true;          // takes typing; a closed cell of a kind still formats as that kind
  bool passed_over = false;  // ENTER does not stop at it although it is open
};

struct CellText {
  int column;
  int row;
  std::string text;
};

// A sum that the grid holds by itself. `adds` are the blocks that the first cell of `cells` adds;
// for the others they move along, as when a spreadsheet fills a formula down and right.
struct Total {
  CellRange cells;
  std::vector<CellRange> adds;
};

struct CellShade {
  CellRange cells;
  Color color;
};

enum class Alignment { kLeft, kCenter, kRight };

struct CellAlignment {
  CellRange cells;
  Alignment alignment;
};

// What is fixed about a grid. Written as tables of data in the file of its form; widths and
// heights are in twips (1/1440 inch), the unit of the print positions.
struct GridDesign {
  int columns = 0;
  int rows = 0;
  std::vector<int> column_widths;       // one per column; 0 hides the column
  int row_height = 300;                 // of rows that row_heights does not reach
  std::vector<int> row_heights = {};    // from row 1 on
  int head_rows = 0;                    // rows from the top that stay in view
  int label_columns = 0;                // columns from the left that stay in view
  std::vector<std::string> heads = {};  // texts of row 0, one per column; none: no row 0
  std::vector<CellText> texts = {};
  std::vector<CellRule> rules = {};
  std::vector<Total> totals = {};
  std::vector<CellRange> spans = {};  // blocks drawn as one cell, that of their first corner
  std::vector<CellShade> shades = {};
  std::vector<CellAlignment> alignments = {};  // where the kind's own does not do
  std::vector<CellRange> bold = {};
  std::vector<CellRange> upright = {};  // texts that run from bottom to top, over narrow columns
  Color locked_color = kLockedGrey;     // of all cells that do not take typing
  std::string title = {};               // what a screen reader calls the grid
};

}  // namespace survey

#endif  // GRID_GRID_DESIGN_H_
