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

UnitDrillData Offset() {
  UnitDrillData data;
  data.name = "InterLockOffset";
  data.bench = "Harbour";
  data.unit = OperationsOf(&clsK70::ILOffset);
  data.edits = {
      {"lowest code",
       [](clsK70& k70) { k70.ILOffset.curND = 0; },
       "InterLock Offset[ND]",
       {"NDFilterDevice.OffsetCode = 0"}},
      {"highest code",
       [](clsK70& k70) { k70.ILOffset.curFStop = 9; },
       "InterLock Offset[Dia F.Stop]",
       {"FieldStopDevice.OffsetCode = 9"}},
      {"epi field stop",
       [](clsK70& k70) { k70.ILOffset.curEpiFStop = 3; },
       "InterLock Offset[Epi F.Stop]",
       {"EpiFieldStopDevice.OffsetCode = 3"}},
      {"aperture stop",
       [](clsK70& k70) { k70.ILOffset.curAStop = 1; },
       "InterLock Offset[Dia A.Stop]",
       {"ApertureStopDevice.OffsetCode = 1"}},
  };
  data.readFailure = data.modifyFailure = "InterLock Offset (";
  data.writeFailures = {"InterLock Offset[ND]", "InterLock Offset[Dia F.Stop]",
                        "InterLock Offset[Condenser]", "InterLock Offset[Dia A.Stop]"};
  data.refused = {
      {R"(<OFFSET POSITION="ND" CODE="10"/>)", ""},
      {R"(<OFFSET POSITION="ND" CODE="-1"/>)", ""},
      {R"(<OFFSET POSITION="ND" CODE="9.6"/>)", ""},
      {R"(<OFFSET POSITION="ND"/>)", ""},
      {R"(<OFFSET POSITION="Condenser" CODE="1"/>)", ""},
      {R"(<OFFSET POSITION="ND " CODE="1"/>)", ""},
      {R"(<OFFSET CODE="1"/>)", ""},
      {"<OFFSET/>", ""},
  };
  return data;
}

INSTANTIATE_TEST_SUITE_P(Interlocks, UnitDrill, testing::Values(Observation(), Offset()),
                         DrillName);

}  // namespace
}  // namespace mortane::test
