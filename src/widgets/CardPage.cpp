#include "widgets/CardPage.h"

#include <QVBoxLayout>

#include "widgets/Card.h"
#include "widgets/Named.h"

namespace mortane {

CardPage::CardPage(const QString& caption, QWidget* parent)
    : Page(parent), FrameBase(Named(new Card(caption, this), "FrameBase")) {
  auto* panel = new QVBoxLayout(this);
  panel->setContentsMargins({});
  panel->addWidget(FrameBase);
}

}  // namespace mortane
