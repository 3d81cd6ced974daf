#include "widgets/CardPage.h"

#include <QVBoxLayout>

#include "widgets/Card.h"

namespace mortane {

CardPage::CardPage(const QString& caption, QWidget* parent) : Page(parent) {
  FrameBase = new Card(caption, this);
  auto* panel = new QVBoxLayout(this);
  panel->setContentsMargins({});
  panel->addWidget(FrameBase);
}

}  // namespace mortane
