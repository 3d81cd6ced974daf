// The sub-page that tells what follows a change of the observation method.
#pragma once

#include <array>

#include "interlocks/ObservationAccessories.h"
#include "widgets/CardPage.h"
#include "widgets/Control.h"

class QLabel;

namespace mortane {

class CheckToggle;
class ToggleTile;
class clsInterLockObservation;

// The switch of an accessory that takes no part keeps the side that it had.
class InterlockObservationCtl : public CardPage {
  Q_OBJECT

 public:
  static constexpr std::size_t kSwitchCount = kObservationAccessories.size();

  explicit InterlockObservationCtl(clsInterLockObservation& interlocks, QWidget* parent = nullptr);

  void LoadData() override;

  Controls<QLabel, kSwitchCount> lblAccessories{"lblAccessories"};
  Controls<CheckToggle, kSwitchCount> CheckAccessories{"CheckAccessories"};

 private:
  ToggleTile* BuildTile(const ObservationAccessory& row);

  clsInterLockObservation& interlocks_;
  std::array<ToggleTile*, kSwitchCount> tiles_;
};

}  // namespace mortane
