#include "app/PageArea.h"

#include <QFrame>
#include <QGridLayout>
#include <QScrollBar>

#include "widgets/HidePage.h"
#include "widgets/Page.h"

namespace mortane {

PageArea::PageArea(QWidget* parent) : QScrollArea(parent), frame_(new QFrame(this)) {
  setFrameShape(NoFrame);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
  stack_ = new QGridLayout(frame_);
  stack_->setContentsMargins({});
  setWidget(frame_);
}

void PageArea::Add(Page* page) {
  page->hide();
  stack_->addWidget(page, 0, 0);
}

void PageArea::Show(Page* page) {
  if (shown_ != nullptr) HidePage(*shown_);
  shown_ = page;
  if (shown_ != nullptr) shown_->show();
  verticalScrollBar()->setValue(0);
  horizontalScrollBar()->setValue(0);
}

QWidget* FirstTabStop(Page& page) {
  for (QWidget* control = page.nextInFocusChain(); control != &page;
       control = control->nextInFocusChain()) {
    const bool reached = page.isAncestorOf(control) && control->isVisibleTo(&page) &&
                         control->isEnabled() && (control->focusPolicy() & Qt::TabFocus) != 0;
    if (reached) return control;
  }
  return nullptr;
}

}  // namespace mortane
