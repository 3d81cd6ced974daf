// The names behind the codes of a configuration.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "record/ConfigurationItems.h"

namespace mortane {

class clsK70;

// The lists of names that codes of items point into.
enum class CodeList : std::size_t {
  Objectives,
  Series,
  Types,
  Cubes,
  Exciters,
  Dichroics,
  Barriers,
  Condensers,
};
inline constexpr std::size_t kCodeLists = 8;

class ItemNames {
 public:
  // No names but those that the items themselves give: those of the user's records.
  explicit ItemNames(const std::vector<ConfigurationItem>& items);
  // The lists that the connected microscope gave, as the model holds them now.
  explicit ItemNames(const clsK70& k70);

  // Of an objective; nothing when it is not known.
  std::optional<double> Magnification(std::int32_t code) const;

  // Null for a code without a name, one that is blank included.
  const std::string* Find(CodeList list, std::int32_t code) const;

 private:
  void Add(CodeList list, std::int32_t code, std::string name);

  std::array<std::map<std::int32_t, std::string>, kCodeLists> lists_;
  std::map<std::int32_t, double> magnifications_;
};

}  // namespace mortane
