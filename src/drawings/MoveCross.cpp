#include "drawings/MoveCross.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "widgets/ClickFocus.h"
#include "widgets/Icons.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kButtonSide = 36;
constexpr int kChevronSide = 20;
constexpr int kMiddle = 2;  // row and column
constexpr int kLastCell = 4;

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
  const QRectF area(-kChevronSide / 2.0, -kChevronSide / 2.0, kChevronSide, kChevronSide);
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
    : QWidget(parent), cells_(new QGridLayout(this)) {
  cells_->setContentsMargins({});
  cells_->setSpacing(grid::kUnit);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  for (const Place& place : kPlaces) {
    if (place.accessibleName == nullptr) {
      middle_ = new QPushButton(middle, this);
      middle_->setMinimumHeight(GridHeight(kButtonSide, *middle_));
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
  cells_->addWidget(button, place.row, place.column, Qt::AlignCenter);
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
  int row = 0;
  int column = 0;
  int rows = 0;
  int columns = 0;
  cells_->getItemPosition(cells_->indexOf(button), &row, &column, &rows, &columns);
  row += down;
  column += right;
  if (row < 0 || column < 0 || row > kLastCell || column > kLastCell) return nullptr;
  const QLayoutItem* item = cells_->itemAtPosition(row, column);
  return item == nullptr ? nullptr : item->widget();
}

}  // namespace mortane
