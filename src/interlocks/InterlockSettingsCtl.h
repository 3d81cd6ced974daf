// The interlock page: what follows what, and the factors of the proper values.
#pragma once

#include "widgets/ContainerPage.h"

namespace mortane {

class InterlockObservationCtl;
class InterlockOffsetCtl;
class InterlockOtherCtl;
class clsInterLockObservation;
class clsInterLockOffset;
class clsInterLockOther;
struct DriveFollowers;

// A section is enabled where its unit is; the page opens on the first such one. The drives' own
// pages change what the second section shows, so that one is loaded whenever the program shows the
// page, except on a microscope with controller unit 5.
class InterlockSettingsCtl : public ContainerPage {
  Q_OBJECT

 public:
  struct Units {
    clsInterLockObservation& observation;
    clsInterLockOther& other;
    clsInterLockOffset& offset;
  };

  InterlockSettingsCtl(const Units& units, const DriveFollowers& drives, QWidget* parent = nullptr);

  // A sub-page that is not loaded, since its section is not offered, is disabled: the first one is
  // on show all the same where no section is offered.
  void LoadData() override;

  Control<SectionBar> optSettings{"optSettings"};
  LateControl<InterlockObservationCtl> InterlockObservationCtl1{"InterlockObservationCtl1"};
  LateControl<InterlockOtherCtl> InterlockOtherCtl1{"InterlockOtherCtl1"};
  LateControl<InterlockOffsetCtl> InterlockOffsetCtl1{"InterlockOffsetCtl1"};

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void PlanSubPages(const Units& units, const DriveFollowers& drives);

  const clsInterLockOther& other_;
};

}  // namespace mortane
