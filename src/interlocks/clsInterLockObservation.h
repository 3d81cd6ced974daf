// What the controller moves along when the observation method changes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "interlocks/Interlock.h"
#include "interlocks/ObservationAccessories.h"

namespace mortane {

// Owned by clsK70. States: -1 unknown, 0 does not follow, 1 follows.
class clsInterLockObservation {
 public:
  explicit clsInterLockObservation(ConnectedMicroscope& microscope) : parent(microscope) {}

  static constexpr std::string_view kElement = "OBSERVATION";

  ConnectedMicroscope& parent;

  // Accessory number 1 to 11; any other raises kSubscriptError. Storing changes a known state
  // only.
  std::int32_t Status(std::int32_t index) const { return states_.Get(index); }
  void Status(std::int32_t index, std::int32_t state) { states_.SetKnown(index, state); }

  bool IsEnable() const;

  std::string ReadSdk();
  // Kept: on a microscope that has the body and controller unit 5 or 6 the accessories that both
  // name stand twice in the list.
  std::string ModifySdk(std::string& list) const;
  std::string WriteSdk() const;

  // An "OBSERVATION" element holds one accessory, and makes an unknown state known.
  std::string ReadDom(const DomNode& node);
  // Always eleven elements.
  void WriteDom(DomDocument& document, DomNode section) const;

 private:
  InterlockStates<kObservationAccessories.size()> states_;
};

}  // namespace mortane
