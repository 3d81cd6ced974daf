#include "common/Failure.h"

#include "common/Numbers.h"

namespace mortane {

void RaiseOwnFailure(std::int32_t number, std::string description) {
  throw Failure("Mortane", number, std::move(description));
}

std::size_t CheckedIndex(std::int32_t index, std::int32_t first, std::size_t count) {
  const std::int64_t offset = std::int64_t{index} - first;
  if (offset < 0 || offset >= static_cast<std::int64_t>(count)) {
    RaiseOwnFailure(kSubscriptError, "Subscript out of range: " + std::to_string(index));
  }
  return static_cast<std::size_t>(offset);
}

std::string FailureLine(std::string_view opening, const Failure& failure) {
  return std::string(opening) + failure.Source() + ":" + Hex(failure.Number()) + ")";
}

std::string OperationError(std::string_view operation, const Failure& failure) {
  return "*** " + std::string(operation) + " Error!!(" + Hex(failure.Number()) + ")";
}

}  // namespace mortane
