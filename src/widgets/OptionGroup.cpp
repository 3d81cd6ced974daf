#include "widgets/OptionGroup.h"

#include <QKeyEvent>
#include <QRadioButton>
#include <algorithm>

#include "widgets/ClickFocus.h"
#include "widgets/Control.h"
#include "widgets/SkippedTip.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

bool IsUsable(const QAbstractButton* button) {
  const bool hidden = button->isHidden() && button->testAttribute(Qt::WA_WState_ExplicitShowHide);
  return button->isEnabled() && !hidden;
}

}  // namespace

OptionGroup::OptionGroup(QObject* parent, Arrows arrows) : QObject(parent), arrows_(arrows) {
  connect(&group_, &QButtonGroup::idToggled, this, [this] { UpdateTabStop(); });
  connect(&group_, &QButtonGroup::idClicked, this, &OptionGroup::selectionChanged);
}

QRadioButton* OptionGroup::addOption(const QString& text, QWidget* parent) {
  auto* option = new QRadioButton(text, parent);
  add(option, count());
  return option;
}

void OptionGroup::add(QAbstractButton* button, int index) {
  if (button->objectName().isEmpty() && !objectName().isEmpty()) {
    button->setObjectName(ElementName(objectName(), index));
  }
  buttons_.append(button);
  group_.addButton(button, index);
  button->installEventFilter(this);
  TakeFocusByClicks(*button);
  UpdateTabStop();
}

void OptionGroup::select(int index) {
  QAbstractButton* wanted = group_.button(index);
  if (wanted == nullptr || wanted->isChecked()) return;
  wanted->setChecked(true);
  Q_EMIT selectionChanged(index);
}

void OptionGroup::clear() {
  // An exclusive group ignores the unchecking of its checked button.
  group_.setExclusive(false);
  for (QAbstractButton* button : buttons_) button->setChecked(false);
  group_.setExclusive(true);
}

bool OptionGroup::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      if (const int key = static_cast<const QKeyEvent&>(*event).key();
          ChooseEnd(key) || ChooseBeside(key))
        return true;
      break;
    case QEvent::EnabledChange:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
      UpdateTabStop();
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

// Home and End; at the end itself they change nothing.
bool OptionGroup::ChooseEnd(int key) {
  if (key != Qt::Key_Home && key != Qt::Key_End) return false;
  QAbstractButton* end = nullptr;
  for (QAbstractButton* button : buttons_) {
    if (end != nullptr && key == Qt::Key_Home) break;
    if (IsUsable(button)) end = button;
  }
  if (end == nullptr || end->hasFocus()) return true;
  end->setFocus();
  end->click();
  return true;
}

// Upwards and downwards, options in several rows are left to the toolkit, which goes by their
// places.
bool OptionGroup::StandInALine() const {
  constexpr int kAside = 8;  // pixels
  bool column = true;
  bool row = true;
  const QAbstractButton* first = nullptr;
  for (const QAbstractButton* button : buttons_) {
    if (!button->isVisible()) continue;
    if (first == nullptr) first = button;
    const QPoint away = button->mapTo(button->window(), QPoint(0, button->height() / 2)) -
                        first->mapTo(first->window(), QPoint(0, first->height() / 2));
    column = column && qAbs(away.x()) <= kAside;
    row = row && qAbs(away.y()) <= kAside;
  }
  return column || row;
}

// Each stands to the right of the one before it or, in a line below, where that was the last.
bool OptionGroup::ReadInLines() const {
  const QAbstractButton* before = nullptr;
  for (const QAbstractButton* button : buttons_) {
    if (!button->isVisible()) continue;
    if (before != nullptr) {
      const QPoint step =
          button->mapTo(button->window(), QPoint()) - before->mapTo(before->window(), QPoint());
      if (step.x() <= 0 && step.y() < before->height()) return false;
    }
    before = button;
  }
  return true;
}

// At the ends of the line an arrow changes nothing.
bool OptionGroup::ChooseBeside(int key) {
  const bool on = key == Qt::Key_Right || key == Qt::Key_Down;
  if (!on && key != Qt::Key_Left && key != Qt::Key_Up) return false;
  if (arrows_ == Arrows::ByButton) return false;
  const bool sideways = key == Qt::Key_Left || key == Qt::Key_Right;
  if (!StandInALine() && !(sideways && ReadInLines())) return false;
  const auto focused = std::find_if(buttons_.begin(), buttons_.end(),
                                    [](const QAbstractButton* b) { return b->hasFocus(); });
  qsizetype index = focused - buttons_.begin();
  const int step = on ? 1 : -1;
  QList<QAbstractButton*> skipped;
  for (index += step; index >= 0 && index < buttons_.size() && !IsUsable(buttons_[index]);
       index += step)
    skipped.append(buttons_[index]);
  if (index >= 0 && index < buttons_.size()) {
    QAbstractButton* const beside = buttons_[index];
    beside->setFocus();
    beside->click();
  }
  ShowWhySkipped(skipped);
  return true;
}

// Tab comes to the selected option, or to the first that can be used.
void OptionGroup::UpdateTabStop() {
  const auto checked = buttons_.indexOf(group_.checkedButton());
  auto stop = checked;
  if (checked < 0 || !IsUsable(buttons_[checked]))
    stop = std::find_if(buttons_.begin(), buttons_.end(), IsUsable) - buttons_.begin();
  for (qsizetype i = 0; i < buttons_.size(); ++i)
    buttons_[i]->setFocusPolicy(i == stop ? Qt::TabFocus : Qt::NoFocus);
}

}  // namespace mortane
