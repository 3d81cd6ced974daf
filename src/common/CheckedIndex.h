// Indices that a controller or a file names, and that need not be in the table.
#pragma once

#include <cstddef>
#include <cstdint>

namespace mortane {

// The index, from 0, of the entry numbered `index` in a table of `count` entries whose numbers
// begin at `first`. Raises kSubscriptError for a number outside the table.
std::size_t CheckedIndex(std::int32_t index, std::int32_t first, std::size_t count);

}  // namespace mortane
