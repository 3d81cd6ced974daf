#include "common/CheckedIndex.h"

#include "common/Failure.h"

namespace mortane {

std::size_t CheckedIndex(std::int32_t index, std::int32_t first, std::size_t count) {
  const std::int64_t offset = std::int64_t{index} - first;
  if (offset < 0 || offset >= static_cast<std::int64_t>(count)) {
    RaiseOwnFailure(kSubscriptError, "Subscript out of range: " + std::to_string(index));
  }
  return static_cast<std::size_t>(offset);
}

}  // namespace mortane
