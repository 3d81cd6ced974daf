#include <gtest/gtest.h>

#include <QApplication>

#include "widgets/Theme.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  mortane::ApplyTheme(application, mortane::Scheme::Light);
  return RUN_ALL_TESTS();
}
