// The units of the interlock pages on a bench: the drives' compensation follows their switches.
#pragma once

#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "gui/support/UnitPageRig.h"
#include "interlocks/InterlockUnits.h"

namespace mortane::test {

class InterlockPageUnits : public InterlockUnits {
 public:
  using InterlockUnits::InterlockUnits;

  clsControlZDrive CZDrive{*this};
  clsControlXYDrive CXYDrive{*this};

 private:
  std::string ReadUnits() override {
    return AppendLine(InterlockUnits::ReadUnits(), ReadInOrder(CZDrive, CXYDrive));
  }
};

using PageRig = UnitPageRig<InterlockPageUnits>;

}  // namespace mortane::test
