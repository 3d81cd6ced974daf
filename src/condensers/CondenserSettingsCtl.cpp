#include "condensers/CondenserSettingsCtl.h"

#include "condensers/CondenserCassetteCtl.h"
#include "condensers/CondenserOptionCtl.h"
#include "condensers/clsCondenser.h"

namespace mortane {

CondenserSettingsCtl::CondenserSettingsCtl(clsCondenser& cassette, clsDbCondenser& condensers,
                                           QWidget* parent)
    : ContainerPage(IconName::Condenser, QStringLiteral("Condensers"), "optCondenserSetting",
                    parent),
      optCondenserSetting(sections()),
      CondenserCassetteCtl1(new CondenserCassetteCtl(cassette, condensers)),
      CondenserOptionCtl1(new CondenserOptionCtl(condensers)) {
  const auto hasCondenser = [&cassette] {
    return cassette.parent.IsMounted(accessory::kCondenser) != kNotMounted;
  };
  SetSections({{"Condenser",
                "CondenserCassetteCtl1",
                CondenserCassetteCtl1,
                hasCondenser,
                {},
                "No condenser is mounted."},
               {"Optional", "CondenserOptionCtl1", CondenserOptionCtl1}},
              {1, 0});
}

}  // namespace mortane
