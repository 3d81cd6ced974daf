// What stands in the databases of the named benches.
#pragma once

#include "controller/simulator/DatabaseData.h"

namespace mortane::controller {

// Names and numbers within all limits, the fixed records of every list numbered from 1; a few
// options in use and the others marked with dashes, as a set-up program leaves them.
DatabaseData OrdinaryDatabase();

// Long names, unnamed and doubled records, codes out of place, and answers that are no codes.
DatabaseData AwkwardDatabase();

// Options 241 (141 among condensers) to 249 (149): the first ones named, the others dashes.
void AddFilterOptions(std::vector<FilterData>& records, const std::vector<std::string>& names);
void AddCondenserOptions(std::vector<CondenserData>& records,
                         const std::vector<std::string>& names);

}  // namespace mortane::controller
