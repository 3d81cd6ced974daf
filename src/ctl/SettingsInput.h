// Settings files that a command reads.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "ctl/ConsolePrompts.h"
#include "ctl/Surroundings.h"
#include "document/Dom.h"

namespace mortane {
class clsK70;
}  // namespace mortane

namespace mortane::ctl {

// What stands for the standard streams on the command line.
inline constexpr char kStandardStream[] = "-";

// How a file is called in messages and results.
std::string NameOfFile(const std::string& path);

// Reads a settings file, "-" from the standard input. Raises a Failure that names it and the reason
// when it cannot be read, is no XML or no settings file.
DomDocument ReadSettings(const std::string& path, Surroundings& surroundings);

// The file items of the sections of these names, all for an empty list. Raises a Failure for a name
// that no section has.
std::vector<std::size_t> SectionsNamed(const std::vector<std::string>& names);

// Takes sections of the document into the model and answers the lines of what was refused. Raises a
// Failure that names the file for a value that no conversion can take.
std::vector<std::string> TakeSections(clsK70& k70, ConsolePrompts& prompts,
                                      const DomDocument& document, const std::string& name,
                                      const std::vector<std::size_t>& sections);

}  // namespace mortane::ctl
