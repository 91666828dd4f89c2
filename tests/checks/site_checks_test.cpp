#include "checks/site_checks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "pages/survey_pages.h"
#include "support/filled_site.h"
#include "support/page_filler.h"

namespace survey {
namespace {
TEST(Speed, Of) {
  testing::FilledSite site;
  site.SaveAll(1);
  site.survey.OpenDatabaseConnection();
  for (int i = 0; i < 5; ++i) {
    auto t = std::chrono::steady_clock::now();
    auto checks = CheckSite(*site.survey.DatabaseConnection, 101, 202, 2012);
    auto u = std::chrono::steady_clock::now();
    printf("%f ms %d findings\n", std::chrono::duration<double, std::milli>(u - t).count(),
           (int)checks.findings.size());
    if (i == 0)
      for (auto& f : checks.findings) puts(f.text.c_str());
  }
  auto t = std::chrono::steady_clock::now();
  auto sites = SitesOf(*site.survey.DatabaseConnection);
  auto u = std::chrono::steady_clock::now();
  printf("%f ms %d sites\n", std::chrono::duration<double, std::milli>(u - t).count(),
         (int)sites.size());
}
}  // namespace
}  // namespace survey
