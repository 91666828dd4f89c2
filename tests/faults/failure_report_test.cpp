// What users read when a page cannot be filled, saved or printed, and what is left of their work.

#include <fstream>

#include "support/disk_faults.h"
#include "support/filled_site.h"
#include "support/page_test.h"
#include "support/protected.h"

namespace survey::testing {
namespace {

namespace fs = std::filesystem;
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

// What may happen to a database file while its pages are open.
struct FileFault {
  const char* name;
  void (*begin)(const fs::path& file);
  void (*end)(const fs::path& file);  // all is as before
  const char* told_when_saving;
  const char* told_when_opening = nullptr;  // null: the file can be opened
};

fs::path Aside(const fs::path& file) { return file.string() + ".aside"; }

// In place: the file that is open must be the same.
void WriteBack(const fs::path& file) {
  {
    std::ifstream whole(Aside(file), std::ios::binary);
    std::ofstream(file, std::ios::binary) << whole.rdbuf();
  }
  fs::remove(Aside(file));
}

void CutTo(const fs::path& file, std::uintmax_t bytes) {
  fs::copy_file(file, Aside(file));
  fs::resize_file(file, bytes);
}

#ifndef _WIN32
std::unique_ptr<Protected> folder;

void MakeReadOnly(const fs::path& file) {
  fs::permissions(file, fs::perms::all);
  folder = std::make_unique<Protected>(file.parent_path());
}

void MakeWritable(const fs::path&) { folder.reset(); }

void PutBack(const fs::path& file) { fs::rename(Aside(file), file); }
#endif

const FileFault kFileFaults[] = {
    {"full disk", [](const fs::path&) { FillDiskAt(1); }, [](const fs::path&) { EndDiskFaults(); },
     "database or disk is full"},
#ifndef _WIN32  // tests/left_out_on_windows.txt says why
    {"folder made read-only", MakeReadOnly, MakeWritable, "nothing can be written into the folder"},
    {"removed", [](const fs::path& file) { fs::rename(file, Aside(file)); }, PutBack,
     "moved, replaced or removed", "does not exist"},
    {"replaced",
     [](const fs::path& file) {
       fs::rename(file, Aside(file));
       fs::copy_file(TemplateFile(), file);
     },
     PutBack, "moved, replaced or removed"},
#endif
    {"cut", [](const fs::path& file) { CutTo(file, fs::file_size(file) / 2048 * 1024); }, WriteBack,
     "the database file is damaged", "is damaged: a part of it is missing"},
    {"emptied", [](const fs::path& file) { CutTo(file, 0); }, WriteBack,
     "the database file is damaged", "is empty or too short"},
};

// The figures stay on the page and can be printed, and what was saved before stays in the file,
// which is not touched. When it is over the page saves as ever.
void MeetFault(const FileFault& fault, const FailuresOf& failures) {
  const std::string page = failures.page;
  SCOPED_TRACE(page + ", " + fault.name);
  FilledSite site;
  const std::string file = site.survey.DatabasePath;
  const auto size = [&] { return fs::exists(file) ? fs::file_size(file) : 0; };
  Form& form = site.Open(page);
  const auto before = AllRows(file);
  site.Fill(form, 7);
  const std::string typed = TextsOf(form);
  auto& save = form.Find<Button>("cmdSave");
  save.BackColor = kYellow;
  fault.begin(file);
  const auto size_before = size();
  site.Click(page, "cmdSave");
  const bool ended = failures.saved.location == kEndsTheProgram.location;
  EXPECT_EQ(site.host.Ended(), ended);
  const bool at_commit = &fault == kFileFaults;  // told also where a failed statement is not
  if (failures.saved.location != nullptr || at_commit) {
    EXPECT_THAT(site.dialogs.seen.at(0).prompt, HasSubstr(fault.told_when_saving));
  }
  if (at_commit) {
    EXPECT_EQ(save.BackColor == kYellow, site.host.PageOf(page).mark != MarkCleared::kBeforeSave);
    if (failures.saved.location != nullptr) ExpectTold(site, failures.saved);
  }
  if (!ended) {
    EXPECT_EQ(TextsOf(form), typed);
    site.dialogs.seen.clear();
    site.Click(page, "cmdPrintPage");
    EXPECT_EQ(site.LastBox(), "");
    EXPECT_EQ(site.printer.operations.back(), "EndDoc");
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

// Every page meets the full disk and another fault, and every fault some pages.
TEST(FailureReportTest, AFaultOfTheFileIsToldAndLosesNothing) {
  for (std::size_t page = 0; page < std::size(kPages); ++page) {
    MeetFault(kFileFaults[0], kPages[page]);
    MeetFault(kFileFaults[1 + page % (std::size(kFileFaults) - 1)], kPages[page]);
  }
}

}  // namespace
}  // namespace survey::testing
