#include "condensers/clsDbCondenser.h"

namespace mortane {
namespace {

// The two labels of a record are as people know them from the reports.
constexpr NameListKind kCondensers{
    accessory::kCondenser,
    [](const controller::AccessoryDatabase& database) {
      return controller::RecordList<controller::DatabaseRecord>(database.Condensers().Object());
    },
    140,
    "OPTION",
    "Condenser Option (",
    "Optional Condenser[",
    "Condenser Option[",
};

}  // namespace

clsDbCondenser::clsDbCondenser(ConnectedMicroscope& microscope)
    : parent(microscope), names_(kCondensers) {}

}  // namespace mortane
