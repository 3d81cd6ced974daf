// Whether a device can be used now.
#include "hub/DeviceAvailability.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/Rig.h"

namespace mortane::test {
namespace {

TEST(IsDeviceAvailable, AsksARootOfItsOwnAndLetsItGo) {
  Rig rig("Crowd");
  const int before = rig.simulated.CreatedRoots();
  EXPECT_TRUE(IsDeviceAvailable(rig.library, 1));
  rig.faults.Add({"DeviceList.Item"});
  EXPECT_FALSE(IsDeviceAvailable(rig.library, 1));
  EXPECT_EQ(rig.simulated.CreatedRoots() - before, 2);
  EXPECT_EQ(rig.simulated.ReleasedRoots(), rig.simulated.CreatedRoots() - 1);
  EXPECT_EQ(
      std::count(rig.journal.Lines().begin(), rig.journal.Lines().end(), "DeviceList.Count -> 5"),
      0);
}

struct AvailabilityCase {
  int value;
  bool available;
};

class Availability : public testing::TestWithParam<AvailabilityCase> {};

TEST_P(Availability, IsAnyNumberButZero) {
  Bench bench = benches::Named("Harbour");
  bench.instruments[1].available = GetParam().value;
  Rig rig(bench);
  EXPECT_EQ(IsDeviceAvailable(rig.library, 1), GetParam().available);
}

INSTANTIATE_TEST_SUITE_P(Values, Availability,
                         testing::Values(AvailabilityCase{0, false}, AvailabilityCase{1, true},
                                         AvailabilityCase{-1, true}, AvailabilityCase{7, true}));

TEST(IsDeviceAvailable, AFailureOfAnyKindIsANo) {
  for (const char* call :
       {"Create(Microscope)", "DeviceList", "DeviceList.Item", "DeviceList.Item(1).IsAvailable"}) {
    Rig rig("Harbour");
    rig.faults.Add({call});
    EXPECT_FALSE(IsDeviceAvailable(rig.library, 1)) << call;
  }
  Rig rig("Harbour");
  for (const int index : {-1, 2, 99}) EXPECT_FALSE(IsDeviceAvailable(rig.library, index)) << index;
}

}  // namespace
}  // namespace mortane::test
