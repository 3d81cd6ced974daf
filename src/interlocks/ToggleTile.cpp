#include "interlocks/ToggleTile.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <QtMath>

#include "widgets/Card.h"
#include "widgets/CheckToggle.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kIconSide = 32;

// The measures of a tile on one ground.
struct Measures {
  int side;    // left of the icon and right of the texts
  int gap;     // between icon and texts
  int edge;    // least distance of the texts from the upper and the lower edge
  int height;  // that the tile asks for
};

constexpr Measures kOnCard{20, 20, 8, 96};
constexpr Measures kInInnerFrame{0, 16, 2, 76};

const Measures& MeasuresOn(ToggleTile::Ground ground) {
  return ground == ToggleTile::Ground::Card ? kOnCard : kInInnerFrame;
}

}  // namespace

ToggleTile::ToggleTile(IconName icon, const QString& caption, Ground ground, QWidget* parent)
    : QWidget(parent),
      icon_(icon),
      ground_(ground),
      iconSide_(kIconSide),
      label_(new QLabel(caption, this)),
      toggle_(new CheckToggle(this)) {
  toggle_->setAccessibleName(caption);
  label_->setBuddy(toggle_);
  // The track stands under the first letter; the line of the focus goes round it.
  label_->setContentsMargins(CheckToggle::kPadding, 0, 0, 0);

  auto* texts = new QVBoxLayout(this);
  SetIconSide(kIconSide);
  texts->setSpacing(grid::kUnit);
  texts->addStretch();
  texts->addWidget(label_);
  texts->addWidget(toggle_);
  texts->addStretch();
}

// What it asks for does not grow with the icon.
QSize ToggleTile::sizeHint() const {
  const QSize asked = QWidget::sizeHint() - QSize(iconSide_ - kIconSide, 0);
  return asked.expandedTo({0, MeasuresOn(ground_).height});
}

QSize ToggleTile::minimumSizeHint() const {
  return QWidget::minimumSizeHint() - QSize(iconSide_ - kIconSide, 0);
}

void ToggleTile::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int byHeight = kIconSide * height() / MeasuresOn(ground_).height;
  const int byWidth = kIconSide + width() - minimumSizeHint().width();
  const int most = qFloor(kIconSide * kMostGrowth);
  SetIconSide(qMax(kIconSide, qMin(most, qMin(byHeight, byWidth))));
}

void ToggleTile::SetIconSide(int side) {
  iconSide_ = side;
  const Measures& measures = MeasuresOn(ground_);
  layout()->setContentsMargins(measures.side + side + measures.gap - CheckToggle::kPadding,
                               measures.edge, measures.side, measures.edge);
}

void ToggleTile::SetShown(bool shown) {
  label_->setVisible(shown);
  toggle_->setVisible(shown);
  setVisible(shown);
}

void ToggleTile::paintEvent(QPaintEvent*) {
  if (ground_ == Ground::Card) DrawInnerFrame(*this);
  QPainter painter(this);
  const bool fitted = isEnabledTo(window());
  DrawIcon(
      painter, icon_,
      QRectF(MeasuresOn(ground_).side, (height() - iconSide_) / 2.0, iconSide_, iconSide_),
      {palette().color(QPalette::WindowText), fitted ? ToneColor(Tone::IconAccent) : QColor()});
}

}  // namespace mortane
