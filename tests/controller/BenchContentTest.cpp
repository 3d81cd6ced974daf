// What the instruments of the named benches hold, in figures of this file: turrets, interlocks,
// switches, drives and the ordinary database.
#include <gtest/gtest.h>

#include "common/Numbers.h"
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
  EXPECT_EQ(CodesOf(SimulatedRig("Relay").root.CondenserDevice().Positions()), "1 2 3 4 5 6 7");
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

std::string LineOf(const ObjectiveData& objective) {
  const auto text = [](double value) { return ShortestGeneral(value, PointFormat()); };
  return std::to_string(objective.code) + " " + objective.name + ": " +
         std::to_string(objective.series) + "/" + std::to_string(objective.type) + " " +
         text(objective.magnification) + " " + text(objective.workingDistance) + " " +
         text(objective.numericalAperture) + " " + std::to_string(objective.adoptive);
}

// Code, name, series and type, magnification, working distance in mm, aperture, condenser.
constexpr const char* kOrdinaryObjectives[] = {
    "1 Plan A 2x: 1/7 2 8.5 0.06 0",
    "2 Plan A 4x: 1/1 4 30 0.1 0",
    "3 Plan A 10x: 1/1 10 10.5 0.25 0",
    "4 Plan A 10x Ph: 1/4 10 10.5 0.25 0",
    "5 Plan A 20x: 1/1 20 1.2 0.4 0",
    "6 Plan A 40x: 1/1 40 0.56 0.65 0",
    "7 Plan A 100x Oil: 1/2 100 0.17 1.25 0",
    "8 Plan F 10x: 2/1 10 16 0.3 0",
    "9 Plan F 20x: 2/6 20 2.1 0.5 0",
    "10 Plan F 40x: 2/6 40 0.66 0.75 0",
    "11 Plan F 60x: 2/1 60 0.35 0.85 0",
    "12 Plan F 100x Oil: 2/2 100 0.16 1.3 0",
    "13 Super C 10x: 3/1 10 4 0.45 0",
    "14 Super C 20x: 3/1 20 1 0.75 0",
    "15 Super C 40x: 3/1 40 0.25 0.95 0",
    "16 Super C 60x W: 3/3 60 0.31 1.2 0",
    "17 Super C 60x Oil: 3/2 60 0.13 1.4 0",
    "18 Super C100x Oil: 3/2 100 0.13 1.45 0",
    "19 Long WD 20x: 4/1 20 8.2 0.45 0",
    "20 Long WD 40x: 4/1 40 3.6 0.6 0",
    "21 Long WD 40x Ph: 4/4 40 2.8 0.6 0",
    "22 Relief 10x: 5/1 10 6.2 0.25 0",
    "23 Relief 20x: 5/1 20 2.3 0.4 0",
    "24 Epi 5x: 6/1 5 23.5 0.15 0",
    "25 Epi 50x: 6/1 50 1 0.8 0",
    "26 Epi 150x: 6/1 150 0.42 0.9 0",
    "241 Clinic 25x: 2/3 25 1.98 0.95 3",
    "242 Loan 63x Oil: 3/2 63 0.19 1.4 5",
};

// Odd in their names, series, order and answers.
constexpr const char* kAwkwardObjectives[] = {
    "3 Series 1 40x: 1/2 40 0.6 0.65 0",
    "1 Series 1 4x: 1/1 4 30 0.1 0",
    "2 A name of thirty characters...: 1/1 10 10.5 0.25 0",
    "4 Blanks behind   : 2/9 20 2.1 0.5 0",
    "5 : 2/3 60 0.35 0.85 0",
    "6 Twin 20x: 3/4 20 1.2 0.4 0",
    "7 Twin 20x: 3/4 20 1.2 0.4 0",
    "8 Lost 50x: 13/1 50 1 0.8 0",
    "9 No series 5x: 0/1 5 23.5 0.15 0",
    "10 Only one 100x: 4/9 100 0.2 1.3 0",
    "11 Only one 100x: 5/9 100 0.2 1.3 0",
    "12 Only one 100x: 6/9 100 0.2 1.3 0",
    "13 Only one 100x: 7/9 100 0.2 1.3 0",
    "14 Only one 100x: 8/9 100 0.2 1.3 0",
    "15 Only one 100x: 9/9 100 0.2 1.3 0",
    "16 Only one 100x: 10/9 100 0.2 1.3 0",
    "240 The last fixed: 10/1 200 40 2 0",
    "30 Out of place: 1/1 10 1 0.3 0",
    "241 Twenty characters ok: 1/1 62.5 12.34 0.999 2",
    "242 -------: 1/1 10 1 0.3 0",
    "243 Twenty-five characters OK: 2/2 123.45 12.345 0.1234 9",
    "244 : 0/0 0 0 0 0",
    "245 ---------------: 0/0 0 0 0 0",
    "246 ----------: 0/0 0 0 0 0",
    "247 Sixteen letters.: 3/1 40 0.6 0.65 3",
    "248 Short answer: 3/1 40 0.6 0.65 3",
    "249 Bad answer: 3/1 40 0.6 0.65 3",
};

template <std::size_t Count>
void ExpectObjectives(const std::vector<ObjectiveData>& objectives,
                      const char* const (&expected)[Count]) {
  ASSERT_GE(objectives.size(), Count);
  for (std::size_t i = 0; i < Count; ++i) EXPECT_EQ(LineOf(objectives[i]), expected[i]);
}

TEST(BenchContent, ObjectivesHaveTheirFigures) {
  const DatabaseData database = OrdinaryDatabase();
  ASSERT_EQ(database.objectives.size(), 35U);
  ExpectObjectives(database.objectives, kOrdinaryObjectives);
  const DatabaseData attic = benches::InstrumentNamed("Attic").database;
  ASSERT_EQ(attic.objectives.size(), 27U);
  ExpectObjectives(attic.objectives, kAwkwardObjectives);
  EXPECT_EQ(attic.objectives[24].answer, "  ONR731190 03C28A3  ");
  EXPECT_EQ(attic.objectives[25].answer, "8A3");
  EXPECT_EQ(attic.objectives[26].answer, "ONR93119003C28Ax");
}

TEST(BenchContent, CondensersOfTheAtticFitTheMultiplesOfTheirNumbers) {
  const DatabaseData attic = benches::InstrumentNamed("Attic").database;
  const char* suits[] = {"1111111111", "1101010101", "1010010010", "1001000100",
                         "1000100001", "1000010000", "1000001000", "1000000100",
                         "1000000010", "1000000001", "1000000000", "1000000000"};
  for (std::size_t i = 0; i < std::size(suits); ++i) {
    EXPECT_EQ(attic.condensers.at(i).suits, suits[i]) << i;
    EXPECT_EQ(attic.condensers.at(i).option, i == 4) << i;
  }
}

TEST(BenchContent, CubesOfTheAtticNameItemsThatAreNotThere) {
  std::string cubes;
  for (const CubeData& cube : benches::InstrumentNamed("Attic").database.cubes) {
    if (cube.exciter == 0) continue;
    Append(cubes, std::to_string(cube.code) + ":" + std::to_string(cube.exciter) + "/" +
                      std::to_string(cube.dichroic) + "/" + std::to_string(cube.barrier));
  }
  EXPECT_EQ(cubes,
            "1:1/1/1 2:1/1/1 3:2/2/300 4:250/3/4 5:3/3/3 241:241/4/5 244:243/242/30 250:1/1/1");
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
