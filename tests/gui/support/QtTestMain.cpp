// Runs tests in an application that needs no display.
#include <gtest/gtest.h>

#include <QApplication>

#include "platform/NamedMutex.h"
#include "support/TestWatch.h"
#include "support/UniqueName.h"
#include "widgets/Theme.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const mortane::test::UniqueName deviceNames;
  mortane::NamedMutex::SetScope(deviceNames.Text() + "-");
  testing::UnitTest::GetInstance()->listeners().Append(mortane::test::MakeTestWatch().release());
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Mortane"));
  QApplication::setQuitOnLastWindowClosed(false);
  mortane::ApplyTheme(application, mortane::Scheme::Light);
  return RUN_ALL_TESTS();
}
