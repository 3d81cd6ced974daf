#include "widgets/Rail.h"

#include <QPainter>
#include <QVBoxLayout>

#include "widgets/PageButton.h"
#include "widgets/RovingTabStop.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;

Rail::Rail(QWidget* parent) : QWidget(parent), stop_(new RovingTabStop(this)) {
  setAccessibleName(u"Pages"_s);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, grid::kBetweenControls, 0, 0);
  column->setSpacing(2);
  column->addStretch();
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

int Rail::AddPage(IconName icon, const QString& text) {
  const int index = count();
  auto* button = new PageButton(icon, text, this);
  buttons_.append(button);
  static_cast<QVBoxLayout*>(layout())->insertWidget(index, button);
  connect(button, &PageButton::chosen, this, [this, index] { select(index); });
  stop_->Add(button);
  return index;
}

void Rail::select(int index) {
  if (index == selected_) return;
  if (selected_ >= 0) buttons_[selected_]->SetSelected(false);
  selected_ = index;
  buttons_[index]->SetSelected(true);
  stop_->SetStop(index);
  Q_EMIT selectionChanged(index);
}

void Rail::SetPageEnabled(int index, bool enabled) {
  buttons_[index]->setEnabled(enabled);
}

void Rail::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), ToneColor(Tone::Rail));
}

}  // namespace mortane
