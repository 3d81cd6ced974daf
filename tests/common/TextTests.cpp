#include "common/Text.h"

#include <gtest/gtest.h>

#include <string>

namespace mortane {
namespace {

using namespace std::string_literals;

TEST(AppendLine, OfTwoEmptyTextsIsEmpty) {
  EXPECT_EQ(AppendLine("", ""), "");
}

TEST(AppendLine, WithAnEmptyLineGivesTheListUnchanged) {
  EXPECT_EQ(AppendLine("a ", ""), "a ");
}

TEST(AppendLine, WithAnEmptyListGivesTheLineUnchanged) {
  EXPECT_EQ(AppendLine("", " b"), " b");
}

TEST(AppendLine, OfTwoTextsHoldsExactlyOneLineBreak) {
  EXPECT_EQ(AppendLine("a", "b"), "a\r\nb");
  EXPECT_EQ(AppendLine("a\r\nb", "c"), "a\r\nb\r\nc");
}

TEST(AppendLine, GrowsAListThatItIsGivenForGoodWhereItStands) {
  std::string list = "a";
  list.reserve(100);
  const char* const place = list.data();
  list = AppendLine(std::move(list), "b");
  list = AppendLine(std::move(list), "");
  EXPECT_EQ(list, "a\r\nb");
  EXPECT_EQ(list.data(), place) << "a report of many lines must not be copied for each of them";
}

TEST(TruncateAtNul, KeepsWhatStandsBeforeTheFirstNul) {
  EXPECT_EQ(TruncateAtNul("ab\0cd\0"s), "ab");
  EXPECT_EQ(TruncateAtNul("\0ab"s), "");
}

TEST(TruncateAtNul, GivesATextWithoutNulWhole) {
  EXPECT_EQ(TruncateAtNul("ab cd "), "ab cd ");
  EXPECT_EQ(TruncateAtNul(""), "");
}

struct CountRow {
  const char* meaning;
  std::string text;
  std::size_t count;
};

TEST(CharacterCount, CountsCharactersAndNotBytes) {
  const CountRow rows[] = {
      {"nothing", "", 0},
      {"ASCII", "abc", 3},
      {"two bytes", "µm", 2},
      {"three bytes", "顕微鏡", 3},
      {"four bytes", "\U0001F52C!", 2},
      {"NUL", "a\0b"s, 3},
      {"a continuation alone", "\x80", 1},
      {"a sequence cut short", "a\xE9\xA1", 3},
      {"a longer form than needed", "\xC1\x81", 2},
      {"a lead byte before ASCII", "\xC3(", 2},
      {"the first and the last of two bytes", "\xC2\x80\xDF\xBF", 2},
      {"the first and the last of three bytes", "\xE0\xA0\x80\xEF\xBF\xBF", 2},
      {"the first and the last of four bytes", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", 2},
      {"a lead byte beyond Unicode", "\xF5\x80\x80\x80", 4},
  };
  for (const CountRow& row : rows) EXPECT_EQ(CharacterCount(row.text), row.count) << row.meaning;
}

TEST(FirstCharacters, NeverSplitsACharacter) {
  EXPECT_EQ(FirstCharacters("µ顕a", 0), "");
  EXPECT_EQ(FirstCharacters("µ顕a", 1), "µ");
  EXPECT_EQ(FirstCharacters("µ顕a", 2), "µ顕");
  EXPECT_EQ(FirstCharacters("µ顕a", 3), "µ顕a");
  EXPECT_EQ(FirstCharacters("µ顕a", 4), "µ顕a");
}

TEST(LastCharacters, NeverSplitsACharacter) {
  EXPECT_EQ(LastCharacters("aµ顕", 0), "");
  EXPECT_EQ(LastCharacters("aµ顕", 1), "顕");
  EXPECT_EQ(LastCharacters("aµ顕", 2), "µ顕");
  EXPECT_EQ(LastCharacters("aµ顕", 4), "aµ顕");
}

TEST(Trim, TakesBlanksAndNothingElse) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("\ta\r\n"), "\ta\r\n");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim("\u00A0a\u3000"), "\u00A0a\u3000");
}

TEST(RightTrim, LeavesTheLeftSide) {
  EXPECT_EQ(RightTrim("  a  "), "  a");
  EXPECT_EQ(RightTrim("  "), "");
  EXPECT_EQ(RightTrim("a\t "), "a\t");
}

TEST(EqualsIgnoringCase, FoldsAsciiOnly) {
  EXPECT_TRUE(EqualsIgnoringCase("SETUP", "setup"));
  EXPECT_TRUE(EqualsIgnoringCase("ABYZ", "abyz"));
  EXPECT_TRUE(EqualsIgnoringCase("/SIM", "/sim"));
  EXPECT_TRUE(EqualsIgnoringCase("", ""));
  EXPECT_FALSE(EqualsIgnoringCase("setup", "setup "));
  EXPECT_FALSE(EqualsIgnoringCase("Ä", "ä"));
  EXPECT_FALSE(EqualsIgnoringCase("@", "`"));
  EXPECT_FALSE(EqualsIgnoringCase("[", "{"));
}

}  // namespace
}  // namespace mortane
