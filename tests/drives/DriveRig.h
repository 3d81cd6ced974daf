// What the tests of the drive units share.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "drives/DriveUnits.h"
#include "support/UnitText.h"

namespace mortane::test {

// Compensation, lower limit, and the escape flags as two digits.
inline std::string ValuesOf(const clsControlZDrive& drive) {
  return std::to_string(drive.curFocusCompensation) + " " + std::to_string(drive.curLowerLimit) +
         " " + std::to_string(drive.SetEscape(0)) + std::to_string(drive.SetEscape(1));
}

// The list that a unit alone would show.
template <typename Unit>
std::string Differences(const Unit& unit) {
  std::string list;
  EXPECT_EQ(unit.ModifySdk(list), "");
  return list;
}

// Calls the operation on rigs made by `make`, each of its controller calls failing in turn, and
// gives each rig to `check` with the number of the call. Answers how many calls there are.
template <typename Make, typename Operation, typename Check>
std::size_t FailEachCallOf(Make&& make, Operation&& operation, Check&& check) {
  std::size_t calls = 0;
  {
    const auto rig = make();
    rig->journal.Clear();
    operation(rig->units);
    calls = rig->journal.CallCount();
  }
  for (std::size_t k = 1; k <= calls; ++k) {
    const auto rig = make();
    rig->journal.Clear();
    rig->faults.FailCall(k);
    check(*rig, k);
    EXPECT_EQ(rig->faults.Hits(), 1U) << "call " << k;
  }
  return calls;
}

}  // namespace mortane::test
