#include "record/ModelItems.h"

#include <array>
#include <optional>

#include "common/Numbers.h"
#include "drives/clsControlOther.h"
#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "hub/clsK70.h"
#include "interlocks/ObservationAccessories.h"
#include "interlocks/OtherAccessories.h"
#include "interlocks/clsInterLockObservation.h"
#include "interlocks/clsInterLockOther.h"
#include "objectives/clsDbNosepiece.h"
#include "objectives/clsLimitation.h"

namespace mortane {
namespace {

constexpr std::int32_t kUnknown = -1;

// The magnification, distance and aperture of a code text are rounded. The distance and the
// aperture are compared as texts of 15 digits.
std::string ExactObjective(const clsDbNosepiece& objectives, std::int32_t position) {
  std::string name;
  std::string magnification;
  std::string distance;
  std::string aperture;
  std::int32_t series = 0;
  std::int32_t type = 0;
  std::int32_t condenser = 0;
  objectives.Get_DbNosepieceOption(position, name, series, type, magnification, distance, aperture,
                                   condenser);
  std::string exact;
  for (const std::int32_t number : {series, type, condenser}) {
    exact += std::to_string(number) + " ";
  }
  return exact + magnification + " " + distance + " " + aperture;
}

template <typename Rows>
std::int32_t AccessoryOf(const Rows& rows, const std::string& word) {
  for (const auto& row : rows) {
    if (row.word == word) return row.number;
  }
  return accessory::kNDFilter;
}

std::int32_t LimitOf(const clsLimitation& limits, const std::string& rule) {
  if (rule == "Skip") return limits.curSkip;
  return rule == "WaferImmersion" ? limits.curImmersion : limits.curIncrease;
}

std::int32_t KnownEscape(std::int16_t flag) {
  return flag == clsControlZDrive::kUnknownEscape ? kUnknown : flag;
}

// The number of an item that the file calls unknown; kUnknown when the model does not know it.
std::int32_t NumberOf(const clsK70& k70, const ConfigurationItem& item) {
  const std::string& word = item.key.position;
  switch (item.kind) {
    case ItemKind::NosepieceLimit:
      return LimitOf(k70.curLimit, word);
    case ItemKind::ObservationInterlock:
      return k70.ILObservation.Status(AccessoryOf(kObservationAccessories, word));
    case ItemKind::NosepieceInterlock:
      return k70.ILOther.Status(AccessoryOf(kOtherAccessories, word));
    case ItemKind::LightPathInterlock:
      return k70.ILOther.LightPathStatus(AccessoryOf(kOtherAccessories, word));
    case ItemKind::ZoomInterlock:
      return k70.ILOther.ZoomStatus(AccessoryOf(kOtherAccessories, word));
    case ItemKind::FocusCompensation:
      return k70.CZDrive.curFocusCompensation;
    case ItemKind::LowerLimit:
      return k70.CZDrive.curLowerLimit;
    case ItemKind::FocusEscape:
      return KnownEscape(k70.CZDrive.SetEscape(0));
    case ItemKind::StageEscape:
      return KnownEscape(k70.CZDrive.SetEscape(1));
    case ItemKind::StageCompensation:
      return k70.CXYDrive.curFocusCompensation;
    case ItemKind::FocusKnob:
      return k70.COther.curAutoZ;
    case ItemKind::StageKnob:
      return k70.COther.curAutoXY;
    case ItemKind::Buzzer:
      return k70.COther.curBuzzer;
    case ItemKind::BodySwitches:
      return k70.COther.curSwEnable;
    case ItemKind::HandSwitches:
      return k70.COther.curTactorSwEnable;
    case ItemKind::RemoteSwitches:
      return k70.COther.curR_TLPOSwEnable;
    case ItemKind::RemoteLed:
      return k70.COther.curR_TLPOLED;
    default:
      return kUnknown;
  }
}

// ConfigurationItem::exact of an item that the model has just written.
std::string ExactValue(const clsK70& k70, const ConfigurationItem& item) {
  if (item.kind == ItemKind::ObjectiveCode) {
    return ExactObjective(k70.DbNosepiece, ToLong(item.key.position, PointFormat()));
  }
  if (item.kind == ItemKind::Unknown || IsKnown(item)) return {};
  const std::int32_t number = NumberOf(k70, item);
  return number == kUnknown ? std::string() : std::to_string(number);
}

}  // namespace

std::vector<ConfigurationItem> ItemsOf(const clsK70& k70) {
  DomDocument sections;
  k70.WriteSections(sections);
  return ItemsOf(k70, sections);
}

std::vector<ConfigurationItem> ItemsOf(const clsK70& k70, const DomDocument& sections) {
  std::vector<ConfigurationItem> items = ItemsOf(sections);
  for (ConfigurationItem& item : items) item.exact = ExactValue(k70, item);
  return items;
}

}  // namespace mortane
