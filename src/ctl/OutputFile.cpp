#include "ctl/OutputFile.h"

#include <ostream>

#include "ctl/SettingsInput.h"
#include "platform/AtomicFile.h"

namespace mortane::ctl {

void WriteOutput(const std::string& path, std::string_view bytes, Surroundings& surroundings) {
  if (path == kStandardStream) {
    surroundings.out << bytes;
  } else {
    WriteFileAtomically(path, bytes);
  }
}

}  // namespace mortane::ctl
