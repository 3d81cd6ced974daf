// What the interlock pages share: the tiles of accessories, and their places.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "interlocks/ToggleTile.h"

namespace mortane {

// The rows of a table of accessories by their places on a page; those without a place are left out.
template <typename Row, std::size_t kCount>
std::vector<const Row*> InPageOrder(const std::array<Row, kCount>& table, int Row::*place) {
  std::vector<const Row*> rows;
  for (const Row& row : table) {
    if (row.*place >= 0) rows.push_back(&row);
  }
  std::sort(rows.begin(), rows.end(),
            [place](const Row* one, const Row* other) { return one->*place < other->*place; });
  return rows;
}

// The tile of the accessory with that number, 1 to 14.
ToggleTile* MakeAccessoryTile(std::int32_t accessory, std::string_view caption,
                              ToggleTile::Ground ground, QWidget* parent);

// Brings the switch to on or off. Any other state leaves it.
void ShowState(CheckToggle& toggle, std::int32_t state);

}  // namespace mortane
