#include "controller/simulator/Benches.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "common/Failure.h"
#include "common/Numbers.h"
#include "common/Text.h"
#include "controller/SimulatedRig.h"
#include "controller/simulator/DatabaseContent.h"
#include "controller/simulator/ObjectiveCode.h"

namespace mortane::controller::test {
namespace {

struct RigRow {
  const char* name;
  const char* units;    // units 1 to 7 that answer
  const char* version;  // of the first of them
  const char* mounted;  // accessories 1 to 14: 0 absent, 1 sensed, 2 controllable
  std::size_t nosepiece, cubes, condensers;
};

constexpr RigRow kRigs[] = {
    {"Quay", "1100100", "vDEMO", "22222222222222", 6, 6, 7},
    {"Harbour", "1000100", "V1.31", "22222222222222", 6, 6, 7},
    {"Lantern", "1000000", "V1.20", "22220222211201", 5, 5, 0},
    {"Hub", "0100100", "V1.30", "22002200022020", 0, 10, 7},
    {"Pair", "1100000", "V1.30", "00001200200102", 7, 7, 5},
    {"Outpost", "0010000", "V1.30", "00000200100200", 6, 6, 0},
    {"Relay", "1010100", "V1.3", "00001000000202", 0, 0, 7},
    {"Deck", "0000010", "V1.30", "00020220200000", 6, 6, 0},
    {"DeckRemote", "0000011", "V1.30", "00020220200000", 6, 6, 0},
    {"Watch", "1000000", "V1.30", "11111111111111", 5, 5, 5},
    {"Shell", "0000000", "", "00000000000000", 0, 0, 0},
    {"Hollow", "1000000", "V1.30", "22222222222220", 0, 0, 0},
    {"Attic", "1000100", "V1.30b", "22222222222222", 10, 10, 10},
};

std::string UnitsOf(const Microscope& root) {
  std::string text;
  for (std::int32_t unit = 1; unit <= 7; ++unit) {
    text += std::to_string(root.ControllerPresent(unit));
  }
  return text;
}

std::string MountedOf(Instrument instrument) {
  std::string text;
  for (int number = 1; number <= accessory::kCount; ++number) {
    const AccessoryData& data = instrument.Accessory(number);
    text += data.state != 1 ? '0' : data.readOnly ? '1' : '2';
  }
  return text;
}

TEST(Benches, HaveTheirUnitsAccessoriesAndTurrets) {
  for (const RigRow& row : kRigs) {
    SimulatedRig rig(row.name);
    EXPECT_EQ(UnitsOf(rig.root), row.units) << row.name;
    EXPECT_EQ(MountedOf(rig.instrument()), row.mounted) << row.name;
    EXPECT_EQ(rig.instrument().nosepiece.size(), row.nosepiece) << row.name;
    EXPECT_EQ(rig.instrument().filterCubes.size(), row.cubes) << row.name;
    EXPECT_EQ(rig.instrument().condensers.size(), row.condensers) << row.name;
    const auto first = std::string_view(row.units).find('1');
    if (first == std::string_view::npos) continue;
    EXPECT_EQ(rig.root.ControllerVersion(static_cast<std::int32_t>(first) + 1), row.version);
  }
}

TEST(Benches, AreTheSimulatorAndOneInstrumentAboveIt) {
  std::vector<std::string> names;
  for (const RigRow& row : kRigs) names.emplace_back(row.name);
  names.emplace_back("Crowd");
  EXPECT_EQ(benches::Names(), names);
  EXPECT_EQ(benches::Named("Quay").instruments, std::vector{benches::InstrumentNamed("Quay")});
  for (const RigRow& row : kRigs) {
    if (std::string_view(row.name) == "Quay") continue;
    EXPECT_EQ(benches::Named(row.name).instruments,
              (std::vector{benches::InstrumentNamed("Quay"), benches::InstrumentNamed(row.name)}));
    EXPECT_FALSE(benches::Named(row.name).fiber.installed) << row.name;
  }
}

TEST(Benches, OfUnknownNamesFail) {
  for (const char* name : {"", "quay", "Quay ", "Nowhere"}) {
    EXPECT_THROW(benches::Named(name), Failure) << name;
    EXPECT_THROW(benches::InstrumentNamed(name), Failure) << name;
  }
  EXPECT_THROW(benches::InstrumentNamed("Crowd"), Failure);
}

TEST(Crowd, ListsNamesOfEveryKind) {
  const std::vector<Instrument> devices = benches::Named("Crowd").instruments;
  struct Row {
    const char* name;
    std::int32_t available;
    const char* like;
  };
  const Row rows[] = {{"Lab 2 East", 1, "Quay"},
                      {"Alpha", 1, "Harbour"},
                      {"Beta", 0, "Harbour"},
                      {"   ", 1, "Lantern"},
                      {"  Gamma  ", 1, "Hub"}};
  ASSERT_EQ(devices.size(), std::size(rows));
  for (std::size_t i = 0; i < devices.size(); ++i) {
    Instrument expected = benches::InstrumentNamed(rows[i].like);
    expected.name = rows[i].name;
    expected.available = rows[i].available;
    EXPECT_EQ(devices[i], expected) << i;
  }
}

TEST(Quay, ShowsEverythingThatASetUpHas) {
  Instrument quay = benches::InstrumentNamed("Quay");
  EXPECT_EQ(quay.name, "Lab 2 East");
  for (const int unit : {1, 2, 5}) EXPECT_EQ(quay.Unit(unit).version, "vDEMO");
  EXPECT_EQ(quay.escapeMode, 3);
  EXPECT_EQ(quay.zDrive.focusCompensation, 3);
  EXPECT_EQ(quay.Interlock(12, 3), 1);
  EXPECT_EQ(quay.xyDrive.focusCompensation, 3);
  EXPECT_EQ(quay.Interlock(14, 3), 1);
  EXPECT_EQ(quay.buzzers.body, 1);
  EXPECT_EQ(quay.buzzers.hub, 1);
  EXPECT_EQ(quay.zDrive.knobAuto, 1);
  EXPECT_EQ(quay.xyDrive.knobAuto, 0);
  EXPECT_EQ(quay.xyDrive.knobSensitivity, 3);
  EXPECT_TRUE(benches::Named("Quay").fiber.open);
}

TEST(Harbour, IsTheMainRoad) {
  Instrument harbour = benches::InstrumentNamed("Harbour");
  EXPECT_EQ(harbour.Unit(5).version, "V1.30");
  EXPECT_EQ(harbour.limitation, 1);
  EXPECT_EQ(harbour.escapeMode, 3);
  EXPECT_EQ(harbour.zDrive.knobAuto, 0);
  EXPECT_EQ(harbour.xyDrive.knobAuto, 0);
  EXPECT_EQ(harbour.switches.remoteLed, 0);
  const std::string keys = "33406D5012BC9A78";
  for (std::size_t i = 0; i < keys.size(); ++i) {
    EXPECT_EQ(harbour.bodySwitches[i], std::string(1, keys[i])) << i;
  }
  EXPECT_EQ(harbour.handSwitches[0], "0");
}

TEST(OtherBenches, HaveWhatTheyAreThereFor) {
  const Instrument lantern = benches::InstrumentNamed("Lantern");
  EXPECT_EQ(lantern.zDrive.lowerLimit, 1);
  EXPECT_EQ(lantern.zDrive.upperLimit, 0);
  EXPECT_EQ(lantern.escapeMode, 1);
  EXPECT_EQ(lantern.zDrive.knobAuto, 0);
  EXPECT_EQ(lantern.zDrive.knobSensitivity, 2);
  const Instrument pair = benches::InstrumentNamed("Pair");
  EXPECT_EQ(pair.buzzers.body, 1);
  EXPECT_EQ(pair.buzzers.hub, 0);
  EXPECT_EQ(pair.xyDrive.knobAuto, 1);
  EXPECT_EQ(benches::InstrumentNamed("Outpost").zDrive.lowerLimit, 0);
  EXPECT_EQ(benches::InstrumentNamed("Deck").buzzers.unit5, 1);
  const Instrument remote = benches::InstrumentNamed("DeckRemote");
  EXPECT_EQ(remote.switches.remote, 1);
  EXPECT_EQ(remote.switches.remoteLed, 2);
}

TEST(Attic, IsOddWhereverItCan) {
  Instrument attic = benches::InstrumentNamed("Attic");
  EXPECT_EQ(attic.limitation, 19);
  EXPECT_EQ(attic.escapeMode, -1);
  for (const int number : {1, 2, 3, 13}) EXPECT_EQ(attic.Accessory(number).offsetCode, 12);
  EXPECT_EQ(attic.handSwitches[0], "2");
  EXPECT_EQ(attic.xyDrive.handleMode, 3);
  EXPECT_EQ(attic.Interlock(12, 3), 1);
  EXPECT_EQ(attic.zDrive.focusCompensation, 2);
  EXPECT_EQ(attic.database.series.size(), 12U);
  EXPECT_EQ(attic.database.types.size(), 9U);
  EXPECT_EQ(attic.database.cubes[1].name, "-------x");
  EXPECT_EQ(attic.database.cubes[2].barrier, 300);
  EXPECT_EQ(attic.database.condensers[2].name, "--");
  const std::set<std::string> functions(attic.bodySwitches.begin(), attic.bodySwitches.end());
  for (const char* odd : {"_", " ", "{", "", "8"}) EXPECT_TRUE(functions.contains(odd)) << odd;
  std::set<std::size_t> lengths;
  for (const ObjectiveData& objective : attic.database.objectives) {
    if (objective.option) lengths.insert(CharacterCount(objective.name));
  }
  for (const std::size_t length : {0U, 7U, 10U, 15U, 16U, 20U, 25U}) {
    EXPECT_TRUE(lengths.contains(length)) << length;
  }
}

// What a set-up program must find unchanged after it has read, shown and compared everything.

template <typename Record>
void ExpectNumbered(const std::vector<Record>& records, std::int32_t firstOption) {
  const auto options = std::find_if(records.begin(), records.end(),
                                    [](const Record& record) { return record.option; });
  std::int32_t code = 0;
  for (auto record = records.begin(); record != options; ++record) {
    EXPECT_EQ(record->code, ++code);
    EXPECT_FALSE(record->name.empty());
  }
  ASSERT_EQ(records.end() - options, 9);
  code = firstOption;
  for (auto record = options; record != records.end(); ++record) {
    EXPECT_EQ(record->code, code++);
    EXPECT_TRUE(record->option);
  }
}

TEST(OrdinaryDatabase, NumbersEveryListFromOneAndItsOptionsBehind) {
  const DatabaseData database = OrdinaryDatabase();
  ExpectNumbered(database.objectives, 241);
  ExpectNumbered(database.condensers, 141);
  ExpectNumbered(database.exciters, 241);
  ExpectNumbered(database.dichroics, 241);
  ExpectNumbered(database.barriers, 241);
  ExpectNumbered(database.cubes, 241);
}

template <typename Record>
void ExpectNames(const std::vector<Record>& records, std::size_t length,
                 const std::string& unused) {
  for (const Record& record : records) {
    EXPECT_LE(CharacterCount(record.name), length) << record.name;
    EXPECT_EQ(Trim(record.name), record.name) << record.name;
    const bool marked = record.name.starts_with("--");
    EXPECT_EQ(marked, record.name == unused) << record.name;
  }
}

TEST(OrdinaryDatabase, NamesFitTheirFields) {
  const DatabaseData database = OrdinaryDatabase();
  ExpectNames(database.objectives, 15, std::string(15, '-'));
  for (const auto* filters : {&database.exciters, &database.dichroics, &database.barriers}) {
    ExpectNames(*filters, 10, std::string(10, '-'));
  }
  ExpectNames(database.condensers, 10, std::string(10, '-'));
  ExpectNames(database.cubes, 10, std::string(10, '-'));
}

TEST(OrdinaryDatabase, ValuesSurviveTheCodeTextAndFiveCharacters) {
  for (const ObjectiveData& objective : OrdinaryDatabase().objectives) {
    ObjectiveData read = objective;
    ASSERT_TRUE(ApplyObjectiveCode(read, ObjectiveCode(objective))) << objective.name;
    EXPECT_EQ(read, objective) << objective.name;
    for (const double value :
         {objective.magnification, objective.workingDistance, objective.numericalAperture}) {
      EXPECT_LE(ShortestGeneral(value, PointFormat()).size(), 5U) << objective.name;
    }
    EXPECT_LE(objective.magnification, 200);
    EXPECT_LE(objective.workingDistance, 40);
    EXPECT_LE(objective.numericalAperture, 2);
  }
}

TEST(OrdinaryDatabase, CodesNameEntriesThatExist) {
  const DatabaseData database = OrdinaryDatabase();
  const auto listed = [](const auto& records, std::int32_t code) {
    return code == 0 || std::any_of(records.begin(), records.end(),
                                    [&](const auto& record) { return record.code == code; });
  };
  for (const ObjectiveData& objective : database.objectives) {
    EXPECT_LE(objective.series, static_cast<std::int32_t>(database.series.size()));
    EXPECT_LE(objective.type, static_cast<std::int32_t>(database.types.size()));
  }
  for (const CubeData& cube : database.cubes) {
    EXPECT_TRUE(listed(database.exciters, cube.exciter)) << cube.name;
    EXPECT_TRUE(listed(database.dichroics, cube.dichroic)) << cube.name;
    EXPECT_TRUE(listed(database.barriers, cube.barrier)) << cube.name;
  }
  for (const RigRow& row : kRigs) {
    const Instrument rig = benches::InstrumentNamed(row.name);
    if (rig.database != database) continue;
    for (const TurretPlace& place : rig.nosepiece) {
      EXPECT_TRUE(listed(database.objectives, place.code)) << row.name << " " << place.code;
    }
    for (const TurretPlace& place : rig.filterCubes) {
      EXPECT_TRUE(listed(database.cubes, place.code)) << row.name << " " << place.code;
    }
  }
}

TEST(OrdinaryDatabase, MountsCondensersWhereTheyFit) {
  for (const RigRow& row : kRigs) {
    const Instrument rig = benches::InstrumentNamed(row.name);
    if (rig.database != OrdinaryDatabase()) continue;
    for (const TurretPlace& place : rig.condensers) {
      const CondenserData& condenser =
          rig.database.condensers.at(static_cast<std::size_t>(place.code) - 1);
      EXPECT_EQ(condenser.suits.at(static_cast<std::size_t>(place.position) - 1), '1')
          << row.name << " " << place.position;
    }
  }
}

}  // namespace
}  // namespace mortane::controller::test
