// A joystick counts as unplugged while it has no device file.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "platform/Folder.h"
#include "platform/Joystick.h"
#include "support/posix/OwnSystemRoot.h"

namespace mortane {
namespace {

TEST(SystemJoystickFile, ThatIsNotThereIsAnUnpluggedJoystick) {
  const bool missing = ::access("/dev/input/js0", F_OK) != 0;
  SystemJoystick joystick;
  EXPECT_EQ(joystick.ReadStatus() == kJoystickUnplugged, missing);
  EXPECT_EQ(joystick.ReadCapabilities().result == kJoystickUnplugged, missing);
}

struct FileRow {
  const char* meaning;
  mode_t kind;  // 0 for a link that leads to itself
  std::int32_t capabilities;
  std::int32_t status;
};

// A socket gives the error of a device that has gone. The others open, but no driver answers.
constexpr FileRow kRows[] = {
    {"socket", S_IFSOCK, kJoystickUnplugged, kJoystickUnplugged},
    {"file", S_IFREG, kJoystickNoDriver, kJoystickOk},
    {"folder", S_IFDIR, kJoystickNoDriver, kJoystickNoDriver},
    {"pipe", S_IFIFO, kJoystickNoDriver, kJoystickOk},
    {"link", 0, kJoystickNoDriver, kJoystickNoDriver},
};

bool Make(const FileRow& row, const std::string& path) {
  if (row.kind == 0) return ::symlink("js0", path.c_str()) == 0;
  if (row.kind == S_IFDIR) return ::mkdir(path.c_str(), 0700) == 0;
  return ::mknod(path.c_str(), row.kind | 0600U, 0) == 0;
}

TEST(SystemJoystickFile, OfEachKindGivesItsOwnResult) {
  for (const FileRow& row : kRows) {
    const test::OwnSystemRoot root;
    SystemJoystick joystick;
    ASSERT_TRUE(MakeFolder(root.Path("dev/input")));
    EXPECT_EQ(joystick.ReadStatus(), kJoystickUnplugged) << "nothing there yet";
    ASSERT_TRUE(Make(row, root.Path("dev/input/js0"))) << row.meaning;
    const JoystickCapabilities capabilities = joystick.ReadCapabilities();
    EXPECT_EQ(capabilities.result, row.capabilities) << row.meaning;
    EXPECT_EQ(capabilities.buttonCount, 0) << row.meaning;
    EXPECT_EQ(joystick.ReadStatus(), row.status) << row.meaning;
  }
}

}  // namespace
}  // namespace mortane
