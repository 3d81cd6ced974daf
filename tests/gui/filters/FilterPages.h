// The pages of the filter area over the units of a model.
#pragma once

#include "filters/FilterItemLists.h"
#include "filters/FilterOptionalItemCtl.h"
#include "filters/FilterOptionalQubeCtl.h"
#include "filters/FilterQubeCtl.h"
#include "filters/FilterQubeSettingsCtl.h"
#include "hub/clsK70.h"

namespace mortane::test {

inline FilterItemLists ItemListsOf(clsK70& k70) {
  return {k70.Exciter, k70.Dichroic, k70.Barrier};
}

inline FilterQubeCtl* MakeFilterQubeCtl(clsK70& k70) {
  return new FilterQubeCtl(k70.curFilter, k70.dbFilter);
}

inline FilterOptionalQubeCtl* MakeFilterOptionalQubeCtl(clsK70& k70) {
  return new FilterOptionalQubeCtl(k70.dbFilter, ItemListsOf(k70));
}

inline FilterOptionalItemCtl* MakeFilterOptionalItemCtl(clsK70& k70) {
  return new FilterOptionalItemCtl(ItemListsOf(k70));
}

inline FilterQubeSettingsCtl* MakeFilterQubeSettingsCtl(clsK70& k70) {
  return new FilterQubeSettingsCtl(k70.curFilter, k70.dbFilter, ItemListsOf(k70));
}

}  // namespace mortane::test
