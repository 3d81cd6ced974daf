// The commands, one function each.
#pragma once

#include "ctl/Outcome.h"
#include "ctl/Request.h"
#include "ctl/Surroundings.h"

namespace mortane::ctl {

// Each writes its answer to the surroundings' `out` and raises a Failure, in one line for the
// person, when it cannot do what was asked.
Outcome ListDevices(const Request& request, Surroundings& surroundings);
Outcome ReceiveToFile(const Request& request, Surroundings& surroundings);
Outcome CompareWithFile(const Request& request, Surroundings& surroundings);
Outcome CompareFiles(const Request& request, Surroundings& surroundings);
Outcome SendFile(const Request& request, Surroundings& surroundings);
Outcome ListBackups(const Request& request, Surroundings& surroundings);
Outcome RestoreBackup(const Request& request, Surroundings& surroundings);
Outcome CheckFiles(const Request& request, Surroundings& surroundings);
Outcome WriteReport(const Request& request, Surroundings& surroundings);
Outcome ExportInstrument(const Request& request, Surroundings& surroundings);
Outcome WatchMicroscope(const Request& request, Surroundings& surroundings);
Outcome MakeBench(const Request& request, Surroundings& surroundings);

}  // namespace mortane::ctl
