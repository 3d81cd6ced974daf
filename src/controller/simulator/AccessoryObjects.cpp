#include "controller/simulator/AccessoryObjects.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace mortane::controller {
namespace {

struct DeviceRow {
  std::string_view member;
  int number;
  std::string_view stateMember;
  bool writable;  // whether the interface has a write of the state member
  bool hasOffset;
  TurretPlaces Instrument::*places;
};

constexpr std::array kDevices{
    DeviceRow{"NosepieceDevice", accessory::kNosepiece, "Position", true, false,
              &Instrument::nosepiece},
    DeviceRow{"CondenserDevice", accessory::kCondenser, "Position", true, false,
              &Instrument::condensers},
    DeviceRow{"FilterCubeDevice", accessory::kFilterCube, "Position", true, false,
              &Instrument::filterCubes},
    DeviceRow{"LightPathDevice", accessory::kLightPath, "Path", false, false, nullptr},
    DeviceRow{"AnalyzerDevice", accessory::kAnalyzer, "Position", true, false, nullptr},
    DeviceRow{"LampDevice", accessory::kDiaLamp, "Voltage", false, false, nullptr},
    DeviceRow{"ShutterDevice", accessory::kEpiShutter, "Position", true, false, nullptr},
    DeviceRow{"NDFilterDevice", accessory::kNDFilter, "Position", true, true, nullptr},
    DeviceRow{"FieldStopDevice", accessory::kDiaFieldStop, "Position", true, true, nullptr},
    DeviceRow{"ApertureStopDevice", accessory::kDiaApertureStop, "Position", true, true, nullptr},
    DeviceRow{"EpiFieldStopDevice", accessory::kEpiFieldStop, "Position", true, true, nullptr},
    DeviceRow{"ZoomDevice", accessory::kOpticalZoom, "Magnification", false, false, nullptr},
};

// Positions are whole numbers on the wire, voltages and magnifications need not be.
Value WireNumber(double value) {
  constexpr double kLargestLong = 2147483647.0;
  if (value == std::trunc(value) && std::abs(value) <= kLargestLong) {
    return static_cast<std::int32_t>(value);
  }
  return value;
}

void AddStateMember(MemberObject& object, const DeviceLink& link, const DeviceRow& row) {
  object.OnGet(row.stateMember, 0, [link, number = row.number](Args) -> Value {
    return MakeStateValue(link, number, WireNumber(link.Fitted(number).Accessory(number).value));
  });
  if (!row.writable) return;
  object.OnPut(row.stateMember, 0,
               [link, number = row.number, places = row.places](const Value& value, Args) {
                 Instrument& device = Commanded(link, number);
                 const std::int32_t address = LongArgument(value);
                 if (places != nullptr &&
                     (address < 1 || static_cast<std::size_t>(address) > (device.*places).size())) {
                   RaiseSimulated("The turret has no address " + std::to_string(address) + ".");
                 }
                 link.Assign(device.Accessory(number).value, static_cast<double>(address));
               });
}

void AddOffset(MemberObject& object, const DeviceLink& link, int number) {
  object.OnGet("OffsetCode", 0, [link, number](Args) -> Value {
    return link.Fitted(number).Accessory(number).offsetCode;
  });
  object.OnPut("OffsetCode", 0, [link, number](const Value& value, Args) {
    link.Assign(link.Fitted(number).Accessory(number).offsetCode, LongArgument(value));
  });
}

ObjectRef MakeTurretPosition(const DeviceLink& link, const DeviceRow& row, std::size_t index) {
  const auto place = [link, number = row.number, places = row.places, index]() -> TurretPlace& {
    TurretPlaces& all = link.Fitted(number).*places;
    if (index >= all.size()) RaiseSimulated("The turret has lost this address.");
    return all[index];
  };
  auto object = std::make_shared<MemberObject>();
  object->OnGet("Position", 0, [place](Args) -> Value { return place().position; })
      .OnGet("Code", 0, [place](Args) -> Value { return place().code; })
      .OnPut("Code", 0, [place, link](const Value& value, Args) {
        link.Assign(place().code, LongArgument(value));
      });
  return object;
}

ObjectRef MakeTurretEnumerator(const DeviceLink& link, const DeviceRow& row) {
  auto enumerator = std::make_shared<MemberObject>();
  const auto next = std::make_shared<std::size_t>(0);
  enumerator->OnCall("Next", 0, [link, &row, next](Args) -> Value {
    if (*next >= (link.Fitted(row.number).*(row.places)).size()) return {};
    return MakeTurretPosition(link, row, (*next)++);
  });
  return enumerator;
}

void AddPositions(MemberObject& object, const DeviceLink& link, const DeviceRow& row) {
  object.OnGet("Positions", 0, [link, &row](Args) -> Value {
    link.Connected();
    auto positions = std::make_shared<MemberObject>();
    positions
        ->OnGet("Count", 0,
                [link, &row](Args) -> Value {
                  const TurretPlaces& places = link.Fitted(row.number).*(row.places);
                  return static_cast<std::int32_t>(places.size());
                })
        .OnGet("_NewEnum", 0,
               [link, &row](Args) -> Value { return MakeTurretEnumerator(link, row); });
    return positions;
  });
}

// The preparing calls change nothing that can be seen.
void AddNosepieceMembers(MemberObject& object, const DeviceLink& link) {
  const auto prepare = [link](Args) -> Value {
    Commanded(link, accessory::kNosepiece);
    return {};
  };
  object.OnCall("BeginZPositioning", 0, prepare)
      .OnCall("BeginPositioning", 0, prepare)
      .OnGet("Limitation", 0,
             [link](Args) -> Value { return link.Fitted(accessory::kNosepiece).limitation; })
      .OnPut("Limitation", 0, [link](const Value& value, Args) {
        link.Assign(link.Fitted(accessory::kNosepiece).limitation, LongArgument(value));
      });
}

}  // namespace

void AddAccessoryState(MemberObject& object, const DeviceLink& link, int accessoryNumber) {
  object.OnGet("AccessoryState", 0, [link, accessoryNumber](Args) -> Value {
    auto facet = std::make_shared<MemberObject>();
    facet->OnGet("State", 0, [link, accessoryNumber](Args) -> Value {
      return link.Connected().Accessory(accessoryNumber).state;
    });
    return facet;
  });
}

ObjectRef MakeStateValue(const DeviceLink& link, int accessoryNumber, Value value) {
  auto state = std::make_shared<MemberObject>();
  state->OnGet("", 0, [value = std::move(value)](Args) { return value; })
      .OnGet("IsReadOnly", 0, [link, accessoryNumber](Args) -> Value {
        return link.Connected().Accessory(accessoryNumber).readOnly;
      });
  return state;
}

Instrument& Commanded(const DeviceLink& link, int accessoryNumber) {
  Instrument& device = link.Fitted(accessoryNumber);
  if (device.Accessory(accessoryNumber).readOnly) {
    RaiseSimulated("Accessory " + std::to_string(accessoryNumber) + " is only sensed.");
  }
  return device;
}

ObjectRef MakeAccessoryDevice(const DeviceLink& link, std::string_view member) {
  const auto row = std::find_if(kDevices.begin(), kDevices.end(),
                                [&](const DeviceRow& device) { return device.member == member; });
  if (row == kDevices.end()) return nullptr;
  auto object = std::make_shared<MemberObject>();
  AddAccessoryState(*object, link, row->number);
  AddStateMember(*object, link, *row);
  if (row->hasOffset) AddOffset(*object, link, row->number);
  if (row->places != nullptr) AddPositions(*object, link, *row);
  if (row->number == accessory::kNosepiece) AddNosepieceMembers(*object, link);
  return object;
}

}  // namespace mortane::controller
