// The excitation filters, dichroic mirrors and barrier filters that a controller knows.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "document/Dom.h"
#include "filters/FilterItem.h"
#include "model/ConnectedMicroscope.h"
#include "model/OptionNames.h"

namespace mortane {

// The elements of a cube's items in a settings file.
inline constexpr std::array<std::string_view, kFilterItems> kFilterItemElements{
    "EXCITER", "DICHROIC", "BARRIER"};

// The constants of one of the three lists.
const NameListKind& FilterItemKind(FilterItem item);

// One list of items: fixed ones and nine that the user names. Owned by clsK70. Codes are 0 to
// 249; position n, 1 to 9, of the user's items is code 240 + n.
template <FilterItem kItem>
class FilterItemNames {
 public:
  explicit FilterItemNames(ConnectedMicroscope& microscope) : parent(microscope) {}

  static constexpr std::string_view kElement = kFilterItemElements[static_cast<std::size_t>(kItem)];

  ConnectedMicroscope& parent;

  // Empty for another code.
  std::string Name(std::int32_t code) const { return names_.Name(code); }
  // Keeps the first ten characters; ignores another code.
  void Name(std::int32_t code, std::string_view name) { names_.Name(code, name); }

  std::int32_t FixedCount() const { return names_.FixedCount(parent); }

  std::string ReadSdk() { return names_.Read(parent); }
  std::string ModifySdk(std::string& list) const { return names_.Modify(parent, list); }
  std::string WriteSdk() const { return names_.Write(parent); }

  // "EXCITER", "DICHROIC" or "BARRIER" elements, one for each of the user's items.
  std::string ReadDom(const DomNode& node) { return names_.ReadDom(node); }
  void WriteDom(DomDocument& document, DomNode section) const {
    names_.WriteDom(document, section);
  }

 private:
  OptionNames names_{FilterItemKind(kItem)};
};

}  // namespace mortane
