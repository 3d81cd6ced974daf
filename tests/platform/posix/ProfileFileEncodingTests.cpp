#include <gtest/gtest.h>

#include "platform/ProfileFile.h"
#include "support/TempFolder.h"

namespace mortane {
namespace {

// Windows has code pages; here a file is in UTF-8.
class ProfileFileEncoding : public ::testing::Test {
 protected:
  ProfileFile With(const std::string& content) const {
    return ProfileFile(folder_.Write("Setup.ini", content));
  }
  std::string Content() const { return test::TempFolder::Read(folder_.Path("Setup.ini")); }

  test::TempFolder folder_;
};

TEST_F(ProfileFileEncoding, IsUtf8) {
  EXPECT_EQ(With("[JoyPad]\nRight=\xC2\xB5\n").Text("JoyPad", "Right", "?"), "\xC2\xB5");
  const ProfileFile file = With("");
  EXPECT_TRUE(file.WriteText("\xE6\x97\xA5", "\xC3\xA4", "\xC2\xB5"));
  EXPECT_EQ(Content(), "[\xE6\x97\xA5]\n\xC3\xA4=\xC2\xB5\n");
}

TEST_F(ProfileFileEncoding, MayBeTold) {
  const ProfileFile file = With("\xEF\xBB\xBF[JoyPad]\nRight=1\n");
  EXPECT_EQ(file.Text("JoyPad", "Right", "?"), "1");
  EXPECT_TRUE(file.WriteText("JoyPad", "Right", "7"));
  EXPECT_EQ(Content(), "\xEF\xBB\xBF[JoyPad]\nRight=7\n");
}

TEST_F(ProfileFileEncoding, KeepsTheLineEndsOfAnotherSystem) {
  EXPECT_TRUE(With("[JoyPad]\r\nLeft=1\r\n").WriteText("JoyPad", "Right", "7"));
  EXPECT_EQ(Content(), "[JoyPad]\r\nLeft=1\r\nRight=7\r\n");
}

}  // namespace
}  // namespace mortane
