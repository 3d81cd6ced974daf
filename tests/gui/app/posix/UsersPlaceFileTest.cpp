// Where the place of the window is remembered, on a system where a variable names the folder.
#include <gtest/gtest.h>

#include <QSettings>
#include <filesystem>

#include "app/WindowPlace.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

TEST(UsersPlaceFile, IsNotTheUsersInTests) {
  const std::string temporary = std::filesystem::temp_directory_path().string();
  EXPECT_TRUE(UsersPlaceFile().starts_with(temporary)) << UsersPlaceFile();
  const std::string toolkit = QSettings(QSettings::UserScope, "QtProject").fileName().toStdString();
  EXPECT_TRUE(toolkit.starts_with(temporary)) << toolkit;
}

TEST(UsersPlaceFile, StandsInTheFolderOfApplicationData) {
  const TempFolder folder;
  const QByteArray before = qgetenv("XDG_CONFIG_HOME");
  qputenv("XDG_CONFIG_HOME", folder.Path("config").c_str());
  EXPECT_EQ(UsersPlaceFile(), folder.Path("config") + "/Mortane/Window.ini");
  if (before.isNull()) {
    qunsetenv("XDG_CONFIG_HOME");
  } else {
    qputenv("XDG_CONFIG_HOME", before);
  }
}

}  // namespace
}  // namespace mortane::test
