// Changes that screen readers hear of.
#pragma once

#include <QAccessible>

namespace mortane {

// Where the toolkit tells of no change itself, or of another than the one that happened.
void TellChange(QAccessibleEvent& event);

// Hears of each change before the toolkit, which passes none on where no screen reader runs.
// Returns the former watcher; none by default.
using ChangeWatcher = void (*)(const QAccessibleEvent& event);
ChangeWatcher WatchChanges(ChangeWatcher watcher);

}  // namespace mortane
