#include "widgets/Card.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "widgets/Paint.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

QLabel* AddCaption(const QString& caption, QFrame* frame, QVBoxLayout* body) {
  if (caption.isEmpty()) return nullptr;
  auto* label = new QLabel(caption, frame);
  label->setFont(FrameCaptionFont());
  frame->setAccessibleName(caption);
  label->setBuddy(frame);
  body->addWidget(label);
  return label;
}

}  // namespace

Card::Card(const QString& caption, QWidget* parent) : QFrame(parent) {
  body_ = new QVBoxLayout(this);
  const int top = caption.isEmpty() ? grid::kCardPadding : grid::kBetweenGroups;
  body_->setContentsMargins(grid::kCardPadding, top, grid::kCardPadding, grid::kCardPadding);
  body_->setSpacing(grid::kBetweenGroups);
  caption_ = AddCaption(caption, this, body_);
}

QString Card::caption() const {
  return caption_ ? caption_->text() : QString();
}

void Card::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  DrawBox(painter, rect(), palette().color(QPalette::Active, QPalette::Base),
          {palette().color(QPalette::Mid), 1, grid::kCardCorner});
}

InnerFrame::InnerFrame(const QString& caption, QWidget* parent) : QFrame(parent) {
  body_ = new QVBoxLayout(this);
  body_->setContentsMargins(grid::kCardPadding, grid::kBetweenGroups, grid::kCardPadding,
                            grid::kBetweenGroups);
  body_->setSpacing(grid::kBetweenControls);
  caption_ = AddCaption(caption, this, body_);
}

QString InnerFrame::caption() const {
  return caption_ ? caption_->text() : QString();
}

void InnerFrame::SetCaption(const QString& caption) {
  caption_->setText(caption);
  setAccessibleName(caption);
}

void InnerFrame::paintEvent(QPaintEvent*) {
  DrawInnerFrame(*this);
}

void InnerFrame::changeEvent(QEvent* event) {
  if (event->type() == QEvent::EnabledChange) update();
  QFrame::changeEvent(event);
}

void DrawInnerFrame(QWidget& frame) {
  QPainter painter(&frame);
  const QPalette& palette = frame.palette();
  // While the window as a whole is disabled the frame keeps its fill: only what is not fitted
  // loses it.
  const bool fitted = frame.isEnabledTo(frame.window());
  DrawBox(painter, frame.rect(),
          fitted ? palette.color(QPalette::AlternateBase) : QColor(Qt::transparent),
          {palette.color(QPalette::Mid), 1, grid::kInnerCorner, !fitted});
}

QLabel* CaptionLabel(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setFont(CaptionFont());
  label->setForegroundRole(QPalette::PlaceholderText);
  return label;
}

}  // namespace mortane
