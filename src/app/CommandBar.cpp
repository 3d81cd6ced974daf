#include "app/CommandBar.h"

#include <QHBoxLayout>
#include <QPainter>

#include "widgets/Theme.h"

namespace mortane {

CommandBar::CommandBar(QWidget* parent) : QWidget(parent), row_(new QHBoxLayout(this)) {
  row_->setContentsMargins(grid::kPageMargin, grid::kBetweenControls, grid::kPageMargin,
                           grid::kBetweenControls);
  row_->setSpacing(grid::kBetweenControls);
}

void CommandBar::paintEvent(QPaintEvent*) {
  QPainter(this).fillRect(0, 0, width(), 1, palette().color(QPalette::Active, QPalette::Mid));
}

}  // namespace mortane
