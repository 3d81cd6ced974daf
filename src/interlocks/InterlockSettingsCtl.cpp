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
namespace {

constexpr int kObservation = 0;
constexpr int kOther = 1;
constexpr int kCompensation = 2;

}  // namespace

InterlockSettingsCtl::InterlockSettingsCtl(const Units& units, const DriveFollowers& drives,
                                           QWidget* parent)
    : ContainerPage(IconName::Interlock, u"Interlocks"_s, parent), other_(units.other) {
  optSettings = sections();
  PlanSubPages(units, drives);
  const auto isEnable = [](const auto& unit) { return [&unit] { return unit.IsEnable(); }; };
  SetSections(
      {{.caption = u"Observation"_s,
        .page = InterlockObservationCtl1,
        .isOffered = isEnable(units.observation),
        .open = KeepAsLoaded,
        .whyNotOffered = u"Nothing is mounted that follows the observation method."_s},
       {.caption = u"Other"_s,
        .page = InterlockOtherCtl1,
        .isOffered = isEnable(units.other),
        .open = KeepAsLoaded,
        .whyNotOffered = u"Nothing is mounted that follows nosepiece, light path or zoom."_s},
       {.caption = u"Compensation"_s,
        .page = InterlockOffsetCtl1,
        .isOffered = isEnable(units.offset),
        .open = KeepAsLoaded,
        .whyNotOffered = u"Nothing is mounted that is compensated."_s}},
      {kCompensation, kOther, kObservation});
}

void InterlockSettingsCtl::PlanSubPages(const Units& units, const DriveFollowers& drives) {
  const auto enabled = [this](Page* page, int section) {
    page->setEnabled(IsOffered(section));
    return page;
  };
  InterlockObservationCtl1.Plan({.make =
                                     [enabled, &unit = units.observation] {
                                       return enabled(new InterlockObservationCtl(unit),
                                                      kObservation);
                                     },
                                 .load = ChangesNothing});
  InterlockOtherCtl1.Plan({.make = [enabled, drives, &unit = units.other] {
    return enabled(new InterlockOtherCtl(unit, drives), kOther);
  }});
  InterlockOffsetCtl1.Plan({.make =
                                [enabled, &unit = units.offset] {
                                  return enabled(new InterlockOffsetCtl(unit), kCompensation);
                                },
                            .load = ChangesNothing});
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
