#include "widgets/ElidedTip.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

namespace mortane {

void ShowWholeText(const QHelpEvent& help, QWidget& control, const QString& text, Fits fits,
                   const QRect& area) {
  QToolTip::showText(help.globalPos(), fits == Fits::Yes ? QString() : text, &control, area);
}

void ShowWholeText(const QHelpEvent& help, QWidget& control, const QString& text, Fits fits) {
  ShowWholeText(help, control, text, fits, control.rect());
}

}  // namespace mortane
