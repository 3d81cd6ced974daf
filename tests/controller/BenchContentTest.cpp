// What the instruments of the named benches hold, in figures of this file: turrets, interlocks,
// switches, drives and the ordinary database.
#include <gtest/gtest.h>

#include "controller/SimulatedRig.h"
#include "controller/simulator/DatabaseContent.h"

namespace mortane::controller::test {
namespace {

void Append(std::string& text, const std::string& word) {
  text += (text.empty() ? "" : " ") + word;
}

// The codes from address 1 on.
std::string CodesOf(const TurretPositions& positions) {
  std::string text;
  auto places = positions.Enumerate();
  for (std::int32_t address = 1; const auto place = places.Next(); ++address) {
    EXPECT_EQ(place->Position(), address);
    Append(text, std::to_string(place->Code()));
  }
  return text;
}

struct TurretRow {
  const char* name;
  const char* nosepiece;
  const char* cubes;
  const char* condensers;
};

TEST(BenchContent, TurretsHoldTheirCodes) {
  const TurretRow rows[] = {
      {"Quay", "2 5 8 12 15 241", "2 3 4 6 9 1", "1 2 3 9 5 6 7"},
      {"Harbour", "1 4 7 10 14 18", "2 3 5 7 8 1", "1 2 3 4 5 6 7"},
      {"Pair", "1 4 7 10 14 18 20", "2 3 5 7 8 4 1", "1 2 3 4 5"},
      {"Watch", "1 4 7 10 14", "2 3 5 7 1", "1 2 3 4 5"},
      {"Attic", "7 2 4 8 9 5 240 241 247 242", "3 4 5 6 241 244 0 1 2 3",
       "1 3 5 12 141 142 0 2 4 6"},
  };
  for (const TurretRow& row : rows) {
    const SimulatedRig rig(row.name);
    EXPECT_EQ(CodesOf(rig.root.NosepieceDevice().Positions()), row.nosepiece) << row.name;
    EXPECT_EQ(CodesOf(rig.root.FilterCubeDevice().Positions()), row.cubes) << row.name;
    EXPECT_EQ(CodesOf(rig.root.CondenserDevice().Positions()), row.condensers) << row.name;
  }
  for (const char* name : {"Outpost", "Deck", "DeckRemote"}) {
    const SimulatedRig rig(name);
    EXPECT_EQ(CodesOf(rig.root.NosepieceDevice().Positions()), "1 4 7 10 14 18") << name;
    EXPECT_EQ(CodesOf(rig.root.FilterCubeDevice().Positions()), "2 3 5 7 8 1") << name;
  }
  const SimulatedRig lantern("Lantern");
  EXPECT_EQ(CodesOf(lantern.root.NosepieceDevice().Positions()), "1 4 7 10 14");
  EXPECT_EQ(CodesOf(lantern.root.FilterCubeDevice().Positions()), "2 3 5 7 1");
  const SimulatedRig hub("Hub");
  EXPECT_EQ(CodesOf(hub.root.FilterCubeDevice().Positions()), "2 3 4 5 6 7 8 9 10 1");
  EXPECT_EQ(CodesOf(hub.root.CondenserDevice().Positions()), "1 2 3 4 5 6 7");
}

// "12/3" for item 12 by trigger 3.
std::string InterlocksOf(const Microscope& root) {
  std::string text;
  for (std::int32_t item = 1; item <= 14; ++item) {
    for (std::int32_t by = 1; by <= 4; ++by) {
      if (root.ControllerSettings().Interlock(item, by) == 0) continue;
      Append(text, std::to_string(item) + "/" + std::to_string(by));
    }
  }
  return text;
}

TEST(BenchContent, InterlocksAreSetOnThreeBenches) {
  for (const char* name : {"Quay", "Harbour"}) {
    EXPECT_EQ(InterlocksOf(SimulatedRig(name).root), "1/3 2/2 3/3 4/1 5/1 6/1 12/3 13/4 14/3");
  }
  EXPECT_EQ(InterlocksOf(SimulatedRig("Attic").root), "12/3");
  for (const char* name : {"Lantern", "Hub", "Pair", "Outpost", "Relay", "Deck", "DeckRemote",
                           "Watch", "Shell", "Hollow"}) {
    EXPECT_EQ(InterlocksOf(SimulatedRig(name).root), "") << name;
  }
}

std::string KeysOf(const Microscope& root, std::int32_t unit, std::string_view digits) {
  std::string keys;
  for (const char digit : digits)
    keys += root.ControllerSettings().SwitchFunction(unit, std::string(1, digit));
  return keys;
}

struct SwitchRow {
  const char* name;
  const char* body;
  const char* hand;
};

TEST(BenchContent, SwitchesHaveTheirFunctions) {
  for (const SwitchRow& row : {SwitchRow{"Quay", "OP406D5012BC9A78", "1124PQ5DBCfghij"},
                               SwitchRow{"Harbour", "33406D5012BC9A78", "0123P4Q5EF00000"},
                               SwitchRow{"Relay", "33406D5012BC9A78", "0123P4Q5EF00000"}}) {
    const SimulatedRig rig(row.name);
    EXPECT_EQ(KeysOf(rig.root, 0, "123456789ABCDEFG"), row.body) << row.name;
    EXPECT_EQ(KeysOf(rig.root, 4, "0123456789ABCDE"), row.hand) << row.name;
  }
  EXPECT_EQ(KeysOf(SimulatedRig("Hub").root, 4, "0123456789ABCDE"), "0BCKL6ODMN00000");
  for (const char* name : {"Lantern", "Pair", "Watch", "Hollow"}) {
    EXPECT_EQ(KeysOf(SimulatedRig(name).root, 0, "123456789ABCDEFG"), "33406D5012BC9A78") << name;
  }
}

TEST(BenchContent, DrivesStandAndAreCompensated) {
  const SimulatedRig quay("Quay");
  EXPECT_EQ(quay.root.ZDriveDevice().Position().Number(), 12000);
  EXPECT_EQ(quay.root.XYDriveDevice().PositionX().Number(), 41500);
  EXPECT_EQ(quay.root.XYDriveDevice().PositionY().Number(), -26800);
  for (const char* name : {"Quay", "Harbour"}) {
    const SimulatedRig rig(name);
    EXPECT_EQ(rig.root.ZDriveDevice().FocusCompensation(), 3) << name;
    EXPECT_EQ(rig.root.XYDriveDevice().FocusCompensation(), 3) << name;
    EXPECT_EQ(rig.root.NDFilterDevice().OffsetCode(), 5) << name;
    EXPECT_EQ(rig.root.FieldStopDevice().OffsetCode(), 0) << name;
  }
}

struct ObjectiveLine {
  std::int32_t code;
  const char* name;
  std::int32_t series;
  std::int32_t type;
  double magnification;
  double workingDistance;
  double aperture;
};

// One of each series, and the two that users named.
TEST(BenchContent, ObjectivesHaveTheirFigures) {
  const DatabaseData database = OrdinaryDatabase();
  ASSERT_EQ(database.objectives.size(), 35U);
  for (const ObjectiveLine& line : {ObjectiveLine{1, "Plan A 2x", 1, 7, 2, 8.5, 0.06},
                                    ObjectiveLine{10, "Plan F 40x", 2, 6, 40, 0.66, 0.75},
                                    ObjectiveLine{16, "Super C 60x W", 3, 3, 60, 0.31, 1.2},
                                    ObjectiveLine{20, "Long WD 40x", 4, 1, 40, 3.6, 0.6},
                                    ObjectiveLine{22, "Relief 10x", 5, 1, 10, 6.2, 0.25},
                                    ObjectiveLine{26, "Epi 150x", 6, 1, 150, 0.42, 0.9},
                                    ObjectiveLine{241, "Clinic 25x", 2, 3, 25, 1.98, 0.95},
                                    ObjectiveLine{242, "Loan 63x Oil", 3, 2, 63, 0.19, 1.4}}) {
    const std::size_t place = line.code < 241 ? static_cast<std::size_t>(line.code) - 1
                                              : static_cast<std::size_t>(line.code) - 241 + 26;
    const ObjectiveData& objective = database.objectives.at(place);
    EXPECT_EQ(objective.code, line.code);
    EXPECT_EQ(objective.name, line.name);
    EXPECT_EQ(objective.series, line.series) << line.name;
    EXPECT_EQ(objective.type, line.type) << line.name;
    EXPECT_EQ(objective.magnification, line.magnification) << line.name;
    EXPECT_EQ(objective.workingDistance, line.workingDistance) << line.name;
    EXPECT_EQ(objective.numericalAperture, line.aperture) << line.name;
  }
}

template <typename Record>
std::string NamesOf(const std::vector<Record>& records) {
  std::string names;
  for (const Record& record : records) {
    if (record.name.starts_with("---")) continue;
    names += (names.empty() ? "" : ", ") + record.name;
  }
  return names;
}

TEST(BenchContent, ListsHaveTheirNames) {
  const DatabaseData database = OrdinaryDatabase();
  EXPECT_EQ(NamesOf(database.series), "Plan A, Plan F, Super C, Long WD, Relief, Epi");
  EXPECT_EQ(NamesOf(database.types), "Dry, Oil, Water, Phase, Phase Oil, DIC, Macro");
  EXPECT_EQ(NamesOf(database.condensers),
            "Bright, Ph 1, Ph 2, Darkfield, DIC L, DIC M, DIC H, Polar, Ph 3, Slit");
  EXPECT_EQ(NamesOf(database.exciters),
            "340/26, 365/10, 380/14, 405/20, 436/20, 470/40, 480/30, 500/24, 545/25, 560/40, "
            "620/60, 387/11, 488/6");
  EXPECT_EQ(NamesOf(database.dichroics),
            "DM 400, DM 430, DM 455, DM 495, DM 505, DM 515, DM 565, DM 595, DM 660, DM 409");
  EXPECT_EQ(NamesOf(database.barriers),
            "LP 420, 460/50, 480/40, LP 515, 525/50, 535/45, LP 590, 605/70, 630/75, 700/75, "
            "LP 665, Quad");
  std::string cubes;
  for (const CubeData& cube : database.cubes) {
    if (cube.exciter == 0) continue;
    Append(cubes, cube.name + " " + std::to_string(cube.exciter) + "/" +
                      std::to_string(cube.dichroic) + "/" + std::to_string(cube.barrier));
  }
  EXPECT_EQ(cubes,
            "UV Blue 2/1/2 Violet 4/2/3 Cyan 5/3/3 Green 6/4/5 Green LP 7/5/4 Yellow 8/6/6 "
            "Orange 9/7/8 Red 10/8/9 Far red 11/9/10 Ratio 241/4/5");
}

TEST(BenchContent, CondensersFitTheirAddresses) {
  const DatabaseData database = OrdinaryDatabase();
  const char* suits[] = {"1111111111", "1111111000", "1111111000", "0001100111", "0000111111",
                         "0000111111", "0000111111", "1100000000", "1111111000"};
  for (std::size_t i = 0; i < std::size(suits); ++i) {
    EXPECT_EQ(database.condensers.at(i).suits, suits[i]) << i;
  }
}

}  // namespace
}  // namespace mortane::controller::test
