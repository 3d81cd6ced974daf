#include "wizard/StepButton.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>

#include "widgets/ElidedTip.h"
#include "widgets/NotSent.h"
#include "widgets/Paint.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kHeight = 54;
constexpr int kWidth = 176;
constexpr int kMarkLeft = 16;
constexpr int kLeastMarkSide = 24;
constexpr int kAroundNumber = 5;  // between the number and its circle
constexpr int kTickSide = 12;
constexpr int kIconSide = 24;

// Of the circle, which holds any number of a step.
int SideOfMark() {
  const int number = QFontMetrics(MarkFont()).horizontalAdvance(u"10"_s);
  return qMax(kLeastMarkSide, number + 2 * kAroundNumber);
}

int IconLeft(int markSide) {
  return kMarkLeft + markSide + grid::kBetweenGroups;
}

int TextLeft(int markSide) {
  return IconLeft(markSide) + kIconSide + grid::kBetweenGroups;
}

// In the order of StepState; for screen readers.
constexpr const char* kStateTexts[] = {"passed", "current", "to come", "not visited",
                                       "switched off"};

}  // namespace

StepButton::StepButton(int number, IconName icon, const QString& text, QWidget* parent)
    : RailButton(icon, text, parent), number_(number), markSide_(SideOfMark()) {
  setCheckable(true);  // told by screen readers; only SetState checks
  SetState(StepState::Off);
}

void StepButton::SetState(StepState state) {
  state_ = state;
  setEnabled(state != StepState::Off);
  setChecked(state == StepState::Current);
  Describe();
  update();
}

void StepButton::SetPending(bool pending) {
  if (pending_ == pending) return;
  pending_ = pending;
  Describe();
  update();
}

void StepButton::Describe() {
  const QString state = QLatin1String(kStateTexts[static_cast<std::size_t>(state_)]);
  QString text = u"Step %1, %2"_s.arg(number_).arg(state);
  if (pending_) text += u", "_s + SomethingNotSent();
  setAccessibleDescription(text);
}

bool StepButton::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !pending_) return RailButton::event(event);
  ShowWholeText(*static_cast<QHelpEvent*>(event), *this, SomethingNotSent(), Fits::No);
  return true;
}

QSize StepButton::sizeHint() const {
  const int text =
      TextLeft(markSide_) + fontMetrics().horizontalAdvance(this->text()) + grid::kBetweenGroups;
  return {qMax(kWidth, text), GridHeight(kHeight, *this)};
}

QSize StepButton::minimumSizeHint() const {
  return {sizeHint().width(), qMax(markSide_, fontMetrics().height()) + 2 * grid::kUnit};
}

void StepButton::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
  if (rect().contains(event->position().toPoint())) ChooseBy(*event);
}

// The line from circle to circle: above the first step and below the last there is none.
void StepButton::DrawJoints(QPainter& painter) const {
  painter.setPen(QPen(ToneColor(Tone::RailDisabled), 1));
  const int middle = height() / 2;
  const int gap = markSide_ / 2 + 2;
  const int center = kMarkLeft + markSide_ / 2;
  if (number_ > 1) painter.drawLine(center, 0, center, middle - gap);
  if (!last_) painter.drawLine(center, middle + gap, center, height());
}

void StepButton::DrawMark(QPainter& painter) const {
  const int side = markSide_;
  const QRectF circle(kMarkLeft, (height() - side) / 2.0, side, side);
  const bool off = state_ == StepState::Off;
  const QColor line = ToneColor(off ? Tone::RailDisabled : Tone::RailText);
  const Outline outline{line, 1.5, side / 2.0, off};
  if (state_ == StepState::Passed) {
    DrawBox(painter, circle, ToneColor(Tone::RailSelected), outline);
    const double inset = (side - kTickSide) / 2.0;
    DrawTick(painter, circle.adjusted(inset, inset, -inset, -inset), line);
    return;
  }
  const bool current = IsCurrent();
  if (current) {
    DrawBox(painter, circle, ToneColor(Tone::Amber), {{}, 0, side / 2.0});
  } else {
    DrawBox(painter, circle, Background(), outline);
  }
  painter.setFont(MarkFont());
  painter.setPen(current ? ToneColor(Tone::OnAmber) : line);
  painter.drawText(circle, Qt::AlignCenter, QString::number(number_));
}

void StepButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  DrawGround(painter);
  DrawJoints(painter);
  DrawMark(painter);
  const QColor foreground = Foreground();
  const int iconLeft = IconLeft(markSide_);
  const int iconTop = (height() - kIconSide) / 2;
  DrawIcon(painter, icon(), QRectF(iconLeft, iconTop, kIconSide, kIconSide),
           {foreground, IsCurrent() ? ToneColor(Tone::Amber) : foreground});
  if (pending_) {
    DrawPendingDot(painter, {iconLeft + kIconSide + 2.0, iconTop + 1.0},
                   ToneColor(Tone::RailPending), Background());
  }
  painter.setFont(font());
  painter.setPen(foreground);
  painter.drawText(rect().adjusted(TextLeft(markSide_), 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                   text());
  DrawFocus(painter);
}

}  // namespace mortane
