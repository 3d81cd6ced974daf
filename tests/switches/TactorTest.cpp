// The hand controller, beyond the drill.
#include <gtest/gtest.h>

#include "support/UnitText.h"
#include "switches/SwitchUnits.h"

namespace mortane::test {
namespace {

using Codes = std::vector<int>;
using Shorts = std::initializer_list<std::int16_t>;

Codes CodesOf(const clsControlTactor& unit) {
  Codes codes;
  for (std::int16_t i = 1; i <= clsControlTactor::SwitchCount; ++i) codes.push_back(unit.Func(i));
  return codes;
}

std::string Modified(const SwitchUnits& units) {
  std::string list;
  EXPECT_EQ(units.curTactor.ModifySdk(list), "");
  return list;
}

std::string Held(const std::string& key, const std::string& value) {
  return "ControllerSettings.SwitchFunction(4, \"" + key + "\") -> \"" + value + '"';
}

std::string Set(const std::string& key, const std::string& value) {
  return "ControllerSettings.SetSwitchFunction(4, \"" + key + "\", \"" + value + "\")";
}

constexpr const char* kHandCodes = "123P4Q5EF00000";
const Lines kReadSwitches = [] {
  const std::string keys = "123456789ABCDE";
  const std::string codes = kHandCodes;
  Lines lines;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    lines.push_back(Held(std::string(1, keys[i]), std::string(1, codes[i])));
  }
  return lines;
}();

Lines Joined(Lines lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

TEST(Tactor, AnswersAndStoresAtFourteenPositionsOnly) {
  Rig rig("Harbour");
  clsControlTactor& unit = rig.units.curTactor;
  EXPECT_EQ(clsControlTactor::SwitchCount, 14);
  EXPECT_EQ(CodesOf(unit), Codes(14, 0));
  for (std::int16_t i = 1; i <= 14; ++i) unit.Func(i, static_cast<std::int16_t>(100 + i));
  for (const std::int16_t i : Shorts{0, 15, 16, -1, -32768, 32767}) {
    unit.Func(i, 5);
    EXPECT_EQ(unit.Func(i), -1) << i;
  }
  for (std::int16_t i = 1; i <= 14; ++i) EXPECT_EQ(unit.Func(i), 100 + i);
}

TEST(Tactor, BeginsInStandardModeWithTheKnobOnTheRight) {
  Rig rig("Harbour");
  EXPECT_EQ(rig.units.curTactor.ControlMode, 0);
  EXPECT_EQ(rig.units.curTactor.HandleMode, 0);
}

TEST(Tactor, IsReadModeFirstThenTheKnobThenTheSwitches) {
  Rig rig("Harbour");
  rig.Connect();
  rig.instrument().handSwitches[0] = "1";
  rig.instrument().xyDrive.handleMode = 1;
  EXPECT_EQ(rig.units.curTactor.ReadSdk(), "");
  EXPECT_EQ(rig.units.curTactor.ControlMode, 1);
  EXPECT_EQ(rig.units.curTactor.HandleMode, 1);
  EXPECT_EQ(CodesOf(rig.units.curTactor), (Codes{1, 2, 3, 25, 4, 26, 5, 14, 15, 0, 0, 0, 0, 0}));
  EXPECT_EQ(rig.journal.Lines(),
            Joined({Held("0", "1"), "XYDriveDevice.HandleMode -> int16(1)"}, kReadSwitches));
}

struct ModeRow {
  const char* text;
  int mode;
};

TEST(Tactor, TakesTheNumberInTheModesText) {
  for (const ModeRow& row :
       {ModeRow{"0", 0}, ModeRow{"1", 1}, ModeRow{"2", 2}, ModeRow{" 1 ", 1}, ModeRow{"12", 12},
        ModeRow{"-1", -1}, ModeRow{"32767", 32767}, ModeRow{"-32768", -32768}, ModeRow{"", 0},
        ModeRow{"A", 0}, ModeRow{"{", 0}, ModeRow{"1x", 0}, ModeRow{"32768", 0},
        ModeRow{"-32769", 0}, ModeRow{"65537", 0}}) {
    Rig rig("Harbour");
    rig.Connect();
    rig.instrument().handSwitches[0] = row.text;
    rig.units.curTactor.ControlMode = 7;
    EXPECT_EQ(rig.units.curTactor.ReadSdk(), "");
    EXPECT_EQ(rig.units.curTactor.ControlMode, row.mode) << row.text;
    EXPECT_EQ(Modified(rig.units), "") << row.text;
    EXPECT_EQ(rig.units.curTactor.WriteSdk(), "");
    EXPECT_TRUE(rig.journal.Writes().empty()) << row.text;
  }
}

TEST(Tactor, ComparesAndWritesInTheSameOrder) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.curTactor.ControlMode = 1;
  rig.units.curTactor.HandleMode = 1;
  rig.units.curTactor.Func(1, 11);
  rig.units.curTactor.Func(14, 12);
  EXPECT_EQ(Modified(rig.units),
            "TactorSwitch Function[Mode] : Extend\r\nTactorSwitch Function[XY Knob] : Left\r\n"
            "TactorSwitch Function[1] Filter Cube CW\r\nTactorSwitch Function[14] Filter Cube CCW");
  const Lines read{Held("0", "0"), "XYDriveDevice.HandleMode -> int16(0)"};
  EXPECT_EQ(rig.journal.Lines(), Joined(read, kReadSwitches));
  rig.journal.Clear();
  EXPECT_EQ(rig.units.curTactor.WriteSdk(), "");
  Lines expected{read[0], Set("0", "1"), read[1], "XYDriveDevice.HandleMode = int16(1)"};
  expected.insert(expected.end(), kReadSwitches.begin(), kReadSwitches.end());
  expected.insert(expected.begin() + 5, Set("1", "B"));
  expected.push_back(Set("E", "C"));
  EXPECT_EQ(rig.journal.Lines(), expected);
}

TEST(Tactor, NamesTheModeThatItWouldSet) {
  Rig rig("Harbour");
  rig.instrument().handSwitches[0] = "1";
  rig.instrument().xyDrive.handleMode = 1;
  rig.ConnectAndReceive();
  rig.units.curTactor.ControlMode = 0;
  rig.units.curTactor.HandleMode = 0;
  EXPECT_EQ(Modified(rig.units),
            "TactorSwitch Function[Mode] : Standard\r\nTactorSwitch Function[XY Knob] : Right");
  rig.units.curTactor.ControlMode = 2;
  rig.units.curTactor.HandleMode = 3;
  EXPECT_EQ(Modified(rig.units),
            "TactorSwitch Function[Mode] : Extend\r\nTactorSwitch Function[XY Knob] : Left");
}

TEST(Tactor, SendsTheModeAsADecimalNumber) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.curTactor.ControlMode = 12;
  EXPECT_EQ(rig.units.curTactor.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Writes(), Lines{Set("0", "12")});
}

TEST(Tactor, SendsEveryCodeAsItsCharacter) {
  const std::string digits = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  Rig rig("Harbour");
  rig.Connect();
  for (std::int16_t code = -3; code <= 63; ++code) {
    rig.instrument().handSwitches[14] = code == 0 ? "1" : "0";
    rig.units.curTactor.ReadSdk();
    rig.journal.Clear();
    rig.units.curTactor.Func(14, code);
    EXPECT_EQ(rig.units.curTactor.WriteSdk(), "");
    const std::string text = code < 0    ? " "
                             : code > 61 ? ""
                                         : std::string(1, digits[static_cast<std::size_t>(code)]);
    EXPECT_EQ(rig.journal.Writes(), Lines{Set("E", text)}) << code;
  }
}

// The knob's side belongs to the stage.
TEST(Tactor, WithoutAStageThatCanBeControlledKeepsTheKnobsSideForItself) {
  for (const std::int32_t readOnly : {0, 1}) {
    Rig rig("Harbour");
    rig.instrument().Accessory(accessory::kXYStage).state = readOnly;
    rig.instrument().Accessory(accessory::kXYStage).readOnly = readOnly == 1;
    rig.instrument().xyDrive.handleMode = 1;
    rig.Connect();
    ASSERT_EQ(rig.units.IsMounted(accessory::kXYStage), readOnly);
    rig.units.curTactor.HandleMode = 5;
    EXPECT_EQ(rig.units.curTactor.ReadSdk(), "");
    EXPECT_EQ(rig.units.curTactor.HandleMode, 5);
    EXPECT_EQ(Modified(rig.units), "");
    EXPECT_EQ(rig.units.curTactor.WriteSdk(), "");
    for (const std::string& line : rig.journal.Lines()) {
      EXPECT_FALSE(line.starts_with("XYDriveDevice")) << line;
    }
    EXPECT_TRUE(rig.journal.Writes().empty());
  }
}

TEST(Tactor, WithoutAHandControllerIsNotAskedAndAReadMakesTheCodesZero) {
  for (const char* bench : {"Lantern", "Pair", "Outpost", "Deck", "DeckRemote", "Watch", "Shell"}) {
    Rig rig(bench);
    rig.Connect();
    clsControlTactor& unit = rig.units.curTactor;
    unit.ControlMode = 1;
    unit.HandleMode = 1;
    unit.Func(1, 5);
    EXPECT_FALSE(unit.IsPresent());
    EXPECT_EQ(Modified(rig.units), "") << bench;
    EXPECT_EQ(unit.WriteSdk(), "") << bench;
    EXPECT_EQ(unit.ReadSdk(), "") << bench;
    EXPECT_EQ(CodesOf(unit), Codes(14, 0)) << bench;
    EXPECT_EQ(unit.ControlMode, 1) << bench;
    EXPECT_EQ(unit.HandleMode, 1) << bench;
    EXPECT_EQ(rig.journal.CallCount(), 0U) << bench;
  }
}

TEST(Tactor, IsPresentWithItsControllerUnit) {
  Rig rig("Hub");
  rig.Connect();
  EXPECT_TRUE(rig.units.curTactor.IsPresent());
}

TEST(Tactor, ThatFailsToBeReadKeepsWhatWasReadBefore) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.curTactor.ControlMode = 1;
  rig.units.curTactor.HandleMode = 1;
  rig.faults.Add({"get XYDriveDevice.HandleMode"});
  EXPECT_EQ(rig.units.curTactor.ReadSdk(), "TactorController SW Function (LIB:80004005)");
  EXPECT_EQ(rig.units.curTactor.ControlMode, 0);
  EXPECT_EQ(rig.units.curTactor.HandleMode, 1);
  EXPECT_EQ(CodesOf(rig.units.curTactor), Codes(14, 0));
}

TEST(Tactor, ThatFailsToBeComparedDropsTheLinesBeforeIt) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.curTactor.ControlMode = 1;
  rig.units.curTactor.Func(1, 0);
  rig.faults.Add({"ControllerSettings.SwitchFunction(4, \"E\")"});
  std::string list = "Before";
  EXPECT_EQ(rig.units.curTactor.ModifySdk(list), "TactorController SW Function (LIB:80004005)");
  EXPECT_EQ(list, "Before");
}

struct WriteFault {
  const char* call;
  const char* line;
};

TEST(Tactor, EachItemThatFailsToBeWrittenIsItsLineAndTheOthersAreWritten) {
  for (const WriteFault& fault :
       {WriteFault{"get ControllerSettings.SwitchFunction(4, \"0\")",
                   "TactorSwitch Control Mode[1]"},
        WriteFault{"call ControllerSettings.SetSwitchFunction(4, \"0\", \"1\")",
                   "TactorSwitch Control Mode[1]"},
        WriteFault{"get XYDriveDevice.HandleMode", "TactorSwitch Handle Mode[1]"},
        WriteFault{"put XYDriveDevice.HandleMode", "TactorSwitch Handle Mode[1]"},
        WriteFault{"get ControllerSettings.SwitchFunction(4, \"A\")", "TactorSwitch Function[10]"},
        WriteFault{"call ControllerSettings.SetSwitchFunction(4, \"A\", \"p\")",
                   "TactorSwitch Function[10]"}}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.units.curTactor.ControlMode = 1;
    rig.units.curTactor.HandleMode = 1;
    rig.units.curTactor.Func(10, 51);
    rig.units.curTactor.Func(11, 50);
    rig.faults.Add({fault.call});
    EXPECT_EQ(rig.units.curTactor.WriteSdk(), fault.line) << fault.call;
    const Instrument& held = rig.instrument();
    const int written = (held.handSwitches[0] == "1") + (held.xyDrive.handleMode == 1) +
                        (held.handSwitches[10] == "p") + (held.handSwitches[11] == "o");
    EXPECT_EQ(written, 3) << fault.call;
    EXPECT_EQ(held.handSwitches[11], "o") << fault.call;
  }
}

TEST(Tactor, WithoutAnyAnswerIsALineForEachItem) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"ControllerSettings"});
  rig.faults.Add({"XYDriveDevice"});
  std::string expected = "TactorSwitch Control Mode[0]\r\nTactorSwitch Handle Mode[0]";
  for (int i = 1; i <= 14; ++i) expected += "\r\nTactorSwitch Function[" + std::to_string(i) + "]";
  EXPECT_EQ(rig.units.curTactor.WriteSdk(), expected);
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(Tactor, ASettingWithoutAttributesMakesBothModesZero) {
  Rig rig("Harbour");
  rig.units.curTactor.ControlMode = 1;
  rig.units.curTactor.HandleMode = 1;
  EXPECT_EQ(ReadElement(rig.units.curTactor, "<SWITCH><SETTING/></SWITCH>"), "");
  EXPECT_EQ(rig.units.curTactor.ControlMode, 0);
  EXPECT_EQ(rig.units.curTactor.HandleMode, 0);
}

TEST(Tactor, AnInstructionNamedLikeASettingIsNone) {
  Rig rig("Harbour");
  rig.units.curTactor.ControlMode = 1;
  EXPECT_EQ(ReadElement(rig.units.curTactor, "<SWITCH><?SETTING?><?SWITCH?></SWITCH>"), "");
  EXPECT_EQ(rig.units.curTactor.ControlMode, 1);
}

TEST(Tactor, ASettingThatIsNoNumberIsZero) {
  Rig rig("Harbour");
  rig.units.curTactor.ControlMode = 1;
  rig.units.curTactor.HandleMode = 1;
  EXPECT_EQ(
      ReadElement(rig.units.curTactor, R"(<SWITCH><SETTING MODE="Extend" HANDLE=""/></SWITCH>)"),
      "");
  EXPECT_EQ(rig.units.curTactor.ControlMode, 0);
  EXPECT_EQ(rig.units.curTactor.HandleMode, 0);
}

TEST(Tactor, AWrongModeStaysAndTheValidSideBesideItIsTaken) {
  Rig rig("Harbour");
  rig.units.curTactor.ControlMode = 1;
  EXPECT_EQ(ReadElement(rig.units.curTactor, R"(<SWITCH><SETTING MODE="2" HANDLE="1"/></SWITCH>)"),
            "Tactor[ Mode ]");
  EXPECT_EQ(rig.units.curTactor.ControlMode, 1);
  EXPECT_EQ(rig.units.curTactor.HandleMode, 1);
  EXPECT_EQ(ReadElement(rig.units.curTactor, R"(<SWITCH><SETTING MODE="0" HANDLE="2"/></SWITCH>)"),
            "Tactor[ Handle ]");
  EXPECT_EQ(rig.units.curTactor.ControlMode, 0);
  EXPECT_EQ(rig.units.curTactor.HandleMode, 1);
}

TEST(Tactor, WhatIsRefusedStandsWithoutALineBreakBetween) {
  Rig rig("Harbour");
  EXPECT_EQ(ReadElement(rig.units.curTactor, R"(<SWITCH><SETTING MODE="2" HANDLE="2"/>)"
                                             R"(<SWITCH POSITION="15" FUNCTION="1"/></SWITCH>)"),
            "Tactor[ Mode ]Tactor[ Handle ]Tactor[15]");
}

TEST(Tactor, TakesACodeWithoutAFunctionFromAFileAndSendsItsCharacter) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  EXPECT_EQ(
      ReadElement(rig.units.curTactor, R"(<SWITCH><SWITCH POSITION="14" FUNCTION="52"/></SWITCH>)"),
      "");
  EXPECT_EQ(rig.units.curTactor.Func(14), 52);
  EXPECT_EQ(Modified(rig.units), "TactorSwitch Function[14] Nothing");
  EXPECT_EQ(rig.units.curTactor.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Writes(), Lines{Set("E", "q")});
}

TEST(Tactor, TakesElementsHoweverTheyAreWrittenAndInTheirOrder) {
  Rig rig("Harbour");
  EXPECT_EQ(
      ReadElement(rig.units.curTactor, R"(<switch>text<!--c--><Switch position="1" Function="0"/>)"
                                       R"(<OTHER POSITION="2" FUNCTION="9" MODE="1"/>)"
                                       R"(<SWITCH POSITION="1" FUNCTION="7"/><setting mode="1"/>)"
                                       R"(<SWITCH POSITION="2" FUNCTION="no"/></switch>)"),
      "");
  EXPECT_EQ(rig.units.curTactor.Func(1), 7);
  EXPECT_EQ(rig.units.curTactor.Func(2), 0);
  EXPECT_EQ(rig.units.curTactor.ControlMode, 1);
}

TEST(Tactor, IsWrittenToAFileInOneElement) {
  Rig rig("Harbour");
  rig.units.curTactor.ControlMode = 1;
  rig.units.curTactor.HandleMode = 3;
  std::string expected = R"(<SECTION><SWITCH><SETTING MODE="1" HANDLE="3"/>)";
  for (std::int16_t i = 1; i <= 14; ++i) {
    rig.units.curTactor.Func(i, static_cast<std::int16_t>(2 * i - 3));
    expected += "<SWITCH POSITION=\"" + std::to_string(i) + "\" FUNCTION=\"" +
                std::to_string(2 * i - 3) + "\"/>";
  }
  EXPECT_EQ(FileTextOf(rig.units.curTactor), expected + "</SWITCH></SECTION>");
}

}  // namespace
}  // namespace mortane::test
