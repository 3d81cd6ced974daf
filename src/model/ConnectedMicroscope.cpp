#include "model/ConnectedMicroscope.h"

#include "common/Numbers.h"

namespace mortane {

bool ConnectedMicroscope::Controller(std::int32_t index) const {
  return index >= 0 && index < static_cast<std::int32_t>(controllers_.size()) &&
         controllers_[static_cast<std::size_t>(index)];
}

std::int32_t ConnectedMicroscope::IsMounted(std::int32_t index) const {
  if (index < 1 || index > accessory::kCount) return kNotMounted;
  return mounted_[static_cast<std::size_t>(index - 1)];
}

double ConnectedMicroscope::ReadMicVer(std::int32_t index) const {
  if (!Controller(index)) return kNoVersion;
  const std::string text = Mic.ControllerVersion(controllerunit::NumberInLibrary(index));
  if (text == "vDEMO") return kSimulatedVersion;
  const std::size_t letter = text.find('V');
  return LeadingNumber(letter == std::string::npos ? text : text.substr(letter + 1));
}

}  // namespace mortane
