// The condensers that a controller knows: fixed ones and nine that the user names.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/Dom.h"
#include "model/ConnectedMicroscope.h"
#include "model/OptionNames.h"

namespace mortane {

// Position n, 1 to 9, of the user's condensers is code kCondenserOptionBase + n.
inline constexpr std::int32_t kCondenserOptionBase = 140;

// Owned by clsK70. Codes are 0 to 149.
class clsDbCondenser {
 public:
  explicit clsDbCondenser(ConnectedMicroscope& microscope);

  static constexpr std::string_view kElement = "OPTION";

  ConnectedMicroscope& parent;

  // Empty for another code.
  std::string Name(std::int32_t code) const { return names_.Name(code); }
  // Keeps the first ten characters; ignores another code.
  void Name(std::int32_t code, std::string_view name) { names_.Name(code, name); }

  // Asks the controller which fixed condensers fit an address of the cassette. A condenser for
  // which it does not answer is left out.
  std::vector<std::int32_t> FixedCodesFor(std::int32_t address) const;

  std::string ReadSdk() { return names_.Read(parent); }
  std::string ModifySdk(std::string& list) const { return names_.Modify(parent, list); }
  std::string WriteSdk() const { return names_.Write(parent); }

  // "OPTION" elements, one for each of the user's condensers.
  std::string ReadDom(const DomNode& node) { return names_.ReadDom(node); }
  void WriteDom(DomDocument& document, DomNode section) const {
    names_.WriteDom(document, section);
  }

 private:
  OptionNames names_;
};

}  // namespace mortane
