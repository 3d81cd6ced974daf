// The condenser code at each address of the cassette.
#pragma once

#include <cstdint>
#include <string>

#include "condensers/clsDbCondenser.h"
#include "document/Dom.h"
#include "model/ConnectedMicroscope.h"
#include "model/TurretCodes.h"

namespace mortane {

// Owned by clsK70. clsDbCondenser knows what a code means.
class clsCondenser {
 public:
  clsCondenser(ConnectedMicroscope& microscope, const clsDbCondenser& database);

  static constexpr std::string_view kElement = TurretCodes::kElement;

  ConnectedMicroscope& parent;

  // Number of addresses, set by clsK70 on connecting and by each read. A read that fails makes it
  // 0; one that finds no condenser leaves it.
  std::int32_t Count = 0;

  // Condenser code 0 to 149 at address 1 to 10; for other addresses -1, and nothing is stored.
  std::int32_t code(std::int32_t address) const { return codes_.Code(address); }
  void code(std::int32_t address, std::int32_t value) { codes_.Code(address, value); }

  std::string ReadSdk();
  std::string ModifySdk(std::string& list) const;
  std::string WriteSdk() const { return codes_.Write(parent); }

  // An "ITEM" element may name an address beyond Count; WriteDom writes those up to Count.
  std::string ReadDom(const DomNode& node);
  void WriteDom(DomDocument& document, DomNode section) const;

 private:
  const clsDbCondenser& database_;
  TurretCodes codes_;
};

}  // namespace mortane
