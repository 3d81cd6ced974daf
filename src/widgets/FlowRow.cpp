#include "widgets/FlowRow.h"

#include <algorithm>

namespace mortane {
namespace {

QSize Wanted(const QLayoutItem& item) {
  return item.sizeHint().expandedTo(item.minimumSize()).boundedTo(item.maximumSize());
}

}  // namespace

FlowRow::FlowRow(int gap, int lineGap) : gap_(gap), lineGap_(lineGap) {}

QSize FlowRow::sizeHint() const {
  int width = -gap_;
  for (const QLayoutItem* item : ShownItems()) width += Wanted(*item).width() + gap_;
  return {std::max(width, 0), HeightIn(width_)};
}

QSize FlowRow::minimumSize() const {
  int widest = 0;
  for (const QLayoutItem* item : ShownItems())
    widest = std::max(widest, item->minimumSize().width());
  return {widest, HeightIn(width_)};
}

void FlowRow::setGeometry(const QRect& area) {
  QLayout::setGeometry(area);
  if (const int before = HeightIn(width_); area.width() != width_) {
    width_ = area.width();
    if (HeightIn(width_) != before) update();
  }
  int top = area.top();
  for (const Items& line : LinesIn(area.width())) {
    int height = 0;
    for (const QLayoutItem* item : line) height = std::max(height, Wanted(*item).height());
    int left = area.left();
    for (QLayoutItem* item : line) {
      const QSize size = Wanted(*item).boundedTo({area.width(), height});
      item->setGeometry({QPoint(left, top + (height - size.height()) / 2), size});
      left += size.width() + gap_;
    }
    top += height + lineGap_;
  }
}

std::vector<FlowRow::Items> FlowRow::LinesIn(int width) const {
  std::vector<Items> lines;
  int used = 0;
  for (QLayoutItem* item : ShownItems()) {
    const int wanted = Wanted(*item).width();
    if (lines.empty() || used + gap_ + wanted > width) {
      lines.emplace_back();
      used = -gap_;
    }
    lines.back().push_back(item);
    used += gap_ + wanted;
  }
  return lines;
}

int FlowRow::HeightIn(int width) const {
  int height = -lineGap_;
  for (const Items& line : LinesIn(width)) {
    int highest = 0;
    for (const QLayoutItem* item : line) highest = std::max(highest, Wanted(*item).height());
    height += highest + lineGap_;
  }
  return std::max(height, 0);
}

}  // namespace mortane
