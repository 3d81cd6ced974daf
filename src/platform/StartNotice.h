// What a program has to say before it has a window.
#pragma once

#include <string>

namespace mortane {

// One line, "mortane: ...", on standard error. Where the system gives a program with windows no
// standard error, a box of the system, until it is closed.
void ShowStartNotice(const std::string& program, const std::string& text);

// What the program was asked for, on standard output, with a line break at its end. Where the
// system gives a program with windows no standard output, a box with that title. False where it
// cannot be written.
bool ShowStartAnswer(const std::string& title, const std::string& text);

}  // namespace mortane
