#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>

#include "desktop/qt_dialogs.h"
#include "desktop/qt_printer.h"
#include "pages/register_pages.h"
#include "shell/register_shell.h"
#include "world.h"

namespace survey::testing {
namespace {

TEST(SurveyPrintFile, HoldsEachPageOfTheCampusAndOfEachStaffMember) {
  World world;
  QtPrinter printer;
  Forms forms(world.survey, {world.dialogs, printer, world.settings, world.program_folder});
  RegisterShell(forms);
  RegisterPages(forms);
  world.OpenSite(101, 202);
  world.RunScript(
      "insert into tbl_StaffDetail(CollegeEmisNumber,CampusEmisNumber,SurveyYear,IDNumber,Surname)"
      " values(101,202,2012,'7501','A'),(101,202,2012,'7502','B')");
  const auto sheets_of = [&](const char* form) {
    const std::filesystem::path path = world.folder.path() / "print.pdf";
    printer.PrintToFile(QString::fromStdString(path.string()));
    forms.Get(form).Find<Button>("cmdPrintSurvey").Click();
    printer.Finish();
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().count("/MediaBox");
  };
  forms.Start("frmSelectEducator");
  forms.Get("frmSelectEducator").Find<CheckBox>("chAll").Click();
  EXPECT_EQ(sheets_of("frmSelectEducator"), 2 * 5);
  forms.Start("frmMainMenu");
  EXPECT_EQ(sheets_of("frmMainMenu"), 16);
  EXPECT_TRUE(world.dialogs.seen.empty());
}

TEST(QtProgress, ShowsALongJobAndStopsIt) {
  QtDialogs dialogs([] { return nullptr; });
  const auto progress = dialogs.BeginProgress("Print");
  const auto dialog = [] {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* found = qobject_cast<QProgressDialog*>(window);
      if (found != nullptr && found->isVisible()) return found;
    }
    return static_cast<QProgressDialog*>(nullptr);
  };
  EXPECT_TRUE(progress->Step(0, 20, "Page 1"));
  EXPECT_EQ(dialog(), nullptr) << "shown for a job that may soon be done";
  QTest::qSleep(600);
  EXPECT_TRUE(progress->Step(1, 20, "Page 2"));
  ASSERT_NE(dialog(), nullptr);
  EXPECT_EQ(dialog()->labelText(), "Page 2");
  EXPECT_EQ(dialog()->value(), 1);
  dialog()->findChild<QPushButton*>()->click();
  EXPECT_FALSE(progress->Step(2, 20, "Page 3"));
}

}  // namespace
}  // namespace survey::testing
