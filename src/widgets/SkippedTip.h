// Why the arrow keys pass over buttons that are disabled.
#pragma once

#include <QList>

class QAbstractButton;

namespace mortane {

// Shows the tool tips of the skipped buttons, each behind its button's text, beside the first of
// them that has one, until the focus moves on: a disabled button has neither focus nor, for a
// keyboard alone, a tool tip. Nothing where none of them says anything.
void ShowWhySkipped(const QList<QAbstractButton*>& skipped);

}  // namespace mortane
