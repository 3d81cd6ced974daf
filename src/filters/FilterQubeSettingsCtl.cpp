#include "filters/FilterQubeSettingsCtl.h"

#include <QAbstractButton>

#include "filters/FilterOptionalItemCtl.h"
#include "filters/FilterOptionalQubeCtl.h"
#include "filters/FilterQubeCtl.h"
#include "hub/clsK70.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"

namespace mortane {
namespace {

constexpr int kTurretSection = 0;
constexpr int kCubeSection = 1;

bool HasTurret() {
  return GetK70().IsMounted(accessory::kFilterCube) != kNotMounted;
}

}  // namespace

FilterQubeSettingsCtl::FilterQubeSettingsCtl(QWidget* parent)
    : ContainerPage(IconName::Cube, QStringLiteral("Filter Cubes"), grid::kSectionStart, parent),
      Header(header()),
      optFilterSetting{},
      FilterQubeCtl1(new FilterQubeCtl),
      FilterOptionalQubeCtl1(new FilterOptionalQubeCtl),
      FilterOptionalItemCtl1(new FilterOptionalItemCtl) {
  Header->setObjectName("Header");
  FilterQubeCtl1->setObjectName("FilterQubeCtl1");
  FilterOptionalQubeCtl1->setObjectName("FilterOptionalQubeCtl1");
  FilterOptionalItemCtl1->setObjectName("FilterOptionalItemCtl1");
  sections()->SetArrayName("optFilterSetting");
  AddSubPage(QStringLiteral("Filter Cube"), FilterQubeCtl1);
  AddSubPage(QStringLiteral("Optional Cube"), FilterOptionalQubeCtl1);
  AddSubPage(QStringLiteral("Optional Item"), FilterOptionalItemCtl1);
  for (std::size_t i = 0; i < optFilterSetting.size(); ++i) {
    optFilterSetting[i] = sections()->option(static_cast<int>(i));
  }
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
