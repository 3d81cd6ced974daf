#include "app/MakePages.h"

#include <QPointer>
#include <memory>
#include <utility>

#include "app/CommandBoundary.h"
#include "app/SystemSettingsCtl.h"
#include "condensers/CondenserSettingsCtl.h"
#include "drives/ControlFocusDriveCtl.h"
#include "drives/ControlOtherCtl.h"
#include "drives/ControlXYStageCtl.h"
#include "drives/clsControlOther.h"
#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "filters/FilterItemLists.h"
#include "filters/FilterQubeSettingsCtl.h"
#include "hub/clsK70.h"
#include "interlocks/InterlockOtherCtl.h"
#include "interlocks/InterlockSettingsCtl.h"
#include "interlocks/clsInterLockOther.h"
#include "objectives/ObjectiveSettingsCtl.h"
#include "switches/SwitchSettingCtl.h"
#include "switches/TactorSwitchSettingCtl.h"

namespace mortane {
namespace {

KnobModes KnobsOf(clsK70& k70) {
  return {k70.COther.curAutoZ, k70.COther.curAutoXY};
}

DriveFollowers FollowersOf(clsK70& k70) {
  const auto follow = [](std::int32_t& mode) {
    return [&mode](bool follows) { mode = compensation::ModeOf(follows); };
  };
  return {follow(k70.CZDrive.curFocusCompensation), follow(k70.CXYDrive.curFocusCompensation)};
}

FollowNosepiece FocusFollower(clsK70& k70) {
  return [&k70](bool follows) {
    k70.ILOther.Status(accessory::kZFocusDrive, follows ? kInterlockOn : kInterlockOff);
  };
}

// `load` and `fill` are given what is kept between them.
template <typename DrivePage, typename Loading, typename Unit, typename Load, typename Fill>
LateDrive PlanDrive(const Unit& drive, std::function<DrivePage*()> make, Load load, Fill fill) {
  const auto loading = std::make_shared<Loading>();
  const auto made = std::make_shared<QPointer<DrivePage>>();
  loading->host = made;  // which nothing else keeps than the way to make the page
  return {.plan = {.make =
                       [=] {
                         DrivePage* page = make();
                         page->Restore(*loading);
                         *made = page;
                         return page;
                       },
                   .load =
                       [load, loading] {
                         load(*loading);
                         return true;
                       },
                   .fill = [fill, loading](
                               Page& page) { fill(static_cast<DrivePage&>(page), *loading); }},
          .SetNosePosition = [loading, &drive, weak = std::weak_ptr(made)] {
            const auto page = weak.lock();
            if (page && *page) {
              (*page)->SetNosePosition();
            } else {
              loading->SetNosePosition(drive);
            }
          }};
}

}  // namespace

SystemSettingsCtl* MakeSystemSettings(clsK70& k70, QWidget* parent) {
  return new SystemSettingsCtl(k70, parent);
}

ObjectiveSettingsCtl* MakeObjectiveSettings(clsK70& k70, QWidget* parent) {
  return new ObjectiveSettingsCtl(k70.curNosepiece, k70.DbNosepiece, k70.curLimit, parent);
}

FilterQubeSettingsCtl* MakeFilterQubeSettings(clsK70& k70, QWidget* parent) {
  const FilterItemLists items{k70.Exciter, k70.Dichroic, k70.Barrier};
  return new FilterQubeSettingsCtl(k70.curFilter, k70.dbFilter, items, parent);
}

CondenserSettingsCtl* MakeCondenserSettings(clsK70& k70, QWidget* parent) {
  return new CondenserSettingsCtl(k70.curCondenser, k70.dbcon, parent);
}

InterlockSettingsCtl* MakeInterlockSettings(clsK70& k70, QWidget* parent) {
  const InterlockSettingsCtl::Units units{k70.ILObservation, k70.ILOther, k70.ILOffset};
  return new InterlockSettingsCtl(units, FollowersOf(k70), parent);
}

ControlFocusDriveCtl* MakeFocusDrive(clsK70& k70) {
  return new ControlFocusDriveCtl(k70.CZDrive, FocusFollower(k70));
}

ControlXYStageCtl* MakeXYStage(clsK70& k70) {
  return new ControlXYStageCtl(k70.CXYDrive);
}

ControlOtherCtl* MakeOther(clsK70& k70) {
  return new ControlOtherCtl(k70.COther);
}

LateDrive PlanFocusDrive(clsK70& k70) {
  using Loading = ControlFocusDriveCtl::Loading;
  return PlanDrive<ControlFocusDriveCtl, Loading>(
      k70.CZDrive, [&k70] { return MakeFocusDrive(k70); },
      [&k70](Loading& loading) {
        ControlFocusDriveCtl::Load(loading, k70.CZDrive, FocusFollower(k70));
      },
      [](ControlFocusDriveCtl& page, const Loading& loading) { page.Fill(loading); });
}

LateDrive PlanXYStage(clsK70& k70) {
  return PlanDrive<ControlXYStageCtl, DriveLoading>(
      k70.CXYDrive, [&k70] { return MakeXYStage(k70); },
      [&k70](DriveLoading& loading) { ControlXYStageCtl::Load(loading, k70.CXYDrive); },
      [](ControlXYStageCtl& page, const DriveLoading&) { page.Fill(); });
}

LatePlan PlanOther(clsK70& k70) {
  const auto loading = std::make_shared<ControlOtherCtl::Loading>();
  return {.make = [&k70] { return MakeOther(k70); },
          .load = [&k70, loading] { return ControlOtherCtl::Load(*loading, k70.COther); },
          .fill = [loading](Page& page) { static_cast<ControlOtherCtl&>(page).Fill(*loading); }};
}

SwitchSettingCtl* MakeBodySwitches(clsK70& k70) {
  return new SwitchSettingCtl(k70.curSwitch, k70.curTactor, KnobsOf(k70));
}

TactorSwitchSettingCtl* MakeTactorSwitches(clsK70& k70, Prompts& prompts) {
  TactorProgram program;
  program.hasStage = [&k70] { return k70.CXYDrive.IsEnable(); };
  program.readFile = [&k70, &prompts](const std::string& path) {
    RunStep(prompts, [&] { k70.Tactor_ReadXML(path); });
  };
  program.writeFile = [&k70, &prompts](const std::string& path) {
    RunStep(prompts, [&] { k70.Tactor_WriteXML(path); });
  };
  return new TactorSwitchSettingCtl(k70.curTactor, k70.curSwitch, KnobsOf(k70), std::move(program));
}

}  // namespace mortane
