// A click that a screen reader asks for.
#pragma once

#include <QPoint>

class QWidget;

namespace mortane {

// Clicks as a person does, on the control or, if it paints its items on a widget of its own, on
// that one. So a field whose text is refused keeps the focus, and nothing else happens.
void ClickFor(QWidget& canvas, QPoint at);
void ClickFor(QWidget& control);

}  // namespace mortane
