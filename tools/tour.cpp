// Goes through the main job of the program in its real windows, from a new database to the figures
// found again in the next run. Says each step, leaves a picture of every window and the database,
// and ends with 1 where something is not as it should be, or is cut off, hard to read or nameless
// in one of the windows.

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "desktop_driver.h"
#include "form_inspector.h"
#include "offscreen.h"
#include "pages/survey_pages.h"
#include "platform/program_folder.h"
#include "shell/register_shell.h"
#include "support/page_filler.h"

namespace survey {
namespace {

namespace fs = std::filesystem;

constexpr char kDatabase[] = "Duinekop Campus";
constexpr char kProvince[] = "Western Cape";
constexpr char kCollege[] = "Blouklip FET College";
constexpr char kCampus[] = "Duinekop Campus";
constexpr QSize kPictureSize(1200, 760);

constexpr int kFirstBlock = 4;
constexpr int kTotalColumn = 11;
constexpr int kNone = -1;  // a cell that is closed, or left empty

// Table 2.5 as the campus fills it in: by row from 3, the examination blocks of columns 4 to 10.
struct Line {
  int row;
  std::array<int, 7> figures;
};
constexpr int _ = kNone;
// clang-format off
constexpr Line kRegistration[] = {
    {3, {_, _, _, 148, 131, 96, 4}},   {4, {_, _, _, 39, 44, 31, 0}},
    {5, {_, _, _, 122, 117, 84, 2}},   {6, {_, _, _, 28, 36, 25, 1}},
    {7, {_, _, _, 97, 88, 71, 0}},     {8, {_, _, _, 22, 19, 24, 0}},
    {9, {_, 86, 79, _, _, _, _}},      {10, {_, 112, 104, _, _, _, _}},
    {11, {_, 71, 66, _, _, _, _}},     {12, {_, 95, 91, _, _, _, _}},
    {13, {_, 54, 58, _, _, _, _}},     {14, {_, 83, 77, _, _, _, _}},
    {15, {164, _, _, _, _, _, _}},     {16, {187, _, _, _, _, _, _}},
    {17, {118, _, _, _, _, _, _}},     {18, {139, _, _, _, _, _, _}},
    {19, {81, _, _, _, _, _, _}},      {20, {102, _, _, _, _, _, _}},
    {21, {_, _, _, _, _, _, _}},       {22, {_, _, _, _, _, _, _}},
    {23, {_, _, _, _, _, _, _}},       {24, {_, _, _, _, _, _, _}},
    {25, {36, _, _, _, _, _, 12}},     {26, {41, _, _, _, _, _, 9}},
    {27, {58, _, _, _, _, _, _}},      {28, {73, _, _, _, _, _, _}},
    {29, {_, _, _, _, _, _, 15}},      {30, {_, _, _, _, _, _, 18}},
};
// clang-format on

std::string Figure(int number) { return number == kNone ? std::string() : std::to_string(number); }

std::string TotalOf(const Line& line) {
  int total = kNone;
  for (const int figure : line.figures) {
    if (figure != kNone) total = std::max(total, 0) + figure;
  }
  return Figure(total);
}

void Expect(bool holds, const std::string& what) {
  if (!holds) throw Mismatch("not so: " + what);
}

// One run of the program, with a guide who says what is done.
class Tour {
 public:
  Tour(fs::path output, const DesktopPlaces& places)
      : output_(std::move(output)),
        desktop_({places.program_folder, places.settings_file, PrintInto(print_file_)}),
        driver_(desktop_) {
    RegisterShell(desktop_.host());
    RegisterPages(desktop_.host());
    desktop_.view().window().resize(kPictureSize);
    QObject::connect(&desktop_.view(), &DesktopView::Ended, qApp, [this] { ended_ = true; });
    Say("The program starts");
    desktop_.host().Start("frmSelectDatabase");
    driver_.ExpectFront("frmSelectDatabase");
  }

  void MakeDatabase();
  void StartSite();
  void FillTable();
  void LeaveAndReturn();
  void ShowBoxes();
  void FindDatabase();
  void FindSite(const std::string& picture);
  void ReturnByList();
  void CheckTable();
  void PrintPage();
  void PrintStaff();
  void PrintSurvey();
  void Close();

 private:
  void PrintTo(const std::string& name, const std::string& button, int sheets);
  static void Say(const std::string& step) { std::cout << step << std::endl; }
  void Save(QWidget& window, const std::string& name);
  void SaveFront(const std::string& name) { Save(*desktop_.view().FrontWindow(), name); }
  bool IsYellow(const std::string& button) {
    return driver_.The<QPushButton>(button).palette().color(QPalette::Button) == Qt::yellow;
  }
  void OpenTable();
  void TypeFigures();

  fs::path output_;
  QString print_file_;
  Desktop desktop_;
  DesktopDriver driver_;
  FormInspector inspector_{driver_};
  bool ended_ = false;
};

void Tour::Save(QWidget& window, const std::string& name) {
  QCoreApplication::processEvents();
  const fs::path file = output_ / (name + ".png");
  Expect(window.grab().save(QString::fromStdString(file.string())), "picture " + file.string());
  inspector_.Look(window);
  inspector_.Listen(window);
  for (const std::string& fault : inspector_.TakeFaults()) Expect(false, fault);
}

void Tour::MakeDatabase() {
  Say("No database yet: asking for an existing one is answered by a message");
  SaveFront("01-select-database");
  driver_.OnBox(
      [this](QMessageBox& box) {
        Expect(box.windowTitle() == "User Message" && !box.iconPixmap().isNull(), "message box");
        Save(box, "02-message");
      },
      "OK");
  driver_.Click("chkExisting");
  Say("The disclaimer");
  driver_.OnDialog([this](QWidget& dialog) {
    Save(dialog, "03-about");
    driver_.Click("cmdOK");
  });
  driver_.Click("cmdAbout");
  Say("A new database is named");
  driver_.Click("chkNew");
  Expect(IsYellow("cmdContinue"), "Continue is yellow once the choice is ready");
  driver_.OnDialog([this](QWidget& dialog) {
    driver_.Type("txtDatabaseName", kDatabase);
    Save(dialog, "04-new-database");
    driver_.Click("cmdOk");
  });
  driver_.Click("cmdContinue");
  driver_.ExpectFront("frmSelectCollege");
  Expect(driver_.CellText("gridcollege", 1, 1).empty(), "the list of sites is empty");
  SaveFront("05-no-sites-yet");
}

void Tour::StartSite() {
  Say("A campus is started");
  Expect(IsYellow("cmdAdd"), "Add is yellow while the list is empty");
  driver_.Click("cmdAdd");
  driver_.ExpectFront("frmMainMenu");
  driver_.Click("optCampus");
  driver_.Choose("cboProvince", kProvince);
  driver_.Choose("cboCollege", kCollege);
  driver_.Choose("cboCampus", kCampus);
  Expect(!driver_.The<QLineEdit>("txtCamEmis").text().isEmpty(), "the EMIS number is shown");
  Expect(IsYellow("cmdContinue"), "Continue is yellow once a campus is chosen");
  SaveFront("06-choose-site");
  driver_.Click("cmdContinue");
  Expect(!driver_.Find("Frame1").isVisible() && driver_.Find("Frame4").isVisible(),
         "the menu takes the place of the choice");
  SaveFront("07-menu");
}

void Tour::OpenTable() {
  driver_.Click("cmdLearner(7)");
  driver_.ExpectFront("frmPage3");
}

void Tour::TypeFigures() {
  const auto& grid = driver_.The<GridView>("gridEnrolment");
  for (const Line& line : kRegistration) {
    for (int column = kFirstBlock; column < kTotalColumn; ++column) {
      const QModelIndex cell = grid.model()->index(line.row - 1, column - 1);
      if (!(cell.flags() & Qt::ItemIsEditable)) continue;
      Expect(grid.currentIndex() == cell,
             "ENTER leads to " + std::to_string(column) + "," + std::to_string(line.row));
      driver_.Type(Figure(line.figures[column - kFirstBlock]));
      driver_.Press(Qt::Key_Return);
    }
    const std::string total = driver_.CellText("gridEnrolment", kTotalColumn, line.row);
    Expect(total == TotalOf(line), "the total of row " + std::to_string(line.row) + ", " + total +
                                       ", follows what is typed");
  }
}

void Tour::FillTable() {
  Say("Table 2.5 is filled in, figure by figure with ENTER");
  OpenTable();
  Expect(!IsYellow("cmdSave"), "Save is not yellow on a page that was just opened");
  SaveFront("08-table-empty");
  TypeFigures();
  Expect(IsYellow("cmdSave"), "Save is yellow after typing");
  driver_.ClickCell("gridEnrolment", 7, 3);
  SaveFront("09-table-filled");
}

void Tour::LeaveAndReturn() {
  Say("Leaving without saving asks first; ENTER stays on the page");
  driver_.OnDialog([this](QWidget& dialog) {
    Expect(dialog.windowTitle() == "Data has NOT been Saved", "the question on leaving");
    Save(dialog, "10-not-saved");
    driver_.Press(Qt::Key_Return);
  });
  driver_.Click("cmdMenu");
  driver_.ExpectFront("frmPage3");
  Say("Saved, left without a question, and found again");
  driver_.Click("cmdSave");
  Expect(!IsYellow("cmdSave"), "Save is no longer yellow");
  SaveFront("11-table-saved");
  driver_.Click("cmdMenu");
  driver_.ExpectFront("frmMainMenu");
}

void Tour::ShowBoxes() {
  Say("The other boxes");
  MessageBoxes& boxes = desktop_.host().boxes();
  const auto picture = [this](const std::string& name) {
    return [this, name](QMessageBox& box) { Save(box, name); };
  };
  driver_.OnBox(picture("13-question"), "No");
  Expect(!boxes.UserQuestion("You have not yet saved your data changes.\r\nAre you sure you want "
                             "to continue without saving?"),
         "No is No");
  driver_.OnBox(picture("14-saved"), "OK");
  boxes.ExtendedMsgBox("Your Information has been Saved.", kOkOnly, "Data Saved", Picture::kSaved,
                       "");
  driver_.OnBox(picture("15-error"), "OK");
  boxes.ReportError("frmPage3", "database is locked", "SavePage Routine", 5);
}

void Tour::FindDatabase() {
  Say("The database is in the list");
  driver_.Click("chkExisting");
  driver_.ClickEntry("lstFiles", kDatabase);
  SaveFront("16-existing-database");
  driver_.Click("cmdContinue");
  driver_.ExpectFront("frmSelectCollege");
}

void Tour::ReturnByList() {
  Say("The menu offers the choice of a site again; the list leads back to this one");
  Expect(driver_.Find("Frame1").isVisible(), "a menu opened for adding a site");
  driver_.Click("cmdList");
  driver_.ExpectFront("frmSelectCollege");
  FindSite("12-sites");
}

void Tour::FindSite(const std::string& picture) {
  Say("The campus is in the list of sites");
  Expect(driver_.CellText("gridcollege", 3, 1) == kCampus, "the campus is in the first row");
  driver_.ClickCell("gridcollege", 3, 1);
  SaveFront(picture);
  driver_.Click("cmdContinue");
  driver_.ExpectFront("frmMainMenu");
}

void Tour::CheckTable() {
  Say("Every figure of table 2.5 is as it was typed");
  OpenTable();
  for (const Line& line : kRegistration) {
    for (int column = kFirstBlock; column < kTotalColumn; ++column) {
      const std::string text = driver_.CellText("gridEnrolment", column, line.row);
      Expect(text == Figure(line.figures[column - kFirstBlock]),
             "figure " + text + " in " + std::to_string(column) + "," + std::to_string(line.row));
    }
    Expect(driver_.CellText("gridEnrolment", kTotalColumn, line.row) == TotalOf(line),
           "total of row " + std::to_string(line.row));
  }
  Expect(!IsYellow("cmdSave"), "Save is not yellow on a page that was just opened");
}

int SheetsIn(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  const std::string pdf((std::istreambuf_iterator<char>(stream)), {});
  int sheets = 0;
  for (std::size_t at = 0; (at = pdf.find("/MediaBox", at)) != std::string::npos; ++at) ++sheets;
  return sheets;
}

// What a print button leaves in a file.
void Tour::PrintTo(const std::string& name, const std::string& button, int sheets) {
  const fs::path file = output_ / (name + ".pdf");
  fs::remove(file);
  print_file_ = QString::fromStdString(file.string());
  driver_.Click(button);
  Expect(SheetsIn(file) == sheets, file.string() + " has " + std::to_string(sheets) + " sheets");
}

void Tour::PrintPage() {
  Say("Table 2.5 is printed");
  PrintTo("18-table", "cmdPrintPage", 1);
  driver_.Click("cmdMenu");
  driver_.ExpectFront("frmMainMenu");
}

void Tour::PrintStaff() {
  Say("Two staff members are entered on their six pages; the sheets of one and the list printed");
  driver_.Click("cmdStaff");
  driver_.ExpectFront("frmSelectEducator");
  testing::Figures figures(1, 40);
  for (const char* id : {"7405125083086", "8111300114089"}) {
    testing::FillStaffMember(desktop_.host(), id, figures);
  }
  driver_.ClickCell("gridEducator", 1, 1);
  SaveFront("19-staff");
  PrintTo("20-staff-member", "cmdPrintSurvey", 5);
  PrintTo("21-staff-list", "cmdPrint", 1);
  driver_.Click("cmdMenu");
  driver_.ExpectFront("frmMainMenu");
}

void Tour::PrintSurvey() {
  Say("Every page is filled in for the year that the menu prints, and the survey printed");
  desktop_.survey().SurveyYear = 2010;
  testing::Figures figures(11, 190);
  const auto filled = testing::FillCampus(desktop_.host(), figures);
  driver_.ExpectFront("frmMainMenu");
  for (const testing::FilledPage& page : filled) {
    testing::ReadAgain(desktop_.host(), page, desktop_.host().PageOf(page.page).paper.grids);
  }
  const auto sheets = std::ranges::count(desktop_.host().pages(), true, &PageRow::in_campus_print);
  PrintTo("22-survey", "cmdPrintSurvey", static_cast<int>(sheets));
}

void Tour::Close() {
  Say("The window is closed");
  desktop_.view().window().close();
  driver_.WaitUntil([this] { return ended_; }, "the end of the program");
}

void FirstRun(const fs::path& output, const DesktopPlaces& places) {
  Tour tour(output, places);
  tour.MakeDatabase();
  tour.StartSite();
  tour.FillTable();
  tour.LeaveAndReturn();
  tour.ReturnByList();
  tour.CheckTable();
  tour.ShowBoxes();
  tour.Close();
}

void SecondRun(const fs::path& output, const DesktopPlaces& places) {
  Tour tour(output, places);
  tour.FindDatabase();
  tour.FindSite("17-sites-again");
  tour.CheckTable();
  tour.PrintPage();
  tour.PrintStaff();
  tour.PrintSurvey();
  tour.Close();
}

// The folder that the program believes to lie in: fresh, but for the template.
DesktopPlaces MakePlaces(const fs::path& output, const fs::path& template_file) {
  const fs::path folder = output / "program";
  fs::remove_all(folder);
  fs::create_directories(folder);
  fs::copy_file(template_file, folder / kTemplateFile);
  return {folder, QString::fromStdString((folder / "settings.ini").string())};
}

}  // namespace
}  // namespace survey

int main(int argc, char** argv) {
  if (argc != 2 && argc != 3) {
    std::cerr << "usage: tour OUTPUT_FOLDER [TEMPLATE]\n";
    return 2;
  }
#ifndef Q_OS_WIN
  if (std::getenv("DISPLAY") == nullptr && std::getenv("WAYLAND_DISPLAY") == nullptr) {
    survey::UseOffscreenPlatform();
  }
#endif
  const QApplication application(argc, argv);
  survey::SetUpApplication();
  try {
    const std::filesystem::path output = std::filesystem::absolute(argv[1]);
    const std::filesystem::path beside = QCoreApplication::applicationDirPath().toStdString();
    const survey::DesktopPlaces places =
        survey::MakePlaces(output, argc == 3 ? argv[2] : beside / survey::kTemplateFile);
    survey::FirstRun(output, places);
    survey::SecondRun(output, places);
    std::cout << "All as it should be. The pictures and the database are in " << output.string()
              << std::endl;
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << "tour: " << failure.what() << std::endl;
    return 1;
  }
}
