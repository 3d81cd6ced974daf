// Profile files byte for byte: what each operation makes of a file.
#include <gtest/gtest.h>

#include "platform/ProfileFile.h"
#include "support/TempFolder.h"
#include "support/ThisSystem.h"

namespace mortane {
namespace {

enum class Act { Write, WriteBlanks, WriteQuotes, DeleteKey, DeleteSection };

struct ActRow {
  Act act;
  const char* before;
  const char* after;
  // Where Wine's calls make another file of it: they write every line anew, without the blanks
  // around it and without empty lines. Windows leaves all other lines as they are.
  const char* underWine = nullptr;
};

constexpr ActRow kRows[] = {
    {Act::Write, "", "[JoyPad]\nRight=7\n"},
    {Act::Write, "[JoyPad]\nRight=1\n", "[JoyPad]\nRight=7\n"},
    {Act::Write, "[JoyPad]\nRight=1", "[JoyPad]\nRight=7\n"},
    {Act::Write, "[JoyPad]\nRight=\"1\"\n", "[JoyPad]\nRight=7\n"},
    {Act::Write, "[joypad]\n  right = 1\nLeft=2\n", "[joypad]\nright=7\nLeft=2\n"},
    {Act::Write, "[JoyPad]\nLeft=2\n", "[JoyPad]\nLeft=2\nRight=7\n"},
    {Act::Write, "[JoyPad]\nLeft=2", "[JoyPad]\nLeft=2\nRight=7\n"},
    {Act::Write, "[JoyPad]", "[JoyPad]\nRight=7\n"},
    {Act::Write, "[JoyPad]\n[B]\n", "[JoyPad]\nRight=7\n[B]\n"},
    {Act::Write, "[A]\nx=1", "[A]\nx=1\n[JoyPad]\nRight=7\n"},
    {Act::Write, "[A]\nx=\"1\"\ny='2'\n", "[A]\nx=\"1\"\ny='2'\n[JoyPad]\nRight=7\n"},
    {Act::Write, "[JoyPad]\n;c\nRight=1\n;d\n[B]\n", "[JoyPad]\n;c\nRight=7\n;d\n[B]\n"},
    {Act::Write, "[JoyPad]\nLeft=2\n;d\n[B]\n", "[JoyPad]\nLeft=2\n;d\nRight=7\n[B]\n"},
    {Act::Write, "[JoyPad]\nRight=1\nRight=2\n", "[JoyPad]\nRight=7\nRight=2\n"},
    {Act::Write, "[JoyPad]\nRight=1\n[JoyPad]\nRight=2\n",
     "[JoyPad]\nRight=7\n[JoyPad]\nRight=2\n"},
    {Act::Write, "Right=1\n[JoyPad]\n", "Right=1\n[JoyPad]\nRight=7\n"},
    {Act::Write, "[JoyPad]\nname\nRight=1\n", "[JoyPad]\nname\nRight=7\n"},
    {Act::Write, "[JoyPad]\nRight=1\nN=\xE4\xF6\n", "[JoyPad]\nRight=7\nN=\xE4\xF6\n"},
    {Act::Write, "; top\n[A]\nx = 1 \n\n[B]\n", "; top\n[A]\nx = 1 \n\n[B]\n[JoyPad]\nRight=7\n",
     "; top\n[A]\nx=1\n[B]\n[JoyPad]\nRight=7\n"},
    {Act::Write, "[JoyPad]\nLeft=2\n\n\n[B]\ny=1\n", "[JoyPad]\nLeft=2\nRight=7\n\n\n[B]\ny=1\n",
     "[JoyPad]\nLeft=2\nRight=7\n[B]\ny=1\n"},
    {Act::Write, "[JoyPad] ; pad\nRight=1\n", "[JoyPad] ; pad\nRight=7\n", "[JoyPad]\nRight=7\n"},
    {Act::WriteBlanks, "", "[JoyPad]\nRight= 7 \n", "[JoyPad]\nRight=7 \n"},
    {Act::WriteQuotes, "", "[JoyPad]\nRight=\" 7 \"\n"},
    {Act::DeleteKey, "; c\n[JoyPad]\nx=1\nright=2\n[B]\n", "; c\n[JoyPad]\nx=1\n[B]\n"},
    {Act::DeleteKey, "; c\n[JoyPad]\n x = 1\nright=2\n\n[B]\n", "; c\n[JoyPad]\n x = 1\n\n[B]\n",
     "; c\n[JoyPad]\nx=1\n[B]\n"},
    {Act::DeleteKey, "[JoyPad]\nRight=1\nRight=2\n", "[JoyPad]\nRight=2\n"},
    {Act::DeleteKey, "[JoyPad]\nRight=1\n", "[JoyPad]\n"},
    {Act::DeleteKey, "[JoyPad]\n x = 1\n\n", "[JoyPad]\n x = 1\n\n"},
    {Act::DeleteSection, "[A]\nx=1\n[joypad]\n;c\nRight=2\n[B]\ny=3\n", "[A]\nx=1\n[B]\ny=3\n"},
    {Act::DeleteSection, "[A]\n x = 1\n[joypad]\n;c\nRight=2\n[B]\ny=3", "[A]\n x = 1\n[B]\ny=3",
     "[A]\nx=1\n[B]\ny=3\n"},
    {Act::DeleteSection, "[A]\n x = 1\n\n", "[A]\n x = 1\n\n"},
};

class ProfileFileBytes : public ::testing::Test {
 protected:
  ProfileFile With(const std::string& content) const {
    return ProfileFile(folder_.Write("Setup.ini", content));
  }
  std::string Content() const { return test::TempFolder::Read(folder_.Path("Setup.ini")); }

  test::TempFolder folder_;
};

bool Do(Act act, const ProfileFile& file) {
  switch (act) {
    case Act::Write:
      return file.WriteText("JoyPad", "Right", "7");
    case Act::WriteBlanks:
      return file.WriteText("JoyPad", "Right", " 7 ");
    case Act::WriteQuotes:
      return file.WriteText("JoyPad", "Right", "\" 7 \"");
    case Act::DeleteKey:
      return file.DeleteKey("JoyPad", "Right");
    case Act::DeleteSection:
      return file.DeleteSection("JoyPad");
  }
  return false;
}

TEST_F(ProfileFileBytes, AreTheSameOnEverySystem) {
  for (const ActRow& row : kRows) {
    const bool otherwise = row.underWine != nullptr && test::IsUnderWine();
    EXPECT_TRUE(Do(row.act, With(test::NativeLines(row.before)))) << row.before;
    EXPECT_EQ(Content(), test::NativeLines(otherwise ? row.underWine : row.after)) << row.before;
  }
}

TEST_F(ProfileFileBytes, OfSeveralValuesStandInTheirOrder) {
  const ProfileFile file = With(test::NativeLines("; pad\n[JoyPad]\nLeft=2\n[B]\n"));
  EXPECT_TRUE(file.WriteTexts("JoyPad", {{"Right", "7"}, {"Left", "8"}, {"Up", "9"}}));
  EXPECT_EQ(Content(), test::NativeLines("; pad\n[JoyPad]\nLeft=8\nRight=7\nUp=9\n[B]\n"));
}

}  // namespace
}  // namespace mortane
