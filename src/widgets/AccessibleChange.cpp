#include "widgets/AccessibleChange.h"

#include <utility>

namespace mortane {
namespace {

ChangeWatcher currentWatcher = nullptr;

}  // namespace

void TellChange(QAccessibleEvent& event) {
  if (currentWatcher != nullptr) currentWatcher(event);
  QAccessible::updateAccessibility(&event);
}

ChangeWatcher WatchChanges(ChangeWatcher watcher) {
  return std::exchange(currentWatcher, watcher);
}

}  // namespace mortane
