// The attributes of one element of a settings file, by name without regard to case.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/Dom.h"

namespace mortane {

// Of attributes whose names differ only in case the last one counts.
class ElementFields {
 public:
  // What Number returns for a missing attribute.
  static constexpr std::int32_t kAbsent = -1;

  explicit ElementFields(const DomNode& node) : attributes_(node.Attributes()) {}

  bool Has(std::string_view name) const { return Find(name) != nullptr; }
  // Empty when there is no such attribute.
  std::string Text(std::string_view name) const;
  // kAbsent when there is no such attribute, 0 when its text is no number.
  std::int32_t Number(std::string_view name) const;

 private:
  const DomAttribute* Find(std::string_view name) const;

  std::vector<DomAttribute> attributes_;
};

}  // namespace mortane
