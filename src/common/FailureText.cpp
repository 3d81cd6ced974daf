#include "common/FailureText.h"

#include "common/Failure.h"
#include "common/Numbers.h"

namespace mortane {

std::string FailureLine(std::string_view opening, const Failure& failure) {
  return std::string(opening) + failure.Source() + ":" + Hex(failure.Number()) + ")";
}

std::string OperationError(std::string_view operation, const Failure& failure) {
  return "*** " + std::string(operation) + " Error!!(" + Hex(failure.Number()) + ")";
}

}  // namespace mortane
