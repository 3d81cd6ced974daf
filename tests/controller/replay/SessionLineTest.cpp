// The lines of a session's journal: what is written is read again, and nothing else is.
#include "controller/replay/SessionLine.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace mortane::controller::test {
namespace {

using namespace std::chrono_literals;

const LineTimes kTimes{164ms, 12502us};

struct LineRow {
  SessionLine line;
  const char* text;
};

TEST(SessionLine, IsReadAsItWasWritten) {
  const std::vector<LineRow> rows{
      {{"#0 create Create(Microscope)", ObjectNumber{1}, {}},
       "     0.164     12.502       #0  create  Create(Microscope) -> #1"},
      {{"#34 get NosepieceDevice.Positions(3).Code", std::int32_t{14}, {}},
       "     0.164     12.502      #34  get     NosepieceDevice.Positions(3).Code -> 14"},
      {{"#34 put NosepieceDevice.Positions(3).Code = 14", {}, {}},
       "     0.164     12.502      #34  put     NosepieceDevice.Positions(3).Code = 14"},
      {{R"(#1 call A("x) -> ! = \" .(", 2.5).B(" = "))", std::string(" ! "), {}},
       R"(     0.164     12.502       #1  call    A("x) -> ! = \" .(", 2.5).B(" = ") -> " ! ")"},
      {{"#4 get Z.Position", {}, SessionFailure{"L \"B\"", -2147467259, "No\r\n"}},
       R"(     0.164     12.502       #4  get     Z.Position ! "L \"B\"" 80004005 "No\r\n")"},
      {{"#1 put SystemName = \"x\"", {}, SessionFailure{"", 5, ""}},
       R"(     0.164     12.502       #1  put     SystemName = "x" ! "" 5 "")"},
      {{"#9 next NosepieceDevice.Positions(7)", {}, {}},
       "     0.164     12.502       #9  next    NosepieceDevice.Positions(7) -> nothing"},
      {{"#3 call DeviceList.Item(1).Connect()", {}, {}},
       "     0.164     12.502       #3  call    DeviceList.Item(1).Connect()"}};
  for (const LineRow& row : rows) {
    EXPECT_EQ(FormatSessionLine(kTimes, row.line), row.text);
    EXPECT_EQ(ParseSessionLine(row.text), row.line) << row.text;
  }
}

TEST(SessionLine, IsReadWithWiderColumns) {
  const auto line = ParseSessionLine("123456.789 1234567.000 #1234567890  number  X.Y -> 1.5");
  ASSERT_TRUE(line);
  EXPECT_EQ(line->call, "#1234567890 number X.Y");
}

TEST(SessionLine, OfAnotherFormIsRefused) {
  for (const char* text : {"",
                           " ",
                           "\n",
                           "0.1",
                           "0.1 0.1",
                           "0.1 0.1 #1",
                           "a 0.1 #1 get X -> 1",
                           "0.1 b #1 get X -> 1",
                           "0.1x 0.1 #1 get X -> 1",
                           "0.1 0.1x #1 get X -> 1",
                           "0.1 0.1 1 get X -> 1",
                           "0.1 0.1 # get X -> 1",
                           "0.1 0.1 #1x get X -> 1",
                           "0.1 0.1 #1 take X -> 1",
                           "0.1 0.1 #1 get X -> ",
                           "0.1 0.1 #1 get X -> 1 ",
                           "0.1 0.1 #1 get X -> 1 2",
                           "0.1 0.1 #1 get X 1",
                           "0.1 0.1 #1 get X",
                           "0.1 0.1 #1 get X(1 -> 1",
                           "0.1 0.1 #1 get X) -> 1",
                           "0.1 0.1 #1 get X(\"a) -> 1",
                           "0.1 0.1 #1 get X -> one",
                           "0.1 0.1 #1 get X -> 99999999999",
                           "0.1 0.1 #1 get X -> int16(70000)",
                           "0.1 0.1 #1 get X -> int16(7",
                           "0.1 0.1 #1 get X -> \"open",
                           "0.1 0.1 #1 get X -> \"bad \\q\"",
                           "0.1 0.1 #1 get X -> \"bad \\x4\"",
                           "0.1 0.1 #1 get X -> #",
                           "0.1 0.1 #1 get X -> #99999999999999999999",
                           "0.1 0.1 #1 put X -> 1",
                           "0.1 0.1 #1 put X = ",
                           "0.1 0.1 #1 get X ! \"a\"",
                           "0.1 0.1 #1 get X ! \"a\" 5",
                           "0.1 0.1 #1 get X ! \"a\" 5 b",
                           "0.1 0.1 #1 get X ! \"a\" 123456789 \"b\"",
                           "0.1 0.1 #1 get X -> 1.2.3",
                           "0.1 0.1 #1 get X -> 1e999",
                           "     0.019      0.011  DeviceList.Count -> 2"}) {
    EXPECT_FALSE(ParseSessionLine(text)) << text;
  }
}

struct ValueRow {
  SessionValue value;
  const char* text;
};

TEST(SessionValue, KeepsItsKind) {
  const std::vector<ValueRow> rows{{{}, "nothing"},
                                   {true, "true"},
                                   {false, "false"},
                                   {std::int16_t{-32768}, "int16(-32768)"},
                                   {std::numeric_limits<std::int32_t>::min(), "-2147483648"},
                                   {4.0, "4.0"},
                                   {0.1, "0.1"},
                                   {-0.0, "-0.0"},
                                   {1e300, "1e+300"},
                                   {0.9999999999999999, "0.9999999999999999"},
                                   {std::numeric_limits<double>::infinity(), "inf"},
                                   {ObjectNumber{18446744073709551615U}, "#18446744073709551615"},
                                   {std::string("\xC3\xA4\"\\"), "\"\xC3\xA4\\\"\\\\\""},
                                   {std::string("\n\r\t\x01\x7F\0", 6), R"("\n\r\t\x01\x7F\x00")"}};
  for (const ValueRow& row : rows) {
    std::string text;
    AppendValue(text, row.value);
    EXPECT_EQ(text, row.text);
    std::string_view rest = text;
    EXPECT_EQ(TakeValue(rest), row.value) << text;
    EXPECT_EQ(rest, "");
  }
}

TEST(SessionCall, IsTakenApart) {
  const auto call = ParseSessionCall(R"-(#7 put A.Item(2, "x.)").B(1.5) = "y")-");
  ASSERT_TRUE(call);
  EXPECT_EQ(call->use, "put");
  ASSERT_EQ(call->path.size(), 3U);
  EXPECT_EQ(call->path[0], (PathStep{"A", {}}));
  EXPECT_EQ(call->path[1], (PathStep{"Item", {std::int32_t{2}, std::string("x.)")}}));
  EXPECT_EQ(call->path[2], (PathStep{"B", {1.5}}));
  EXPECT_EQ(call->written, SessionValue(std::string("y")));
  const auto creation = ParseSessionCall("#0 create Create(FiberServer)");
  ASSERT_TRUE(creation);
  EXPECT_EQ(creation->path[0], (PathStep{"Create", {std::string("FiberServer")}}));
}

TEST(SessionCall, OfAnotherFormIsRefused) {
  for (const char* text : {"", "#1 get", "#1 get A(", "#1 get A(1", "#1 get A(1 2)", "#1 get A(1)B",
                           "#0 create Microscope", "#1 put A = "}) {
    EXPECT_FALSE(ParseSessionCall(text)) << text;
  }
}

// A line that is read is the same when it is written again.
TEST(SessionLine, ChangedAtRandomIsReadWholeOrRefused) {
  const std::vector<std::string> good{
      R"(     0.164     12.502       #1  call    A("x) -> ! = \" .(", 2.5).B(int16(3)) -> "\x0A")",
      R"(     0.164     12.502       #4  get     ZDriveDevice.Position ! "LIB" 80004005 "No\r\n")",
      "     0.164     12.502      #34  put     NosepieceDevice.Positions(3).Code = -1.5e+30"};
  constexpr std::string_view kSigns = "\"\\()#=!->. ,019aeinx\t\xFF";
  std::mt19937 random(19);
  int read = 0;
  for (int round = 0; round < 20000; ++round) {
    std::string text = good[random() % good.size()];
    for (auto changes = random() % 4; changes > 0; --changes) {
      const std::size_t place = random() % text.size();
      if (random() % 3 == 0) {
        text.erase(place, random() % 5);
        text += ' ';
      } else {
        text.insert(place, 1, kSigns[random() % kSigns.size()]);
      }
    }
    const auto line = ParseSessionLine(text);
    if (!line) continue;
    ++read;
    ParseSessionCall(line->call);
    const auto again = ParseSessionLine(FormatSessionLine(kTimes, *line));
    ASSERT_TRUE(again) << text;
    EXPECT_EQ(again->call, line->call) << text;
  }
  EXPECT_GT(read, 5000);
}

}  // namespace
}  // namespace mortane::controller::test
