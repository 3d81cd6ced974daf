// What stands on the microscope as OME-XML, the metadata that imaging programs read.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mortane {

class clsK70;

// An <Instrument> of the schema of June 2016: the microscope, an objective for each mounted one,
// a filter set for each mounted cube with its filters and its mirror. Ids come from the addresses,
// so they are the same for every export. What is not known is left out.
std::string OmeXml(const clsK70& k70);

// What the name of a filter says plainly: "365/10" passes 360 to 370 nm, "LP 515" what is longer.
struct FilterRange {
  std::optional<double> cutIn;
  std::optional<double> cutOut;
};
// Nothing for any other name.
std::optional<FilterRange> RangeInName(std::string_view name);

}  // namespace mortane
