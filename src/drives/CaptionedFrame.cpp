#include "drives/CaptionedFrame.h"

#include <QLabel>
#include <QVBoxLayout>

#include "widgets/Theme.h"

namespace mortane {

CaptionedFrame::CaptionedFrame(const QString& caption, QWidget* parent)
    : QFrame(parent), body_(new QVBoxLayout(this)) {
  body_->setContentsMargins({});
  body_->setSpacing(grid::kBetweenGroups);
  auto* label = new QLabel(caption, this);
  label->setFont(FrameCaptionFont());
  label->setBuddy(this);
  setAccessibleName(caption);
  body_->addWidget(label);
}

}  // namespace mortane
