#include "controller/simulator/RootObject.h"

#include "common/Text.h"
#include "controller/simulator/AccessoryObjects.h"
#include "controller/simulator/DatabaseObjects.h"
#include "controller/simulator/DriveObjects.h"
#include "controller/simulator/ObjectiveCode.h"
#include "controller/simulator/SettingsObject.h"

namespace mortane::controller {
namespace {

constexpr std::size_t kSystemNameLength = 15;
constexpr std::int32_t kRemoteUnit = 7;

struct CodeRow {
  std::int32_t code;
  std::int32_t BuzzerData::*field;
};
constexpr std::array kBuzzers{CodeRow{1, &BuzzerData::body}, CodeRow{2, &BuzzerData::hub},
                              CodeRow{5, &BuzzerData::handController},
                              CodeRow{6, &BuzzerData::fifthUnit}};

struct UnitRow {
  std::int32_t unit;
  std::int32_t SwitchData::*field;
};
constexpr std::array kSwitches{UnitRow{0, &SwitchData::body},
                               UnitRow{4, &SwitchData::handController},
                               UnitRow{kRemoteUnit, &SwitchData::remote}};

class DeviceEntryObject : public MemberObject {
 public:
  explicit DeviceEntryObject(const DeviceLink& link) : link_(link) {
    OnGet("Name", 0, [link](Args) -> Value { return link.Device().name; });
    OnCall("Connect", 0, [link](Args) -> Value {
      if (link.Device().available == 0) RaiseSimulated("The device does not answer.");
      link.Session().connected = true;
      return {};
    });
    OnCall("Disconnect", 0, [link](Args) -> Value {
      link.Device();
      link.Session().connected = false;
      return {};
    });
    OnPut("AsyncMode", 0, [link](const Value& value, Args) {
      link.Connected();
      link.Session().asynchronous = BooleanArgument(value);
    });
    OnCall("WaitMove", 1, [link](Args) -> Value {
      link.Connected();
      FinishMoves(link);
      return std::int32_t{0};
    });
    OnGet("IsAvailable", 0, [link](Args) -> Value {
      const Instrument& device = link.Device();
      if (device.busyWhenConnected && link.Session().connected) return std::int32_t{0};
      return device.available;
    });
  }

  const DeviceLink& Link() const { return link_; }

 private:
  DeviceLink link_;
};

ObjectRef MakeDeviceList(const SimulatorRef& state) {
  auto list = std::make_shared<MemberObject>();
  list->OnGet("Count", 0,
              [state](Args) -> Value {
                return static_cast<std::int32_t>(state->bench.instruments.size());
              })
      .OnGet("Item", 1, [state](Args args) -> Value {
        const DeviceLink link(state, LongArgument(args[0]));
        link.Device();
        return std::make_shared<DeviceEntryObject>(link);
      });
  return list;
}

class RootObject : public MemberObject {
 public:
  explicit RootObject(SimulatorRef state) : state_(std::move(state)) {
    ++state_->createdRoots;
    AddDevices();
    AddAreas();
    AddControllerUnits();
    AddBuzzers();
    AddSwitches();
    AddCommands();
  }
  ~RootObject() override { ++state_->releasedRoots; }
  RootObject(const RootObject&) = delete;
  RootObject& operator=(const RootObject&) = delete;

  Value Get(std::string_view member, Args args) override {
    if (args.empty()) {
      if (const ObjectRef device = MakeAccessoryDevice(DeviceLink(state_, current_), member)) {
        Link().Connected();
        return device;
      }
    }
    return MemberObject::Get(member, args);
  }

 private:
  DeviceLink Link() const {
    if (current_ < 0) RaiseSimulated("No current device.");
    return DeviceLink(state_, current_);
  }

  void AddDevices();
  void AddAreas();
  void AddControllerUnits();
  void AddBuzzers();
  void AddSwitches();
  void AddCommands();

  SimulatorRef state_;
  int current_ = -1;
};

void RootObject::AddDevices() {
  OnGet("DeviceList", 0, [this](Args) -> Value { return MakeDeviceList(state_); });
  OnPut("CurrentDevice", 0, [this](const Value& value, Args) {
    const auto* object = std::get_if<ObjectRef>(&value);
    const auto* entry =
        object == nullptr ? nullptr : dynamic_cast<const DeviceEntryObject*>(object->get());
    if (entry == nullptr || &entry->Link().State() != state_.get()) {
      RaiseSimulated("The current device must be an entry of the device list.");
    }
    current_ = entry->Link().Index();
  });
  OnPut("SystemName", 0, [this](const Value& value, Args) {
    const std::string name = TextArgument(value);
    if (CharacterCount(name) > kSystemNameLength) {
      RaiseSimulated("The system name is longer than 15 characters.");
    }
    state_->Assign(Link().Connected().name, name);
  });
}

void RootObject::AddAreas() {
  const auto add = [this](std::string_view member, ObjectRef (*make)(const DeviceLink&)) {
    OnGet(member, 0, [this, make](Args) -> Value {
      Link().Connected();
      return make(Link());
    });
  };
  add("AccessoryDatabase", MakeDatabase);
  add("ZDriveDevice", MakeZDrive);
  add("XYDriveDevice", MakeXYDrive);
  add("ControllerSettings", MakeControllerSettings);
}

void RootObject::AddControllerUnits() {
  const auto unit = [this](Args args) -> const ControllerUnit& {
    const std::int32_t number = LongArgument(args[0]);
    Instrument& device = Link().Connected();
    if (number < 1 || static_cast<std::size_t>(number) > device.units.size()) {
      RaiseSimulated("No controller unit " + std::to_string(number) + ".");
    }
    return device.Unit(number);
  };
  OnGet("ControllerPresent", 1, [unit](Args args) -> Value { return unit(args).present; });
  OnGet("ControllerVersion", 1, [unit](Args args) -> Value {
    if (unit(args).present == 0) RaiseSimulated("The controller unit does not answer.");
    return unit(args).version;
  });
}

void RootObject::AddBuzzers() {
  const auto buzzer = [this](Args args) -> std::int32_t& {
    const std::int32_t code = LongArgument(args[0]);
    for (const CodeRow& row : kBuzzers) {
      if (row.code == code) return Link().Connected().buzzers.*row.field;
    }
    RaiseSimulated("No buzzer of code " + std::to_string(code) + ".");
  };
  const auto set = [this, buzzer](std::int32_t state) {
    return [this, buzzer, state](Args args) -> Value {
      state_->Assign(buzzer(args), state);
      return {};
    };
  };
  OnCall("BuzzerOn", 1, set(1));
  OnCall("BuzzerOff", 1, set(0));
  OnGet("BuzzerEnabled", 1, [buzzer](Args args) -> Value { return buzzer(args); });
}

void RootObject::AddSwitches() {
  const auto unitSwitch = [this](Args args) -> std::int32_t& {
    const std::int32_t unit = LongArgument(args[0]);
    for (const UnitRow& row : kSwitches) {
      if (row.unit == unit && LongArgument(args[1]) == 0) {
        return Link().Connected().switches.*row.field;
      }
    }
    RaiseSimulated("Unit " + std::to_string(unit) + " has no such switches.");
  };
  const auto set = [this, unitSwitch](std::int32_t state) {
    return [this, unitSwitch, state](Args args) -> Value {
      state_->Assign(unitSwitch(args), state);
      return {};
    };
  };
  OnCall("EnableSwitch", 2, set(1));
  OnCall("DisableSwitch", 2, set(0));
  OnGet("SwitchEnabled", 2, [unitSwitch](Args args) -> Value { return unitSwitch(args); });

  const auto led = [this](Args args) -> std::int32_t& {
    if (LongArgument(args[0]) != kRemoteUnit) RaiseSimulated("Only the remote has an LED.");
    return Link().Connected().switches.remoteLed;
  };
  OnGet("RemoteLED", 1, [led](Args args) -> Value { return led(args); });
  OnPut("RemoteLED", 1, [this, led](const Value& value, Args args) {
    state_->Assign(led(args), LongArgument(value));
  });
}

void RootObject::AddCommands() {
  OnCall("SendCommand", 1, [this](Args args) -> Value {
    if (ApplyCommand(Link().Connected().database, TextArgument(args[0]))) state_->Changed();
    return {};
  });
  OnCall("QueryCommand", 1, [this](Args args) -> Value {
    return AnswerQuery(Link().Connected().database, TextArgument(args[0]));
  });
}

}  // namespace

ObjectRef MakeRoot(const SimulatorRef& state) {
  return std::make_shared<RootObject>(state);
}

}  // namespace mortane::controller
