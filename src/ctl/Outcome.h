// How a command ends, and what ends it early.
#pragma once

#include <exception>
#include <string>

namespace mortane::ctl {

// The exit codes of the program.
enum class Outcome {
  Done = 0,       // done, or the same
  Different = 1,  // there are differences, or lines that were refused
  Failed = 2,     // could not
};

// The person or the system wants the program to end. Passes through every transfer, which ends
// between two units.
class EndAsked : public std::exception {
 public:
  const char* what() const noexcept override { return "ended as asked"; }
};

// Nothing more to say: the command has told everything itself.
class CommandFailed : public std::exception {
 public:
  const char* what() const noexcept override { return "failed"; }
};

// One line for the person: what could not be done, and what to do about it.
[[noreturn]] void Refuse(std::string reason);

}  // namespace mortane::ctl
