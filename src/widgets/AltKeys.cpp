#include "widgets/AltKeys.h"

#include <QKeyEvent>

namespace mortane {
namespace {

// With the control key as well it is a key that types the third character of some keyboards.
bool IsLetterWithAlt(const QKeyEvent& key) {
  const auto held = key.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier);
  return held == Qt::AltModifier && !key.text().isEmpty() && key.text().front().isPrint();
}

}  // namespace

bool AltKeys::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  if (!IsLetterWithAlt(static_cast<const QKeyEvent&>(*event))) return false;
  event->ignore();
  return true;
}

}  // namespace mortane
