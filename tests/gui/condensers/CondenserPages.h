// The pages of the condenser area over the units of a model.
#pragma once

#include "condensers/CondenserCassetteCtl.h"
#include "condensers/CondenserOptionCtl.h"
#include "condensers/CondenserSettingsCtl.h"
#include "hub/clsK70.h"

namespace mortane::test {

inline CondenserCassetteCtl* MakeCondenserCassetteCtl(clsK70& k70) {
  return new CondenserCassetteCtl(k70.curCondenser, k70.dbcon);
}

inline CondenserOptionCtl* MakeCondenserOptionCtl(clsK70& k70) {
  return new CondenserOptionCtl(k70.dbcon);
}

inline CondenserSettingsCtl* MakeCondenserSettingsCtl(clsK70& k70) {
  return new CondenserSettingsCtl(k70.curCondenser, k70.dbcon);
}

}  // namespace mortane::test
