#include "widgets/TabStrip.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "widgets/ClickFocus.h"
#include "widgets/NotSent.h"
#include "widgets/Paint.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kLeastTabWidth = 56;
constexpr int kSidePadding = 6;
constexpr int kUnderline = 3;

}  // namespace

TabStrip::TabStrip(QWidget* parent) : QTabBar(parent) {
  setFocusPolicy(Qt::TabFocus);
  setDrawBase(false);
  setExpanding(false);
  setUsesScrollButtons(false);
  setAttribute(Qt::WA_Hover);
}

void TabStrip::SetTabs(const QStringList& captions) {
  const QSignalBlocker quiet(this);
  while (count() > 0) removeTab(count() - 1);
  for (const QString& caption : captions) addTab(caption);
  setCurrentIndex(0);
}

void TabStrip::SetNumberedTabs(int count) {
  QStringList captions;
  for (int i = 1; i <= count; ++i) captions.append(QString::number(i));
  SetTabs(captions);
}

int TabStrip::AppendTab(const QString& caption) {
  const QSignalBlocker quiet(this);
  return addTab(caption);
}

void TabStrip::setIndex(int index) {
  const QSignalBlocker quiet(this);
  setCurrentIndex(index);
}

void TabStrip::Choose(int index) {
  setIndex(index);
  Q_EMIT chosen(index);
}

void TabStrip::SetTabPending(int index, bool pending) {
  if (isTabPending(index) == pending) return;
  setTabData(index, pending);
  setTabToolTip(index, pending ? SomethingNotSent() : QString());
  update();
}

void TabStrip::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const int index = tabAt(event->position().toPoint());
  if (index >= 0 && isTabEnabled(index) && TakeFocus(*this)) Choose(index);
}

void TabStrip::keyPressEvent(QKeyEvent* event) {
  const int before = currentIndex();
  {
    const QSignalBlocker quiet(this);
    if (event->key() == Qt::Key_Home || event->key() == Qt::Key_End) {
      GoToEnd(event->key() == Qt::Key_End);
    } else {
      QTabBar::keyPressEvent(event);
    }
  }
  if (currentIndex() != before) Q_EMIT chosen(currentIndex());
}

void TabStrip::GoToEnd(bool last) {
  int index = last ? count() - 1 : 0;
  while (index >= 0 && index < count() && !isTabEnabled(index)) index += last ? -1 : 1;
  setCurrentIndex(index);
}

// Turning the wheel over a strip is scrolling the page, not choosing.
void TabStrip::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

QSize TabStrip::tabSizeHint(int index) const {
  const QFontMetrics bold(BoldFont());
  return {qMax(kLeastTabWidth, bold.horizontalAdvance(tabText(index)) + 2 * kSidePadding),
          GridHeight(grid::kTabHeight, *this)};
}

QSize TabStrip::minimumTabSizeHint(int index) const {
  return tabSizeHint(index);
}

void TabStrip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  for (int i = 0; i < count(); ++i) {
    const QRect area = tabRect(i);
    const bool chosen = i == currentIndex();
    const bool usable = isEnabled() && isTabEnabled(i);
    painter.setFont(chosen ? BoldFont() : font());
    painter.setPen(
        palette().color(usable ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(area.adjusted(0, 0, 0, -kUnderline), Qt::AlignCenter, tabText(i));
    if (isTabPending(i)) {
      const double textEnd =
          area.center().x() + painter.fontMetrics().horizontalAdvance(tabText(i)) / 2.0;
      DrawPendingDot(painter,
                     {textEnd + kPendingRoom / 2.0 + 2, (area.height() - kUnderline) / 2.0},
                     palette().color(QPalette::Link), palette().color(QPalette::Base));
    }
    if (chosen)
      painter.fillRect(QRect(area.left(), area.bottom() - kUnderline + 1, area.width(), kUnderline),
                       palette().color(QPalette::Highlight));
    if (chosen && hasFocus())
      DrawBox(painter, QRectF(area).adjusted(1, 1, -1, -kUnderline - 2), {},
              {palette().color(QPalette::Highlight), 2, grid::kFieldCorner});
  }
}

}  // namespace mortane
