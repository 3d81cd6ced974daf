#include "condensers/CondenserSettingsCtl.h"

#include "condensers/CondenserCassetteCtl.h"
#include "condensers/CondenserOptionCtl.h"
#include "condensers/clsCondenser.h"
#include "widgets/Named.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"

namespace mortane {
namespace {

constexpr int kCassetteOption = 0;
constexpr int kNamesOption = 1;

}  // namespace

CondenserSettingsCtl::CondenserSettingsCtl(clsCondenser& cassette, clsDbCondenser& condensers,
                                           QWidget* parent)
    : ContainerPage(IconName::Condenser, QStringLiteral("Condensers"), grid::kSectionStart, parent),
      Header(Named(header(), "Header")),
      optCondenserSetting(sections()),
      CondenserCassetteCtl1(
          Named(new CondenserCassetteCtl(cassette, condensers), "CondenserCassetteCtl1")),
      CondenserOptionCtl1(Named(new CondenserOptionCtl(condensers), "CondenserOptionCtl1")),
      cassette_(cassette) {
  optCondenserSetting->SetArrayName("optCondenserSetting");
  AddSubPage("Condenser", CondenserCassetteCtl1);
  AddSubPage("Optional", CondenserOptionCtl1);
}

bool CondenserSettingsCtl::HasCondenser() const {
  return cassette_.parent.IsMounted(accessory::kCondenser) != kNotMounted;
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
