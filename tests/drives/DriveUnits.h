// The units of the drives on a bench.
#pragma once

#include "drives/clsControlOther.h"
#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "support/Rows.h"
#include "support/UnitRig.h"

namespace mortane::test {

class DriveUnits : public BenchMicroscope {
 public:
  using BenchMicroscope::BenchMicroscope;

  clsControlZDrive CZDrive{*this};
  clsControlXYDrive CXYDrive{*this};
  clsControlOther COther{*this};

 protected:
  std::string ReadUnits() override { return ReadInOrder(CZDrive, CXYDrive, COther); }

 private:
  void TakeCounts() override {
    CXYDrive.NoseCount = CZDrive.NoseCount = TurretCount(accessory::kNosepiece);
  }
};

using Rig = UnitRig<DriveUnits>;

}  // namespace mortane::test
