#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "platform/Folder.h"
#include "support/TempFolder.h"
#include "support/posix/ChildProcess.h"

namespace mortane {
namespace {

// Settings of a user are nobody else's.
TEST(MakeFolder, MakesFoldersForTheUserAlone) {
  const test::TempFolder folder;
  ASSERT_TRUE(MakeFolder(folder.Path("one/two")));
  for (const char* name : {"one", "one/two"}) {
    struct stat status = {};
    ASSERT_EQ(::stat(folder.Path(name).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0700U) << name;
  }
}

TEST(MakeFolder, AnswersFalseWithoutPermission) {
  const test::TempFolder folder;
  namespace fs = std::filesystem;
  fs::permissions(folder.Path(""),
                  fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
  test::ChildProcess child([&](const test::ChildProcess::Side&) {
    test::DropPrivileges();
    return MakeFolder(folder.Path("one/two")) ? 1 : 0;
  });
  EXPECT_EQ(child.Wait(), 0);
  EXPECT_FALSE(fs::exists(folder.Path("one")));
}

TEST(MakeFolder, TakesAPathThatIsNotRooted) {
  const test::TempFolder folder;
  test::ChildProcess child([&](const test::ChildProcess::Side&) {
    if (::chdir(folder.Path("").c_str()) != 0) return 1;
    return MakeFolder("one/two") && MakeFolder("three") ? 0 : 2;
  });
  EXPECT_EQ(child.Wait(), 0);
  EXPECT_TRUE(std::filesystem::is_directory(folder.Path("one/two")));
  EXPECT_TRUE(std::filesystem::is_directory(folder.Path("three")));
}

}  // namespace
}  // namespace mortane
