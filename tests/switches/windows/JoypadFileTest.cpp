// Setup.ini on a Windows where a step of reading or saving it fails, or ends the process.
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>

#include "platform/Sleep.h"
#include "platform/windows/Handle.h"
#include "support/ScriptedJoystick.h"
#include "support/SecondProcess.h"
#include "support/TempFolder.h"
#include "switches/JoypadAssignments.h"

namespace mortane::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFolder = "Tarvex\\OrmanaTools";
constexpr const char* kSetup = "Tarvex\\OrmanaTools\\Setup.ini";
constexpr const char* kBefore =
    "; kept\r\n[JoyPad]\r\nRight=1\r\nLeft=2\r\nButton30=3\r\n[B]\r\nx=1\r\n";

void SetAll(JoypadAssignments& assignments, std::int16_t code) {
  for (std::int32_t row = 1; row <= 14; ++row) assignments.Code(row, code);
}

class JoypadFile : public testing::Test {
 protected:
  JoypadFile() {
    fs::create_directories(PathOf(folder.Path(kFolder)));
    folder.Write(kSetup, kBefore);
  }

  // Opens the assignments, changes them and saves; the first code as it was read.
  std::int16_t ChangeAndSave() const {
    ScriptedJoystick joystick;
    JoypadAssignments assignments(joystick, folder.Path("."));
    const std::int16_t first = assignments.Code(1);
    SetAll(assignments, 46);
    assignments.Save();
    return first;
  }

  Handle OpenSetup(DWORD access, DWORD sharing) const {
    return Handle(CreateFileW(PathOf(folder.Path(kSetup)).c_str(), access, sharing, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  }
  void SetAttributes(DWORD attributes) const {
    SetFileAttributesW(PathOf(folder.Path(kSetup)).c_str(), attributes);
  }
  std::string Content() const { return TempFolder::Read(folder.Path(kSetup)); }
  std::ptrdiff_t FilesBeside() const {
    return std::distance(fs::directory_iterator(PathOf(folder.Path(kFolder))), {});
  }

  TempFolder folder;
};

TEST_F(JoypadFile, IsSaved) {
  EXPECT_EQ(ChangeAndSave(), 1);
  EXPECT_TRUE(Content().starts_with(
      "; kept\r\n[JoyPad]\r\nRight=46\r\nLeft=46\r\nButton30=3\r\nUp=46\r\n"));
  EXPECT_TRUE(Content().ends_with("Button10=46\r\n[B]\r\nx=1\r\n"));
  EXPECT_EQ(FilesBeside(), 1);
}

TEST_F(JoypadFile, WithAFileInItsFoldersPlaceIsNeitherReadNorWritten) {
  fs::remove_all(PathOf(folder.Path("Tarvex")));
  folder.Write("Tarvex", "kept");
  EXPECT_EQ(ChangeAndSave(), 0);
  EXPECT_EQ(TempFolder::Read(folder.Path("Tarvex")), "kept");
}

TEST_F(JoypadFile, ThatIsAFolderIsLeftAsItIs) {
  fs::remove(PathOf(folder.Path(kSetup)));
  fs::create_directory(PathOf(folder.Path(kSetup)));
  EXPECT_EQ(ChangeAndSave(), 0);
  EXPECT_TRUE(fs::is_directory(PathOf(folder.Path(kSetup))));
}

TEST_F(JoypadFile, ThatMayNotBeWrittenIsLeftAsItIs) {
  SetAttributes(FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(ChangeAndSave(), 1);
  EXPECT_EQ(Content(), kBefore);
  EXPECT_EQ(FilesBeside(), 1);
  SetAttributes(FILE_ATTRIBUTE_NORMAL);
}

// What cannot be read must not be replaced by a file that lacks all of it.
TEST_F(JoypadFile, ThatAnotherProgramHasForItselfIsLeftAsItIs) {
  {
    const Handle other = OpenSetup(GENERIC_READ, 0);
    EXPECT_EQ(ChangeAndSave(), 0);
  }
  EXPECT_EQ(Content(), kBefore);
  EXPECT_EQ(FilesBeside(), 1);
}

TEST_F(JoypadFile, ThatAnotherProgramOpensDuringAVisitIsLeftAsItIs) {
  ScriptedJoystick joystick;
  JoypadAssignments assignments(joystick, folder.Path("."));
  SetAll(assignments, 46);
  {
    const Handle other = OpenSetup(GENERIC_READ, FILE_SHARE_READ);
    assignments.Save();
  }
  EXPECT_EQ(Content(), kBefore);
  assignments.Save();
  EXPECT_NE(Content(), kBefore) << "it is free again";
}

TEST_F(JoypadFile, ThatAnotherProgramReadsAndSharesIsSaved) {
  const Handle other =
      OpenSetup(GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
  EXPECT_EQ(ChangeAndSave(), 1);
  EXPECT_NE(Content(), kBefore);
}

// Saves two sets of codes in turn until it is killed.
const SecondProcess::Part kSaveForEver{
    "save joypad for ever", [](const SecondProcess::Side& test, const Words& words) -> int {
      ScriptedJoystick joystick;
      JoypadAssignments assignments(joystick, words.at(0));
      for (std::int16_t code = 40;; code = code == 40 ? 41 : 40) {
        SetAll(assignments, code);
        assignments.Save();
        if (code == 40) test.Tell();
      }
    }};

// The whole of a save is one step: never some of the keys.
TEST_F(JoypadFile, OfAProcessKilledDuringASaveIsTheOldOrTheNew) {
  // So large that a save takes its time.
  folder.Write(kSetup, std::string(kBefore) + "; " + std::string(30000, 'x') + "\r\n");
  for (int delay = 0; delay < 8; ++delay) {
    SecondProcess saver(kSaveForEver, {folder.Path(".")});
    saver.Await();
    SleepMilliseconds(3 * delay);
    saver.Kill();
    ScriptedJoystick joystick;
    const JoypadAssignments assignments(joystick, folder.Path("."));
    const std::int16_t code = assignments.Code(1);
    EXPECT_TRUE(code == 40 || code == 41) << code;
    for (std::int32_t row = 1; row <= 14; ++row) ASSERT_EQ(assignments.Code(row), code) << row;
    EXPECT_TRUE(Content().ends_with("x\r\n"));
  }
  ChangeAndSave();
  EXPECT_EQ(FilesBeside(), 1) << "what the killed ones left beside is gone";
}

}  // namespace
}  // namespace mortane::test
