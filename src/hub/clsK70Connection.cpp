// Connection, and detection of controllers and accessories.
#include "common/Failure.h"
#include "common/FailureText.h"
#include "common/Text.h"
#include "hub/AccessoryTable.h"
#include "hub/clsK70.h"

namespace mortane {
namespace {

// A condition for each controller unit: 1 must answer, 0 must not answer, -1 either.
struct TypeRow {
  std::int32_t type;
  std::array<int, controllerunit::kCount> units;
};

constexpr std::array<TypeRow, 7> kTypeTable{{
    {0, {1, 0, 0, -1, -1, -1, -1}},
    {1, {0, 1, 0, -1, -1, -1, -1}},
    {2, {0, 0, 1, -1, -1, -1, -1}},
    {3, {1, 1, 0, -1, -1, -1, -1}},
    {4, {1, 0, 1, -1, -1, -1, -1}},
    {5, {0, 0, 0, -1, -1, 1, 0}},
    {6, {0, 0, 0, -1, -1, 1, 1}},
}};

bool Matches(const TypeRow& row, const std::array<bool, controllerunit::kCount>& answering) {
  for (std::size_t i = 0; i < answering.size(); ++i) {
    if (row.units[i] >= 0 && (row.units[i] == 1) != answering[i]) return false;
  }
  return true;
}

// Maps a device index to a list index: negative to 1, beyond `count` to 0. Kept: `count` passes
// through, and Item fails.
std::int32_t EntryIndex(std::int32_t index, std::int32_t count) {
  if (count == 1 || index == 0 || index > count) return 0;
  return index < 0 ? 1 : index;
}

}  // namespace

controller::DeviceEntry clsK70::Entry() const {
  return Mic.DeviceList().Item(lConnectDevice);
}

std::int32_t clsK70::DeviceCount() {
  try {
    return Mic.DeviceList().Count();
  } catch (const Failure& failure) {
    prompts().MsgBox(OperationError("DeviceCount", failure), box::kOk);
    return 0;
  }
}

std::string clsK70::DeviceName(std::int32_t index) {
  try {
    return DeviceNameOf(index);
  } catch (const Failure& failure) {
    prompts().MsgBox(OperationError("DeviceName", failure), box::kOk);
    return {};
  }
}

std::string clsK70::DeviceNameOf(std::int32_t index) const {
  const controller::DeviceList list = Mic.DeviceList();
  return list.Item(EntryIndex(index, list.Count())).Name();
}

bool clsK70::Connect(std::int32_t DeviceNo) {
  readTransfers_.clear();
  bool connected = false;
  try {
    const std::int32_t count = Mic.DeviceList().Count();
    lConnectDevice = count == 1 ? 0 : DeviceNo >= 0 ? DeviceNo : 1;
    if (count >= 3) CreateRoot();  // with several microscopes each connection needs a new root
    Mic.PutCurrentDevice(Entry());
    Entry().Connect();
    connected = true;
    SystemName = DeviceName(lConnectDevice);
    CheckAccessories();
    FixTurretSizes();
  } catch (const Failure&) {
    lConnectDevice = -1;
  }
  return connected;
}

void clsK70::Disconnect() {
  try {
    DeleteConnectionName();
    if (lConnectDevice > -1) Entry().Disconnect();
    lConnectDevice = -1;
  } catch (const Failure& failure) {
    prompts().MsgBox(OperationError("Disconnect", failure), box::kOk);
  }
}

std::int32_t clsK70::TurretCount(const Turret& turret) const {
  return IsMounted(turret.accessory) == kNotMounted
             ? 0
             : Mic.Turret(turret.accessory).Positions().Count();
}

// A turret without addresses counts as not mounted.
void clsK70::FixTurretSizes() {
  for (const Turret& turret : turrets_) {
    const std::int32_t count = TurretCount(turret);
    for (std::int32_t* stored : turret.counts) *stored = count;
    if (count == 0) SetMounted(turret.accessory, kNotMounted);
  }
}

void clsK70::CheckAccessories() {
  mounted_.fill(kNotMounted);
  controllers_.fill(false);
  try {
    DetectControllers();
    DetectAccessories();
  } catch (const Failure& failure) {
    prompts().MsgBox(OperationError("CheckAccessories", failure), box::kOk);
  }
}

void clsK70::DetectControllers() {
  for (std::int32_t unit = 0; unit < controllerunit::kCount; ++unit) {
    controllers_[static_cast<std::size_t>(unit)] =
        Mic.ControllerPresent(controllerunit::NumberInLibrary(unit)) == 1;
  }
  // Kept: if no row matches, curType keeps its previous value.
  for (const TypeRow& row : kTypeTable) {
    if (Matches(row, controllers_)) curType = row.type;
  }
}

void clsK70::DetectAccessories() {
  for (const AccessoryRow& row : kAccessoryTable) {
    if (Mic.Accessory(row.device).AccessoryState().State() != 1) continue;
    const controller::StateValue state = Mic.Accessory(row.device).StateMember(row.stateMember);
    SetMounted(row.number, state.IsReadOnly() ? kSensorOnly : kControllable);
  }
}

void clsK70::SetMounted(std::int32_t accessory, std::int32_t value) {
  mounted_[static_cast<std::size_t>(accessory - 1)] = value;
}

std::string clsK70::GetAccessories() {
  std::string mounted = "Mounted Accessories" + std::string(kLineBreak);
  std::string notMounted = "Not Mounted Accessories" + std::string(kLineBreak);
  for (const AccessoryRow* row : AccessoriesInReportOrder()) {
    const std::int32_t value = IsMounted(row->number);
    std::string& list = value == kNotMounted ? notMounted : mounted;
    list.append("\t").append(ReportLabel(*row, value)).append(kLineBreak);
  }
  return mounted + std::string(kLineBreak) + notMounted;
}

}  // namespace mortane
