#include "drawings/TurretPage.h"

#include <QVBoxLayout>
#include <utility>

#include "drawings/TurretDrawing.h"
#include "widgets/Card.h"
#include "widgets/ListBox.h"
#include "widgets/PairPanel.h"
#include "widgets/TabStrip.h"
#include "widgets/ValueBox.h"

namespace mortane {

using namespace Qt::StringLiterals;

TurretPage::TurretPage(const QString& caption, PlaceKind kind, const QString& turretName,
                       QWidget* parent)
    : CardPage(caption, parent),
      tabs_(new TabStrip(FrameBase)),
      panel_(new PairPanel(FrameBase)),
      values_(new ValueBox(FrameBase)) {
  turret_ = new TurretDrawing(kind, panel_);
  tabs_->setAccessibleName(u"Address"_s);
  turret_->setAccessibleName(turretName);
  FrameBase->body()->addWidget(tabs_);
  FrameBase->body()->addWidget(panel_, 1);
  FrameBase->body()->addWidget(values_);
  connect(tabs_, &TabStrip::chosen, this, [this] { ClickTab(); });
  connect(turret_, &TurretDrawing::chosen, this, [this](int index) {
    tabs_->setIndex(index);
    ClickTab();
  });
}

std::int32_t TurretPage::address() const {
  return tabs_->caption().toInt();
}

QWidget* TurretPage::listParent() const {
  return panel_;
}

void TurretPage::SetLists(QWidget* lists, int characters) {
  panel_->SetParts(turret_, 0, lists, 1);
  panel_->KeepShapeOfLeft();
  panel_->SetCharactersBeside(characters);
  // In a low window the page is scrolled, and the lists keep their rows.
  for (ListBox* list : panel_->findChildren<ListBox*>()) {
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
  }
}

void TurretPage::SetTabStops(ListBox* list, std::vector<int> dialogUnits) {
  stoppedList_ = list;
  tabStops_ = std::move(dialogUnits);
}

void TurretPage::showEvent(QShowEvent* event) {
  if (stoppedList_ != nullptr) stoppedList_->SetTabStops({tabStops_.begin(), tabStops_.end()});
  stoppedList_ = nullptr;
  CardPage::showEvent(event);
}

}  // namespace mortane
