// Where the place of the window is remembered, and where dialogs begin, on a system where variables
// name the folders.
#include <gtest/gtest.h>

#include <QSettings>
#include <filesystem>

#include "app/RecentFiles.h"
#include "app/UnsentEdits.h"
#include "app/WindowPlace.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

TEST(UsersPlaceFile, IsNotTheUsersInTests) {
  const std::string temporary = std::filesystem::temp_directory_path().string();
  EXPECT_TRUE(UsersPlaceFile().starts_with(temporary)) << UsersPlaceFile();
  const std::string toolkit = QSettings(QSettings::UserScope, "QtProject").fileName().toStdString();
  EXPECT_TRUE(toolkit.starts_with(temporary)) << toolkit;
  EXPECT_TRUE(UnsentEdits::DefaultFolder().starts_with(temporary)) << UnsentEdits::DefaultFolder();
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

TEST(UsersDocuments, AreTheFolderThatTheDesktopNames) {
  const TempFolder folder;
  folder.Write("user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"" + folder.Path("papers") + "\"\n");
  const QByteArray before = qgetenv("XDG_CONFIG_HOME");
  qputenv("XDG_CONFIG_HOME", folder.Path("").c_str());
  EXPECT_EQ(UsersDocuments().toStdString(), folder.Path("papers"));
  qputenv("XDG_CONFIG_HOME", before);
}

}  // namespace
}  // namespace mortane::test
