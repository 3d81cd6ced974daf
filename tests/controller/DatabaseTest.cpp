#include <gtest/gtest.h>

#include "controller/ControllerError.h"
#include "controller/SimulatedRig.h"

namespace mortane::controller::test {
namespace {

TEST(Database, HandsOutObjectivesWithAllThatTheyHold) {
  SimulatedRig rig("Attic");
  const auto records = rig.root.AccessoryDatabase().Nosepieces();
  const auto& stored = rig.instrument().database.objectives;
  ASSERT_EQ(records.Count(), static_cast<std::int32_t>(stored.size()));
  for (std::int32_t i = 1; i <= records.Count(); ++i) {
    const ObjectiveRecord record = records.Item(i);
    const ObjectiveData& data = stored[static_cast<std::size_t>(i) - 1];
    EXPECT_EQ(record.Code(), data.code);
    EXPECT_EQ(record.IsOption(), data.option);
    EXPECT_EQ(record.Name(), data.name);
    EXPECT_EQ(record.SeriesCode(), data.series);
    EXPECT_EQ(record.TypeCode(), data.type);
    EXPECT_EQ(record.Magnification(), data.magnification);
    EXPECT_EQ(record.WorkingDistance(), data.workingDistance);
    EXPECT_EQ(record.NumericalAperture(), data.numericalAperture);
  }
}

TEST(Database, HandsOutCubesAndTheirItems) {
  SimulatedRig rig("Quay");
  const AccessoryDatabase database = rig.root.AccessoryDatabase();
  const FilterCubeRecord cube = database.FilterCubes().Item(5);
  EXPECT_EQ(cube.Code(), 5);
  EXPECT_EQ(cube.Name(), "Green");
  EXPECT_EQ(database.Exciters().Item(cube.ExciterCode()).Name(), "470/40");
  EXPECT_EQ(database.Dichroics().Item(cube.DichroicCode()).Name(), "DM 495");
  EXPECT_EQ(database.Barriers().Item(cube.BarrierCode()).Name(), "525/50");
}

TEST(Database, CountsFixedRecordsApartFromAll) {
  SimulatedRig rig("Quay");
  const AccessoryDatabase database = rig.root.AccessoryDatabase();
  EXPECT_EQ(database.CondenserCount(), 9);
  EXPECT_EQ(database.Condensers().Count(), 18);
  EXPECT_EQ(database.ExciterCount() + 9, database.Exciters().Count());
  EXPECT_EQ(database.DichroicCount() + 9, database.Dichroics().Count());
  EXPECT_EQ(database.BarrierCount() + 9, database.Barriers().Count());
  EXPECT_EQ(database.FilterCubeCount() + 9, database.FilterCubes().Count());
}

TEST(Database, ListsSeriesAndTypesFromOne) {
  SimulatedRig rig("Attic");
  const AccessoryDatabase database = rig.root.AccessoryDatabase();
  EXPECT_EQ(database.ObjectiveSeriesCount(), 12);
  EXPECT_EQ(database.ObjectiveTypeCount(), 9);
  EXPECT_EQ(database.ObjectiveSeries().Item(4).Name(), "20");
  EXPECT_EQ(database.ObjectiveSeries().Item(12).Name(), "60");
  EXPECT_EQ(database.ObjectiveTypes().Item(9).Name(), "Type 9");
  EXPECT_THROW(database.ObjectiveTypes().Item(0), ControllerError);
  EXPECT_THROW(database.ObjectiveTypes().Item(10), ControllerError);
}

TEST(Database, FailsForItemsOutOfRange) {
  SimulatedRig rig("Quay");
  const AccessoryDatabase database = rig.root.AccessoryDatabase();
  for (const std::int32_t index : {-1, 0, 19}) {
    EXPECT_THROW(database.Condensers().Item(index), ControllerError) << index;
  }
  EXPECT_NO_THROW(database.Condensers().Item(18));
}

TEST(Database, SaysWhichAddressesACondenserSuits) {
  SimulatedRig rig("Quay");
  const CondenserRecord darkfield = rig.root.AccessoryDatabase().Condensers().Item(4);
  const std::array<std::int32_t, 12> expected{0, 0, 0, 0, 1, 1, 0, 0, 1, 1, 1, 0};
  for (std::int32_t address = 0; address <= 11; ++address) {
    EXPECT_EQ(darkfield.SuitsAddress(address), expected[static_cast<std::size_t>(address)])
        << address;
  }
}

TEST(Database, TakesWritesOfOptions) {
  SimulatedRig rig("Quay");
  const AccessoryDatabase database = rig.root.AccessoryDatabase();
  const DatabaseData before = rig.instrument().database;
  DatabaseData expected = before;

  const auto objectives = database.Nosepieces();
  const ObjectiveRecord objective = objectives.Item(objectives.Count());
  objective.PutName("Mine");
  objective.SetProperties(2, 3, 12.5, 0.75, 1.25);
  ObjectiveData& data = expected.objectives.back();
  data.name = "Mine";
  data.series = 2;
  data.type = 3;
  data.magnification = 12.5;
  data.workingDistance = 0.75;
  data.numericalAperture = 1.25;

  const auto cubes = database.FilterCubes();
  const FilterCubeRecord cube = cubes.Item(cubes.Count());
  cube.PutName("Own cube");
  cube.PutExciterCode(3);
  cube.PutDichroicCode(4);
  cube.PutBarrierCode(5);
  expected.cubes.back() = {249, true, "Own cube", 3, 4, 5};

  database.Condensers().Item(18).PutName("Own stop");
  expected.condensers.back().name = "Own stop";
  database.Barriers().Item(database.Barriers().Count()).PutName("Own");
  expected.barriers.back().name = "Own";
  EXPECT_EQ(rig.instrument().database, expected);
}

TEST(Database, RefusesWritesOfFixedRecords) {
  SimulatedRig rig("Quay");
  rig.CountChanges();
  const AccessoryDatabase database = rig.root.AccessoryDatabase();
  EXPECT_THROW(database.Nosepieces().Item(1).PutName("x"), ControllerError);
  EXPECT_THROW(database.Nosepieces().Item(1).SetProperties(1, 1, 1, 1, 1), ControllerError);
  EXPECT_THROW(database.Condensers().Item(1).PutName("x"), ControllerError);
  EXPECT_THROW(database.Exciters().Item(1).PutName("x"), ControllerError);
  EXPECT_THROW(database.Dichroics().Item(1).PutName("x"), ControllerError);
  EXPECT_THROW(database.Barriers().Item(1).PutName("x"), ControllerError);
  EXPECT_THROW(database.FilterCubes().Item(1).PutName("x"), ControllerError);
  EXPECT_THROW(database.FilterCubes().Item(1).PutExciterCode(1), ControllerError);
  EXPECT_THROW(database.FilterCubes().Item(1).PutDichroicCode(1), ControllerError);
  EXPECT_THROW(database.FilterCubes().Item(1).PutBarrierCode(1), ControllerError);
  EXPECT_EQ(rig.changes, 0);
  EXPECT_EQ(rig.instrument(), benches::InstrumentNamed("Quay"));
}

}  // namespace
}  // namespace mortane::controller::test
