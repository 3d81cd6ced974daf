// What the program runs on.
#pragma once

#include <string>

namespace mortane {

// Name and version of the operating system and the kind of processor, for a person:
// "Debian GNU/Linux 12 (bookworm), x86_64", "Windows 10.0.19045, x86_64".
std::string SystemDescription();

}  // namespace mortane
