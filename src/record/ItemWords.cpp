#include "record/ItemWords.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <sstream>
#include <utility>

#include "common/Numbers.h"
#include "common/Text.h"
#include "filters/FilterItemNames.h"
#include "interlocks/ObservationAccessories.h"
#include "interlocks/OtherAccessories.h"
#include "interlocks/clsInterLockOffset.h"
#include "objectives/ObjectiveCode.h"
#include "objectives/clsDbNosepiece.h"
#include "switches/SwitchFunctions.h"

namespace mortane {
namespace {

using enum ItemKind;

struct Word {
  std::string_view text;   // in the file, or the number that the file has no word for
  std::string_view words;  // on the page
};
using Words = std::span<const Word>;

constexpr std::string_view kUnknownInWords = "unknown";
constexpr std::string_view kSkipRule = "Skip";

// How a value is told. A Name stands in the text itself, a Code points to one.
enum class ValueForm { Name, Code, Word, Text, Objective, Cube, Function };

struct WordsRow {
  ItemKind kind;
  std::string_view name;  // '#' stands for the position, as PositionInWords has it
  ValueForm form;
  Words words = {};                      // of a Word
  CodeList list = CodeList::Objectives;  // of a Code
  std::string_view blank = {};           // shown for a blank Name
};

constexpr std::array<Word, 2> kInterlockWords{{{"True", "ON"}, {"False", "OFF"}}};
// The reader of a file takes both words for the second option of every rule.
constexpr std::array<Word, 4> kRotationWords{{{"Off", "Free"},
                                              {"NotRotate", "No Rotation"},
                                              {"On", "No Rotation"},
                                              {"StageDown", "Rotate After Stage going down"}}};
constexpr std::array<Word, 3> kSkipWords{{{"Off", "Use"}, {"On", "Skip"}, {"NotRotate", "Skip"}}};
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
constexpr std::array<Word, 3> kCompensations{
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

constexpr std::string_view kNoName = "NoName";

constexpr std::array<WordsRow, kItemKinds> kRows{{
    {SystemName, "System Name", ValueForm::Name, {}, {}, kNoName},
    {ObjectiveAddress, "Objective #", ValueForm::Code, {}, CodeList::Objectives},
    {ObjectiveCode, "Optional Objective #", ValueForm::Objective},
    {ObjectiveName, "Optional Objective #, Name", ValueForm::Name, {}, {}, kUnnamedObjective},
    {NosepieceLimit, "#", ValueForm::Word, kRotationWords},
    {CubeAddress, "Filter Cube #", ValueForm::Code, {}, CodeList::Cubes},
    {CubeCode, "Optional Filter Cube #", ValueForm::Cube},
    {CubeName, "Optional Filter Cube #, Name", ValueForm::Name, {}, {}, kUnnamedMark},
    {ExciterName, "Optional Exciter #", ValueForm::Name, {}, {}, kUnnamedMark},
    {DichroicName, "Optional Dichroic #", ValueForm::Name, {}, {}, kUnnamedMark},
    {BarrierName, "Optional Barrier #", ValueForm::Name, {}, {}, kUnnamedMark},
    {CondenserAddress, "Condenser #", ValueForm::Code, {}, CodeList::Condensers},
    {CondenserName, "Optional Condenser #", ValueForm::Name, {}, {}, kUnnamedMark},
    {ObservationInterlock, "Observation Change to #", ValueForm::Word, kInterlockWords},
    {NosepieceInterlock, "Nosepiece Change to #", ValueForm::Word, kInterlockWords},
    {LightPathInterlock, "Light Path Change to #", ValueForm::Word, kInterlockWords},
    {ZoomInterlock, "Zoom Change to #", ValueForm::Word, kInterlockWords},
    {Offset, "Compensation, #", ValueForm::Word, kFactors},
    {FocusCompensation, "Z Focus Correction for Pafocality", ValueForm::Word, kCompensations},
    {LowerLimit, "Lower Limit", ValueForm::Word, kLowerLimits},
    {FocusEscape, "Escape, Focus Drive", ValueForm::Word, kEscapeWords},
    {StageEscape, "Escape, XY Stage", ValueForm::Word, kEscapeWords},
    {StageCompensation, "Pitch adjustment to Magnification", ValueForm::Word, kCompensations},
    {FocusKnob, "Focus Knob", ValueForm::Word, kKnobWords},
    {FocusSensitivity, "Focus Knob, Sensitivity", ValueForm::Text},
    {StageKnob, "Stage Knob", ValueForm::Word, kKnobWords},
    {StageSensitivity, "Stage Knob, Sensitivity", ValueForm::Text},
    {Buzzer, "Buzzer", ValueForm::Word, kBuzzerWords},
    {BodySwitches, "K70 Switch", ValueForm::Word, kEnabledWords},
    {HandSwitches, "Tactor Switch", ValueForm::Word, kEnabledWords},
    {RemoteSwitches, "B-KM-R Remote Controler, Switch Setting", ValueForm::Word, kEnabledWords},
    {RemoteLed, "B-KM-R Remote Controler, LED Setting", ValueForm::Word, kLedWords},
    {BodySwitch, "K70 Switch #", ValueForm::Function},
    {HandMode, "Tactor Switch, Mode", ValueForm::Word, kModes},
    {HandSide, "Tactor Switch, XY Knob", ValueForm::Word, kSides},
    {HandSwitch, "Tactor Switch #", ValueForm::Function},
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

// The captions of accessories have their default in brackets behind the name.
std::string WithoutBrackets(std::string_view caption) {
  return RightTrim(caption.substr(0, caption.find('(')));
}

template <typename Rows>
std::string CaptionOf(const Rows& rows, const std::string& word) {
  for (const auto& row : rows) {
    if (row.word != word) continue;
    const std::string caption = WithoutBrackets(row.caption);
    return caption.empty() ? word : caption;
  }
  return word;
}

struct RuleName {
  std::string_view position;
  std::string_view name;
};
constexpr std::array<RuleName, 3> kRuleNames{
    {{"LowerMagnification", "Safety Setting"},
     {kSkipRule, "Empty Position"},
     {"WaferImmersion", "Immersion Objective IN/OUT Control"}}};

std::string RuleInWords(const std::string& position) {
  for (const RuleName& rule : kRuleNames) {
    if (rule.position == position) return std::string(rule.name);
  }
  return position;
}

// A dial has its position for one direction and the next for the other.
template <typename Rows>
std::optional<std::string> ControlAt(const Rows& rows, std::int32_t position) {
  for (const auto& row : rows) {
    const std::string name(row.name);
    if (row.kind == SwitchKind::Push && row.position == position) return name;
    if (row.kind == SwitchKind::Push) continue;
    if (row.position == position) return name + " CW";
    if (row.position + 1 == position) return name + " CCW";
  }
  return std::nullopt;
}

std::string SwitchInWords(ItemKind kind, const std::string& position) {
  if (!IsNumeric(position, PointFormat())) return position;
  const std::int32_t number = ToLong(position, PointFormat());
  std::optional<std::string> name;
  if (kind == BodySwitch) name = ControlAt(kBodyRows, number);
  for (const TactorPage& page : kTactorPages) {
    if (kind == HandSwitch && !name) name = ControlAt(page, number);
  }
  return name.value_or(position);
}

std::string PositionInWords(const ItemKey& key, ItemKind kind) {
  switch (kind) {
    case NosepieceLimit:
      return RuleInWords(key.position);
    case ObservationInterlock:
      return CaptionOf(kObservationAccessories, key.position);
    case NosepieceInterlock:
    case LightPathInterlock:
    case ZoomInterlock:
      return CaptionOf(kOtherAccessories, key.position);
    case Offset:
      return CaptionOf(kOffsetAccessories, key.position);
    case BodySwitch:
    case HandSwitch:
      return SwitchInWords(kind, key.position);
    default:
      return key.position;
  }
}

std::string NameOrCode(const ItemNames& names, CodeList list, std::int32_t code) {
  const std::string* name = names.Find(list, code);
  if (name != nullptr) return *name;
  return code == 0 ? std::string(kNoMagnification) : "code " + std::to_string(code);
}

// Of an objective that a file has as a text of twelve characters, a model with its values in full.
struct SpelledObjective {
  std::int32_t series = 0;
  std::int32_t type = 0;
  std::int32_t condenser = 0;
  std::string magnification;
  std::string distance;
  std::string aperture;

  bool IsEmpty() const {
    return series == 0 && type == 0 && condenser == 0 && magnification == kNoMagnification &&
           distance == "0" && aperture == "0";
  }
};

std::optional<SpelledObjective> Spelled(const ConfigurationItem& item) {
  SpelledObjective spelled;
  if (!item.exact.empty()) {
    std::istringstream parts(item.exact);
    parts >> spelled.series >> spelled.type >> spelled.condenser >> spelled.magnification >>
        spelled.distance >> spelled.aperture;
    if (spelled.magnification != kNoMagnification) spelled.magnification += "x";
    return spelled;
  }
  if (CharacterCount(item.value) != kObjectiveCodeLength) return std::nullopt;
  const char last = item.value.back();
  if (last < '0' || last > '9') return std::nullopt;
  const ObjectiveValues values = DecodeObjective(item.value);
  return SpelledObjective{values.series,
                          values.type,
                          last - '0',
                          MagnificationText(values.magnification),
                          ShortestGeneral(values.workingDistance),
                          ShortestGeneral(values.numericalAperture)};
}

std::vector<ValuePart> PartsOfObjective(const SpelledObjective& spelled, const ItemNames& names) {
  const auto named = [&](std::string_view name, CodeList list, std::int32_t code) {
    return ValuePart{name, std::to_string(code), NameOrCode(names, list, code)};
  };
  const auto number = [](std::string_view name, const std::string& text) {
    return ValuePart{name, text, text};
  };
  ValuePart condenser = named("DIC / Ph Condenser", CodeList::Condensers, spelled.condenser);
  if (spelled.condenser == 0) condenser.words = "None";
  return {named("Series", CodeList::Series, spelled.series),
          named("Type", CodeList::Types, spelled.type),
          number("Mag.", spelled.magnification),
          number("W.D.", spelled.distance),
          number("N.A.", spelled.aperture),
          std::move(condenser)};
}

std::string Joined(const std::vector<ValuePart>& parts) {
  std::string words;
  for (const ValuePart& part : parts) {
    words += (words.empty() ? "" : ", ") + std::string(part.name) + " " + part.words;
  }
  return words;
}

std::string ObjectiveInWords(const ConfigurationItem& item, const ItemNames& names) {
  const std::optional<SpelledObjective> spelled = Spelled(item);
  if (!spelled) return item.value;
  if (spelled->IsEmpty()) return std::string(kNoMagnification);
  return Joined(PartsOfObjective(*spelled, names));
}

std::vector<ValuePart> PartsOfCube(const ConfigurationItem& item, const ItemNames& names) {
  struct Part {
    std::string_view name;
    CodeList list;
  };
  constexpr std::array<Part, kFilterItems> kParts{{{"Exciter", CodeList::Exciters},
                                                   {"Dichroic", CodeList::Dichroics},
                                                   {"Barrier", CodeList::Barriers}}};
  constexpr std::size_t kGroup = 4;  // a mark and three digits
  if (item.value.size() != kGroup * kParts.size()) return {};
  std::vector<ValuePart> parts;
  for (std::size_t i = 0; i < kParts.size(); ++i) {
    const std::string digits = item.value.substr(i * kGroup + 1, kGroup - 1);
    if (!IsNumeric(digits, PointFormat())) return {};
    const std::int32_t code = ToLong(digits, PointFormat());
    parts.push_back(
        {kParts[i].name, std::to_string(code), NameOrCode(names, kParts[i].list, code)});
  }
  return parts;
}

std::string CubeInWords(const ConfigurationItem& item, const ItemNames& names) {
  const std::vector<ValuePart> parts = PartsOfCube(item, names);
  if (parts.empty()) return item.value;
  const bool empty = std::all_of(parts.begin(), parts.end(),
                                 [](const ValuePart& part) { return part.value == "0"; });
  return empty ? std::string(kNoMagnification) : Joined(parts);
}

std::string FunctionInWords(const std::string& value) {
  if (!IsNumeric(value, PointFormat())) return value;
  const std::int32_t code = ToLong(value, PointFormat());
  const std::string_view name = FunctionName(AllSwitchFunctions(), code);
  return name.empty() ? "code " + std::to_string(code) : RightTrim(name);
}

std::string WordOf(const ConfigurationItem& item, Words words) {
  const bool skips = item.kind == NosepieceLimit && item.key.position == kSkipRule;
  const std::string& text = item.exact.empty() ? item.value : item.exact;
  for (const Word& word : skips ? Words(kSkipWords) : words) {
    if (EqualsIgnoringCase(word.text, text)) return std::string(word.words);
  }
  return IsKnown(item) ? text : std::string(kUnknownInWords);
}

std::string CodeInWords(const ConfigurationItem& item, const WordsRow& row,
                        const ItemNames& names) {
  if (!IsNumeric(item.value, PointFormat())) return item.value;
  return RightTrim(NameOrCode(names, row.list, ToLong(item.value, PointFormat())));
}

}  // namespace

std::string NameInWords(const ItemKey& key, ItemKind kind) {
  if (kind == Unknown) return KeyText(key);
  std::string name(WordsOf(kind).name);
  const std::size_t place = name.find('#');
  if (place != std::string::npos) name.replace(place, 1, PositionInWords(key, kind));
  return name;
}

std::string ValueInWords(const ConfigurationItem& item, const ItemNames& names) {
  if (item.kind == Unknown) return item.value;
  const WordsRow& row = WordsOf(item.kind);
  switch (row.form) {
    case ValueForm::Name:
      return Trim(item.value).empty() ? std::string(row.blank) : item.value;
    case ValueForm::Code:
      return CodeInWords(item, row, names);
    case ValueForm::Word:
      return WordOf(item, row.words);
    case ValueForm::Objective:
      return ObjectiveInWords(item, names);
    case ValueForm::Cube:
      return CubeInWords(item, names);
    case ValueForm::Function:
      return FunctionInWords(item.value);
    case ValueForm::Text:
      break;
  }
  return item.value;
}

std::vector<ValuePart> PartsOf(const ConfigurationItem& item, const ItemNames& names) {
  if (item.kind == CubeCode) return PartsOfCube(item, names);
  if (item.kind != ObjectiveCode) return {};
  const std::optional<SpelledObjective> spelled = Spelled(item);
  return spelled ? PartsOfObjective(*spelled, names) : std::vector<ValuePart>();
}

std::string InWords(const ConfigurationItem& item, const ItemNames& names) {
  return NameInWords(item.key, item.kind) + ": " + ValueInWords(item, names);
}

}  // namespace mortane
