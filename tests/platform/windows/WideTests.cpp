#include "platform/windows/Wide.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace mortane {
namespace {

struct TextRow {
  std::string utf8;
  std::wstring wide;
};

TEST(WideText, IsTheSameBothWays) {
  const TextRow rows[] = {
      {"", L""},
      {"a", L"a"},
      {"\xC3\xA4\xC2\xB5", L"\u00E4\u00B5"},
      {"\xE6\x97\xA5", L"\u65E5"},
      {"\xF0\x9F\x94\xAC!", L"\U0001F52C!"},
      {std::string("a\0b", 3), std::wstring(L"a\0b", 3)},
  };
  for (const TextRow& row : rows) {
    EXPECT_EQ(ToWide(row.utf8), row.wide) << row.utf8;
    EXPECT_EQ(ToUtf8(row.wide), row.utf8) << row.utf8;
  }
}

TEST(WideText, HasTheReplacementCharacterForWhatIsNoText) {
  EXPECT_EQ(ToWide("a\xFFz"), L"a\uFFFDz");
  EXPECT_EQ(ToWide("\xC3"), L"\uFFFD");
  const wchar_t half[] = {L'a', 0xD83D, L'z'};
  EXPECT_EQ(ToUtf8({half, 3}), "a\xEF\xBF\xBDz");
}

TEST(SystemMessage, IsOneLineWithoutAStopAtItsEnd) {
  constexpr DWORD kErrors[] = {ERROR_FILE_NOT_FOUND, ERROR_ACCESS_DENIED, ERROR_SHARING_VIOLATION};
  for (const DWORD error : kErrors) {
    const std::string message = SystemMessage(error);
    EXPECT_GT(message.size(), 5U);
    EXPECT_EQ(message.find_first_of("\r\n"), std::string::npos) << message;
    EXPECT_NE(message.back(), '.');
    EXPECT_NE(message.back(), ' ');
  }
  EXPECT_NE(SystemMessage(ERROR_FILE_NOT_FOUND), SystemMessage(ERROR_ACCESS_DENIED));
}

TEST(SystemMessage, NamesTheNumberOfAnErrorWithoutAText) {
  EXPECT_EQ(SystemMessage(0x2FFFFFFF), "error 805306367");
}

}  // namespace
}  // namespace mortane
