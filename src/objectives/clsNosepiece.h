// The objective code at each address of the nosepiece.
#pragma once

#include <cstdint>
#include <string>

#include "document/Dom.h"
#include "model/ConnectedMicroscope.h"
#include "model/TurretCodes.h"
#include "objectives/clsDbNosepiece.h"

namespace mortane {

// Owned by clsK70. clsDbNosepiece knows what a code means.
class clsNosepiece {
 public:
  clsNosepiece(ConnectedMicroscope& microscope, const clsDbNosepiece& database);

  static constexpr std::string_view kElement = TurretCodes::kElement;

  ConnectedMicroscope& parent;

  // Number of addresses, set by clsK70 on connecting and by each read. A read that fails or finds
  // no nosepiece leaves it.
  std::int32_t Count = 0;

  // Objective code 0 to 249 at address 1 to 10; for other addresses -1, and nothing is stored.
  std::int32_t code(std::int32_t address) const { return codes_.Code(address); }
  void code(std::int32_t address, std::int32_t value) { codes_.Code(address, value); }

  // The series name at the index that the code gives, as a number; -1 for other addresses. A
  // name that is no number raises a conversion failure.
  std::int32_t Series(std::int32_t address) const;

  std::string ReadSdk();
  std::string ModifySdk(std::string& list) const;
  std::string WriteSdk() const { return codes_.Write(parent); }

  // An "ITEM" element may name an address beyond Count; WriteDom writes those up to Count.
  std::string ReadDom(const DomNode& node);
  void WriteDom(DomDocument& document, DomNode section) const;

 private:
  const clsDbNosepiece& database_;
  TurretCodes codes_;
};

}  // namespace mortane
