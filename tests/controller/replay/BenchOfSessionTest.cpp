// A bench that is made of a session's journal answers as the session was answered.
#include "controller/simulator/BenchOfSession.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "common/Failure.h"
#include "controller/replay/ProgramSession.h"
#include "controller/replay/ReplayedLibrary.h"
#include "controller/simulator/BenchFile.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

using namespace controller;

SessionBench MadeOf(const std::string& journal) {
  JournalReader reader(journal);
  return BenchOfSession(reader);
}

// The answers of a session without its times and numbers.
std::vector<SessionLine> LinesOf(const std::string& journal) {
  std::vector<SessionLine> lines;
  JournalReader reader(journal);
  while (auto line = reader.Next()) lines.push_back(std::move(*line));
  return lines;
}

class BenchesOfSessions : public testing::TestWithParam<std::string> {
 protected:
  TempFolder folder_;
  std::string journal_ = folder_.Path("journal.txt");
};

TEST_P(BenchesOfSessions, AnswerTheSameSessionAlike) {
  const ProgramSession recorded = RecordOn(benches::Named(GetParam()), journal_);
  const std::string file = folder_.Path("bench.xml");
  WriteBenchFile(file, MadeOf(journal_).bench);
  const std::string again = folder_.Path("again.txt");
  const ProgramSession made = RecordOn(ReadBenchFile(file), again);
  const std::vector<SessionLine> before = LinesOf(journal_);
  const std::vector<SessionLine> after = LinesOf(again);
  for (std::size_t i = 0; i < std::min(before.size(), after.size()); ++i) {
    ASSERT_EQ(after[i].call, before[i].call);
    ASSERT_EQ(after[i].result, before[i].result) << before[i].call;
    ASSERT_EQ(after[i].failure, before[i].failure) << before[i].call;
  }
  EXPECT_EQ(after.size(), before.size());
  EXPECT_EQ(made, recorded);
}

INSTANTIATE_TEST_SUITE_P(All, BenchesOfSessions, testing::ValuesIn(benches::Names()));

// Lines behind the first one of a session, as a journal has them.
class FewLines : public testing::Test {
 protected:
  SessionBench Made(const std::vector<std::string>& calls) {
    std::string text = FormatSessionHeader({}) + "\n";
    for (const std::string& call : calls) text += "0.1 0.1 " + call + "\n";
    return MadeOf(folder_.Write("journal.txt", text));
  }
  // On device 1, connected.
  SessionBench MadeConnected(std::vector<std::string> calls) {
    calls.insert(calls.begin(),
                 {"#2 get DeviceList.Count -> 2", "#3 get DeviceList.Item(1).Name -> \"Room 12\"",
                  "#3 call DeviceList.Item(1).Connect()"});
    return Made(calls);
  }

  TempFolder folder_;
};

bool Has(const SessionBench& made, const std::string& line) {
  return std::find(made.defaults.begin(), made.defaults.end(), line) != made.defaults.end();
}

TEST_F(FewLines, WhatIsNotToldHasItsDefaultAndIsListed) {
  const SessionBench made = MadeConnected({"#1 get ControllerPresent(1) -> 1",
                                           "#5 get NosepieceDevice.AccessoryState.State -> 1",
                                           "#5 get NosepieceDevice.Positions.Count -> 3",
                                           "#5 get NosepieceDevice.Positions(2).Code -> 14"});
  Bench bench;
  bench.instruments.resize(2);
  bench.instruments[1].name = "Room 12";
  bench.instruments[1].Unit(1).present = 1;
  bench.instruments[1].Accessory(accessory::kNosepiece).state = 1;
  bench.instruments[1].nosepiece = {{}, {0, 14}, {}};
  EXPECT_EQ(made.bench, bench);
  for (const char* text :
       {"ControllerPresent: 6 of 7", "ControllerVersion", "NosepieceDevice.Limitation",
        "NosepieceDevice.Position", "NosepieceDevice.Positions.Code: 2 of 3",
        "NosepieceDevice.Positions.Position: 3 of 3", "ControllerSettings.Interlock: 56 of 56",
        "CondenserDevice.AccessoryState.State"}) {
    EXPECT_TRUE(Has(made, std::string("device 1 \"Room 12\": ") + text)) << text;
  }
  EXPECT_FALSE(Has(made, "device 1 \"Room 12\": CondenserDevice.Position"));
  EXPECT_FALSE(Has(made, "device 1 \"Room 12\": CondenserDevice.Positions.Code"));
  EXPECT_FALSE(Has(made, "device 1 \"Room 12\": CondenserDevice.Positions.Position"));
  EXPECT_TRUE(Has(made, "device 0 \"\": its name"));
  EXPECT_TRUE(Has(made, "device 0 \"\": everything but its name: it was not connected"));
}

TEST_F(FewLines, OfADriveThatIsFittedNoAnswerTellsItsSpeed) {
  const std::string device = "device 1 \"Room 12\": ";
  const std::string z = device + "ZDriveDevice: speed, travel, MoveProfile and MoveOption";
  const std::string xy = device + "XYDriveDevice: speed, travel and MoveProfile";
  const SessionBench focus = MadeConnected({"#5 get ZDriveDevice.AccessoryState.State -> 1"});
  EXPECT_TRUE(Has(focus, z));
  EXPECT_FALSE(Has(focus, xy));
  const SessionBench stage = MadeConnected({"#5 get XYDriveDevice.AccessoryState.State -> 1"});
  EXPECT_FALSE(Has(stage, z));
  EXPECT_TRUE(Has(stage, xy));
}

struct DatabaseCount {
  const char* member;
  std::size_t (*size)(const DatabaseData& database);
};

// Also where no entry tells anything of itself.
TEST_F(FewLines, ADatabaseHasAsManyEntriesAsItsCountsTell) {
  const std::vector<DatabaseCount> rows{
      {"Nosepieces.Count", [](const DatabaseData& database) { return database.objectives.size(); }},
      {"Condensers.Count", [](const DatabaseData& database) { return database.condensers.size(); }},
      {"Exciters.Count", [](const DatabaseData& database) { return database.exciters.size(); }},
      {"Dichroics.Count", [](const DatabaseData& database) { return database.dichroics.size(); }},
      {"Barriers.Count", [](const DatabaseData& database) { return database.barriers.size(); }},
      {"FilterCubes.Count", [](const DatabaseData& database) { return database.cubes.size(); }},
      {"ObjectiveSeriesCount", [](const DatabaseData& database) { return database.series.size(); }},
      {"ObjectiveTypeCount", [](const DatabaseData& database) { return database.types.size(); }},
  };
  std::vector<std::string> calls;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    calls.push_back("#6 get AccessoryDatabase." + std::string(rows[i].member) + " -> " +
                    std::to_string(i + 2));
  }
  const SessionBench made = MadeConnected(calls);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i].size(made.bench.instruments[1].database), i + 2) << rows[i].member;
  }
}

TEST_F(FewLines, ACondenserFitsSomeOfTenAddresses) {
  const std::string condensers = "#6 get AccessoryDatabase.Condensers.";
  const SessionBench made = MadeConnected(
      {condensers + "Count -> 2", condensers + "Item(1).SuitsAddress(10) -> 1",
       condensers + "Item(2).SuitsAddress(0) -> 1", condensers + "Item(2).SuitsAddress(11) -> 1"});
  const std::vector<CondenserData>& records = made.bench.instruments[1].database.condensers;
  ASSERT_EQ(records.size(), 2U);
  EXPECT_EQ(records[0].suits, "0000000001");
  EXPECT_EQ(records[1].suits, "");
  EXPECT_TRUE(
      Has(made, "device 1 \"Room 12\": AccessoryDatabase.Condensers.Item.SuitsAddress: 19 of 20"));
}

TEST_F(FewLines, ACountThatIsNoNumberIsNotTold) {
  const SessionBench made = MadeConnected({"#5 get NosepieceDevice.AccessoryState.State -> 1",
                                           "#5 get NosepieceDevice.Positions.Count -> \"three\""});
  EXPECT_TRUE(made.bench.instruments[1].nosepiece.empty());
  EXPECT_TRUE(Has(made, "device 1 \"Room 12\": NosepieceDevice.Positions.Count"));
}

struct CodeRow {
  const char* answer;
  std::int32_t adoptive;
};

TEST_F(FewLines, TheLastDigitOfAnObjectivesCodeIsItsCondenser) {
  for (const CodeRow& row : {CodeRow{"ONR11230FA0C63B60", 0}, CodeRow{"ONR11230FA0C63B69", 9},
                             CodeRow{"ONR11230FA0C63B6/", 0}, CodeRow{"ONR11230FA0C63B6:", 0},
                             CodeRow{"ONR11230FA0C63B6A", 0}}) {
    const SessionBench made =
        MadeConnected({"#6 get AccessoryDatabase.Nosepieces.Item(1).Code -> 241",
                       std::string("#1 call QueryCommand(\"rONR1\") -> \"") + row.answer + "\""});
    const ObjectiveData& objective = made.bench.instruments[1].database.objectives.at(0);
    EXPECT_EQ(objective.adoptive, row.adoptive) << row.answer;
    EXPECT_EQ(objective.answer, row.answer);
  }
}

TEST_F(FewLines, OfEachThingTheFirstAnswerCounts) {
  const SessionBench made = MadeConnected(
      {"#7 get ControllerSettings.EscapeMode -> 2", "#7 put ControllerSettings.EscapeMode = 3",
       "#7 get ControllerSettings.EscapeMode -> 3", "#3 get DeviceList.Item(1).Name -> \"Other\""});
  EXPECT_EQ(made.bench.instruments[1].escapeMode, 2);
  EXPECT_EQ(made.bench.instruments[1].name, "Room 12");
}

TEST_F(FewLines, AnswersBelongToTheDeviceThatIsConnected) {
  const SessionBench made = MadeConnected(
      {"#7 get ControllerSettings.EscapeMode -> 2", "#3 call DeviceList.Item(1).Disconnect()",
       "#7 get ControllerSettings.EscapeMode -> 3", "#3 call DeviceList.Item(0).Connect()",
       "#7 get ControllerSettings.EscapeMode -> 1"});
  EXPECT_EQ(made.bench.instruments[0].escapeMode, 1);
  EXPECT_EQ(made.bench.instruments[1].escapeMode, 2);
}

TEST_F(FewLines, AvailabilityCountsWhileTheDeviceIsNotConnected) {
  const SessionBench made = MadeConnected(
      {"#3 get DeviceList.Item(1).IsAvailable -> 0", "#3 get DeviceList.Item(0).IsAvailable -> 0"});
  EXPECT_EQ(made.bench.instruments[0].available, 0);
  EXPECT_EQ(made.bench.instruments[1].available, 1);
  EXPECT_TRUE(made.bench.instruments[1].busyWhenConnected);
}

TEST_F(FewLines, ALibraryMayAnswerNumbersInPlaceOfStateValuesAndOtherKindsOfNumbers) {
  SessionBench made = MadeConnected(
      {"#5 get ZDriveDevice.Position -> 12.0", "#5 get XYDriveDevice.HandleMode -> 1",
       "#5 get LampDevice.Voltage -> int16(3)", "#5 number NosepieceDevice.Position -> 4"});
  EXPECT_EQ(made.bench.instruments[1].zDrive.position, 12);
  EXPECT_EQ(made.bench.instruments[1].xyDrive.handleMode, 1);
  EXPECT_EQ(made.bench.instruments[1].Accessory(accessory::kDiaLamp).value, 3);
  EXPECT_EQ(made.bench.instruments[1].Accessory(accessory::kNosepiece).value, 4);
}

TEST_F(FewLines, ANumberOfSixteenBitsIsTakenUpToItsEnds) {
  for (const int number : {-32768, 32767}) {
    const SessionBench made =
        MadeConnected({"#5 get XYDriveDevice.HandleMode -> " + std::to_string(number)});
    EXPECT_EQ(made.bench.instruments[1].xyDrive.handleMode, number);
  }
  for (const int number : {-32769, 32768}) {
    const SessionBench made =
        MadeConnected({"#5 get XYDriveDevice.HandleMode -> " + std::to_string(number)});
    EXPECT_EQ(made.bench.instruments[1].xyDrive.handleMode, 0);
  }
  const SessionBench made = MadeConnected({"#5 get XYDriveDevice.AccessoryState.State -> 1",
                                           "#5 get XYDriveDevice.HandleMode -> 32768"});
  EXPECT_TRUE(Has(made, "device 1 \"Room 12\": XYDriveDevice.HandleMode"));
}

TEST_F(FewLines, OtherQueriesTellNothingOfObjectives) {
  const SessionBench made = MadeConnected(
      {"#6 get AccessoryDatabase.Nosepieces.Item(1).Code -> 241",
       "#1 call QueryCommand(\"r\") -> \"ONR19\"", "#1 call QueryCommand(\"rVER1\") -> \"ONR19\""});
  EXPECT_EQ(made.bench.instruments[1].database.objectives.at(0).adoptive, 0);
  EXPECT_FALSE(made.bench.instruments[1].database.objectives.at(0).answer.has_value());
}

TEST_F(FewLines, TheFirstAnswerOfAvailabilityCounts) {
  const SessionBench made = MadeConnected({"#3 get DeviceList.Item(0).IsAvailable -> 0",
                                           "#3 get DeviceList.Item(0).IsAvailable -> 1",
                                           "#3 get DeviceList.Item(0).IsAvailable -> 3"});
  EXPECT_EQ(made.bench.instruments[0].available, 0);
}

TEST_F(FewLines, TheFiberServerIsKnownByWhatItDoes) {
  EXPECT_FALSE(Made({"#2 get DeviceList.Count -> 1"}).bench.fiber.installed);
  const Bench open = Made({"#2 get DeviceList.Count -> 1", "#0 create Create(FiberServer) -> #3",
                           "#3 get IsOpen -> true", "#3 get Status -> 1", "#4 get LED -> int16(2)"})
                         .bench;
  EXPECT_TRUE(open.fiber.installed && open.fiber.open && open.fiber.opens);
  EXPECT_EQ(open.fiber.status, 1);
  EXPECT_EQ(open.fiber.led, 2);
  const Bench raises = Made({"#2 get DeviceList.Count -> 1", "#0 create Create(FiberServer) -> #3",
                             "#3 get IsOpen -> false", R"(#3 call Open(0) ! "F" 5 "no")"})
                           .bench;
  EXPECT_FALSE(raises.fiber.opens);
  EXPECT_TRUE(raises.fiber.openRaises);
  const Bench silent = Made({"#2 get DeviceList.Count -> 1", "#0 create Create(FiberServer) -> #3",
                             "#3 get IsOpen -> false", "#3 call Open(0)", "#3 get IsOpen -> false"})
                           .bench;
  EXPECT_FALSE(silent.fiber.opens || silent.fiber.openRaises);
}

// Whatever the answers are, the bench is one that a file can hold.
TEST_F(FewLines, OddAnswersMakeNoOddBench) {
  const SessionBench made =
      MadeConnected({"#1 get ControllerPresent(9) -> 1",
                     "#1 get ControllerPresent(\"a\") -> 1",
                     "#1 get ControllerPresent -> 1",
                     "#1 get ControllerPresent(1) -> \"yes\"",
                     "#5 get NosepieceDevice.Positions.Count -> 2000000000",
                     "#5 get NosepieceDevice.Positions(0).Code -> 1",
                     "#5 get NosepieceDevice.Positions(99999).Code -> 1",
                     "#5 get NosepieceDevice.Positions.Code -> 1",
                     "#5 get ZDriveDevice.Position -> 1e300",
                     "#5 get LampDevice.Voltage -> inf",
                     "#5 get XYDriveDevice.HandleMode -> 70000",
                     "#6 get AccessoryDatabase.Condensers.Item(1).SuitsAddress(11) -> 1",
                     "#6 get AccessoryDatabase.Condensers.Item(2).SuitsAddress(3) -> 7",
                     "#7 get ControllerSettings.Interlock(15, 1) -> 1",
                     "#7 get ControllerSettings.SwitchFunction(4, \"long\") -> \"1\"",
                     "#1 call QueryCommand(\"rONRx\") -> \"?\"",
                     "#1 call QueryCommand(\"rONR1\") -> \"\"",
                     "#2 get DeviceList.Item(-1).Name -> \"a\"",
                     "#2 get DeviceList.Item(5000).Name -> \"a\"",
                     "#2 get DeviceList.Item(0).Name -> \"a name that is too long for a system\"",
                     "#2 get DeviceList.Count -> -7",
                     "#2 get DeviceList.Item -> 1",
                     "#2 call DeviceList.Item(70000).Connect()"});
  const std::string file = folder_.Path("bench.xml");
  WriteBenchFile(file, made.bench);
  EXPECT_EQ(ReadBenchFile(file), made.bench);
  EXPECT_EQ(made.bench.instruments.size(), 2U);
  EXPECT_EQ(made.bench.instruments[0].name, "a name that is ");
  EXPECT_EQ(made.bench.instruments[1].database.condensers[1].suits, "001");
}

TEST_F(FewLines, ASessionWithoutADeviceIsRefused) {
  EXPECT_THROW(Made({"#0 create Create(Microscope) -> #1"}), Failure);
}

}  // namespace
}  // namespace mortane::test
