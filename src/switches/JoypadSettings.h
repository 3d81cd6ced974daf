// The assignments of the joypad that was asked last, for as long as the program works with them.
#pragma once

#include <memory>
#include <string>

namespace mortane {

class Joystick;
class JoypadAssignments;

// Reads the assignments when it is made and saves them when it ends, whether a page ever showed
// them or not.
class JoypadSettings {
 public:
  // The joystick must live as long. `applicationData` is the user's folder for it.
  JoypadSettings(Joystick& joystick, std::string applicationData);
  ~JoypadSettings();
  JoypadSettings(const JoypadSettings&) = delete;
  JoypadSettings& operator=(const JoypadSettings&) = delete;

  // Takes what the joystick has now. True when a page that shows it has to show something else.
  bool TakeJoystick();

  // False for a joystick with more buttons than there are assignments: nothing is saved for it.
  [[nodiscard]] bool fits() const { return fits_; }
  // Only where a joystick has fitted once.
  [[nodiscard]] JoypadAssignments& assignments() const { return *assignments_; }

  void Save() const;

 private:
  Joystick& joystick_;
  std::string applicationData_;
  std::unique_ptr<JoypadAssignments> assignments_;  // empty until a joystick's buttons fit
  bool fits_ = false;  // the buttons of the joystick that was asked last
};

}  // namespace mortane
