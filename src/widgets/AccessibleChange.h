// Changes that screen readers hear of.
#pragma once

#include <QAccessible>

namespace mortane {

// Where the toolkit tells of no change itself, or of another than the one that happened.
void TellChange(QAccessibleEvent& event);

// Hears of each change before the toolkit, whose own hook (QAccessible::installUpdateHandler) is
// passed by where no screen reader runs. Only a platform with one can be told that it does, so that
// tests on the offscreen platform need this one. Returns the former watcher; none by default.
using ChangeWatcher = void (*)(const QAccessibleEvent& event);
ChangeWatcher WatchChanges(ChangeWatcher watcher);

}  // namespace mortane
