// The filter turret, beyond the drill and what all turrets have in common.
#include <gtest/gtest.h>

#include "filters/FilterUnits.h"
#include "support/UnitText.h"

namespace mortane::test {
namespace {

TEST(FilterTurret, AReadOfTheUnitAloneLeavesItsCount) {
  Rig rig("Harbour");
  rig.Connect();
  EXPECT_EQ(rig.units.curFilter.Count, 6);
  rig.units.curFilter.Count = 3;
  EXPECT_EQ(rig.units.curFilter.ReadSdk(), "");
  EXPECT_EQ(rig.units.curFilter.Count, 3);
}

TEST(FilterTurret, ShowsTenCharactersOfACubesNameInItsLine) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  ReadElement(rig.units.dbFilter,
              R"(<OPTION POSITION="1" CODE="100120023003" NAME="ÄÖÜ eleven!"/>)");
  rig.units.curFilter.code(1, 241);
  std::string list;
  EXPECT_EQ(rig.units.curFilter.ModifySdk(list), "");
  EXPECT_EQ(list, "Filter Cube[1] ÄÖÜ eleven");
}

}  // namespace
}  // namespace mortane::test
