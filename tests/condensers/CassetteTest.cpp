// The condenser cassette, beyond the drill and what all turrets have in common.
#include <gtest/gtest.h>

#include "condensers/CondenserUnits.h"
#include "support/UnitText.h"

namespace mortane::test {
namespace {

TEST(Cassette, AReadThatFailsMakesTheCountZeroUntilTheCountCanBeAsked) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"CondenserDevice.Positions(3)"});
  EXPECT_EQ(rig.units.curCondenser.ReadSdk(), "Condenser Casset (LIB:80004005)");
  EXPECT_EQ(rig.units.curCondenser.Count, 0);
  EXPECT_EQ(rig.units.curCondenser.code(2), 2);
  EXPECT_EQ(rig.units.curCondenser.code(3), 0);
  EXPECT_EQ(FileTextOf(rig.units.curCondenser), "<SECTION/>");
  EXPECT_EQ(rig.units.Receive(), "Condenser Casset (LIB:80004005)");
  EXPECT_EQ(rig.units.curCondenser.Count, 7);
}

TEST(Cassette, LinesHaveTheWholeName) {
  Rig rig("Harbour");
  rig.instrument().database.condensers[8].name = "A condenser of a very long name indeed";
  rig.ConnectAndReceive();
  rig.units.curCondenser.code(1, 9);
  std::string list;
  EXPECT_EQ(rig.units.curCondenser.ModifySdk(list), "");
  EXPECT_EQ(list, "Condenser[1] A condenser of a very long name indeed");
}

}  // namespace
}  // namespace mortane::test
