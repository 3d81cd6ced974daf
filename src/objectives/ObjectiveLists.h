// The names of objective series and types, as the controller gives them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "controller/AccessoryDatabase.h"

namespace mortane {

// Names count from 1 as in the controller; entry 0 is a row of dashes.
class NameList {
 public:
  explicit NameList(std::string_view dashes) : dashes_(dashes), names_{std::string(dashes)} {}

  std::int32_t HighestIndex() const { return static_cast<std::int32_t>(names_.size()) - 1; }
  bool Has(std::int32_t index) const { return index >= 0 && index <= HighestIndex(); }
  // Empty for an index out of range.
  std::string Name(std::int32_t index) const;

  // Discards all names and the row of dashes. A count below 0 raises a failure.
  void Resize(std::int32_t highestIndex);
  // Sets the row of dashes and asks for each name in turn; a failure leaves those that were not
  // reached empty.
  using Items =
      controller::RecordList<controller::NamedItem> (controller::AccessoryDatabase::*)() const;
  void Fill(const controller::AccessoryDatabase& database, Items items);

 private:
  std::string_view dashes_;
  std::vector<std::string> names_;
};

struct ObjectiveLists {
  NameList series{"-----------"};
  NameList types{"--------"};

  bool IsLoaded() const { return series.HighestIndex() > 0; }
  // Raises what the library raises. Both lists have their size before the first name is asked.
  void Load(const controller::AccessoryDatabase& database);
};

}  // namespace mortane
