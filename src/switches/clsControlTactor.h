// The Tactor hand controller: the functions of its switches, its mode and the side of its knob.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "document/Dom.h"
#include "model/ConnectedMicroscope.h"
#include "switches/SwitchCodes.h"

namespace mortane {

// Owned by clsK70. Without a hand controller nothing is read, compared or written; a read then
// leaves all codes at 0 and the two modes as they were.
class clsControlTactor {
 public:
  explicit clsControlTactor(ConnectedMicroscope& microscope);

  static constexpr std::string_view kElement = "SWITCH";
  static constexpr std::int16_t SwitchCount = 14;

  ConnectedMicroscope& parent;

  // 0 standard, 1 extended. The controller may hold another number.
  std::int16_t ControlMode = 0;
  // The side of the XY knob: 0 right, 1 left. Neither read, compared nor sent unless the stage can
  // be controlled.
  std::int16_t HandleMode = 0;

  // Function code of switch position 1 to 14; for others -1, and nothing is stored. Any code is
  // kept.
  std::int16_t Func(std::int16_t i) const { return codes_.Code(i); }
  void Func(std::int16_t i, std::int16_t code) { codes_.Code(i, code); }

  // Whether the microscope has a hand controller.
  bool IsPresent() const;

  std::string ReadSdk();
  // A failure drops the lines that were collected before it.
  std::string ModifySdk(std::string& list) const;
  std::string WriteSdk() const;

  // One "SWITCH" element holds all, in children. Kept: what is refused of them stands in the
  // answer without a line break between.
  std::string ReadDom(const DomNode& node);
  void WriteDom(DomDocument& document, DomNode section) const;

 private:
  std::int16_t HeldMode() const;
  void ReadAll();
  void ListDifferences(std::string& lines) const;
  std::string ReadSetting(const DomNode& node);
  std::string ReadSwitch(const DomNode& node);

  SwitchCodes codes_;
};

}  // namespace mortane
