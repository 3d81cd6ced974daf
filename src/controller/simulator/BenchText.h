// The texts of a bench file, and the checks of its records.
#pragma once

#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>

#include "controller/simulator/Bench.h"
#include "document/Dom.h"

namespace mortane::controller::bench_file {

// The attribute that names an element's entry in a table.
inline constexpr std::string_view kKey = "At";
// The attribute that holds the function of a switch.
inline constexpr std::string_view kFunction = "Function";

// Raises a Failure that names the element and what is wrong with it.
[[noreturn]] void RaiseAt(const DomNode& node, const std::string& problem);

// Convert the attribute's text; raise a failure for a text of another kind.
void ReadText(const DomNode& node, const DomAttribute& attribute, std::int16_t& value);
void ReadText(const DomNode& node, const DomAttribute& attribute, std::int32_t& value);
void ReadText(const DomNode& node, const DomAttribute& attribute, bool& value);
void ReadText(const DomNode& node, const DomAttribute& attribute, double& value);
void ReadText(const DomNode& node, const DomAttribute& attribute, std::string& value);
void ReadText(const DomNode& node, const DomAttribute& attribute,
              std::optional<std::int32_t>& value);
void ReadText(const DomNode& node, const DomAttribute& attribute,
              std::optional<std::string>& value);

std::string TextOf(std::int32_t value);
std::string TextOf(bool value);
std::string TextOf(double value);
std::string TextOf(const std::string& value);
std::string TextOf(const std::optional<std::int32_t>& value);
std::string TextOf(const std::optional<std::string>& value);

// Names of the elements that were read within one owner.
using Seen = std::set<std::string, std::less<>>;

// Raises a failure when `what` was seen before.
void CheckFirst(const DomNode& node, Seen& seen, const std::string& what);
void CheckNoChildren(const DomNode& node);

// Raises a failure when a record's fields are outside their range.
void CheckRecord(const DomNode& node, const Instrument& instrument);
void CheckRecord(const DomNode& node, const CondenserData& condenser);
void CheckRecord(const DomNode& node, const ZDriveData& drive);
void CheckRecord(const DomNode& node, const XYDriveData& drive);
template <typename Record>
void CheckRecord(const DomNode& /*node*/, const Record& /*record*/) {}

// Index of the entry that the element's key names; raises a failure for an unknown key.
std::size_t PlaceOf(const DomNode& node, std::span<const std::string_view> keys);

}  // namespace mortane::controller::bench_file
