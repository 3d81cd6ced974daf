#include "ctl/WriteWatch.h"

#include <algorithm>
#include <array>

#include "common/DigitCode.h"
#include "common/Numbers.h"
#include "condensers/clsDbCondenser.h"
#include "controller/CallLine.h"
#include "controller/ControllerNumbers.h"
#include "interlocks/ObservationAccessories.h"
#include "interlocks/OtherAccessories.h"
#include "model/OptionCodes.h"

namespace mortane::ctl {
namespace {

using controller::CallKind;
using controller::CallSite;
using controller::Proceed;
using controller::Value;

constexpr std::string_view kDatabase = "AccessoryDatabase.";
constexpr std::string_view kItemOfList = ".Item(";

// The beginnings of the calls that write an item. It is written once one of `last` was made; with
// no such row every call counts.
struct Calls {
  std::vector<std::string> all;
  std::string last;
};

std::int32_t PositionOf(const ConfigurationItem& item) {
  return ToLong(item.key.position, PointFormat());
}

std::string AtAddress(std::string_view device, const ConfigurationItem& item) {
  return std::string(device) + ".Positions(" + std::to_string(PositionOf(item)) + ").Code";
}

std::string OfRecord(std::string_view list, const ConfigurationItem& item, std::string_view member,
                     std::int32_t base = kOptionBase) {
  return std::string(kDatabase) + std::string(list) + "[" +
         std::to_string(base + PositionOf(item)) + "]." + std::string(member);
}

template <typename Rows>
Calls InterlockCalls(const Rows& rows, const ConfigurationItem& item, std::int32_t trigger) {
  Calls calls;
  for (const auto& row : rows) {
    if (row.word != item.key.position) continue;
    const std::string arguments =
        "Interlock(" + std::to_string(row.number) + ", " + std::to_string(trigger) + ")";
    for (const char* verb : {"Set", "Clear"}) {
      calls.all.push_back(std::string("ControllerSettings.") + verb + arguments);
    }
  }
  return calls;
}

// The devices whose proper values are compensated, by the words of the settings file.
struct OffsetRow {
  std::string_view word;
  const char* call;
};
constexpr std::array<OffsetRow, 4> kOffsetCalls{{
    {"ND", "NDFilterDevice.OffsetCode"},
    {"DiaFStop", "FieldStopDevice.OffsetCode"},
    {"EpiFStop", "EpiFieldStopDevice.OffsetCode"},
    {"DiaAStop", "ApertureStopDevice.OffsetCode"},
}};

std::string OffsetCall(const ConfigurationItem& item) {
  for (const OffsetRow& row : kOffsetCalls) {
    if (row.word == item.key.position) return row.call;
  }
  return {};
}

std::string FunctionCall(std::int32_t unit, std::int32_t position) {
  return "ControllerSettings.SetSwitchFunction(" + std::to_string(unit) + ", \"" +
         DigitToChar(position) + "\"";
}

Calls SwitchCalls(std::int32_t unit) {
  const std::string number = std::to_string(unit);
  return {{"EnableSwitch(" + number + ",", "DisableSwitch(" + number + ","}, {}};
}

// Kept apart by kind, as the units write them.
Calls CallsOf(const ConfigurationItem& item) {
  using enum ItemKind;
  switch (item.kind) {
    case SystemName:
      return {{"SystemName"}, {}};
    case ObjectiveAddress:
      return {{AtAddress("NosepieceDevice", item)}, {}};
    case ObjectiveCode:
      return {{OfRecord("Nosepieces", item, "SetProperties"),
               "SendCommand(\"cONS" + std::to_string(PositionOf(item))},
              "SendCommand("};
    case ObjectiveName:
      return {{OfRecord("Nosepieces", item, "Name")}, {}};
    case NosepieceLimit:
      return {{"NosepieceDevice.Limitation"}, {}};
    case CubeAddress:
      return {{AtAddress("FilterCubeDevice", item)}, {}};
    case CubeCode:
      return {{OfRecord("FilterCubes", item, "ExciterCode"),
               OfRecord("FilterCubes", item, "DichroicCode"),
               OfRecord("FilterCubes", item, "BarrierCode")},
              OfRecord("FilterCubes", item, "BarrierCode")};
    case CubeName:
      return {{OfRecord("FilterCubes", item, "Name")}, {}};
    case ExciterName:
      return {{OfRecord("Exciters", item, "Name")}, {}};
    case DichroicName:
      return {{OfRecord("Dichroics", item, "Name")}, {}};
    case BarrierName:
      return {{OfRecord("Barriers", item, "Name")}, {}};
    case CondenserAddress:
      return {{AtAddress("CondenserDevice", item)}, {}};
    case CondenserName:
      return {{OfRecord("Condensers", item, "Name", kCondenserOptionBase)}, {}};
    case ObservationInterlock:
      return InterlockCalls(kObservationAccessories, item, trigger::kObservation);
    case NosepieceInterlock:
      return InterlockCalls(kOtherAccessories, item, trigger::kNosepiece);
    case LightPathInterlock:
      return InterlockCalls(kOtherAccessories, item, trigger::kLightPath);
    case ZoomInterlock:
      return InterlockCalls(kOtherAccessories, item, trigger::kOpticalZoom);
    case Offset:
      return {{OffsetCall(item)}, {}};
    case FocusCompensation:
      return {{"ZDriveDevice.FocusCompensation"}, {}};
    case LowerLimit:
      return {{"ZDriveDevice.LowerLimit"}, {}};
    case FocusEscape:
    case StageEscape:
      return {{"ControllerSettings.EscapeMode"}, {}};
    case StageCompensation:
      return {{"XYDriveDevice.FocusCompensation"}, {}};
    case FocusKnob:
      return {{"ZDriveDevice.KnobAuto"}, {}};
    case StageKnob:
      return {{"XYDriveDevice.KnobAuto"}, {}};
    case Buzzer:
      return {{"BuzzerOn(", "BuzzerOff("}, {}};
    case BodySwitches:
      return SwitchCalls(switchunit::kBody);
    case HandSwitches:
      return SwitchCalls(switchunit::kHandController);
    case RemoteSwitches:
      return SwitchCalls(switchunit::kRemote);
    case RemoteLed:
      return {{"RemoteLED("}, {}};
    case BodySwitch:
      return {{FunctionCall(switchunit::kBody, PositionOf(item))}, {}};
    case HandMode:
      return {{FunctionCall(switchunit::kHandController, 0)}, {}};
    case HandSide:
      return {{"XYDriveDevice.HandleMode"}, {}};
    case HandSwitch:
      return {{FunctionCall(switchunit::kHandController, PositionOf(item))}, {}};
    case FocusSensitivity:
    case StageSensitivity:
    case Unknown:
      return {};
  }
  return {};
}

}  // namespace

Fate FateOf(const ConfigurationItem& item, const std::vector<WriteCall>& calls) {
  const Calls own = CallsOf(item);
  bool made = false;
  bool ended = own.last.empty();
  for (const WriteCall& call : calls) {
    const bool isOwn =
        std::any_of(own.all.begin(), own.all.end(), [&](const std::string& beginning) {
          return !beginning.empty() && call.path.starts_with(beginning);
        });
    if (!isOwn) continue;
    if (call.failed) return Fate::NotKnown;
    made = true;
    ended = ended || call.path.starts_with(own.last);
  }
  if (!made) return Fate::NotWritten;
  return ended ? Fate::Written : Fate::NotKnown;
}

WriteWatch::Scope::Scope(WriteWatch& watch) : watch_(watch) {
  watch_.calls_.clear();
  watch_.watching_ = true;
}

WriteWatch::Scope::~Scope() {
  watch_.watching_ = false;
}

Value WriteWatch::Around(const CallSite& site, const Proceed& proceed) {
  if (site.kind == CallKind::Get && site.member == "Code" && site.object.starts_with(kDatabase)) {
    return ReadCode(site, proceed);
  }
  if (!watching_ || !controller::IsCommand(site)) return proceed();
  calls_.push_back({PathOf(site), true});
  Value result = proceed();
  calls_.back().failed = false;
  return result;
}

Value WriteWatch::ReadCode(const CallSite& site, const Proceed& proceed) {
  Value code = proceed();
  const std::size_t end = site.object.find(kItemOfList);
  if (end != std::string_view::npos) {
    records_[std::string(site.object)] =
        std::string(site.object.substr(0, end)) + "[" + controller::DescribeValue(code) + "]";
  }
  return code;
}

std::string WriteWatch::PathOf(const CallSite& site) const {
  std::string path = site.Path();
  const auto record = records_.find(site.object);
  if (record == records_.end()) return path;
  return record->second + path.substr(record->first.size());
}

}  // namespace mortane::ctl
