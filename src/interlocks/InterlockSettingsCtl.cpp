#include "interlocks/InterlockSettingsCtl.h"

#include <QShowEvent>
#include <array>

#include "interlocks/InterlockObservationCtl.h"
#include "interlocks/InterlockOffsetCtl.h"
#include "interlocks/InterlockOtherCtl.h"
#include "interlocks/clsInterLockObservation.h"
#include "interlocks/clsInterLockOffset.h"
#include "interlocks/clsInterLockOther.h"
#include "widgets/SectionBar.h"

namespace mortane {

using namespace Qt::StringLiterals;

InterlockSettingsCtl::InterlockSettingsCtl(const Units& units, const DriveFollowers& drives,
                                           QWidget* parent)
    : ContainerPage(IconName::Interlock, u"Interlocks"_s, parent), other_(units.other) {
  optSettings = sections();
  const auto enabled = [this](Page* page, int section) {
    page->setEnabled(IsOffered(section));
    return page;
  };
  InterlockObservationCtl1.Plan(
      {.make = [=, &unit =
                       units.observation] { return enabled(new InterlockObservationCtl(unit), 0); },
       .load = ChangesNothing});
  InterlockOtherCtl1.Plan({.make = [=, &unit = units.other] {
    return enabled(new InterlockOtherCtl(unit, drives), 1);
  }});
  InterlockOffsetCtl1.Plan(
      {.make = [=, &unit = units.offset] { return enabled(new InterlockOffsetCtl(unit), 2); },
       .load = ChangesNothing});
  const auto isEnable = [](const auto& unit) { return [&unit] { return unit.IsEnable(); }; };
  SetSections({{u"Observation"_s, InterlockObservationCtl1, isEnable(units.observation),
                KeepAsLoaded, u"Nothing is mounted that follows the observation method."_s},
               {u"Other"_s, InterlockOtherCtl1, isEnable(units.other), KeepAsLoaded,
                u"Nothing is mounted that follows nosepiece, light path or zoom."_s},
               {u"Compensation"_s, InterlockOffsetCtl1, isEnable(units.offset), KeepAsLoaded,
                u"Nothing is mounted that is compensated."_s}},
              {2, 1, 0});
}

void InterlockSettingsCtl::LoadData() {
  ContainerPage::LoadData();
  const std::array<Page*, 3> subPages{InterlockObservationCtl1.made(), InterlockOtherCtl1.made(),
                                      InterlockOffsetCtl1.made()};
  for (std::size_t i = 0; i < subPages.size(); ++i) {
    if (subPages[i] != nullptr) subPages[i]->setEnabled(IsOffered(static_cast<int>(i)));
  }
}

// A window that comes back from the task bar shows its pages again, spontaneously.
void InterlockSettingsCtl::showEvent(QShowEvent* event) {
  ContainerPage::showEvent(event);
  if (event->spontaneous() || other_.parent.Controller(controllerunit::kUnit5)) return;
  InterlockOtherCtl1->LoadData();
}

}  // namespace mortane
