#include "platform/SpecialFolder.h"

#include <gtest/gtest.h>

namespace mortane {
namespace {

TEST(GetSpecialFolder, KnowsNoOtherFolder) {
  for (const int folder : {-1, 0, 5, 25, 27, 28, 1000}) EXPECT_EQ(GetSpecialFolder(folder), "");
}

TEST(GetSpecialFolder, GivesTheApplicationDataWithoutASeparatorAtItsEnd) {
  const std::string folder = GetSpecialFolder(kApplicationDataFolder);
  ASSERT_NE(folder, "");
  EXPECT_EQ(std::string("/\\").find(folder.back()), std::string::npos) << folder;
}

TEST(UserDataFolder, HasNoSeparatorAtItsEnd) {
  const std::string folder = UserDataFolder();
  ASSERT_NE(folder, "");
  EXPECT_EQ(std::string("/\\").find(folder.back()), std::string::npos) << folder;
}

}  // namespace
}  // namespace mortane
