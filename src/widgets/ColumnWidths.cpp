#include "widgets/ColumnWidths.h"

#include <algorithm>

namespace mortane {

std::vector<int> ColumnWidths(const std::vector<ColumnWish>& columns, int room) {
  int content = 0;
  int spare = 0;  // of what is wanted beyond the contents
  for (const ColumnWish& column : columns) {
    content += column.content;
    spare += std::max(0, column.wanted - column.content);
  }
  const int given = std::clamp(room - content, 0, spare);
  std::vector<int> widths;
  int used = 0;
  for (const ColumnWish& column : columns) {
    const int more = std::max(0, column.wanted - column.content);
    widths.push_back(column.content + (spare == 0 ? 0 : more * given / spare));
    used += widths.back();
  }
  if (!widths.empty()) widths.back() += std::max(0, room - used);
  return widths;
}

}  // namespace mortane
