// The content of the databases of the named benches.
#pragma once

#include "controller/simulator/DatabaseData.h"

namespace mortane::controller {

// Names and numbers are within all limits, and the fixed records of each list are numbered from 1.
// A few options are in use; the others are marked with dashes, as a set-up program leaves them.
DatabaseData OrdinaryDatabase();

// Has long names, unnamed and equal records, codes out of range, and answers that are no codes.
DatabaseData AwkwardDatabase();

// Options 241 (141 among condensers) to 249 (149): the first ones named, the others dashes.
void AddFilterOptions(std::vector<FilterData>& records, const std::vector<std::string>& names);
void AddCondenserOptions(std::vector<CondenserData>& records,
                         const std::vector<std::string>& names);

}  // namespace mortane::controller
