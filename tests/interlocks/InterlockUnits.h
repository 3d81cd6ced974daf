// The units of the interlocks on a bench.
#pragma once

#include "interlocks/clsInterLockObservation.h"
#include "interlocks/clsInterLockOffset.h"
#include "interlocks/clsInterLockOther.h"
#include "support/Rows.h"
#include "support/UnitRig.h"

namespace mortane::test {

class InterlockUnits : public BenchMicroscope {
 public:
  using BenchMicroscope::BenchMicroscope;

  clsInterLockObservation ILObservation{*this};
  clsInterLockOther ILOther{*this};
  clsInterLockOffset ILOffset{*this};

 protected:
  std::string ReadUnits() override { return ReadInOrder(ILObservation, ILOther, ILOffset); }
};

using Rig = UnitRig<InterlockUnits>;

}  // namespace mortane::test
