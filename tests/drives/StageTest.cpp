// The compensation and the positions of the stage, beyond the drill.
#include "drives/DriveRig.h"

#include "common/Failure.h"

namespace mortane::test {
namespace {

TEST(Stage, IsUnknownBeforeTheFirstRead) {
  Rig rig("Harbour");
  EXPECT_EQ(rig.units.CXYDrive.curFocusCompensation, -1);
  EXPECT_EQ(rig.units.CXYDrive.NoseCount, 0);
  EXPECT_EQ(rig.units.CXYDrive.PositionX(1), 0);
  EXPECT_EQ(rig.units.CXYDrive.PositionY(1), 0);
  EXPECT_EQ(FileTextOf(rig.units.CXYDrive),
            R"(<SECTION><XYSTAGE><FocusCompensation CODE="Unknown"/></XYSTAGE></SECTION>)");
}

struct BenchRow {
  const char* bench;
  std::int32_t compensation;
  bool enabled;
  std::int32_t noseCount;
};

TEST(Stage, ReadsWhatEachInstrumentHas) {
  for (const BenchRow& row : {BenchRow{"Quay", 3, true, 6}, BenchRow{"Harbour", 3, true, 6},
                              BenchRow{"Lantern", 1, false, 5}, BenchRow{"Hub", 1, false, 0},
                              BenchRow{"Pair", 1, true, 7}, BenchRow{"Outpost", 1, false, 6},
                              BenchRow{"Relay", 1, false, 0}, BenchRow{"Deck", 1, false, 6},
                              BenchRow{"DeckRemote", 1, false, 6}, BenchRow{"Watch", 1, false, 5},
                              BenchRow{"Shell", 1, false, 0}, BenchRow{"Hollow", 1, false, 0},
                              BenchRow{"Attic", 1, true, 10}}) {
    Rig rig(row.bench);
    rig.Connect();
    EXPECT_EQ(rig.units.CXYDrive.ReadSdk(), "");
    EXPECT_EQ(rig.units.CXYDrive.curFocusCompensation, row.compensation) << row.bench;
    EXPECT_EQ(rig.units.CXYDrive.IsEnable(), row.enabled) << row.bench;
    EXPECT_EQ(rig.units.CXYDrive.NoseCount, row.noseCount) << row.bench;
  }
}

// The controller would say 3: a stage that cannot be commanded is not asked.
TEST(Stage, ThatIsNotThereOrOnlySensedHasNoCompensation) {
  for (const std::int32_t mounted : {kNotMounted, kSensorOnly}) {
    Rig rig("Harbour");
    Fit(rig.instrument(), accessory::kXYStage, mounted);
    rig.ConnectAndReceive();
    EXPECT_EQ(rig.units.CXYDrive.curFocusCompensation, 1) << mounted;
    EXPECT_EQ(FileTextOf(rig.units.CXYDrive),
              R"(<SECTION><XYSTAGE><FocusCompensation CODE="None"/></XYSTAGE></SECTION>)");
    rig.units.CXYDrive.curFocusCompensation = 2;
    EXPECT_EQ(Differences(rig.units.CXYDrive), "");
    EXPECT_EQ(rig.units.CXYDrive.WriteSdk(), "");
    EXPECT_EQ(rig.units.CXYDrive.ReadSdk(), "");
    EXPECT_EQ(rig.journal.CallCount(), 0U) << mounted;
  }
}

// Where the focus drive says "Unknown".
TEST(Stage, ThatIsNotThereIsNoneInTheFileAndAFocusDriveUnknown) {
  Rig rig("Shell");
  rig.ConnectAndReceive();
  EXPECT_EQ(rig.units.CXYDrive.curFocusCompensation, 1);
  EXPECT_EQ(rig.units.CZDrive.curFocusCompensation, -1);
  EXPECT_NE(FileTextOf(rig.units.CXYDrive).find(R"(<FocusCompensation CODE="None"/>)"),
            std::string::npos);
  EXPECT_NE(FileTextOf(rig.units.CZDrive).find(R"(<FocusCompensation CODE="Unknown"/>)"),
            std::string::npos);
}

struct EnableRow {
  std::int32_t stage;
  std::int32_t nosepiece;
  bool enabled;
};

TEST(Stage, IsEnabledTogetherWithANosepieceThatTurns) {
  for (const EnableRow& row :
       {EnableRow{2, 2, true}, EnableRow{2, 1, false}, EnableRow{2, 0, false},
        EnableRow{1, 2, false}, EnableRow{0, 2, false}}) {
    Rig rig("Harbour");
    Fit(rig.instrument(), accessory::kXYStage, row.stage);
    Fit(rig.instrument(), accessory::kNosepiece, row.nosepiece);
    rig.Connect();
    EXPECT_EQ(rig.units.CXYDrive.IsEnable(), row.enabled) << row.stage << row.nosepiece;
  }
}

struct SlotRow {
  std::int32_t address;
  bool there;
};

TEST(Stage, HasOnePositionMoreThanTheNosepieceHasAddresses) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  for (const SlotRow& row :
       {SlotRow{-1, false}, SlotRow{0, false}, SlotRow{1, true}, SlotRow{6, true}, SlotRow{7, true},
        SlotRow{8, false}, SlotRow{2147483647, false}, SlotRow{-2147483647, false}}) {
    rig.units.CXYDrive.PositionX(row.address, 11);
    rig.units.CXYDrive.PositionY(row.address, 12);
    EXPECT_EQ(rig.units.CXYDrive.PositionX(row.address), row.there ? 11 : -1) << row.address;
    EXPECT_EQ(rig.units.CXYDrive.PositionY(row.address), row.there ? 12 : -1) << row.address;
  }
  rig.units.CXYDrive.NoseCount = 7;
  EXPECT_EQ(rig.units.CXYDrive.PositionX(8), 0) << "what was out of bounds was not kept";
  EXPECT_EQ(rig.units.CXYDrive.PositionY(8), 0);
}

TEST(Stage, AnAddressAboveTenWithinTheBoundIsAFault) {
  Rig rig("Attic");
  rig.Connect();
  ASSERT_EQ(rig.units.CXYDrive.NoseCount, 10);
  rig.units.CXYDrive.PositionX(10, 5);
  EXPECT_EQ(rig.units.CXYDrive.PositionX(10), 5);
  const std::vector<std::function<void(clsControlXYDrive&)>> acts{
      [](clsControlXYDrive& stage) { stage.PositionX(11); },
      [](clsControlXYDrive& stage) { stage.PositionY(11); },
      [](clsControlXYDrive& stage) { stage.PositionX(11, 1); },
      [](clsControlXYDrive& stage) { stage.PositionY(11, 1); }};
  for (const auto& act : acts) {
    try {
      act(rig.units.CXYDrive);
      ADD_FAILURE() << "no fault";
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number(), 9);
    }
  }
  EXPECT_EQ(rig.units.CXYDrive.PositionX(12), -1);
}

TEST(Stage, AReadClearsThePositionsOfBothAxesWithOrWithoutAStage) {
  for (const char* bench : {"Harbour", "Deck"}) {
    Rig rig(bench);
    rig.ConnectAndReceive();
    rig.units.CXYDrive.PositionX(1, 3);
    rig.units.CXYDrive.PositionY(7, 4);
    EXPECT_EQ(rig.units.CXYDrive.ReadSdk(), "");
    EXPECT_EQ(rig.units.CXYDrive.PositionX(1), 0) << bench;
    EXPECT_EQ(rig.units.CXYDrive.PositionY(7), 0) << bench;
  }
}

TEST(Stage, AReadThatFailsLeavesTheCompensationUnknown) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"XYDriveDevice.FocusCompensation"});
  EXPECT_EQ(rig.units.CXYDrive.ReadSdk(), "Control XY Stage (LIB:80004005)");
  EXPECT_EQ(rig.units.CXYDrive.curFocusCompensation, -1);
  std::string list;
  rig.units.CXYDrive.curFocusCompensation = 1;
  EXPECT_EQ(rig.units.CXYDrive.ModifySdk(list), "Control XY Stage (LIB:80004005)");
  EXPECT_EQ(list, "");
}

TEST(Stage, ACompensationThatIsUnknownIsNeitherAskedForNorWritten) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.CXYDrive.curFocusCompensation = -1;
  EXPECT_EQ(Differences(rig.units.CXYDrive), "");
  EXPECT_EQ(rig.units.CXYDrive.WriteSdk(), "");
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

TEST(Stage, IsWrittenOnlyWhenItDiffers) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  EXPECT_EQ(rig.units.CXYDrive.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Lines(), Lines{"XYDriveDevice.FocusCompensation -> 3"});
  rig.journal.Clear();
  rig.units.CXYDrive.curFocusCompensation = 1;
  EXPECT_EQ(rig.units.CXYDrive.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Lines(),
            (Lines{"XYDriveDevice.FocusCompensation -> 3", "XYDriveDevice.FocusCompensation = 1"}));
}

TEST(Stage, AReadOrWriteThatFailsIsOneLineAndAnUnreadValueIsNotWritten) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.CXYDrive.curFocusCompensation = 1;
  rig.faults.Add({"get XYDriveDevice.FocusCompensation", 1});
  EXPECT_EQ(rig.units.CXYDrive.WriteSdk(), "Control XY Stage FocusCompensation");
  EXPECT_TRUE(rig.journal.Writes().empty());
  rig.faults.Add({"put XYDriveDevice.FocusCompensation", 1});
  EXPECT_EQ(rig.units.CXYDrive.WriteSdk(), "Control XY Stage FocusCompensation");
  EXPECT_EQ(rig.units.CXYDrive.WriteSdk(), "");
  EXPECT_EQ(rig.instrument().xyDrive.focusCompensation, 1);
}

struct WordRow {
  std::int32_t compensation;
  const char* word;
};

TEST(Stage, HasAWordForEachCompensationBothWays) {
  for (const WordRow& row : {WordRow{1, "None"}, WordRow{2, "Absolute"}, WordRow{3, "Relative"}}) {
    Rig rig("Harbour");
    rig.units.CXYDrive.curFocusCompensation = row.compensation;
    const std::string element =
        "<XYSTAGE><FocusCompensation CODE=\"" + std::string(row.word) + "\"/></XYSTAGE>";
    EXPECT_EQ(FileTextOf(rig.units.CXYDrive), "<SECTION>" + element + "</SECTION>");
    rig.units.CXYDrive.curFocusCompensation = -1;
    EXPECT_EQ(ReadElement(rig.units.CXYDrive, element), "");
    EXPECT_EQ(rig.units.CXYDrive.curFocusCompensation, row.compensation);
  }
  for (const std::int32_t compensation : {-1, 0, 4}) {
    Rig rig("Harbour");
    rig.units.CXYDrive.curFocusCompensation = compensation;
    EXPECT_NE(FileTextOf(rig.units.CXYDrive).find("\"Unknown\""), std::string::npos);
  }
}

TEST(Stage, IsReadWithoutRegardToCase) {
  Rig rig("Harbour");
  EXPECT_EQ(
      ReadElement(rig.units.CXYDrive, R"(<XYSTAGE><FOCUScompensation code="aBSOLUTE"/></XYSTAGE>)"),
      "");
  EXPECT_EQ(rig.units.CXYDrive.curFocusCompensation, 2);
}

}  // namespace
}  // namespace mortane::test
