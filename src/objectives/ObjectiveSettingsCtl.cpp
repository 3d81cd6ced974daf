#include "objectives/ObjectiveSettingsCtl.h"

#include "objectives/ObjectiveCtl.h"
#include "objectives/ObjectiveLimitCtl.h"
#include "objectives/ObjectiveOptionCtl.h"
#include "objectives/clsLimitation.h"
#include "objectives/clsNosepiece.h"

namespace mortane {

ObjectiveSettingsCtl::ObjectiveSettingsCtl(clsNosepiece& nosepiece, clsDbNosepiece& objectives,
                                           clsLimitation& limits, QWidget* parent)
    : ContainerPage(IconName::Objective, QStringLiteral("Objectives"), "optSettings", parent),
      optSettings(sections()),
      ObjectiveCtl1(new ObjectiveCtl(nosepiece, objectives)),
      ObjectiveOptionCtl1(new ObjectiveOptionCtl(objectives)),
      ObjectiveLimitCtl1(new ObjectiveLimitCtl(limits)) {
  const auto hasNosepiece = [&limits] {
    return limits.parent.IsMounted(accessory::kNosepiece) != kNotMounted;
  };
  const auto isLimited = [&limits] { return limits.IsEnable(); };
  SetSections(
      {{"Nosepiece", "ObjectiveCtl1", ObjectiveCtl1, hasNosepiece, {}, "No nosepiece is mounted."},
       {"Optional Obj.", "ObjectiveOptionCtl1", ObjectiveOptionCtl1},
       {"Limit Control",
        "ObjectiveLimitCtl1",
        ObjectiveLimitCtl1,
        isLimited,
        {},
        "No motorised nosepiece with limits is mounted."}},
      {1, 2, 0});
}

}  // namespace mortane
