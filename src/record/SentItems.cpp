#include "record/SentItems.h"

#include <algorithm>

#include "common/Numbers.h"
#include "condensers/clsCondenser.h"
#include "drives/clsControlZDrive.h"
#include "filters/clsFilter.h"
#include "hub/clsK70.h"
#include "interlocks/ObservationAccessories.h"
#include "interlocks/OtherAccessories.h"
#include "interlocks/clsInterLockOffset.h"
#include "model/OptionRecords.h"
#include "objectives/clsLimitation.h"
#include "objectives/clsNosepiece.h"
#include "switches/clsControlTactor.h"
#include "switches/clsDbSwitch.h"

namespace mortane {
namespace {

using enum ItemKind;

std::int32_t PositionOf(const ConfigurationItem& item) {
  return ToLong(item.key.position, PointFormat());
}

bool IsWithin(const ConfigurationItem& item, std::int32_t count) {
  const std::int32_t position = PositionOf(item);
  return IsNumeric(item.key.position, PointFormat()) && position >= 1 && position <= count;
}

bool IsMounted(const clsK70& k70, std::int32_t item) {
  return k70.IsMounted(item) != kNotMounted;
}

template <typename Rows, typename Accept>
bool HasAccessory(const Rows& rows, const ConfigurationItem& item, Accept&& accept) {
  return std::any_of(rows.begin(), rows.end(),
                     [&](const auto& row) { return row.word == item.key.position && accept(row); });
}

bool HasFollower(const clsK70& k70, const ConfigurationItem& item, std::int32_t changing,
                 std::int32_t leastMounted, bool (OtherAccessory::*follows)() const) {
  return k70.IsMounted(changing) >= leastMounted &&
         HasAccessory(kOtherAccessories, item, [&](const OtherAccessory& row) {
           return (row.*follows)() && k70.IsControllable(row.number);
         });
}

// The user's records apart, what the microscope needs to have.
bool HasParts(const clsK70& k70, const ConfigurationItem& item) {
  switch (item.kind) {
    case SystemName:
      return true;
    case ObjectiveAddress:
      return IsMounted(k70, accessory::kNosepiece) && IsWithin(item, k70.curNosepiece.Count);
    case ObjectiveCode:
    case ObjectiveName:
      return IsMounted(k70, accessory::kNosepiece);
    case NosepieceLimit: {
      const auto rules = PositionWords(NosepieceLimit);
      return k70.IsControllable(accessory::kNosepiece) &&
             std::find(rules.begin(), rules.end(), item.key.position) != rules.end();
    }
    case CubeAddress:
      return IsMounted(k70, accessory::kFilterCube) && IsWithin(item, k70.curFilter.Count);
    case CubeCode:
    case CubeName:
    case ExciterName:
    case DichroicName:
    case BarrierName:
      return IsMounted(k70, accessory::kFilterCube);
    case CondenserAddress:
      return IsMounted(k70, accessory::kCondenser) && IsWithin(item, k70.curCondenser.Count);
    case CondenserName:
      return IsMounted(k70, accessory::kCondenser);
    case ObservationInterlock:
      return (k70.Controller(controllerunit::kBody) || k70.Controller(controllerunit::kUnit5) ||
              k70.Controller(controllerunit::kRemote)) &&
             HasAccessory(kObservationAccessories, item, [&](const ObservationAccessory& row) {
               return k70.IsControllable(row.number);
             });
    case NosepieceInterlock:
      return HasFollower(k70, item, accessory::kNosepiece, kControllable,
                         &OtherAccessory::FollowsNosepiece);
    case LightPathInterlock:
      return HasFollower(k70, item, accessory::kLightPath, kSensorOnly,
                         &OtherAccessory::FollowsPath);
    case ZoomInterlock:
      return HasFollower(k70, item, accessory::kOpticalZoom, kSensorOnly,
                         &OtherAccessory::FollowsPath);
    case Offset:
      return k70.Controller(controllerunit::kBody) &&
             HasAccessory(kOffsetAccessories, item, [&](const OffsetAccessory& row) {
               return k70.IsControllable(row.number);
             });
    case FocusCompensation:
    case FocusEscape:
    case StageEscape:
    case FocusKnob:
      return k70.IsControllable(accessory::kZFocusDrive);
    case LowerLimit:
      return k70.IsControllable(accessory::kZFocusDrive) && !IsMounted(k70, accessory::kCondenser);
    case StageCompensation:
    case StageKnob:
      return k70.IsControllable(accessory::kXYStage);
    case Buzzer:
      return k70.Controller(controllerunit::kBody) || k70.Controller(controllerunit::kHub) ||
             k70.Controller(controllerunit::kRemote);
    case BodySwitches:
      return k70.Controller(controllerunit::kBody);
    case HandSwitches:
    case HandMode:
      return k70.Controller(controllerunit::kHandController);
    case RemoteSwitches:
    case RemoteLed:
      return k70.Controller(controllerunit::kRemote);
    case BodySwitch:
      return k70.Controller(controllerunit::kBody) && IsWithin(item, clsDbSwitch::SwitchCount);
    case HandSide:
      return k70.Controller(controllerunit::kHandController) &&
             k70.IsControllable(accessory::kXYStage);
    case HandSwitch:
      return k70.Controller(controllerunit::kHandController) &&
             IsWithin(item, clsControlTactor::SwitchCount);
    case FocusSensitivity:
    case StageSensitivity:
    case Unknown:
      return false;
  }
  return false;
}

constexpr std::int16_t kSkipWithoutCode = 2;

bool LimitsCanBeSent(const clsK70& k70) {
  const clsLimitation& limits = k70.curLimit;
  return limits.curIncrease >= 0 && limits.curSkip >= 0 && limits.curImmersion >= 0 &&
         limits.curSkip != kSkipWithoutCode;
}

bool EscapesCanBeSent(const clsK70& k70) {
  return k70.CZDrive.SetEscape(0) <= 1 && k70.CZDrive.SetEscape(1) <= 1;
}

// The list whose record of the user the item belongs to, and the code of position 0.
struct OptionOf {
  ItemKind kind;
  CodeList list;
  std::int32_t base;
};
constexpr std::array<OptionOf, 8> kOptions{{
    {ObjectiveCode, CodeList::Objectives, kOptionBase},
    {ObjectiveName, CodeList::Objectives, kOptionBase},
    {CubeCode, CodeList::Cubes, kOptionBase},
    {CubeName, CodeList::Cubes, kOptionBase},
    {ExciterName, CodeList::Exciters, kOptionBase},
    {DichroicName, CodeList::Dichroics, kOptionBase},
    {BarrierName, CodeList::Barriers, kOptionBase},
    {CondenserName, CodeList::Condensers, kCondenserOptionBase},
}};

template <typename Record>
std::set<std::int32_t> OptionCodes(const controller::RecordList<Record>& records) {
  std::set<std::int32_t> codes;
  ForEachOption(records, [&](const Record& record) { codes.insert(record.Code()); });
  return codes;
}

}  // namespace

std::string_view TransferOf(ItemKind kind) {
  switch (kind) {
    case SystemName:
      return kSystemNameTransfer;
    case ObjectiveAddress:
      return "curNosepiece";
    case ObjectiveCode:
    case ObjectiveName:
      return "DbNosepiece";
    case NosepieceLimit:
      return "curLimit";
    case CubeAddress:
      return "curFilter";
    case CubeCode:
    case CubeName:
      return "dbFilter";
    case ExciterName:
      return "Exciter";
    case DichroicName:
      return "Dichroic";
    case BarrierName:
      return "Barrier";
    case CondenserAddress:
      return "curCondenser";
    case CondenserName:
      return "dbcon";
    case ObservationInterlock:
      return "ILObservation";
    case NosepieceInterlock:
    case LightPathInterlock:
    case ZoomInterlock:
      return "ILOther";
    case Offset:
      return "ILOffset";
    case FocusCompensation:
    case LowerLimit:
    case FocusEscape:
    case StageEscape:
      return "CZDrive";
    case StageCompensation:
      return "CXYDrive";
    case FocusKnob:
    case StageKnob:
    case Buzzer:
    case BodySwitches:
    case HandSwitches:
    case RemoteSwitches:
    case RemoteLed:
      return "COther";
    case BodySwitch:
      return "curSwitch";
    case HandMode:
    case HandSide:
    case HandSwitch:
      return "curTactor";
    case FocusSensitivity:
    case StageSensitivity:
    case Unknown:
      return {};
  }
  return {};
}

bool IsRepetition(const ConfigurationItem& item) {
  return item.kind == NosepieceInterlock &&
         (item.key.position == "OpticalZoom" || item.key.position == "LightPath");
}

bool CanBeSent(const clsK70& k70, ItemKind kind) {
  if (kind == ItemKind::NosepieceLimit) return LimitsCanBeSent(k70);
  if (kind == ItemKind::FocusEscape || kind == ItemKind::StageEscape) return EscapesCanBeSent(k70);
  return true;
}

bool IsWrittenWhereItDiffers(const clsK70& k70, const ConfigurationItem& item) {
  const std::string_view transfer = TransferOf(item.kind);
  return !transfer.empty() && !IsRepetition(item) && IsKnown(item) && k70.IsSent(transfer) &&
         HasParts(k70, item) && CanBeSent(k70, item.kind);
}

std::optional<bool> SentItems::IsFitted(const ConfigurationItem& item) {
  if (!HasParts(k70_, item)) return false;
  const auto* const option = std::find_if(
      kOptions.begin(), kOptions.end(), [&](const OptionOf& row) { return row.kind == item.kind; });
  if (option == kOptions.end()) return true;
  if (!IsWithin(item, kOptionPositions)) return false;
  return HasOption(option->list, option->base + PositionOf(item));
}

std::optional<bool> SentItems::IsSent(const ConfigurationItem& item) {
  if (!k70_.IsSent(TransferOf(item.kind))) return false;
  return IsFitted(item);
}

std::optional<bool> SentItems::HasOption(CodeList list, std::int32_t code) {
  const Codes& codes = OptionsOf(list);
  if (!codes) return std::nullopt;
  return codes->contains(code);
}

const SentItems::Codes& SentItems::OptionsOf(CodeList list) {
  std::optional<Codes>& known = options_[static_cast<std::size_t>(list)];
  if (!known) known = ReadOptions(list);
  return *known;
}

SentItems::Codes SentItems::ReadOptions(CodeList list) const {
  try {
    const controller::AccessoryDatabase database = k70_.Mic.AccessoryDatabase();
    switch (list) {
      case CodeList::Objectives:
        return OptionCodes(database.Nosepieces());
      case CodeList::Cubes:
        return OptionCodes(database.FilterCubes());
      case CodeList::Exciters:
        return OptionCodes(database.Exciters());
      case CodeList::Dichroics:
        return OptionCodes(database.Dichroics());
      case CodeList::Barriers:
        return OptionCodes(database.Barriers());
      default:
        return OptionCodes(database.Condensers());
    }
  } catch (const Failure&) {
    return std::nullopt;
  }
}

}  // namespace mortane
