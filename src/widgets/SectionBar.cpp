#include "widgets/SectionBar.h"

#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>
#include <algorithm>

#include "widgets/Control.h"
#include "widgets/ElidedTip.h"
#include "widgets/ItemLayout.h"
#include "widgets/NotSent.h"
#include "widgets/OptionGroup.h"
#include "widgets/Paint.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kSidePadding = 18;
constexpr int kLeastPadding = 8;
constexpr int kBetweenRows = 4;

// Rounded only where the bar begins or ends.
QPainterPath OptionShape(const QRectF& area, bool first, bool last) {
  const double corner = grid::kInnerCorner;
  QPainterPath shape;
  shape.setFillRule(Qt::WindingFill);
  shape.addRoundedRect(area, corner, corner);
  if (!first) shape.addRect(area.adjusted(0, 0, -area.width() / 2, 0));
  if (!last) shape.addRect(area.adjusted(area.width() / 2, 0, 0, 0));
  return shape.simplified();
}

}  // namespace

SectionOption::SectionOption(const QString& text, QWidget* parent, ChosenLook look)
    : QAbstractButton(parent), look_(look) {
  setText(text);
  setCheckable(true);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

void SectionOption::SetEnds(bool first, bool last) {
  first_ = first;
  last_ = last;
  update();
}

void SectionOption::SetPending(bool pending) {
  if (pending_ == pending) return;
  pending_ = pending;
  setAccessibleDescription(pending ? SomethingNotSent() : QString());
  update();
}

QSize SectionOption::sizeHint() const {
  const QFontMetrics bold(BoldFont());
  // A blue one stands in a line with buttons.
  const int height = look_ == ChosenLook::Amber ? grid::kSectionHeight : grid::kFieldHeight;
  return {bold.horizontalAdvance(text()) + 2 * kSidePadding, GridHeight(height, *this)};
}

// Its whole text, and the dot.
QSize SectionOption::minimumSizeHint() const {
  const int text = QFontMetrics(BoldFont()).horizontalAdvance(this->text());
  return {text + kLeastPadding + kPendingRoom, sizeHint().height()};
}

bool SectionOption::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QAbstractButton::event(event);
  const int needed = QFontMetrics(BoldFont()).horizontalAdvance(text());
  const bool fits = needed <= width() - 2 * kLeastPadding;
  const QString pending = pending_ ? u'\n' + SomethingNotSent() : QString();
  ShowWholeText(*static_cast<QHelpEvent*>(event), *this, text() + pending,
                fits && !pending_ ? Fits::Yes : Fits::No);
  return true;
}

void SectionOption::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool chosen = isChecked();
  // A window that is busy is disabled as a whole, and still shows which section is chosen.
  const bool marked = chosen && isEnabledTo(window());
  const bool amber = look_ == ChosenLook::Amber;
  const QColor mark =
      amber ? ToneColor(Tone::Amber) : palette().color(QPalette::Active, QPalette::Highlight);
  const QColor onMark = amber ? ToneColor(Tone::OnAmber)
                              : palette().color(QPalette::Active, QPalette::HighlightedText);
  // Neighbours share their line: each but the first begins on the last pixel of the one before.
  const QRectF area = QRectF(rect()).adjusted(first_ ? 0.5 : -0.5, 0.5, -0.5, -0.5);
  QColor fill = palette().color(QPalette::Button);
  if (isEnabled() && underMouse()) fill = palette().color(QPalette::Midlight);
  if (marked) fill = mark;
  painter.setPen(marked ? mark.darker(118) : palette().color(QPalette::Mid));
  painter.setBrush(fill);
  painter.drawPath(OptionShape(area, first_, last_));
  if (hasFocus()) {
    // A line in Highlight would not show on blue.
    painter.setPen(QPen(marked && !amber ? onMark : palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 4, 4);
  }
  painter.setFont(chosen ? BoldFont() : font());
  painter.setPen(marked ? onMark : palette().color(QPalette::ButtonText));
  const int room = width() - 2 * kLeastPadding - (pending_ ? kPendingRoom - kLeastPadding : 0);
  const QString shown = painter.fontMetrics().elidedText(text(), Qt::ElideRight, room);
  painter.drawText(rect(), Qt::AlignCenter, shown);
  if (!pending_) return;
  const double textEnd = (width() + painter.fontMetrics().horizontalAdvance(shown)) / 2.0;
  DrawPendingDot(painter, {textEnd + kPendingRoom / 2.0 + 1, height() / 2.0},
                 marked ? onMark : palette().color(QPalette::Link), fill);
}

// As few rows of joined options as the width holds. Where it is short they first give way at both
// sides of their texts.
class SectionBar::Rows : public ItemLayout {
 public:
  using ItemLayout::ItemLayout;

  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override {
    const Items options = ShownItems();
    return options.empty()
               ? 0
               : RowCount(options, width) * (HeightOf(options) + kBetweenRows) - kBetweenRows;
  }
  [[nodiscard]] QSize sizeHint() const override {
    const Items options = ShownItems();
    return {Sum(options, 0, options.size(), &QLayoutItem::sizeHint), HeightOf(options)};
  }
  // Of one option in each row.
  [[nodiscard]] QSize minimumSize() const override {
    const Items options = ShownItems();
    int widest = 0;
    for (const QLayoutItem* option : options)
      widest = std::max(widest, option->minimumSize().width());
    return {widest, HeightOf(options)};
  }
  void setGeometry(const QRect& area) override {
    QLayout::setGeometry(area);
    const Items options = ShownItems();
    if (options.empty()) return;
    const std::size_t inRow = InRow(options, RowCount(options, area.width()));
    int top = area.top();
    for (std::size_t first = 0; first < options.size(); first += inRow) {
      PlaceRow(options, first, std::min(first + inRow, options.size()), area, top);
      top += HeightOf(options) + kBetweenRows;
    }
  }

 private:
  using Measure = QSize (QLayoutItem::*)() const;

  static int HeightOf(const Items& options) {
    return options.empty() ? 0 : options[0]->sizeHint().height();
  }
  static int Sum(const Items& options, std::size_t first, std::size_t end, Measure measure) {
    int sum = 0;
    for (std::size_t i = first; i < end; ++i) sum += (options[i]->*measure)().width();
    return sum;
  }
  static std::size_t InRow(const Items& options, int rows) {
    const auto count = static_cast<std::size_t>(rows);
    return (options.size() + count - 1) / count;
  }
  static int RowCount(const Items& options, int width) {
    const auto fits = [&](int rows) {
      const std::size_t inRow = InRow(options, rows);
      for (std::size_t first = 0; first < options.size(); first += inRow) {
        const std::size_t end = std::min(first + inRow, options.size());
        if (Sum(options, first, end, &QLayoutItem::minimumSize) > width) return false;
      }
      return true;
    };
    int rows = 1;
    while (rows < static_cast<int>(options.size()) && !fits(rows)) ++rows;
    return rows;
  }
  static void PlaceRow(const Items& options, std::size_t first, std::size_t end, const QRect& area,
                       int top) {
    const int wanted = Sum(options, first, end, &QLayoutItem::sizeHint);
    const int least = Sum(options, first, end, &QLayoutItem::minimumSize);
    const double given =
        wanted <= least
            ? 0
            : std::clamp<double>(area.width() - least, 0, wanted - least) / (wanted - least);
    int left = area.left();
    for (std::size_t i = first; i < end; ++i) {
      const QSize smallest = options[i]->minimumSize();
      const int width =
          smallest.width() + qFloor((options[i]->sizeHint().width() - smallest.width()) * given);
      static_cast<SectionOption*>(options[i]->widget())->SetEnds(i == first, i + 1 == end);
      options[i]->setGeometry({left, top, width, smallest.height()});
      left += width;
    }
  }
};

SectionBar::SectionBar(QWidget* parent)
    : QWidget(parent), group_(new OptionGroup(this)), rows_(new Rows(this)) {
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
  connect(group_, &OptionGroup::selectionChanged, this, &SectionBar::selectionChanged);
}

int SectionBar::AddOption(const QString& text) {
  const int index = count();
  auto* option = new SectionOption(text, this);
  option->setObjectName(ElementName(objectName(), index));
  option->setAccessibleName(text);
  options_.append(option);
  group_->add(option, index);
  rows_->addWidget(option);
  return index;
}

QAbstractButton* SectionBar::option(int index) const {
  return group_->button(index);
}

int SectionBar::count() const {
  return static_cast<int>(options_.size());
}

int SectionBar::selected() const {
  return group_->selected();
}

void SectionBar::select(int index) {
  group_->select(index);
}

void SectionBar::SetOptionEnabled(int index, bool enabled, const QString& whyDisabled) {
  options_[index]->setEnabled(enabled);
  options_[index]->setToolTip(enabled ? QString() : whyDisabled);
}

void SectionBar::SetOptionVisible(int index, bool visible) {
  options_[index]->setVisible(visible);
}

void SectionBar::SetOptionPending(int index, bool pending) {
  options_[index]->SetPending(pending);
}

}  // namespace mortane
