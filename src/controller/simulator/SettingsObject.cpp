#include "controller/simulator/SettingsObject.h"

#include "common/DigitCode.h"
#include "controller/ControllerNumbers.h"

namespace mortane::controller {
namespace {

std::int32_t& InterlockOf(const DeviceLink& link, Args args) {
  const std::int32_t item = LongArgument(args[0]);
  const std::int32_t trigger = LongArgument(args[1]);
  if (item < 1 || item > accessory::kCount || trigger < 1 ||
      trigger > std::int32_t{kTriggers.size()}) {
    RaiseSimulated("No interlock of " + std::to_string(item) + " by " + std::to_string(trigger) +
                   ".");
  }
  return link.Connected().Interlock(item, trigger);
}

// Keys count from "1" on the body; the hand controller's key "0" is its mode.
std::string& SwitchOf(const DeviceLink& link, Args args) {
  const std::int32_t unit = LongArgument(args[0]);
  const std::string key = TextArgument(args[1]);
  const std::int32_t digit = key.size() == 1 ? CharToDigit(key) : -1;
  Instrument& device = link.Connected();
  if (unit == switchunit::kBody && digit >= 1 && digit <= std::int32_t{kBodySwitches}) {
    return device.bodySwitches[static_cast<std::size_t>(digit) - 1];
  }
  if (unit == switchunit::kHandController && digit >= 0 && digit < std::int32_t{kHandSwitches}) {
    return device.handSwitches[static_cast<std::size_t>(digit)];
  }
  RaiseSimulated("Unit " + std::to_string(unit) + " has no switch \"" + key + "\".");
}

}  // namespace

ObjectRef MakeControllerSettings(const DeviceLink& link) {
  const auto setInterlock = [](std::int32_t state) {
    return [state](const DeviceLink& device, Args args) -> Value {
      device.Assign(InterlockOf(device, args), state);
      return {};
    };
  };
  static const MemberTable<DeviceLink> members =
      MemberTable<DeviceLink>()
          .OnCall("SetInterlock", 2, setInterlock(1))
          .OnCall("ClearInterlock", 2, setInterlock(0))
          .OnGet("Interlock", 2,
                 [](const DeviceLink& device, Args args) -> Value {
                   return InterlockOf(device, args);
                 })
          .OnGet(
              "EscapeMode", 0,
              [](const DeviceLink& device, Args) -> Value { return device.Connected().escapeMode; })
          .OnPut("EscapeMode", 0,
                 [](const DeviceLink& device, const Value& value, Args) {
                   device.Assign(device.Connected().escapeMode, LongArgument(value));
                 })
          .OnCall("SetSwitchFunction", 3,
                  [](const DeviceLink& device, Args args) -> Value {
                    device.Assign(SwitchOf(device, args), TextArgument(args[2]));
                    return {};
                  })
          .OnGet("SwitchFunction", 2, [](const DeviceLink& device, Args args) -> Value {
            return SwitchOf(device, args);
          });
  return MakeObject(members, link);
}

}  // namespace mortane::controller
