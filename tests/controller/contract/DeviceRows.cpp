#include "controller/contract/MemberRows.h"

namespace mortane::controller::test {
namespace {

// The parts that all accessory devices have. `state` is the member that carries the value.
void AddAccessory(std::vector<MemberRow>& rows, const std::string& device, const std::string& state,
                  const std::string& value) {
  const auto accessory = [device](const Microscope& root) { return root.Accessory(device); };
  const auto fitted = [device](const Microscope& root) {
    return root.Accessory(device).AccessoryState();
  };
  rows.push_back(Row(
      fitted, [](const AccessoryState& s) { s.State(); }, device + ".AccessoryState.State -> 1"));
  rows.push_back(Row(
      accessory, [state](const AccessoryDevice& d) { d.StateMember(state).Real(); },
      device + "." + state + " -> " + value));
  const auto stateValue = [device, state](const Microscope& root) {
    return root.Accessory(device).StateMember(state);
  };
  rows.push_back(Row(
      stateValue, [](const StateValue& v) { v.IsReadOnly(); },
      device + "." + state + ".IsReadOnly -> false"));
}

// A turn to an address, and the address read back.
template <typename Device>
void AddTurn(std::vector<MemberRow>& rows, const std::string& name,
             Device (Microscope::*device)() const) {
  const auto take = [device](const Microscope& root) { return (root.*device)(); };
  rows.push_back(Row(
      take, [](const Device& d) { d.PutPosition(2); }, name + ".Position = 2"));
  rows.push_back(Row(
      take, [](const Device& d) { d.Position().Number(); }, name + ".Position -> 2"));
}

void AddOffset(std::vector<MemberRow>& rows, const std::string& name, const std::string& code,
               OffsetDevice (Microscope::*device)() const) {
  const auto take = [device](const Microscope& root) { return (root.*device)(); };
  rows.push_back(Row(
      take, [](const OffsetDevice& d) { d.OffsetCode(); }, name + ".OffsetCode -> " + code));
  rows.push_back(Row(
      take, [](const OffsetDevice& d) { d.PutOffsetCode(9); }, name + ".OffsetCode = 9"));
  rows.push_back(Row(
      take, [](const OffsetDevice& d) { d.OffsetCode(); }, name + ".OffsetCode -> 9"));
}

template <typename Device>
void AddPositions(std::vector<MemberRow>& rows, const std::string& name, const std::string& count,
                  const std::string& code, Device (Microscope::*device)() const) {
  const auto positions = [device](const Microscope& root) { return (root.*device)().Positions(); };
  const auto first = [positions](const Microscope& root) {
    return positions(root).Enumerate().Next().value();
  };
  rows.push_back(Row(
      positions, [](const TurretPositions& p) { p.Count(); },
      name + ".Positions.Count -> " + count));
  rows.push_back(Row(
      first, [](const TurretPosition& p) { p.Position(); }, name + ".Positions(1).Position -> 1"));
  rows.push_back(Row(
      first, [](const TurretPosition& p) { p.Code(); }, name + ".Positions(1).Code -> " + code));
  rows.push_back(Row(
      first, [](const TurretPosition& p) { p.PutCode(7); }, name + ".Positions(1).Code = 7"));
  rows.push_back(Row(
      first, [](const TurretPosition& p) { p.Code(); }, name + ".Positions(1).Code -> 7"));
}

}  // namespace

std::vector<MemberRow> DeviceRows() {
  using M = Microscope;
  std::vector<MemberRow> rows;
  for (const char* device :
       {"NosepieceDevice", "CondenserDevice", "FilterCubeDevice", "AnalyzerDevice", "ShutterDevice",
        "NDFilterDevice", "FieldStopDevice", "ApertureStopDevice", "EpiFieldStopDevice"}) {
    AddAccessory(rows, device, "Position", "1");
  }
  AddAccessory(rows, "LampDevice", "Voltage", "9");
  AddAccessory(rows, "LightPathDevice", "Path", "1");
  AddAccessory(rows, "ZoomDevice", "Magnification", "1.5");

  AddTurn(rows, "NosepieceDevice", &M::NosepieceDevice);
  AddTurn(rows, "CondenserDevice", &M::CondenserDevice);
  AddTurn(rows, "FilterCubeDevice", &M::FilterCubeDevice);
  AddTurn(rows, "AnalyzerDevice", &M::AnalyzerDevice);
  AddTurn(rows, "ShutterDevice", &M::ShutterDevice);
  AddTurn(rows, "NDFilterDevice", &M::NDFilterDevice);
  AddTurn(rows, "FieldStopDevice", &M::FieldStopDevice);
  AddTurn(rows, "ApertureStopDevice", &M::ApertureStopDevice);
  AddTurn(rows, "EpiFieldStopDevice", &M::EpiFieldStopDevice);

  AddOffset(rows, "NDFilterDevice", "5", &M::NDFilterDevice);
  AddOffset(rows, "FieldStopDevice", "0", &M::FieldStopDevice);
  AddOffset(rows, "ApertureStopDevice", "0", &M::ApertureStopDevice);
  AddOffset(rows, "EpiFieldStopDevice", "0", &M::EpiFieldStopDevice);

  AddPositions(rows, "NosepieceDevice", "6", "2", &M::NosepieceDevice);
  AddPositions(rows, "CondenserDevice", "7", "1", &M::CondenserDevice);
  AddPositions(rows, "FilterCubeDevice", "6", "2", &M::FilterCubeDevice);

  const auto nosepiece = [](const M& root) { return root.NosepieceDevice(); };
  rows.push_back(Row(
      nosepiece, [](const NosepieceDevice& d) { d.BeginZPositioning(); },
      "NosepieceDevice.BeginZPositioning()"));
  rows.push_back(Row(
      nosepiece, [](const NosepieceDevice& d) { d.BeginPositioning(); },
      "NosepieceDevice.BeginPositioning()"));
  rows.push_back(Row(
      nosepiece, [](const NosepieceDevice& d) { d.Limitation(); },
      "NosepieceDevice.Limitation -> 12"));
  rows.push_back(Row(
      nosepiece, [](const NosepieceDevice& d) { d.PutLimitation(18); },
      "NosepieceDevice.Limitation = 18"));
  rows.push_back(Row(
      nosepiece, [](const NosepieceDevice& d) { d.Limitation(); },
      "NosepieceDevice.Limitation -> 18"));
  return rows;
}

std::vector<MemberRow> DriveRows() {
  const auto z = [](const Microscope& root) { return root.ZDriveDevice(); };
  const auto xy = [](const Microscope& root) { return root.XYDriveDevice(); };
  using Z = ZDriveDevice;
  using XY = XYDriveDevice;
  const std::string onZ = "ZDriveDevice.";
  const std::string onXY = "XYDriveDevice.";
  std::vector<MemberRow> rows{
      Row(
          z, [](const Z& d) { d.KnobSensitivity(); }, onZ + "KnobSensitivity -> 1"),
      Row(
          z, [](const Z& d) { d.KnobAuto(); }, onZ + "KnobAuto -> 1"),
      Row(
          z, [](const Z& d) { d.PutKnobAuto(0); }, onZ + "KnobAuto = 0"),
      Row(
          z, [](const Z& d) { d.KnobAuto(); }, onZ + "KnobAuto -> 0"),
      Row(
          z, [](const Z& d) { d.PutMoveProfile(9); }, onZ + "MoveProfile = 9"),
      Row(
          z, [](const Z& d) { d.PutMoveOption(0); }, onZ + "MoveOption = 0"),
      Row(
          z, [](const Z& d) { d.PutPosition(12020); }, onZ + "Position = 12020"),
      Row(
          z, [](const Z& d) { d.Position().Number(); }, onZ + "Position -> 12020"),
      Row(
          z, [](const Z& d) { d.FocusCompensation(); }, onZ + "FocusCompensation -> 3"),
      Row(
          z, [](const Z& d) { d.PutFocusCompensation(2); }, onZ + "FocusCompensation = 2"),
      Row(
          z, [](const Z& d) { d.LowerLimit(); }, onZ + "LowerLimit -> 0"),
      Row(
          z, [](const Z& d) { d.PutLowerLimit(1); }, onZ + "LowerLimit = 1"),
      Row(
          z, [](const Z& d) { d.LowerLimit(); }, onZ + "LowerLimit -> 1"),
      Row(
          z, [](const Z& d) { d.UpperLimit(); }, onZ + "UpperLimit -> 0"),
      Row(
          xy, [](const XY& d) { d.KnobSensitivity(); }, onXY + "KnobSensitivity -> 3"),
      Row(
          xy, [](const XY& d) { d.KnobAuto(); }, onXY + "KnobAuto -> 0"),
      Row(
          xy, [](const XY& d) { d.PutKnobAuto(1); }, onXY + "KnobAuto = 1"),
      Row(
          xy, [](const XY& d) { d.PutMoveProfile(9); }, onXY + "MoveProfile = 9"),
      Row(
          xy, [](const XY& d) { d.PutPositionX(41520); }, onXY + "PositionX = 41520"),
      Row(
          xy, [](const XY& d) { d.PositionX().Number(); }, onXY + "PositionX -> 41520"),
      Row(
          xy, [](const XY& d) { d.PutPositionY(-26820); }, onXY + "PositionY = -26820"),
      Row(
          xy, [](const XY& d) { d.PositionY().Number(); }, onXY + "PositionY -> -26820"),
      Row(
          xy, [](const XY& d) { d.FocusCompensation(); }, onXY + "FocusCompensation -> 3"),
      Row(
          xy, [](const XY& d) { d.PutFocusCompensation(1); }, onXY + "FocusCompensation = 1"),
      Row(
          xy, [](const XY& d) { d.HandleMode(); }, onXY + "HandleMode -> int16(0)"),
      Row(
          xy, [](const XY& d) { d.PutHandleMode(1); }, onXY + "HandleMode = int16(1)"),
      Row(
          xy, [](const XY& d) { d.HandleMode(); }, onXY + "HandleMode -> int16(1)"),
  };
  const auto zFitted = [](const Microscope& root) { return root.ZDriveDevice().AccessoryState(); };
  const auto xyFitted = [](const Microscope& root) {
    return root.XYDriveDevice().AccessoryState();
  };
  rows.push_back(Row(
      zFitted, [](const AccessoryState& s) { s.State(); }, onZ + "AccessoryState.State -> 1"));
  rows.push_back(Row(
      xyFitted, [](const AccessoryState& s) { s.State(); }, onXY + "AccessoryState.State -> 1"));
  const auto zPosition = [](const Microscope& root) { return root.ZDriveDevice().Position(); };
  rows.push_back(Row(
      zPosition, [](const StateValue& v) { v.IsReadOnly(); },
      onZ + "Position.IsReadOnly -> false"));
  const auto xPosition = [](const Microscope& root) { return root.XYDriveDevice().PositionX(); };
  rows.push_back(Row(
      xPosition, [](const StateValue& v) { v.IsReadOnly(); },
      onXY + "PositionX.IsReadOnly -> false"));
  const auto yPosition = [](const Microscope& root) { return root.XYDriveDevice().PositionY(); };
  rows.push_back(Row(
      yPosition, [](const StateValue& v) { v.IsReadOnly(); },
      onXY + "PositionY.IsReadOnly -> false"));
  return rows;
}

}  // namespace mortane::controller::test
