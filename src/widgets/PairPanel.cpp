#include "widgets/PairPanel.h"

#include <QBoxLayout>
#include <QFontMetrics>

#include "widgets/Theme.h"

namespace mortane {

PairPanel::PairPanel(QWidget* parent)
    : QWidget(parent), parts_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
  parts_->setContentsMargins({});
  parts_->setSpacing(grid::kBetweenColumns);
  // Its own least size counts, not the layout's of the moment.
  parts_->setSizeConstraint(QLayout::SetNoConstraint);
}

void PairPanel::SetParts(QWidget* first, int firstShare, QWidget* second, int secondShare) {
  parts_->addWidget(first, firstShare);
  parts_->addWidget(second, secondShare);
}

bool PairPanel::isSideBySide() const {
  return parts_->direction() == QBoxLayout::LeftToRight;
}

int PairPanel::WidthBeside() const {
  const int second = qMax(parts_->itemAt(1)->minimumSize().width(),
                          fontMetrics().averageCharWidth() * charactersBeside_);
  return parts_->itemAt(0)->minimumSize().width() + parts_->spacing() + second;
}

QSize PairPanel::minimumSizeHint() const {
  const QSize first = parts_->itemAt(0)->minimumSize();
  const QSize second = parts_->itemAt(1)->minimumSize();
  const int height = isSideBySide() ? qMax(first.height(), second.height())
                                    : first.height() + parts_->spacing() + second.height();
  return {qMax(first.width(), second.width()), height};
}

void PairPanel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const auto direction =
      width() >= WidthBeside() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
  if (direction == parts_->direction()) return;
  parts_->setDirection(direction);
  // A part that keeps its width stands in the middle above the other.
  QWidget* first = parts_->itemAt(0)->widget();
  const bool fixed = first->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
  parts_->setAlignment(first, fixed && !isSideBySide() ? Qt::AlignHCenter : Qt::Alignment());
  updateGeometry();
}

}  // namespace mortane
