#include "record/ItemKinds.h"

#include <algorithm>
#include <array>
#include <unordered_map>

#include "common/Numbers.h"
#include "common/Text.h"
#include "interlocks/ObservationAccessories.h"
#include "interlocks/OtherAccessories.h"
#include "interlocks/clsInterLockOffset.h"

namespace mortane {
namespace {

using enum ItemKind;
using enum ItemPosition;

constexpr std::array<ItemKindRow, kItemKinds> kRows{{
    {SystemName, "SYSTEM", "QHRMNAME", "NAME", None},
    {ObjectiveAddress, "NOSEPIECE", "ITEM", "CODE", Number},
    {ObjectiveCode, "NOSEPIECE", "OPTION", "CODE", Number},
    {ObjectiveName, "NOSEPIECE", "OPTION", "NAME", Number},
    {NosepieceLimit, "NOSEPIECE", "LIMIT", "CODE", Word},
    {CubeAddress, "FILTER", "ITEM", "CODE", Number},
    {CubeCode, "FILTER", "OPTION", "CODE", Number},
    {CubeName, "FILTER", "OPTION", "NAME", Number},
    {ExciterName, "FILTER", "EXCITER", "NAME", Number},
    {DichroicName, "FILTER", "DICHROIC", "NAME", Number},
    {BarrierName, "FILTER", "BARRIER", "NAME", Number},
    {CondenserAddress, "CONDENSER", "ITEM", "CODE", Number},
    {CondenserName, "CONDENSER", "OPTION", "NAME", Number},
    {ObservationInterlock, "INTERLOCK", "OBSERVATION", "CODE", Word},
    {NosepieceInterlock, "INTERLOCK", "OTHER", "CODE", Word},
    {LightPathInterlock, "INTERLOCK", "LIGHTPATH", "CODE", Word},
    {ZoomInterlock, "INTERLOCK", "ZOOM", "CODE", Word},
    {Offset, "INTERLOCK", "OFFSET", "CODE", Word},
    {FocusCompensation, "CONTROL", "FOCUSDRIVE/FocusCompensation", "CODE", None},
    {LowerLimit, "CONTROL", "FOCUSDRIVE/DownLimitation", "CODE", None},
    {FocusEscape, "CONTROL", "FOCUSDRIVE/Escape_ZDrive", "CODE", None},
    {StageEscape, "CONTROL", "FOCUSDRIVE/Escape_XYStage", "CODE", None},
    {StageCompensation, "CONTROL", "XYSTAGE/FocusCompensation", "CODE", None},
    {FocusKnob, "CONTROL", "OTHER/FocusDrive", "AUTO", None},
    {FocusSensitivity, "CONTROL", "OTHER/FocusDrive", "CODE", None},
    {StageKnob, "CONTROL", "OTHER/XYStage", "AUTO", None},
    {StageSensitivity, "CONTROL", "OTHER/XYStage", "CODE", None},
    {Buzzer, "CONTROL", "OTHER/Buzzer", "CODE", None},
    {BodySwitches, "CONTROL", "OTHER/Switch", "CODE", None},
    {HandSwitches, "CONTROL", "OTHER/TactorSwitch", "CODE", None},
    {RemoteSwitches, "CONTROL", "OTHER/B_KM_RSwitch", "CODE", None},
    {RemoteLed, "CONTROL", "OTHER/B_KM_RSwitchLED", "CODE", None},
    {BodySwitch, "SWITCH", "SWITCH", "FUNCTION", Number},
    {HandMode, "TACTOR", "SWITCH/SETTING", "MODE", None},
    {HandSide, "TACTOR", "SWITCH/SETTING", "HANDLE", None},
    {HandSwitch, "TACTOR", "SWITCH/SWITCH", "FUNCTION", Number},
}};

static_assert([] {
  for (std::size_t i = 0; i < kRows.size(); ++i) {
    if (static_cast<std::size_t>(kRows[i].kind) != i) return false;
  }
  return true;
}());

std::string Folded(std::string_view text) {
  std::string folded(text);
  for (char& c : folded) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return folded;
}

// A name in XML has no blank, so the parts cannot run into each other.
std::string Place(std::string_view section, std::string_view element, std::string_view attribute) {
  return Folded(section) + " " + Folded(element) + " " + Folded(attribute);
}

template <typename Rows>
std::vector<std::string_view> WordsOf(const Rows& rows) {
  std::vector<std::string_view> words;
  words.reserve(std::size(rows));
  for (const auto& row : rows) words.push_back(row.word);
  return words;
}

}  // namespace

const ItemKindRow& RowOf(ItemKind kind) {
  return kRows.at(static_cast<std::size_t>(kind));
}

ItemKind FindItemKind(std::string_view section, std::string_view element,
                      std::string_view attribute) {
  static const std::unordered_map<std::string, ItemKind> kinds = [] {
    std::unordered_map<std::string, ItemKind> map;
    for (const ItemKindRow& row : kRows) {
      map.emplace(Place(row.section, row.element, row.attribute), row.kind);
    }
    return map;
  }();
  const auto found = kinds.find(Place(section, element, attribute));
  if (found == kinds.end()) return Unknown;
  if (found->second == SystemName && element != RowOf(SystemName).element) return Unknown;
  return found->second;
}

std::vector<std::string_view> PositionWords(ItemKind kind) {
  switch (kind) {
    case NosepieceLimit:
      return {"LowerMagnification", "Skip", "WaferImmersion"};
    case ObservationInterlock:
      return WordsOf(kObservationAccessories);
    case NosepieceInterlock:
    case LightPathInterlock:
    case ZoomInterlock:
      return WordsOf(kOtherAccessories);
    case Offset:
      return WordsOf(kOffsetAccessories);
    default:
      return {};
  }
}

std::string CanonicalPosition(ItemKind kind, std::string_view position) {
  if (kind == Unknown) return std::string(position);
  if (RowOf(kind).position == Number && IsNumeric(position, PointFormat())) {
    return std::to_string(ToLong(position, PointFormat()));
  }
  for (const std::string_view word : PositionWords(kind)) {
    if (EqualsIgnoringCase(word, position)) return std::string(word);
  }
  return std::string(position);
}

}  // namespace mortane
