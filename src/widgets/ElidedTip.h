// The whole of a text that its control shows in part, as a tool tip.
#pragma once

#include <QRect>
#include <QString>

class QHelpEvent;
class QWidget;

namespace mortane {

enum class Fits { No, Yes };

// Shows the text while the pointer stays in the area, or takes away a tip that is there.
void ShowWholeText(const QHelpEvent& help, QWidget& control, const QString& text, Fits fits,
                   const QRect& area);
void ShowWholeText(const QHelpEvent& help, QWidget& control, const QString& text, Fits fits);

}  // namespace mortane
