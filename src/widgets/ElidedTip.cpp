#include "widgets/ElidedTip.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QVariant>
#include <QWidget>

#include "widgets/StyleProperties.h"

namespace mortane {

Fits FitsIn(int width, const QString& text, const QFontMetrics& metrics) {
  return metrics.horizontalAdvance(text) <= width ? Fits::Yes : Fits::No;
}

QString ShownIn(int width, const QString& text, const QFontMetrics& metrics) {
  if (FitsIn(width, text, metrics) == Fits::Yes) return text;
  return metrics.elidedText(text, Qt::ElideRight, width);
}

void ShowWholeText(const QHelpEvent& help, QWidget& control, const QString& text, Fits fits,
                   const QRect& area) {
  QStringList lines;
  if (fits == Fits::No) lines.append(text);
  const QString notSent = control.property(kNotSentProperty).toString();
  for (const QString& own : {control.toolTip(), notSent}) {
    if (!own.isEmpty()) lines.append(own);
  }
  QToolTip::showText(help.globalPos(), lines.join(u'\n'), &control, area);
}

void ShowWholeText(const QHelpEvent& help, QWidget& control, const QString& text, Fits fits) {
  ShowWholeText(help, control, text, fits, control.rect());
}

}  // namespace mortane
