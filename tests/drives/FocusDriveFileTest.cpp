// The focus drive in a settings file.
#include "drives/DriveRig.h"

namespace mortane::test {
namespace {

struct TextRow {
  std::int32_t compensation;
  std::int32_t limit;
  std::int16_t focus;
  std::int16_t stage;
  const char* children;
};

TEST(FocusDriveFile, HasAWordForEachSetting) {
  for (const TextRow& row :
       {TextRow{1, 0, 0, 1,
                R"(<FocusCompensation CODE="None"/><DownLimitation CODE="-300000"/>)"
                R"(<Escape_ZDrive CODE="Off"/><Escape_XYStage CODE="On"/>)"},
        TextRow{2, 1, 1, 0,
                R"(<FocusCompensation CODE="Absolute"/><DownLimitation CODE="-500000"/>)"
                R"(<Escape_ZDrive CODE="On"/><Escape_XYStage CODE="Off"/>)"},
        TextRow{3, 2, 2, 2,
                R"(<FocusCompensation CODE="Relative"/><DownLimitation CODE="Unknown"/>)"
                R"(<Escape_ZDrive CODE="Unknown"/><Escape_XYStage CODE="Unknown"/>)"},
        TextRow{-1, -1, -1, 3,
                R"(<FocusCompensation CODE="Unknown"/><DownLimitation CODE="Unknown"/>)"
                R"(<Escape_ZDrive CODE="Unknown"/><Escape_XYStage CODE="Unknown"/>)"},
        TextRow{0, 0, 0, 0,
                R"(<FocusCompensation CODE="Unknown"/><DownLimitation CODE="-300000"/>)"
                R"(<Escape_ZDrive CODE="Off"/><Escape_XYStage CODE="Off"/>)"},
        TextRow{4, 0, 0, 0,
                R"(<FocusCompensation CODE="Unknown"/><DownLimitation CODE="-300000"/>)"
                R"(<Escape_ZDrive CODE="Off"/><Escape_XYStage CODE="Off"/>)"}}) {
    Rig rig("Harbour");
    rig.units.CZDrive.curFocusCompensation = row.compensation;
    rig.units.CZDrive.curLowerLimit = row.limit;
    rig.units.CZDrive.SetEscape(0, row.focus);
    rig.units.CZDrive.SetEscape(1, row.stage);
    EXPECT_EQ(FileTextOf(rig.units.CZDrive),
              "<SECTION><FOCUSDRIVE>" + std::string(row.children) + "</FOCUSDRIVE></SECTION>");
  }
}

struct ReadRow {
  const char* child;
  const char* values;
};

TEST(FocusDriveFile, IsReadWithoutRegardToCase) {
  for (const ReadRow& row : {ReadRow{R"(<FocusCompensation CODE="None"/>)", "1 -1 00"},
                             ReadRow{R"(<focuscompensation code="ABSOLUTE"/>)", "2 -1 00"},
                             ReadRow{R"(<FOCUSCOMPENSATION Code="relative"/>)", "3 -1 00"},
                             ReadRow{R"(<DownLimitation CODE="-300000"/>)", "-1 0 00"},
                             ReadRow{R"(<DOWNLIMITATION code="-500000"/>)", "-1 1 00"},
                             ReadRow{R"(<Escape_ZDrive CODE="on"/>)", "-1 -1 10"},
                             ReadRow{R"(<escape_zdrive CODE="ON"/>)", "-1 -1 10"},
                             ReadRow{R"(<Escape_XYStage CODE="On"/>)", "-1 -1 01"},
                             ReadRow{R"(<Escape_XYStage CODE="On" code="Off"/>)", "-1 -1 00"}}) {
    Rig rig("Harbour");
    EXPECT_EQ(
        ReadElement(rig.units.CZDrive, "<FOCUSDRIVE>" + std::string(row.child) + "</FOCUSDRIVE>"),
        "");
    EXPECT_EQ(ValuesOf(rig.units.CZDrive), row.values) << row.child;
  }
}

TEST(FocusDriveFile, OffClearsAFlag) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  EXPECT_EQ(
      ReadElement(rig.units.CZDrive, R"(<FOCUSDRIVE><Escape_ZDrive CODE="OFF"/></FOCUSDRIVE>)"),
      "");
  EXPECT_EQ(ValuesOf(rig.units.CZDrive), "3 -1 01");
}

TEST(FocusDriveFile, OfOurOwnIsReadInSilenceOnEveryInstrument) {
  for (const std::string& bench : benches::Names()) {
    Rig rig(bench);
    rig.Connect();
    EXPECT_EQ(rig.units.CZDrive.ReadSdk(), "");
    const std::string before = ValuesOf(rig.units.CZDrive);
    DomDocument document;
    ASSERT_TRUE(document.LoadText(FileTextOf(rig.units.CZDrive)));
    EXPECT_EQ(rig.units.CZDrive.ReadDom(document.Children().at(0).Children().at(0)), "") << bench;
    EXPECT_EQ(ValuesOf(rig.units.CZDrive), before) << bench;
  }
}

TEST(FocusDriveFile, OfUnknownsLeavesWhatWasRead) {
  for (const char* bench : {"Harbour", "Lantern", "Attic", "Shell"}) {
    Rig rig(bench);
    rig.Connect();
    EXPECT_EQ(rig.units.CZDrive.ReadSdk(), "");
    const std::string before = ValuesOf(rig.units.CZDrive);
    EXPECT_EQ(ReadElement(rig.units.CZDrive,
                          R"(<FOCUSDRIVE><FocusCompensation CODE="Unknown"/>)"
                          R"(<DownLimitation CODE="Unknown"/><Escape_ZDrive CODE="Unknown"/>)"
                          R"(<Escape_XYStage CODE="Unknown"/></FOCUSDRIVE>)"),
              "");
    EXPECT_EQ(ValuesOf(rig.units.CZDrive), before) << bench;
  }
}

TEST(FocusDriveFile, AChildThatIsRefusedLeavesTheOthersToBeTaken) {
  Rig rig("Harbour");
  EXPECT_EQ(ReadElement(rig.units.CZDrive,
                        R"(<FOCUSDRIVE><FocusCompensation CODE="No"/>)"
                        R"(<DownLimitation CODE="-500000"/><Escape_XYStage CODE="On"/>)"
                        R"(</FOCUSDRIVE>)"),
            "Control Focus Drive FocusCompensation");
  EXPECT_EQ(ValuesOf(rig.units.CZDrive), "-1 1 01");
}

TEST(FocusDriveFile, AChildThatOccursTwiceCountsTheLastTime) {
  Rig rig("Harbour");
  EXPECT_EQ(ReadElement(rig.units.CZDrive, R"(<FOCUSDRIVE><FocusCompensation CODE="None"/>)"
                                           R"(<FocusCompensation CODE="Relative"/></FOCUSDRIVE>)"),
            "");
  EXPECT_EQ(rig.units.CZDrive.curFocusCompensation, 3);
}

TEST(FocusDriveFile, HoldsNeitherPositionsNorTheUpperLimit) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  const std::string before = FileTextOf(rig.units.CZDrive);
  rig.units.CZDrive.Position(1, 100);
  rig.units.CZDrive.curUpperLimit = 1;
  EXPECT_EQ(FileTextOf(rig.units.CZDrive), before);
  EXPECT_EQ(Differences(rig.units.CZDrive), "");
}

}  // namespace
}  // namespace mortane::test
