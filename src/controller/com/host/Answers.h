// Objects made for another process, as the lines and bytes of its answers.
#pragma once

#include <string>
#include <string_view>

namespace mortane::controller::host {

// The calling thread has a single-threaded apartment, and runs its messages for as long as objects
// that were given away shall answer.
std::string AnswerTo(std::string_view request);

}  // namespace mortane::controller::host
