#include "controller/simulator/BenchOfSession.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <unordered_set>
#include <utility>

#include "common/Failure.h"
#include "common/Numbers.h"
#include "common/Text.h"
#include "controller/DeviceList.h"
#include "controller/simulator/FactRows.h"
#include "controller/simulator/ObjectiveCode.h"

namespace mortane::controller {
namespace {

// A higher index in a journal is taken for an error and passed over.
constexpr std::int32_t kMostDevices = 100;

// The most answers of one member that count: ten addresses for each record of the longest list.
constexpr std::size_t kMostAnswers = 10 * kLongestList;

constexpr std::string_view kQuery = "QueryCommand";
constexpr std::string_view kCodeCommand = "rONR";

// A call by the names of its path, joined, and all of its arguments.
struct Asked {
  std::string use;
  std::string name;
  Fact fact;
};

std::optional<Asked> Asking(SessionLine& line) {
  auto call = ParseSessionCall(line.call);
  if (!call) return std::nullopt;
  Asked asked{std::move(call->use), {}, {{}, std::move(line.result)}};
  for (PathStep& step : call->path) {
    if (!asked.name.empty()) asked.name += '.';
    asked.name += step.name;
    for (SessionValue& value : step.args) asked.fact.args.push_back(std::move(value));
  }
  return asked;
}

// The call without the object and the use, which say nothing of what is asked for.
std::string_view PathOf(std::string_view call) {
  for (int word = 0; word < 2; ++word)
    call.remove_prefix(std::min(call.find(' ') + 1, call.size()));
  return call;
}

// What the journal holds of one entry of the device list.
struct DeviceFacts {
  bool connected = false;
  bool named = false;
  bool availabilityTold = false;
  std::map<const FactRow*, std::size_t> told;   // how many answers
  std::unordered_set<std::string> answered;     // by their paths
  std::map<std::string, std::string> codes;     // answers to rONR by their digit
  std::map<std::string, std::string> failures;  // by the path, of what was told at no other time
};

class Builder {
 public:
  void Take(SessionLine line);
  SessionBench Finish(bool cut);

 private:
  void TakeAnswer(const Asked& asked, std::string path);
  bool TakeDeviceList(const Asked& asked);
  void TakeFiber(const Asked& asked, bool failed);
  void TakeConnection(const Asked& asked);
  void TakeFailure(const Asked& asked, const SessionFailure& failure);
  void TakeFact(const FactRow& row, const Asked& asked, std::string path);
  bool IsAnswered(const std::string& path) const;
  Instrument* DeviceAt(const SessionValue& index);
  DeviceFacts& FactsOf(const Instrument& instrument);

  void FillCodes(std::size_t device);
  void List(std::size_t device);
  void Default(std::size_t device, const std::string& text);

  SessionBench made_;
  std::vector<DeviceFacts> facts_;
  std::optional<std::size_t> current_;
  std::set<std::string> fiberTold_;
};

Instrument* Builder::DeviceAt(const SessionValue& index) {
  std::int32_t number = 0;
  if (!SetField(number, index) || number < 0 || number >= kMostDevices) return nullptr;
  const auto place = static_cast<std::size_t>(number);
  if (made_.bench.instruments.size() <= place) {
    made_.bench.instruments.resize(place + 1);
    facts_.resize(place + 1);
  }
  return &made_.bench.instruments[place];
}

DeviceFacts& Builder::FactsOf(const Instrument& instrument) {
  return facts_[static_cast<std::size_t>(&instrument - made_.bench.instruments.data())];
}

void Builder::Take(SessionLine line) {
  if (!line.failure && std::holds_alternative<ObjectNumber>(line.result) &&
      !line.call.starts_with("#0 create")) {
    return;
  }
  std::string path(PathOf(line.call));
  if (IsAnswered(path)) return;
  const auto failure = std::move(line.failure);
  const auto asked = Asking(line);
  if (!asked || asked->use == "put") return;
  TakeFiber(*asked, failure.has_value());
  if (failure) {
    TakeFailure(*asked, *failure);
  } else if (!TakeDeviceList(*asked)) {
    TakeAnswer(*asked, std::move(path));
  }
}

// A long session repeats most of its questions; those need not be parsed again.
bool Builder::IsAnswered(const std::string& path) const {
  return current_ && facts_[*current_].answered.contains(path);
}

// The fiber server's objects are roots, whose members have no prefix.
void Builder::TakeFiber(const Asked& asked, bool failed) {
  FiberData& fiber = made_.bench.fiber;
  const Fact& fact = asked.fact;
  if (asked.use == "create") {
    if (fact.args[0] == SessionValue(std::string("FiberServer"))) fiber.installed = !failed;
    return;
  }
  if (asked.name == "Open" && failed) fiber.opens = false;
  if (failed) return;
  const auto first = [&](std::string_view name) {
    return asked.name == name && fiberTold_.insert(asked.name).second;
  };
  // Open has returned, so it raises no failure when it finds no device.
  if (asked.name == "IsOpen" && fiberTold_.contains("Open") && fact.value == SessionValue(false)) {
    fiber.opens = fiber.openRaises = false;
  }
  if (first("Open")) return;
  if (first("IsOpen")) SetField(fiber.open, fact.value);
  if (first("Status")) SetField(fiber.status, fact.value);
  if (first("SwitchEnable")) SetField(fiber.switchEnable, fact.value);
  if (first("LED")) SetField(fiber.led, fact.value);
}

bool Builder::TakeDeviceList(const Asked& asked) {
  if (!asked.name.starts_with("DeviceList")) return false;
  if (asked.name == "DeviceList.Count") {
    std::int32_t count = 0;
    if (SetField(count, asked.fact.value) && count > 0) DeviceAt(SessionValue(count - 1));
    return true;
  }
  if (asked.fact.args.empty()) return true;
  Instrument* device = DeviceAt(asked.fact.args[0]);
  if (device == nullptr) return true;
  DeviceFacts& facts = FactsOf(*device);
  if (asked.name == "DeviceList.Item.Name") {
    if (!facts.named) facts.named = SetField(device->name, asked.fact.value);
    device->name = FirstCharacters(device->name, kSystemNameLength);
  } else if (asked.name == "DeviceList.Item.IsAvailable") {
    std::int32_t available = 0;
    const bool taken = SetField(available, asked.fact.value);
    const bool isCurrent = current_ && &made_.bench.instruments[*current_] == device;
    if (taken && isCurrent && available == 0) device->busyWhenConnected = true;
    if (taken && !isCurrent && !std::exchange(facts.availabilityTold, true)) {
      device->available = available;
    }
  } else {
    TakeConnection(asked);
  }
  return true;
}

void Builder::TakeConnection(const Asked& asked) {
  const Instrument* device = DeviceAt(asked.fact.args[0]);
  if (device == nullptr) return;
  const auto place = static_cast<std::size_t>(device - made_.bench.instruments.data());
  if (asked.name == "DeviceList.Item.Connect") {
    current_ = place;
    facts_[place].connected = true;
  } else if (asked.name == "DeviceList.Item.Disconnect" && current_ == place) {
    current_.reset();
  }
}

void Builder::TakeFailure(const Asked& asked, const SessionFailure& failure) {
  if (!current_ || FindFactRow(asked.name) == nullptr) return;
  facts_[*current_].failures.emplace(asked.name, failure.description);
}

void Builder::TakeAnswer(const Asked& asked, std::string path) {
  if (!current_) return;
  if (asked.name == kQuery && asked.fact.args.size() == 1) {
    const auto* command = std::get_if<std::string>(&asked.fact.args[0]);
    const auto* answer = std::get_if<std::string>(&asked.fact.value);
    if (command != nullptr && answer != nullptr && command->starts_with(kCodeCommand) &&
        command->size() == kCodeCommand.size() + 1) {
      facts_[*current_].codes.emplace(command->substr(kCodeCommand.size()), *answer);
    }
    return;
  }
  if (asked.use == "next") return;
  if (const FactRow* row = FindFactRow(asked.name)) TakeFact(*row, asked, std::move(path));
}

void Builder::TakeFact(const FactRow& row, const Asked& asked, std::string path) {
  DeviceFacts& facts = facts_[*current_];
  std::size_t& told = facts.told[&row];
  if (told == kMostAnswers || !row.set(made_.bench.instruments[*current_], asked.fact)) return;
  ++told;
  facts.answered.insert(std::move(path));
}

// The digit of the condenser is told by the code of an optional objective alone. A code that its
// record does not give is kept as the answer.
void Builder::FillCodes(std::size_t device) {
  for (const auto& [digit, answer] : facts_[device].codes) {
    std::vector<ObjectiveData>& objectives = made_.bench.instruments[device].database.objectives;
    const std::int32_t code = kFirstOption - 1 + ToLong(digit, PointFormat());
    const auto objective =
        std::find_if(objectives.begin(), objectives.end(),
                     [&](const ObjectiveData& each) { return each.code == code; });
    if (objective == objectives.end()) continue;
    if (!answer.empty() && answer.back() >= '0' && answer.back() <= '9') {
      objective->adoptive = answer.back() - '0';
    }
    if (answer != "ONR" + digit + ObjectiveCode(*objective)) objective->answer = answer;
  }
}

void Builder::Default(std::size_t device, const std::string& text) {
  const std::string& name = made_.bench.instruments[device].name;
  made_.defaults.push_back("device " + std::to_string(device) + " \"" + name + "\": " + text);
}

void Builder::List(std::size_t device) {
  const Instrument& instrument = made_.bench.instruments[device];
  DeviceFacts& facts = facts_[device];
  if (!facts.named) Default(device, "its name");
  if (!facts.connected) {
    Default(device, "everything but its name: it was not connected");
    return;
  }
  for (const FactRow& row : FactRows()) {
    const std::size_t expected = row.expected(instrument);
    const std::size_t told = facts.told[&row];
    if (told >= expected) continue;
    const auto failure = facts.failures.find(row.name);
    std::string text = row.name;
    if (expected > 1) {
      text += ": " + std::to_string(expected - told) + " of " + std::to_string(expected);
    }
    if (failure != facts.failures.end()) text += " (it failed: " + failure->second + ")";
    Default(device, text);
  }
  if (instrument.accessories[accessory::kZFocusDrive - 1].state != 0) {
    Default(device, "ZDriveDevice: speed, travel, MoveProfile and MoveOption");
  }
  if (instrument.accessories[accessory::kXYStage - 1].state != 0) {
    Default(device, "XYDriveDevice: speed, travel and MoveProfile");
  }
}

SessionBench Builder::Finish(bool cut) {
  if (made_.bench.instruments.empty()) {
    RaiseOwnFailure(kConversionError, "the session tells of no device");
  }
  for (std::size_t device = 0; device < made_.bench.instruments.size(); ++device) {
    FillCodes(device);
    List(device);
  }
  if (cut) made_.defaults.emplace_back("what came behind the end: the journal is cut off");
  return std::move(made_);
}

}  // namespace

SessionBench BenchOfSession(JournalReader& reader) {
  Builder builder;
  try {
    while (auto line = reader.Next()) builder.Take(std::move(*line));
    return builder.Finish(reader.IsCut());
  } catch (const Failure& failure) {
    throw Failure(failure.Source(), failure.Number(),
                  reader.Where() + ": " + failure.Description());
  }
}

}  // namespace mortane::controller
