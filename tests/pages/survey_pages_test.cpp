#include "pages/survey_pages.h"

#include <gtest/gtest.h>

namespace survey::testing {
namespace {

// Whoever goes on from a page must be able to come back to it.
TEST(SurveyPagesTest, NextLeadsThroughTheCampusAndPreviousBack) {
  const std::vector<PageRow>& pages = SurveyPages();
  for (std::size_t i = 0; pages[i].section == Section::kCampus; ++i) {
    const bool is_last = pages[i + 1].section != Section::kCampus;
    EXPECT_EQ(LinkOf(pages[i].links, "cmdNext").target,
              is_last ? "frmSelectEducator" : pages[i + 1].name);
    EXPECT_EQ(LinkOf(pages[i].links, "cmdPrevious").target,
              i == 0 ? "frmMainMenu" : pages[i - 1].name);
  }
}

}  // namespace
}  // namespace survey::testing
