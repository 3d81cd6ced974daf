#include "filters/FilterQubeSettingsCtl.h"

#include <QAbstractButton>

#include "filters/FilterOptionalItemCtl.h"
#include "filters/FilterOptionalQubeCtl.h"
#include "filters/FilterQubeCtl.h"
#include "filters/clsDbFilter.h"
#include "filters/clsFilter.h"
#include "widgets/Named.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"

namespace mortane {
namespace {

constexpr int kTurretSection = 0;
constexpr int kCubeSection = 1;

}  // namespace

FilterQubeSettingsCtl::FilterQubeSettingsCtl(clsFilter& turret, clsDbFilter& cubes,
                                             const FilterItemLists& items, QWidget* parent)
    : ContainerPage(IconName::Cube, QStringLiteral("Filter Cubes"), grid::kSectionStart, parent),
      Header(Named(header(), "Header")),
      optFilterSetting{},
      FilterQubeCtl1(Named(new FilterQubeCtl(turret, cubes), "FilterQubeCtl1")),
      FilterOptionalQubeCtl1(
          Named(new FilterOptionalQubeCtl(cubes, items), "FilterOptionalQubeCtl1")),
      FilterOptionalItemCtl1(Named(new FilterOptionalItemCtl(items), "FilterOptionalItemCtl1")),
      turret_(turret) {
  sections()->SetArrayName("optFilterSetting");
  AddSubPage(QStringLiteral("Filter Cube"), FilterQubeCtl1);
  AddSubPage(QStringLiteral("Optional Cube"), FilterOptionalQubeCtl1);
  AddSubPage(QStringLiteral("Optional Item"), FilterOptionalItemCtl1);
  for (std::size_t i = 0; i < optFilterSetting.size(); ++i) {
    optFilterSetting[i] = sections()->option(static_cast<int>(i));
  }
}

bool FilterQubeSettingsCtl::HasTurret() const {
  return turret_.parent.IsMounted(accessory::kFilterCube) != kNotMounted;
}

void FilterQubeSettingsCtl::LoadData() {
  FilterOptionalItemCtl1->LoadData();
  const bool fitted = HasTurret();
  if (fitted) FilterQubeCtl1->LoadData();
  sections()->SetOptionEnabled(kTurretSection, fitted);
  sections()->select(fitted ? kTurretSection : kCubeSection);
}

void FilterQubeSettingsCtl::SaveData() {
  FilterOptionalItemCtl1->SaveData();
  if (HasTurret()) FilterQubeCtl1->SaveData();
}

}  // namespace mortane
