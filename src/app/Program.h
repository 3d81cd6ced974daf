// What the programs of this project do alike, from the command line to the end of the process.
#pragma once

#include <functional>
#include <memory>

#include "app/FormServices.h"

namespace mortane {

class ProgramForm;

// In what one program differs from another.
struct ProgramKind {
  const char* name;  // of the command
  const char* title;
  const char* description;  // one sentence, for the help
  std::function<std::unique_ptr<ProgramForm>(const FormServices&)> makeForm;
};

// The program's exit code: 2 when it cannot start, for an option that there is not, a bench file
// that is wrong or a session that cannot be replayed; one line on standard error tells why. Help
// and version are told before anything is opened, and need no display.
int RunProgram(int argc, char** argv, const ProgramKind& kind);

}  // namespace mortane
