#include "condensers/CondenserSettingsCtl.h"

#include "condensers/CondenserCassetteCtl.h"
#include "condensers/CondenserOptionCtl.h"
#include "hub/clsK70.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"

namespace mortane {
namespace {

constexpr int kCassetteOption = 0;
constexpr int kNamesOption = 1;

bool HasCondenser() {
  return GetK70().IsMounted(accessory::kCondenser) != kNotMounted;
}

}  // namespace

CondenserSettingsCtl::CondenserSettingsCtl(QWidget* parent)
    : ContainerPage(IconName::Condenser, QStringLiteral("Condensers"), grid::kSectionStart, parent),
      Header(header()),
      optCondenserSetting(sections()),
      CondenserCassetteCtl1(new CondenserCassetteCtl),
      CondenserOptionCtl1(new CondenserOptionCtl) {
  Header->setObjectName("Header");
  CondenserCassetteCtl1->setObjectName("CondenserCassetteCtl1");
  CondenserOptionCtl1->setObjectName("CondenserOptionCtl1");
  optCondenserSetting->SetArrayName("optCondenserSetting");
  AddSubPage("Condenser", CondenserCassetteCtl1);
  AddSubPage("Optional", CondenserOptionCtl1);
}

void CondenserSettingsCtl::LoadData() {
  CondenserOptionCtl1->LoadData();
  const bool mounted = HasCondenser();
  if (mounted) CondenserCassetteCtl1->LoadData();
  optCondenserSetting->SetOptionEnabled(kCassetteOption, mounted);
  optCondenserSetting->select(mounted ? kCassetteOption : kNamesOption);
}

void CondenserSettingsCtl::SaveData() {
  CondenserOptionCtl1->SaveData();
  if (HasCondenser()) CondenserCassetteCtl1->SaveData();
}

}  // namespace mortane
