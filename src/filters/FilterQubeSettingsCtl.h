// The page of the filter area: the turret, the user's cubes and the user's items.
#pragma once

#include <array>

#include "widgets/ContainerPage.h"

class QAbstractButton;

namespace mortane {

class FilterOptionalItemCtl;
class FilterOptionalQubeCtl;
class FilterQubeCtl;
class clsDbFilter;
class clsFilter;
struct FilterItemLists;

// Loading shows the turret where there is one, otherwise the user's cubes. Saving leaves the
// user's cubes alone: a name that was typed there but not accepted is not taken.
class FilterQubeSettingsCtl : public ContainerPage {
  Q_OBJECT

 public:
  FilterQubeSettingsCtl(clsFilter& turret, clsDbFilter& cubes, const FilterItemLists& items,
                        QWidget* parent = nullptr);

  void LoadData() override;
  void SaveData() override;

  PageHeader* Header;
  std::array<QAbstractButton*, 3> optFilterSetting;
  FilterQubeCtl* FilterQubeCtl1;
  FilterOptionalQubeCtl* FilterOptionalQubeCtl1;
  FilterOptionalItemCtl* FilterOptionalItemCtl1;

 private:
  bool HasTurret() const;

  clsFilter& turret_;
};

}  // namespace mortane
