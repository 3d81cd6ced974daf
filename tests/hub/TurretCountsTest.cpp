// The addresses of the turrets, which the microscope object counts for the units.
#include <gtest/gtest.h>

#include <functional>

#include "condensers/clsCondenser.h"
#include "filters/clsFilter.h"
#include "objectives/clsNosepiece.h"
#include "support/Rig.h"

namespace mortane::test {
namespace {

struct TurretRow {
  std::int32_t accessory;
  controller::TurretPlaces Instrument::*places;
  std::string device;
  std::string failure;
  std::function<std::int32_t(const clsK70&)> count;
};

const std::vector<TurretRow>& TurretRows() {
  static const std::vector<TurretRow> rows{
      {accessory::kNosepiece, &Instrument::nosepiece, "NosepieceDevice", "Nosepiece Count",
       [](const clsK70& k70) { return k70.curNosepiece.Count; }},
      {accessory::kFilterCube, &Instrument::filterCubes, "FilterCubeDevice", "Filter Cube Count",
       [](const clsK70& k70) { return k70.curFilter.Count; }},
      {accessory::kCondenser, &Instrument::condensers, "CondenserDevice", "Condenser Count",
       [](const clsK70& k70) { return k70.curCondenser.Count; }}};
  return rows;
}

TEST(TurretCounts, AreAskedOnConnectingAndByEachReceive) {
  for (const TurretRow& turret : TurretRows()) {
    Rig rig("Harbour");
    rig.Connect();
    controller::TurretPlaces& places = rig.instrument().*turret.places;
    EXPECT_EQ(turret.count(rig.k70), static_cast<std::int32_t>(places.size())) << turret.device;
    places.resize(5);
    rig.k70.Receive();
    EXPECT_EQ(turret.count(rig.k70), 5) << turret.device;
    rig.faults.Add({turret.device + ".Positions.Count"});
    rig.prompts.ExpectBox(turret.failure, box::kCritical);
    rig.k70.Receive();
    EXPECT_EQ(turret.count(rig.k70), 0) << turret.device;
  }
}

TEST(TurretCounts, OfATurretThatIsNotMountedAreZero) {
  for (const TurretRow& turret : TurretRows()) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.instrument().Accessory(turret.accessory).state = 0;
    rig.Connect();
    rig.k70.Receive();
    EXPECT_EQ(turret.count(rig.k70), 0) << turret.device;
  }
}

TEST(TurretCounts, OfZeroMakeATurretNotMounted) {
  for (const TurretRow& turret : TurretRows()) {
    Rig rig("Hollow");
    rig.Connect();
    EXPECT_EQ(turret.count(rig.k70), 0) << turret.device;
    EXPECT_EQ(rig.k70.IsMounted(turret.accessory), kNotMounted) << turret.device;
  }
}

}  // namespace
}  // namespace mortane::test
