#include "widgets/CheckToggle.h"

#include <QPainter>
#include <QSignalBlocker>

#include "widgets/ClickFocus.h"
#include "widgets/NotSentMark.h"
#include "widgets/Paint.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kTrackWidth = 36;
constexpr int kTrackHeight = 18;
constexpr int kGap = 9;
constexpr double kKnobInset = 3;

QString On() {
  return u"ON"_s;
}
QString Off() {
  return u"OFF"_s;
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

// Whoever is told of the change finds the value unknown.
void CheckToggle::SetUnknown() {
  const bool changed = isChecked();
  {
    const QSignalBlocker silence(this);
    setChecked(false);
  }
  unknown_ = true;
  update();
  if (changed) Q_EMIT toggled(false);
}

void CheckToggle::checkStateSet() {
  QAbstractButton::checkStateSet();
  unknown_ = false;
  UpdateCaption();
}

void CheckToggle::nextCheckState() {
  unknown_ = false;
  // The caption must have changed before the change is told.
  setText(isChecked() ? Off() : On());
  QAbstractButton::nextCheckState();
}

void CheckToggle::UpdateCaption() {
  setText(isChecked() ? On() : Off());
}

void CheckToggle::DrawTrack(QPainter& painter, const QRectF& track) const {
  const bool on = isChecked();
  // A window that is busy is disabled as a whole, and its switches stay as they are.
  const bool fitted = isEnabledTo(window());
  const QPalette colors = ShownColors();
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
  double x = on ? track.right() - kKnobInset - side : track.left() + kKnobInset;
  if (unknown_) x = track.center().x() - side / 2;
  painter.setPen(Qt::NoPen);
  painter.setBrush(knob);
  painter.drawEllipse(QRectF(x, track.center().y() - side / 2, side, side));
}

// Those of a switch in a window that is not busy.
QPalette CheckToggle::ShownColors() const {
  QPalette colors = palette();
  if (isEnabledTo(window())) colors.setCurrentColorGroup(QPalette::Active);
  return colors;
}

void CheckToggle::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF track(kPadding, (height() - kTrackHeight) / 2.0, kTrackWidth, kTrackHeight);
  DrawTrack(painter, track);
  const QPalette colors = ShownColors();
  if (!NoteOfNotSent(*this).isEmpty()) {
    DrawPendingDot(painter, track.topRight() + QPointF(-1, 1), colors.color(QPalette::Link),
                   colors.color(QPalette::Base));
  }
  painter.setPen(colors.color(unknown_ ? QPalette::PlaceholderText : QPalette::WindowText));
  painter.setFont(isChecked() && isEnabledTo(window()) ? BoldFont() : font());
  painter.drawText(QRectF(track.right() + kGap, 0, width() - track.right() - kGap, height()),
                   Qt::AlignLeft | Qt::AlignVCenter, text());
  if (hasFocus())
    DrawBox(painter, rect(), {}, {colors.color(QPalette::Highlight), 2, grid::kFieldCorner});
}

}  // namespace mortane
