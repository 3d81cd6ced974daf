// Three rules by which the controller refuses or delays the turning of the nosepiece.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "document/Dom.h"
#include "model/ConnectedMicroscope.h"

namespace mortane {

// Owned by clsK70. -1 means unknown. The controller holds all three as one number, so nothing is
// written while any of them is unknown.
class clsLimitation {
 public:
  explicit clsLimitation(ConnectedMicroscope& microscope) : parent(microscope) {}

  static constexpr std::string_view kElement = "LIMIT";

  ConnectedMicroscope& parent;

  // Changing from 2.0x or lower to 1 mm of working distance or less: 0 free, 1 no rotation,
  // 2 rotation after the stage went down.
  std::int16_t curIncrease = kUnknown;
  // Positions without an objective: 0 use, 1 skip. A settings file may make it 2, which no code
  // of the controller stands for.
  std::int16_t curSkip = kUnknown;
  // Turning an immersion objective in or out: as curIncrease.
  std::int16_t curImmersion = kUnknown;

  bool IsEnable() const;

  std::string ReadSdk();
  // Compares with the values of the last read; makes no call to the controller.
  std::string ModifySdk(std::string& list) const;
  // Kept: writes the rules even if they did not change.
  std::string WriteSdk() const;

  // A "LIMIT" element holds one rule.
  std::string ReadDom(const DomNode& node);
  void WriteDom(DomDocument& document, DomNode section) const;

 private:
  struct Rule;
  static const std::array<Rule, 3> kRules;

  std::array<std::int16_t, 3> untouched_{kUnknown, kUnknown, kUnknown};  // in the rules' order
};

}  // namespace mortane
