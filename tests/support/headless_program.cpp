#include "support/headless_program.h"

#include <random>
#include <system_error>

#include "base/text.h"
#include "platform/program_folder.h"
#include "template/survey_lists.h"
#include "template/template.h"

namespace survey::testing {
namespace {

namespace fs = std::filesystem;

fs::path MakeTemporaryFolder() {
  fs::path folder;
  do {
    folder = fs::temp_directory_path() / ("survey-test-" + std::to_string(std::random_device()()));
  } while (!fs::create_directory(folder));
  fs::permissions(folder, fs::perms::owner_all);
  return folder;
}

std::string PlaceOf(const Grid& grid, double left, double top, double right, double bottom) {
  return dynamic_cast<const Control&>(grid).ObjectName() + " " + NumberText(left) + " " +
         NumberText(top) + " " + NumberText(right) + " " + NumberText(bottom);
}

class FakeProgress : public Progress {
 public:
  FakeProgress(FakeDialogs& dialogs, std::string title)
      : dialogs_(dialogs), title_(std::move(title)) {}

  bool Step(int done, int total, std::string_view what) override {
    dialogs_.steps_seen.push_back(title_ + ": " + std::to_string(done) + "/" +
                                  std::to_string(total) + " " + std::string(what));
    return done != dialogs_.stop_at;
  }

 private:
  FakeDialogs& dialogs_;
  std::string title_;
};

}  // namespace

TemporaryFolder::TemporaryFolder() : path_(MakeTemporaryFolder()) {}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

int FakeDialogs::ShowMessage(const MessageBox& box) {
  seen.push_back(box);
  if (!answers.empty()) {
    const int answer = answers.front();
    answers.pop_front();
    return answer;
  }
  if ((box.type & kYesNo) == 0) return kAnswerOk;
  return (box.type & kSecondButtonDefault) != 0 ? kAnswerNo : kAnswerYes;
}

std::string FakeDialogs::OpenFile(const std::string& filter, const std::filesystem::path& folder) {
  filter_seen = filter;
  folder_seen = folder;
  return file;
}

std::string FakeDialogs::InputBox(const std::string& prompt, const std::string& title) {
  inputs_seen.push_back(title + ": " + prompt);
  if (inputs.empty()) return {};
  std::string input = inputs.front();
  inputs.pop_front();
  return input;
}

std::unique_ptr<Progress> FakeDialogs::BeginProgress(const std::string& title) {
  return std::make_unique<FakeProgress>(*this, title);
}

std::string FakeSettings::Get(const std::string& application, const std::string& section,
                              const std::string& key) {
  return values[application + "/" + section + "/" + key];
}

void FakeSettings::Save(const std::string& application, const std::string& section,
                        const std::string& key, const std::string& value) {
  values[application + "/" + section + "/" + key] = value;
  written.push_back(value);
}

void FakePrinter::ShowPrinter(const std::string& for_job) {
  job = for_job;
  operations.push_back("ShowPrinter");
  if (cancel) throw CancelWasSelected();
}

void FakePrinter::SetFont(std::string_view name, double points, bool bold) {
  operations.push_back("Font " + std::string(name) + " " + NumberText(points) +
                       (bold ? " bold" : ""));
}

void FakePrinter::SetFontBold(bool bold) { operations.push_back(bold ? "bold on" : "bold off"); }

void FakePrinter::SetCurrentX(double x) { operations.push_back("X " + NumberText(x)); }

void FakePrinter::SetCurrentY(double y) { operations.push_back("Y " + NumberText(y)); }

void FakePrinter::SetOrientation(Orientation orientation) {
  operations.push_back(orientation == Orientation::kLandscape ? "landscape" : "portrait");
}

void FakePrinter::Print(std::string_view text) {
  if (broken) throw RunTimeError(482, "Printer error");
  operations.push_back("Print \"" + std::string(text) + "\"");
}

void FakePrinter::OwnerPrintDraw(const Grid& grid, double left, double top, double right,
                                 double bottom, int page) {
  if (on_draw) on_draw(grid);
  operations.push_back("Draw " + PlaceOf(grid, left, top, right, bottom) + " page " +
                       NumberText(page));
}

int FakePrinter::OwnerPrintPageCount(const Grid& grid, double left, double top, double right,
                                     double bottom) {
  operations.push_back("Count " + PlaceOf(grid, left, top, right, bottom));
  return pages;
}

void FakePrinter::Finish() {
  if (full) throw RunTimeError(482, "Printer error");
}

HeadlessProgram::HeadlessProgram() : host(survey, {dialogs, printer, settings, program_folder}) {
  program_folder.path = folder.path();
  fs::copy_file(TemplateFile(), folder.path() / kTemplateFile);
  host.set_view(this);
  survey.set_statement_observer(
      [this](std::string_view statement) { statements.emplace_back(statement); });
}

void HeadlessProgram::RunModal(Form& form) {
  if (!modal_scripts.empty()) {
    const auto script = modal_scripts.front();
    modal_scripts.pop_front();
    script(form);
  }
  if (form.loaded()) host.CloseBox(form);
}

std::string HeadlessProgram::Front() const {
  return host.Front() == nullptr ? "" : host.Front()->name();
}

std::string HeadlessProgram::LastBox() {
  const std::string text = dialogs.seen.empty() ? "" : dialogs.seen.back().prompt;
  dialogs.seen.clear();
  return text;
}

void HeadlessProgram::OpenSite(double college, double campus) {
  const fs::path database = folder.path() / "site.mdb";
  fs::copy_file(TemplateFile(), database, fs::copy_options::overwrite_existing);
  survey.DatabasePath = database.string();
  survey.CollegeEmisNumber = college;
  survey.CampusEmisNumber = campus;
  survey.SurveyYear = 2012;
  survey.OpenDatabaseConnection();
  statements.clear();
}

std::vector<std::string> HeadlessProgram::Query(const std::string& statement) {
  static CipherKeys keys;
  const auto connection = Connection::Open(survey.DatabasePath, DatabasePassword(), keys);
  Recordset records;
  records.Open(statement, connection.get());
  std::vector<std::string> rows;
  for (; !records.Eof(); records.MoveNext()) rows.push_back(records.Field("r").Text());
  return rows;
}

void HeadlessProgram::RunScript(const char* script) {
  CipherKeys keys;
  Connection::Open(survey.DatabasePath, DatabasePassword(), keys)->ExecuteScript(script);
}

std::unique_ptr<Connection> HeadlessProgram::HoldCommits() {
  CipherKeys keys;
  auto reader = Connection::Open(survey.DatabasePath, DatabasePassword(), keys);
  reader->ExecuteScript("BEGIN; select count(*) from lst_province");
  return reader;
}

const fs::path& TemplateFile() {
  static const TemporaryFolder folder;
  static const fs::path file = [] {
    const fs::path made = folder.path() / "template.mdb";
    MakeTemplate(ReadSurveyLists(SURVEY_DATA), made.string());
    return made;
  }();
  return file;
}

}  // namespace survey::testing
