// Shows one form of the program on the screen, on a site of a fresh database, until it is ended.

#include <QApplication>

#include "desktop/desktop.h"
#include "pages/survey_pages.h"
#include "platform/program_folder.h"
#include "shell/register_shell.h"
#include "support/headless_program.h"
#include "support/page_filler.h"

int main(int argc, char** argv) {
  using namespace survey;
  const QApplication application(argc, argv);
  SetUpApplication();
  const testing::TemporaryFolder folder;
  const std::filesystem::path database = folder.path() / "Data2012" / "Duinekop Campus.mdb";
  std::filesystem::create_directory(database.parent_path());
  std::filesystem::copy_file(testing::TemplateFile(), folder.path() / kTemplateFile);
  std::filesystem::copy_file(testing::TemplateFile(), database);
  const auto settings = QString::fromStdString((folder.path() / "settings.ini").string());
  Desktop desktop({folder.path(), settings});
  RegisterShell(desktop.host());
  RegisterPages(desktop.host());
  const std::string form = argc > 1 ? argv[1] : "frmSelectDatabase";
  if (form != "frmSelectDatabase") {
    Survey& survey = desktop.survey();
    survey.DatabasePath = database.string();
    survey.CollegeEmisNumber = 199010830;
    survey.CampusEmisNumber = 108107587;
    survey.SurveyYear = 2012;
    survey.OpenDatabaseConnection();
    testing::ChooseStaffMember(desktop.host().Get(form), "8001015009087", "New");
  }
  desktop.host().Start(form);
  return QApplication::exec();
}
