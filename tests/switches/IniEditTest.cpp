// The profile file's operations, with the answers of the system's calls.
#include <gtest/gtest.h>

#include <array>
#include <filesystem>

#include "support/TempFolder.h"
#include "support/ThisSystem.h"
#include "switches/clsIniEdit.h"

namespace mortane::test {
namespace {

using Names = std::vector<std::string>;

class IniEdit : public testing::Test {
 protected:
  clsIniEdit With(const std::string& content) const { return {folder.Write("Setup.ini", content)}; }
  clsIniEdit Missing() const { return {folder.Path("Setup.ini")}; }
  bool FileStands() const { return std::filesystem::exists(folder.Path("Setup.ini")); }

  TempFolder folder;
};

TEST_F(IniEdit, WorksOnTheFileThatItWasGiven) {
  clsIniEdit edit = With("[JoyPad]\nRight=7\n");
  EXPECT_EQ(edit.IniFilePath, folder.Path("Setup.ini"));
  edit.IniFilePath = folder.Write("Other.ini", "[JoyPad]\nRight=8\n");
  EXPECT_EQ(edit.GetInt("JoyPad", "Right", -1), 8);
}

TEST_F(IniEdit, WritesAStringAndAnswersThatItDid) {
  EXPECT_NE(Missing().WriteString("JoyPad", "Right", "7"), 0);
  EXPECT_EQ(Missing().GetString("JoyPad", "Right", "?"), "7");
}

TEST_F(IniEdit, WritesNothingWithoutAKeyOrWithoutData) {
  EXPECT_EQ(Missing().WriteString("JoyPad", "Right", ""), 0);
  EXPECT_EQ(Missing().WriteString("JoyPad", "", "7"), 0);
  EXPECT_EQ(Missing().WriteString("", "", ""), 0);
  EXPECT_FALSE(FileStands());
  EXPECT_EQ(With("[JoyPad]\nRight=7\n").WriteString("JoyPad", "Right", ""), 0);
  EXPECT_EQ(Missing().GetInt("JoyPad", "Right", -1), 7);
}

TEST_F(IniEdit, WritesWithoutASectionsNameToo) {
  EXPECT_NE(Missing().WriteString("", "Right", "7"), 0);
  EXPECT_TRUE(FileStands());
}

TEST_F(IniEdit, AnswersZeroWhenTheFileCannotBeWritten) {
  const clsIniEdit edit{folder.Path("missing/Setup.ini")};
  EXPECT_EQ(edit.WriteString("JoyPad", "Right", "7"), 0);
  EXPECT_EQ(edit.WriteStrings("JoyPad", {{"Right", "7"}}), 0);
  EXPECT_EQ(With("[A]\nx=1\n").WriteString("A", "x", "1\n2"), 0);
}

TEST_F(IniEdit, WritesSeveralStringsAndPassesOverThoseThatItWouldNotWrite) {
  const clsIniEdit edit = With("[JoyPad]\nLeft=1\nUp=2\n");
  EXPECT_NE(edit.WriteStrings("JoyPad", {{"Right", "7"}, {"Left", ""}, {"", "8"}, {"Up", "9"}}), 0);
  EXPECT_EQ(edit.GetInt("JoyPad", "Right", -1), 7);
  EXPECT_EQ(edit.GetInt("JoyPad", "Left", -1), 1);
  EXPECT_EQ(edit.GetInt("JoyPad", "Up", -1), 9);
  std::array<std::string, 5> keys;
  edit.GetKeyNames("JoyPad", keys);
  EXPECT_EQ(keys, (std::array<std::string, 5>{"Left", "Up", "Right", "", ""}));
}

TEST_F(IniEdit, OfNoStringToWriteAnswersZero) {
  EXPECT_EQ(Missing().WriteStrings("JoyPad", {}), 0);
  EXPECT_EQ(Missing().WriteStrings("JoyPad", {{"Right", ""}}), 0);
  EXPECT_FALSE(FileStands());
}

TEST_F(IniEdit, GivesAStringOrItsDefault) {
  const clsIniEdit edit = With("[joypad]\n  RIGHT = \"a b\"  \nUp=\n;Left=1\n");
  EXPECT_EQ(edit.GetString("JoyPad", "Right", "?"), "a b");
  EXPECT_EQ(edit.GetString("JoyPad", "Up", "?"), "");
  EXPECT_EQ(edit.GetString("JoyPad", "Left", "?"), "?");
  EXPECT_EQ(edit.GetString("Other", "Right", ""), "");
}

TEST_F(IniEdit, CutsAStringAtTheBuffersEnd) {
  const std::string long32766(32766, 'x');
  EXPECT_EQ(With("[A]\nx=" + long32766 + "\n").GetString("A", "x", "?"), long32766);
  EXPECT_EQ(With("[A]\nx=" + long32766 + "yz\n").GetString("A", "x", "?"), long32766);
}

struct IntRow {
  const char* value;
  std::int32_t number;
};

TEST_F(IniEdit, GivesTheNumberThatAValueBeginsWith) {
  for (const IntRow& row :
       {IntRow{"12", 12}, IntRow{"12abc", 12}, IntRow{"abc", 0}, IntRow{"-7", -7}, IntRow{"-1", -1},
        IntRow{"70000", 70000}, IntRow{"\"8\"", 8}}) {
    EXPECT_EQ(With("[A]\nx=" + std::string(row.value) + "\n").GetInt("A", "x", 99), row.number)
        << row.value;
  }
  EXPECT_EQ(With("[A]\ny=1\n").GetInt("A", "x", -1), -1);
}

TEST_F(IniEdit, TheFirstOfEqualNamesCounts) {
  const clsIniEdit edit = With("[A]\nx=1\nX=2\n[a]\nx=3\ny=4\n");
  EXPECT_EQ(edit.GetInt("A", "x", -1), 1);
  EXPECT_EQ(edit.GetInt("A", "y", -1), -1);
}

TEST_F(IniEdit, AnswersTheCharactersOfTheSectionsNamesAndNotTheirNumber) {
  const clsIniEdit edit = With("[One]\n[Second]\nx=1\n[3]\n");
  Names names(5, "old");
  EXPECT_EQ(edit.GetSectionNames(names), 4 + 7 + 2);
  EXPECT_EQ(names, (Names{"One", "Second", "3", "old", "old"}));
}

TEST_F(IniEdit, AnswersTheCharactersOfTheKeysNames) {
  const clsIniEdit edit = With("[A]\nfirst=1\n; c\nk = 2\n[B]\nother=1\n");
  Names names(3, "old");
  EXPECT_EQ(edit.GetKeyNames("a", names), 6 + 2);
  EXPECT_EQ(names, (Names{"first", "k", "old"}));
  EXPECT_EQ(edit.GetKeyNames("none", names), 0);
  EXPECT_EQ(names, (Names{"first", "k", "old"}));
}

TEST_F(IniEdit, FillsAnArrayThatIsTooShortToItsEnd) {
  const clsIniEdit edit = With("[One]\n[Second]\n[3]\n");
  Names names(2);
  EXPECT_EQ(edit.GetSectionNames(names), 13);
  EXPECT_EQ(names, (Names{"One", "Second"}));
  EXPECT_EQ(edit.GetSectionNames({}), 13);
}

TEST_F(IniEdit, StopsAtTheFirstNameThatIsEmpty) {
  const clsIniEdit edit = With("[A]\nx=1\n=2\ny=3\n");
  Names names(3, "old");
  edit.GetKeyNames("A", names);
  EXPECT_EQ(names, (Names{"x", "old", "old"}));
}

TEST_F(IniEdit, CountsCharactersAndNotBytes) {
  Names names(2);
  const std::string content = NativeBytes("[\xC3\xA9\xC3\xA9]\n[b]\n");
  EXPECT_EQ(With(content).GetSectionNames(names), 3 + 2);
  EXPECT_EQ(names, (Names{"\xC3\xA9\xC3\xA9", "b"}));
}

TEST_F(IniEdit, CutsAListOfNamesAtTheBuffersEnd) {
  // A name and its NUL are 100 characters: 327 of them, 65 of the next, and two NULs fill the
  // buffer.
  std::string content = "[A]\n";
  for (int i = 100; i < 500; ++i) content += std::to_string(i) + std::string(96, 'x') + "=1\n";
  const clsIniEdit edit = With(content);
  Names names(400);
  EXPECT_EQ(edit.GetKeyNames("A", names), 32765);
  EXPECT_EQ(names[326], "426" + std::string(96, 'x'));
  EXPECT_EQ(names[327], "427" + std::string(62, 'x'));
  EXPECT_EQ(names[328], "");
}

TEST_F(IniEdit, OfAMissingFileAnswersNothing) {
  Names names(1, "old");
  EXPECT_EQ(Missing().GetSectionNames(names), 0);
  EXPECT_EQ(Missing().GetKeyNames("A", names), 0);
  EXPECT_EQ(names, Names{"old"});
  EXPECT_EQ(Missing().GetInt("A", "x", 5), 5);
  EXPECT_EQ(Missing().GetString("A", "x", "d"), "d");
}

TEST_F(IniEdit, DeletesASectionOrAKey) {
  const clsIniEdit edit = With("[A]\nx=1\n[JoyPad]\nRight=7\nLeft=8\n");
  EXPECT_NE(edit.DeleteKey("JoyPad", "Right"), 0);
  EXPECT_EQ(edit.GetInt("JoyPad", "Right", -1), -1);
  EXPECT_EQ(edit.GetInt("JoyPad", "Left", -1), 8);
  EXPECT_NE(edit.DeleteSection("JoyPad"), 0);
  EXPECT_EQ(edit.GetInt("JoyPad", "Left", -1), -1);
  EXPECT_EQ(edit.GetInt("A", "x", -1), 1);
}

TEST_F(IniEdit, AnswersZeroWhenItCannotDelete) {
  const clsIniEdit edit{folder.Path(".")};
  EXPECT_EQ(edit.DeleteKey("JoyPad", "Right"), 0);
  EXPECT_EQ(edit.DeleteSection("JoyPad"), 0);
}

}  // namespace
}  // namespace mortane::test
