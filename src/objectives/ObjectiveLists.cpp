#include "objectives/ObjectiveLists.h"

#include "common/Failure.h"

namespace mortane {

std::string NameList::Name(std::int32_t index) const {
  return Has(index) ? names_[static_cast<std::size_t>(index)] : std::string();
}

void NameList::Resize(std::int32_t highestIndex) {
  if (highestIndex < 0) RaiseOwnFailure(kSubscriptError, "A list cannot hold less than nothing.");
  names_.assign(static_cast<std::size_t>(highestIndex) + 1, {});
}

void NameList::Fill(const controller::RecordList<controller::NamedItem>& items) {
  names_[0] = dashes_;
  for (std::int32_t i = 1; i <= HighestIndex(); ++i) {
    names_[static_cast<std::size_t>(i)] = items.Item(i).Name();
  }
}

void ObjectiveLists::Load(const controller::AccessoryDatabase& database) {
  const std::int32_t seriesCount = database.ObjectiveSeriesCount();
  const std::int32_t typeCount = database.ObjectiveTypeCount();
  series.Resize(seriesCount);
  types.Resize(typeCount);
  series.Fill(database.ObjectiveSeries());
  types.Fill(database.ObjectiveTypes());
}

}  // namespace mortane
