#include "widgets/ValueLabel.h"

#include <QHelpEvent>
#include <QPainter>

#include "widgets/AccessibleChange.h"
#include "widgets/ElidedTip.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kLeastCharacters = 4;

}  // namespace

ValueLabel::ValueLabel(QWidget* parent) : QLabel(parent) {
  setFont(FixedFont());
  setTextFormat(Qt::PlainText);
}

void ValueLabel::setText(const QString& text) {
  if (text == this->text()) return;
  QLabel::setText(text);
  QAccessibleValueChangeEvent event(this, text);
  TellChange(event);
}

QSize ValueLabel::sizeHint() const {
  return {fontMetrics().horizontalAdvance(u'0') * characters_, fontMetrics().height()};
}

QSize ValueLabel::minimumSizeHint() const {
  return {fontMetrics().horizontalAdvance(u'0') * qMin(kLeastCharacters, characters_),
          fontMetrics().height()};
}

bool ValueLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QLabel::event(event);
  ShowWholeText(*static_cast<QHelpEvent*>(event), *this, text(),
                FitsIn(width(), text(), fontMetrics()));
  return true;
}

void ValueLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(rect(), static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft),
                   ShownIn(width(), text(), fontMetrics()));
}

}  // namespace mortane
