#include "record/ItemWords.h"

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <span>

#include "common/Numbers.h"
#include "common/Text.h"
#include "interlocks/ObservationAccessories.h"
#include "interlocks/OtherAccessories.h"
#include "interlocks/clsInterLockOffset.h"
#include "switches/SwitchFunctions.h"

namespace mortane {
namespace {

using enum ItemKind;

struct Word {
  std::string_view text;   // in the file, or the number that the file has no word for
  std::string_view words;  // on the page
};
using Words = std::span<const Word>;

// How a value is told.
enum class ValueForm { Text, Name, Word, Objective, Cube, Function };

struct WordsRow {
  ItemKind kind;
  std::string_view name;  // '#' stands for the position
  ValueForm form;
  CodeList list;  // of a Name
  Words words;    // of a Word
};

constexpr CodeList kNoList = CodeList::Objectives;

constexpr std::array<Word, 2> kInterlockWords{{{"True", "ON"}, {"False", "OFF"}}};
constexpr std::array<Word, 4> kLimitWords{{{"Off", "Free"},
                                           {"NotRotate", "No Rotation"},
                                           {"On", "Skip"},
                                           {"StageDown", "Rotate After Stage going down"}}};
constexpr std::array<Word, 10> kFactors{{{"0", "1.00"},
                                         {"1", "0.95"},
                                         {"2", "0.90"},
                                         {"3", "0.85"},
                                         {"4", "0.80"},
                                         {"5", "0.75"},
                                         {"6", "0.70"},
                                         {"7", "0.65"},
                                         {"8", "0.60"},
                                         {"9", "0.55"}}};
constexpr std::array<Word, 3> kCompensationWords{
    {{"None", "OFF"}, {"Absolute", "Absolute"}, {"Relative", "ON"}}};
constexpr std::array<Word, 2> kLowerLimits{{{"-300000", "-15mm"}, {"-500000", "-25mm"}}};
constexpr std::array<Word, 2> kEscapeWords{{{"Off", "OFF"}, {"On", "ON"}}};
constexpr std::array<Word, 2> kKnobWords{{{"True", "Auto"}, {"False", "Manual"}}};
constexpr std::array<Word, 3> kBuzzerWords{
    {{"False", "ON"}, {"True", "OFF"}, {"2", "The two controllers differ"}}};
constexpr std::array<Word, 2> kEnabledWords{{{"True", "ON"}, {"False", "OFF"}}};
constexpr std::array<Word, 3> kLedWords{{{"Off", "OFF"}, {"Dark", "Dark"}, {"Bright", "Bright"}}};
constexpr std::array<Word, 2> kModes{{{"0", "Standard"}, {"1", "Extend"}}};
constexpr std::array<Word, 2> kSides{{{"0", "Right"}, {"1", "Left"}}};

constexpr std::array<WordsRow, kItemKinds> kRows{{
    {SystemName, "System Name", ValueForm::Text, kNoList, {}},
    {ObjectiveAddress, "Objective #", ValueForm::Name, CodeList::Objectives, {}},
    {ObjectiveCode, "Optional Objective #", ValueForm::Objective, kNoList, {}},
    {ObjectiveName, "Optional Objective #, Name", ValueForm::Text, kNoList, {}},
    {NosepieceLimit, "#", ValueForm::Word, kNoList, kLimitWords},
    {CubeAddress, "Filter Cube #", ValueForm::Name, CodeList::Cubes, {}},
    {CubeCode, "Optional Filter Cube #", ValueForm::Cube, kNoList, {}},
    {CubeName, "Optional Filter Cube #, Name", ValueForm::Text, kNoList, {}},
    {ExciterName, "Optional Exciter #", ValueForm::Text, kNoList, {}},
    {DichroicName, "Optional Dichroic #", ValueForm::Text, kNoList, {}},
    {BarrierName, "Optional Barrier #", ValueForm::Text, kNoList, {}},
    {CondenserAddress, "Condenser #", ValueForm::Name, CodeList::Condensers, {}},
    {CondenserName, "Optional Condenser #", ValueForm::Text, kNoList, {}},
    {ObservationInterlock, "Observation Change to #", ValueForm::Word, kNoList, kInterlockWords},
    {NosepieceInterlock, "Nosepiece Change to #", ValueForm::Word, kNoList, kInterlockWords},
    {LightPathInterlock, "Light Path Change to #", ValueForm::Word, kNoList, kInterlockWords},
    {ZoomInterlock, "Zoom Change to #", ValueForm::Word, kNoList, kInterlockWords},
    {Offset, "Compensation of #", ValueForm::Word, kNoList, kFactors},
    {FocusCompensation, "Z Focus Correction for Pafocality", ValueForm::Word, kNoList,
     kCompensationWords},
    {LowerLimit, "Lower Limit", ValueForm::Word, kNoList, kLowerLimits},
    {FocusEscape, "Escape, Focus Drive", ValueForm::Word, kNoList, kEscapeWords},
    {StageEscape, "Escape, XY Stage", ValueForm::Word, kNoList, kEscapeWords},
    {StageCompensation, "Pitch adjustment to Magnification", ValueForm::Word, kNoList,
     kCompensationWords},
    {FocusKnob, "Focus Knob", ValueForm::Word, kNoList, kKnobWords},
    {FocusSensitivity, "Focus Knob, Sensitivity", ValueForm::Text, kNoList, {}},
    {StageKnob, "Stage Knob", ValueForm::Word, kNoList, kKnobWords},
    {StageSensitivity, "Stage Knob, Sensitivity", ValueForm::Text, kNoList, {}},
    {Buzzer, "Buzzer", ValueForm::Word, kNoList, kBuzzerWords},
    {BodySwitches, "K70 Switch", ValueForm::Word, kNoList, kEnabledWords},
    {HandSwitches, "Tactor Switch", ValueForm::Word, kNoList, kEnabledWords},
    {RemoteSwitches, "B-KM-R Remote Controler, Switch Setting", ValueForm::Word, kNoList,
     kEnabledWords},
    {RemoteLed, "B-KM-R Remote Controler, LED Setting", ValueForm::Word, kNoList, kLedWords},
    {BodySwitch, "K70 Switch #", ValueForm::Function, kNoList, {}},
    {HandMode, "Tactor Switch, Mode", ValueForm::Word, kNoList, kModes},
    {HandSide, "Tactor Switch, XY Knob", ValueForm::Word, kNoList, kSides},
    {HandSwitch, "Tactor Switch #", ValueForm::Function, kNoList, {}},
}};

static_assert([] {
  for (std::size_t i = 0; i < kRows.size(); ++i) {
    if (static_cast<std::size_t>(kRows[i].kind) != i) return false;
  }
  return true;
}());

const WordsRow& WordsOf(ItemKind kind) {
  return kRows.at(static_cast<std::size_t>(kind));
}

}  // namespace

std::string NameInWords(const ItemKey& key, ItemKind kind) {
  if (kind == Unknown) return KeyText(key);
  std::string name(WordsOf(kind).name);
  const std::size_t place = name.find('#');
  if (place != std::string::npos) name.replace(place, 1, key.position);
  return name;
}

std::string ValueInWords(const ConfigurationItem& item, const ItemNames& names) {
  if (item.kind == Unknown) return item.value;
  const WordsRow& row = WordsOf(item.kind);
  if (row.form == ValueForm::Name) {
    const std::string* name = names.Find(row.list, ToLong(item.value, PointFormat()));
    return name == nullptr ? item.value : *name;
  }
  for (const Word& word : row.words) {
    if (EqualsIgnoringCase(word.text, item.value)) return std::string(word.words);
  }
  return item.value;
}

std::string InWords(const ConfigurationItem& item, const ItemNames& names) {
  return NameInWords(item.key, item.kind) + ": " + ValueInWords(item, names);
}

}  // namespace mortane
