#include "ctl/Program.h"

#include <array>
#include <iostream>
#include <variant>

#include "common/Failure.h"
#include "ctl/CommandLine.h"
#include "ctl/Commands.h"
#include "ctl/LineBuffer.h"
#include "ctl/ShownText.h"
#include "platform/CommandLine.h"
#include "platform/Environment.h"
#include "platform/Interrupts.h"
#include "platform/Sleep.h"
#include "platform/Terminal.h"

namespace mortane::ctl {
namespace {

using Command = Outcome (*)(const Request&, Surroundings&);

// In the order of the verbs.
constexpr std::array<Command, 12> kCommands{
    ListDevices,   ReceiveToFile, CompareWithFile, CompareFiles,     SendFile,        ListBackups,
    RestoreBackup, CheckFiles,    WriteReport,     ExportInstrument, WatchMicroscope, MakeBench};

Outcome RunRequest(const Request& request, Surroundings& surroundings) {
  try {
    return kCommands[static_cast<std::size_t>(request.verb)](request, surroundings);
  } catch (const CommandFailed&) {
    return Outcome::Failed;
  } catch (const std::exception& failure) {
    surroundings.err << kProgram << ": " << Shown(failure.what()) << '\n';
    return Outcome::Failed;
  }
}

bool IsDumbTerminal() {
  const std::string terminal = EnvironmentVariable("TERM");
  return terminal == "dumb";
}

}  // namespace

Outcome Run(const std::vector<std::string>& arguments, Surroundings& surroundings) {
  const auto parsed = ParseCommandLine(arguments, surroundings.out, surroundings.err);
  Outcome outcome = Outcome::Done;
  if (const auto* ended = std::get_if<Outcome>(&parsed)) {
    outcome = *ended;
  } else {
    outcome = RunRequest(std::get<Request>(parsed), surroundings);
  }
  surroundings.out.flush();
  return surroundings.out ? outcome : Outcome::Failed;
}

int RunProcess(int argc, char** argv) {
  PrepareStandardStreams();
  const InterruptWatch interrupts;
  std::vector<std::string> arguments = GetCommandLineArray(argc, argv);
  arguments.erase(arguments.begin());

  LineBuffer buffer(WriteStandardOutput);
  std::ostream out(&buffer);
  const bool errIsTerminal = IsTerminal(StandardStream::Error);
  Surroundings surroundings{std::cin, out, std::cerr};
  surroundings.canAsk = errIsTerminal && IsTerminal(StandardStream::Input);
  surroundings.showsProgress = errIsTerminal && !IsDumbTerminal();
  surroundings.colour = IsTerminal(StandardStream::Output) && !IsDumbTerminal() &&
                        EnvironmentVariable("NO_COLOR").empty();
  surroundings.endAsked = InterruptWatch::Asked;
  surroundings.sleepMilliseconds = SleepMilliseconds;
  surroundings.backups = Backups::DefaultFolder();
  surroundings.library = WishOfEnvironment();
  surroundings.library.program = std::string(kProgram) + " " MORTANE_VERSION;

  const Outcome outcome = Run(arguments, surroundings);
  if (!buffer.Problem().empty()) {
    std::cerr << kProgram << ": cannot write the standard output: " << buffer.Problem() << '\n';
  }
  return static_cast<int>(outcome);
}

}  // namespace mortane::ctl
