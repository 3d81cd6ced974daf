#include "widgets/TurretDrawing.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QtMath>
#include <cmath>

#include "widgets/OptionGroup.h"
#include "widgets/Theme.h"
#include "widgets/TurretButton.h"

namespace mortane {
namespace {

// In design pixels.
constexpr double kSide = 280;
constexpr double kRadius = 138;
constexpr double kRim = 5;
constexpr int kKnurls = 60;
constexpr double kHub = 13;
constexpr double kHubHole = 4;
constexpr double kOrbitEdge = 12;
constexpr double kLargestPlace = 34;
constexpr double kBetweenPlaces = 5;
constexpr double kNumberGap = 14;
constexpr double kTileHeightShare = 0.8;
constexpr double kLeastScale = 0.8;
constexpr double kMostScale = 1.5;
constexpr int kLeastButton = 24;
constexpr int kMostPlaces = 10;

struct Ring {
  double placeRadius;
  double orbit;
};

// The places fill the disc up to its edge and keep clear of each other, whatever their number.
Ring RingOf(int count) {
  const double room = kRadius - kOrbitEdge;
  if (count < 2) return {kLargestPlace, room - kLargestPlace};
  const double half = std::sin(M_PI / count);
  const double radius = qMin(kLargestPlace, (room * half - kBetweenPlaces) / (1 + half));
  return {radius, room - radius};
}

QPointF Direction(int index, int count) {
  const double angle = 2 * M_PI * index / qMax(1, count);
  return {std::sin(angle), -std::cos(angle)};
}

}  // namespace

TurretDrawing::TurretDrawing(PlaceKind kind, QWidget* parent)
    : QWidget(parent), kind_(kind), group_(nullptr) {
  setFocusPolicy(Qt::NoFocus);
  QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  setSizePolicy(policy);
  MakeButtons(0);
}

void TurretDrawing::MakeButtons(int count) {
  delete group_;
  qDeleteAll(buttons_);
  buttons_.clear();
  group_ = new OptionGroup(this);
  for (int i = 0; i < count; ++i) {
    auto* button = new TurretButton(kind_, i + 1, this);
    button->setObjectName(QStringLiteral("place_%1").arg(i + 1));
    group_->add(button, i);
    connect(button, &TurretButton::stepped, this, [this, i](int steps) {
      const int wanted = (i + steps + this->count()) % this->count();
      buttons_[wanted]->setFocus();
      buttons_[wanted]->click();
    });
    connect(button, &TurretButton::jumped, this, [this](bool toLast) {
      TurretButton* wanted = toLast ? buttons_.last() : buttons_.first();
      wanted->setFocus();
      wanted->click();
    });
    buttons_.append(button);
    button->show();
  }
  connect(group_, &OptionGroup::clicked, this, &TurretDrawing::clicked);
  PlaceButtons();
}

void TurretDrawing::SetItems(const QVector<TurretItem>& items) {
  const int count = qMin(kMostPlaces, static_cast<int>(items.size()));
  if (count != this->count()) {
    const int before = index();
    MakeButtons(count);
    setIndex(before);
  }
  for (int i = 0; i < count; ++i) buttons_[i]->SetItem(items[i]);
  Describe();
}

void TurretDrawing::SetItem(int index, const TurretItem& item) {
  if (index < 0 || index >= count() || buttons_[index]->item() == item) return;
  buttons_[index]->SetItem(item);
  Describe();
}

void TurretDrawing::Describe() {
  QStringList names;
  for (const TurretButton* button : buttons_) names.append(button->accessibleName());
  setAccessibleDescription(names.join(QStringLiteral("; ")));
  update();
}

QAbstractButton* TurretDrawing::place(int index) const {
  return buttons_.value(index);
}

int TurretDrawing::index() const {
  return group_->selected();
}

void TurretDrawing::setIndex(int index) {
  const QSignalBlocker quiet(group_);
  if (index < 0 || index >= count()) {
    group_->clear();
  } else {
    group_->select(index);
  }
  update();
}

double TurretDrawing::drawingScale() const {
  return qBound(kLeastScale, height() / kSide, kMostScale);
}

QSize TurretDrawing::sizeHint() const {
  const int side = qCeil(kSide * drawingScale());
  return {side, qCeil(kSide)};
}

QSize TurretDrawing::minimumSizeHint() const {
  const int side = qCeil(kSide * kLeastScale);
  return {side, side};
}

void TurretDrawing::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  PlaceButtons();
  updateGeometry();
}

void TurretDrawing::PlaceButtons() {
  const double scale = drawingScale();
  const Ring ring = RingOf(count());
  const QPointF center(width() / 2.0, kSide * scale / 2);
  for (int i = 0; i < count(); ++i) {
    const double width = 2 * ring.placeRadius * scale;
    const double height = kind_ == PlaceKind::Objectives ? width : width * kTileHeightShare;
    QSizeF outer(width, height);
    outer += QSizeF(2, 2) * TurretButton::HaloRoom();
    QRectF area(QPointF(), outer.expandedTo({kLeastButton, kLeastButton}));
    area.moveCenter(center + Direction(i, count()) * ring.orbit * scale);
    buttons_[i]->setGeometry(area.toAlignedRect());
    buttons_[i]->SetPlaceSize({width, height});
  }
  update();
}

void TurretDrawing::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double scale = drawingScale();
  painter.translate(width() / 2.0, kSide * scale / 2);
  painter.scale(scale, scale);
  const QColor line = ToneColor(Tone::DrawingLine);
  QRadialGradient rim(QPointF(), kRadius);
  rim.setColorAt(0, ToneColor(Tone::DrawingFill));
  rim.setColorAt(0.78, ToneColor(Tone::DrawingFill));
  rim.setColorAt(1, ToneColor(Tone::DrawingShade));
  painter.setPen(QPen(line, 1.2));
  painter.setBrush(rim);
  painter.drawEllipse(QPointF(), kRadius, kRadius);
  painter.setPen(QPen(line, 0.8));
  for (int i = 0; i < kKnurls; ++i) {
    const QPointF direction = Direction(i, kKnurls);
    painter.drawLine(direction * (kRadius - kRim), direction * kRadius);
  }
  painter.setPen(QPen(line, 1.2));
  painter.setBrush(ToneColor(Tone::DrawingShade));
  painter.drawEllipse(QPointF(), kHub, kHub);
  painter.setBrush(ToneColor(Tone::DrawingFill));
  painter.drawEllipse(QPointF(), kHubHole, kHubHole);
  painter.resetTransform();

  const Ring ring = RingOf(count());
  const QPointF center(width() / 2.0, kSide * scale / 2);
  for (int i = 0; i < count(); ++i) {
    const bool chosen = i == index();
    const double distance = (ring.orbit - ring.placeRadius - kNumberGap) * scale;
    QRectF box(0, 0, 40, 20);
    box.moveCenter(center + Direction(i, count()) * distance);
    painter.setFont(chosen ? BoldFont() : CaptionFont());
    painter.setPen(palette().color(chosen ? QPalette::WindowText : QPalette::PlaceholderText));
    painter.drawText(box, Qt::AlignCenter, QString::number(i + 1));
  }
}

}  // namespace mortane
