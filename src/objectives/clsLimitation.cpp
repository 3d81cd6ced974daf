#include "objectives/clsLimitation.h"

#include <algorithm>

#include "model/ElementFields.h"
#include "model/FileWords.h"
#include "model/UnitReport.h"

namespace mortane {
namespace {

constexpr std::string_view kReadFailure = "Nosepiece Limit (";
// Kept: the misspelling is known from the reports.
constexpr std::string_view kModifyFailure = "Nosepiece Lmit (";
constexpr std::string_view kRefused = "Nosepiece Limit";

// The rules of the controller's codes 1 to 18 as one number each: hundreds increase, tens skip,
// ones immersion.
constexpr std::array<std::int32_t, 18> kKeys{0,  10,  100, 110, 200, 210, 1,   11,  2,
                                             12, 101, 111, 102, 112, 201, 211, 202, 212};

constexpr std::array<FileWord, 3> kRotationWords{{{"Off", 0}, {"NotRotate", 1}, {"StageDown", 2}}};
constexpr std::array<FileWord, 2> kSkipWords{{{"Off", 0}, {"On", 1}}};
// Kept: all words are taken for all rules. "On" also means no rotation, "NotRotate" also skip.
constexpr std::array<FileWord, 4> kReadWords{
    {{"Off", 0}, {"NotRotate", 1}, {"On", 1}, {"StageDown", 2}}};

std::int16_t Digit(std::int32_t key, std::int32_t unit) {
  return static_cast<std::int16_t>(key / unit % 10);
}

}  // namespace

struct clsLimitation::Rule {
  std::int16_t clsLimitation::*value;
  std::int32_t keyUnit;
  std::string_view position;
  std::string_view difference;
  FileWords writtenWords;
};

constexpr std::array<clsLimitation::Rule, 3> clsLimitation::kRules{{
    {&clsLimitation::curIncrease, 100, "LowerMagnification", "Nosepiece Limit[LowerMagnification]",
     kRotationWords},
    {&clsLimitation::curSkip, 10, "Skip", "Nosepiece Limit[Skip]", kSkipWords},
    {&clsLimitation::curImmersion, 1, "WaferImmersion", "Nosepiece Limit[Immersion Type]",
     kRotationWords},
}};

bool clsLimitation::IsEnable() const {
  return parent.IsControllable(accessory::kNosepiece) &&
         std::any_of(kRules.begin(), kRules.end(),
                     [this](const Rule& rule) { return this->*rule.value != kUnknown; });
}

std::string clsLimitation::ReadSdk() {
  for (const Rule& rule : kRules) this->*rule.value = kUnknown;
  std::string failure = FailureOf(kReadFailure, [this] {
    if (!parent.IsControllable(accessory::kNosepiece)) return;
    const std::int32_t number = parent.Mic.NosepieceDevice().Limitation();
    if (number < 1 || number > static_cast<std::int32_t>(kKeys.size())) return;
    const std::int32_t key = kKeys[static_cast<std::size_t>(number - 1)];
    for (const Rule& rule : kRules) this->*rule.value = Digit(key, rule.keyUnit);
  });
  if (!failure.empty()) return failure;
  for (std::size_t i = 0; i < kRules.size(); ++i) untouched_[i] = this->*kRules[i].value;
  return {};
}

std::string clsLimitation::ModifySdk(std::string& list) const {
  return CollectDifferences(list, kModifyFailure, [this](std::string& lines) {
    if (!parent.IsControllable(accessory::kNosepiece)) return;
    for (std::size_t i = 0; i < kRules.size(); ++i) {
      const std::int16_t value = this->*kRules[i].value;
      if (value >= 0 && value != untouched_[i]) lines = AppendLine(lines, kRules[i].difference);
    }
  });
}

std::string clsLimitation::WriteSdk() const {
  if (!parent.IsControllable(accessory::kNosepiece)) return {};
  std::int32_t key = 0;
  for (const Rule& rule : kRules) {
    if (this->*rule.value == kUnknown) return {};
    key += this->*rule.value * rule.keyUnit;
  }
  const auto* const found = std::find(kKeys.begin(), kKeys.end(), key);
  if (found == kKeys.end()) return {};
  return LineIfFailed(kRefused, [&] {
    const auto number = static_cast<std::int32_t>(found - kKeys.begin()) + 1;
    parent.Mic.NosepieceDevice().PutLimitation(number);
  });
}

std::string clsLimitation::ReadDom(const DomNode& node) {
  const ElementFields fields(node);
  const auto value = ValueOf(kReadWords, fields.Text("CODE"), kUnknown);
  if (!value) return std::string(kRefused);
  if (*value == kUnknown) return {};
  const std::string position = fields.Text("POSITION");
  for (const Rule& rule : kRules) {
    if (EqualsIgnoringCase(rule.position, position)) {
      this->*rule.value = static_cast<std::int16_t>(*value);
    }
  }
  return {};
}

void clsLimitation::WriteDom(DomDocument& document, DomNode section) const {
  for (const Rule& rule : kRules) {
    DomNode element = document.CreateElement(kElement);
    element.SetAttribute("POSITION", rule.position);
    element.SetAttribute("CODE", WordOf(rule.writtenWords, this->*rule.value));
    section.Append(element);
  }
}

}  // namespace mortane
