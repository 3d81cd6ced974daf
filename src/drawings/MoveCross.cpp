#include "drawings/MoveCross.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QtMath>
#include <algorithm>

#include "widgets/ClickFocus.h"
#include "widgets/Icons.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kButtonSide = 36;
constexpr int kChevronSide = 20;
constexpr int kMiddle = 2;  // row and column
constexpr int kCells = 5;   // in a row and in a column
constexpr double kMostGrowth = 2.5;

// The drawing points to the right.
int TurnOf(MoveDirection direction) {
  switch (direction) {
    case MoveDirection::Right:
      return 0;
    case MoveDirection::Down:
      return 90;
    case MoveDirection::Left:
      return 180;
    default:
      return 270;
  }
}

std::size_t SlotOf(MoveDirection direction, MoveSize size) {
  return 2 * static_cast<std::size_t>(direction) + static_cast<std::size_t>(size);
}

}  // namespace

MoveButton::MoveButton(MoveDirection direction, MoveSize size, QWidget* parent)
    : QPushButton(parent), direction_(direction), size_(size) {}

QSize MoveButton::sizeHint() const {
  const int side = GridHeight(kButtonSide, *this);
  return {side, side};
}

void MoveButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  painter.drawControl(QStyle::CE_PushButton, option);
  painter.translate(QRectF(rect()).center());
  painter.rotate(TurnOf(direction_));
  const double chevron = kChevronSide * (height() / static_cast<double>(kButtonSide));
  const QRectF area(-chevron / 2, -chevron / 2, chevron, chevron);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  DrawIcon(painter, size_ == MoveSize::Large ? IconName::StepLarge : IconName::StepSmall, area,
           {palette().color(QPalette::ButtonText), {}});
}

// In the order of the Tab key: from left to right, from top to bottom.
struct MoveCross::Place {
  const char* accessibleName;  // none for the middle, which has a caption
  MoveDirection direction;
  MoveSize size;
  int row;
  int column;
};

const std::array<MoveCross::Place, 9> MoveCross::kPlaces{{
    {"Up, large step", MoveDirection::Up, MoveSize::Large, 0, kMiddle},
    {"Up, small step", MoveDirection::Up, MoveSize::Small, 1, kMiddle},
    {"Left, large step", MoveDirection::Left, MoveSize::Large, kMiddle, 0},
    {"Left, small step", MoveDirection::Left, MoveSize::Small, kMiddle, 1},
    {nullptr, {}, {}, kMiddle, kMiddle},
    {"Right, small step", MoveDirection::Right, MoveSize::Small, kMiddle, 3},
    {"Right, large step", MoveDirection::Right, MoveSize::Large, kMiddle, 4},
    {"Down, small step", MoveDirection::Down, MoveSize::Small, 3, kMiddle},
    {"Down, large step", MoveDirection::Down, MoveSize::Large, 4, kMiddle},
}};

MoveCross::MoveCross(Axes axes, const QString& middle, QWidget* parent)
    : QWidget(parent), axes_(axes) {
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
  for (const Place& place : kPlaces) {
    if (place.accessibleName == nullptr) {
      middle_ = new QPushButton(middle, this);
      Add(middle_, place);
    } else if (axes == Axes::Both || place.column == kMiddle) {
      auto* button = new MoveButton(place.direction, place.size, this);
      button->setAccessibleName(QLatin1String(place.accessibleName));
      buttons_[SlotOf(place.direction, place.size)] = button;
      Add(button, place);
    }
  }
}

// The Enter key belongs to a dialog's main button, and unlike the space bar it repeats.
void MoveCross::Add(QPushButton* button, const Place& place) {
  button->setAutoDefault(false);
  button->installEventFilter(this);
  TakeFocusByClicks(*button);
  cells_.push_back({button, place.row, place.column});
}

int MoveCross::LeastSide() const {
  return GridHeight(kButtonSide, *this);
}

int MoveCross::MiddleWidth(int side) const {
  return qMax(side, middle_->sizeHint().width());
}

// With buttons of that side.
QSize MoveCross::SizeFor(int side) const {
  const int gaps = (kCells - 1) * grid::kUnit;
  const int sides = axes_ == Axes::Both ? (kCells - 1) * side + gaps : 0;
  return {sides + MiddleWidth(side), kCells * side + gaps};
}

QSize MoveCross::sizeHint() const {
  return SizeFor(qFloor(LeastSide() * kMostGrowth));
}

QSize MoveCross::minimumSizeHint() const {
  return SizeFor(LeastSide());
}

int MoveCross::SideIn(const QSize& room) const {
  int side = qFloor(LeastSide() * kMostGrowth);
  const auto fits = [&] {
    const QSize size = SizeFor(side);
    return size.width() <= room.width() && size.height() <= room.height();
  };
  while (side > LeastSide() && !fits()) --side;
  return side;
}

void MoveCross::PlaceButtons() {
  const int side = SideIn(size());
  const int middle = MiddleWidth(side);
  const QSize cross = SizeFor(side);
  const int pitch = side + grid::kUnit;
  const int left = (width() - cross.width()) / 2;
  const int top = (height() - cross.height()) / 2;
  const int middleLeft = axes_ == Axes::Both ? left + kMiddle * pitch : left;
  for (const Cell& cell : cells_) {
    int x = middleLeft + (cell.button == middle_ ? 0 : (middle - side) / 2);
    if (cell.column < kMiddle) x = left + cell.column * pitch;
    if (cell.column > kMiddle)
      x = middleLeft + middle + grid::kUnit + (cell.column - kMiddle - 1) * pitch;
    const int width = cell.button == middle_ ? middle : side;
    cell.button->setGeometry(x, top + cell.row * pitch, width, side);
  }
}

void MoveCross::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  PlaceButtons();
}

void MoveCross::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  updateGeometry();
  PlaceButtons();
}

MoveButton* MoveCross::button(MoveDirection direction, MoveSize size) const {
  return buttons_[SlotOf(direction, size)];
}

bool MoveCross::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(*event).key();
  if (key != Qt::Key_Left && key != Qt::Key_Right && key != Qt::Key_Up && key != Qt::Key_Down)
    return false;
  if (QWidget* next = Neighbour(qobject_cast<QWidget*>(watched), key)) next->setFocus();
  return true;
}

// The next button in the direction of the key; null at an end of the cross.
QWidget* MoveCross::Neighbour(const QWidget* button, int key) const {
  const int down = (key == Qt::Key_Down ? 1 : 0) - (key == Qt::Key_Up ? 1 : 0);
  const int right = (key == Qt::Key_Right ? 1 : 0) - (key == Qt::Key_Left ? 1 : 0);
  const auto from = std::find_if(cells_.begin(), cells_.end(),
                                 [button](const Cell& cell) { return cell.button == button; });
  const auto to = std::find_if(cells_.begin(), cells_.end(), [&](const Cell& cell) {
    return cell.row == from->row + down && cell.column == from->column + right;
  });
  return to == cells_.end() ? nullptr : to->button;
}

}  // namespace mortane
