#ifndef TESTS_SUPPORT_PAGE_TEST_H_
#define TESTS_SUPPORT_PAGE_TEST_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "pages/register_pages.h"
#include "shell/register_shell.h"
#include "support/world.h"

namespace survey::testing {

// A page of site 101, campus 202, open in front of its user, with one grid in hand.
class PageTest : public World, public ::testing::Test {
 protected:
  PageTest(std::string page, std::string grid) : page_(std::move(page)), grid_(std::move(grid)) {
    RegisterShell(forms);
    RegisterPages(forms);
    OpenSite(101, 202);
    Start();
  }

  GridControl& Table() { return The<GridControl>(page_, grid_); }
  const std::string& At(int column, int row) { return Table().GetText(column, row); }
  bool Type(int column, int row, const std::string& text) {
    return Table().Type(column, row, text).taken;
  }
  bool Unsaved() { return The<Button>(page_, "cmdSave").BackColor == kYellow; }
  void Save() { Click(page_, "cmdSave"); }
  void Reopen() {
    forms.Unload(forms.Get(page_));
    Start();
  }
  void Store(const std::string& statement) {
    survey.Execute(statement);
    survey.EndStatements();
  }
  // The statements since the page was opened, without the part that they share.
  std::vector<std::string> StatementsWithout(const std::string& shared) {
    for (std::string& statement : statements) {
      if (statement.starts_with(shared)) statement.erase(0, shared.size());
    }
    return statements;
  }
  // The cells that are open are those of `blocks`, and no others.
  void ExpectOpen(const std::vector<CellRange>& blocks) {
    for (int row = 1; row <= Table().MaxRows(); ++row) {
      for (int column = 1; column <= Table().MaxColumns(); ++column) {
        const bool open = std::ranges::any_of(blocks, [&](const CellRange& block) {
          return block.Contains({column, row});
        });
        EXPECT_EQ(Table().IsOpen(column, row), open) << "column " << column << " row " << row;
      }
    }
  }

 private:
  void Start() {
    statements.clear();
    forms.Start(page_);
  }

  std::string page_;
  std::string grid_;
};

}  // namespace survey::testing

#endif  // TESTS_SUPPORT_PAGE_TEST_H_
