#include "app/ConnectMicroscope.h"

#include <optional>

#include "common/Text.h"
#include "hub/DeviceAvailability.h"
#include "hub/clsK70.h"

namespace mortane {
namespace {

constexpr std::int32_t kNothingFound = -1;
constexpr std::int32_t kOnlyMicroscope = 1;
// Entries of the device list, simulator included, from which a person has to choose.
constexpr std::int32_t kChoiceNeeded = 3;

constexpr char kRestart[] = "\r\nPlease restart this application or your machine.";
constexpr char kAlreadyUsed[] = "Other Application has already used this Microscope.";

void Say(const StartPath& start, const std::string& text) {
  start.prompts.MsgBox(text, box::kOk);
}

// Which device one argument names.
std::int32_t DeviceOf(const StartPath& start, const std::string& argument) {
  const std::int32_t count = start.k70.DeviceCount();
  for (std::int32_t j = kOnlyMicroscope; j < count; ++j) {
    if (IsDeviceAvailable(start.library, j) && argument == start.k70.DeviceName(j)) return j;
  }
  return EqualsIgnoringCase(argument, "/SIM") ? kSimulator : kNothingFound;
}

std::int32_t DeviceOnCommandLine(const StartPath& start) {
  for (std::size_t i = 1; i < start.arguments.size(); ++i) {
    const std::int32_t found = DeviceOf(start, start.arguments[i]);
    if (found != kNothingFound) return found;
  }
  return kNothingFound;
}

// The device with at most one real microscope; nothing when the program has to end.
std::optional<std::int32_t> TheOneDevice(const StartPath& start, std::int32_t found) {
  const std::int32_t device = found != kNothingFound ? found : kOnlyMicroscope;
  if (!start.k70.CreateConnectionName(std::to_string(device))) {
    Say(start, std::string(kAlreadyUsed) + kRestart);
    return std::nullopt;
  }
  if (device == kSimulator) {
    Say(start, "This application runs Simulation mode");
  } else if (!IsDeviceAvailable(start.library, kOnlyMicroscope)) {
    Say(start, "Not Available Microscope");
    return std::nullopt;
  }
  return device;
}

// The device among several, asking until one is free or the person gives up.
std::optional<std::int32_t> OneOfSeveral(const StartPath& start, std::int32_t found) {
  while (true) {
    if (found == kNothingFound) {
      found = start.selectDevice();
      if (found < kOnlyMicroscope) return std::nullopt;
    }
    if (start.k70.CreateConnectionName(std::to_string(found))) return found;
    Say(start, kAlreadyUsed);
    found = kNothingFound;
  }
}

}  // namespace

bool ConnectMicroscope(const StartPath& start) {
  const std::int32_t found = DeviceOnCommandLine(start);
  const std::int32_t count = start.k70.DeviceCount();
  if (count == 1 && found == kNothingFound) {
    Say(start, std::string("No Microscope") + kRestart);
    return false;
  }
  const std::optional<std::int32_t> device =
      count < kChoiceNeeded ? TheOneDevice(start, found) : OneOfSeveral(start, found);
  if (!device) return false;

  const HourglassScope hourglass(start.prompts);
  if (!start.k70.Connect(*device)) {
    // Nothing depends on the answer; the name stays taken until the process ends.
    start.prompts.MsgBox(std::string("Device Connect Error.") + kRestart,
                         box::kCritical + box::kCancelTryContinue);
    return false;
  }
  start.received(OutcomeOf(start.k70.Receive()));
  return true;
}

}  // namespace mortane
