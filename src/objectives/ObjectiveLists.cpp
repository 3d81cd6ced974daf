#include "objectives/ObjectiveLists.h"

#include <string>

#include "common/Failure.h"

namespace mortane {

std::string NameList::Name(std::int32_t index) const {
  return Has(index) ? names_[static_cast<std::size_t>(index)] : std::string();
}

void NameList::Resize(std::int32_t highestIndex) {
  if (highestIndex < 0) {
    RaiseOwnFailure(kSubscriptError,
                    "The controller counts " + std::to_string(highestIndex) + " names.");
  }
  names_.assign(static_cast<std::size_t>(highestIndex) + 1, {});
}

void NameList::Fill(const controller::AccessoryDatabase& database, Items items) {
  names_[0] = dashes_;
  if (HighestIndex() == 0) return;
  const controller::RecordList<controller::NamedItem> list = (database.*items)();
  for (std::int32_t i = 1; i <= HighestIndex(); ++i) {
    names_[static_cast<std::size_t>(i)] = list.Item(i).Name();
  }
}

void ObjectiveLists::Load(const controller::AccessoryDatabase& database) {
  const std::int32_t seriesCount = database.ObjectiveSeriesCount();
  const std::int32_t typeCount = database.ObjectiveTypeCount();
  series.Resize(seriesCount);
  types.Resize(typeCount);
  series.Fill(database, &controller::AccessoryDatabase::ObjectiveSeries);
  types.Fill(database, &controller::AccessoryDatabase::ObjectiveTypes);
}

}  // namespace mortane
