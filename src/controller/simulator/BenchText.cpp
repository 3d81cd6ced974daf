#include "controller/simulator/BenchText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "common/Failure.h"
#include "common/Text.h"
#include "controller/DeviceList.h"
#include "controller/simulator/CassetteAddresses.h"

namespace mortane::controller::bench_file {
namespace {

[[noreturn]] void RaiseValue(const DomNode& node, const DomAttribute& attribute,
                             const std::string& wanted) {
  RaiseAt(node, "attribute \"" + attribute.name + "\" is \"" + attribute.value +
                    "\", which is no " + wanted);
}

template <typename Number>
bool ParseWhole(const std::string& text, Number& number) {
  const char* end = text.data() + text.size();
  const auto parsed = std::from_chars(text.data(), end, number);
  return parsed.ec == std::errc() && parsed.ptr == end;
}

// A move at speed 0 would never end.
void CheckSpeed(const DomNode& node, std::int32_t speed) {
  if (speed < 1) RaiseAt(node, "the speed " + std::to_string(speed) + " is below 1");
}

}  // namespace

void RaiseAt(const DomNode& node, const std::string& problem) {
  RaiseOwnFailure(kConversionError, "<" + node.Name() + ">: " + problem + ".");
}

void ReadText(const DomNode& node, const DomAttribute& attribute, std::int16_t& value) {
  if (!ParseWhole(attribute.value, value)) RaiseValue(node, attribute, "whole number of 16 bits");
}

void ReadText(const DomNode& node, const DomAttribute& attribute, std::int32_t& value) {
  if (!ParseWhole(attribute.value, value)) RaiseValue(node, attribute, "whole number of 32 bits");
}

void ReadText(const DomNode& node, const DomAttribute& attribute, bool& value) {
  if (attribute.value != "true" && attribute.value != "false") {
    RaiseValue(node, attribute, "\"true\" or \"false\"");
  }
  value = attribute.value == "true";
}

void ReadText(const DomNode& node, const DomAttribute& attribute, double& value) {
  if (!ParseWhole(attribute.value, value) || !std::isfinite(value)) {
    RaiseValue(node, attribute, "number");
  }
}

void ReadText(const DomNode& /*node*/, const DomAttribute& attribute, std::string& value) {
  value = attribute.value;
}

void ReadText(const DomNode& node, const DomAttribute& attribute,
              std::optional<std::int32_t>& value) {
  ReadText(node, attribute, value.emplace());
}

void ReadText(const DomNode& /*node*/, const DomAttribute& attribute,
              std::optional<std::string>& value) {
  value = attribute.value;
}

std::string TextOf(std::int32_t value) {
  return std::to_string(value);
}

std::string TextOf(bool value) {
  return value ? "true" : "false";
}

// The shortest text that reads back as the same number.
std::string TextOf(double value) {
  std::array<char, 32> text{};
  const auto written =
      std::to_chars(text.data(), text.data() + text.size(), value == 0 ? 0 : value);
  return {text.data(), written.ptr};
}

std::string TextOf(const std::string& value) {
  return value;
}

std::string TextOf(const std::optional<std::int32_t>& value) {
  return value ? TextOf(*value) : std::string();
}

std::string TextOf(const std::optional<std::string>& value) {
  return value.value_or(std::string());
}

void CheckFirst(const DomNode& node, Seen& seen, const std::string& what) {
  if (!seen.insert(what).second) RaiseAt(node, what + " stands twice");
}

void CheckNoChildren(const DomNode& node) {
  for (const DomNode& child : node.Children()) {
    if (child.IsElement()) RaiseAt(node, "unknown element <" + child.Name() + ">");
  }
}

void CheckRecord(const DomNode& node, const Instrument& instrument) {
  if (CharacterCount(instrument.name) > kSystemNameLength) {
    RaiseAt(node, "the name \"" + instrument.name + "\" is longer than " +
                      std::to_string(kSystemNameLength) + " characters");
  }
}

void CheckRecord(const DomNode& node, const CondenserData& condenser) {
  const bool fits = condenser.suits.size() <= kCassetteAddresses &&
                    condenser.suits.find_first_not_of("01") == std::string::npos;
  if (!fits) {
    RaiseAt(node, "attribute \"Suits\" is \"" + condenser.suits +
                      "\", which is no list of up to ten \"0\" and \"1\"");
  }
}

void CheckRecord(const DomNode& node, const ZDriveData& drive) {
  CheckSpeed(node, drive.speed);
}

void CheckRecord(const DomNode& node, const XYDriveData& drive) {
  CheckSpeed(node, drive.speed);
}

std::size_t PlaceOf(const DomNode& node, std::span<const std::string_view> keys) {
  for (const DomAttribute& attribute : node.Attributes()) {
    if (attribute.name != kKey) continue;
    const auto key = std::find(keys.begin(), keys.end(), attribute.value);
    if (key == keys.end()) RaiseValue(node, attribute, "place of this kind");
    return static_cast<std::size_t>(key - keys.begin());
  }
  RaiseAt(node, "attribute \"" + std::string(kKey) + "\" is missing");
}

}  // namespace mortane::controller::bench_file
