#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/desktop.h"

int main(int argc, char** argv) {
  // No window of a test comes to a user's screen.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  survey::SetUpApplication();
  return RUN_ALL_TESTS();
}
