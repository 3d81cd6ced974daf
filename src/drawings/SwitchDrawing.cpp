#include "drawings/SwitchDrawing.h"

#include <QEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QSignalBlocker>
#include <algorithm>

#include "drawings/InkedDrawing.h"
#include "drawings/MarkButton.h"
#include "widgets/Control.h"
#include "widgets/OptionGroup.h"
#include "widgets/Theme.h"
#include "widgets/VectorDrawing.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr double kLeastScale = 0.8;
constexpr double kMostScale = 2.5;
constexpr double kMostLeastScale = 1.5;  // of large fonts
constexpr double kDisabledOpacity = 0.4;

}  // namespace

SwitchDrawing::SwitchDrawing(SwitchPlan plan, const char* arrayName, QWidget* parent)
    : QWidget(parent),
      plan_(std::move(plan)),
      group_(new OptionGroup(this, OptionGroup::Arrows::ByButton)) {
  setFocusPolicy(Qt::NoFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  for (const PlacedMark& placed : plan_.marks) MakeButton(placed, arrayName);
  connect(group_, &OptionGroup::selectionChanged, this, &SwitchDrawing::chosen);
}

void SwitchDrawing::MakeButton(const PlacedMark& placed, const char* arrayName) {
  auto* button = new MarkButton(placed.mark, this);
  button->setObjectName(ElementName(QLatin1String(arrayName), placed.index + 1));
  group_->add(button, placed.index);
  const auto at = static_cast<int>(buttons_.size());
  connect(button, &MarkButton::stepped, this, [this, at](int steps) { Step(at, steps); });
  buttons_.append(button);
}

// To the next mark that can be used; round the end to the first.
void SwitchDrawing::Step(int from, int steps) {
  for (int i = 1; i <= count(); ++i) {
    MarkButton* button = buttons_[(from + (count() + steps) * i) % count()];
    if (!button->isEnabled()) continue;
    button->setFocus();
    button->click();
    return;
  }
}

MarkButton* SwitchDrawing::buttonOf(int index) const {
  return static_cast<MarkButton*>(group_->button(index));
}

QAbstractButton* SwitchDrawing::mark(int index) const {
  return buttonOf(index);
}

void SwitchDrawing::SetMarkName(int index, const QString& name) {
  buttonOf(index)->setAccessibleName(name);
  QStringList names;
  for (int i = 0; i < count(); ++i) names.append(buttonOf(i)->accessibleName());
  setAccessibleDescription(names.join(u"; "_s));
}

QIcon SwitchDrawing::markIcon(int index) const {
  const auto placed = std::find_if(plan_.marks.begin(), plan_.marks.end(),
                                   [index](const PlacedMark& mark) { return mark.index == index; });
  return placed == plan_.marks.end() ? QIcon() : MarkIcon(placed->mark);
}

int SwitchDrawing::index() const {
  return group_->selected();
}

void SwitchDrawing::setIndex(int index) {
  const QSignalBlocker quiet(group_);
  if (index < 0 || index >= count()) {
    group_->clear();
  } else {
    group_->select(index);
  }
}

void SwitchDrawing::SetMirrored(bool mirrored) {
  if (mirrored == mirrored_) return;
  mirrored_ = mirrored;
  ground_ = {};
  update();
}

double SwitchDrawing::drawingScale() const {
  const double scale = qMin(width() / plan_.size.width(), height() / plan_.size.height());
  return qBound(kLeastScale, scale, kMostScale);
}

QSize SwitchDrawing::sizeHint() const {
  return plan_.size.toSize().expandedTo(minimumSizeHint());
}

// As high as texts want it, as far as the present width makes use of that height.
QSize SwitchDrawing::minimumSizeHint() const {
  const double scale = qBound(kLeastScale, width() / plan_.size.width(), LeastScale());
  return QSizeF(plan_.size.width() * kLeastScale, plan_.size.height() * scale).toSize();
}

double SwitchDrawing::LeastScale() const {
  double least = kLeastScale;
  for (const PlacedMark& placed : plan_.marks)
    least = qMax(least, LeastMarkScale(placed.mark, placed.area.size()));
  return qMin(least, kMostLeastScale);
}

QRectF SwitchDrawing::DrawnArea() const {
  QRectF area(QPointF(), plan_.size * drawingScale());
  area.moveCenter(QRectF(rect()).center());
  return area;
}

void SwitchDrawing::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (event->oldSize().width() != width()) updateGeometry();
  ground_ = {};
  const double scale = drawingScale();
  const QPointF origin = DrawnArea().topLeft();
  for (int i = 0; i < count(); ++i) {
    const QRectF& design = plan_.marks[static_cast<std::size_t>(i)].area;
    buttons_[i]->Place({origin + design.topLeft() * scale, design.size() * scale});
  }
}

void SwitchDrawing::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) ground_ = {};
  if (event->type() == QEvent::EnabledChange) update();
}

// All that is no mark is painted once for each size.
void SwitchDrawing::PaintGround() {
  const double ratio = devicePixelRatioF();
  const QSizeF size = plan_.size * drawingScale();
  ground_ = QPixmap((size * ratio).toSize());
  ground_.setDevicePixelRatio(ratio);
  ground_.fill(Qt::transparent);
  QPainter painter(&ground_);
  painter.setRenderHint(QPainter::Antialiasing);
  if (mirrored_) {
    painter.translate(size.width(), 0);
    painter.scale(-1, 1);
  }
  VectorDrawing(InkedDrawing(plan_.drawing, palette())).Paint(painter, QRectF(QPointF(), size));
}

void SwitchDrawing::paintEvent(QPaintEvent*) {
  if (ground_.isNull() || ground_.devicePixelRatio() != devicePixelRatioF()) PaintGround();
  QPainter painter(this);
  const QRectF area = DrawnArea();
  // While the window as a whole is disabled the drawing stays as it is.
  if (!isEnabledTo(window())) painter.setOpacity(kDisabledOpacity);
  painter.drawPixmap(area.topLeft(), ground_);
  painter.setFont(CaptionFont());
  painter.setPen(palette().color(QPalette::Active, QPalette::PlaceholderText));
  for (const DrawnText& text : plan_.texts) {
    QRectF room = painter.fontMetrics().boundingRect(text.text);
    room.moveCenter(area.topLeft() + text.center * drawingScale());
    painter.drawText(room, Qt::AlignCenter | Qt::TextDontClip, text.text);
  }
}

}  // namespace mortane
