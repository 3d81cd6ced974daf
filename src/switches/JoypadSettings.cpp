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
  const bool fitted = fits_;
  bool changed = !fitted;
  try {
    if (assignments_) {
      changed = assignments_->TakeButtons(joystick_) || changed;
    } else {
      assignments_ = std::make_unique<JoypadAssignments>(joystick_, applicationData_);
    }
    fits_ = true;
  } catch (const Failure&) {
    fits_ = false;
    changed = fitted;
  }
  return changed;
}

void JoypadSettings::Save() const {
  if (fits_) assignments_->Save();
}

}  // namespace mortane
