// The arguments that the process was started with.
#pragma once

#include <string>
#include <vector>

namespace mortane {

// Element 0 is the program's path, the others are the arguments in UTF-8. To be called before
// the GUI toolkit is set up, which takes out of `argv` the options that it knows.
std::vector<std::string> GetCommandLineArray(int argc, char** argv);

}  // namespace mortane
