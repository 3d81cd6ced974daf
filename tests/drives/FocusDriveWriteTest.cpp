// What the focus drive writes to the controller, block by block.
#include "drives/DriveRig.h"

namespace mortane::test {
namespace {

constexpr const char* kWarning = "Upper Limit lower than Lower Limit.";

constexpr const char* kCompensationLine = "Control Focus Drive FocusCompensation";
constexpr const char* kLimitLine = "Control Focus Drive DownLimitation";
constexpr const char* kEscapeLine = "Control Focus Drive EscapeMode";

// A drive without a condenser, whose lower limit is to be set above its upper one.
struct LimitRig : Rig {
  explicit LimitRig(std::int32_t upper = 0) : Rig("Outpost") {
    instrument().zDrive.upperLimit = upper;
    ConnectAndReceive();
    units.CZDrive.curLowerLimit = 1;
  }
};

TEST(FocusDriveWrite, GoesOverItsThreeBlocksInOrder) {
  Rig rig("Lantern");
  rig.ConnectAndReceive();
  rig.units.CZDrive.curFocusCompensation = 2;
  rig.units.CZDrive.curLowerLimit = 0;
  rig.units.CZDrive.SetEscape(1, 1);
  EXPECT_EQ(rig.units.CZDrive.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{"ZDriveDevice.FocusCompensation -> 1", "ZDriveDevice.FocusCompensation = 2",
                   "ZDriveDevice.LowerLimit -> 1", "ZDriveDevice.LowerLimit = 0",
                   "ZDriveDevice.LowerLimit -> 0", "ZDriveDevice.UpperLimit -> 0",
                   "ControllerSettings.EscapeMode = 3"}));
}

TEST(FocusDriveWrite, WritesTheEscapeModeAlsoWhenNothingDiffers) {
  Rig rig("Lantern");
  rig.ConnectAndReceive();
  EXPECT_EQ(rig.units.CZDrive.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{"ZDriveDevice.FocusCompensation -> 1", "ZDriveDevice.LowerLimit -> 1",
                   "ControllerSettings.EscapeMode = 1"}));
}

TEST(FocusDriveWrite, NeitherAsksForNorWritesWhatIsUnknown) {
  Rig rig("Lantern");
  rig.ConnectAndReceive();
  rig.units.CZDrive.curFocusCompensation = rig.units.CZDrive.curLowerLimit = -1;
  EXPECT_EQ(rig.units.CZDrive.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Lines(), Lines{"ControllerSettings.EscapeMode = 1"});
  EXPECT_EQ(Differences(rig.units.CZDrive), "");
}

struct FlagsRow {
  std::int16_t focus;
  std::int16_t stage;
  Lines writes;
};

TEST(FocusDriveWrite, FlagsAreAModeUnlessOneOfThemIsUnknown) {
  for (const FlagsRow& row : {FlagsRow{0, 0, {"ControllerSettings.EscapeMode = 0"}},
                              FlagsRow{1, 0, {"ControllerSettings.EscapeMode = 1"}},
                              FlagsRow{0, 1, {"ControllerSettings.EscapeMode = 2"}},
                              FlagsRow{1, 1, {"ControllerSettings.EscapeMode = 3"}},
                              FlagsRow{2, 2, {}}, FlagsRow{2, 0, {}}, FlagsRow{2, 1, {}},
                              FlagsRow{0, 2, {}}, FlagsRow{1, 2, {}}, FlagsRow{-1, 0, {}}}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.units.CZDrive.SetEscape(0, row.focus);
    rig.units.CZDrive.SetEscape(1, row.stage);
    EXPECT_EQ(rig.units.CZDrive.WriteSdk(), "");
    EXPECT_EQ(rig.journal.Writes(), row.writes) << row.focus << row.stage;
  }
}

TEST(FocusDriveWrite, ALowerLimitAboveTheUpperOneIsShownAndStays) {
  LimitRig rig;
  rig.prompts.ExpectBox(kWarning, 48);
  EXPECT_EQ(rig.units.CZDrive.WriteSdk(), "");
  EXPECT_EQ(rig.instrument().zDrive.lowerLimit, 1);
}

TEST(FocusDriveWrite, ALowerLimitThatWasNotWrittenIsNotShown) {
  Rig rig("Lantern");
  rig.ConnectAndReceive();
  EXPECT_EQ(rig.units.CZDrive.WriteSdk(), "");
  EXPECT_EQ(rig.instrument().zDrive.lowerLimit, 1);
  EXPECT_EQ(rig.instrument().zDrive.upperLimit, 0);
}

TEST(FocusDriveWrite, ALowerLimitNotAboveTheUpperOneIsNotShown) {
  LimitRig same(1);
  EXPECT_EQ(same.units.CZDrive.WriteSdk(), "");
  LimitRig below(2);
  EXPECT_EQ(below.units.CZDrive.WriteSdk(), "");
}

TEST(FocusDriveWrite, ALowerLimitThatCannotBeReadIsNotWritten) {
  LimitRig rig;
  rig.faults.Add({"get ZDriveDevice.LowerLimit", 1});
  EXPECT_EQ(rig.units.CZDrive.WriteSdk(), kLimitLine);
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{"ZDriveDevice.FocusCompensation -> 1", "ZDriveDevice.LowerLimit ! LIB:80004005",
                   "ControllerSettings.EscapeMode = 0"}));
}

// The limits may have been the wrong way round before.
TEST(FocusDriveWrite, AfterAWriteThatFailedTheLimitsAreStillCompared) {
  LimitRig rig;
  rig.instrument().zDrive.upperLimit = -1;
  rig.faults.Add({"put ZDriveDevice.LowerLimit"});
  rig.prompts.ExpectBox(kWarning, 48);
  EXPECT_EQ(rig.units.CZDrive.WriteSdk(), kLimitLine);
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{"ZDriveDevice.FocusCompensation -> 1", "ZDriveDevice.LowerLimit -> 0",
                   "ZDriveDevice.LowerLimit = 1 ! LIB:80004005", "ZDriveDevice.LowerLimit -> 0",
                   "ZDriveDevice.UpperLimit -> -1", "ControllerSettings.EscapeMode = 0"}));
}

TEST(FocusDriveWrite, LimitsThatCannotBeReadBackAreALineAndNoBox) {
  LimitRig lower(-1);
  lower.faults.Add({"get ZDriveDevice.LowerLimit", 2});
  EXPECT_EQ(lower.units.CZDrive.WriteSdk(), kLimitLine);
  EXPECT_EQ(lower.instrument().zDrive.lowerLimit, 1);
  EXPECT_EQ(lower.journal.Lines()[4], "ZDriveDevice.UpperLimit -> -1");
  LimitRig upper;
  upper.faults.Add({"get ZDriveDevice.UpperLimit"});
  EXPECT_EQ(upper.units.CZDrive.WriteSdk(), kLimitLine);
  EXPECT_EQ(upper.instrument().zDrive.lowerLimit, 1);
}

TEST(FocusDriveWrite, EachBlockThatFailsIsItsLineAndTheNextOnesGoOn) {
  LimitRig rig;
  rig.units.CZDrive.curFocusCompensation = 3;
  rig.prompts.AcceptAnyBox();
  for (const char* call : {"put ZDriveDevice.FocusCompensation", "put ZDriveDevice.LowerLimit",
                           "put ControllerSettings.EscapeMode"}) {
    rig.faults.Add({call});
  }
  EXPECT_EQ(rig.units.CZDrive.WriteSdk(),
            std::string(kCompensationLine) + "\r\n" + kLimitLine + "\r\n" + kEscapeLine);
  EXPECT_TRUE(rig.prompts.Boxes().empty()) << "the old limits agree";
}

TEST(FocusDriveWrite, ACompensationThatCannotBeReadIsNotWritten) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.CZDrive.curFocusCompensation = 1;
  rig.faults.Add({"get ZDriveDevice.FocusCompensation"});
  EXPECT_EQ(rig.units.CZDrive.WriteSdk(), kCompensationLine);
  EXPECT_EQ(rig.journal.Writes(), Lines{"ControllerSettings.EscapeMode = 3"});
}

// In the order of the calls: device, read, write for the compensation; device and call for each of
// read, write, lower and upper limit; settings and write for the escape.
TEST(FocusDriveWrite, EachCallThatFailsIsTheLineOfItsBlock) {
  Lines lines;
  const auto make = [] {
    auto rig = std::make_unique<LimitRig>();
    rig->units.CZDrive.curFocusCompensation = 3;
    rig->prompts.AcceptAnyBox();
    return rig;
  };
  const auto write = [](DriveUnits& units) { return units.CZDrive.WriteSdk(); };
  FailEachCallOf(make, write, [&](Rig& rig, std::size_t) { lines.push_back(write(rig.units)); });
  Lines expected(3, kCompensationLine);
  expected.insert(expected.end(), 8, kLimitLine);
  expected.insert(expected.end(), 2, kEscapeLine);
  EXPECT_EQ(lines, expected);
}

}  // namespace
}  // namespace mortane::test
