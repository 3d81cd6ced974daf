#include <gtest/gtest.h>

#include "common/Failure.h"
#include "controller/ControllerError.h"
#include "controller/SimulatedRig.h"

namespace mortane::controller::test {
namespace {

std::vector<TurretPlace> Enumerated(const TurretDevice& turret) {
  std::vector<TurretPlace> places;
  const TurretEnumerator enumerator = turret.Positions().Enumerate();
  while (const auto item = enumerator.Next()) places.push_back({item->Position(), item->Code()});
  return places;
}

struct AccessoryRow {
  const char* device;
  const char* state;
  int number;
};

constexpr AccessoryRow kAccessories[] = {
    {"AnalyzerDevice", "Position", 8},  {"ApertureStopDevice", "Position", 3},
    {"CondenserDevice", "Position", 5}, {"EpiFieldStopDevice", "Position", 13},
    {"ShutterDevice", "Position", 7},   {"FilterCubeDevice", "Position", 6},
    {"FieldStopDevice", "Position", 2}, {"LampDevice", "Voltage", 4},
    {"LightPathDevice", "Path", 11},    {"NDFilterDevice", "Position", 1},
    {"NosepieceDevice", "Position", 9}, {"ZoomDevice", "Magnification", 10},
    {"ZDriveDevice", "Position", 12},   {"XYDriveDevice", "PositionX", 14},
};

TEST(Accessories, TellTheirStateAndWhetherTheyCanBeCommanded) {
  for (const AccessoryRow& row : kAccessories) {
    SimulatedRig rig("Quay");
    const AccessoryDevice device = rig.root.Accessory(row.device);
    EXPECT_EQ(device.AccessoryState().State(), 1) << row.device;
    EXPECT_FALSE(device.StateMember(row.state).IsReadOnly()) << row.device;
    rig.instrument().Accessory(row.number).readOnly = true;
    EXPECT_TRUE(device.StateMember(row.state).IsReadOnly()) << row.device;
    rig.instrument().Accessory(row.number).state = 2;
    EXPECT_EQ(device.AccessoryState().State(), 2) << row.device;
  }
}

TEST(Accessories, ThatAreNotFittedTellOnlyThat) {
  for (const AccessoryRow& row : kAccessories) {
    SimulatedRig rig("Quay");
    rig.instrument().Accessory(row.number).state = 0;
    const AccessoryDevice device = rig.root.Accessory(row.device);
    EXPECT_EQ(device.AccessoryState().State(), 0) << row.device;
    EXPECT_THROW(device.StateMember(row.state), ControllerError) << row.device;
  }
}

TEST(Accessories, GiveAStateThatIsANumber) {
  SimulatedRig rig("Quay");
  rig.instrument().Accessory(accessory::kDiaLamp).value = 7.25;
  EXPECT_EQ(rig.root.LampDevice().Voltage().Real(), 7.25);
  rig.instrument().Accessory(accessory::kLightPath).value = 3;
  EXPECT_EQ(rig.root.LightPathDevice().Path().Number(), 3);
  EXPECT_EQ(rig.root.ZoomDevice().Magnification().Real(), 1.5);
}

TEST(Accessories, KeepTheNumberThatWasAnsweredWhenTheStateChangesLater) {
  SimulatedRig rig("Quay");
  const StateValue before = rig.root.NosepieceDevice().Position();
  rig.root.NosepieceDevice().PutPosition(4);
  EXPECT_EQ(before.Number(), 1);
  EXPECT_EQ(rig.root.NosepieceDevice().Position().Number(), 4);
}

TEST(Accessories, ThatAreOnlySensedRefuseACommand) {
  SimulatedRig rig("Watch");
  EXPECT_THROW(rig.root.AnalyzerDevice().PutPosition(2), ControllerError);
  EXPECT_THROW(rig.root.NosepieceDevice().PutPosition(2), ControllerError);
  EXPECT_THROW(rig.root.NosepieceDevice().BeginPositioning(), ControllerError);
  EXPECT_THROW(rig.root.ZDriveDevice().PutPosition(2), ControllerError);
  EXPECT_EQ(rig.instrument(), benches::InstrumentNamed("Watch"));
}

TEST(OffsetDevices, KeepACodeEach) {
  SimulatedRig rig("Harbour");
  const auto devices = [&] {
    return std::array{rig.root.NDFilterDevice(), rig.root.FieldStopDevice(),
                      rig.root.ApertureStopDevice(), rig.root.EpiFieldStopDevice()};
  };
  std::int32_t code = 6;
  for (const OffsetDevice& device : devices()) device.PutOffsetCode(code++);
  code = 6;
  for (const OffsetDevice& device : devices()) EXPECT_EQ(device.OffsetCode(), code++);
  EXPECT_EQ(rig.instrument().Accessory(accessory::kEpiFieldStop).offsetCode, 9);
  EXPECT_THROW(rig.root.Accessory("AnalyzerDevice").Object()->Get("OffsetCode"), ControllerError);
}

TEST(Turrets, CountAndEnumerateTheirPlacesInOrder) {
  SimulatedRig rig("Harbour");
  EXPECT_EQ(rig.root.NosepieceDevice().Positions().Count(), 6);
  EXPECT_EQ(rig.root.FilterCubeDevice().Positions().Count(), 6);
  EXPECT_EQ(rig.root.CondenserDevice().Positions().Count(), 7);
  EXPECT_EQ(Enumerated(rig.root.NosepieceDevice()), rig.instrument().nosepiece);
  EXPECT_EQ(Enumerated(rig.root.FilterCubeDevice()), rig.instrument().filterCubes);
  EXPECT_EQ(Enumerated(rig.root.CondenserDevice()), rig.instrument().condensers);
}

TEST(Turrets, AreKnownByTheirAccessoryNumbersToo) {
  SimulatedRig rig("Harbour");
  EXPECT_EQ(Enumerated(rig.root.Turret(accessory::kNosepiece)), rig.instrument().nosepiece);
  EXPECT_EQ(Enumerated(rig.root.Turret(accessory::kFilterCube)), rig.instrument().filterCubes);
  EXPECT_EQ(Enumerated(rig.root.Turret(accessory::kCondenser)), rig.instrument().condensers);
  for (const std::int32_t number : {0, 1, 14, 15}) {
    try {
      rig.root.Turret(number);
      FAIL() << number;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number(), kSubscriptError);
      EXPECT_EQ(failure.Description(), "Accessory " + std::to_string(number) + " is no turret.");
    }
  }
}

TEST(Turrets, EnumeratePlacesThatAreNumberedOddly) {
  SimulatedRig rig("Harbour");
  const TurretPlaces odd{{0, 1}, {11, 250}, {1, -5}};
  rig.instrument().nosepiece = odd;
  EXPECT_EQ(Enumerated(rig.root.NosepieceDevice()), odd);
}

TEST(Turrets, WithoutPlacesEndAnEnumerationAtOnce) {
  SimulatedRig rig("Hollow");
  EXPECT_EQ(rig.root.CondenserDevice().Positions().Count(), 0);
  EXPECT_TRUE(Enumerated(rig.root.CondenserDevice()).empty());
}

TEST(Turrets, ThatAreNotFittedNeitherCountNorEnumerate) {
  SimulatedRig rig("Shell");
  const TurretPositions positions = rig.root.NosepieceDevice().Positions();
  EXPECT_THROW(positions.Count(), ControllerError);
  EXPECT_THROW(positions.Enumerate().Next(), ControllerError);
}

TEST(Turrets, KeepSeveralEnumeratorsApart) {
  SimulatedRig rig("Harbour");
  const TurretPositions positions = rig.root.NosepieceDevice().Positions();
  const TurretEnumerator first = positions.Enumerate();
  first.Next();
  const TurretEnumerator second = positions.Enumerate();
  EXPECT_EQ(first.Next()->Position(), 2);
  EXPECT_EQ(second.Next()->Position(), 1);
}

TEST(Turrets, TakeANewCodeAtOnePlaceOnly) {
  SimulatedRig rig("Harbour");
  TurretPlaces expected = rig.instrument().condensers;
  const TurretEnumerator enumerator = rig.root.CondenserDevice().Positions().Enumerate();
  enumerator.Next();
  enumerator.Next()->PutCode(145);
  expected[1].code = 145;
  EXPECT_EQ(rig.instrument().condensers, expected);
}

TEST(Turrets, TurnToTheirOwnAddressesOnly) {
  SimulatedRig rig("Harbour");
  const NosepieceDevice nosepiece = rig.root.NosepieceDevice();
  nosepiece.BeginPositioning();
  nosepiece.PutPosition(6);
  EXPECT_EQ(nosepiece.Position().Number(), 6);
  for (const std::int32_t address : {-1, 0, 7}) {
    EXPECT_THROW(nosepiece.PutPosition(address), ControllerError) << address;
  }
  EXPECT_EQ(nosepiece.Position().Number(), 6);
}

TEST(Turrets, CanStandAtNoAddress) {
  SimulatedRig rig("Harbour");
  for (const int position : {0, 8}) {
    rig.instrument().Accessory(accessory::kNosepiece).value = position;
    EXPECT_EQ(rig.root.NosepieceDevice().Position().Number(), position);
  }
}

TEST(Nosepiece, KeepsAnyLimitationCode) {
  SimulatedRig rig("Harbour");
  for (const std::int32_t code : {1, 18, 0, 19}) {
    rig.root.NosepieceDevice().PutLimitation(code);
    EXPECT_EQ(rig.root.NosepieceDevice().Limitation(), code);
  }
}

}  // namespace
}  // namespace mortane::controller::test
