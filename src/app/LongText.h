// Texts of boxes that are longer than the screen is high.
#pragma once

#include <QString>

class QMessageBox;

namespace mortane {

// The first thousand lines of a text, and how many more there are.
QString FirstLines(const QString& text);

// Where the box would not fit the screen, its text stands in a field that scrolls and from which
// it can be copied.
void ScrollLongText(QMessageBox& box);

}  // namespace mortane
