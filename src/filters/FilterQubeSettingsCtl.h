// The page of the filter area: the turret, the user's cubes and the user's items.
#pragma once

#include "widgets/ContainerPage.h"

namespace mortane {

class FilterOptionalItemCtl;
class FilterOptionalQubeCtl;
class FilterQubeCtl;
class clsDbFilter;
class clsFilter;
struct FilterItemLists;

// Opens on the turret where there is one, otherwise on the user's cubes. Kept: saving leaves the
// user's cubes alone, so that a name that was typed there but not committed is not taken.
class FilterQubeSettingsCtl : public ContainerPage {
  Q_OBJECT

 public:
  FilterQubeSettingsCtl(clsFilter& turret, clsDbFilter& cubes, const FilterItemLists& items,
                        QWidget* parent = nullptr);

  Control<SectionBar> optFilterSetting{"optFilterSetting"};
  LateControl<FilterQubeCtl> FilterQubeCtl1{"FilterQubeCtl1"};
  LateControl<FilterOptionalQubeCtl> FilterOptionalQubeCtl1{"FilterOptionalQubeCtl1"};
  LateControl<FilterOptionalItemCtl> FilterOptionalItemCtl1{"FilterOptionalItemCtl1"};
};

}  // namespace mortane
