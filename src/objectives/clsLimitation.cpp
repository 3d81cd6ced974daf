#include "objectives/clsLimitation.h"

#include <algorithm>

#include "model/ElementFields.h"
#include "model/UnitReport.h"

namespace mortane {
namespace {

constexpr std::string_view kReadFailure = "Nosepiece Limit (";
// The misspelling is kept: users know it from the reports.
constexpr std::string_view kModifyFailure = "Nosepiece Lmit (";
constexpr std::string_view kRefused = "Nosepiece Limit";
constexpr std::string_view kUnknownCode = "Unknown";

// The rules of the controller's codes 1 to 18 as one number each: hundreds increase, tens skip,
// ones immersion.
constexpr std::array<std::int32_t, 18> kKeys{0,  10,  100, 110, 200, 210, 1,   11,  2,
                                             12, 101, 111, 102, 112, 201, 211, 202, 212};

struct FileCode {
  std::string_view text;
  std::int16_t value;
};

// All texts are accepted for all rules: "On" also means no rotation, "NotRotate" also skip.
constexpr std::array<FileCode, 4> kFileCodes{
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
  std::array<std::string_view, 3> codes;
};

constexpr std::array<clsLimitation::Rule, 3> clsLimitation::kRules{{
    {&clsLimitation::curIncrease,
     100,
     "LowerMagnification",
     "Nosepiece Limit[LowerMagnification]",
     {"Off", "NotRotate", "StageDown"}},
    {&clsLimitation::curSkip, 10, "Skip", "Nosepiece Limit[Skip]", {"Off", "On", kUnknownCode}},
    {&clsLimitation::curImmersion,
     1,
     "WaferImmersion",
     "Nosepiece Limit[Immersion Type]",
     {"Off", "NotRotate", "StageDown"}},
}};

bool clsLimitation::IsControllable() const {
  return parent.IsMounted(accessory::kNosepiece) == kControllable;
}

bool clsLimitation::IsEnable() const {
  return IsControllable() && std::any_of(kRules.begin(), kRules.end(), [this](const Rule& rule) {
           return this->*rule.value != kUnknown;
         });
}

std::string clsLimitation::ReadSdk() {
  for (const Rule& rule : kRules) this->*rule.value = kUnknown;
  std::string failure = FailureOf(kReadFailure, [this] {
    if (!IsControllable()) return;
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
    if (!IsControllable()) return;
    for (std::size_t i = 0; i < kRules.size(); ++i) {
      const std::int16_t value = this->*kRules[i].value;
      if (value >= 0 && value != untouched_[i]) lines = AppendLine(lines, kRules[i].difference);
    }
  });
}

std::string clsLimitation::WriteSdk() const {
  if (!IsControllable()) return {};
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
  const std::string text = fields.Text("CODE");
  if (EqualsIgnoringCase(text, kUnknownCode)) return {};
  const auto* const code =
      std::find_if(kFileCodes.begin(), kFileCodes.end(),
                   [&](const FileCode& row) { return EqualsIgnoringCase(row.text, text); });
  if (code == kFileCodes.end()) return std::string(kRefused);
  const std::string position = fields.Text("POSITION");
  for (const Rule& rule : kRules) {
    if (EqualsIgnoringCase(rule.position, position)) this->*rule.value = code->value;
  }
  return {};
}

void clsLimitation::WriteDom(DomDocument& document, DomNode section) const {
  for (const Rule& rule : kRules) {
    const std::int16_t value = this->*rule.value;
    const bool hasCode = value >= 0 && static_cast<std::size_t>(value) < rule.codes.size();
    DomNode element = document.CreateElement(kElement);
    element.SetAttribute("POSITION", rule.position);
    element.SetAttribute("CODE",
                         hasCode ? rule.codes[static_cast<std::size_t>(value)] : kUnknownCode);
    section.Append(element);
  }
}

}  // namespace mortane
