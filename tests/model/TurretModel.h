// The units of the three turrets on a bench, with the units that know their codes.
#pragma once

#include "condensers/clsCondenser.h"
#include "condensers/clsDbCondenser.h"
#include "filters/FilterItemNames.h"
#include "filters/clsDbFilter.h"
#include "filters/clsFilter.h"
#include "objectives/clsDbNosepiece.h"
#include "objectives/clsNosepiece.h"
#include "support/Rows.h"
#include "support/UnitRig.h"

namespace mortane::test {

class TurretModel : public BenchMicroscope {
 public:
  using BenchMicroscope::BenchMicroscope;

  // As the microscope object declares them: some refer to a sibling that follows.
  clsNosepiece curNosepiece{*this, DbNosepiece};
  clsDbNosepiece DbNosepiece{*this};
  clsFilter curFilter{*this, dbFilter};
  clsDbFilter dbFilter{*this, Exciter, Dichroic, Barrier};
  clsDbExciter Exciter{*this};
  clsDbDichroic Dichroic{*this};
  clsDbBarrier Barrier{*this};
  clsCondenser curCondenser{*this, dbcon};
  clsDbCondenser dbcon{*this};

 private:
  std::string ReadUnits() override {
    return ReadInOrder(curNosepiece, DbNosepiece, curFilter, dbFilter, Exciter, Dichroic, Barrier,
                       curCondenser, dbcon);
  }
  void TakeCounts() override {
    curNosepiece.Count = TurretCount(accessory::kNosepiece);
    curFilter.Count = TurretCount(accessory::kFilterCube);
    curCondenser.Count = TurretCount(accessory::kCondenser);
  }
};

using Rig = UnitRig<TurretModel>;

}  // namespace mortane::test
