// The tables of accessories that units and pages share.
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "interlocks/ObservationAccessories.h"
#include "interlocks/OtherAccessories.h"
#include "interlocks/clsInterLockOffset.h"

namespace mortane::test {
namespace {

// "0 Lamp (4), 1 ...": what stands at each place of a page.
template <typename Table, typename PlaceOf>
std::string OnThePage(const Table& table, PlaceOf&& placeOf) {
  std::map<int, std::string> places;
  for (const auto& row : table) {
    if (placeOf(row) < 0) continue;
    places[placeOf(row)] += std::string(row.caption) + " (" + std::to_string(row.number) + ")";
  }
  std::string text;
  for (const auto& [place, shown] : places) text += std::to_string(place) + " " + shown + "\n";
  return text;
}

TEST(InterlockAccessories, FollowTheObservationOnThePageInThisOrder) {
  EXPECT_EQ(OnThePage(kObservationAccessories, [](const auto& row) { return row.pageIndex; }),
            "0 Lamp (4)\n1 FilterCube (6)\n2 Nosepiece (9)\n3 ND Filter (1)\n4 Light Path (11)\n"
            "5 DIA Field Stop (2)\n6 Aperture Stop (3)\n7 Zoom (10)\n8 Shutter (7)\n"
            "9 Analyzer (8)\n10 Condenser (5)\n");
}

TEST(InterlockAccessories, FollowTheNosepieceOnThePageInThisOrder) {
  EXPECT_EQ(OnThePage(kOtherAccessories, [](const auto& row) { return row.nosepieceIndex; }),
            "0 ND Filter (1)\n1 DIA Field Stop (2)\n2 Condenser (5)\n3 Aperture Stop (3)\n"
            "4 Z Focus (12)\n5 XY Stage (14)\n");
}

TEST(InterlockAccessories, FollowLightPathAndZoomOnThePageInThisOrder) {
  EXPECT_EQ(OnThePage(kOtherAccessories, [](const auto& row) { return row.pathIndex; }),
            "0 EPI Field Stop (13)\n1 ND Filter (1)\n2 DIA Field Stop (2)\n");
}

TEST(InterlockAccessories, HaveABoxWhereTheyFollow) {
  for (const OtherAccessory& row : kOtherAccessories) {
    EXPECT_EQ(row.nosepieceIndex != OtherAccessory::kNoBox, row.FollowsNosepiece()) << row.number;
    EXPECT_EQ(row.pathIndex != OtherAccessory::kNoBox, row.FollowsPath()) << row.number;
  }
}

TEST(InterlockAccessories, AreCompensatedOnThePageInThisOrder) {
  EXPECT_EQ(OnThePage(kOffsetAccessories, [](const auto& row) { return row.pageRow; }),
            "0 ND Filter    ( default: 0.75 ) (1)\n1 DIA Field Stop       ( : 1.00 ) (2)\n"
            "2 Aperture Stop        ( : 1.00 ) (3)\n3 EPI Field Stop       ( : 1.00 ) (13)\n");
}

}  // namespace
}  // namespace mortane::test
