// The tables that are kept as one record for each filled cell: their limits, and in
// cell_tables.txt every statement, and the codes of every cell. What is odd about some of them
// stands in table_quirks_test.cpp.

#include <fstream>

#include "support/page_test.h"

namespace survey::testing {
namespace {

// Cells that take typing.
struct Block {
  CellRange cells;
  const char* most;
  const char* too_much;
};

struct CellTableCase {
  const char* grid;
  int index;
  std::vector<Block> open;
  const char* too_fine;       // a figure of too many decimals
  std::vector<Typed> totals;  // when every open cell holds the most
  bool sets_mark = true;
};

struct TablePage {
  std::string page;
  std::vector<CellTableCase> tables;
};

// clang-format off
TablePage NcvLevel(const char* page, const char* grid, const char* most_of_20,
                   const char* too_much_for_20, const char* total) {
  return {page,
          {{grid, 1, {{{4, 4, 13, 19}, "9999", "10000"},
                      {{4, 20, 13, 20}, most_of_20, too_much_for_20},
                      {{4, 21, 13, 22}, "9999", "10000"}}, "1.5",
            {{14, 4, "99990"}, {14, 23, total}}}}};
}

const std::vector<TablePage>& Pages() {
  static const std::vector<TablePage> pages = {
      {"frmPage4",
       {{"gridPage4_2", kNoIndex, {{{4, 4, 11, 9}, "9999", "10000"}}, "99.5",
         {{12, 4, "79992"}, {4, 10, "59994"}, {12, 10, "479952"}}},
        {"gridLectureStaff", kNoIndex, {{{3, 3, 6, 6}, "9999", "10000"}}, "1.5",
         {{7, 3, "39996"}, {3, 7, "39996"}, {7, 7, "159984"}}}}},
      {"frmStudentTotal",
       {{"gridEnrolment", kNoIndex, {{{3, 4, 12, 4}, "999999", "1000000"}}, "1.5",
         {{13, 4, "9999990"}}},
        {"gridAgreements", kNoIndex, {{{3, 4, 10, 6}, "99999", "100000"}}, "1.5",
         {{11, 4, "799992"}, {3, 7, "299997"}, {11, 7, "2399976"}}}}},
      {"frmPage3",
       {{"gridEnrolment", kNoIndex, {{{7, 3, 10, 8}, "99999", "100000"},
                                     {{5, 9, 10, 14}, "99999", "100000"},
                                     {{4, 15, 4, 24}, "99999", "100000"},
                                     {{4, 25, 10, 30}, "99999", "100000"}}, "1.5",
         {{11, 3, "399996"}, {11, 14, "599994"}, {11, 24, "99999"}, {11, 30, "699993"}}}}},
      {"frmPage5",
       {{"gridFTE", 1, {{{4, 3, 6, 5}, "9999999.99", "9999999.991"}}, "1.2345",
         {{7, 3, "29999999.97"}, {7, 6, "89999999.91"}}},
        {"gridFTE", 2, {{{4, 3, 6, 3}, "9999999.99", "9999999.991"}}, "1.2345",
         {{7, 3, "29999999.97"}}},
        {"gridFTE", 0, {{{4, 3, 6, 8}, "9999999.99", "9999999.991"}}, "1.2345",
         {{7, 8, "29999999.97"}, {7, 9, "179999999.82"}}},
        {"gridReport191", 2, {{{4, 4, 13, 6}, "9999", "10000"}}, "1.5",
         {{14, 6, "99990"}, {14, 7, "299970"}}, false}}},
      {"frmPage6_1",
       {{"gridPage6_2", 1, {{{4, 4, 13, 9}, "9999", "10000"}}, "1.5", {{14, 10, "599940"}}},
        {"gridPage6_2", 0, {{{4, 4, 13, 9}, "9999", "10000"}}, "1.5", {{14, 10, "599940"}}},
        {"grid191", 0, {{{4, 4, 13, 9}, "9999", "10000"}}, "1.5",
         {{14, 9, "99990"}, {14, 10, "599940"}}, false}}},
      NcvLevel("frmPage8", "gridNCV", "99999", "100000", "2799810"),
      NcvLevel("frmPage9", "gridNCV", "99999", "100000", "2799810"),
      NcvLevel("frmPage9_1", "gridPage8_2", "9999", "10000", "1899810"),
      {"frmPage12_2",
       {{"gridPage12_1", 0, {{{4, 4, 13, 15}, "9999", "10000"}}, "1.5", {{14, 16, "1199880"}}}}},
      {"frmPage9_10",
       {{"gridPage9_1", kNoIndex, {{{2, 3, 20, 28}, "9999999", "10000000"}}, "1.5",
         {{21, 28, "189999981"}, {20, 29, "259999974"}, {21, 29, "4939999506"}}}}},
      {"frmPage9_10_1",
       {{"gridPage9_1", kNoIndex, {{{2, 4, 13, 29}, "9999999", "10000000"}}, "1.5",
         {{14, 29, "59999994"}, {15, 30, "1559999844"}, {13, 30, "259999974"}}}}},
      {"frmPage14",
       {{"gridPage9_1", kNoIndex, {{{2, 4, 11, 19}, "9999999.99", "10000000"},
                                   {{12, 14, 13, 14}, "7", "10000000"}}, "1.255",
         {{12, 4, "49999999.95"}, {2, 20, "159999999.84"}, {13, 20, "750000006.25"}}}}},
  };
  return pages;
}
// clang-format on

// What cell_tables.txt says of a page.
std::string Expected(const std::string& page) {
  std::ifstream file(SURVEY_TESTS "/pages/cell_tables.txt");
  std::string text, line;
  while (std::getline(file, line) && line != page) continue;
  while (std::getline(file, line) && !line.starts_with("frm")) text += line + "\n";
  return text;
}

// One statement a line, behind equal inserts the codes and the figure of each: "1,4,1=703".
std::string Listed(const std::vector<std::string>& statements) {
  constexpr std::string_view kValues = "VALUES(101,202,";
  constexpr std::string_view kYear = ",2012,";
  std::string text, insert;
  std::size_t width = 0;
  for (const std::string& statement : statements) {
    const std::size_t values = statement.find(kValues);
    if (insert != statement.substr(0, values)) {
      insert = statement.substr(0, values);
      text += (text.empty() ? "" : "\n") + insert;
      width = 100;
    }
    if (values == std::string::npos) continue;
    std::string cell = statement.substr(values + kValues.size());
    cell.replace(cell.find(kYear), kYear.size(), "=").pop_back();
    width += 1 + cell.size();
    const bool fits = width <= 98;
    text += (fits ? " " : "\n  ") + cell;
    if (!fits) width = 2 + cell.size();
  }
  return text + "\n";
}

struct CellTablesTest : PageTest, ::testing::WithParamInterface<TablePage> {
  CellTablesTest() : PageTest(GetParam().page, "") {}
  GridControl& Of(const CellTableCase& table) {
    return The<GridControl>(GetParam().page, table.grid, table.index);
  }
  // A figure for each open cell that names its column and row, and a zero in the last. Decimals
  // name the grid, where several go into one table.
  std::vector<Typed> Figures(const CellTableCase& table) {
    const GridControl& grid = Of(table);
    const std::string decimals = "." + std::to_string(&table - GetParam().tables.data() + 1);
    std::vector<Typed> figures;
    for (const Block& block : table.open) {
      const auto& [first, top, last, bottom] = block.cells;
      for (int row = top; row <= bottom; ++row) {
        for (int column = first; column <= last; ++column) {
          if (grid.IsTotal(column, row)) continue;
          figures.push_back({column, row, std::to_string(100 * column + row)});
          if (grid.Kind(column, row).decimals > 0) figures.back().text += decimals;
        }
      }
    }
    figures.back().text = "0";
    return figures;
  }
};

TEST_P(CellTablesTest, TakesWhatItsCellsMayHoldAndAddsItUp) {
  for (const CellTableCase& table : GetParam().tables) {
    SCOPED_TRACE(table.grid + std::to_string(table.index));
    EXPECT_FALSE(Unsaved());
    GridControl& grid = Of(table);
    std::vector<CellRange> open;
    for (const auto& [cells, most, too_much] : table.open) {
      open.push_back(cells);
      for (int row = cells.row; row <= cells.last_row; ++row) {
        for (int column = cells.column; column <= cells.last_column; ++column) {
          EXPECT_TRUE(grid.Type(column, row, most).taken) << column << "," << row;
          for (const char* refused : {too_much, table.too_fine}) {
            EXPECT_FALSE(grid.Type(column, row, refused).taken) << column << "," << row;
          }
        }
      }
    }
    ExpectOpen(grid, open);
    for (const auto& [column, row, total] : table.totals) {
      EXPECT_EQ(grid.GetText(column, row), total);
    }
    EXPECT_EQ(Unsaved(), table.sets_mark);
    The<Button>(GetParam().page, "cmdSave").BackColor = kButtonFace;
  }
}

TEST_P(CellTablesTest, StoresEveryCellUnderItsCodesAndShowsItAgain) {
  for (const CellTableCase& table : GetParam().tables) Fill(Of(table), Figures(table));
  EXPECT_TRUE(Unsaved());
  statements.clear();
  Save();
  EXPECT_FALSE(Unsaved());
  std::string listed = Listed(statements);
  Reopen();
  listed += Listed(statements);
  EXPECT_EQ(listed, Expected(GetParam().page)) << listed;
  for (const CellTableCase& table : GetParam().tables) {
    for (const auto& [column, row, text] : Figures(table)) {
      if (text == "0") continue;  // some do not store it
      EXPECT_EQ(Of(table).GetText(column, row), text) << column << "," << row;
    }
  }
  EXPECT_FALSE(Unsaved());
}

INSTANTIATE_TEST_SUITE_P(, CellTablesTest, ::testing::ValuesIn(Pages()),
                         [](const auto& page) { return page.param.page; });

}  // namespace
}  // namespace survey::testing
