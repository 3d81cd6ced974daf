// The units of the condensers on a bench.
#pragma once

#include "condensers/clsCondenser.h"
#include "condensers/clsDbCondenser.h"
#include "support/Rows.h"
#include "support/UnitRig.h"

namespace mortane::test {

class CondenserUnits : public BenchMicroscope {
 public:
  using BenchMicroscope::BenchMicroscope;

  // As the microscope object declares them: some refer to a sibling that follows.
  clsCondenser curCondenser{*this, dbcon};
  clsDbCondenser dbcon{*this};

 private:
  std::string ReadUnits() override { return ReadInOrder(curCondenser, dbcon); }
  void TakeCounts() override { curCondenser.Count = TurretCount(accessory::kCondenser); }
};

using Rig = UnitRig<CondenserUnits>;

}  // namespace mortane::test
