#include <gtest/gtest.h>

#include <QProcess>
#include <map>

#include "desktop/qt_printer.h"
#include "forms/page_chain.h"
#include "pages/register_pages.h"
#include "printing/page_print.h"
#include "world.h"

namespace survey::testing {
namespace {

// How often each word stands on the paper.
std::map<QString, int> WordsOf(const QString& file) {
  QProcess reader;
  reader.start("pdftotext", {"-raw", file, "-"});
  EXPECT_TRUE(reader.waitForFinished()) << "pdftotext is not installed";
  std::map<QString, int> words;
  for (const QString& word :
       QString::fromUtf8(reader.readAllStandardOutput()).simplified().split(' ')) {
    ++words[word];
  }
  return words;
}

// Another figure of four digits for each cell that takes one.
void FillFigures(GridControl& grid, int& figure) {
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    for (int column = 1; column <= grid.MaxColumns(); ++column) {
      const CellKind& kind = grid.Kind(column, row);
      const bool takes_figure = kind.type == CellKind::Type::kNumber && kind.maximum >= 9999;
      if (takes_figure && grid.IsOpen(column, row) && !grid.IsTotal(column, row)) {
        grid.SetText(column, row, figure++);
      }
    }
  }
}

TEST(PaperFigures, EveryFigureAndTotalOfAPageComesOutWhole) {
  const TemporaryFolder folder;
  const QString file = QString::fromStdString((folder.path() / "page.pdf").string());
  World world;
  RegisterPages(world.forms);
  std::string_view last;
  for (const Link& link : PageChain()) {
    const std::string page(link.page);
    if (link.page == last || page == "frmSelectEducator") continue;
    last = link.page;
    QtPrinter printer;
    printer.PrintToFile(file);
    printer.ShowPrinter();
    int figure = 1000;
    for (const PrintedGrid& printed : PrintOf(page).grids) {
      FillFigures(world.The<GridControl>(page, printed.name, printed.index), figure);
    }
    PrintPage(printer, PrintOf(page), "head", [&](std::string_view name, int index) -> const Grid& {
      return world.The<Grid>(page, name, index);
    });
    printer.Finish();
    std::map<QString, int> words = WordsOf(file);
    for (const PrintedGrid& printed : PrintOf(page).grids) {
      const auto& grid = world.The<Grid>(page, printed.name, printed.index);
      for (int row = 1; row <= grid.MaxRows(); ++row) {
        for (int column = 1; column <= grid.MaxColumns(); ++column) {
          const QString text = QString::fromStdString(grid.GetText(column, row));
          if (grid.Kind(column, row).type != CellKind::Type::kNumber || text.isEmpty()) continue;
          EXPECT_GT(words[text]--, 0)
              << page << " (" << column << "," << row << ") " << text.toStdString();
        }
      }
    }
  }
}

}  // namespace
}  // namespace survey::testing
