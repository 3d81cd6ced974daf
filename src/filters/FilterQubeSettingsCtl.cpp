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
  SetSections({{u"Filter Cube"_s,

                FilterQubeCtl1,
                hasTurret,
                {},
                u"No filter cube turret is mounted."_s},
               {u"Optional Cube"_s, FilterOptionalQubeCtl1},
               {u"Optional Item"_s, FilterOptionalItemCtl1}},
              {2, 0});
}

}  // namespace mortane
