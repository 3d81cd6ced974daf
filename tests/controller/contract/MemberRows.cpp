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
      Row(
          Itself, [](const M& m) { m.BuzzerOff(5); }, "BuzzerOff(5)"),
      Row(
          Itself, [](const M& m) { m.BuzzerEnabled(5); }, "BuzzerEnabled(5) -> 0"),
      Row(
          Itself, [](const M& m) { m.BuzzerOn(5); }, "BuzzerOn(5)"),
      Row(
          Itself, [](const M& m) { m.BuzzerEnabled(5); }, "BuzzerEnabled(5) -> 1"),
      Row(
          Itself, [](const M& m) { m.ControllerVersion(1); }, "ControllerVersion(1) -> \"vDEMO\""),
      Row(
          Itself, [](const M& m) { m.ControllerPresent(1); }, "ControllerPresent(1) -> 1"),
      Row(
          Itself, [](const M& m) { m.ControllerPresent(3); }, "ControllerPresent(3) -> 0"),
      Row(
          Itself, [](const M& m) { m.PutSystemName("Bench 12"); }, "SystemName = \"Bench 12\""),
      Row(
          Itself, [](const M& m) { m.DisableSwitch(4); }, "DisableSwitch(4, 0)"),
      Row(
          Itself, [](const M& m) { m.SwitchEnabled(4); }, "SwitchEnabled(4, 0) -> 0"),
      Row(
          Itself, [](const M& m) { m.EnableSwitch(4); }, "EnableSwitch(4, 0)"),
      Row(
          Itself, [](const M& m) { m.SwitchEnabled(4); }, "SwitchEnabled(4, 0) -> 1"),
      Row(
          Itself, [](const M& m) { m.PutRemoteLED(2); }, "RemoteLED(7) = 2"),
      Row(
          Itself, [](const M& m) { m.RemoteLED(); }, "RemoteLED(7) -> 2"),
      Row(
          Itself, [](const M& m) { m.QueryCommand("rONR1"); },
          "QueryCommand(\"rONR1\") -> \"ONR1230FA0C63B63\""),
      Row(
          Itself, [](const M& m) { m.SendCommand("cONS9230FA0C63B63"); },
          "SendCommand(\"cONS9230FA0C63B63\")"),
      Row(
          Itself, [](const M& m) { m.QueryCommand("rONR9"); },
          "QueryCommand(\"rONR9\") -> \"ONR9230FA0C63B63\""),
      Row(
          Entry, [](const DeviceEntry& e) { e.PutAsyncMode(true); },
          "DeviceList.Item(0).AsyncMode = true"),
      Row(
          Entry, [](const DeviceEntry& e) { e.PutAsyncMode(false); },
          "DeviceList.Item(0).AsyncMode = false"),
      Row(
          Entry, [](const DeviceEntry& e) { e.WaitMove(); }, "DeviceList.Item(0).WaitMove(1) -> 0"),
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
      Row(
          settings, [](const Settings& s) { s.SetInterlock(14, 4); },
          "ControllerSettings.SetInterlock(14, 4)"),
      Row(
          settings, [](const Settings& s) { s.Interlock(14, 4); },
          "ControllerSettings.Interlock(14, 4) -> 1"),
      Row(
          settings, [](const Settings& s) { s.ClearInterlock(14, 4); },
          "ControllerSettings.ClearInterlock(14, 4)"),
      Row(
          settings, [](const Settings& s) { s.Interlock(14, 4); },
          "ControllerSettings.Interlock(14, 4) -> 0"),
      Row(
          settings, [](const Settings& s) { s.EscapeMode(); },
          "ControllerSettings.EscapeMode -> 3"),
      Row(
          settings, [](const Settings& s) { s.PutEscapeMode(0); },
          "ControllerSettings.EscapeMode = 0"),
      Row(
          settings, [](const Settings& s) { s.EscapeMode(); },
          "ControllerSettings.EscapeMode -> 0"),
      Row(
          settings, [](const Settings& s) { s.SetSwitchFunction(0, "G", "A"); },
          "ControllerSettings.SetSwitchFunction(0, \"G\", \"A\")"),
      Row(
          settings, [](const Settings& s) { s.SwitchFunction(0, "G"); },
          "ControllerSettings.SwitchFunction(0, \"G\") -> \"A\""),
      Row(
          settings, [](const Settings& s) { s.SwitchFunction(4, "0"); },
          "ControllerSettings.SwitchFunction(4, \"0\") -> \"1\""),
  };
}

}  // namespace mortane::controller::test
