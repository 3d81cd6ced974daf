#include "drawings/TurretDrawing.h"

#include <QEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QtMath>
#include <algorithm>
#include <cmath>
#include <vector>

#include "drawings/TurretButton.h"
#include "widgets/Control.h"
#include "widgets/OptionGroup.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
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
constexpr double kBetweenTiles = 8;
constexpr double kNumberGap = 8;  // from the halo to the middle, in pixels of any scale
constexpr int kNumberCharacters = 3;
constexpr double kLeastScale = 0.8;
constexpr double kMostScale = 2.5;
constexpr double kMostLeastScale = 1.5;    // of large fonts
constexpr double kTitleLabelScale = 1.75;  // from which labels may be as large as titles
constexpr int kLeastButton = 24;
constexpr int kMostPlaces = 10;

struct Ring {
  double placeRadius;
  double orbit;
};

QPointF Direction(int index, int count) {
  const double angle = 2 * M_PI * index / qMax(1, count);
  return {std::sin(angle), -std::cos(angle)};
}

// Round places fill the disc up to its edge and keep clear of each other, whatever their number.
Ring RoundPlaces(int count) {
  const double room = kRadius - kOrbitEdge;
  if (count < 2) return {kLargestPlace, room - kLargestPlace};
  const double half = std::sin(M_PI / count);
  const double radius = qMin(kLargestPlace, (room * half - kBetweenPlaces) / (1 + half));
  return {radius, room - radius};
}

// Whether no tile reaches into the halo of its neighbour.
bool AreTilesApart(int count, const Ring& ring) {
  for (int i = 0; i + 1 < count; ++i) {
    const QPointF between = (Direction(i + 1, count) - Direction(i, count)) * ring.orbit;
    const double width = 2 * ring.placeRadius;
    const bool apart = qAbs(between.x()) >= width + kBetweenTiles ||
                       qAbs(between.y()) >= width * TurretButton::TileShape() + kBetweenTiles;
    if (!apart) return false;
  }
  return true;
}

Ring RingOf(PlaceKind kind, int count) {
  Ring ring = RoundPlaces(count);
  if (kind == PlaceKind::Objectives) return ring;
  while (!AreTilesApart(count, ring)) {
    ring.placeRadius -= 0.5;
    ring.orbit += 0.5;
  }
  return ring;
}

}  // namespace

TurretDrawing::TurretDrawing(PlaceKind kind, QWidget* parent)
    : QWidget(parent),
      kind_(kind),
      group_(new OptionGroup(this, OptionGroup::Arrows::ByButton)),
      leastScale_(kLeastScale) {
  setFocusPolicy(Qt::NoFocus);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  setMaximumSize(qCeil(kSide * kMostScale), QWIDGETSIZE_MAX);
  // All at once, so that they stand at the drawing's place in the order of the Tab key.
  for (int i = 0; i < kMostPlaces; ++i) MakeButton(i);
  connect(group_, &OptionGroup::selectionChanged, this, [this](int index) {
    Q_EMIT chosen(index);
    if (buttons_[index]->isPressed()) Q_EMIT activated(index);
  });
}

void TurretDrawing::MakeButton(int index) {
  auto* button = new TurretButton(kind_, index + 1, this);
  button->setObjectName(ElementName(u"place"_s, index + 1));
  button->hide();
  group_->add(button, index);
  connect(button, &TurretButton::toggled, this,
          [this, index] { update(NumberArea(index).toAlignedRect()); });
  connect(button, &TurretButton::stepped, this,
          [this, index](int steps) { Choose((index + steps + count_) % count_); });
  buttons_.append(button);
}

void TurretDrawing::Choose(int index) {
  buttons_[index]->setFocus();
  buttons_[index]->click();
}

void TurretDrawing::SetItems(const QVector<TurretItem>& items) {
  count_ = qMin(kMostPlaces, static_cast<int>(items.size()));
  if (index() >= count_) setIndex(-1);
  for (int i = 0; i < kMostPlaces; ++i) {
    if (i < count_) buttons_[i]->SetItem(items[i]);
    buttons_[i]->setVisible(i < count_);
  }
  ShowPending();
  UpdateLeastScale();
  PlaceButtons();
  Describe();
}

void TurretDrawing::SetPending(const QMap<int, QString>& was) {
  was_ = was;
  ShowPending();
}

void TurretDrawing::ShowPending() {
  for (int i = 0; i < count_; ++i) {
    const auto place = was_.constFind(buttons_[i]->address());
    buttons_[i]->SetPending(place == was_.constEnd() ? std::nullopt : std::optional(*place));
  }
}

int TurretDrawing::placeOf(int address) const {
  for (int i = 0; i < count_; ++i) {
    if (buttons_[i]->address() == address) return i;
  }
  return -1;
}

void TurretDrawing::SetItem(int index, const TurretItem& item) {
  if (index < 0 || index >= count() || buttons_[index]->item() == item) return;
  buttons_[index]->SetItem(item);
  UpdateLeastScale();
  UpdateLabels();
  Describe();
}

// Labels do not scale with the drawing, and must not touch the rings around them.
void TurretDrawing::UpdateLeastScale() {
  double least = kLeastScale;
  const double width = 2 * RingOf(kind_, count_).placeRadius;
  for (int i = 0; i < count_; ++i) least = qMax(least, buttons_[i]->LeastPlaceWidth() / width);
  least = qMin(least, kMostLeastScale);
  if (least == leastScale_) return;
  leastScale_ = least;
  updateGeometry();
  disc_ = {};
  PlaceButtons();
}

void TurretDrawing::Describe() {
  QStringList names;
  for (int i = 0; i < count_; ++i) names.append(buttons_[i]->accessibleName());
  setAccessibleDescription(names.join(u"; "_s));
}

QAbstractButton* TurretDrawing::place(int index) const {
  return index >= 0 && index < count_ ? buttons_[index] : nullptr;
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
}

double TurretDrawing::drawingScale() const {
  return qBound(leastScale_, qMin(width(), height()) / kSide, kMostScale);
}

QSize TurretDrawing::sizeHint() const {
  return minimumSizeHint().expandedTo({qCeil(kSide), qCeil(kSide)});
}

QSize TurretDrawing::minimumSizeHint() const {
  const int side = qCeil(kSide * leastScale_);
  return {side, side};
}

void TurretDrawing::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  disc_ = {};
  PlaceButtons();
}

void TurretDrawing::PlaceButtons() {
  const double scale = drawingScale();
  const Ring ring = RingOf(kind_, count());
  const QPointF center = Center();
  for (int i = 0; i < count(); ++i) {
    const QSizeF place = buttons_[i]->PlaceSizeFor(2 * ring.placeRadius * scale);
    const QSizeF outer = place + QSizeF(2, 2) * TurretButton::HaloRoom();
    QRectF area(QPointF(), outer.expandedTo({kLeastButton, kLeastButton}));
    area.moveCenter(center + Direction(i, count()) * ring.orbit * scale);
    buttons_[i]->setGeometry(area.toAlignedRect());
    buttons_[i]->SetPlaceSize(place);
  }
  UpdateLabels();
  update();
}

// In one size: it would seem to mean something if labels differed.
void TurretDrawing::UpdateLabels() {
  const auto end = buttons_.begin() + count_;
  std::vector<QFont> fonts{FrameCaptionFont()};
  if (drawingScale() >= kTitleLabelScale) fonts.insert(fonts.begin(), TitleFont());
  const auto largest = std::find_if(fonts.begin(), fonts.end(), [&](const QFont& font) {
    return std::all_of(buttons_.begin(), end,
                       [&](const TurretButton* button) { return button->HasRoomForLabel(font); });
  });
  const QFont font = largest == fonts.end() ? MarkFont() : *largest;
  std::for_each(buttons_.begin(), end, [&](TurretButton* button) { button->SetLabelFont(font); });
}

void TurretDrawing::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) disc_ = {};
  if (event->type() == QEvent::FontChange) UpdateLeastScale();
}

// The disc without its places is painted once for each size.
void TurretDrawing::PaintDisc() {
  const double ratio = devicePixelRatioF();
  const double scale = drawingScale();
  disc_ = QPixmap(QSizeF(kSide * scale * ratio, kSide * scale * ratio).toSize());
  disc_.setDevicePixelRatio(ratio);
  disc_.fill(Qt::transparent);
  QPainter painter(&disc_);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  painter.translate(kSide / 2, kSide / 2);
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
}

QRectF TurretDrawing::NumberArea(int index) const {
  const Ring ring = RingOf(kind_, count());
  const double scale = drawingScale();
  const QPointF direction = Direction(index, count());
  const double reach = buttons_[index]->ReachTowards(direction);
  const double distance = ring.orbit * scale - reach - kNumberGap;
  const QFontMetricsF metrics(BoldFont());
  QRectF area(0, 0, metrics.averageCharWidth() * kNumberCharacters, metrics.height());
  area.moveCenter(Center() + direction * distance);
  return area;
}

QPointF TurretDrawing::Center() const {
  return {width() / 2.0, kSide * drawingScale() / 2};
}

void TurretDrawing::paintEvent(QPaintEvent*) {
  if (disc_.isNull() || disc_.devicePixelRatio() != devicePixelRatioF()) PaintDisc();
  QPainter painter(this);
  const double side = kSide * drawingScale();
  painter.drawPixmap(Center() - QPointF(side, side) / 2, disc_);
  for (int i = 0; i < count(); ++i) {
    const bool chosen = i == index();
    painter.setFont(chosen ? BoldFont() : CaptionFont());
    painter.setPen(palette().color(chosen ? QPalette::WindowText : QPalette::PlaceholderText));
    painter.drawText(NumberArea(i), Qt::AlignCenter, QString::number(buttons_[i]->address()));
  }
}

}  // namespace mortane
