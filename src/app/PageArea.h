// Where a window shows its pages.
#pragma once

#include <QScrollArea>

class QFrame;
class QGridLayout;

namespace mortane {

class Page;

// The pages lie on top of each other, and at most one of them is visible; one that is larger than
// the area scrolls.
class PageArea : public QScrollArea {
 public:
  explicit PageArea(QWidget* parent);

  // The parent of the pages.
  QFrame* frame() const { return frame_; }
  // Hides the page and takes it in.
  void Add(Page* page);
  // Instead of the page on show; nullptr: none.
  void Show(Page* page);

 private:
  QFrame* frame_;
  QGridLayout* stack_;
  Page* shown_ = nullptr;
};

// The control of a page that the Tab key reaches first; nullptr: none.
QWidget* FirstTabStop(Page& page);

}  // namespace mortane
