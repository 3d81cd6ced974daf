// What the pages of the user's filters share: the nine positions and the names of their items.
#pragma once

#include <QString>
#include <cstdint>

#include "controller/AccessoryDatabase.h"
#include "filters/FilterItemNames.h"

namespace mortane {

inline constexpr int kFilterPositions = 9;

// The first of the user's codes, for items and cubes alike; they run to the end of the tables.
inline constexpr std::int32_t kFirstOptionalFilter = 241;
inline constexpr std::int32_t kLastOptionalFilter = 249;

// The mark of an item or a cube that is not in use.
inline constexpr char kUnusedFilter[] = "----------";

// What a name box holds at most.
inline constexpr int kFilterNameLength = 10;

QString FilterItemName(FilterItem item, std::int32_t code);
void PutFilterItemName(FilterItem item, std::int32_t code, const QString& name);

// A count of the controller's fixed records, which is their highest code; 0 where it gives no
// answer, so that a list still offers the code for nothing.
std::int32_t HighestFixedCode(std::int32_t (controller::AccessoryDatabase::*count)() const);

// What a name box shows: the mark for a blank name.
QString NameOrMark(const QString& name);

// Blanks alone are no name.
bool IsBlankName(const QString& name);

}  // namespace mortane
