// The excitation filters, dichroic mirrors and barrier filters that a controller knows.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "document/Dom.h"
#include "model/ConnectedMicroscope.h"
#include "model/OptionNames.h"

namespace mortane {

// The items of a filter cube, in the order in which a cube names them.
enum class FilterItem : std::size_t { Exciter, Dichroic, Barrier };
inline constexpr std::size_t kFilterItems = 3;

// Their elements in a settings file.
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

using clsDbExciter = FilterItemNames<FilterItem::Exciter>;
using clsDbDichroic = FilterItemNames<FilterItem::Dichroic>;
using clsDbBarrier = FilterItemNames<FilterItem::Barrier>;

}  // namespace mortane
