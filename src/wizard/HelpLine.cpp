#include "wizard/HelpLine.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

#include "widgets/Icons.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kIconSide = 18;
constexpr int kTextLeft = 50;
constexpr int kAbove = 6;
constexpr int kLeastLines = 2;

}  // namespace

HelpLine::HelpLine(QWidget* parent) : QWidget(parent) {
  LabelHelp = new QLabel(this);
  LabelHelp->setTextFormat(Qt::PlainText);
  LabelHelp->setWordWrap(true);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kTextLeft, kAbove, grid::kPageMargin, kAbove);
  row->addWidget(LabelHelp);
}

void HelpLine::SetTexts(const QStringList& texts) {
  texts_ = texts;
  MeasureTexts();
  FitHeight();
}

void HelpLine::MeasureTexts() {
  const QFontMetrics metrics = LabelHelp->fontMetrics();
  widths_.clear();
  for (const QString& text : texts_) widths_.append(metrics.horizontalAdvance(text));
}

void HelpLine::Show(const QString& text) {
  if (text == LabelHelp->text()) return;
  LabelHelp->setText(text);
  QAccessibleEvent changed(LabelHelp, QAccessible::Alert);
  Announce(changed);
}

void HelpLine::Announce(QAccessibleEvent& changed) {
  QAccessible::updateAccessibility(&changed);
}

void HelpLine::FitHeight() {
  const QFontMetrics metrics = LabelHelp->fontMetrics();
  const QRect room(0, 0, width() - kTextLeft - grid::kPageMargin, QWIDGETSIZE_MAX);
  int text = kLeastLines * metrics.lineSpacing();
  // No text is broken before a layout has told the width.
  const qsizetype count = testAttribute(Qt::WA_Resized) ? texts_.size() : 0;
  for (qsizetype i = 0; i < count; ++i) {
    if (widths_[i] <= room.width()) continue;  // one line
    const QRect needed = metrics.boundingRect(room, Qt::TextWordWrap, texts_[i]);
    text = qMax(text, needed.height());
  }
  setFixedHeight(text + 2 * kAbove);
}

void HelpLine::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FitHeight();
}

void HelpLine::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  MeasureTexts();
  FitHeight();
}

void HelpLine::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), ToneColor(Tone::HelpLine));
  painter.fillRect(0, height() - 1, width(), 1, palette().color(QPalette::Active, QPalette::Mid));
  const int iconTop = (height() - kIconSide) / 2;
  DrawIcon(painter, IconName::Info, QRectF(grid::kPageMargin, iconTop, kIconSide, kIconSide),
           {ToneColor(Tone::IconAccent), ToneColor(Tone::IconAccent)});
}

}  // namespace mortane
