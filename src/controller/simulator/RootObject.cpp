#include "controller/simulator/RootObject.h"

#include "common/Text.h"
#include "controller/ControllerNumbers.h"
#include "controller/DeviceList.h"
#include "controller/simulator/AccessoryObjects.h"
#include "controller/simulator/CodeRows.h"
#include "controller/simulator/DatabaseObjects.h"
#include "controller/simulator/DriveObjects.h"
#include "controller/simulator/ObjectiveCode.h"
#include "controller/simulator/SettingsObject.h"

namespace mortane::controller {
namespace {

// A device as an entry of the list. A type of its own, by which CurrentDevice knows an entry.
struct DeviceEntryLink {
  DeviceLink device;
};

Value ConnectEntry(const DeviceEntryLink& entry, Args) {
  entry.device.State().ConnectionChanges();
  if (entry.device.Device().available == 0) RaiseSimulated("The device does not answer.");
  entry.device.Session().connected = true;
  entry.device.Session().asynchronous = false;
  return {};
}

Value DisconnectEntry(const DeviceEntryLink& entry, Args) {
  entry.device.Device();
  entry.device.Session().connected = false;
  entry.device.State().ConnectionChanges();
  return {};
}

void PutAsyncMode(const DeviceEntryLink& entry, const Value& value, Args) {
  entry.device.Connected();
  entry.device.Session().asynchronous = BooleanArgument(value);
}

Value WaitMove(const DeviceEntryLink& entry, Args) {
  entry.device.Connected();
  FinishMoves(entry.device);
  return std::int32_t{0};
}

Value AskAvailable(const DeviceEntryLink& entry, Args) {
  const Instrument& device = entry.device.Device();
  if (device.busyWhenConnected && entry.device.Session().connected) return std::int32_t{0};
  return device.available;
}

Value DeviceItem(const SimulatorRef& state, Args args) {
  static const MemberTable<DeviceEntryLink> members =
      MemberTable<DeviceEntryLink>()
          .OnGet("Name", 0,
                 [](const DeviceEntryLink& entry, Args) -> Value {
                   return entry.device.Device().name;
                 })
          .OnCall("Connect", 0, ConnectEntry)
          .OnCall("Disconnect", 0, DisconnectEntry)
          .OnPut("AsyncMode", 0, PutAsyncMode)
          .OnCall("WaitMove", 1, WaitMove)
          .OnGet("IsAvailable", 0, AskAvailable);
  const DeviceLink device(state, LongArgument(args[0]));
  device.Device();
  return MakeObject(members, DeviceEntryLink{device});
}

ObjectRef MakeDeviceList(const SimulatorRef& state) {
  static const MemberTable<SimulatorRef> members =
      MemberTable<SimulatorRef>()
          .OnGet("Count", 0,
                 [](const SimulatorRef& shared, Args) -> Value {
                   return static_cast<std::int32_t>(shared->bench.instruments.size());
                 })
          .OnGet("Item", 1, DeviceItem);
  return MakeObject(members, state);
}

// One root: the state that all roots share, and the device that this one talks to.
class Root {
 public:
  explicit Root(SimulatorRef state) : state_(std::move(state)) { ++state_->createdRoots; }
  ~Root() { ++state_->releasedRoots; }
  Root(const Root&) = delete;
  Root& operator=(const Root&) = delete;

  const SimulatorRef& State() const { return state_; }

  DeviceLink Link() const {
    if (current_ < 0) RaiseSimulated("No current device.");
    return {state_, current_};
  }
  Instrument& Connected() const { return Link().Connected(); }

  void Choose(const Value& value) {
    const auto* object = std::get_if<ObjectRef>(&value);
    const auto* entry = object == nullptr
                            ? nullptr
                            : dynamic_cast<const MemberObject<DeviceEntryLink>*>(object->get());
    if (entry == nullptr || &entry->self().device.State() != state_.get()) {
      RaiseSimulated("The current device must be an entry of the device list.");
    }
    current_ = entry->self().device.Index();
  }

 private:
  SimulatorRef state_;
  int current_ = -1;
};

using RootMembers = MemberTable<Root>;

void PutSystemName(const Root& root, const Value& value, Args) {
  const std::string name = TextArgument(value);
  if (CharacterCount(name) > kSystemNameLength) {
    RaiseSimulated("The system name is longer than " + std::to_string(kSystemNameLength) +
                   " characters.");
  }
  root.State()->Assign(root.Connected().name, name);
}

void AddDevices(RootMembers& table) {
  table
      .OnGet("DeviceList", 0,
             [](const Root& root, Args) -> Value { return MakeDeviceList(root.State()); })
      .OnPut("CurrentDevice", 0, [](Root& root, const Value& value, Args) { root.Choose(value); })
      .OnPut("SystemName", 0, PutSystemName);
}

void AddAreas(RootMembers& table) {
  const auto add = [&](std::string_view member, auto make) {
    table.OnGet(member, 0, [make](const Root& root, Args) -> Value {
      root.Connected();
      return make(root.Link());
    });
  };
  add("AccessoryDatabase", MakeDatabase);
  add("ZDriveDevice", MakeZDrive);
  add("XYDriveDevice", MakeXYDrive);
  add("ControllerSettings", MakeControllerSettings);
  std::size_t place = 0;
  for (const std::string_view member : AccessoryDeviceMembers()) {
    add(member, [place](const DeviceLink& link) { return MakeAccessoryDevice(link, place); });
    ++place;
  }
}

const ControllerUnit& UnitOf(const Root& root, Args args) {
  const std::int32_t number = LongArgument(args[0]);
  Instrument& device = root.Connected();
  if (number < 1 || static_cast<std::size_t>(number) > device.units.size()) {
    RaiseSimulated("No controller unit " + std::to_string(number) + ".");
  }
  return device.Unit(number);
}

void AddControllerUnits(RootMembers& table) {
  table
      .OnGet("ControllerPresent", 1,
             [](const Root& root, Args args) -> Value { return UnitOf(root, args).present; })
      .OnGet("ControllerVersion", 1, [](const Root& root, Args args) -> Value {
        if (UnitOf(root, args).present == 0) RaiseSimulated("The controller unit does not answer.");
        return UnitOf(root, args).version;
      });
}

std::int32_t& BuzzerOf(const Root& root, Args args) {
  const std::int32_t code = LongArgument(args[0]);
  if (auto* field = FieldOfCode(kBuzzerRows, root.Connected().buzzers, code)) return *field;
  RaiseSimulated("No buzzer of code " + std::to_string(code) + ".");
}

std::int32_t& SwitchOf(const Root& root, Args args) {
  const std::int32_t unit = LongArgument(args[0]);
  auto* field = FieldOfCode(kSwitchRows, root.Connected().switches, unit);
  if (field != nullptr && LongArgument(args[1]) == 0) return *field;
  RaiseSimulated("Unit " + std::to_string(unit) + " has no such switches.");
}

std::int32_t& LedOf(const Root& root, Args args) {
  if (LongArgument(args[0]) != switchunit::kRemote) RaiseSimulated("Only the remote has an LED.");
  return root.Connected().switches.remoteLed;
}

using FieldOf = std::int32_t& (*)(const Root&, Args);

RootMembers::Reader Setting(FieldOf field, std::int32_t value) {
  return [field, value](const Root& root, Args args) -> Value {
    root.State()->Assign(field(root, args), value);
    return {};
  };
}

RootMembers::Reader Reading(FieldOf field) {
  return [field](const Root& root, Args args) -> Value { return field(root, args); };
}

void AddBuzzersAndSwitches(RootMembers& table) {
  table.OnCall("BuzzerOn", 1, Setting(BuzzerOf, 1))
      .OnCall("BuzzerOff", 1, Setting(BuzzerOf, 0))
      .OnGet("BuzzerEnabled", 1, Reading(BuzzerOf))
      .OnCall("EnableSwitch", 2, Setting(SwitchOf, 1))
      .OnCall("DisableSwitch", 2, Setting(SwitchOf, 0))
      .OnGet("SwitchEnabled", 2, Reading(SwitchOf))
      .OnGet("RemoteLED", 1, Reading(LedOf))
      .OnPut("RemoteLED", 1, [](const Root& root, const Value& value, Args args) {
        root.State()->Assign(LedOf(root, args), LongArgument(value));
      });
}

void AddCommands(RootMembers& table) {
  table
      .OnCall("SendCommand", 1,
              [](const Root& root, Args args) -> Value {
                if (ApplyCommand(root.Connected().database, TextArgument(args[0]))) {
                  root.State()->Changed();
                }
                return {};
              })
      .OnCall("QueryCommand", 1, [](const Root& root, Args args) -> Value {
        return AnswerQuery(root.Connected().database, TextArgument(args[0]));
      });
}

RootMembers MakeMembers() {
  RootMembers table;
  AddDevices(table);
  AddAreas(table);
  AddControllerUnits(table);
  AddBuzzersAndSwitches(table);
  AddCommands(table);
  return table;
}

}  // namespace

ObjectRef MakeRoot(const SimulatorRef& state) {
  static const RootMembers members = MakeMembers();
  return MakeObject(members, state);
}

}  // namespace mortane::controller
