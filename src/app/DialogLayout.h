// The common face of the program's dialogs: a text, a list, OK and Cancel at the right.
#pragma once

class QDialog;
class QLabel;
class QPushButton;
class QWidget;

namespace mortane {

// Gives the dialog its icon and layout, OK as the button of the Enter key, and Cancel as the
// way out. `text` may be missing.
void ArrangeDialog(QDialog& dialog, QLabel* text, QWidget& list, QPushButton& ok,
                   QPushButton& cancel);

}  // namespace mortane
