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
  rows.push_back(Row(fitted, device + ".AccessoryState.State -> 1",
                     [](const AccessoryState& s) { s.State(); }));
  rows.push_back(Row(accessory, device + "." + state + " -> " + value,
                     [state](const AccessoryDevice& d) { d.StateMember(state).Real(); }));
  const auto stateValue = [device, state](const Microscope& root) {
    return root.Accessory(device).StateMember(state);
  };
  rows.push_back(Row(stateValue, device + "." + state + ".IsReadOnly -> false",
                     [](const StateValue& v) { v.IsReadOnly(); }));
}

// A turn to an address, and the address read back.
template <typename Device>
void AddTurn(std::vector<MemberRow>& rows, const std::string& name,
             Device (Microscope::*device)() const) {
  const auto take = [device](const Microscope& root) { return (root.*device)(); };
  rows.push_back(Row(take, name + ".Position = 2", [](const Device& d) { d.PutPosition(2); }));
  rows.push_back(
      Row(take, name + ".Position -> 2", [](const Device& d) { d.Position().Number(); }));
}

void AddOffset(std::vector<MemberRow>& rows, const std::string& name, const std::string& code,
               OffsetDevice (Microscope::*device)() const) {
  const auto take = [device](const Microscope& root) { return (root.*device)(); };
  rows.push_back(
      Row(take, name + ".OffsetCode -> " + code, [](const OffsetDevice& d) { d.OffsetCode(); }));
  rows.push_back(
      Row(take, name + ".OffsetCode = 9", [](const OffsetDevice& d) { d.PutOffsetCode(9); }));
  rows.push_back(
      Row(take, name + ".OffsetCode -> 9", [](const OffsetDevice& d) { d.OffsetCode(); }));
}

template <typename Device>
void AddPositions(std::vector<MemberRow>& rows, const std::string& name, const std::string& count,
                  const std::string& code, Device (Microscope::*device)() const) {
  const auto positions = [device](const Microscope& root) { return (root.*device)().Positions(); };
  const auto first = [positions](const Microscope& root) {
    return positions(root).Enumerate().Next().value();
  };
  rows.push_back(Row(positions, name + ".Positions.Count -> " + count,
                     [](const TurretPositions& p) { p.Count(); }));
  rows.push_back(Row(first, name + ".Positions(1).Position -> 1",
                     [](const TurretPosition& p) { p.Position(); }));
  rows.push_back(Row(first, name + ".Positions(1).Code -> " + code,
                     [](const TurretPosition& p) { p.Code(); }));
  rows.push_back(
      Row(first, name + ".Positions(1).Code = 7", [](const TurretPosition& p) { p.PutCode(7); }));
  rows.push_back(
      Row(first, name + ".Positions(1).Code -> 7", [](const TurretPosition& p) { p.Code(); }));
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
  rows.push_back(Row(nosepiece, "NosepieceDevice.BeginZPositioning()",
                     [](const NosepieceDevice& d) { d.BeginZPositioning(); }));
  rows.push_back(Row(nosepiece, "NosepieceDevice.BeginPositioning()",
                     [](const NosepieceDevice& d) { d.BeginPositioning(); }));
  rows.push_back(Row(nosepiece, "NosepieceDevice.Limitation -> 12",
                     [](const NosepieceDevice& d) { d.Limitation(); }));
  rows.push_back(Row(nosepiece, "NosepieceDevice.Limitation = 18",
                     [](const NosepieceDevice& d) { d.PutLimitation(18); }));
  rows.push_back(Row(nosepiece, "NosepieceDevice.Limitation -> 18",
                     [](const NosepieceDevice& d) { d.Limitation(); }));
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
      Row(z, onZ + "KnobSensitivity -> 1", [](const Z& d) { d.KnobSensitivity(); }),
      Row(z, onZ + "KnobAuto -> 1", [](const Z& d) { d.KnobAuto(); }),
      Row(z, onZ + "KnobAuto = 0", [](const Z& d) { d.PutKnobAuto(0); }),
      Row(z, onZ + "KnobAuto -> 0", [](const Z& d) { d.KnobAuto(); }),
      Row(z, onZ + "MoveProfile = 9", [](const Z& d) { d.PutMoveProfile(9); }),
      Row(z, onZ + "MoveOption = 0", [](const Z& d) { d.PutMoveOption(0); }),
      Row(z, onZ + "Position = 12020", [](const Z& d) { d.PutPosition(12020); }),
      Row(z, onZ + "Position -> 12020", [](const Z& d) { d.Position().Number(); }),
      Row(z, onZ + "FocusCompensation -> 3", [](const Z& d) { d.FocusCompensation(); }),
      Row(z, onZ + "FocusCompensation = 2", [](const Z& d) { d.PutFocusCompensation(2); }),
      Row(z, onZ + "FocusCompensation -> 2", [](const Z& d) { d.FocusCompensation(); }),
      Row(z, onZ + "LowerLimit -> 0", [](const Z& d) { d.LowerLimit(); }),
      Row(z, onZ + "LowerLimit = 1", [](const Z& d) { d.PutLowerLimit(1); }),
      Row(z, onZ + "LowerLimit -> 1", [](const Z& d) { d.LowerLimit(); }),
      Row(z, onZ + "UpperLimit -> 0", [](const Z& d) { d.UpperLimit(); }),
      Row(xy, onXY + "KnobSensitivity -> 3", [](const XY& d) { d.KnobSensitivity(); }),
      Row(xy, onXY + "KnobAuto -> 0", [](const XY& d) { d.KnobAuto(); }),
      Row(xy, onXY + "KnobAuto = 1", [](const XY& d) { d.PutKnobAuto(1); }),
      Row(xy, onXY + "KnobAuto -> 1", [](const XY& d) { d.KnobAuto(); }),
      Row(xy, onXY + "MoveProfile = 9", [](const XY& d) { d.PutMoveProfile(9); }),
      Row(xy, onXY + "PositionX = 41520", [](const XY& d) { d.PutPositionX(41520); }),
      Row(xy, onXY + "PositionX -> 41520", [](const XY& d) { d.PositionX().Number(); }),
      Row(xy, onXY + "PositionY = -26820", [](const XY& d) { d.PutPositionY(-26820); }),
      Row(xy, onXY + "PositionY -> -26820", [](const XY& d) { d.PositionY().Number(); }),
      Row(xy, onXY + "FocusCompensation -> 3", [](const XY& d) { d.FocusCompensation(); }),
      Row(xy, onXY + "FocusCompensation = 1", [](const XY& d) { d.PutFocusCompensation(1); }),
      Row(xy, onXY + "FocusCompensation -> 1", [](const XY& d) { d.FocusCompensation(); }),
      Row(xy, onXY + "HandleMode -> int16(0)", [](const XY& d) { d.HandleMode(); }),
      Row(xy, onXY + "HandleMode = int16(1)", [](const XY& d) { d.PutHandleMode(1); }),
      Row(xy, onXY + "HandleMode -> int16(1)", [](const XY& d) { d.HandleMode(); }),
  };
  const auto zFitted = [](const Microscope& root) { return root.ZDriveDevice().AccessoryState(); };
  const auto xyFitted = [](const Microscope& root) {
    return root.XYDriveDevice().AccessoryState();
  };
  rows.push_back(
      Row(zFitted, onZ + "AccessoryState.State -> 1", [](const AccessoryState& s) { s.State(); }));
  rows.push_back(Row(xyFitted, onXY + "AccessoryState.State -> 1",
                     [](const AccessoryState& s) { s.State(); }));
  const auto zPosition = [](const Microscope& root) { return root.ZDriveDevice().Position(); };
  rows.push_back(Row(zPosition, onZ + "Position.IsReadOnly -> false",
                     [](const StateValue& v) { v.IsReadOnly(); }));
  const auto xPosition = [](const Microscope& root) { return root.XYDriveDevice().PositionX(); };
  rows.push_back(Row(xPosition, onXY + "PositionX.IsReadOnly -> false",
                     [](const StateValue& v) { v.IsReadOnly(); }));
  const auto yPosition = [](const Microscope& root) { return root.XYDriveDevice().PositionY(); };
  rows.push_back(Row(yPosition, onXY + "PositionY.IsReadOnly -> false",
                     [](const StateValue& v) { v.IsReadOnly(); }));
  return rows;
}

}  // namespace mortane::controller::test
