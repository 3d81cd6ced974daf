#include "widgets/RovingTabStop.h"

#include <QAbstractButton>
#include <QKeyEvent>

#include "widgets/SkippedTip.h"

namespace mortane {

void RovingTabStop::Add(QAbstractButton* button) {
  button->installEventFilter(this);
  buttons_.append(button);
  Update();
}

void RovingTabStop::SetStop(int index) {
  stop_ = index;
  Update();
}

bool RovingTabStop::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      if (MoveFocus(static_cast<const QKeyEvent&>(*event).key())) return true;
      break;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::EnabledChange:
      Update();
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

// To the next button that can be used, in the direction of the key; false for another key.
bool RovingTabStop::MoveFocus(int key) {
  const auto count = buttons_.size();
  qsizetype focused = 0;
  while (focused < count && !buttons_[focused]->hasFocus()) ++focused;
  qsizetype index = 0;
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
      index = count - 1;
      step = -1;
      break;
    default:
      return false;
  }
  QList<QAbstractButton*> skipped;
  for (; index >= 0 && index < count && !buttons_[index]->isEnabled(); index += step)
    skipped.append(buttons_[index]);
  if (index >= 0 && index < count) buttons_[index]->setFocus();
  ShowWhySkipped(skipped);
  return true;
}

// Tab leaves the column from whichever button has the focus.
void RovingTabStop::Update() {
  const auto count = buttons_.size();
  qsizetype stop = stop_;
  for (qsizetype i = 0; i < count; ++i) {
    if (buttons_[i]->hasFocus()) stop = i;
  }
  if (stop < 0 || !buttons_[stop]->isEnabled()) {
    stop = 0;
    while (stop < count && !buttons_[stop]->isEnabled()) ++stop;
  }
  for (qsizetype i = 0; i < count; ++i) {
    buttons_[i]->setFocusPolicy(i == stop ? Qt::TabFocus : Qt::NoFocus);
  }
}

}  // namespace mortane
