// The joypad's assignments and the joystick that they are for.
#include <gtest/gtest.h>

#include <filesystem>

#include "common/Failure.h"
#include "support/ScriptedJoystick.h"
#include "support/TempFolder.h"
#include "support/ThisSystem.h"
#include "switches/GTJoy.h"
#include "switches/JoypadAssignments.h"
#include "switches/SwitchFunctions.h"

namespace mortane::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;
using Codes = std::vector<int>;

struct StatusRow {
  std::int32_t system;
  std::int32_t answer;
};

TEST(GTJoy, TellsAnUnpluggedJoystickAndAMissingDriverAndGivesOtherErrorsAsTheyCome) {
  ScriptedJoystick joystick;
  for (const StatusRow& row : {StatusRow{0, 0}, StatusRow{167, 1}, StatusRow{6, 2},
                               StatusRow{165, 165}, StatusRow{2, 2}, StatusRow{-5, -5}}) {
    joystick.status = row.system;
    EXPECT_EQ(GetJoyStatus(joystick), row.answer) << row.system;
  }
}

TEST(GTJoy, GivesTheNumberOfButtonsOrMinusOne) {
  ScriptedJoystick joystick;
  for (const std::int32_t count : {0, 4, 21, 22, 32}) {
    joystick.capabilities = {kJoystickOk, count};
    EXPECT_EQ(GetJoyButtonCount(joystick), count);
  }
  for (const std::int32_t error : {6, 165, 167, 1}) {
    joystick.capabilities = {error, 7};
    EXPECT_EQ(GetJoyButtonCount(joystick), -1) << error;
  }
}

class Joypad : public testing::Test {
 protected:
  void WriteSetup(const std::string& content) const {
    fs::create_directories(folder.Path("Tarvex/OrmanaTools"));
    folder.Write("Tarvex/OrmanaTools/Setup.ini", content);
  }
  std::string SetupText() const {
    return TempFolder::Read(folder.Path("Tarvex/OrmanaTools/Setup.ini"));
  }
  int Value(const std::string& key) const {
    const clsIniEdit ini{folder.Path("Tarvex/OrmanaTools/Setup.ini")};
    return ini.GetInt("JoyPad", key, -99);
  }
  JoypadAssignments Assignments(std::int32_t buttons) {
    joystick.capabilities = {kJoystickOk, buttons};
    return Open();
  }
  // Of a joystick that does not say how many buttons it has.
  JoypadAssignments AssignmentsWithoutCount() {
    joystick.Fail(kJoystickNoDriver);
    return Open();
  }
  JoypadAssignments Open() { return {joystick, folder.Path("")}; }

  static Codes CodesOf(const JoypadAssignments& assignments) {
    Codes codes;
    for (std::int32_t row = 1; row <= 25; ++row) codes.push_back(assignments.Code(row));
    return codes;
  }

  TempFolder folder;
  ScriptedJoystick joystick;
};

TEST_F(Joypad, HasARowForEachDirectionAndButton) {
  const JoypadAssignments assignments = Assignments(2);
  EXPECT_EQ(assignments.RowNames(), (Names{"Axis X(<0)", "Axis X(>0)", "Axis Y(<0)", "Axis Y(>0)",
                                           "Button 1", "Button 2"}));
  EXPECT_EQ(assignments.CodeCount(), 6);
}

TEST_F(Joypad, WithoutButtonsHasFourRows) {
  const JoypadAssignments assignments = Assignments(0);
  EXPECT_EQ(assignments.RowNames().size(), 4U);
  EXPECT_EQ(assignments.CodeCount(), 4);
}

TEST_F(Joypad, WithoutADriverHasFourRowsAndShowsThree) {
  const JoypadAssignments assignments = AssignmentsWithoutCount();
  EXPECT_EQ(assignments.RowNames(),
            (Names{"Axis X(<0)", "Axis X(>0)", "Axis Y(<0)", "Axis Y(>0)"}));
  EXPECT_EQ(assignments.CodeCount(), 3);
}

TEST_F(Joypad, ReadsItsKeysInPairsThatLookExchanged) {
  WriteSetup("[JoyPad]\nRight=1\nLeft=2\nUp=3\nDown=4\nButton1=5\nButton2=6\nButton3=7\n");
  const JoypadAssignments assignments = Assignments(2);
  Codes expected(25, 0);
  for (int i = 0; i < 6; ++i) expected[static_cast<std::size_t>(i)] = i + 1;
  EXPECT_EQ(CodesOf(assignments), expected);
  EXPECT_EQ(assignments.RowNames()[0], "Axis X(<0)");
  EXPECT_EQ(FunctionName(JoypadFunctions(), assignments.Code(1)), "Objective CW");
}

TEST_F(Joypad, TakesAnotherNumberOfButtonsAndReadsTheirKeysAlone) {
  WriteSetup("[JoyPad]\nRight=1\nButton1=5\nButton2=6\n");
  JoypadAssignments assignments = AssignmentsWithoutCount();
  assignments.Code(1, 9);
  joystick.capabilities = {kJoystickOk, 2};
  EXPECT_TRUE(assignments.TakeButtons(joystick));
  EXPECT_FALSE(assignments.TakeButtons(joystick));
  EXPECT_EQ(assignments.CodeCount(), 6);
  EXPECT_EQ(assignments.Code(1), 9);
  EXPECT_EQ(assignments.Code(5), 5);
  EXPECT_EQ(assignments.Code(6), 6);
}

TEST_F(Joypad, OfTooManyButtonsKeepsWhatItHad) {
  JoypadAssignments assignments = Assignments(2);
  joystick.capabilities = {kJoystickOk, 22};
  EXPECT_THROW(assignments.TakeButtons(joystick), Failure);
  EXPECT_EQ(assignments.CodeCount(), 6);
  joystick.capabilities = {kJoystickOk, 21};
  EXPECT_TRUE(assignments.TakeButtons(joystick));
  EXPECT_EQ(assignments.CodeCount(), 25);
}

struct ValueRow {
  const char* value;
  int code;
};

TEST_F(Joypad, TakesAValueAsItStandsUnlessItIsMinusOneOrTooLarge) {
  for (const ValueRow& row :
       {ValueRow{"0", 0}, ValueRow{"46", 46}, ValueRow{"47", 47}, ValueRow{"-1", 0},
        ValueRow{"-5", -5}, ValueRow{"60", 60}, ValueRow{"abc", 0}, ValueRow{"12abc", 12},
        ValueRow{"32767", 32767}, ValueRow{"32768", 0}, ValueRow{"70000", 0},
        ValueRow{"-32768", -32768}, ValueRow{"-32769", 0}, ValueRow{"", 0}}) {
    WriteSetup("[JoyPad]\nDown=" + std::string(row.value) + "\n");
    EXPECT_EQ(Assignments(0).Code(4), row.code) << row.value;
  }
}

TEST_F(Joypad, ShowsNothingForACodeBeyondItsFunctions) {
  WriteSetup("[JoyPad]\nRight=-5\nLeft=47\n");
  const JoypadAssignments assignments = Assignments(0);
  EXPECT_EQ(FunctionName(JoypadFunctions(), assignments.Code(1)), "");
  EXPECT_EQ(FunctionName(JoypadFunctions(), assignments.Code(2)), "");
}

TEST_F(Joypad, AtAFirstStartHasNoFunctionAnywhereAndMakesTheFolders) {
  JoypadAssignments assignments = Assignments(21);
  EXPECT_EQ(CodesOf(assignments), Codes(25, 0));
  EXPECT_EQ(FunctionName(JoypadFunctions(), assignments.Code(1)), "-----------------");
  EXPECT_TRUE(fs::is_directory(folder.Path("Tarvex/OrmanaTools")));
  EXPECT_FALSE(fs::exists(folder.Path("Tarvex/OrmanaTools/Setup.ini")));
}

TEST_F(Joypad, OfTwentyOneButtonsFillsAllCodes) {
  std::string content = "[JoyPad]\n";
  for (int i = 1; i <= 25; ++i) content += "Button" + std::to_string(i) + "=9\n";
  WriteSetup(content);
  const JoypadAssignments assignments = Assignments(21);
  EXPECT_EQ(assignments.CodeCount(), 25);
  EXPECT_EQ(assignments.RowNames().back(), "Button 21");
  EXPECT_EQ(assignments.Code(5), 9);
  EXPECT_EQ(assignments.Code(25), 9);
}

TEST_F(Joypad, OfMoreButtonsIsABoundsFailureAndTheFileKeepsItsKeys) {
  const std::string before = "[JoyPad]\nRight=1\nButton22=5\n";
  for (const std::int32_t buttons : {22, 32, 100000}) {
    WriteSetup(before);
    joystick.capabilities = {kJoystickOk, buttons};
    try {
      Open();
      FAIL() << buttons << " buttons were taken";
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number(), kSubscriptError);
      EXPECT_EQ(failure.Source(), "Mortane");
    }
    EXPECT_EQ(SetupText(), before);
  }
}

TEST_F(Joypad, HasNoCodeOutsideTheTwentyFive) {
  JoypadAssignments assignments = Assignments(0);
  assignments.Code(25, 7);
  EXPECT_EQ(assignments.Code(25), 7);
  for (const std::int32_t row : {0, 26, -1}) {
    EXPECT_THROW(assignments.Code(row), Failure) << row;
    EXPECT_THROW(assignments.Code(row, 7), Failure) << row;
  }
}

TEST_F(Joypad, AsksTheJoystickForItsButtonsOnce) {
  JoypadAssignments assignments = Assignments(3);
  joystick.capabilities = {kJoystickOk, 9};
  assignments.Clear();
  assignments.Save();
  EXPECT_EQ(assignments.CodeCount(), 7);
  EXPECT_EQ(joystick.capabilityCalls, 1);
  EXPECT_EQ(joystick.statusCalls, 0);
}

TEST_F(Joypad, SavesTheDirectionsAndThenTheButtons) {
  JoypadAssignments assignments = Assignments(2);
  for (std::int32_t row = 1; row <= 25; ++row) {
    assignments.Code(row, static_cast<std::int16_t>(40 + row));
  }
  assignments.Save();
  const clsIniEdit ini{folder.Path("Tarvex/OrmanaTools/Setup.ini")};
  Names keys(8);
  ini.GetKeyNames("JoyPad", keys);
  EXPECT_EQ(keys, (Names{"Right", "Left", "Up", "Down", "Button1", "Button2", "", ""}));
  for (int i = 0; i < 6; ++i) EXPECT_EQ(Value(keys[static_cast<std::size_t>(i)]), 41 + i);
  EXPECT_EQ(CodesOf(Assignments(2)), (Codes{41, 42, 43, 44, 45, 46, 0, 0, 0, 0, 0, 0, 0,
                                            0,  0,  0,  0,  0,  0,  0, 0, 0, 0, 0, 0}));
}

TEST_F(Joypad, SavesZerosAndCodesThatNameNoFunction) {
  JoypadAssignments assignments = Assignments(0);
  assignments.Code(1, -5);
  assignments.Code(2, 32767);
  assignments.Save();
  EXPECT_EQ(Value("Right"), -5);
  EXPECT_EQ(Value("Left"), 32767);
  EXPECT_EQ(Value("Up"), 0);
  EXPECT_EQ(Value("Down"), 0);
}

TEST_F(Joypad, WithoutADriverSavesAllFourDirections) {
  JoypadAssignments assignments = AssignmentsWithoutCount();
  for (std::int32_t row = 1; row <= 5; ++row) assignments.Code(row, 9);
  assignments.Save();
  EXPECT_EQ(Value("Right"), 9);
  EXPECT_EQ(Value("Down"), 9);
  EXPECT_EQ(Value("Button1"), -99);
}

TEST_F(Joypad, WithoutADriverReadsAllFourDirections) {
  WriteSetup("[JoyPad]\nRight=1\nDown=4\nButton1=5\n");
  const JoypadAssignments assignments = AssignmentsWithoutCount();
  EXPECT_EQ(assignments.Code(1), 1);
  EXPECT_EQ(assignments.Code(4), 4);
  EXPECT_EQ(assignments.Code(5), 0);
}

TEST_F(Joypad, ClearsTheRowsThatShowAFunction) {
  JoypadAssignments pad = Assignments(2);
  JoypadAssignments none = AssignmentsWithoutCount();
  for (JoypadAssignments* assignments : {&pad, &none}) {
    for (std::int32_t row = 1; row <= 25; ++row) assignments->Code(row, 9);
    assignments->Clear();
  }
  Codes cleared(25, 9);
  for (std::size_t i = 0; i < 6; ++i) cleared[i] = 0;
  EXPECT_EQ(CodesOf(pad), cleared);
  for (std::size_t i = 3; i < 6; ++i) cleared[i] = 9;
  EXPECT_EQ(CodesOf(none), cleared);
}

TEST_F(Joypad, OfFewerButtonsLeavesTheKeysOfTheOthersUnreadAndInTheFile) {
  WriteSetup("[JoyPad]\nRight=1\nButton1=2\nButton2=3\nButton10=4\n");
  JoypadAssignments assignments = Assignments(1);
  EXPECT_EQ(assignments.Code(6), 0);
  assignments.Clear();
  assignments.Save();
  EXPECT_EQ(Value("Button1"), 0);
  EXPECT_EQ(Value("Button2"), 3);
  EXPECT_EQ(Value("Button10"), 4);
}

TEST_F(Joypad, KeepsAllElseInTheFile) {
  WriteSetup(NativeLines(
      "; of the tools\n[Other]\n x = 1 \n\n[JoyPad]\n;left\nRight=1\nSpeed = 3\n[Last]\ny=2"));
  JoypadAssignments assignments = Assignments(0);
  assignments.Code(1, 12);
  assignments.Save();
  EXPECT_EQ(Value("Right"), 12);
  // Wine's profile calls write every line anew.
  const char* after = IsUnderWine()
                          ? "; of the tools\n[Other]\nx=1\n[JoyPad]\n;left\nRight=12\nSpeed=3\n"
                            "Left=0\nUp=0\nDown=0\n[Last]\ny=2\n"
                          : "; of the tools\n[Other]\n x = 1 \n\n[JoyPad]\n;left\nRight=12\n"
                            "Speed = 3\nLeft=0\nUp=0\nDown=0\n[Last]\ny=2";
  EXPECT_EQ(SetupText(), NativeLines(after));
}

TEST_F(Joypad, WritesAFirstFileWithoutAJoystickToo) {
  AssignmentsWithoutCount().Save();
  for (const char* key : {"Right", "Left", "Up", "Down"}) EXPECT_EQ(Value(key), 0);
}

TEST_F(Joypad, WithoutAFolderOfTheUserReadsAndWritesNothing) {
  const fs::path before = fs::current_path();
  fs::current_path(folder.Path(""));
  WriteSetup("[JoyPad]\nRight=1\n");
  folder.Write("Setup.ini", "[JoyPad]\nRight=1\n");
  joystick.capabilities = {kJoystickOk, 2};
  {
    JoypadAssignments assignments(joystick, "");
    EXPECT_EQ(CodesOf(assignments), Codes(25, 0));
    EXPECT_EQ(assignments.RowNames().size(), 6U);
    assignments.Code(1, 7);
    assignments.Save();
  }
  fs::current_path(before);
  EXPECT_EQ(SetupText(), "[JoyPad]\nRight=1\n");
  EXPECT_EQ(TempFolder::Read(folder.Path("Setup.ini")), "[JoyPad]\nRight=1\n");
  std::size_t entries = 0;
  for (fs::directory_iterator entry(folder.Path("")), end; entry != end; ++entry) ++entries;
  EXPECT_EQ(entries, 2U);
}

TEST_F(Joypad, FindsItsFolderUnderANameWithBlanksAndOtherLetters) {
  const std::string data = folder.Path("my data \xC3\xA9");
  {
    JoypadAssignments assignments(joystick, data);
    assignments.Code(1, 7);
    assignments.Save();
  }
  EXPECT_EQ(JoypadAssignments(joystick, data).Code(1), 7);
}

}  // namespace
}  // namespace mortane::test
