// A drawing of the resources in the colours of the scheme.
#pragma once

#include <QByteArray>
#include <QString>

class QPalette;

namespace mortane {

// The SVG text of resources/NAME.svg. Its white and its darkest parts come from the palette.
QByteArray InkedDrawing(const QString& name, const QPalette& palette);

}  // namespace mortane
