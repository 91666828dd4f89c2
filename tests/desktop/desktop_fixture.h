#ifndef TESTS_DESKTOP_DESKTOP_FIXTURE_H_
#define TESTS_DESKTOP_DESKTOP_FIXTURE_H_

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <functional>
#include <memory>
#include <string>

#include "desktop_driver.h"
#include "pages/survey_pages.h"
#include "platform/program_folder.h"
#include "shell/register_shell.h"
#include "support/headless_program.h"

namespace survey::testing {

// The whole program in a folder of its own, and a user before it.
class DesktopTest : public ::testing::Test {
 protected:
  DesktopTest() {
    std::filesystem::copy_file(TemplateFile(), folder_.path() / kTemplateFile);
    desktop_ = std::make_unique<Desktop>(DesktopPlaces{
        folder_.path(), QString::fromStdString((folder_.path() / "settings.ini").string())});
    RegisterShell(desktop_->host());
    RegisterPages(desktop_->host());
    QObject::connect(&desktop_->view(), &DesktopView::Ended, qApp, [this] { ended_ = true; });
    user_ = std::make_unique<DesktopDriver>(*desktop_);
  }

  // A site of the template in a fresh database, with this form in front.
  void OpenSiteAt(const std::string& form) {
    const std::filesystem::path database = folder_.path() / "site.mdb";
    std::filesystem::copy_file(TemplateFile(), database);
    survey().DatabasePath = database.string();
    survey().CollegeEmisNumber = 199010830;
    survey().CampusEmisNumber = 108107587;
    survey().SurveyYear = 2012;
    survey().OpenDatabaseConnection();
    desktop_->host().Get("frmMainMenu").Property("EditMode") = "Edit";
    desktop_->host().Start(form);
  }

  // What a mouse sends that is pressed twice where `first` shows: both presses count as one double
  // click, whatever widget `second` finds there by then.
  static void DoubleClick(QWidget& first, const std::function<QWidget*()>& second, QPoint place) {
    QTest::mouseClick(&first, Qt::LeftButton, {}, place);
    QTest::mouseDClick(second(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(second(), Qt::LeftButton, {}, place);
  }
  // On the first entry of a list.
  void DoubleClickList(const std::string& list) {
    QWidget* viewport = user_->The<QAbstractItemView>(list).viewport();
    DoubleClick(*viewport, [=] { return viewport; }, {20, 8});
  }

  // Waits for a box of this caption and text, and answers it.
  void ExpectBox(const std::string& caption, const std::string& text, bool has_picture = true,
                 const std::string& answer = "OK") {
    user_->OnBox(
        [=](QMessageBox& box) {
          EXPECT_EQ(box.windowTitle().toStdString(), caption);
          EXPECT_EQ(box.text().toStdString(), text);
          EXPECT_EQ(!box.iconPixmap().isNull(), has_picture);
        },
        answer);
  }

  std::string Front() { return user_->Front().objectName().toStdString(); }
  Survey& survey() { return desktop_->survey(); }
  QColor ColorOf(const std::string& button) {
    return user_->The<QPushButton>(button).palette().color(QPalette::Button);
  }

  TemporaryFolder folder_;
  std::unique_ptr<Desktop> desktop_;
  std::unique_ptr<DesktopDriver> user_;
  bool ended_ = false;
};

}  // namespace survey::testing

#endif  // TESTS_DESKTOP_DESKTOP_FIXTURE_H_
