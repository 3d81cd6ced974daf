// The condenser cassette, beyond the drill and what all turrets have in common.
#include <gtest/gtest.h>

#include "support/UnitDrill.h"

namespace mortane::test {
namespace {

TEST(Cassette, AReadThatFailsMakesTheCountZeroUntilTheCountCanBeAsked) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"CondenserDevice.Positions(3)"});
  EXPECT_EQ(rig.k70.curCondenser.ReadSdk(), "Condenser Casset (LIB:80004005)");
  EXPECT_EQ(rig.k70.curCondenser.Count, 0);
  EXPECT_EQ(rig.k70.curCondenser.code(2), 2);
  EXPECT_EQ(rig.k70.curCondenser.code(3), 0);
  EXPECT_EQ(FileTextOf(rig.k70.curCondenser), "<SECTION/>");
  rig.prompts.ExpectBox("Condenser Casset (LIB:80004005)", box::kCritical);
  rig.k70.Receive();
  EXPECT_EQ(rig.k70.curCondenser.Count, 7);
}

TEST(Cassette, LinesHaveTheWholeName) {
  Rig rig("Harbour");
  rig.instrument().database.condensers[8].name = "A condenser of a very long name indeed";
  rig.ConnectAndReceive();
  rig.k70.curCondenser.code(1, 9);
  std::string list;
  EXPECT_EQ(rig.k70.curCondenser.ModifySdk(list), "");
  EXPECT_EQ(list, "Condenser[1] A condenser of a very long name indeed");
}

}  // namespace
}  // namespace mortane::test
