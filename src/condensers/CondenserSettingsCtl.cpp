#include "condensers/CondenserSettingsCtl.h"

#include "condensers/CondenserCassetteCtl.h"
#include "condensers/CondenserOptionCtl.h"
#include "condensers/clsCondenser.h"
#include "widgets/SectionBar.h"

namespace mortane {

using namespace Qt::StringLiterals;

CondenserSettingsCtl::CondenserSettingsCtl(clsCondenser& cassette, clsDbCondenser& condensers,
                                           QWidget* parent)
    : ContainerPage(IconName::Condenser, u"Condensers"_s, parent) {
  optCondenserSetting = sections();
  CondenserCassetteCtl1.Plan(CondenserCassetteCtl::Plan(cassette, condensers));
  CondenserOptionCtl1.Plan({.make = [&condensers] { return new CondenserOptionCtl(condensers); },
                            .load = ChangesNothing});
  const auto hasCondenser = [&cassette] {
    return cassette.parent.IsMounted(accessory::kCondenser) != kNotMounted;
  };
  SetSections({{.caption = u"Condenser"_s,
                .page = CondenserCassetteCtl1,
                .isOffered = hasCondenser,
                .whyNotOffered = u"No condenser is mounted."_s},
               {.caption = u"Optional"_s, .page = CondenserOptionCtl1}},
              {1, 0});
}

}  // namespace mortane
