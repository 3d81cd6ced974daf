#include "widgets/CommandKey.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "widgets/Paint.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kIconSize = 22;
constexpr double kLip = 1.5;
constexpr int kSidePadding = 22;
constexpr int kIconGap = 10;

bool IsPlainLeft(const QMouseEvent& event) {
  return event.button() == Qt::LeftButton && event.modifiers() == Qt::NoModifier;
}

}  // namespace

struct CommandKey::Look {
  QColor fill;
  QColor line;
  QColor text;
  QColor icon;
  QColor accent;
  bool lip;
};

CommandKey::CommandKey(IconName icon, const QString& text, QWidget* parent)
    : QAbstractButton(parent), icon_(icon) {
  setText(text);
  setFont(FrameCaptionFont());
  setAccessibleName(text);
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(this, &QAbstractButton::clicked, this, [this] {
    if (releasedPlainly_) Q_EMIT commanded();
  });
}

void CommandKey::setMain(bool main) {
  main_ = main;
  update();
}

bool CommandKey::isPressedLook() const {
  return shownPressed_ || (isDown() && !heldByMouse_);
}

QSize CommandKey::sizeHint() const {
  const int content = kIconSize + kIconGap + fontMetrics().horizontalAdvance(text());
  return {qMax(grid::kKeyWidth, content + 2 * kSidePadding), GridHeight(grid::kKeyHeight, *this)};
}

void CommandKey::mousePressEvent(QMouseEvent* event) {
  heldByMouse_ = true;
  shownPressed_ = IsPlainLeft(*event);
  QAbstractButton::mousePressEvent(event);
  update();
}

void CommandKey::mouseReleaseEvent(QMouseEvent* event) {
  shownPressed_ = false;
  releasedPlainly_ = IsPlainLeft(*event);
  update();
  QAbstractButton::mouseReleaseEvent(event);
  heldByMouse_ = false;
  releasedPlainly_ = true;
}

void CommandKey::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (!event->isAutoRepeat()) click();
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

CommandKey::Look CommandKey::CurrentLook() const {
  const QPalette& p = palette();
  const QColor amber = ToneColor(Tone::Amber);
  const QColor bright = p.color(QPalette::BrightText);
  const bool dark = CurrentScheme() == Scheme::Dark;
  const QColor resting = p.color(dark ? QPalette::Button : QPalette::Base);
  if (!isEnabled()) {
    const QColor dim = p.color(QPalette::ButtonText);
    return {p.color(QPalette::Base), p.color(QPalette::Mid), dim, dim, dim, false};
  }
  if (isPressedLook()) {
    const QColor rail = ToneColor(Tone::Rail);
    return {rail, rail, bright, bright, amber, false};
  }
  if (main_) {
    QColor fill = p.color(QPalette::Highlight);
    if (underMouse()) fill = fill.lighter(112);
    return {fill, fill, bright, bright, amber, true};
  }
  const QColor text = p.color(QPalette::ButtonText);
  return {resting,
          p.color(underMouse() ? QPalette::Dark : QPalette::Mid),
          text,
          text,
          ToneColor(Tone::IconAccent),
          true};
}

void CommandKey::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const Look look = CurrentLook();
  const bool sunk = isPressedLook() && isEnabled();
  QRectF box = QRectF(rect()).adjusted(0, 0, 0, -kLip);
  if (sunk) box.translate(0, kLip);
  if (look.lip) {
    const QColor lip = main_ ? look.fill.darker(140) : palette().color(QPalette::Mid);
    DrawBox(painter, box.translated(0, kLip), lip, {{}, 0, grid::kKeyCorner});
  }
  DrawBox(painter, box, look.fill, {look.line, 1, grid::kKeyCorner});
  if (hasFocus() && isEnabled()) {
    const bool onDark = main_ || sunk;
    const QColor line = palette().color(onDark ? QPalette::BrightText : QPalette::Highlight);
    DrawBox(painter, onDark ? box.adjusted(2, 2, -2, -2) : box, {},
            {line, 2, onDark ? grid::kKeyCorner - 2 : grid::kKeyCorner});
  }
  const int textWidth = fontMetrics().horizontalAdvance(text());
  const double left = box.left() + (box.width() - kIconSize - kIconGap - textWidth) / 2;
  DrawIcon(painter, icon_,
           QRectF(qRound(left), qRound(box.center().y() - kIconSize / 2.0), kIconSize, kIconSize),
           {look.icon, look.accent});
  painter.setPen(look.text);
  painter.drawText(QRectF(left + kIconSize + kIconGap, box.top(), textWidth + 2, box.height()),
                   Qt::AlignLeft | Qt::AlignVCenter, text());
}

}  // namespace mortane
