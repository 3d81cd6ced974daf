#include "objectives/AdoptiveCondensers.h"

#include "common/Failure.h"

namespace mortane {
namespace {

constexpr std::string_view kBlankRecord = "--";

// Records that are never offered as the condenser of an objective.
bool IsNeverOffered(std::int32_t code) {
  return code == 1 || code == 4 || code == 8;
}

}  // namespace

bool HasLiveCondenser(const ConnectedMicroscope& microscope) {
  try {
    return microscope.Mic.CondenserDevice().AccessoryState().State() == 1;
  } catch (const Failure&) {
    return false;
  }
}

AdoptiveCondensers ReadAdoptiveCondensers(const ConnectedMicroscope& microscope) {
  AdoptiveCondensers condensers;
  try {
    const auto records = microscope.Mic.AccessoryDatabase().Condensers();
    condensers.recordCount = records.Count();
    for (std::int32_t code = 1; code <= condensers.recordCount; ++code) {
      const controller::CondenserRecord record = records.Item(code);
      std::string name = record.Name();
      if (name.starts_with(kBlankRecord) || record.IsOption()) break;
      if (!IsNeverOffered(code)) condensers.choices.push_back({code, std::move(name)});
    }
  } catch (const Failure&) {
    return condensers;
  }
  return condensers;
}

}  // namespace mortane
