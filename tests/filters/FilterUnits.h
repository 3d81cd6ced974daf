// The units of the filters on a bench.
#pragma once

#include "filters/FilterItemNames.h"
#include "filters/clsDbFilter.h"
#include "filters/clsFilter.h"
#include "support/Rows.h"
#include "support/UnitRig.h"

namespace mortane::test {

class FilterUnits : public BenchMicroscope {
 public:
  using BenchMicroscope::BenchMicroscope;

  // As the microscope object declares them: some refer to a sibling that follows.
  clsFilter curFilter{*this, dbFilter};
  clsDbFilter dbFilter{*this, Exciter, Dichroic, Barrier};
  clsDbExciter Exciter{*this};
  clsDbDichroic Dichroic{*this};
  clsDbBarrier Barrier{*this};

 private:
  std::string ReadUnits() override {
    return ReadInOrder(curFilter, dbFilter, Exciter, Dichroic, Barrier);
  }
  void TakeCounts() override { curFilter.Count = TurretCount(accessory::kFilterCube); }
};

using Rig = UnitRig<FilterUnits>;

}  // namespace mortane::test
