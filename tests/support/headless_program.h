#ifndef TESTS_SUPPORT_HEADLESS_PROGRAM_H_
#define TESTS_SUPPORT_HEADLESS_PROGRAM_H_

#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "forms/form.h"
#include "forms/form_host.h"
#include "store/recordset.h"

namespace survey::testing {

// A folder that goes with the test.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// The user in front of the dialogs: answers what it was told to, and remembers what it saw.
struct FakeDialogs : Dialogs {
  int ShowMessage(const MessageBox& box) override;
  std::string OpenFile(const std::string& filter, const std::filesystem::path& folder) override;
  std::string InputBox(const std::string& prompt, const std::string& title) override;
  std::unique_ptr<Progress> BeginProgress(const std::string& title) override;

  std::vector<MessageBox> seen;
  std::deque<int> answers;  // OK, or the default button, once they are used up
  std::string file;         // the next pick
  std::string filter_seen;
  std::filesystem::path folder_seen;
  std::deque<std::string> inputs;        // Cancel once they are used up
  std::vector<std::string> inputs_seen;  // "title: prompt"
  std::vector<std::string> steps_seen;   // "title: done/total what"
  int stop_at = -1;                      // the step that the user stops at; -1: goes through
};

struct FakeSettings : Settings {
  std::string Get(const std::string& application, const std::string& section,
                  const std::string& key) override;
  void Save(const std::string& application, const std::string& section, const std::string& key,
            const std::string& value) override;

  std::map<std::string, std::string> values;  // "application/section/key"
  std::vector<std::string> written;           // values in the order of writing
};

struct FakeProgramFolder : ProgramFolder {
  std::filesystem::path Path() const override { return path; }
  bool StartSystemInformation() override { return has_system_information; }

  std::filesystem::path path;
  bool has_system_information = false;
};

// Writes down each operation.
struct FakePrinter : Printer {
  void ShowPrinter(const std::string& job) override;
  void SetFont(std::string_view name, double points, bool bold) override;
  void SetFontBold(bool bold) override;
  void SetCurrentX(double x) override;
  void SetCurrentY(double y) override;
  void SetOrientation(Orientation orientation) override;
  void Print(std::string_view text) override;
  double Width() override { return 11906; }
  double Height() override { return 16838; }
  void OwnerPrintDraw(const Grid& grid, double left, double top, double right, double bottom,
                      int page) override;
  int OwnerPrintPageCount(const Grid& grid, double left, double top, double right,
                          double bottom) override;
  void NewPage() override { operations.push_back("NewPage"); }
  void EndDoc() override { operations.push_back("EndDoc"); }
  void Finish() override;

  std::vector<std::string> operations;
  std::string job;      // the last choice was for
  bool cancel = false;  // the user cancels the dialog
  bool broken = false;  // fails at the first text
  bool full = false;    // fails when all is printed
  int pages = 1;        // that a grid needs
  std::function<void(const Grid&)> on_draw;
};

// A program without a desktop, in a folder of its own with the template in it.
class HeadlessProgram : public FormsView {
 public:
  HeadlessProgram();

  void Refresh() override {}
  // Runs the next script on the modal form, then closes its window if it is still open.
  void RunModal(Form& form) override;

  template <typename Kind>
  Kind& The(const std::string& form, std::string_view control, int index = kNoIndex) {
    return host.Get(form).Find<Kind>(control, index);
  }
  void Click(const std::string& form, std::string_view button, int index = kNoIndex) {
    The<Button>(form, button, index).Click();
  }
  std::string Front() const;
  // The text of the last box, or "" when none was shown; forgets all boxes.
  std::string LastBox();

  // Opens a fresh copy of the template as the working database, with this site.
  void OpenSite(double college, double campus);
  // The column r of a query's rows, read through a second connection.
  std::vector<std::string> Query(const std::string& statement);
  void RunScript(const char* script);  // on a second connection, in the engine's own SQL
  // Another copy that reads as long as the answer lives: statements run, and no commit.
  std::unique_ptr<Connection> HoldCommits();

  TemporaryFolder folder;
  FakeDialogs dialogs;
  FakePrinter printer;
  FakeSettings settings;
  FakeProgramFolder program_folder;
  Survey survey;
  FormHost host;
  std::deque<std::function<void(Form&)>> modal_scripts;
  std::vector<std::string> statements;  // as the program gave them
};

// A copy of the template made from the department's lists; made once a process.
const std::filesystem::path& TemplateFile();

}  // namespace survey::testing

#endif  // TESTS_SUPPORT_HEADLESS_PROGRAM_H_
