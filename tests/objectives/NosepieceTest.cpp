// The nosepiece, beyond the drill and what all turrets have in common.
#include <gtest/gtest.h>

#include "common/Failure.h"
#include "objectives/ObjectiveUnits.h"
#include "support/UnitText.h"

namespace mortane::test {
namespace {

std::vector<std::int32_t> Codes(const clsNosepiece& nosepiece) {
  std::vector<std::int32_t> codes;
  for (std::int32_t address = 1; address <= 10; ++address) codes.push_back(nosepiece.code(address));
  return codes;
}

TEST(Nosepiece, OfFivePositionsStoresFiveCodesAndWritesFiveElements) {
  Rig rig("Lantern");
  rig.units.curNosepiece.code(6, 9);
  rig.ConnectAndReceive();
  EXPECT_EQ(Codes(rig.units.curNosepiece),
            (std::vector<std::int32_t>{1, 4, 7, 10, 14, 0, 0, 0, 0, 0}));
  EXPECT_EQ(rig.units.curNosepiece.Count, 5);
  EXPECT_EQ(FileTextOf(rig.units.curNosepiece),
            "<SECTION><ITEM POSITION=\"1\" CODE=\"1\"/><ITEM POSITION=\"2\" CODE=\"4\"/>"
            "<ITEM POSITION=\"3\" CODE=\"7\"/><ITEM POSITION=\"4\" CODE=\"10\"/>"
            "<ITEM POSITION=\"5\" CODE=\"14\"/></SECTION>");
}

TEST(Nosepiece, LinesHaveTwentyCharactersOfTheName) {
  Rig rig("Harbour");
  rig.instrument().database.objectives[2].name = "äöüäöüäöüäöüäöüäöüäöüäöü";
  rig.ConnectAndReceive();
  rig.units.curNosepiece.code(1, 3);
  std::string list;
  EXPECT_EQ(rig.units.curNosepiece.ModifySdk(list), "");
  EXPECT_EQ(list, "Nosepiece[1] äöüäöüäöüäöüäöüäöüäö");
}

TEST(Nosepiece, SeriesIsTheNumberThatTheListHoldsAtTheCode) {
  Rig rig("Harbour");
  rig.instrument().database.series[3].name = " 20 ";
  rig.instrument().database.series[4].name = "3000000000";
  rig.ConnectAndReceive();
  rig.units.curNosepiece.code(1, 4);
  EXPECT_EQ(rig.units.curNosepiece.Series(1), 20);
  rig.units.curNosepiece.code(10, 4);
  EXPECT_EQ(rig.units.curNosepiece.Series(10), 20) << "the last address";
  EXPECT_EQ(rig.units.curNosepiece.Series(0), -1);
  EXPECT_EQ(rig.units.curNosepiece.Series(11), -1);
  struct Bad {
    std::int32_t code;
    std::int32_t number;
  };
  for (const Bad& bad : {Bad{0, kConversionError}, Bad{1, kConversionError},
                         Bad{200, kConversionError}, Bad{5, kOverflowError}}) {
    rig.units.curNosepiece.code(1, bad.code);
    try {
      rig.units.curNosepiece.Series(1);
      FAIL() << "nothing was raised for code " << bad.code;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number(), bad.number) << bad.code;
    }
  }
}

}  // namespace
}  // namespace mortane::test
