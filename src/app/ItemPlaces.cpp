#include "app/ItemPlaces.h"

#include <array>

#include "common/Numbers.h"
#include "interlocks/ObservationAccessories.h"
#include "interlocks/OtherAccessories.h"
#include "switches/SwitchFunctions.h"

namespace mortane {
namespace {

using enum ItemKind;

constexpr int kNoPlace = -1;

constexpr SubPageName kSystemName{"SystemNameCtl1"};
constexpr SubPageName kNosepiece{"ObjectiveCtl1"};
constexpr SubPageName kOptionalObjective{"ObjectiveOptionCtl1"};
constexpr SubPageName kLimits{"ObjectiveLimitCtl1"};
constexpr SubPageName kCubeTurret{"FilterQubeCtl1"};
constexpr SubPageName kOptionalCube{"FilterOptionalQubeCtl1"};
constexpr SubPageName kOptionalItem{"FilterOptionalItemCtl1"};
constexpr SubPageName kCassette{"CondenserCassetteCtl1"};
constexpr SubPageName kOptionalCondenser{"CondenserOptionCtl1"};
constexpr SubPageName kObservation{"InterlockObservationCtl1"};
constexpr SubPageName kOtherInterlock{"InterlockOtherCtl1"};
constexpr SubPageName kOffset{"InterlockOffsetCtl1"};
constexpr SubPageName kFocusDrive{"ControlFocusDriveCtl1"};
constexpr SubPageName kStage{"ControlXYStageCtl1"};
constexpr SubPageName kOther{"ControlOtherCtl1"};
constexpr SubPageName kBody{"SwitchSettingCtl1"};
constexpr SubPageName kHand{"ControlTactorSwitchCtl1", "TactorSwitchSettingCtl1"};

int Number(const std::string& position) {
  return IsNumeric(position, PointFormat()) ? ToLong(position, PointFormat()) : kNoPlace;
}

int FromZero(const std::string& position) {
  const int number = Number(position);
  return number < 1 ? kNoPlace : number - 1;
}

template <typename Rows, typename Row>
int PlaceOfWord(const Rows& rows, int Row::*place, const std::string& word) {
  for (const auto& row : rows) {
    if (row.word == word) return row.*place;
  }
  return kNoPlace;
}

int ObservationTile(const std::string& word) {
  return PlaceOfWord(kObservationAccessories, &ObservationAccessory::pageIndex, word);
}

int NosepieceTile(const std::string& word) {
  return PlaceOfWord(kOtherAccessories, &OtherAccessory::nosepieceIndex, word);
}

int PathTile(const std::string& word) {
  return PlaceOfWord(kOtherAccessories, &OtherAccessory::pathIndex, word);
}

// A dial has its position for one direction and the next for the other.
template <typename Rows>
int RowOfSwitch(const Rows& rows, int position) {
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const int last = rows[row].position + (rows[row].kind == SwitchKind::Dial ? 1 : 0);
    if (position >= rows[row].position && position <= last) return static_cast<int>(row);
  }
  return kNoPlace;
}

int BodyRowOf(const std::string& position) {
  return RowOfSwitch(kBodyRows, Number(position));
}

// From 1.
int HandPageOf(const std::string& position) {
  for (std::size_t page = 0; page < kTactorPages.size(); ++page) {
    if (RowOfSwitch(kTactorPages[page], Number(position)) != kNoPlace)
      return static_cast<int>(page) + 1;
  }
  return kNoPlace;
}

int HandRowOf(const std::string& position) {
  const int page = HandPageOf(position);
  if (page == kNoPlace) return kNoPlace;
  return RowOfSwitch(kTactorPages[static_cast<std::size_t>(page) - 1], Number(position));
}

// A part of the record that the tab of its position shows.
constexpr ItemPlace OfRecord(ItemKind kind, SubPageName page, const char* control, const char* tabs,
                             int part = kWholeValue) {
  return {kind, page, control, nullptr, {}, tabs, FromZero, part};
}

constexpr std::array kPlaces{
    ItemPlace{SystemName, kSystemName, "TextSystemName"},
    ItemPlace{ObjectiveAddress, kNosepiece, "turret", Number},
    OfRecord(ObjectiveCode, kOptionalObjective, "ListSeries", "TabStrip1", 0),
    OfRecord(ObjectiveCode, kOptionalObjective, "ListType", "TabStrip1", 1),
    OfRecord(ObjectiveCode, kOptionalObjective, "TextMag", "TabStrip1", 2),
    OfRecord(ObjectiveCode, kOptionalObjective, "TextWD", "TabStrip1", 3),
    OfRecord(ObjectiveCode, kOptionalObjective, "TextNA", "TabStrip1", 4),
    OfRecord(ObjectiveCode, kOptionalObjective, "ComboCondenser", "TabStrip1", 5),
    OfRecord(ObjectiveName, kOptionalObjective, "TextName", "TabStrip1"),
    ItemPlace{NosepieceLimit, kLimits, "optPreventIncrease", nullptr, "LowerMagnification"},
    ItemPlace{NosepieceLimit, kLimits, "optSkipEmpty", nullptr, "Skip"},
    ItemPlace{NosepieceLimit, kLimits, "optPreventImmersion", nullptr, "WaferImmersion"},
    ItemPlace{CubeAddress, kCubeTurret, "turret", Number},
    OfRecord(CubeCode, kOptionalCube, "ListExciter", "TabOption", 0),
    OfRecord(CubeCode, kOptionalCube, "ListDichroic", "TabOption", 1),
    OfRecord(CubeCode, kOptionalCube, "ListBarrier", "TabOption", 2),
    OfRecord(CubeName, kOptionalCube, "TextName", "TabOption"),
    ItemPlace{ExciterName, kOptionalItem, "TextExciter", FromZero},
    ItemPlace{DichroicName, kOptionalItem, "TextDichroic", FromZero},
    ItemPlace{BarrierName, kOptionalItem, "TextBarrier", FromZero},
    ItemPlace{CondenserAddress, kCassette, "Combo1", FromZero},
    ItemPlace{CondenserAddress, kCassette, "turret", Number},
    ItemPlace{CondenserName, kOptionalCondenser, "TextName", FromZero},
    ItemPlace{ObservationInterlock, kObservation, "CheckAccessories", ObservationTile},
    ItemPlace{NosepieceInterlock, kOtherInterlock, "CheckNosepiece", NosepieceTile},
    ItemPlace{LightPathInterlock, kOtherInterlock, "CheckLightPath", PathTile},
    ItemPlace{ZoomInterlock, kOtherInterlock, "CheckOpticalZoom", PathTile},
    ItemPlace{Offset, kOffset, "ComboNDFilter", nullptr, "ND"},
    ItemPlace{Offset, kOffset, "ComboFieldStop", nullptr, "DiaFStop"},
    ItemPlace{Offset, kOffset, "ComboApertureStop", nullptr, "DiaAStop"},
    ItemPlace{Offset, kOffset, "ComboEpiFieldStop", nullptr, "EpiFStop"},
    ItemPlace{FocusCompensation, kFocusDrive, "optFocusCompensation"},
    ItemPlace{LowerLimit, kFocusDrive, "optDownLimitation"},
    ItemPlace{FocusEscape, kFocusDrive, "chkEscape_0"},
    ItemPlace{StageEscape, kFocusDrive, "chkEscape_1"},
    ItemPlace{StageCompensation, kStage, "optFocusCompensation"},
    ItemPlace{FocusKnob, kOther, "optAuto"},
    ItemPlace{StageKnob, kOther, "optXYAuto"},
    ItemPlace{Buzzer, kOther, "optBuzzer"},
    ItemPlace{BodySwitches, kOther, "optSwitch"},
    ItemPlace{HandSwitches, kOther, "optTactorSwitch"},
    ItemPlace{RemoteSwitches, kOther, "optR_TLPO_Switch"},
    ItemPlace{RemoteLed, kOther, "optR_TLPO_LED"},
    ItemPlace{BodySwitch, kBody, "ListView1", BodyRowOf},
    ItemPlace{HandMode, kHand, "OptMode"},
    ItemPlace{HandSide, kHand, "optHandle"},
    ItemPlace{HandSwitch, kHand, "ListView1", HandRowOf, {}, "optChg", HandPageOf},
};

}  // namespace

std::span<const ItemPlace> ItemPlaces() {
  return kPlaces;
}

}  // namespace mortane
