#include "widgets/ProgressLine.h"

#include <QPainter>

namespace mortane {
namespace {

constexpr int kThickness = 3;

}  // namespace

ProgressLine::ProgressLine(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ProgressLine::setProgress(int done, int total) {
  fraction_ = total > 0 ? qBound(0.0, static_cast<double>(done) / total, 1.0) : 0;
  if (isVisible()) repaint();
}

void ProgressLine::clear() {
  setProgress(0, 0);
}

QSize ProgressLine::sizeHint() const {
  return {0, kThickness};
}

void ProgressLine::paintEvent(QPaintEvent*) {
  if (fraction_ <= 0) return;
  QPainter painter(this);
  // The active group: the window is disabled while the line is on show.
  painter.fillRect(QRectF(0, 0, width() * fraction_, height()),
                   palette().color(QPalette::Active, QPalette::Highlight));
}

}  // namespace mortane
