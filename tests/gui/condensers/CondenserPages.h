// The pages of the condenser area over the units of a model.
#pragma once

#include "condensers/CondenserCassetteCtl.h"
#include "condensers/CondenserOptionCtl.h"
#include "condensers/CondenserSettingsCtl.h"
#include "condensers/CondenserUnits.h"
#include "gui/support/UnitPageRig.h"

namespace mortane::test {

using PageRig = UnitPageRig<CondenserUnits>;

inline CondenserCassetteCtl* MakeCondenserCassetteCtl(CondenserUnits& k70) {
  return new CondenserCassetteCtl(k70.curCondenser, k70.dbcon);
}

inline CondenserOptionCtl* MakeCondenserOptionCtl(CondenserUnits& k70) {
  return new CondenserOptionCtl(k70.dbcon);
}

inline CondenserSettingsCtl* MakeCondenserSettingsCtl(CondenserUnits& k70) {
  return new CondenserSettingsCtl(k70.curCondenser, k70.dbcon);
}

}  // namespace mortane::test
