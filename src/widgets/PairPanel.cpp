#include "widgets/PairPanel.h"

#include <QFontMetrics>
#include <QLayout>
#include <algorithm>
#include <memory>
#include <vector>

#include "widgets/Theme.h"

namespace mortane {

class PairPanel::Parts : public QLayout {
 public:
  explicit Parts(QWidget& panel) : QLayout(&panel), panel_(panel) {
    setContentsMargins({});
    setSpacing(grid::kBetweenColumns);
  }

  void SetShares(int left, int right, Upper upper) {
    leftShare_ = left;
    rightShare_ = right;
    upper_ = upper;
  }
  void KeepShape() { keepsShape_ = true; }
  void SetCharacters(int right, int left) {
    rightCharacters_ = right;
    leftCharacters_ = left;
    invalidate();
  }
  void SetWidth(int width) {
    width_ = width;
    invalidate();
  }
  [[nodiscard]] bool isBeside() const { return beside_; }

  void addItem(QLayoutItem* item) override { items_.emplace_back(item); }
  [[nodiscard]] int count() const override { return static_cast<int>(items_.size()); }
  [[nodiscard]] QLayoutItem* itemAt(int index) const override {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
  }
  QLayoutItem* takeAt(int index) override {
    if (itemAt(index) == nullptr) return nullptr;
    QLayoutItem* item = items_[static_cast<std::size_t>(index)].release();
    items_.erase(items_.begin() + index);
    return item;
  }

  [[nodiscard]] QSize sizeHint() const override {
    if (const QLayoutItem* single = Single()) return single->sizeHint();
    if (count() < kParts) return {};
    const QSize left = items_[0]->sizeHint();
    const QSize right = items_[1]->sizeHint();
    return {left.width() + spacing() + right.width(), HeightOf(left.height(), right.height())};
  }
  [[nodiscard]] QSize minimumSize() const override {
    if (const QLayoutItem* single = Single()) return single->minimumSize();
    if (count() < kParts) return {};
    const QSize left = items_[0]->minimumSize();
    const QSize right = items_[1]->minimumSize();
    return {std::max(left.width(), right.width()), HeightOf(left.height(), right.height())};
  }

  void setGeometry(const QRect& area) override {
    QLayout::setGeometry(area);
    if (QLayoutItem* single = Single()) {
      single->setGeometry(area);
      return;
    }
    if (count() < kParts) return;
    const bool beside = area.width() >= LeftBeside() + spacing() + RightBeside();
    if (beside != beside_) {
      beside_ = beside;
      panel_.updateGeometry();
    }
    if (beside_) {
      PlaceBeside(area);
    } else {
      PlaceBelow(area);
    }
  }

 private:
  static constexpr int kParts = 2;

  // The one that is shown where the other is not; the first one where none is.
  [[nodiscard]] QLayoutItem* Single() const {
    if (count() < kParts) return nullptr;
    if (items_[1]->isEmpty()) return items_[0].get();
    return items_[0]->isEmpty() ? items_[1].get() : nullptr;
  }
  [[nodiscard]] int HeightOf(int left, int right) const {
    return beside_ ? std::max(left, right) : left + spacing() + right;
  }
  [[nodiscard]] int RightBeside() const {
    return std::max({items_[1]->minimumSize().width(), width_,
                     panel_.fontMetrics().averageCharWidth() * rightCharacters_});
  }
  [[nodiscard]] int LeftBeside() const {
    return std::max(items_[0]->minimumSize().width(),
                    panel_.fontMetrics().averageCharWidth() * leftCharacters_);
  }

  void PlaceBeside(const QRect& area) {
    const int both = area.width() - spacing();
    const int least = LeftBeside();
    int share = both - items_[1]->sizeHint().width();
    if (keepsShape_) {
      share = std::min(area.height(), items_[0]->maximumSize().width());
    } else if (leftShare_ == 0) {
      share = least;
    } else if (rightShare_ > 0) {
      share = both * leftShare_ / (leftShare_ + rightShare_);
    }
    const int width = std::clamp(share, least, std::max(least, both - RightBeside()));
    items_[0]->setGeometry({area.topLeft(), QSize(width, area.height())});
    items_[1]->setGeometry(
        {area.left() + width + spacing(), area.top(), both - width, area.height()});
  }

  // The upper part takes what it asks for, the lower one what it can grow to, the upper one the
  // rest.
  void PlaceBelow(const QRect& area) {
    const std::size_t upper = upper_ == Upper::Left ? 0 : 1;
    QLayoutItem& above = *items_[upper];
    QLayoutItem& below = *items_[1 - upper];
    const int both = area.height() - spacing();
    int most = below.maximumSize().height();
    if (&below == items_[0].get() && keepsShape_) most = std::min(most, area.width());
    const int wanted =
        std::max(above.minimumSize().height(),
                 std::min(above.sizeHint().height(), both - below.minimumSize().height()));
    const int lower = std::min(both - wanted, most);
    PlaceInRow(above, {area.left(), area.top(), area.width(), both - lower});
    PlaceInRow(below, {area.left(), area.bottom() + 1 - lower, area.width(), lower});
  }

  // A part that keeps its shape stands in the middle.
  void PlaceInRow(QLayoutItem& part, QRect row) const {
    if (&part == items_[0].get() && keepsShape_) {
      const int width = std::min(std::max(row.height(), part.minimumSize().width()), row.width());
      row.setRect(row.left() + (row.width() - width) / 2, row.top(), width, row.height());
    }
    part.setGeometry(row);
  }

  QWidget& panel_;
  std::vector<std::unique_ptr<QLayoutItem>> items_;
  int leftShare_ = 0;
  int rightShare_ = 0;
  Upper upper_ = Upper::Right;
  bool keepsShape_ = false;
  int rightCharacters_ = 0;
  int leftCharacters_ = 0;
  int width_ = 0;
  bool beside_ = true;
};

PairPanel::PairPanel(QWidget* parent) : QWidget(parent), parts_(new Parts(*this)) {}

void PairPanel::SetParts(QWidget* left, int leftShare, QWidget* right, int rightShare,
                         Upper upper) {
  parts_->SetShares(leftShare, rightShare, upper);
  parts_->addWidget(left);
  parts_->addWidget(right);
}

void PairPanel::KeepShapeOfLeft() {
  parts_->KeepShape();
}

void PairPanel::SetCharactersBeside(int right, int left) {
  parts_->SetCharacters(right, left);
}

void PairPanel::SetWidthBeside(int width) {
  parts_->SetWidth(width);
}

bool PairPanel::isSideBySide() const {
  return parts_->isBeside();
}

}  // namespace mortane
