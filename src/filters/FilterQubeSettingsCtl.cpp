#include "filters/FilterQubeSettingsCtl.h"

#include "filters/FilterOptionalItemCtl.h"
#include "filters/FilterOptionalQubeCtl.h"
#include "filters/FilterQubeCtl.h"
#include "filters/clsDbFilter.h"
#include "filters/clsFilter.h"

namespace mortane {

FilterQubeSettingsCtl::FilterQubeSettingsCtl(clsFilter& turret, clsDbFilter& cubes,
                                             const FilterItemLists& items, QWidget* parent)
    : ContainerPage(IconName::Cube, QStringLiteral("Filter Cubes"), "optFilterSetting", parent),
      optFilterSetting(sections()),
      FilterQubeCtl1(new FilterQubeCtl(turret, cubes)),
      FilterOptionalQubeCtl1(new FilterOptionalQubeCtl(cubes, items)),
      FilterOptionalItemCtl1(new FilterOptionalItemCtl(items)) {
  const auto hasTurret = [&turret] {
    return turret.parent.IsMounted(accessory::kFilterCube) != kNotMounted;
  };
  SetSections({{"Filter Cube",
                "FilterQubeCtl1",
                FilterQubeCtl1,
                hasTurret,
                {},
                "No filter cube turret is mounted."},
               {"Optional Cube", "FilterOptionalQubeCtl1", FilterOptionalQubeCtl1},
               {"Optional Item", "FilterOptionalItemCtl1", FilterOptionalItemCtl1}},
              {2, 0});
}

}  // namespace mortane
