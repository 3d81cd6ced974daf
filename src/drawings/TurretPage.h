// The base of the pages that assign what stands at each address of a turret.
#pragma once

#include <cstdint>
#include <vector>

#include "drawings/TurretItem.h"
#include "widgets/CardPage.h"
#include "widgets/Control.h"

namespace mortane {

class ListBox;
class PairPanel;
class TabStrip;
class TurretDrawing;
class ValueBox;

// From the top of the card: a tab for each address, the turret with the lists that are chosen from,
// and the values of what was chosen. Tab and turret choose the address together.
class TurretPage : public CardPage {
  Q_OBJECT

 protected:
  TurretPage(const QString& caption, PlaceKind kind, const QString& turretName, QWidget* parent);

  [[nodiscard]] TabStrip* tabs() const { return tabs_; }
  [[nodiscard]] TurretDrawing* turret() const { return turret_; }
  [[nodiscard]] ValueBox* values() const { return values_; }
  [[nodiscard]] std::int32_t address() const;  // of the selected tab; 0 without one

  // Of what SetLists takes.
  [[nodiscard]] QWidget* listParent() const;
  // They stand beside the turret where there is room for that many average characters.
  void SetLists(QWidget* lists, int characters);
  // Columns of the list that begin at these stops at least, in dialog units, once the page is
  // shown.
  void SetTabStops(ListBox* list, std::vector<int> dialogUnits);

  // The person has chosen an address.
  virtual void ClickTab() = 0;

  void showEvent(QShowEvent* event) override;

 private:
  TabStrip* tabs_;
  PairPanel* panel_;
  Control<TurretDrawing> turret_{"turret"};
  ValueBox* values_;
  ListBox* stoppedList_ = nullptr;  // until the page is shown
  std::vector<int> tabStops_;
};

}  // namespace mortane
