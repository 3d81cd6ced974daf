// The lists of names that a person may fill in part: which codes they have.
#include <gtest/gtest.h>

#include "model/TurretModel.h"

namespace mortane::test {
namespace {

// Names are kept for the codes from 0 to `highest`, and for no others.
template <typename Names>
void ExpectCodesUpTo(Names& names, std::int32_t highest) {
  for (const std::int32_t code : {-2147483647 - 1, -1, highest + 1, highest + 2, 2147483647}) {
    names.Name(code, "Beyond");
    EXPECT_EQ(names.Name(code), "") << code;
  }
  for (const std::int32_t code : {0, 1, highest - 1, highest}) {
    names.Name(code, "N" + std::to_string(code));
    EXPECT_EQ(names.Name(code), "N" + std::to_string(code));
  }
}

TEST(OptionNames, HoldTheCodesFromZeroToTheirLastOption) {
  Rig rig("Harbour");
  ExpectCodesUpTo(rig.units.Exciter, 249);
  ExpectCodesUpTo(rig.units.Dichroic, 249);
  ExpectCodesUpTo(rig.units.Barrier, 249);
  ExpectCodesUpTo(rig.units.dbcon, 149);
}

TEST(OptionNames, KeepTheFirstTenCharacters) {
  Rig rig("Harbour");
  rig.units.dbcon.Name(141,
                       "\xC2\xB5"
                       "23456789AB");
  EXPECT_EQ(rig.units.dbcon.Name(141),
            "\xC2\xB5"
            "23456789A");
}

}  // namespace
}  // namespace mortane::test
