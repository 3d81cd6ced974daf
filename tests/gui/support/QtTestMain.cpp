// Runs tests in an application that needs no display.
#include <gtest/gtest.h>

#include <QApplication>
#include <optional>

#include "app/ApplyTheme.h"
#include "platform/NamedMutex.h"
#include "support/TempFolder.h"
#include "support/TestWatch.h"
#include "support/UniqueName.h"

using namespace Qt::StringLiterals;

namespace {

// The user's own settings and kept edits are neither read nor written, nor the toolkit's settings.
// The child of a death test has the folder of its parent, which removes it.
class PrivateSettings {
 public:
  PrivateSettings() {
    if (!GTEST_FLAG_GET(internal_run_death_test).empty()) return;
    folder_.emplace();
    qputenv("XDG_CONFIG_HOME", folder_->Path("config").c_str());
    qputenv("XDG_DATA_HOME", folder_->Path("data").c_str());
  }

 private:
  std::optional<mortane::test::TempFolder> folder_;
};

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const PrivateSettings settings;
  const mortane::test::UniqueName deviceNames;
  mortane::NamedMutex::SetScope(deviceNames.Text() + "-");
  testing::UnitTest::GetInstance()->listeners().Append(mortane::test::MakeTestWatch().release());
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  // Where the offscreen platform knows fonts by their names alone.
  QFont::insertSubstitution(u"monospace"_s, u"DejaVu Sans Mono"_s);
  QApplication::setApplicationName(u"Mortane"_s);
  QApplication::setQuitOnLastWindowClosed(false);
  mortane::ApplyTheme(application, mortane::Scheme::Light);
  return RUN_ALL_TESTS();
}
