// The limits of the nosepiece, beyond the drill.
#include <gtest/gtest.h>

#include <algorithm>

#include "objectives/ObjectiveUnits.h"
#include "support/UnitText.h"

namespace mortane::test {
namespace {

std::string ValuesOf(const clsLimitation& limit) {
  return std::to_string(limit.curIncrease) + " " + std::to_string(limit.curSkip) + " " +
         std::to_string(limit.curImmersion);
}

struct Row {
  std::int32_t number;
  const char* values;
};

constexpr Row kTable[] = {
    {1, "0 0 0"},  {2, "0 1 0"},  {3, "1 0 0"},  {4, "1 1 0"},  {5, "2 0 0"},  {6, "2 1 0"},
    {7, "0 0 1"},  {8, "0 1 1"},  {9, "0 0 2"},  {10, "0 1 2"}, {11, "1 0 1"}, {12, "1 1 1"},
    {13, "1 0 2"}, {14, "1 1 2"}, {15, "2 0 1"}, {16, "2 1 1"}, {17, "2 0 2"}, {18, "2 1 2"},
};

TEST(Limitation, EachNumberOfTheControllerIsThreeRulesBothWays) {
  for (const Row& row : kTable) {
    Rig rig("Harbour");
    rig.instrument().limitation = row.number;
    rig.ConnectAndReceive();
    EXPECT_EQ(ValuesOf(rig.units.curLimit), row.values) << row.number;
    EXPECT_TRUE(rig.units.curLimit.IsEnable());
    EXPECT_EQ(rig.units.curLimit.WriteSdk(), "");
    EXPECT_EQ(rig.journal.Writes(),
              Lines{"NosepieceDevice.Limitation = " + std::to_string(row.number)});
  }
}

TEST(Limitation, AnyOtherNumberIsThreeUnknownsAndNothingIsWritten) {
  for (const std::int32_t number : {0, 19, -1, 100, 2147483647}) {
    Rig rig("Harbour");
    rig.instrument().limitation = number;
    rig.ConnectAndReceive();
    EXPECT_EQ(ValuesOf(rig.units.curLimit), "-1 -1 -1") << number;
    EXPECT_FALSE(rig.units.curLimit.IsEnable());
    EXPECT_EQ(rig.units.curLimit.WriteSdk(), "");
    EXPECT_TRUE(rig.journal.Writes().empty());
  }
}

TEST(Limitation, IsUnknownBeforeTheFirstRead) {
  Rig rig("Harbour");
  EXPECT_EQ(ValuesOf(rig.units.curLimit), "-1 -1 -1");
  EXPECT_FALSE(rig.units.curLimit.IsEnable());
  EXPECT_EQ(FileTextOf(rig.units.curLimit),
            "<SECTION><LIMIT POSITION=\"LowerMagnification\" CODE=\"Unknown\"/>"
            "<LIMIT POSITION=\"Skip\" CODE=\"Unknown\"/>"
            "<LIMIT POSITION=\"WaferImmersion\" CODE=\"Unknown\"/></SECTION>");
}

TEST(Limitation, ANosepieceThatIsOnlySensedOrAbsentHasNone) {
  for (const char* bench : {"Watch", "Hub"}) {
    Rig rig(bench);
    rig.instrument().limitation = 5;
    rig.ConnectAndReceive();
    rig.units.curLimit.curIncrease = rig.units.curLimit.curSkip = rig.units.curLimit.curImmersion =
        1;
    EXPECT_FALSE(rig.units.curLimit.IsEnable()) << bench;
    std::string list;
    EXPECT_EQ(rig.units.curLimit.ModifySdk(list), "");
    EXPECT_EQ(list, "") << bench;
    EXPECT_EQ(rig.units.curLimit.WriteSdk(), "");
    EXPECT_EQ(rig.units.curLimit.ReadSdk(), "");
    EXPECT_EQ(ValuesOf(rig.units.curLimit), "-1 -1 -1") << bench;
    EXPECT_EQ(rig.journal.CallCount(), 0U) << bench;
  }
}

TEST(Limitation, OneKnownRuleIsEnoughToBeEnabled) {
  Rig rig("Harbour");
  rig.instrument().limitation = 19;
  rig.ConnectAndReceive();
  rig.units.curLimit.curImmersion = 0;
  EXPECT_TRUE(rig.units.curLimit.IsEnable());
}

TEST(Limitation, AFileThatKnowsOneRuleLeavesTheOthersUnknownAndNothingIsWritten) {
  for (const char* position : {"LowerMagnification", "Skip", "WaferImmersion"}) {
    Rig rig("Harbour");
    rig.instrument().limitation = 0;
    rig.ConnectAndReceive();
    EXPECT_EQ(ReadElement(rig.units.curLimit,
                          "<LIMIT POSITION=\"" + std::string(position) + "\" CODE=\"Off\"/>"),
              "");
    std::string list;
    EXPECT_EQ(rig.units.curLimit.ModifySdk(list), "");
    EXPECT_NE(list, "") << position;
    EXPECT_EQ(list.find("\r\n"), std::string::npos) << position;
    EXPECT_EQ(rig.units.curLimit.WriteSdk(), "");
    EXPECT_TRUE(rig.journal.Writes().empty()) << position;
  }
}

struct FileRow {
  const char* position;
  const char* code;
  const char* values;
};

TEST(Limitation, ElementsAreReadWithoutRegardToCaseOrToTheRule) {
  for (const FileRow& row :
       {FileRow{"LowerMagnification", "StageDown", "2 -1 -1"},
        FileRow{"lowermagnification", "STAGEDOWN", "2 -1 -1"},
        FileRow{"LowerMagnification", "On", "1 -1 -1"}, FileRow{"Skip", "NotRotate", "-1 1 -1"},
        FileRow{"SKIP", "on", "-1 1 -1"}, FileRow{"Skip", "StageDown", "-1 2 -1"},
        FileRow{"WaferImmersion", "off", "-1 -1 0"}, FileRow{"Immersion Type", "Off", "-1 -1 -1"},
        FileRow{"WaferImmersion", "unknown", "-1 -1 -1"}}) {
    Rig rig("Harbour");
    EXPECT_EQ(ReadElement(rig.units.curLimit, "<LIMIT POSITION=\"" + std::string(row.position) +
                                                  "\" CODE=\"" + row.code + "\"/>"),
              "");
    EXPECT_EQ(ValuesOf(rig.units.curLimit), row.values) << row.position << ' ' << row.code;
  }
}

TEST(Limitation, ASkipOfTwoHasNoNumberAndNoWord) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  EXPECT_EQ(ReadElement(rig.units.curLimit, "<LIMIT POSITION=\"Skip\" CODE=\"StageDown\"/>"), "");
  EXPECT_EQ(rig.units.curLimit.curSkip, 2);
  EXPECT_EQ(rig.units.curLimit.WriteSdk(), "");
  EXPECT_TRUE(rig.journal.Writes().empty());
  EXPECT_NE(FileTextOf(rig.units.curLimit).find("<LIMIT POSITION=\"Skip\" CODE=\"Unknown\"/>"),
            std::string::npos);
}

TEST(Limitation, ComparesWithTheLastReadAndAsksNothing) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.curLimit.curSkip = 1;
  EXPECT_EQ(rig.units.curLimit.WriteSdk(), "");
  std::string list;
  rig.journal.Clear();
  EXPECT_EQ(rig.units.curLimit.ModifySdk(list), "");
  EXPECT_EQ(list, "Nosepiece Limit[Skip]");
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  EXPECT_EQ(rig.units.curLimit.ReadSdk(), "");
  list.clear();
  rig.units.curLimit.ModifySdk(list);
  EXPECT_EQ(list, "");
}

TEST(Limitation, ARuleThatBecameUnknownIsNoDifferenceAndKeepsAllFromBeingWritten) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.curLimit.curSkip = -1;
  std::string list;
  EXPECT_EQ(rig.units.curLimit.ModifySdk(list), "");
  EXPECT_EQ(list, "");
  EXPECT_EQ(rig.units.curLimit.WriteSdk(), "");
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(Limitation, AReadThatFailsLeavesThreeUnknowns) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"get NosepieceDevice.Limitation"});
  EXPECT_EQ(rig.units.curLimit.ReadSdk(), "Nosepiece Limit (LIB:80004005)");
  EXPECT_EQ(ValuesOf(rig.units.curLimit), "-1 -1 -1");
}

TEST(Limitation, AWriteThatFailsIsOneLine) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"put NosepieceDevice.Limitation"});
  EXPECT_EQ(rig.units.curLimit.WriteSdk(), "Nosepiece Limit");
}

TEST(Limitation, WordsOfTheFile) {
  Rig rig("Harbour");
  rig.instrument().limitation = 16;
  rig.ConnectAndReceive();
  EXPECT_EQ(FileTextOf(rig.units.curLimit),
            "<SECTION><LIMIT POSITION=\"LowerMagnification\" CODE=\"StageDown\"/>"
            "<LIMIT POSITION=\"Skip\" CODE=\"On\"/>"
            "<LIMIT POSITION=\"WaferImmersion\" CODE=\"NotRotate\"/></SECTION>");
}

}  // namespace
}  // namespace mortane::test
