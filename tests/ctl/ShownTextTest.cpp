// Names from anywhere, fit for a line on a terminal.
#include "ctl/ShownText.h"

#include <gtest/gtest.h>

namespace mortane::test {
namespace {

using ctl::Shown;

struct ShownCase {
  std::string text;
  std::string shown;
};

class ShownTextRows : public testing::TestWithParam<ShownCase> {};

TEST_P(ShownTextRows, BreaksNoLineAndCommandsNoTerminal) {
  EXPECT_EQ(Shown(GetParam().text), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ShownTextRows,
    testing::Values(ShownCase{"", ""}, ShownCase{"Plan F 20x", "Plan F 20x"},
                    ShownCase{"Größe µ → 显", "Größe µ → 显"}, ShownCase{"a\nb", "a\\nb"},
                    ShownCase{"a\r\tb", "a\\r\\tb"}, ShownCase{"\x1B[31m", "\\x1B[31m"},
                    ShownCase{"\x7F", "\\x7F"}, ShownCase{"\xC2\x9B", "\\xC2\\x9B"},
                    ShownCase{"\xC2\xA0", "\xC2\xA0"}, ShownCase{"\xFF", "\\xFF"},
                    ShownCase{"\xFF\x41", "\\xFF\x41"}, ShownCase{"\xE2\x82", "\\xE2\\x82"},
                    ShownCase{"\xC0\xAF", "\\xC0\\xAF"},
                    ShownCase{"\xED\xA0\x80", "\\xED\\xA0\\x80"},
                    ShownCase{"\xF4\x90\x80\x80", "\\xF4\\x90\\x80\\x80"},
                    ShownCase{std::string("a\0b", 3), "a\\x00b"}));

TEST(ShownText, LinesOfAReportHaveNoLineBreaks) {
  EXPECT_EQ(ctl::LinesOf("one\r\ntwo\r\n\r\nthree"),
            (std::vector<std::string>{"one", "two", "three"}));
  EXPECT_TRUE(ctl::LinesOf("\r\n").empty());
}

TEST(ShownText, CountsInWords) {
  EXPECT_EQ(ctl::Counted(0, "change", "changes"), "0 changes");
  EXPECT_EQ(ctl::Counted(1, "change", "changes"), "1 change");
  EXPECT_EQ(ctl::Counted(2, "change", "changes"), "2 changes");
}

}  // namespace
}  // namespace mortane::test
