#include "switches/JoypadSettings.h"

#include <utility>

#include "common/Failure.h"
#include "switches/JoypadAssignments.h"

namespace mortane {

JoypadSettings::JoypadSettings(Joystick& joystick, std::string applicationData)
    : joystick_(joystick), applicationData_(std::move(applicationData)) {
  TakeJoystick();
}

JoypadSettings::~JoypadSettings() {
  Save();
}

bool JoypadSettings::TakeJoystick() {
  const bool fitted = std::exchange(fits_, false);
  bool hasOtherButtons = false;
  try {
    if (assignments_) {
      hasOtherButtons = assignments_->TakeButtons(joystick_);
    } else {
      assignments_ = std::make_unique<JoypadAssignments>(joystick_, applicationData_);
    }
    fits_ = true;
  } catch (const Failure&) {
    // It has more buttons than there are assignments.
  }
  return fits_ != fitted || hasOtherButtons;
}

void JoypadSettings::Save() const {
  if (fits_) assignments_->Save();
}

}  // namespace mortane
