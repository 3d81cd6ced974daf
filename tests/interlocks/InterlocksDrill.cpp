// The drill of the interlock units.
#include "support/UnitDrill.h"

namespace mortane::test {
namespace {

UnitDrillData Observation() {
  UnitDrillData data;
  data.name = "InterLockObservation";
  data.bench = "Harbour";
  data.unit = OperationsOf(&clsK70::ILObservation);
  data.edits = {
      {"the first follows",
       [](clsK70& k70) { k70.ILObservation.Status(1, 1); },
       "InterLock Observation[ND]",
       {"ControllerSettings.SetInterlock(1, 1)"}},
      {"one in the middle follows no more",
       [](clsK70& k70) { k70.ILObservation.Status(4, 0); },
       "InterLock Observation[Lamp]",
       {"ControllerSettings.ClearInterlock(4, 1)"}},
      {"the last follows",
       [](clsK70& k70) { k70.ILObservation.Status(11, 1); },
       "InterLock Observation[Light Path]",
       {"ControllerSettings.SetInterlock(11, 1)"}},
  };
  data.readFailure = data.modifyFailure = "InterLock Observation (";
  data.writeFailures = {"InterLock Observation["};
  data.refused = {
      {R"(<OBSERVATION POSITION="Stage" CODE="True"/>)", "InterLock Observation[Stage]"},
      {R"(<OBSERVATION POSITION="stage" CODE="Unknown"/>)", "InterLock Observation[stage]"},
      {R"(<OBSERVATION POSITION="ND" CODE="On"/>)", "InterLock Observation[ND]"},
      {R"(<OBSERVATION POSITION="nd" CODE="1"/>)", "InterLock Observation[nd]"},
      {R"(<OBSERVATION POSITION="ND" CODE=" True"/>)", "InterLock Observation[ND]"},
      {R"(<OBSERVATION POSITION="ND " CODE="True"/>)", "InterLock Observation[ND ]"},
      {R"(<OBSERVATION POSITION="ND"/>)", "InterLock Observation[ND]"},
      {R"(<OBSERVATION CODE="True"/>)", "InterLock Observation[]"},
      {"<OBSERVATION/>", "InterLock Observation[]"},
      {R"(<OBSERVATION POSITION="ND" CODE="Unknown"/>)", ""},
      {R"(<OBSERVATION POSITION="Lamp" CODE="UNKNOWN"/>)", ""},
  };
  return data;
}

INSTANTIATE_TEST_SUITE_P(Interlocks, UnitDrill, testing::Values(Observation()), DrillName);

}  // namespace
}  // namespace mortane::test
