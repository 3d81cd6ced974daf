// Fills a list with the names that a unit knows by their index.
#pragma once

#include <QString>
#include <cstdint>

#include "widgets/ListBox.h"

namespace mortane {

// Names 0 to `highest`. Kept: a list that holds as many keeps its rows, so that the names of the
// first microscope stay as long as the program runs. A list that was filled before the unit knew
// the names holds another number, and is filled anew.
template <typename NameOf>
void FillNames(ListBox& list, std::int32_t highest, NameOf nameOf) {
  if (list.rowCount() == highest + 1) return;
  list.clearRows();
  for (std::int32_t i = 0; i <= highest; ++i) list.addRow(QString::fromStdString(nameOf(i)));
}

}  // namespace mortane
