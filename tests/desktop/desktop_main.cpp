// The desktop tests run in one application on the offscreen platform.
#include <QApplication>
#include <gtest/gtest.h>

#include "desktop/app.h"

// Under the sanitizers the leak check is off for this program: the font and
// platform libraries keep their caches to the end of the process, and the test
// listing run at build time must not fail on them.
extern "C" const char* __asan_default_options() { return "detect_leaks=0"; }

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  obsdesk::prepare_application(app);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
