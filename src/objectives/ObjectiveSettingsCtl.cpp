#include "objectives/ObjectiveSettingsCtl.h"

#include "objectives/ObjectiveCtl.h"
#include "objectives/ObjectiveLimitCtl.h"
#include "objectives/ObjectiveOptionCtl.h"
#include "objectives/clsLimitation.h"
#include "objectives/clsNosepiece.h"
#include "widgets/SectionBar.h"

namespace mortane {

using namespace Qt::StringLiterals;

ObjectiveSettingsCtl::ObjectiveSettingsCtl(clsNosepiece& nosepiece, clsDbNosepiece& objectives,
                                           clsLimitation& limits, QWidget* parent)
    : ContainerPage(IconName::Objective, u"Objectives"_s, parent) {
  optSettings = sections();
  ObjectiveCtl1.Plan(ObjectiveCtl::Plan(nosepiece, objectives));
  ObjectiveOptionCtl1.Plan(ObjectiveOptionCtl::Plan(objectives));
  ObjectiveLimitCtl1.Plan(
      {.make = [&limits] { return new ObjectiveLimitCtl(limits); }, .load = ChangesNothing});
  const auto hasNosepiece = [&limits] {
    return limits.parent.IsMounted(accessory::kNosepiece) != kNotMounted;
  };
  const auto isLimited = [&limits] { return limits.IsEnable(); };
  SetSections({{.caption = u"Nosepiece"_s,
                .page = ObjectiveCtl1,
                .isOffered = hasNosepiece,
                .whyNotOffered = u"No nosepiece is mounted."_s},
               {.caption = u"Optional Obj."_s, .page = ObjectiveOptionCtl1},
               {.caption = u"Limit Control"_s,
                .page = ObjectiveLimitCtl1,
                .isOffered = isLimited,
                .whyNotOffered = u"No motorised nosepiece with limits is mounted."_s}},
              {1, 2, 0});
}

}  // namespace mortane
