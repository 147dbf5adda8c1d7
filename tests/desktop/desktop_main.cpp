// The desktop tests run in one application on the offscreen platform.
#include <QApplication>
#include <gtest/gtest.h>

#include "desktop/app.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  obsdesk::prepare_application(app);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
