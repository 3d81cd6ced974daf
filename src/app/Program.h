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
  std::function<std::unique_ptr<ProgramForm>(const FormServices&)> makeForm;
};

// The program's exit code: 2 when it cannot start, for a bench file that is wrong or a journal that
// cannot be written; one line on standard error tells why.
int RunProgram(int argc, char** argv, const ProgramKind& kind);

}  // namespace mortane
