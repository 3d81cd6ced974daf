// How failures stand in reports and boxes.
#pragma once

#include <string>
#include <string_view>

namespace mortane {

class Failure;

// A unit's line: `opening`, which ends with its bracket, then source, colon, number in
// hexadecimal and the closing bracket: "Nosepiece Limit (LIB:80004005)".
std::string FailureLine(std::string_view opening, const Failure& failure);

// The text of a failed operation of the microscope object: "*** Connect Error!!(37)".
std::string OperationError(std::string_view operation, const Failure& failure);

}  // namespace mortane
