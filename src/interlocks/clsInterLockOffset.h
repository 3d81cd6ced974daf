// The factors by which the controller multiplies the proper values of the ND filter and the stops.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "document/Dom.h"
#include "model/ConnectedMicroscope.h"

namespace mortane {

// Owned by clsK70. The controller calculates the proper values from the objective and the
// condenser. Each field is a factor's code, 0 to 9, or -1 when the accessory takes no part.
class clsInterLockOffset {
 public:
  explicit clsInterLockOffset(ConnectedMicroscope& microscope) : parent(microscope) {}

  static constexpr std::string_view kElement = "OFFSET";

  ConnectedMicroscope& parent;

  std::int32_t curND = kUnknown;        // ND filter, accessory 1
  std::int32_t curFStop = kUnknown;     // dia field stop, accessory 2
  std::int32_t curEpiFStop = kUnknown;  // epi field stop, accessory 13
  std::int32_t curAStop = kUnknown;     // dia aperture stop, accessory 3

  bool IsEnable() const;

  std::string ReadSdk();
  std::string ModifySdk(std::string& list) const;
  std::string WriteSdk() const;

  // An "OFFSET" element holds one accessory. One that cannot be used is ignored without a word.
  std::string ReadDom(const DomNode& node);
  // Always four elements.
  void WriteDom(DomDocument& document, DomNode section) const;
};

}  // namespace mortane
