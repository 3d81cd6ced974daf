#include "widgets/Rail.h"

#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "widgets/Named.h"
#include "widgets/PageButton.h"
#include "widgets/Theme.h"

namespace mortane {

Rail::Rail(QWidget* parent) : QWidget(parent) {
  setAccessibleName(QStringLiteral("Pages"));
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
  if (event->type() == QEvent::KeyPress && MoveFocus(static_cast<QKeyEvent*>(event)->key()))
    return true;
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) UpdateTabStop();
  return QWidget::eventFilter(watched, event);
}

// To the next button that can be used, in the direction of the key; false for another key.
bool Rail::MoveFocus(int key) {
  int focused = 0;
  while (focused < count() && !buttons_[focused]->hasFocus()) ++focused;
  int index = 0;
  int step = 1;
  switch (key) {
    case Qt::Key_Up:
      index = focused - 1;
      step = -1;
      break;
    case Qt::Key_Down:
      index = focused + 1;
      break;
    case Qt::Key_Home:
      break;
    case Qt::Key_End:
      index = count() - 1;
      step = -1;
      break;
    default:
      return false;
  }
  while (index >= 0 && index < count() && !buttons_[index]->isEnabled()) index += step;
  if (index >= 0 && index < count()) buttons_[index]->setFocus();
  return true;
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
