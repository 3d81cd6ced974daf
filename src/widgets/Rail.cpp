#include "widgets/Rail.h"

#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "widgets/Named.h"
#include "widgets/PageButton.h"
#include "widgets/Theme.h"

namespace mortane {

Rail::Rail(QWidget* parent) : QWidget(parent) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, grid::kBetweenControls, 0, 0);
  column->setSpacing(2);
  column->addStretch();
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

int Rail::AddPage(IconName icon, const QString& text) {
  const int index = count();
  auto* button = Named(new PageButton(icon, text, this), "ImageButton", index);
  button->installEventFilter(this);
  buttons_.append(button);
  static_cast<QVBoxLayout*>(layout())->insertWidget(index, button);
  connect(button, &PageButton::chosen, this, [this, index] { select(index); });
  UpdateTabStop();
  return index;
}

void Rail::select(int index) {
  if (index == selected_) return;
  if (selected_ >= 0) buttons_[selected_]->SetSelected(false);
  selected_ = index;
  buttons_[index]->SetSelected(true);
  UpdateTabStop();
  emit selectionChanged(index);
}

void Rail::SetPageEnabled(int index, bool enabled) {
  buttons_[index]->setEnabled(enabled);
  UpdateTabStop();
}

bool Rail::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
      MoveFocus(key == Qt::Key_Up ? -1 : 1);
      return true;
    }
  }
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) UpdateTabStop();
  return QWidget::eventFilter(watched, event);
}

void Rail::MoveFocus(int step) {
  int index = 0;
  while (index < count() && !buttons_[index]->hasFocus()) ++index;
  for (index += step; index >= 0 && index < count(); index += step) {
    if (!buttons_[index]->isEnabled()) continue;
    buttons_[index]->setFocus(step < 0 ? Qt::BacktabFocusReason : Qt::TabFocusReason);
    return;
  }
}

// Tab comes to the button of the page on show, or to the first that can be used, and leaves the
// rail from whichever button has the focus.
void Rail::UpdateTabStop() {
  int stop = selected_;
  for (int i = 0; i < count(); ++i)
    if (buttons_[i]->hasFocus()) stop = i;
  if (stop < 0 || !buttons_[stop]->isEnabled()) {
    stop = 0;
    while (stop < count() && !buttons_[stop]->isEnabled()) ++stop;
  }
  for (int i = 0; i < count(); ++i)
    buttons_[i]->setFocusPolicy(i == stop ? Qt::TabFocus : Qt::NoFocus);
}

void Rail::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), ToneColor(Tone::Rail));
}

}  // namespace mortane
