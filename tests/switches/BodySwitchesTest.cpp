// The functions of the body's switches, beyond the drill.
#include <gtest/gtest.h>

#include "common/Failure.h"
#include "support/UnitText.h"
#include "switches/SwitchUnits.h"

namespace mortane::test {
namespace {

using Codes = std::vector<int>;
using Shorts = std::initializer_list<std::int16_t>;

Codes CodesOf(const clsDbSwitch& unit) {
  Codes codes;
  for (std::int16_t i = 1; i <= clsDbSwitch::SwitchCount; ++i) codes.push_back(unit.Func(i));
  return codes;
}

std::string Modified(const SwitchUnits& units) {
  std::string list;
  EXPECT_EQ(units.curSwitch.ModifySdk(list), "");
  return list;
}

std::string Set(const std::string& key, const std::string& value) {
  return "ControllerSettings.SetSwitchFunction(0, \"" + key + "\", \"" + value + "\")";
}

constexpr const char* kKeys = "123456789ABCDEFG";

TEST(BodySwitches, AnswerAndStoreAtSixteenPositionsOnly) {
  Rig rig("Harbour");
  clsDbSwitch& unit = rig.units.curSwitch;
  EXPECT_EQ(clsDbSwitch::SwitchCount, 16);
  EXPECT_EQ(CodesOf(unit), Codes(16, 0));
  for (std::int16_t i = 1; i <= 16; ++i) unit.Func(i, static_cast<std::int16_t>(100 + i));
  for (const std::int16_t i : Shorts{0, 17, -1, -32768, 32767}) {
    unit.Func(i, 5);
    EXPECT_EQ(unit.Func(i), -1) << i;
  }
  for (std::int16_t i = 1; i <= 16; ++i) EXPECT_EQ(unit.Func(i), 100 + i);
}

TEST(BodySwitches, KeepAnyCodeThatTheyAreGiven) {
  Rig rig("Harbour");
  for (const std::int16_t code : Shorts{-32768, -3, -1, 0, 51, 52, 61, 62, 32767}) {
    rig.units.curSwitch.Func(4, code);
    EXPECT_EQ(rig.units.curSwitch.Func(4), code);
  }
}

TEST(BodySwitches, AreReadByOneCharacterForPositionAndCode) {
  Rig rig("Harbour");
  rig.Connect();
  EXPECT_EQ(rig.units.curSwitch.ReadSdk(), "");
  EXPECT_EQ(CodesOf(rig.units.curSwitch),
            (Codes{3, 3, 4, 0, 6, 13, 5, 0, 1, 2, 11, 12, 9, 10, 7, 8}));
  Lines expected;
  const std::string held = "33406D5012BC9A78";
  for (std::size_t i = 0; i < held.size(); ++i) {
    expected.push_back(std::string("ControllerSettings.SwitchFunction(0, \"") + kKeys[i] +
                       "\") -> \"" + held[i] + '"');
  }
  EXPECT_EQ(rig.journal.Lines(), expected);
}

struct ReadRow {
  const char* text;
  int code;
};

TEST(BodySwitches, ReadWhateverCharacterTheControllerAnswers) {
  for (const ReadRow& row :
       {ReadRow{"0", 0}, ReadRow{"9", 9}, ReadRow{"A", 10}, ReadRow{"Z", 35}, ReadRow{"a", 36},
        ReadRow{"p", 51}, ReadRow{"q", 52}, ReadRow{"z", 61}, ReadRow{"_", 34}, ReadRow{"[", 30},
        ReadRow{"", 0}, ReadRow{" ", -1}, ReadRow{"/", -1}, ReadRow{":", -2}, ReadRow{"@", -2},
        ReadRow{"{", -3}, ReadRow{"\xC3\xA9", -3}, ReadRow{"\xE9", -3}, ReadRow{"12", 1}}) {
    Rig rig("Harbour");
    rig.Connect();
    rig.instrument().bodySwitches[4] = row.text;
    EXPECT_EQ(rig.units.curSwitch.ReadSdk(), "");
    EXPECT_EQ(rig.units.curSwitch.Func(5), row.code) << row.text;
    EXPECT_EQ(Modified(rig.units), "") << row.text;
    EXPECT_EQ(rig.units.curSwitch.WriteSdk(), "");
    EXPECT_TRUE(rig.journal.Writes().empty()) << row.text;
  }
}

// What came from "{" is no more than a code below 0, and such a code goes out as a blank.
TEST(BodySwitches, SendACodeThatWasNoDigitAsABlankOnceTheControllerHoldsAnother) {
  Rig rig("Harbour");
  rig.Connect();
  rig.instrument().bodySwitches[4] = "{";
  EXPECT_EQ(rig.units.curSwitch.ReadSdk(), "");
  EXPECT_EQ(rig.units.curSwitch.WriteSdk(), "");
  EXPECT_TRUE(rig.journal.Writes().empty());
  rig.instrument().bodySwitches[4] = "6";
  EXPECT_EQ(Modified(rig.units), "Switch Function[5] Nothing");
  EXPECT_EQ(rig.units.curSwitch.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Writes(), Lines{Set("5", " ")});
}

TEST(BodySwitches, SendEveryCodeAsItsCharacter) {
  const std::string digits = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  Rig rig("Harbour");
  rig.Connect();
  for (std::int16_t code = -3; code <= 63; ++code) {
    rig.instrument().bodySwitches[6] = code == 0 ? "1" : "0";
    rig.units.curSwitch.ReadSdk();
    rig.journal.Clear();
    rig.units.curSwitch.Func(7, code);
    EXPECT_EQ(rig.units.curSwitch.WriteSdk(), "");
    const std::string text = code < 0    ? " "
                             : code > 61 ? ""
                                         : std::string(1, digits[static_cast<std::size_t>(code)]);
    EXPECT_EQ(rig.journal.Writes(), Lines{Set("7", text)}) << code;
  }
}

TEST(BodySwitches, AreWrittenAfterEachWasRead) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.curSwitch.Func(2, 4);
  rig.units.curSwitch.Func(16, 0);
  EXPECT_EQ(rig.units.curSwitch.WriteSdk(), "");
  Lines expected;
  const std::string held = "33406D5012BC9A78";
  for (std::size_t i = 0; i < held.size(); ++i) {
    const std::string key(1, kKeys[i]);
    expected.push_back("ControllerSettings.SwitchFunction(0, \"" + key + "\") -> \"" + held[i] +
                       '"');
    if (i == 1) expected.push_back(Set(key, "4"));
    if (i == 15) expected.push_back(Set(key, "0"));
  }
  EXPECT_EQ(rig.journal.Lines(), expected);
}

TEST(BodySwitches, ReportCodeThreeAsZEscapeAndFourAsTheKnob) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.curSwitch.Func(4, 3);
  rig.units.curSwitch.Func(8, 4);
  EXPECT_EQ(Modified(rig.units),
            "Switch Function[4] Z Escape\r\nSwitch Function[8] Z Focus Knob Speed Change");
}

TEST(BodySwitches, ThatFailToBeComparedDropTheLinesBeforeThem) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.curSwitch.Func(1, 0);
  rig.faults.Add({"ControllerSettings.SwitchFunction(0, \"G\")"});
  std::string list = "Before";
  EXPECT_EQ(rig.units.curSwitch.ModifySdk(list), "Switch Function (LIB:80004005)");
  EXPECT_EQ(list, "Before");
}

TEST(BodySwitches, ThatFailToBeReadAreZeroFromThereOn) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"ControllerSettings.SwitchFunction(0, \"A\")"});
  EXPECT_EQ(rig.units.curSwitch.ReadSdk(), "Switch Function (LIB:80004005)");
  EXPECT_EQ(CodesOf(rig.units.curSwitch), (Codes{3, 3, 4, 0, 6, 13, 5, 0, 1, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(BodySwitches, ThatFailToBeWrittenAreALineWithTheirCharactersAndTheScanGoesOn) {
  for (const char* call : {"call ControllerSettings.SetSwitchFunction(0, \"A\", \"p\")",
                           "ControllerSettings.SwitchFunction(0, \"A\")"}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.units.curSwitch.Func(10, 51);
    rig.units.curSwitch.Func(11, 0);
    rig.faults.Add({call});
    EXPECT_EQ(rig.units.curSwitch.WriteSdk(), "Switch Function[A] p");
    EXPECT_EQ(rig.instrument().bodySwitches[9], "2") << call;
    EXPECT_EQ(rig.instrument().bodySwitches[10], "0") << call;
  }
}

TEST(BodySwitches, WithoutAnyAnswerAreSixteenLines) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.curSwitch.Func(4, -1);
  rig.units.curSwitch.Func(8, 62);
  rig.faults.Add({"ControllerSettings"});
  EXPECT_EQ(rig.units.curSwitch.WriteSdk(),
            "Switch Function[1] 3\r\nSwitch Function[2] 3\r\nSwitch Function[3] 4\r\n"
            "Switch Function[4]  \r\nSwitch Function[5] 6\r\nSwitch Function[6] D\r\n"
            "Switch Function[7] 5\r\nSwitch Function[8] \r\nSwitch Function[9] 1\r\n"
            "Switch Function[A] 2\r\nSwitch Function[B] B\r\nSwitch Function[C] C\r\n"
            "Switch Function[D] 9\r\nSwitch Function[E] A\r\nSwitch Function[F] 7\r\n"
            "Switch Function[G] 8");
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(BodySwitches, WithoutABodyAreNotAskedAndAReadMakesThemZero) {
  for (const char* bench : {"Hub", "Outpost", "Deck", "DeckRemote", "Shell"}) {
    Rig rig(bench);
    rig.Connect();
    rig.units.curSwitch.Func(1, 5);
    EXPECT_EQ(Modified(rig.units), "") << bench;
    EXPECT_EQ(rig.units.curSwitch.WriteSdk(), "") << bench;
    EXPECT_EQ(rig.units.curSwitch.Func(1), 5);
    EXPECT_EQ(rig.units.curSwitch.ReadSdk(), "") << bench;
    EXPECT_EQ(CodesOf(rig.units.curSwitch), Codes(16, 0)) << bench;
    EXPECT_EQ(rig.journal.CallCount(), 0U) << bench;
  }
}

TEST(BodySwitches, TakeBothEndsOfPositionsAndCodesFromAFile) {
  Rig rig("Harbour");
  clsDbSwitch& unit = rig.units.curSwitch;
  EXPECT_EQ(ReadElement(unit, R"(<SWITCH POSITION="1" FUNCTION="51"/>)"), "");
  EXPECT_EQ(unit.Func(1), 51);
  EXPECT_EQ(ReadElement(unit, R"(<SWITCH POSITION="1" FUNCTION="0"/>)"), "");
  EXPECT_EQ(unit.Func(1), 0);
  EXPECT_EQ(ReadElement(unit, R"(<switch position=" 16 " function="4"/>)"), "");
  EXPECT_EQ(unit.Func(16), 4);
}

TEST(BodySwitches, TakeATextThatIsNoNumberAsZero) {
  Rig rig("Harbour");
  rig.units.curSwitch.Func(2, 5);
  EXPECT_EQ(ReadElement(rig.units.curSwitch, R"(<SWITCH POSITION="2" FUNCTION="Auto"/>)"), "");
  EXPECT_EQ(rig.units.curSwitch.Func(2), 0);
}

TEST(BodySwitches, RaiseABoundsFailureForThePositionBehindTheLast) {
  Rig rig("Harbour");
  try {
    ReadElement(rig.units.curSwitch, R"(<SWITCH POSITION="17" FUNCTION="1"/>)");
    FAIL() << "position 17 was taken";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number(), kSubscriptError);
    EXPECT_EQ(failure.Source(), "Mortane");
  }
  EXPECT_EQ(CodesOf(rig.units.curSwitch), Codes(16, 0));
}

TEST(BodySwitches, AreWrittenToAFileInSixteenElements) {
  Rig rig("Harbour");
  for (std::int16_t i = 1; i <= 16; ++i) {
    rig.units.curSwitch.Func(i, static_cast<std::int16_t>(3 * i));
  }
  rig.units.curSwitch.Func(16, -3);
  std::string expected;
  for (int i = 1; i <= 15; ++i) {
    expected += "<SWITCH POSITION=\"" + std::to_string(i) + "\" FUNCTION=\"" +
                std::to_string(3 * i) + "\"/>";
  }
  expected += R"(<SWITCH POSITION="16" FUNCTION="-3"/>)";
  EXPECT_EQ(FileTextOf(rig.units.curSwitch), "<SECTION>" + expected + "</SECTION>");
}

}  // namespace
}  // namespace mortane::test
