// The whole of a text that its control shows in part, as a tool tip.
#pragma once

#include <QFontMetrics>
#include <QRect>
#include <QString>

class QHelpEvent;
class QWidget;

namespace mortane {

enum class Fits { No, Yes };
Fits FitsIn(int width, const QString& text, const QFontMetrics& metrics);

// The text, elided at its right end where it does not fit. Widths are whole pixels, as controls
// ask for them; the toolkit's own elision would cut a text that is wider by less than a pixel.
QString ShownIn(int width, const QString& text, const QFontMetrics& metrics);

// Shows the text where it does not fit, the control's own tool tip and what it has that is not
// sent, as far as there is any, while the pointer stays in the area; or takes away a tip that is
// there.
void ShowWholeText(const QHelpEvent& help, QWidget& control, const QString& text, Fits fits,
                   const QRect& area);
void ShowWholeText(const QHelpEvent& help, QWidget& control, const QString& text, Fits fits);

}  // namespace mortane
