#include "record/SafeText.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace mortane::test {
namespace {

struct Row {
  std::string text;
  const char* safe;
};

TEST(EscapedText, HoldsNoMarkOfThePage) {
  const Row rows[] = {
      {"", ""},
      {"Plan F 20x", "Plan F 20x"},
      {"<a href=\"x\">&'", "&lt;a href=&quot;x&quot;&gt;&amp;&#39;"},
      {std::string("\0\t\n\x1F\x7F", 5),
       "\xE2\x90\x80\xE2\x90\x89\xE2\x90\x8A\xE2\x90\x9F\xE2\x90\xA1"},
      {"\xC3\xBC\xE9\x8F\xA1\xF0\x9F\x94\xAC", "\xC3\xBC\xE9\x8F\xA1\xF0\x9F\x94\xAC"},
      {"\xC2\x80\xC2\x9F\xC2\xA0", "\xEF\xBF\xBD\xEF\xBF\xBD\xC2\xA0"},
      // Broken, overlong, halves of a pair, beyond the last, no characters.
      {"a\xFFz", "a\xEF\xBF\xBDz"},
      {"\xE2\x82", "\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"\xC3(", "\xEF\xBF\xBD("},
      {"\xC0\xAF", "\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"\xE0\x80\xAF", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"\xED\xA0\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"\xF4\x90\x80\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"\xEF\xBF\xBE\xEF\xB7\x90", "\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"\xF4\x8F\xBF\xBD", "\xF4\x8F\xBF\xBD"},
  };
  for (const Row& row : rows) EXPECT_EQ(Escaped(row.text), row.safe);
}

TEST(PlainText, ShowsWhatCannotBeSeen) {
  const Row rows[] = {
      {"<a> & 'b'", "<a> & 'b'"},
      {"a\x1B[31m", "a\xE2\x90\x9B[31m"},
      {"\xE2\x80\xAEx\xE2\x81\xA9", "<U+202E>x<U+2069>"},
      {"\xD8\x9C\xE2\x80\x8F\xE2\x80\x8E", "<U+061C><U+200F><U+200E>"},
      {"\xE2\x80\xA8\xE2\x80\xA9", "<U+2028><U+2029>"},
      {"\xE2\x80\x90\xE2\x81\xA5\xE2\x81\xAA", "\xE2\x80\x90\xE2\x81\xA5\xE2\x81\xAA"},
      {"\xFF", "\xEF\xBF\xBD"},
  };
  for (const Row& row : rows) EXPECT_EQ(Plain(row.text), row.safe);
}

TEST(WrappedText, BreaksAtBlanksWhereThereAreAny) {
  using Lines = std::vector<std::string>;
  const std::pair<const char*, Lines> rows[] = {
      {"", {""}},
      {"12345", {"12345"}},
      {"123456", {"12345", "6"}},
      {"12345 7", {"12345", "7"}},
      {"1234 67", {"1234", "67"}},
      {"12 45 78", {"12 45", "78"}},
      {"12 4567890", {"12", "45678", "90"}},
      {" 1234567", {" 1234", "567"}},
      {"\xC3\xBC\xC3\xBC\xC3\xBC\xC3\xBC\xC3\xBC\xC3\xBC",
       {"\xC3\xBC\xC3\xBC\xC3\xBC\xC3\xBC\xC3\xBC", "\xC3\xBC"}},
  };
  for (const auto& [text, lines] : rows) EXPECT_EQ(Wrapped(text, 5), lines) << text;
}

}  // namespace
}  // namespace mortane::test
