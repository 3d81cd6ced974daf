// How wide the columns of a list are.
#pragma once

#include <vector>

namespace mortane {

// What a column needs to show its contents whole, and what it takes where there is room.
struct ColumnWish {
  int content = 0;
  int wanted = 0;
};

// Widths in pixels for that much room. The last column takes what is left over; where the room is
// too narrow for what is wanted, columns give way down to their contents and no further: the rest
// is scrolled to.
std::vector<int> ColumnWidths(const std::vector<ColumnWish>& columns, int room);

}  // namespace mortane
