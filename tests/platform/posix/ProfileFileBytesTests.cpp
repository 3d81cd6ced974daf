#include <gtest/gtest.h>

#include "platform/ProfileFile.h"
#include "support/TempFolder.h"

namespace mortane {
namespace {

// Windows lays out the lines as it likes; here they are ours.
class ProfileFileBytes : public ::testing::Test {
 protected:
  ProfileFile With(const std::string& content) const {
    return ProfileFile(folder_.Write("Setup.ini", content));
  }
  std::string Content() const { return test::TempFolder::Read(folder_.Path("Setup.ini")); }

  test::TempFolder folder_;
};

struct WriteRow {
  const char* before;
  const char* after;
};

TEST_F(ProfileFileBytes, WritesAValueAndLeavesAllElseAlone) {
  const WriteRow rows[] = {
      {"", "[JoyPad]\nRight=7\n"},
      {"[JoyPad]\nRight=1\n", "[JoyPad]\nRight=7\n"},
      {"[joypad]\n  right = 1\nLeft=2\n", "[joypad]\nright=7\nLeft=2\n"},
      {"[JoyPad]\nLeft=2\n", "[JoyPad]\nLeft=2\nRight=7\n"},
      {"[JoyPad]", "[JoyPad]\nRight=7\n"},
      {"; top\n[A]\nx = 1 \n\n[B]\n", "; top\n[A]\nx = 1 \n\n[B]\n[JoyPad]\nRight=7\n"},
      {"[A]\nx=1", "[A]\nx=1\n[JoyPad]\nRight=7\n"},
      {"[JoyPad]\nLeft=2\n\n\n[B]\ny=1\n", "[JoyPad]\nLeft=2\nRight=7\n\n\n[B]\ny=1\n"},
      {"[JoyPad]\r\nRight=1\r\n", "[JoyPad]\r\nRight=7\r\n"},
      {"\xEF\xBB\xBF[JoyPad]\nRight=1\n", "\xEF\xBB\xBF[JoyPad]\nRight=7\n"},
      {"[JoyPad]\nRight=1\nRight=2\n", "[JoyPad]\nRight=7\nRight=2\n"},
  };
  for (const WriteRow& row : rows) {
    EXPECT_TRUE(With(row.before).WriteText("JoyPad", "Right", "7")) << row.before;
    EXPECT_EQ(Content(), row.after) << row.before;
  }
}

TEST_F(ProfileFileBytes, WritesSeveralValuesInTheirOrder) {
  const ProfileFile file = With("; pad\n[JoyPad]\nLeft = 2 \n\n[B]\n");
  EXPECT_TRUE(file.WriteTexts("JoyPad", {{"Right", "7"}, {"Left", "8"}, {"Up", "9"}}));
  EXPECT_EQ(Content(), "; pad\n[JoyPad]\nLeft=8\nRight=7\nUp=9\n\n[B]\n");
}

TEST_F(ProfileFileBytes, DeletesALineAndNoOther) {
  EXPECT_TRUE(With("; c\n[JoyPad]\n x = 1\nright=2\n\n[B]\n").DeleteKey("JoyPad", "Right"));
  EXPECT_EQ(Content(), "; c\n[JoyPad]\n x = 1\n\n[B]\n");
}

TEST_F(ProfileFileBytes, DeletesTheLinesOfASection) {
  EXPECT_TRUE(With("[A]\n x = 1\n[joypad]\n;c\nRight=2\n[B]\ny=3").DeleteSection("JoyPad"));
  EXPECT_EQ(Content(), "[A]\n x = 1\n[B]\ny=3");
}

TEST_F(ProfileFileBytes, AreUtf8) {
  EXPECT_EQ(With("[JoyPad]\nRight=\xC2\xB5\n").Text("JoyPad", "Right", "?"), "\xC2\xB5");
}

}  // namespace
}  // namespace mortane
