// Runs the tests of pages in an application that needs no display.
#include <gtest/gtest.h>

#include <QApplication>

#include "widgets/Theme.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  mortane::ApplyTheme(application, mortane::Scheme::Light);
  return RUN_ALL_TESTS();
}
