// The functions of the dials and push switches on the microscope's body.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "document/Dom.h"
#include "model/ConnectedMicroscope.h"
#include "switches/SwitchCodes.h"

namespace mortane {

// Owned by clsK70. Without a body nothing is read, compared or written, and a read leaves all
// codes at 0.
class clsDbSwitch {
 public:
  explicit clsDbSwitch(ConnectedMicroscope& microscope);

  static constexpr std::string_view kElement = "SWITCH";
  static constexpr std::int16_t SwitchCount = 16;

  ConnectedMicroscope& parent;

  // Function code of switch position 1 to 16; for others -1, and nothing is stored. Any code is
  // kept: what the controller answers may be no function, as -3 for a character beyond its digits.
  std::int16_t Func(std::int16_t i) const { return codes_.Code(i); }
  void Func(std::int16_t i, std::int16_t code) { codes_.Code(i, code); }

  std::string ReadSdk();
  // A failure drops the lines that were collected before it.
  std::string ModifySdk(std::string& list) const;
  std::string WriteSdk() const;

  // A "SWITCH" element holds one position. Position 17 raises a bounds failure, which ends the
  // reading of the file; positions further off are refused.
  std::string ReadDom(const DomNode& node);
  // Always sixteen elements.
  void WriteDom(DomDocument& document, DomNode section) const;

 private:
  SwitchCodes codes_;
};

}  // namespace mortane
