// Texts made to break out of a statement: each comes back as it was typed or a box tells, and the
// department's lists stay as they were.

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <optional>

#include "support/filled_site.h"

namespace survey::testing {
namespace {

const std::string kHostile[] = {
    "x'; Delete * from lst_province; --", "');Drop table lst_college;--",
    "',Manager='me' where '1'='1",        "' or ''='",
    "#2012/1/4# & /* */ \"; commit; \"",  "100%_*?[a] O'Brien & Söhne 中 \U0001F600",
    std::string("cut\0off", 7),           std::string(10'000, 'a') + "'",
};

// What is typed there is not what is saved.
bool ComesBackElsewhere(const std::string& page, Cell cell) {
  return page == "frmHostels" || (page == "frmEducatorData" && cell.row == 8);
}

bool TakesWords(const GridControl& grid, Cell cell) {
  const CellKind::Type type = grid.Kind(cell.column, cell.row).type;
  return type != CellKind::Type::kNumber && type != CellKind::Type::kCheckBox;
}

class HostileTexts : public ::testing::Test {
 protected:
  HostileTexts() { StartAnew(); }

  void StartAnew() {
    site_ = std::make_unique<FilledSite>();
    site_->SaveAll(0);
    lists_ = Lists();
  }
  Form& Open(const std::string& page) {
    if (site_->host.Ended()) StartAnew();
    return site_->Open(page);
  }
  void Save(const std::string& page) {
    if (page == "frmHostels") site_->Click(page, "cmdSaveHostel");
    if (!site_->host.Ended()) site_->Click(page, "cmdSave");
  }
  std::map<std::string, std::string> Lists() const {
    auto rows = AllRows(site_->survey.DatabasePath);
    std::erase_if(rows, [](const auto& table) { return !table.first.starts_with("lst_"); });
    return rows;
  }

  // Types a text into the next cell behind `from` that takes words, and saves it; none behind the
  // last.
  std::optional<Cell> TypeIntoNext(const std::string& page, std::size_t control, Cell from) {
    Form& form = Open(page);
    auto* grid = dynamic_cast<GridControl*>(form.controls()[control]);
    if (grid == nullptr) return std::nullopt;
    site_->Fill(form, 1);
    std::optional<Cell> cell = grid->NextOpenCell(from);
    while (cell && !TakesWords(*grid, *cell)) cell = grid->NextOpenCell(*cell);
    const std::string& text = kHostile[++texts_ % std::size(kHostile)];
    if (!cell || !grid->Type(cell->column, cell->row, text).taken) return cell;
    const std::string typed = grid->GetText(cell->column, cell->row);
    Save(page);
    SCOPED_TRACE(page + " " + std::to_string(cell->row) + ": " + text.substr(0, 40));
    EXPECT_EQ(Lists(), lists_);
    if (!site_->LastBox().empty()) {
      ++told_;
    } else if (!ComesBackElsewhere(page, *cell)) {
      ++came_back_;
      site_->Open(page);
      EXPECT_EQ(grid->GetText(cell->column, cell->row), typed);
    }
    return cell;
  }

  std::unique_ptr<FilledSite> site_;
  std::map<std::string, std::string> lists_;
  std::size_t texts_ = 0;
  int came_back_ = 0, told_ = 0;
};

TEST_F(HostileTexts, TypedIntoEveryCellThatTakesWords) {
  for (const std::string& page : PageNames()) {
    for (std::size_t control = 0; control < Open(page).controls().size(); ++control) {
      for (std::optional<Cell> cell = Cell{0, 1}; cell;) {
        cell = TypeIntoNext(page, control, *cell);
      }
    }
  }
  EXPECT_GT(came_back_, 30);
  EXPECT_GT(told_, 0);
}

}  // namespace
}  // namespace survey::testing
