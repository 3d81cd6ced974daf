#include "widgets/HidePage.h"

#include "widgets/Page.h"

namespace mortane {

void HidePage(Page& page) {
  page.hide();
  QWidget* focus = page.window()->focusWidget();
  if (focus != nullptr && page.isAncestorOf(focus)) focus->clearFocus();
}

}  // namespace mortane
