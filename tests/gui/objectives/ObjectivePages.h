// The pages of the objective area over the units of a model.
#pragma once

#include "gui/support/UnitPageRig.h"
#include "objectives/ObjectiveCtl.h"
#include "objectives/ObjectiveLimitCtl.h"
#include "objectives/ObjectiveOptionCtl.h"
#include "objectives/ObjectiveSettingsCtl.h"
#include "objectives/ObjectiveUnits.h"

namespace mortane::test {

using PageRig = UnitPageRig<ObjectiveUnits>;

inline ObjectiveCtl* MakeObjectiveCtl(ObjectiveUnits& k70) {
  return new ObjectiveCtl(k70.curNosepiece, k70.DbNosepiece);
}

inline ObjectiveLimitCtl* MakeObjectiveLimitCtl(ObjectiveUnits& k70) {
  return new ObjectiveLimitCtl(k70.curLimit);
}

inline ObjectiveOptionCtl* MakeObjectiveOptionCtl(ObjectiveUnits& k70) {
  return new ObjectiveOptionCtl(k70.DbNosepiece);
}

inline ObjectiveSettingsCtl* MakeObjectiveSettingsCtl(ObjectiveUnits& k70) {
  return new ObjectiveSettingsCtl(k70.curNosepiece, k70.DbNosepiece, k70.curLimit);
}

}  // namespace mortane::test
