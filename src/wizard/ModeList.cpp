#include "wizard/ModeList.h"

#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "widgets/Paint.h"
#include "widgets/RowDelegate.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

// Draws the rows of a disabled list as enabled, since disabled rows mean what is not fitted.
class ModeDelegate : public RowDelegate {
 public:
  explicit ModeDelegate(ModeList* list) : RowDelegate(list), list_(*list) {}

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    RowDelegate::initStyleOption(option, index);
    QPalette& palette = option->palette;
    palette.setCurrentColorGroup(QPalette::Active);
    if (!list_.isChosen()) {
      const QColor resting = palette.color(QPalette::Disabled, QPalette::Text);
      for (const QPalette::ColorRole role : {QPalette::Text, QPalette::Dark, QPalette::Highlight}) {
        palette.setColor(QPalette::All, role, resting);
      }
    }
    option->state |= QStyle::State_Enabled;
    if (!list_.isEnabled()) option->state &= ~(QStyle::State_Selected | QStyle::State_MouseOver);
  }

 private:
  const ModeList& list_;
};

}  // namespace

ModeList::ModeList(QWidget* parent, std::function<void()> onRelease)
    : ListBox(parent), onRelease_(std::move(onRelease)) {
  setItemDelegate(new ModeDelegate(this));
}

void ModeList::SetChosen(bool chosen) {
  chosen_ = chosen;
  update();
  viewport()->update();
}

bool ModeList::event(QEvent* event) {
  const bool handled = ListBox::event(event);
  if (event->type() == QEvent::Paint && chosen_ && !hasFocus()) {
    QPainter painter(this);
    DrawBox(painter, rect(), {}, {ToneColor(Tone::Amber), 2, grid::kFieldCorner});
  }
  return handled;
}

void ModeList::mouseReleaseEvent(QMouseEvent* event) {
  const bool over = viewport()->rect().contains(event->position().toPoint());
  ListBox::mouseReleaseEvent(event);
  if (over && onRelease_) onRelease_();
}

}  // namespace mortane
