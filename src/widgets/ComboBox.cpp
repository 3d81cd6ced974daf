#include "widgets/ComboBox.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "widgets/ClickFocus.h"
#include "widgets/ElidedTip.h"
#include "widgets/NotSentMark.h"
#include "widgets/Paint.h"
#include "widgets/RowDelegate.h"

namespace mortane {

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent) {
  setFocusPolicy(Qt::TabFocus);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  setMaxVisibleItems(16);
  connect(this, &QComboBox::activated, this, [this](int row) {
    Q_EMIT chosen(row);
    Q_EMIT selectionChanged(row);
  });
}

// The toolkit makes the open list, a window with a view of its own, for the delegate.
void ComboBox::showPopup() {
  if (qobject_cast<RowDelegate*>(itemDelegate()) == nullptr) setItemDelegate(new RowDelegate(this));
  QComboBox::showPopup();
}

int ComboBox::addRow(const QString& text, const QVariant& data) {
  const QSignalBlocker quiet(this);
  const int before = currentIndex();
  addItem(text, data);
  setCurrentIndex(before);
  return count() - 1;
}

void ComboBox::clearRows() {
  const QSignalBlocker quiet(this);
  clear();
}

void ComboBox::setIndex(int row) {
  const int before = currentIndex();
  setCurrentIndex(row >= 0 && row < count() ? row : -1);
  if (currentIndex() >= 0 && currentIndex() != before) Q_EMIT selectionChanged(currentIndex());
}

QRect ComboBox::TextArea() const {
  QStyleOptionComboBox option;
  initStyleOption(&option);
  return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
}

void ComboBox::paintEvent(QPaintEvent* event) {
  QComboBox::paintEvent(event);
  if (NoteOfNotSent(*this).isEmpty()) return;
  QPainter painter(this);
  DrawPendingDot(painter, {TextArea().right() - kPendingRoom / 2.0, height() / 2.0},
                 palette().color(QPalette::Link), palette().color(QPalette::Base));
}

// An elided entry shows its whole text.
bool ComboBox::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QComboBox::event(event);
  const QRect shown = TextArea();
  ShowWholeText(*static_cast<QHelpEvent*>(event), *this, currentText(),
                FitsIn(shown.width(), currentText(), fontMetrics()));
  return true;
}

void ComboBox::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && TakeFocus(*this)) QComboBox::mousePressEvent(event);
}

// Turning the wheel over a combo scrolls the page. The open list has a wheel of its own.
void ComboBox::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

void ComboBox::keyPressEvent(QKeyEvent* event) {
  // Enter opens the list, so that the keyboard can choose the entry on show again.
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    showPopup();
    return;
  }
  QComboBox::keyPressEvent(event);
}

}  // namespace mortane
