// Where the focus goes when the person clicks a control.
#pragma once

class QAbstractButton;
class QWidget;

namespace mortane {

// For a control by which the person changes page, section or tab, before it acts: leaves the text
// field that has the focus. False when its text is refused; then nothing may change.
bool LeaveFocusedField();

// Brings the focus to the control that the person has clicked. False when a refused text keeps it;
// then the click must not act.
bool TakeFocus(QWidget& control);

// The button takes the focus by a complete click. Another mouse button, or a press that is let go
// beside it, leaves the focus where it is; a refused text forbids the click.
void TakeFocusByClicks(QAbstractButton& button);

}  // namespace mortane
