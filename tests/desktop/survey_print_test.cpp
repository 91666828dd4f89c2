#include <gtest/gtest.h>

#include <QProcess>
#include <algorithm>
#include <map>

#include "desktop/qt_printer.h"
#include "desktop_driver.h"
#include "pages/survey_pages.h"
#include "shell/register_shell.h"
#include "support/headless_program.h"
#include "support/page_filler.h"

namespace survey::testing {
namespace {

// How often each word stands on a sheet.
using Sheet = std::map<QString, int>;

std::vector<Sheet> SheetsOf(const QString& file) {
  QProcess reader;
  reader.start("pdftotext", {"-raw", file, "-"});
  EXPECT_TRUE(reader.waitForFinished()) << "pdftotext is not installed";
  std::vector<Sheet> sheets;
  for (const QString& text : QString::fromUtf8(reader.readAllStandardOutput()).split('\f')) {
    sheets.emplace_back();
    for (const QString& word : text.simplified().split(' ')) ++sheets.back()[word];
  }
  sheets.pop_back();  // behind the last page break
  return sheets;
}

// A survey of 2010, which is what the menu prints, and of two staff members, all cells answered.
class FilledSurvey : public HeadlessProgram, public ::testing::Test {
 protected:
  FilledSurvey() : host_(survey, {dialogs, printer_, settings, program_folder}) {
    RegisterShell(host_);
    RegisterPages(host_);
    OpenSite(199010830, 108107587);
    host_.Get("frmMainMenu").Property("EditMode") = "Edit";
    host_.Start("frmMainMenu");
    survey.SurveyYear = 2010;
    campus_ = FillCampus(host_, figures_);
  }

  std::vector<Sheet> Print(const char* form, const char* button) {
    host_.Get(form).Find<Button>(button).Click();
    printer_.Finish();
    return SheetsOf(file_);
  }

  // Takes off the sheet what was entered in these grids of the page, and the totals over it.
  void ExpectOn(Sheet& sheet, const FilledPage& filled, const std::vector<PrintedGrid>& grids,
                const std::string& id = {}) {
    for (const std::string& text : ReadAgain(host_, filled, grids, id)) {
      for (const QString& word : QString::fromStdString(text).split(' ', Qt::SkipEmptyParts)) {
        EXPECT_GT(sheet[word]--, 0) << filled.page << ": " << word.toStdString();
      }
    }
  }

  Figures figures_;
  const QString file_ = QString::fromStdString((folder.path() / "print.pdf").string());
  QtPrinter printer_{PrintInto(file_)};
  FormHost host_;
  std::vector<FilledPage> campus_;
};

TEST_F(FilledSurvey, EveryAnswerAndTotalOfTheCampusStandsOnItsSheet) {
  std::vector<Sheet> sheets = Print("frmMainMenu", "cmdPrintSurvey");
  ASSERT_EQ(std::ssize(sheets), std::ranges::count(host_.pages(), true, &PageRow::in_campus_print));
  host_.Start("frmOtherProgrammes");  // which prints only by itself
  std::vector<Sheet> other = Print("frmOtherProgrammes", "cmdPrintPage");
  ASSERT_EQ(other.size(), 1u);
  auto sheet = sheets.begin();
  for (const FilledPage& page : campus_) {
    Sheet& on = page.page == "frmOtherProgrammes" ? other[0] : *sheet++;
    EXPECT_GT(on["108107587"], 0) << page.page << " bears the campus number";
    ExpectOn(on, page, host_.PageOf(page.page).paper.grids);
  }
  EXPECT_TRUE(dialogs.seen.empty());
}

TEST_F(FilledSurvey, EveryAnswerOfEachStaffMemberStandsOnTheSheetOfItsPage) {
  std::map<std::string, std::vector<FilledPage>> filled;
  for (const char* id : {"7001015001", "7001015002"}) {
    filled[id] = FillStaffMember(host_, id, figures_);
  }
  host_.Start("frmSelectEducator");
  const Form& list = host_.Get("frmSelectEducator");
  list.Find<CheckBox>("chAll").Click();
  std::vector<Sheet> sheets = Print("frmSelectEducator", "cmdPrintSurvey");
  ASSERT_EQ(sheets.size(), 2u * 5);
  auto sheet = sheets.begin();
  for (const int row : {1, 2}) {
    const std::string id = list.Find<GridControl>("gridEducator").GetText(2, row);
    EXPECT_GE((*sheet)[QString::fromStdString(id)], 2) << "the head and question 4.11";
    auto page = filled.at(id).begin();
    for (const PageRow& part : host_.pages()) {
      if (!part.staff_print) continue;
      ExpectOn(*sheet, *page++, part.staff_print->grids, id);
      if (part.staff_print->ends_sheet) ++sheet;
    }
    ++sheet;
  }
  EXPECT_TRUE(dialogs.seen.empty());
}

}  // namespace
}  // namespace survey::testing
