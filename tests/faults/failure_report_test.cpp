// What users read when a page cannot be filled, saved or printed, and what is left of their work.

#include <cerrno>

#include "faults/file_faults.h"
#include "support/disk_faults.h"
#include "support/filled_site.h"
#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

struct Told {
  const char* location;
  const char* procedure;
};

constexpr Told kNothing = {nullptr, nullptr};
constexpr Told kEndsTheProgram = {"", ""};  // no handler stands between

constexpr char kGet[] = "GetPage Routine";
constexpr char kSave[] = "SavePage Routine";
constexpr char kPrint[] = "Print Routine";

struct FailuresOf {
  const char* page;
  Told filled, saved, printed;
  bool marked = false;  // still, after the save that failed
};

// clang-format off
const FailuresOf kPages[] = {
    {"frmPage2", {"frmPage2", kGet}, {"frmPage2", kSave}, {"frmPage2", kPrint}},
    {"frmHostels", kEndsTheProgram, kEndsTheProgram, {"frmPage2", kPrint}, true},
    {"frmPage4", {"frmPage4", kGet}, {"frmPage4", kSave}, {"frmPage4", kPrint}},
    {"frmStudentTotal", {"frmStudentTotal", kGet}, {"frmStudentTotal", kSave},
     {"frmStudentTotal", kPrint}},
    {"frmPage3", {"frmPage3", kGet}, {"frmPage3", kSave}, {"frmPage3", kPrint}},
    {"frmPage5", {"frmPage3", kGet}, {"frmPage5", kSave}, {"frmPage5", kPrint}},
    {"frmPage6_1", {"frmPage3", kGet}, {"frmPage6_1", kSave}, {"frmPage6", kPrint}},
    {"frmPage8", {"frmPage8", kGet}, {"frmPage5", kSave}, {"frmPage8", kPrint}},
    {"frmPage9", {"frmPage8", kGet}, {"frmPage5", kSave}, {"frmPage9", kPrint}},
    {"frmPage9_1", {"frmPage9_1", kGet}, {"frmPage9_1", kSave}, {"frmPage9", kPrint}},
    {"frmOtherProgrammes", {"frmOtherProgrammes", "Get Data Routine"},
     {"frmOtherProgrammes", "Save Data Routine"}, {"frmPage12_1", kPrint}, true},
    {"frmPage12_1", {"frmPage12_1", kGet}, kNothing, {"frmPage12_1", kPrint}},
    {"frmPage12_2", kEndsTheProgram, {"frmPage12_1", kSave}, {"frmPage12_2", kPrint}},
    {"frmPage9_10", {"frmPage9_10", kGet}, {"frmPage9_10", kSave}, {"frmPage9_10", kPrint}},
    {"frmPage9_10_1", {"frmPage9_10_1", kGet}, {"frmPage9_10_1", kSave}, {"frmPage9_10_1", kPrint}},
    {"frmPage14", {"frmPage9_10_1", kGet}, {"frmPage14", kSave}, {"frmPage14", kPrint}},
    {"frmPage13", {"frmPage13", kGet}, {"frmPage14", kSave}, {"frmPage13", kPrint}},
    {"frmEducatorData", {"frmEducatorData", "Form_Activate"}, {"frmEducatorData", "cmdSave_Click"},
     {"frmEducatorData", kPrint}, true},
    {"frmLecQualifications1", kNothing, kNothing, {"frmLecQualifications1", kPrint}},
    {"frmLecQualifications2", kNothing, kNothing, {"frmLecQualifications2", kPrint}},
    {"frmEducatorTeaching1", {"frmEducatorTeaching1", "Load Routine"},
     {"frmEducatrorTeaching1", "Save Routine"}, {"frmEducatorData", kPrint}},
    {"frmEducatorTeaching", {"frmEducatorTeaching", "Load Routine"},
     {"frmEducatrorTeaching", "Save Routine"}, {"frmEducatorData", kPrint}},
    {"frmEducatorTeaching2", {"frmEducatorTeaching2", kGet}, {"frmStaffQualification", kSave},
     {"frmEducatorTeaching2", kPrint}},
};
// clang-format on

void ExpectTold(FilledSite& site, const Told& told) {
  const bool ends = told.location == kEndsTheProgram.location;
  ASSERT_EQ(site.host.Ended(), ends);
  std::erase_if(site.dialogs.seen, [](const MessageBox& box) {
    return box.prompt.find("Location: modDatabaseConnection") != std::string::npos;
  });
  if (told.location == nullptr) {
    EXPECT_THAT(site.dialogs.seen, IsEmpty());
  } else if (!ends) {
    EXPECT_THAT(site.LastBox(), ToldBy(told.location, told.procedure));
  }
}

// What cannot be committed is told on every page, also where a failed statement is not, and the
// mark that goes with a save stays.
TEST(FailureReportTest, AFullDiskIsToldOnEveryPageAndLosesNoMark) {
  for (const auto& [page, filled, saved, printed, marked] : kPages) {
    SCOPED_TRACE(page);
    FilledSite site;
    Form& form = site.Open(page);
    site.Fill(form, 1);
    auto& save = form.Find<Button>("cmdSave");
    save.BackColor = kYellow;
    FailWritesFrom(1, ENOSPC);
    site.Click(page, "cmdSave");
    EndDiskFaults();
    ASSERT_FALSE(site.dialogs.seen.empty());
    EXPECT_THAT(site.dialogs.seen.back().prompt, HasSubstr("database or disk is full"));
    if (saved.location != nullptr) ExpectTold(site, saved);
    const bool cleared_before = site.host.PageOf(page).mark == MarkCleared::kBeforeSave;
    EXPECT_EQ(save.BackColor == kYellow, !cleared_before);
  }
}

TEST(FailureReportTest, BearsTheNamesUsersKnow) {
  std::vector<std::string> names;
  for (const FailuresOf& page : kPages) names.emplace_back(page.page);
  EXPECT_EQ(names, PageNames());
  for (const auto& [page, filled, saved, printed, marked] : kPages) {
    SCOPED_TRACE(page);
    auto site = std::make_unique<FilledSite>();
    const auto lose_database = [&site] {
      site->survey.CloseDatabaseConnection();
      site->survey.DatabasePath += "gone";
    };
    Form& form = site->Open(page);
    site->printer.cancel = true;
    site->Click(page, "cmdPrintPage");
    EXPECT_EQ(site->dialogs.seen.at(0).title, "Error : 32755");
    EXPECT_THAT(site->printer.operations, ElementsAre("ShowPrinter"));
    ExpectTold(*site, printed);
    site->printer.cancel = false;
    site->printer.full = true;
    site->Click(page, "cmdPrintPage");
    ExpectTold(*site, printed);

    site->Fill(form, 1);
    auto& save = form.Find<Button>("cmdSave");
    save.BackColor = kYellow;
    lose_database();
    site->Click(page, "cmdSave");
    ExpectTold(*site, saved);
    EXPECT_EQ(save.BackColor == kYellow, marked);

    if (site->host.Ended()) site = std::make_unique<FilledSite>();
    lose_database();
    site->Open(page);
    ExpectTold(*site, filled);
  }
}

// The figures stay on the page and can be printed, and what was saved before stays in the file,
// which is not touched. When it is over the page saves as ever.
void MeetFault(const FileFault& fault, const FailuresOf& failures) {
  const std::string page = failures.page;
  SCOPED_TRACE(page + ", " + fault.name);
  FilledSite site;
  const std::filesystem::path file = site.survey.DatabasePath;
  const auto size = [&] { return exists(file) ? file_size(file) : 0; };
  Form& form = site.Open(page);
  const auto before = AllRows(file);
  site.Fill(form, 7);
  const std::string typed = TextsOf(form);
  fault.begin(file);
  const auto size_before = size();
  site.Click(page, "cmdSave");
  const bool ended = failures.saved.location == kEndsTheProgram.location;
  EXPECT_EQ(site.host.Ended(), ended);
  if (failures.saved.location != nullptr) {
    EXPECT_THAT(site.dialogs.seen.at(0).prompt, HasSubstr(fault.told_when_saving));
  }
  if (!ended) {
    EXPECT_EQ(TextsOf(form), typed);
    site.dialogs.seen.clear();
    site.Click(page, "cmdPrintPage");
    EXPECT_EQ(site.LastBox() + site.printer.operations.back(), "EndDoc");
  }
  EXPECT_EQ(size(), size_before);
  fault.end(file);
  EXPECT_EQ(AllRows(file), before);
  if (ended) return;
  if (fault.told_when_opening != nullptr) site.survey.OpenDatabaseConnection();
  site.dialogs.seen.clear();
  site.Click(page, "cmdSave");
  EXPECT_EQ(site.LastBox(), "");
  const auto after = AllRows(file);
  EXPECT_NE(after, before);

  if (fault.told_when_opening == nullptr) return;
  fault.begin(file);
  site.Open(page);
  EXPECT_THAT(site.dialogs.seen.at(0).prompt,
              AllOf(HasSubstr(fault.told_when_opening),
                    ToldBy("modDatabaseConnection", "Database Access Error")));
  fault.end(file);
  EXPECT_EQ(AllRows(file), after);
}

// Every page meets a fault here and every fault some pages.
TEST(FailureReportTest, AFaultOfTheFileIsToldAndLosesNothing) {
  for (std::size_t i = 0; i < FileFaults().size(); ++i) {
    for (std::size_t page = i; page < std::size(kPages); page += 6) {
      MeetFault(FileFaults()[i], kPages[page]);
    }
  }
}

}  // namespace
}  // namespace survey::testing
