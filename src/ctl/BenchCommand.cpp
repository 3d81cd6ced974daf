// A bench file of the instruments that a session told of.
#include <ostream>

#include "controller/simulator/BenchFile.h"
#include "controller/simulator/BenchOfSession.h"
#include "ctl/Commands.h"
#include "ctl/OutputFile.h"
#include "ctl/SettingsInput.h"
#include "ctl/ShownText.h"

namespace mortane::ctl {

// The list of defaults is the answer, unless the bench itself goes to the standard output.
Outcome MakeBench(const Request& request, Surroundings& surroundings) {
  controller::JournalReader reader(request.journal);
  const controller::SessionBench made = controller::BenchOfSession(reader);
  WriteOutput(request.output, controller::BenchFileText(made.bench), surroundings);
  std::ostream& answer = request.output == kStandardStream ? surroundings.err : surroundings.out;
  answer << Shown(NameOfFile(request.output)) << ": "
         << Counted(made.bench.instruments.size(), "instrument", "instruments") << ", "
         << Counted(made.defaults.size(), "default", "defaults")
         << " for what the session did not tell\n";
  for (const std::string& line : made.defaults) answer << "  " << Shown(line) << '\n';
  return Outcome::Done;
}

}  // namespace mortane::ctl
