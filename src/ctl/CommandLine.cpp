#include "ctl/CommandLine.h"

#include <CLI/CLI.hpp>
#include <array>
#include <memory>

#include "ctl/ShownText.h"
#include "ctl/Surroundings.h"

namespace mortane::ctl {
namespace {

// Of a journal: the file in the user's documents. No file can be called so.
constexpr std::string_view kNoName = "/";

constexpr int kLongestWaitSeconds = 24 * 60 * 60;

// Which options a command has.
enum Options : unsigned {
  kMicroscope = 1U << 0U,
  kJson = 1U << 1U,
  kSections = 1U << 2U,
  kSending = 1U << 3U,
};

struct CommandRow {
  Verb verb;
  const char* name;
  const char* description;
  unsigned options;
  const char* examples;
};

constexpr std::array<CommandRow, 12> kCommands{{
    {Verb::Devices, "devices", "List the microscopes, and whether each can be used now",
     kMicroscope | kJson,
     "  mortanectl devices\n"
     "  mortanectl devices --bench benches/Crowd.xml\n"},
    {Verb::Receive, "receive", "Read the microscope and write a settings file", kMicroscope,
     "  mortanectl receive -o room-12.xml\n"
     "  mortanectl receive --device \"Bay 7\" --wait 60 -o - | less\n"},
    {Verb::Compare, "compare", "Show what sending a file would change, item by item",
     kMicroscope | kJson | kSections,
     "  mortanectl compare reference.xml\n"
     "  mortanectl compare reference.xml --sections NOSEPIECE,FILTER\n"
     "  mortanectl compare reference.xml --json | jq .changes\n"},
    {Verb::Diff, "diff", "Compare two files without a microscope", kJson,
     "  mortanectl diff monday.xml tuesday.xml\n"
     "  mortanectl diff - room-12.xml < yesterday.xml\n"},
    {Verb::Send, "send", "Show what a file changes, keep a backup, write and read back",
     kMicroscope | kJson | kSections | kSending,
     "  mortanectl send reference.xml --dry-run\n"
     "  mortanectl send reference.xml\n"
     "  mortanectl send reference.xml --yes --wait 60 --json\n"},
    {Verb::Backups, "backups", "List the kept states of a microscope, the newest first",
     kMicroscope | kJson,
     "  mortanectl backups\n"
     "  mortanectl backups --device \"Bay 7\" --keep 20\n"},
    {Verb::Restore, "restore", "Send a kept state, with all the care of send",
     kMicroscope | kJson | kSections | kSending,
     "  mortanectl restore            # the newest\n"
     "  mortanectl restore 3 --dry-run\n"},
    {Verb::Check, "check", "Read settings files and tell every line that is refused", kJson,
     "  mortanectl check reference.xml\n"
     "  mortanectl check microscopes/     # all files *.xml in the folder\n"},
    {Verb::Report, "report", "Write the record of a microscope or a file as HTML or text",
     kMicroscope,
     "  mortanectl report -o room-12.html\n"
     "  mortanectl report today.xml --since yesterday.xml -o changes.html\n"},
    {Verb::Export, "export", "Write the instrument as OME-XML", kMicroscope,
     "  mortanectl export --ome room-12.ome.xml\n"
     "  mortanectl export --sim --ome -\n"},
    {Verb::Watch, "watch", "Read again and again and tell what changed, until Ctrl-C",
     kMicroscope | kJson,
     "  mortanectl watch\n"
     "  mortanectl watch --every 60 --json >> changes.log\n"},
    {Verb::Bench, "bench", "Make a bench file of the microscope of a recorded session", 0,
     "  mortanectl bench --from-journal journal.txt -o room-12-bench.xml\n"
     "  mortanectl bench --from-journal journal.txt -o - | less\n"},
}};

constexpr char kExamplesOfAll[] =
    "Examples:\n"
    "  mortanectl compare reference.xml     # what would sending it change?\n"
    "  mortanectl send reference.xml        # shows it, asks, keeps a backup, sends, reads back\n"
    "  mortanectl restore                   # sends the newest backup\n"
    "\n"
    "\"mortanectl COMMAND --help\" explains a command. \"-\" as a file is a standard stream.\n"
    "Exit code 0: done, or the same. 1: differences. 2: could not.\n";

// Names an option without what it stands for when it has no value.
class HelpFormatter : public CLI::Formatter {
 public:
  std::string make_option_name(const CLI::Option* option, bool positional) const override {
    const std::string name = Formatter::make_option_name(option, positional);
    return name.substr(0, name.find('{'));
  }
};

// The bounds stand in the message of a number outside them; the help goes without.
CLI::Validator Between(int least, int most) {
  return CLI::Range(least, most).description("");
}

void AddMicroscope(CLI::App& command, MicroscopeChoice& choice) {
  command.add_option("--device", choice.device, "The microscope of this name, or its index")
      ->type_name("NAME");
  command.add_flag("--sim", choice.simulated, "The simulated microscope");
  command.add_option("--bench", choice.bench, "The microscopes of a bench file")->type_name("FILE");
  command.add_option("--wait", choice.waitSeconds, "Wait for a microscope that is used elsewhere")
      ->type_name("SECONDS")
      ->check(Between(0, kLongestWaitSeconds));
  // The text in braces is what the option without a value stands for.
  command
      .add_flag("--journal{" + std::string(kNoName) + "}", choice.journal,
                "Write every call to FILE, or to the documents")
      ->type_name("[=FILE]");
}

void AddSending(CLI::App& command, Request& request) {
  command.add_flag("--dry-run", request.dryRun, "Show what would change and send nothing");
  command.add_flag("--yes", request.yes, "Send without a question");
  command.add_flag("--no-backup", request.noBackup, "Send without keeping a backup first");
}

CLI::Option* AddFiles(CLI::App& command, Request& request, const char* description) {
  CLI::Option* files = command.add_option("FILE", request.files, description);
  files->required()->type_name("");
  return files;
}

CLI::Option* AddOutput(CLI::App& command, Request& request, const char* description) {
  return command.add_option("-o,--output", request.output, description)->type_name("FILE");
}

// What one command alone has.
void AddOwn(CLI::App& command, Verb verb, Request& request) {
  switch (verb) {
    case Verb::Receive:
      AddOutput(command, request, "The settings file to write")->required();
      command.add_flag("--partial", request.partial, "Write it also when a part cannot be read");
      return;
    case Verb::Compare:
    case Verb::Send:
      AddFiles(command, request, "The settings file")->expected(1);
      return;
    case Verb::Diff:
      AddFiles(command, request, "The two settings files")->expected(2);
      return;
    case Verb::Check:
      AddFiles(command, request, "Settings files, and folders of them");
      return;
    case Verb::Report:
      AddFiles(command, request, "A settings file in place of a microscope")
          ->required(false)
          ->expected(1);
      AddOutput(command, request, "OUT.html or OUT.txt; without it, text on the standard output");
      command.add_option("--since", request.since, "An earlier state: what changed stands on top")
          ->type_name("FILE");
      return;
    case Verb::Export:
      command.add_option("--ome", request.output, "The OME-XML file to write")
          ->type_name("FILE")
          ->required();
      return;
    case Verb::Backups:
      command.add_option("--keep", request.keep, "Remove all but the newest N")
          ->type_name("N")
          ->check(Between(1, 1000000));
      return;
    case Verb::Restore:
      command.add_option("WHICH", request.which, "A number of \"backups\", a time or a path")
          ->type_name("");
      return;
    case Verb::Watch:
      command
          .add_option("--every", request.everySeconds,
                      "Seconds between two readings; 5 when not given")
          ->type_name("SECONDS")
          ->check(Between(1, kLongestWaitSeconds));
      return;
    case Verb::Bench:
      command.add_option("--from-journal", request.journal, "The journal of the session")
          ->type_name("FILE")
          ->required();
      AddOutput(command, request, "The bench file to write")->required();
      return;
    case Verb::Devices:
      return;
  }
}

void AddCommand(CLI::App& program, const CommandRow& row, Request& request, std::string& sections) {
  CLI::App* command = program.add_subcommand(row.name, row.description);
  command->group("Commands");
  AddOwn(*command, row.verb, request);
  if ((row.options & kMicroscope) != 0) AddMicroscope(*command, request.microscope);
  if ((row.options & kSections) != 0) {
    command->add_option("--sections", sections, "Only these sections of the file: NOSEPIECE,FILTER")
        ->type_name("LIST");
  }
  if ((row.options & kSending) != 0) AddSending(*command, request);
  if ((row.options & kJson) != 0) command->add_flag("--json", request.json, "Answer as JSON");
  command->footer(std::string("Examples:\n") + row.examples);
  command->callback([&request, verb = row.verb] { request.verb = verb; });
}

std::vector<std::string> Split(const std::string& list) {
  std::vector<std::string> parts;
  std::size_t begin = 0;
  while (begin <= list.size()) {
    const std::size_t end = std::min(list.find(',', begin), list.size());
    parts.push_back(list.substr(begin, end - begin));
    begin = end + 1;
  }
  return parts;
}

// What no single option can know.
void CheckTogether(const CLI::App& program, const Request& request) {
  if (program.get_subcommands().empty()) throw CLI::RequiredError("A command");
  if (request.microscope.simulated && !request.microscope.device.empty()) {
    throw CLI::ValidationError("--sim", "--device names another microscope");
  }
}

std::string HelpOf(const CLI::App& program) {
  for (const CLI::App* command : program.get_subcommands({})) {
    if (command->parsed()) return std::string(kProgram) + " " + command->get_name() + " --help";
  }
  return std::string(kProgram) + " --help";
}

}  // namespace

std::variant<Request, Outcome> ParseCommandLine(const std::vector<std::string>& arguments,
                                                std::ostream& out, std::ostream& err) {
  Request request;
  std::string sections;
  CLI::App program("Sets up motorised microscopes from the command line.", kProgram);
  program.set_version_flag("--version", std::string(kProgram) + " " MORTANE_VERSION);
  program.allow_windows_style_options(false);
  program.require_subcommand(0, 1);
  program.footer(kExamplesOfAll);
  program.formatter(std::make_shared<HelpFormatter>());
  program.get_formatter()->column_width(28);
  program.get_formatter()->label("SUBCOMMAND", "COMMAND");
  program.get_formatter()->label("REQUIRED", "");
  for (const CommandRow& row : kCommands) AddCommand(program, row, request, sections);
  try {
    program.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    CheckTogether(program, request);
  } catch (const CLI::Success& wanted) {
    program.exit(wanted, out, err);
    return Outcome::Done;
  } catch (const CLI::ParseError& wrong) {
    err << kProgram << ": " << Shown(wrong.what()) << "\nTry \"" << HelpOf(program) << "\".\n";
    return Outcome::Failed;
  }
  if (request.microscope.journal == kNoName) request.microscope.journal = UsersJournal();
  if (!sections.empty()) request.sections = Split(sections);
  return request;
}

}  // namespace mortane::ctl
