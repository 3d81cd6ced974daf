// The units of the switches on a bench.
#pragma once

#include "support/Rows.h"
#include "support/UnitRig.h"
#include "switches/clsControlTactor.h"
#include "switches/clsDbSwitch.h"

namespace mortane::test {

class SwitchUnits : public BenchMicroscope {
 public:
  using BenchMicroscope::BenchMicroscope;

  clsControlTactor curTactor{*this};
  clsDbSwitch curSwitch{*this};

 private:
  std::string ReadUnits() override { return ReadInOrder(curSwitch, curTactor); }
};

using Rig = UnitRig<SwitchUnits>;

}  // namespace mortane::test
