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
  InterlockObservationCtl1 = new InterlockObservationCtl(units.observation);
  InterlockOtherCtl1 = new InterlockOtherCtl(units.other, drives);
  InterlockOffsetCtl1 = new InterlockOffsetCtl(units.offset);
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
  const std::array<Page*, 3> subPages{InterlockObservationCtl1, InterlockOtherCtl1,
                                      InterlockOffsetCtl1};
  for (std::size_t i = 0; i < subPages.size(); ++i) {
    subPages[i]->setEnabled(IsOffered(static_cast<int>(i)));
  }
}

// A window that comes back from the task bar shows its pages again, spontaneously.
void InterlockSettingsCtl::showEvent(QShowEvent* event) {
  ContainerPage::showEvent(event);
  if (event->spontaneous() || other_.parent.Controller(controllerunit::kUnit5)) return;
  InterlockOtherCtl1->LoadData();
}

}  // namespace mortane
