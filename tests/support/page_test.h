#ifndef TESTS_SUPPORT_PAGE_TEST_H_
#define TESTS_SUPPORT_PAGE_TEST_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "pages/survey_pages.h"
#include "shell/register_shell.h"
#include "support/headless_program.h"

namespace survey::testing {

// The end of the statements about the records that a page of the site holds.
inline const std::string kOfSite =
    " where collegeemisnumber = 101 and campusemisnumber = 202 and surveyyear = 2012";

// How the box ends that tells of a failure in a routine.
inline auto ToldBy(const std::string& form, const std::string& routine) {
  return ::testing::EndsWith("\r\nLocation: " + form + "\r\nProcedure: " + routine);
}

// An answer and where it is typed.
struct Typed {
  int column;
  int row;
  std::string text;
};

// A page of site 101, campus 202, open in front of its user, with one grid in hand.
class PageTest : public HeadlessProgram, public ::testing::Test {
 protected:
  PageTest(std::string page, std::string grid, int index = kNoIndex)
      : page_(std::move(page)), grid_(std::move(grid)), index_(index) {
    RegisterShell(host);
    RegisterPages(host);
    OpenSite(101, 202);
    Start();
  }

  GridControl& Table() { return The<GridControl>(page_, grid_, index_); }
  const std::string& At(int column, int row) { return Table().GetText(column, row); }
  bool Type(int column, int row, const std::string& text) {
    return Table().Type(column, row, text).taken;
  }
  // What the cells show, as "first|second".
  static std::string Shown(const Grid& grid, const std::vector<Cell>& cells) {
    std::string shown;
    for (const Cell& cell : cells) shown += "|" + grid.GetText(cell.column, cell.row);
    return shown.substr(1);
  }
  std::string Shown(const std::vector<Cell>& cells) { return Shown(Table(), cells); }
  static void Fill(GridControl& grid, const std::vector<Typed>& answers) {
    for (const auto& [column, row, text] : answers) {
      EXPECT_TRUE(grid.Type(column, row, text).taken) << text;
    }
  }
  // The columns of a row, o for one that is open and _ for one that is not.
  std::string OpenIn(int row, int first, int last) {
    std::string open;
    for (int i = first; i <= last; ++i) open += Table().IsOpen(i, row) ? 'o' : '_';
    return open;
  }
  using HeadlessProgram::Click;
  void Click(std::string_view button) { HeadlessProgram::Click(page_, button); }
  bool Yellow(std::string_view button) { return The<Button>(page_, button).BackColor == kYellow; }
  bool Unsaved() { return Yellow("cmdSave"); }
  void Save() { Click("cmdSave"); }
  void Reopen() {
    host.Unload(host.Get(page_));
    Start();
  }
  void Store(const std::string& statement) {
    survey.Execute(statement);
    survey.EndStatements();
  }
  void StoreAll(const std::string& insert, const std::vector<std::string>& records) {
    for (const std::string& record : records) Store(insert + record + ")");
  }
  // The statements since the page was opened, without the part that they share.
  std::vector<std::string> StatementsWithout(const std::string& shared) {
    for (std::string& statement : statements) {
      if (statement.starts_with(shared)) statement.erase(0, shared.size());
    }
    return statements;
  }
  // The cells that are to be filled in are those of `blocks`, and no others.
  void ExpectOpen(const std::vector<CellRange>& blocks) { ExpectOpen(Table(), blocks); }
  static void ExpectOpen(const Grid& grid, const std::vector<CellRange>& blocks) {
    for (int row = 1; row <= grid.MaxRows(); ++row) {
      for (int column = 1; column <= grid.MaxColumns(); ++column) {
        const bool open = std::ranges::any_of(blocks, [&](const CellRange& block) {
          return block.Contains({column, row});
        });
        EXPECT_EQ(grid.IsToFill(column, row), open) << "column " << column << " row " << row;
      }
    }
  }

  std::string page_;

 private:
  void Start() {
    statements.clear();
    host.Start(page_);
  }

  std::string grid_;
  int index_;
};

}  // namespace survey::testing

#endif  // TESTS_SUPPORT_PAGE_TEST_H_
