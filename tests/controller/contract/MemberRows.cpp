#include "controller/contract/MemberRows.h"

namespace mortane::controller::test {
namespace {

Microscope Itself(const Microscope& root) {
  return root;
}

DeviceEntry Entry(const Microscope& root) {
  return root.DeviceList().Item(0);
}

}  // namespace

std::vector<MemberRow> RootRows() {
  using M = Microscope;
  return {
      Row(Itself, "BuzzerOff(5)", [](const M& m) { m.BuzzerOff(5); }),
      Row(Itself, "BuzzerEnabled(5) -> 0", [](const M& m) { m.BuzzerEnabled(5); }),
      Row(Itself, "BuzzerOn(5)", [](const M& m) { m.BuzzerOn(5); }),
      Row(Itself, "BuzzerEnabled(5) -> 1", [](const M& m) { m.BuzzerEnabled(5); }),
      Row(Itself, "ControllerVersion(1) -> \"vDEMO\"", [](const M& m) { m.ControllerVersion(1); }),
      Row(Itself, "ControllerPresent(1) -> 1", [](const M& m) { m.ControllerPresent(1); }),
      Row(Itself, "ControllerPresent(3) -> 0", [](const M& m) { m.ControllerPresent(3); }),
      Row(Itself, "SystemName = \"Bench 12\"", [](const M& m) { m.PutSystemName("Bench 12"); }),
      Row(Itself, "DisableSwitch(4, 0)", [](const M& m) { m.DisableSwitch(4); }),
      Row(Itself, "SwitchEnabled(4, 0) -> 0", [](const M& m) { m.SwitchEnabled(4); }),
      Row(Itself, "EnableSwitch(4, 0)", [](const M& m) { m.EnableSwitch(4); }),
      Row(Itself, "SwitchEnabled(4, 0) -> 1", [](const M& m) { m.SwitchEnabled(4); }),
      Row(Itself, "RemoteLED(7) = 2", [](const M& m) { m.PutRemoteLED(2); }),
      Row(Itself, "RemoteLED(7) -> 2", [](const M& m) { m.RemoteLED(); }),
      Row(Itself, "QueryCommand(\"rONR1\") -> \"ONR1230FA0C63B63\"",
          [](const M& m) { m.QueryCommand("rONR1"); }),
      Row(Itself, "SendCommand(\"cONS9230FA0C63B63\")",
          [](const M& m) { m.SendCommand("cONS9230FA0C63B63"); }),
      Row(Itself, "QueryCommand(\"rONR9\") -> \"ONR9230FA0C63B63\"",
          [](const M& m) { m.QueryCommand("rONR9"); }),
      Row(Entry, "DeviceList.Item(0).AsyncMode = true",
          [](const DeviceEntry& e) { e.PutAsyncMode(true); }),
      Row(Entry, "DeviceList.Item(0).AsyncMode = false",
          [](const DeviceEntry& e) { e.PutAsyncMode(false); }),
      Row(Entry, "DeviceList.Item(0).WaitMove(1) -> 0", [](const DeviceEntry& e) { e.WaitMove(); }),
  };
}

std::vector<std::string> AreaMembers() {
  return {"AccessoryDatabase",  "NosepieceDevice",    "CondenserDevice", "FilterCubeDevice",
          "ZDriveDevice",       "XYDriveDevice",      "LightPathDevice", "AnalyzerDevice",
          "LampDevice",         "ShutterDevice",      "NDFilterDevice",  "FieldStopDevice",
          "ApertureStopDevice", "EpiFieldStopDevice", "ZoomDevice",      "ControllerSettings"};
}

std::vector<MemberRow> SettingsRows() {
  using Settings = ControllerSettings;
  const auto settings = [](const Microscope& root) { return root.ControllerSettings(); };
  return {
      Row(settings, "ControllerSettings.SetInterlock(14, 4)",
          [](const Settings& s) { s.SetInterlock(14, 4); }),
      Row(settings, "ControllerSettings.Interlock(14, 4) -> 1",
          [](const Settings& s) { s.Interlock(14, 4); }),
      Row(settings, "ControllerSettings.ClearInterlock(14, 4)",
          [](const Settings& s) { s.ClearInterlock(14, 4); }),
      Row(settings, "ControllerSettings.Interlock(14, 4) -> 0",
          [](const Settings& s) { s.Interlock(14, 4); }),
      Row(settings, "ControllerSettings.EscapeMode -> 3",
          [](const Settings& s) { s.EscapeMode(); }),
      Row(settings, "ControllerSettings.EscapeMode = 0",
          [](const Settings& s) { s.PutEscapeMode(0); }),
      Row(settings, "ControllerSettings.EscapeMode -> 0",
          [](const Settings& s) { s.EscapeMode(); }),
      Row(settings, "ControllerSettings.SetSwitchFunction(0, \"G\", \"A\")",
          [](const Settings& s) { s.SetSwitchFunction(0, "G", "A"); }),
      Row(settings, "ControllerSettings.SwitchFunction(0, \"G\") -> \"A\"",
          [](const Settings& s) { s.SwitchFunction(0, "G"); }),
      Row(settings, "ControllerSettings.SwitchFunction(4, \"0\") -> \"1\"",
          [](const Settings& s) { s.SwitchFunction(4, "0"); }),
  };
}

}  // namespace mortane::controller::test
