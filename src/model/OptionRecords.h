// Loops over the lists of the controller's accessory database.
#pragma once

#include "controller/AccessoryDatabase.h"
#include "model/OptionCodes.h"
#include "model/UnitReport.h"

namespace mortane {

// Visits all records in the controller's order. A failure ends the loop.
template <typename Record, typename Visit>
void ForEachRecord(const controller::RecordList<Record>& list, Visit&& visit) {
  const std::int32_t count = list.Count();
  for (std::int32_t i = 1; i <= count; ++i) visit(list.Item(i));
}

// The same for the user's records only.
template <typename Record, typename Visit>
void ForEachOption(const controller::RecordList<Record>& list, Visit&& visit) {
  ForEachRecord(list, [&](const Record& record) {
    if (record.IsOption()) visit(record);
  });
}

// The same for a write: a record that fails does not end the loop.
template <typename Record, typename Write>
void WriteEachOption(WriteReport& report, const controller::RecordList<Record>& list,
                     Write&& write) {
  const std::int32_t count = list.Count();
  for (std::int32_t i = 1; i <= count; ++i) {
    report.Run([&] {
      const Record record = list.Item(i);
      if (record.IsOption()) write(record);
    });
  }
}

}  // namespace mortane
