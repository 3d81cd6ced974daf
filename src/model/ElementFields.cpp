#include "model/ElementFields.h"

#include <algorithm>

#include "common/Numbers.h"
#include "common/Text.h"

namespace mortane {

const DomAttribute* ElementFields::Find(std::string_view name) const {
  const auto last = std::find_if(
      attributes_.rbegin(), attributes_.rend(),
      [&](const DomAttribute& attribute) { return EqualsIgnoringCase(attribute.name, name); });
  return last == attributes_.rend() ? nullptr : &*last;
}

std::string ElementFields::Text(std::string_view name) const {
  const DomAttribute* attribute = Find(name);
  return attribute == nullptr ? std::string() : attribute->value;
}

std::int32_t ElementFields::Number(std::string_view name) const {
  const DomAttribute* attribute = Find(name);
  return attribute == nullptr ? kAbsent : ToLong(attribute->value, PointFormat());
}

}  // namespace mortane
