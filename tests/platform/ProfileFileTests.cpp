#include "platform/ProfileFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/TempFolder.h"

namespace mortane {
namespace {

using Names = std::vector<std::string>;

class ProfileFileTest : public ::testing::Test {
 protected:
  ProfileFile With(const std::string& content) const {
    return ProfileFile(folder_.Write("Setup.ini", content));
  }
  ProfileFile Missing() const { return ProfileFile(folder_.Path("Setup.ini")); }
  std::string Content() const { return test::TempFolder::Read(folder_.Path("Setup.ini")); }

  test::TempFolder folder_;
};

struct TextRow {
  const char* content;
  const char* text;
};

TEST_F(ProfileFileTest, FindsAKeyHoweverItIsWritten) {
  const TextRow rows[] = {
      {"[JoyPad]\nRight=7\n", "7"},
      {"[JoyPad]\r\nRight=7\r\n", "7"},
      {"[JoyPad]\nRight=7", "7"},
      {"[joypad]\nRIGHT=7\n", "7"},
      {"  [JoyPad]  \n  Right  =  7  \n", "7"},
      {"\t[JoyPad]\n\tRight\t=\t7\t\n", "7"},
      {"[JoyPad] ; pad\nRight=7\n", "7"},
      {"\n\n; Right=1\n[JoyPad]\n;Right=2\n\nRight=7\n", "7"},
      {"[Other]\nRight=1\n[JoyPad]\nRight=7\n[Last]\nRight=2\n", "7"},
      {"[JoyPad]\nRight=7\nRight=8\n", "7"},
      {"[JoyPad]\nRight=\"7\"\n", "7"},
      {"[JoyPad]\nRight='7'\n", "7"},
      {"[JoyPad]\nRight=\" 7 \"\n", " 7 "},
      {"[JoyPad]\nRight=\"7\n", "\"7"},
      {"[JoyPad]\nRight=a=b;c\n", "a=b;c"},
      {"[JoyPad]\nRight=\n", ""},
  };
  for (const TextRow& row : rows)
    EXPECT_EQ(With(row.content).Text("JoyPad", "Right", "?"), row.text) << row.content;
}

TEST_F(ProfileFileTest, GivesTheDefaultForWhatIsNotThere) {
  for (const char* content :
       {"", "Right=7\n", "[Other]\nRight=7\n", "[JoyPad]\nLeft=7\n", "[JoyPad]\n;Right=7\n",
        "[JoyPad]\n[Other]\nRight=7\n", "[Joy Pad]\nRight=7\n", "[JoyPad]\n Ri ght=7\n"}) {
    EXPECT_EQ(With(content).Text("JoyPad", "Right", "?"), "?") << content;
    EXPECT_EQ(With(content).Int("JoyPad", "Right", -1), -1) << content;
  }
  EXPECT_EQ(Missing().Text("JoyPad", "Right", "? "), "?") << "blanks end a default";
}

TEST_F(ProfileFileTest, ReadsAMissingFileOrAFolderAsAnEmptyOne) {
  for (const std::string& path : {folder_.Path("missing.ini"), folder_.Path("."),
                                  folder_.Path("missing/Setup.ini"), std::string()}) {
    const ProfileFile file(path);
    EXPECT_EQ(file.Text("JoyPad", "Right", "d"), "d") << path;
    EXPECT_EQ(file.Int("JoyPad", "Right", -1), -1) << path;
    EXPECT_EQ(file.SectionNames(), Names()) << path;
    EXPECT_EQ(file.KeyNames("JoyPad"), Names()) << path;
  }
}

struct IntRow {
  const char* value;
  std::int32_t number;
};

TEST_F(ProfileFileTest, ReadsTheNumberThatAValueBeginsWith) {
  const IntRow rows[] = {{"0", 0},
                         {"12", 12},
                         {"-1", -1},
                         {"-5", -5},
                         {"+5", 5},
                         {"60", 60},
                         {"70000", 70000},
                         {"abc", 0},
                         {"12abc", 12},
                         {"1.9", 1},
                         {"- 5", 0},
                         {"0x1F", 31},
                         {"0xaf", 175},
                         {"0xAF", 175},
                         {"0x09g", 9},
                         {"0xG", 0},
                         {"0b102", 2},
                         {"0o78", 7},
                         {"0b101", 5},
                         {"0o17", 15},
                         {"017", 17},
                         {"\"8\"", 8},
                         {"\" 8\"", 8},
                         {"2147483647", 2147483647},
                         {"2147483648", INT32_MIN},
                         {"4294967295", -1},
                         {"4294967296", 0},
                         {"", 99},
                         {"\"\"", 99}};
  for (const IntRow& row : rows) {
    const ProfileFile file = With("[JoyPad]\nRight=" + std::string(row.value) + "\n");
    EXPECT_EQ(file.Int("JoyPad", "Right", 99), row.number) << row.value;
  }
}

TEST_F(ProfileFileTest, ListsSectionsAndKeysInTheirOrder) {
  const ProfileFile file = With("x=1\n[B]\nb=1\n;c=2\n A =\n[ a ]\n[C]x\nz=1\n");
  EXPECT_EQ(file.SectionNames(), (Names{"B", "a", "C"}));
  EXPECT_EQ(file.KeyNames("b"), (Names{"b", "A"}));
  EXPECT_EQ(file.KeyNames("A"), Names());
  EXPECT_EQ(file.KeyNames("none"), Names());
}

TEST_F(ProfileFileTest, WritesAValueAndKeepsAllOthers) {
  for (const char* before :
       {"[a]\nx=1\n[JoyPad]\nLeft=2\n", "[a]\nx=1\n[joypad]\nright=3\nLeft=2\n",
        "[JoyPad]\nLeft=2\nRight = 3\n\n[a]\nx=1"}) {
    const ProfileFile file = With(before);
    EXPECT_TRUE(file.WriteText("JoyPad", "Right", "7")) << before;
    EXPECT_EQ(file.Text("JoyPad", "Right", "?"), "7") << before;
    EXPECT_EQ(file.Text("JoyPad", "Left", "?"), "2") << before;
    EXPECT_EQ(file.Text("a", "x", "?"), "1") << before;
    EXPECT_EQ(file.KeyNames("JoyPad").size(), 2U) << before;
  }
}

TEST_F(ProfileFileTest, CreatesAMissingFile) {
  EXPECT_TRUE(Missing().WriteText("JoyPad", "Right", "7"));
  EXPECT_EQ(Missing().Int("JoyPad", "Right", -1), 7);
}

TEST_F(ProfileFileTest, StandsUnderAnyNameAndInTheCurrentFolder) {
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(test::PathOf(folder_.Path("")));
  for (const char* name : {"MortaneTest.ini", "Mortane Test.ini", "\xC3\xA4 \xE6\x97\xA5.ini"}) {
    for (const std::string& path : {folder_.Path(name), std::string(name)}) {
      const ProfileFile file(path);
      EXPECT_TRUE(file.WriteText("JoyPad", "Right", "7")) << path;
      EXPECT_EQ(ProfileFile(folder_.Path(name)).Int("JoyPad", "Right", -1), 7) << path;
      EXPECT_EQ(file.KeyNames("JoyPad"), Names{"Right"}) << path;
      EXPECT_TRUE(file.DeleteSection("JoyPad")) << path;
      EXPECT_EQ(ProfileFile(folder_.Path(name)).SectionNames(), Names()) << path;
    }
  }
  std::filesystem::current_path(before);
}

TEST_F(ProfileFileTest, AnswersFalseWhenNothingCanBeWritten) {
  const ProfileFile file(folder_.Path("missing/Setup.ini"));
  EXPECT_FALSE(file.WriteText("JoyPad", "Right", "7"));
  EXPECT_FALSE(ProfileFile(folder_.Path(".")).WriteText("JoyPad", "Right", "7"));
}

TEST_F(ProfileFileTest, RefusesTextsThatWouldBreakTheLines) {
  const std::string before = "[JoyPad]\nRight=1\n";
  for (const std::string& bad :
       {std::string("1\n[X]"), std::string("1\r"), std::string("1\0", 2)}) {
    EXPECT_FALSE(With(before).WriteText("JoyPad", "Right", bad));
    EXPECT_FALSE(With(before).WriteText("JoyPad", bad, "1"));
    EXPECT_FALSE(With(before).WriteText(bad, "Right", "1"));
    EXPECT_EQ(Content(), before);
  }
}

TEST_F(ProfileFileTest, WritesSeveralValuesAtOnceAndKeepsAllOthers) {
  const ProfileFile file = With("[a]\nx=1\n[joypad]\nright=3\nButton9=4\n");
  EXPECT_TRUE(file.WriteTexts("JoyPad", {{"Right", "7"}, {"Left", "8"}}));
  EXPECT_EQ(file.Text("JoyPad", "Right", "?"), "7");
  EXPECT_EQ(file.Text("JoyPad", "Left", "?"), "8");
  EXPECT_EQ(file.Text("JoyPad", "Button9", "?"), "4");
  EXPECT_EQ(file.Text("a", "x", "?"), "1");
}

TEST_F(ProfileFileTest, WritesAllOfSeveralValuesOrNone) {
  const std::string before = "[JoyPad]\nRight=1\n";
  const ProfileFile file = With(before);
  EXPECT_FALSE(file.WriteTexts("JoyPad", {{"Right", "2"}, {"Left", "1\n2"}}));
  EXPECT_FALSE(file.WriteTexts("JoyPad", {{"Right", "2"}, {"Le\rft", "1"}}));
  EXPECT_FALSE(file.WriteTexts("Joy\nPad", {{"Right", "2"}}));
  EXPECT_EQ(Content(), before);
}

TEST_F(ProfileFileTest, DeletesOneKey) {
  const ProfileFile file = With("[JoyPad]\nLeft=1\nright=2\n[B]\nRight=3\n");
  EXPECT_TRUE(file.DeleteKey("JOYPAD", "Right"));
  EXPECT_EQ(file.KeyNames("JoyPad"), Names{"Left"});
  EXPECT_EQ(file.KeyNames("B"), Names{"Right"});
}

TEST_F(ProfileFileTest, DeletesOneSectionWithAllItsLines) {
  const ProfileFile file = With("[A]\nx=1\n[joypad]\n;c\nRight=2\n[B]\ny=3\n");
  EXPECT_TRUE(file.DeleteSection("JoyPad"));
  EXPECT_EQ(file.SectionNames(), (Names{"A", "B"}));
  EXPECT_EQ(Content().find(";c"), std::string::npos);
}

TEST_F(ProfileFileTest, DeletesWhatIsNotThere) {
  EXPECT_TRUE(Missing().DeleteKey("JoyPad", "Right"));
  EXPECT_TRUE(Missing().DeleteSection("JoyPad"));
}

}  // namespace
}  // namespace mortane
