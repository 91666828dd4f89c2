#include "forms/campus_print.h"

#include <vector>

#include "forms/survey_page.h"

namespace survey {

void PrintCampusPages(FormHost& host, const std::string& title) {
  std::vector<std::string> sheets;
  for (const PageRow& row : host.pages()) {
    if (row.in_campus_print) sheets.emplace_back(row.name);
  }
  const auto progress = host.platform().dialogs.BeginProgress(title);
  const int total = static_cast<int>(sheets.size());
  for (int done = 0; done < total; ++done) {
    const std::string what = "Page " + std::to_string(done + 1) + " of " + std::to_string(total);
    if (!progress->Step(done, total, what)) return;
    host.RunOffScreen(sheets[done], [](Form& form) {
      form.Form_Activate();
      dynamic_cast<SurveyPage&>(form).Printpage();
    });
  }
}

}  // namespace survey
