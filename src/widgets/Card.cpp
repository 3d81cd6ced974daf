#include "widgets/Card.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QResizeEvent>
#include <QStyle>
#include <QVBoxLayout>
#include <QtMath>

#include "widgets/Paint.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

// Goes on in further lines where the width is short. It asks for the height of the lines that its
// present width makes.
class FrameCaption : public QLabel {
 public:
  using QLabel::QLabel;

  // A text of several words has room for two lines, as they break at worst.
  [[nodiscard]] QSize minimumSizeHint() const override {
    constexpr double kLongerLine = 0.6;  // of the whole text
    const QSize whole = QLabel::minimumSizeHint();
    if (!text().contains(u' ')) return whole;
    return {qCeil(whole.width() * kLongerLine), Breaks() ? HeightOfLines() : whole.height()};
  }
  [[nodiscard]] QSize sizeHint() const override {
    const QSize whole = QLabel::sizeHint();
    return {whole.width(), Breaks() ? HeightOfLines() : whole.height()};
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    const int before = sizeHint().height();
    room_ = width();
    if (sizeHint().height() != before) updateGeometry();
  }
  void paintEvent(QPaintEvent* event) override {
    if (!Breaks()) return QLabel::paintEvent(event);
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), kLines, palette(), isEnabled(), text(),
                          foregroundRole());
  }

 private:
  static constexpr int kLines = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

  [[nodiscard]] bool Breaks() const { return room_ < QLabel::sizeHint().width(); }
  [[nodiscard]] int HeightOfLines() const {
    return fontMetrics().boundingRect({0, 0, room_, QWIDGETSIZE_MAX}, kLines, text()).height();
  }

  int room_ = QWIDGETSIZE_MAX;  // the width that it has
};

QLabel* AddCaption(const QString& caption, QFrame* frame, QVBoxLayout* body) {
  if (caption.isEmpty()) return nullptr;
  auto* label = new FrameCaption(caption, frame);
  label->setFont(FrameCaptionFont());
  frame->setAccessibleName(caption);
  label->setBuddy(frame);
  body->addWidget(label);
  return label;
}

}  // namespace

Card::Card(const QString& caption, QWidget* parent) : QFrame(parent) {
  body_ = new QVBoxLayout(this);
  const int top = caption.isEmpty() ? grid::kCardPadding : grid::kBetweenGroups;
  body_->setContentsMargins(grid::kCardPadding, top, grid::kCardPadding, grid::kCardPadding);
  body_->setSpacing(grid::kBetweenGroups);
  caption_ = AddCaption(caption, this, body_);
}

QString Card::caption() const {
  return caption_ ? caption_->text() : QString();
}

void Card::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  DrawBox(painter, rect(), palette().color(QPalette::Active, QPalette::Base),
          {palette().color(QPalette::Mid), 1, grid::kCardCorner});
}

InnerFrame::InnerFrame(const QString& caption, QWidget* parent) : QFrame(parent) {
  body_ = new QVBoxLayout(this);
  body_->setContentsMargins(grid::kCardPadding, grid::kBetweenGroups, grid::kCardPadding,
                            grid::kBetweenGroups);
  body_->setSpacing(grid::kBetweenControls);
  caption_ = AddCaption(caption, this, body_);
}

QString InnerFrame::caption() const {
  return caption_ ? caption_->text() : QString();
}

void InnerFrame::SetCaption(const QString& caption) {
  caption_->setText(caption);
  setAccessibleName(caption);
}

void InnerFrame::paintEvent(QPaintEvent*) {
  DrawInnerFrame(*this);
}

void InnerFrame::changeEvent(QEvent* event) {
  if (event->type() == QEvent::EnabledChange) update();
  QFrame::changeEvent(event);
}

void DrawInnerFrame(QWidget& frame) {
  QPainter painter(&frame);
  const QPalette& palette = frame.palette();
  // While the window as a whole is disabled the frame keeps its fill: only what is not fitted
  // loses it.
  const bool fitted = frame.isEnabledTo(frame.window());
  DrawBox(painter, frame.rect(),
          fitted ? palette.color(QPalette::AlternateBase) : QColor(Qt::transparent),
          {palette.color(QPalette::Mid), 1, grid::kInnerCorner, !fitted});
}

QLabel* CaptionLabel(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setFont(CaptionFont());
  label->setForegroundRole(QPalette::PlaceholderText);
  return label;
}

}  // namespace mortane
