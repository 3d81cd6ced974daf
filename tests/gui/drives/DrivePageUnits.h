// The units of the drive pages on a bench: the interlock of the focus drive follows its
// compensation.
#pragma once

#include "drives/DriveUnits.h"
#include "gui/support/UnitPageRig.h"
#include "interlocks/clsInterLockOther.h"

namespace mortane::test {

class DrivePageUnits : public DriveUnits {
 public:
  using DriveUnits::DriveUnits;

  clsInterLockOther ILOther{*this};

 private:
  std::string ReadUnits() override {
    return AppendLine(ILOther.ReadSdk(), DriveUnits::ReadUnits());
  }
};

using PageRig = UnitPageRig<DrivePageUnits>;

}  // namespace mortane::test
