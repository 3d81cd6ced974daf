// The pages of the objective area over the units of a model.
#pragma once

#include "hub/clsK70.h"
#include "objectives/ObjectiveCtl.h"
#include "objectives/ObjectiveLimitCtl.h"
#include "objectives/ObjectiveOptionCtl.h"
#include "objectives/ObjectiveSettingsCtl.h"

namespace mortane::test {

inline ObjectiveCtl* MakeObjectiveCtl(clsK70& k70) {
  return new ObjectiveCtl(k70.curNosepiece, k70.DbNosepiece);
}

inline ObjectiveLimitCtl* MakeObjectiveLimitCtl(clsK70& k70) {
  return new ObjectiveLimitCtl(k70.curLimit);
}

inline ObjectiveOptionCtl* MakeObjectiveOptionCtl(clsK70& k70) {
  return new ObjectiveOptionCtl(k70.DbNosepiece);
}

inline ObjectiveSettingsCtl* MakeObjectiveSettingsCtl(clsK70& k70) {
  return new ObjectiveSettingsCtl(k70.curNosepiece, k70.DbNosepiece, k70.curLimit);
}

}  // namespace mortane::test
