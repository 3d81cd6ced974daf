// The drill of the interlock units.
#include "interlocks/InterlockUnits.h"
#include "support/UnitDrill.h"

namespace mortane::test {
namespace {

UnitDrillData Observation() {
  UnitDrillData data;
  data.name = "InterLockObservation";
  data.bench = "Harbour";
  data.unit = OperationsOf(&InterlockUnits::ILObservation);
  data.edits = {
      {"the first follows",
       [](InterlockUnits& units) { units.ILObservation.Status(1, 1); },
       "InterLock Observation[ND]",
       {"ControllerSettings.SetInterlock(1, 1)"}},
      {"one in the middle follows no more",
       [](InterlockUnits& units) { units.ILObservation.Status(4, 0); },
       "InterLock Observation[Lamp]",
       {"ControllerSettings.ClearInterlock(4, 1)"}},
      {"the last follows",
       [](InterlockUnits& units) { units.ILObservation.Status(11, 1); },
       "InterLock Observation[Light Path]",
       {"ControllerSettings.SetInterlock(11, 1)"}},
  };
  data.marksUnknown = true;
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

// Three kinds of elements, one writer.
UnitOperations OperationsOfOther() {
  UnitOperations operations = OperationsOf(&InterlockUnits::ILOther);
  operations.readElement = [](BenchMicroscope& microscope, const std::string& xml) {
    auto& units = static_cast<InterlockUnits&>(microscope);
    DomDocument document;
    EXPECT_TRUE(document.LoadText(xml)) << xml;
    const DomNode element = document.Children().at(0);
    if (element.Name() == "LIGHTPATH") return units.ILOther.ReadLPDom(element);
    if (element.Name() == "ZOOM") return units.ILOther.ReadZMDom(element);
    return units.ILOther.ReadDom(element);
  };
  return operations;
}

UnitDrillData Other() {
  UnitDrillData data;
  data.name = "InterLockOther";
  data.bench = "Harbour";
  data.unit = OperationsOfOther();
  data.edits = {
      {"the first does not follow the nosepiece",
       [](InterlockUnits& units) { units.ILOther.Status(1, 0); },
       "InterLock Other[ND]",
       {"ControllerSettings.ClearInterlock(1, 3)"}},
      {"the epi field stop follows the zoom, of which a read makes a copy",
       [](InterlockUnits& units) {
         units.ILOther.ZoomStatus(13, 1);
         units.ILOther.Status(10, 1);
       },
       "InterLock Optical Zoom [Epi FieldStop]",
       {"ControllerSettings.SetInterlock(13, 2)"}},
      {"the field stop does not follow the zoom",
       [](InterlockUnits& units) { units.ILOther.ZoomStatus(2, 0); },
       "InterLock Optical Zoom [FieldStop]",
       {"ControllerSettings.ClearInterlock(2, 2)"}},
      {"the ND filter follows the light path",
       [](InterlockUnits& units) { units.ILOther.LightPathStatus(1, 1); },
       "InterLock Light Path [ND Filter]",
       {"ControllerSettings.SetInterlock(1, 4)"}},
      {"the last does not follow the nosepiece",
       [](InterlockUnits& units) { units.ILOther.Status(14, 0); },
       "InterLock Other[XY Stage]",
       {"ControllerSettings.ClearInterlock(14, 3)"}},
  };
  data.marksUnknown = true;
  data.readFailure = data.modifyFailure = "InterLock Other (";
  data.writeFailures = {"InterLock Other[",
                        "InterLock Other [Optical Zoom : ", "InterLock Other [Light Path : "};
  // The rest of the bad elements: OtherInterlocksFileTest.
  data.refused = {
      {R"(<OTHER POSITION="ND" CODE="On"/>)", "InterLock Other[ND]"},
      {R"(<OTHER POSITION="Nobody" CODE="On"/>)", "InterLock Other[Nobody]"},
      {"<OTHER/>", "InterLock Other[]"},
      {R"(<OTHER POSITION="Nobody" CODE="True"/>)", ""},
      {R"(<OTHER POSITION="EpiFStop" CODE="True"/>)", ""},
      {R"(<OTHER POSITION="ND" CODE="unknown"/>)", ""},
      {R"(<LIGHTPATH POSITION="ND" CODE="1"/>)", "InterLock LightPath[ND]"},
      {R"(<LIGHTPATH POSITION="XYStage" CODE="False"/>)", ""},
      {R"(<ZOOM POSITION="ND"/>)", "InterLock Zoom[ND]"},
      {R"(<ZOOM POSITION="OpticalZoom" CODE="True"/>)", ""},
  };
  return data;
}

UnitDrillData Offset() {
  UnitDrillData data;
  data.name = "InterLockOffset";
  data.bench = "Harbour";
  data.unit = OperationsOf(&InterlockUnits::ILOffset);
  data.edits = {
      {"lowest code",
       [](InterlockUnits& units) { units.ILOffset.curND = 0; },
       "InterLock Offset[ND]",
       {"NDFilterDevice.OffsetCode = 0"}},
      {"highest code",
       [](InterlockUnits& units) { units.ILOffset.curFStop = 9; },
       "InterLock Offset[Dia F.Stop]",
       {"FieldStopDevice.OffsetCode = 9"}},
      {"epi field stop",
       [](InterlockUnits& units) { units.ILOffset.curEpiFStop = 3; },
       "InterLock Offset[Epi F.Stop]",
       {"EpiFieldStopDevice.OffsetCode = 3"}},
      {"aperture stop",
       [](InterlockUnits& units) { units.ILOffset.curAStop = 1; },
       "InterLock Offset[Dia A.Stop]",
       {"ApertureStopDevice.OffsetCode = 1"}},
  };
  data.marksUnknown = true;
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

INSTANTIATE_TEST_SUITE_P(Interlocks, UnitDrill, testing::Values(Observation(), Other(), Offset()),
                         DrillName);

}  // namespace
}  // namespace mortane::test
