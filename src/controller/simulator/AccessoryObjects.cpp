#include "controller/simulator/AccessoryObjects.h"

#include <array>
#include <cmath>
#include <vector>

#include "controller/EnumeratorMembers.h"
#include "controller/simulator/AccessoryRows.h"

namespace mortane::controller {
namespace {

// Positions are given as whole numbers; voltages and magnifications may have fractions.
Value WireNumber(double value) {
  constexpr double kLargestLong = 2147483647.0;
  if (value == std::trunc(value) && std::abs(value) <= kLargestLong) {
    return static_cast<std::int32_t>(value);
  }
  return value;
}

void AddStateMember(MemberTable<DeviceLink>& table, const AccessoryRow& row) {
  table.OnGet(row.stateMember, 0, [number = row.number](const DeviceLink& link, Args) -> Value {
    return MakeStateValue(link, number, WireNumber(link.Fitted(number).Accessory(number).value));
  });
  if (!row.writable) return;
  table.OnPut(
      row.stateMember, 0,
      [number = row.number, places = row.places](const DeviceLink& link, const Value& value, Args) {
        Instrument& device = Commanded(link, number);
        const std::int32_t address = LongArgument(value);
        if (places != nullptr &&
            (address < 1 || static_cast<std::size_t>(address) > (device.*places).size())) {
          RaiseSimulated("The turret has no address " + std::to_string(address) + ".");
        }
        link.Assign(device.Accessory(number).value, static_cast<double>(address));
      });
}

void AddOffset(MemberTable<DeviceLink>& table, int number) {
  table
      .OnGet("OffsetCode", 0,
             [number](const DeviceLink& link, Args) -> Value {
               return link.Fitted(number).Accessory(number).offsetCode;
             })
      .OnPut("OffsetCode", 0, [number](const DeviceLink& link, const Value& value, Args) {
        link.Assign(link.Fitted(number).Accessory(number).offsetCode, LongArgument(value));
      });
}

// The places of one turret.
struct TurretLink {
  DeviceLink device;
  const AccessoryRow* row;

  TurretPlaces& Places() const { return device.Fitted(row->number).*(row->places); }
};

// One place of a turret, looked up at every use.
struct PlaceLink {
  TurretLink turret;
  std::size_t index;

  TurretPlace& Place() const {
    TurretPlaces& all = turret.Places();
    if (index >= all.size()) RaiseSimulated("The turret has lost this address.");
    return all[index];
  }
};

ObjectRef MakeTurretPosition(const PlaceLink& link) {
  static const MemberTable<PlaceLink> members =
      MemberTable<PlaceLink>()
          .OnGet("Position", 0,
                 [](const PlaceLink& place, Args) -> Value { return place.Place().position; })
          .OnGet("Code", 0,
                 [](const PlaceLink& place, Args) -> Value { return place.Place().code; })
          .OnPut("Code", 0, [](const PlaceLink& place, const Value& value, Args) {
            place.turret.device.Assign(place.Place().code, LongArgument(value));
          });
  return MakeObject(members, link);
}

// The object's place is that of the next item.
ObjectRef MakeTurretEnumerator(const TurretLink& link) {
  static const MemberTable<PlaceLink> members =
      MemberTable<PlaceLink>().OnCall(kNextMember, 0, [](PlaceLink& next, Args) -> Value {
        if (next.index >= next.turret.Places().size()) return {};
        return MakeTurretPosition({next.turret, next.index++});
      });
  return MakeObject(members, PlaceLink{link, 0});
}

ObjectRef MakePositions(const TurretLink& link) {
  static const MemberTable<TurretLink> members =
      MemberTable<TurretLink>()
          .OnGet("Count", 0,
                 [](const TurretLink& turret, Args) -> Value {
                   return static_cast<std::int32_t>(turret.Places().size());
                 })
          .OnGet(kEnumeratorMember, 0, [](const TurretLink& turret, Args) -> Value {
            return MakeTurretEnumerator(turret);
          });
  return MakeObject(members, link);
}

void AddPositions(MemberTable<DeviceLink>& table, const AccessoryRow& row) {
  table.OnGet("Positions", 0, [&row](const DeviceLink& link, Args) -> Value {
    link.Connected();
    return MakePositions({link, &row});
  });
}

// The preparing calls change no data.
void AddNosepieceMembers(MemberTable<DeviceLink>& table) {
  const auto prepare = [](const DeviceLink& link, Args) -> Value {
    Commanded(link, accessory::kNosepiece);
    return {};
  };
  table.OnCall("BeginZPositioning", 0, prepare)
      .OnCall("BeginPositioning", 0, prepare)
      .OnGet("Limitation", 0,
             [](const DeviceLink& link, Args) -> Value {
               return link.Fitted(accessory::kNosepiece).limitation;
             })
      .OnPut("Limitation", 0, [](const DeviceLink& link, const Value& value, Args) {
        link.Assign(link.Fitted(accessory::kNosepiece).limitation, LongArgument(value));
      });
}

MemberTable<DeviceLink> MembersOf(const AccessoryRow& row) {
  MemberTable<DeviceLink> table;
  AddAccessoryState(table, row.number);
  AddStateMember(table, row);
  if (row.hasOffset) AddOffset(table, row.number);
  if (row.places != nullptr) AddPositions(table, row);
  if (row.number == accessory::kNosepiece) AddNosepieceMembers(table);
  return table;
}

const MemberTable<DeviceLink>& DeviceMembers(std::size_t place) {
  static const std::vector<MemberTable<DeviceLink>> tables = [] {
    std::vector<MemberTable<DeviceLink>> all;
    all.reserve(kAccessoryRows.size());
    for (const AccessoryRow& device : kAccessoryRows) all.push_back(MembersOf(device));
    return all;
  }();
  return tables.at(place);
}

// A device and the number of one of its accessories.
struct AccessoryLink {
  DeviceLink device;
  int number;
};

struct StateLink {
  AccessoryLink accessory;
  Value value;
};

}  // namespace

void AddAccessoryState(MemberTable<DeviceLink>& table, int accessoryNumber) {
  static const MemberTable<AccessoryLink> members =
      MemberTable<AccessoryLink>().OnGet("State", 0, [](const AccessoryLink& link, Args) -> Value {
        return link.device.Connected().Accessory(link.number).state;
      });
  table.OnGet("AccessoryState", 0, [accessoryNumber](const DeviceLink& link, Args) -> Value {
    return MakeObject(members, AccessoryLink{link, accessoryNumber});
  });
}

ObjectRef MakeStateValue(const DeviceLink& link, int accessoryNumber, Value value) {
  static const MemberTable<StateLink> members =
      MemberTable<StateLink>()
          .OnGet("", 0, [](const StateLink& state, Args) { return state.value; })
          .OnGet("IsReadOnly", 0, [](const StateLink& state, Args) -> Value {
            const auto& [device, number] = state.accessory;
            return device.Connected().Accessory(number).readOnly;
          });
  return MakeObject(members, StateLink{{link, accessoryNumber}, std::move(value)});
}

Instrument& Commanded(const DeviceLink& link, int accessoryNumber) {
  Instrument& device = link.Fitted(accessoryNumber);
  if (device.Accessory(accessoryNumber).readOnly) {
    RaiseSimulated("Accessory " + std::to_string(accessoryNumber) + " is only sensed.");
  }
  return device;
}

std::vector<std::string_view> AccessoryDeviceMembers() {
  std::vector<std::string_view> names;
  names.reserve(kAccessoryRows.size());
  for (const AccessoryRow& device : kAccessoryRows) names.push_back(device.member);
  return names;
}

ObjectRef MakeAccessoryDevice(const DeviceLink& link, std::size_t place) {
  return MakeObject(DeviceMembers(place), link);
}

}  // namespace mortane::controller
