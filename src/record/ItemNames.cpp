#include "record/ItemNames.h"

#include <utility>

#include "common/Numbers.h"
#include "common/Text.h"
#include "condensers/clsDbCondenser.h"
#include "filters/FilterItemNames.h"
#include "filters/clsDbFilter.h"
#include "hub/clsK70.h"
#include "objectives/ObjectiveCode.h"
#include "objectives/clsDbNosepiece.h"

namespace mortane {
namespace {

struct ListOfKind {
  ItemKind kind;
  CodeList list;
  std::int32_t base;  // the code of position 0
};

constexpr std::array<ListOfKind, 6> kListsOfKinds{{
    {ItemKind::ObjectiveName, CodeList::Objectives, kOptionBase},
    {ItemKind::CubeName, CodeList::Cubes, kOptionBase},
    {ItemKind::ExciterName, CodeList::Exciters, kOptionBase},
    {ItemKind::DichroicName, CodeList::Dichroics, kOptionBase},
    {ItemKind::BarrierName, CodeList::Barriers, kOptionBase},
    {ItemKind::CondenserName, CodeList::Condensers, kCondenserOptionBase},
}};

}  // namespace

ItemNames::ItemNames(const std::vector<ConfigurationItem>& items) {
  for (const ConfigurationItem& item : items) {
    const bool isObjective =
        item.kind == ItemKind::ObjectiveCode && CharacterCount(item.value) == kObjectiveCodeLength;
    if (isObjective) {
      magnifications_[kOptionBase + ToLong(item.key.position, PointFormat())] =
          DecodeObjective(item.value).magnification;
    }
    for (const ListOfKind& row : kListsOfKinds) {
      if (row.kind != item.kind) continue;
      const std::int32_t position = ToLong(item.key.position, PointFormat());
      if (IsOptionPosition(position)) Add(row.list, row.base + position, item.value);
    }
  }
}

ItemNames::ItemNames(const clsK70& k70) {
  for (std::int32_t code = 0; code <= kHighestCode; ++code) {
    magnifications_[code] = k70.DbNosepiece.Magnification(code);
    Add(CodeList::Objectives, code, k70.DbNosepiece.Name(code));
    Add(CodeList::Cubes, code, k70.dbFilter.Name(code));
    Add(CodeList::Exciters, code, k70.Exciter.Name(code));
    Add(CodeList::Dichroics, code, k70.Dichroic.Name(code));
    Add(CodeList::Barriers, code, k70.Barrier.Name(code));
    Add(CodeList::Condensers, code, k70.dbcon.Name(code));
  }
  for (std::int32_t i = 0; i <= k70.DbNosepiece.SeriesCount(); ++i) {
    Add(CodeList::Series, i, k70.DbNosepiece.Series(i));
  }
  for (std::int32_t i = 0; i <= k70.DbNosepiece.TypesCount(); ++i) {
    Add(CodeList::Types, i, k70.DbNosepiece.Types(i));
  }
}

std::optional<double> ItemNames::Magnification(std::int32_t code) const {
  const auto found = magnifications_.find(code);
  if (found == magnifications_.end() || found->second == 0) return std::nullopt;
  return found->second;
}

const std::string* ItemNames::Find(CodeList list, std::int32_t code) const {
  const auto& names = lists_[static_cast<std::size_t>(list)];
  const auto found = names.find(code);
  return found == names.end() ? nullptr : &found->second;
}

void ItemNames::Add(CodeList list, std::int32_t code, std::string name) {
  if (Trim(name).empty()) {
    lists_[static_cast<std::size_t>(list)].erase(code);
  } else {
    lists_[static_cast<std::size_t>(list)][code] = std::move(name);
  }
}

}  // namespace mortane
