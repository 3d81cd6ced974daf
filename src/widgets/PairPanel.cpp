#include "widgets/PairPanel.h"

#include <QAbstractButton>
#include <QFontMetrics>
#include <algorithm>

#include "widgets/ItemLayout.h"
#include "widgets/TabOrder.h"
#include "widgets/Theme.h"

namespace mortane {

namespace {

// Those of the Tab key in the part, in its order; buttons of a group with one stop are all among
// them, since each may become the stop.
QWidgetList StopsOf(QWidget& part) {
  QWidgetList stops;
  QWidget* next = &part;
  do {
    const bool isOfPart = next == &part || part.isAncestorOf(next);
    const bool isButton = qobject_cast<const QAbstractButton*>(next) != nullptr;
    if (isOfPart && next->focusProxy() == nullptr &&
        (isButton || next->focusPolicy() != Qt::NoFocus))
      stops << next;
    next = next->nextInFocusChain();
  } while (next != &part);
  return stops;
}

// The Tab key goes to what is in the second part after all that is in the first.
void OrderTabKey(QWidget& first, QWidget& second) {
  const QWidgetList before = StopsOf(first);
  if (before.isEmpty()) return;
  QWidget* last = before.constLast();
  for (QWidget* stop : StopsOf(second)) {
    MoveBehind(*stop, *last);
    last = stop;
  }
}

}  // namespace

class PairPanel::Parts : public ItemLayout {
 public:
  explicit Parts(QWidget& panel) : ItemLayout(&panel), panel_(panel) {
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

  [[nodiscard]] QSize sizeHint() const override {
    if (const QLayoutItem* single = Single()) return single->sizeHint();
    if (count() < kParts) return {};
    const QSize left = itemAt(0)->sizeHint();
    const QSize right = itemAt(1)->sizeHint();
    return {left.width() + spacing() + right.width(), HeightOf(left.height(), right.height())};
  }
  [[nodiscard]] QSize minimumSize() const override {
    if (const QLayoutItem* single = Single()) return single->minimumSize();
    if (count() < kParts) return {};
    const QSize left = itemAt(0)->minimumSize();
    const QSize right = itemAt(1)->minimumSize();
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
      if (upper_ == Upper::Right) OrderParts();
    }
    if (beside_) {
      PlaceBeside(area);
    } else {
      PlaceBelow(area);
    }
  }

 private:
  static constexpr int kParts = 2;

  // The upper part is the right one.
  void OrderParts() const {
    QWidget& left = *itemAt(0)->widget();
    QWidget& right = *itemAt(1)->widget();
    OrderTabKey(beside_ ? left : right, beside_ ? right : left);
  }

  // The one that is shown where the other is not; the first one where none is.
  [[nodiscard]] QLayoutItem* Single() const {
    if (count() < kParts) return nullptr;
    if (itemAt(1)->isEmpty()) return itemAt(0);
    return itemAt(0)->isEmpty() ? itemAt(1) : nullptr;
  }
  [[nodiscard]] int HeightOf(int left, int right) const {
    return beside_ ? std::max(left, right) : left + spacing() + right;
  }
  [[nodiscard]] int RightBeside() const {
    return std::max({itemAt(1)->minimumSize().width(), width_,
                     panel_.fontMetrics().averageCharWidth() * rightCharacters_});
  }
  [[nodiscard]] int LeftBeside() const {
    return std::max(itemAt(0)->minimumSize().width(),
                    panel_.fontMetrics().averageCharWidth() * leftCharacters_);
  }

  void PlaceBeside(const QRect& area) {
    const int both = area.width() - spacing();
    const int least = LeftBeside();
    int share = both - itemAt(1)->sizeHint().width();
    if (keepsShape_) {
      share = std::min(area.height(), itemAt(0)->maximumSize().width());
    } else if (leftShare_ == 0) {
      share = least;
    } else if (rightShare_ > 0) {
      share = both * leftShare_ / (leftShare_ + rightShare_);
    }
    const int width = std::clamp(share, least, std::max(least, both - RightBeside()));
    itemAt(0)->setGeometry({area.topLeft(), QSize(width, area.height())});
    itemAt(1)->setGeometry(
        {area.left() + width + spacing(), area.top(), both - width, area.height()});
  }

  // The upper part takes what it asks for, the lower one what it can grow to, the upper one the
  // rest.
  void PlaceBelow(const QRect& area) {
    const int upper = upper_ == Upper::Left ? 0 : 1;
    QLayoutItem& above = *itemAt(upper);
    QLayoutItem& below = *itemAt(1 - upper);
    const int both = area.height() - spacing();
    int most = below.maximumSize().height();
    if (&below == itemAt(0) && keepsShape_) most = std::min(most, area.width());
    const int wanted =
        std::max(above.minimumSize().height(),
                 std::min(above.sizeHint().height(), both - below.minimumSize().height()));
    const int lower = std::min(both - wanted, most);
    PlaceInRow(above, {area.left(), area.top(), area.width(), both - lower});
    PlaceInRow(below, {area.left(), area.bottom() + 1 - lower, area.width(), lower});
  }

  // A part that keeps its shape stands in the middle.
  void PlaceInRow(QLayoutItem& part, QRect row) const {
    if (&part == itemAt(0) && keepsShape_) {
      const int width = std::min(std::max(row.height(), part.minimumSize().width()), row.width());
      row.setRect(row.left() + (row.width() - width) / 2, row.top(), width, row.height());
    }
    part.setGeometry(row);
  }

  QWidget& panel_;
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
