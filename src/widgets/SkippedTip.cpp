#include "widgets/SkippedTip.h"

#include <QAbstractButton>
#include <QStringList>
#include <QToolTip>

namespace mortane {

using namespace Qt::StringLiterals;

void ShowWhySkipped(const QList<QAbstractButton*>& skipped) {
  QStringList lines;
  QAbstractButton* beside = nullptr;
  for (QAbstractButton* button : skipped) {
    if (button->isHidden() || button->toolTip().isEmpty()) continue;
    lines.append(u"%1: %2"_s.arg(button->text(), button->toolTip()));
    if (beside == nullptr) beside = button;
  }
  if (beside == nullptr) return;
  QToolTip::showText(beside->mapToGlobal(beside->rect().center()), lines.join(u'\n'), beside);
}

}  // namespace mortane
