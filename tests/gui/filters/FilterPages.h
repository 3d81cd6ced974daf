// The pages of the filter area over the units of a model.
#pragma once

#include "filters/FilterItemLists.h"
#include "filters/FilterOptionalItemCtl.h"
#include "filters/FilterOptionalQubeCtl.h"
#include "filters/FilterQubeCtl.h"
#include "filters/FilterQubeSettingsCtl.h"
#include "filters/FilterUnits.h"
#include "gui/support/UnitPageRig.h"

namespace mortane::test {

using PageRig = UnitPageRig<FilterUnits>;

inline FilterItemLists ItemListsOf(FilterUnits& k70) {
  return {k70.Exciter, k70.Dichroic, k70.Barrier};
}

inline FilterQubeCtl* MakeFilterQubeCtl(FilterUnits& k70) {
  return new FilterQubeCtl(k70.curFilter, k70.dbFilter);
}

inline FilterOptionalQubeCtl* MakeFilterOptionalQubeCtl(FilterUnits& k70) {
  return new FilterOptionalQubeCtl(k70.dbFilter, ItemListsOf(k70));
}

inline FilterOptionalItemCtl* MakeFilterOptionalItemCtl(FilterUnits& k70) {
  return new FilterOptionalItemCtl(ItemListsOf(k70));
}

inline FilterQubeSettingsCtl* MakeFilterQubeSettingsCtl(FilterUnits& k70) {
  return new FilterQubeSettingsCtl(k70.curFilter, k70.dbFilter, ItemListsOf(k70));
}

}  // namespace mortane::test
