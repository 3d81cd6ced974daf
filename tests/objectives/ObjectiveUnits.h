// The units of the objectives on a bench.
#pragma once

#include "objectives/clsDbNosepiece.h"
#include "objectives/clsLimitation.h"
#include "objectives/clsNosepiece.h"
#include "support/Rows.h"
#include "support/UnitRig.h"

namespace mortane::test {

class ObjectiveUnits : public BenchMicroscope {
 public:
  using BenchMicroscope::BenchMicroscope;

  // As the microscope object declares them: some refer to a sibling that follows.
  clsNosepiece curNosepiece{*this, DbNosepiece};
  clsDbNosepiece DbNosepiece{*this};
  clsLimitation curLimit{*this};

 private:
  std::string ReadUnits() override { return ReadInOrder(curNosepiece, DbNosepiece, curLimit); }
  void TakeCounts() override { curNosepiece.Count = TurretCount(accessory::kNosepiece); }
};

using Rig = UnitRig<ObjectiveUnits>;

}  // namespace mortane::test
