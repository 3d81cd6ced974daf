#include "ModelRanges.h"

#include "common/Text.h"
#include "condensers/clsCondenser.h"
#include "drives/clsControlOther.h"
#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "filters/clsFilter.h"
#include "interlocks/clsInterLockObservation.h"
#include "interlocks/clsInterLockOffset.h"
#include "interlocks/clsInterLockOther.h"
#include "objectives/clsLimitation.h"
#include "objectives/clsNosepiece.h"
#include "switches/clsControlTactor.h"
#include "switches/clsDbSwitch.h"

namespace mortane::test {
namespace {

bool Within(std::int32_t value, std::int32_t least, std::int32_t most) {
  return value >= least && value <= most;
}

}  // namespace

std::string OutOfRange(const clsK70& k70) {
  for (std::int32_t i = 1; i <= k70.curNosepiece.Count; ++i) {
    if (!Within(k70.curNosepiece.code(i), 0, kHighestCode)) return "objective";
  }
  for (std::int32_t i = 1; i <= k70.curFilter.Count; ++i) {
    if (!Within(k70.curFilter.code(i), 0, kHighestCode)) return "cube";
  }
  for (std::int32_t i = 1; i <= k70.curCondenser.Count; ++i) {
    if (!Within(k70.curCondenser.code(i), 0, kCondenserOptionBase + kOptionPositions)) {
      return "condenser";
    }
  }
  for (const std::int32_t limit :
       {k70.curLimit.curIncrease, k70.curLimit.curSkip, k70.curLimit.curImmersion}) {
    if (!Within(limit, -1, 2)) return "limit";
  }
  for (std::int32_t i = 1; i <= accessory::kCount; ++i) {
    if (i <= 11 && !Within(k70.ILObservation.Status(i), -1, 1)) return "observation";
    for (const std::int32_t state :
         {k70.ILOther.Status(i), k70.ILOther.LightPathStatus(i), k70.ILOther.ZoomStatus(i)}) {
      if (!Within(state, -1, 1)) return "interlock";
    }
  }
  for (const std::int32_t offset : {k70.ILOffset.curND, k70.ILOffset.curFStop,
                                    k70.ILOffset.curEpiFStop, k70.ILOffset.curAStop}) {
    if (!Within(offset, -1, 9)) return "offset";
  }
  if (!Within(k70.CZDrive.curFocusCompensation, -1, 3)) return "focus compensation";
  if (!Within(k70.CXYDrive.curFocusCompensation, -1, 3)) return "stage compensation";
  if (!Within(k70.CZDrive.curLowerLimit, -1, 1)) return "lower limit";
  if (!Within(k70.COther.curBuzzer, -1, 2)) return "buzzer";
  if (!Within(k70.COther.curAutoZ, -1, 1) || !Within(k70.COther.curAutoXY, -1, 1)) return "knob";
  for (std::int16_t i = 1; i <= clsDbSwitch::SwitchCount; ++i) {
    if (!Within(k70.curSwitch.Func(i), -3, 61)) return "switch";
  }
  for (std::int16_t i = 1; i <= clsControlTactor::SwitchCount; ++i) {
    if (!Within(k70.curTactor.Func(i), -3, 61)) return "key";
  }
  if (CharacterCount(k70.SystemName) > controller::kSystemNameLength) return "name";
  return {};
}

}  // namespace mortane::test
