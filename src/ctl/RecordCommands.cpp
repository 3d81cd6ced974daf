// The record of a microscope, and its export.
#include "ctl/Commands.h"

namespace mortane::ctl {

Outcome WriteReport(const Request& /*request*/, Surroundings& /*surroundings*/) {
  Refuse("not there yet");
}

Outcome ExportInstrument(const Request& /*request*/, Surroundings& /*surroundings*/) {
  Refuse("not there yet");
}

}  // namespace mortane::ctl
