// The units of the switches' pages on a bench: the modes of the knobs and the stage are the
// drives'.
#pragma once

#include <functional>
#include <string>

#include "drives/clsControlOther.h"
#include "drives/clsControlXYDrive.h"
#include "gui/support/UnitPageRig.h"
#include "switches/SwitchUnits.h"

namespace mortane::test {

class SwitchPageUnits : public SwitchUnits {
 public:
  using SwitchUnits::SwitchUnits;

  clsControlXYDrive CXYDrive{*this};
  clsControlOther COther{*this};

  // What the program does with the hand controller's data files. A test that expects none leaves
  // them empty: a call then throws.
  std::function<void(const std::string& path)> readFile;
  std::function<void(const std::string& path)> writeFile;

 private:
  // As the microscope object does, only the units whose controllers are there.
  std::string ReadUnits() override {
    std::string failures;
    if (CXYDrive.IsEnable()) failures = AppendLine(std::move(failures), CXYDrive.ReadSdk());
    if (COther.IsEnable()) failures = AppendLine(std::move(failures), COther.ReadSdk());
    if (Controller(controllerunit::kBody)) {
      failures = AppendLine(std::move(failures), curSwitch.ReadSdk());
    }
    if (Controller(controllerunit::kHandController)) {
      failures = AppendLine(std::move(failures), curTactor.ReadSdk());
    }
    return failures;
  }
};

using PageRig = UnitPageRig<SwitchPageUnits>;

}  // namespace mortane::test
