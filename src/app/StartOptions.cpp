#include "app/StartOptions.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "common/Failure.h"
#include "hub/SessionLibrary.h"

namespace mortane {
namespace {

constexpr std::string_view kDashes = "--";
constexpr std::size_t kMeaningColumn = 20;

struct OptionRow {
  std::string_view name;
  std::string_view value;  // as the help names it, "[=FILE]"; empty: the option takes none
  std::string_view meaning;
  void (*take)(StartOptions& options, const std::string& value);
};

constexpr std::array<OptionRow, 3> kOptions{{
    {"--help", "", "Show this help",
     [](StartOptions& options, const std::string&) { options.help = true; }},
    {"--journal", "[=FILE]",
     "Write every call to the controller to FILE, or to \"Mortane Journal.txt\" in the documents",
     [](StartOptions& options, const std::string& value) {
       options.journal = value.empty() ? UsersJournal() : value;
     }},
    {"--version", "", "Show the version",
     [](StartOptions& options, const std::string&) { options.version = true; }},
}};

struct HelpRow {
  std::string_view name;
  std::string_view meaning;
};

constexpr std::array<HelpRow, 2> kArguments{{
    {"MICROSCOPE", "Connect the microscope of this name without asking"},
    {"/SIM", "Connect the simulated microscope"},
}};

constexpr std::array<HelpRow, 4> kVariables{{
    {"MORTANE_BENCH", "A bench file, whose microscopes take the place of the real ones"},
    {"MORTANE_JOURNAL", "A file to whose end every call to the controller is written"},
    {"MORTANE_REPLAY", "Such a file, which answers in place of the controller"},
    {"MORTANE_SCHEME", "\"light\" or \"dark\", whatever the desktop has"},
}};

[[noreturn]] void Refuse(const std::string& what) {
  RaiseOwnFailure(kConversionError, what + ". \"--help\" lists the options.");
}

void TakeOption(const std::string& argument, StartOptions& options) {
  const std::size_t equals = std::min(argument.find('='), argument.size());
  const std::string name = argument.substr(0, equals);
  const auto* const row = std::ranges::find(kOptions, name, &OptionRow::name);
  if (row == kOptions.end()) Refuse(name + " is no option");
  const bool hasValue = equals < argument.size();
  if (hasValue && row->value.empty()) Refuse(name + " takes no value");
  row->take(options, hasValue ? argument.substr(equals + 1) : std::string());
}

std::string HelpLine(std::string_view name, std::string_view meaning) {
  std::string line = "  " + std::string(name);
  line.resize(std::max(line.size() + 1, kMeaningColumn), ' ');
  return line + std::string(meaning) + '\n';
}

}  // namespace

StartOptions ReadStartOptions(const std::vector<std::string>& arguments) {
  StartOptions options;
  bool ended = false;
  for (const std::string& argument : arguments) {
    const bool isProgram = &argument == &arguments.front();
    if (isProgram || ended || !argument.starts_with(kDashes)) {
      options.arguments.push_back(argument);
    } else if (argument == kDashes) {
      ended = true;
    } else {
      TakeOption(argument, options);
    }
  }
  return options;
}

std::string HelpText(const std::string& command, const std::string& description) {
  std::string text =
      "Usage: " + command + " [OPTION]... [MICROSCOPE | /SIM]\n" + description + "\n\nArguments:\n";
  for (const HelpRow& row : kArguments) text += HelpLine(row.name, row.meaning);
  text += "\nOptions:\n";
  for (const OptionRow& row : kOptions) {
    text += HelpLine(std::string(row.name) + std::string(row.value), row.meaning);
  }
  text += HelpLine(kDashes, "What follows is no option");
  text += "\nEnvironment:\n";
  for (const HelpRow& row : kVariables) text += HelpLine(row.name, row.meaning);
  text.pop_back();
  return text;
}

std::string VersionText(const std::string& command) {
  return command + " " MORTANE_VERSION;
}

}  // namespace mortane
