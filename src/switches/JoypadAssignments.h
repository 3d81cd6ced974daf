// Which function each direction and each button of a joypad has, as Setup.ini keeps it.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/Joystick.h"
#include "switches/GTJoy.h"
#include "switches/clsIniEdit.h"

namespace mortane {

// Another program reads the file and works the microscope with the joypad; this one only says what
// does what. Codes are those of JoypadFunctions; a file may hold any other.
class JoypadAssignments {
 public:
  // Makes the folder of Setup.ini below `applicationData` and reads the codes, 0 for those that are
  // not there. Where that is empty the system names no such folder: nothing is read, and Save
  // writes nothing. Raises a bounds failure for a joystick with more than 21 buttons; Setup.ini is
  // then as it was.
  JoypadAssignments(Joystick& joystick, const std::string& applicationData);

  // Takes the number of buttons of the joystick that is plugged in now, and reads the codes of
  // those that were not read before; the others stay as they are. True when the number has changed.
  // Raises as the constructor does, and has changed nothing then.
  bool TakeButtons(Joystick& joystick);

  // The rows that are shown, from 1: the four directions, then the buttons.
  std::vector<std::string> RowNames() const;

  // The rows that show a function and are cleared. Kept: a joystick that gives no number of buttons
  // counts as one of -1 buttons, so that the fourth direction stands outside.
  std::int32_t CodeCount() const;

  // Row 1 to 25, whether it is shown or not; another raises a bounds failure.
  std::int16_t Code(std::int32_t row) const;
  void Code(std::int32_t row, std::int16_t code);
  void Clear();

  // Writes the codes of all rows that are shown; nothing tells of a file that cannot be written.
  // All else in it stays, the keys of buttons that a former joypad had among it.
  void Save() const;

 private:
  std::int32_t RowCount() const;
  void Read(std::int32_t row);

  clsIniEdit ini_;
  std::int32_t buttonCount_ = kNoButtonCount;
  std::int32_t rowsRead_ = 0;
  std::array<std::int16_t, 25> codes_{};
};

}  // namespace mortane
