// The switch units in the transfers, and on every bench.
#include <gtest/gtest.h>

#include <algorithm>

#include "condensers/clsDbCondenser.h"
#include "support/Rig.h"
#include "switches/clsControlTactor.h"
#include "switches/clsDbSwitch.h"

namespace mortane::test {
namespace {

using Lines = std::vector<std::string>;
using Codes = std::vector<int>;

constexpr int kBody = 1;
constexpr int kHandController = 5;

constexpr const char* kBodyWrite = R"(ControllerSettings.SetSwitchFunction(0, "1", "0"))";
constexpr const char* kModeWrite = R"(ControllerSettings.SetSwitchFunction(4, "0", "1"))";
constexpr const char* kHandWrite = R"(ControllerSettings.SetSwitchFunction(4, "E", "1"))";

void ChangeBoth(clsK70& k70) {
  k70.curSwitch.Func(1, 0);
  k70.curTactor.ControlMode = 1;
  k70.curTactor.Func(14, 1);
}

template <typename Unit>
Codes CodesOf(const Unit& unit) {
  Codes codes;
  for (std::int16_t i = 1; i <= Unit::SwitchCount; ++i) codes.push_back(unit.Func(i));
  return codes;
}

// The lines that concern switches, in their order.
Lines OfSwitches(const Lines& lines) {
  Lines found;
  for (const std::string& line : lines) {
    if (line.find("SwitchFunction(") != std::string::npos ||
        line.starts_with("XYDriveDevice.HandleMode")) {
      found.push_back(line);
    }
  }
  return found;
}

TEST(SwitchTransfers, SendTheBodyAndThenTheHandControllerAsTheLastUnits) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  ChangeBoth(rig.k70);
  rig.k70.dbcon.Name(149, "Last");
  rig.k70.Send();
  const Lines& writes = rig.journal.Writes();
  ASSERT_GT(writes.size(), 3U);
  EXPECT_EQ(Lines(writes.end() - 3, writes.end()), (Lines{kBodyWrite, kModeWrite, kHandWrite}));
}

TEST(SwitchTransfers, ReceiveReadsTheBodyAndThenTheHandControllerAsTheLastUnits) {
  Rig rig("Harbour");
  rig.Connect();
  rig.k70.Receive();
  const Lines lines = OfSwitches(rig.journal.Lines());
  ASSERT_EQ(lines.size(), 16U + 1U + 1U + 14U);
  // Three turrets are asked for their counts at the end.
  ASSERT_GT(rig.journal.Lines().size(), lines.size() + 3);
  EXPECT_TRUE(std::equal(lines.begin(), lines.end(), rig.journal.Lines().end() - 3 - 32));
  EXPECT_EQ(lines[0], R"(ControllerSettings.SwitchFunction(0, "1") -> "3")");
  EXPECT_EQ(lines[15], R"(ControllerSettings.SwitchFunction(0, "G") -> "8")");
  EXPECT_EQ(lines[16], R"(ControllerSettings.SwitchFunction(4, "0") -> "0")");
  EXPECT_EQ(lines[31], R"(ControllerSettings.SwitchFunction(4, "E") -> "0")");
}

TEST(SwitchTransfers, ModifyListsThemInTheSameOrderBehindTheOthers) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  ChangeBoth(rig.k70);
  rig.k70.dbcon.Name(149, "Last");
  EXPECT_EQ(rig.k70.Modify(),
            "Optional Condenser[9] Last\r\nSwitch Function[1] -----------------\r\n"
            "TactorSwitch Function[Mode] : Extend\r\nTactorSwitch Function[14] Objective CW");
}

struct GateRow {
  int absent;
  Lines writes;
};

TEST(SwitchTransfers, EachHangsOnItsControllerUnit) {
  for (const GateRow& row :
       {GateRow{kBody, {kModeWrite, kHandWrite}}, GateRow{kHandController, {kBodyWrite}}}) {
    Rig rig("Harbour");
    rig.instrument().Unit(row.absent).present = 0;
    rig.ConnectAndReceive();
    ChangeBoth(rig.k70);
    const std::string list = rig.k70.Modify();
    EXPECT_EQ(list.find("TactorSwitch") != std::string::npos, row.absent == kBody);
    EXPECT_EQ(list.starts_with("Switch Function"), row.absent == kHandController);
    rig.journal.Clear();
    rig.k70.Send();
    EXPECT_EQ(OfSwitches(rig.journal.Writes()), row.writes);
    const char* asked = row.absent == kBody ? "SwitchFunction(0" : "SwitchFunction(4";
    for (const std::string& line : rig.journal.Lines()) {
      EXPECT_EQ(line.find(asked), std::string::npos) << line;
    }
  }
}

TEST(SwitchTransfers, LinesOfFailuresStandInTheTransfersBox) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  ChangeBoth(rig.k70);
  rig.faults.Add({"ControllerSettings.SwitchFunction(0, \"1\")"});
  rig.faults.Add({"ControllerSettings.SwitchFunction(4, \"0\")"});
  rig.prompts.ExpectBox(
      "Switch Function (LIB:80004005)\r\nTactorController SW Function (LIB:80004005)",
      box::kCritical, Answer::Ok, "Modify");
  EXPECT_EQ(rig.k70.Modify(), "");
  rig.prompts.ExpectBox("Switch Function[1] 0\r\nTactorSwitch Control Mode[1]", box::kCritical,
                        Answer::Ok, "Send");
  rig.k70.Send();
  rig.prompts.ExpectBox(
      "Switch Function (LIB:80004005)\r\nTactorController SW Function (LIB:80004005)",
      box::kCritical);
  rig.k70.Receive();
}

struct BenchRow {
  const char* bench;
  Codes body;
  std::int16_t mode;
  std::int16_t side;
  Codes hand;
};

const Codes kNoBody(16, 0);
const Codes kNoHand(14, 0);
const Codes kBodyDefaults{3, 3, 4, 0, 6, 13, 5, 0, 1, 2, 11, 12, 9, 10, 7, 8};
const Codes kHandDefaults{1, 2, 3, 25, 4, 26, 5, 14, 15, 0, 0, 0, 0, 0};

const std::vector<BenchRow>& BenchRows() {
  static const std::vector<BenchRow> rows{
      {"Quay",
       {24, 25, 4, 0, 6, 13, 5, 0, 1, 2, 11, 12, 9, 10, 7, 8},
       1,
       0,
       {1, 2, 4, 25, 26, 5, 13, 11, 12, 41, 42, 43, 44, 45}},
      {"Harbour", kBodyDefaults, 0, 0, kHandDefaults},
      {"Lantern", kBodyDefaults, 0, 0, kNoHand},
      {"Hub", kNoBody, 0, 0, {11, 12, 20, 21, 6, 24, 13, 22, 23, 0, 0, 0, 0, 0}},
      {"Pair", kBodyDefaults, 0, 0, kNoHand},
      {"Outpost", kNoBody, 0, 0, kNoHand},
      {"Relay", kBodyDefaults, 0, 0, kHandDefaults},
      {"Deck", kNoBody, 0, 0, kNoHand},
      {"DeckRemote", kNoBody, 0, 0, kNoHand},
      {"Watch", kBodyDefaults, 0, 0, kNoHand},
      {"Shell", kNoBody, 0, 0, kNoHand},
      {"Hollow", kBodyDefaults, 0, 0, kNoHand},
      {"Attic",
       {34, -1, -3, 52, 0, 0, -3, 8, -1, 8, 1, 2, 10, 11, 0, 0},
       2,
       3,
       {34, -1, -3, 52, 35, 0, 8, 0, 0, 41, 42, 43, 44, 45}}};
  return rows;
}

TEST(SwitchTransfers, ReadTheCodesOfEveryBench) {
  for (const BenchRow& row : BenchRows()) {
    Rig rig(row.bench);
    rig.prompts.AcceptAnyBox();
    rig.ConnectAndReceive();
    EXPECT_EQ(CodesOf(rig.k70.curSwitch), row.body) << row.bench;
    EXPECT_EQ(CodesOf(rig.k70.curTactor), row.hand) << row.bench;
    EXPECT_EQ(rig.k70.curTactor.ControlMode, row.mode) << row.bench;
    EXPECT_EQ(rig.k70.curTactor.HandleMode, row.side) << row.bench;
  }
}

TEST(SwitchTransfers, LeaveUntouchedBenchesAsTheyAre) {
  for (const BenchRow& row : BenchRows()) {
    Rig rig(row.bench);
    rig.prompts.AcceptAnyBox();
    rig.ConnectAndReceive();
    EXPECT_EQ(rig.k70.Modify().find("Switch"), std::string::npos) << row.bench;
    rig.k70.Send();
    EXPECT_EQ(OfSwitches(rig.journal.Writes()), Lines{}) << row.bench;
  }
}

// The functions of the second page have no meaning in standard mode, and are sent all the same.
TEST(SwitchTransfers, SendTheSecondPageOfTheHandControllerInStandardModeToo) {
  Rig rig("Quay");
  rig.ConnectAndReceive();
  rig.k70.curTactor.ControlMode = 0;
  rig.k70.curTactor.Func(12, 51);
  rig.k70.Send();
  EXPECT_EQ(OfSwitches(rig.journal.Writes()),
            (Lines{R"(ControllerSettings.SetSwitchFunction(4, "0", "0"))",
                   R"(ControllerSettings.SetSwitchFunction(4, "C", "p"))"}));
}

}  // namespace
}  // namespace mortane::test
