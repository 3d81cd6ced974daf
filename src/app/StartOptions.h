// The options of the programs with windows: arguments that begin with two dashes. They are taken
// off before the rest of the command line is read for a microscope.
#pragma once

#include <string>
#include <vector>

namespace mortane {

// What the options ask for.
struct StartOptions {
  bool help = false;
  bool version = false;
  // A file for the journal of the session; empty when none is asked for.
  std::string journal = {};
  // The program's path, then every argument that is no option. After "--" none is one.
  std::vector<std::string> arguments;
};

// `arguments` begin with the program's path. Raises a Failure with the name of an option that is
// unknown, or that has a value and takes none.
StartOptions ReadStartOptions(const std::vector<std::string>& arguments);

// What "--help" and "--version" of a command answer, without the last line break.
std::string HelpText(const std::string& command, const std::string& description);
std::string VersionText(const std::string& command);

}  // namespace mortane
