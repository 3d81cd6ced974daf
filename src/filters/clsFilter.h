// The cube code at each address of the filter turret.
#pragma once

#include <cstdint>
#include <string>

#include "document/Dom.h"
#include "filters/clsDbFilter.h"
#include "model/ConnectedMicroscope.h"
#include "model/TurretCodes.h"

namespace mortane {

// Owned by clsK70. clsDbFilter knows what a code means.
class clsFilter {
 public:
  clsFilter(ConnectedMicroscope& microscope, const clsDbFilter& database);

  static constexpr std::string_view kElement = TurretCodes::kElement;

  ConnectedMicroscope& parent;

  // Number of addresses, set by clsK70 on connecting and at the end of each Receive. ReadSdk leaves
  // it.
  std::int32_t Count = 0;

  // Cube code 0 to 249 at address 1 to 10; for other addresses -1, and nothing is stored.
  std::int32_t code(std::int32_t address) const { return codes_.Code(address); }
  void code(std::int32_t address, std::int32_t value) { codes_.Code(address, value); }

  std::string ReadSdk() { return codes_.Read(parent).failure; }
  std::string ModifySdk(std::string& list) const;
  std::string WriteSdk() const { return codes_.Write(parent); }

  // An "ITEM" element may name an address beyond Count; WriteDom writes those up to Count.
  std::string ReadDom(const DomNode& node);
  void WriteDom(DomDocument& document, DomNode section) const;

 private:
  const clsDbFilter& database_;
  TurretCodes codes_;
};

}  // namespace mortane
