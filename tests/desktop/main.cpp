#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/desktop.h"
#include "offscreen.h"

int main(int argc, char** argv) {
  // No window of a test comes to a user's screen.
  survey::UseOffscreenPlatform();
  ::testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  survey::SetUpApplication();
  return RUN_ALL_TESTS();
}
