#include "wizard/StepRail.h"

#include <QAccessible>
#include <QPainter>
#include <QVBoxLayout>

#include "accessible/AccessibleControls.h"
#include "widgets/RovingTabStop.h"
#include "widgets/Theme.h"
#include "wizard/StepButton.h"

namespace mortane {

using namespace Qt::StringLiterals;

namespace {

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  if (auto* button = qobject_cast<StepButton*>(object)) return new AccessibleOption(button);
  if (auto* rail = qobject_cast<StepRail*>(object)) return new AccessibleGroup(rail);
  return nullptr;
}

}  // namespace

StepRail::StepRail(QWidget* parent) : QWidget(parent), stop_(new RovingTabStop(this)) {
  QAccessible::installFactory(&MakeInterface);  // once, however often it is called
  setAccessibleName(u"Steps"_s);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, grid::kBetweenControls, 0, 0);
  column->setSpacing(0);
  column->addStretch();
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

int StepRail::AddStep(IconName icon, const QString& text) {
  const int index = count();
  auto* button = new StepButton(index + 1, icon, text, this);
  if (index > 0) buttons_[index - 1]->SetLast(false);
  buttons_.append(button);
  enabled_.append(false);
  visited_.append(false);
  static_cast<QVBoxLayout*>(layout())->insertWidget(index, button);
  stop_->Add(button);
  connect(button, &StepButton::chosen, this, [this, index] { Q_EMIT chosen(index); });
  return index;
}

void StepRail::SetStepEnabled(int index, bool enabled, const QString& whyOff) {
  enabled_[index] = enabled;
  buttons_[index]->setToolTip(enabled ? QString() : whyOff);
  ShowStates();
}

void StepRail::SetCurrent(int index) {
  current_ = index;
  if (index >= 0) visited_[index] = true;
  stop_->SetStop(index);
  ShowStates();
}

void StepRail::ShowStates() {
  for (int i = 0; i < count(); ++i) {
    StepState state = StepState::ToCome;
    if (i < current_) state = visited_[i] ? StepState::Passed : StepState::NotVisited;
    if (i == current_) state = StepState::Current;
    if (!enabled_[i]) state = StepState::Off;
    buttons_[i]->SetState(state);
  }
}

void StepRail::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), ToneColor(Tone::Rail));
}

}  // namespace mortane
