#include "widgets/CheckToggle.h"

#include <QPainter>

#include "widgets/ClickFocus.h"
#include "widgets/Paint.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kTrackWidth = 36;
constexpr int kTrackHeight = 18;
constexpr int kGap = 9;
constexpr double kKnobInset = 3;

QString On() {
  return QStringLiteral("ON");
}
QString Off() {
  return QStringLiteral("OFF");
}

}  // namespace

CheckToggle::CheckToggle(QWidget* parent) : QAbstractButton(parent) {
  setCheckable(true);
  TakeFocusByClicks(*this);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  UpdateCaption();
}

QSize CheckToggle::sizeHint() const {
  const int caption = qMax(QFontMetrics(BoldFont()).horizontalAdvance(On()),
                           fontMetrics().horizontalAdvance(Off()));
  return {2 * kPadding + kTrackWidth + kGap + caption + kPadding,
          GridHeight(grid::kRowHeight, *this)};
}

void CheckToggle::checkStateSet() {
  QAbstractButton::checkStateSet();
  UpdateCaption();
}

void CheckToggle::nextCheckState() {
  // The caption must have changed before the change is told.
  setText(isChecked() ? Off() : On());
  QAbstractButton::nextCheckState();
}

void CheckToggle::UpdateCaption() {
  setText(isChecked() ? On() : Off());
}

void CheckToggle::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool on = isChecked();
  // A window that is busy is disabled as a whole, and its switches stay as they are.
  const bool fitted = isEnabledTo(window());
  const QRectF track(kPadding, (height() - kTrackHeight) / 2.0, kTrackWidth, kTrackHeight);
  QPalette colors = palette();
  if (fitted) colors.setCurrentColorGroup(QPalette::Active);
  QColor line = colors.color(QPalette::Dark);
  QColor knob = line;
  QColor fill = colors.color(QPalette::Base);
  if (fitted && on) {
    fill = line = colors.color(QPalette::Highlight);
    knob = colors.color(QPalette::BrightText);
  }
  if (fitted && !on && underMouse()) line = knob = colors.color(QPalette::Shadow);
  if (!fitted) {
    fill = QColor();
    knob = colors.color(QPalette::Mid);
  }
  DrawBox(painter, track, fill, {line, 1.2, kTrackHeight / 2.0, !fitted});
  const double side = kTrackHeight - 2 * kKnobInset - (on && fitted ? 0 : 1);
  const double x = on ? track.right() - kKnobInset - side : track.left() + kKnobInset;
  painter.setPen(Qt::NoPen);
  painter.setBrush(knob);
  painter.drawEllipse(QRectF(x, track.center().y() - side / 2, side, side));
  painter.setPen(colors.color(QPalette::WindowText));
  painter.setFont(on && fitted ? BoldFont() : font());
  painter.drawText(QRectF(track.right() + kGap, 0, width() - track.right() - kGap, height()),
                   Qt::AlignLeft | Qt::AlignVCenter, text());
  if (hasFocus())
    DrawBox(painter, rect(), {}, {colors.color(QPalette::Highlight), 2, grid::kFieldCorner});
}

}  // namespace mortane
