// The units of the objectives on a bench.
#pragma once

#include <algorithm>

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

// The instrument's record of that code, which must be there.
inline controller::ObjectiveData& Record(Rig& rig, std::int32_t code) {
  auto& records = rig.instrument().database.objectives;
  return *std::find_if(
      records.begin(), records.end(),
      [&](const controller::ObjectiveData& record) { return record.code == code; });
}

}  // namespace mortane::test
