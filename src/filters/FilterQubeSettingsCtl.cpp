#include "filters/FilterQubeSettingsCtl.h"

#include "filters/FilterOptionalItemCtl.h"
#include "filters/FilterOptionalQubeCtl.h"
#include "filters/FilterQubeCtl.h"
#include "filters/clsDbFilter.h"
#include "filters/clsFilter.h"
#include "widgets/SectionBar.h"

namespace mortane {

using namespace Qt::StringLiterals;

FilterQubeSettingsCtl::FilterQubeSettingsCtl(clsFilter& turret, clsDbFilter& cubes,
                                             const FilterItemLists& items, QWidget* parent)
    : ContainerPage(IconName::Cube, u"Filter Cubes"_s, parent) {
  optFilterSetting = sections();
  FilterQubeCtl1.Plan(FilterQubeCtl::Plan(turret, cubes));
  FilterOptionalQubeCtl1.Plan(
      {.make = [&cubes, items] { return new FilterOptionalQubeCtl(cubes, items); }});
  FilterOptionalItemCtl1.Plan(
      {.make = [items] { return new FilterOptionalItemCtl(items); }, .load = ChangesNothing});
  const auto hasTurret = [&turret] {
    return turret.parent.IsMounted(accessory::kFilterCube) != kNotMounted;
  };
  SetSections({{.caption = u"Filter Cube"_s,
                .page = FilterQubeCtl1,
                .isOffered = hasTurret,
                .whyNotOffered = u"No filter cube turret is mounted."_s},
               {.caption = u"Optional Cube"_s, .page = FilterOptionalQubeCtl1},
               {.caption = u"Optional Item"_s, .page = FilterOptionalItemCtl1}},
              {2, 0});
}

}  // namespace mortane
