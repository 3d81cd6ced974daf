// The sub-pages of the drives and controls, made late: what stands for one until then does to the
// model and to the controller what the page would do.
#include <gtest/gtest.h>

#include <QWidget>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "app/ControlSettingsCtl.h"
#include "app/FormServices.h"
#include "app/MakePages.h"
#include "drives/clsControlOther.h"
#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "gui/support/LatePages.h"
#include "gui/support/ShownControls.h"
#include "interlocks/clsInterLockOther.h"
#include "model/DriveCompensation.h"
#include "support/Rig.h"
#include "support/ScriptedJoystick.h"
#include "support/UnitText.h"

namespace mortane::test {
namespace {

enum class Make { BeforeLoading, Later };

// The page of the drives and controls, loaded but not shown; its sub-pages may be made before.
struct ControlsRig : Rig {
  explicit ControlsRig(const char* bench) : Rig(bench) {
    prompts.AcceptAnyBox();
    ConnectAndReceive();
  }
  void Load(Make make) {
    if (make == Make::BeforeLoading) MakeAllPages(page);
    page.LoadData();
    prompts.ClearRecords();
    journal.Clear();
  }

  ScriptedJoystick joystick;
  ControlSettingsCtl page{{k70, library, prompts, joystick, {}},
                          MakeControlSubPages({k70, library, prompts, joystick, {}})};
};

// Another page may change the compensation, and the interlock that goes with it, in between.
TEST(LateControls, TheMakingStoresNothingAndTheNextLoadingWhatItStoresOnAMadePage) {
  for (const Make make : {Make::BeforeLoading, Make::Later}) {
    ControlsRig rig("Harbour");
    rig.Load(make);
    clsControlZDrive& drive = rig.k70.CZDrive;
    ASSERT_EQ(drive.curFocusCompensation, compensation::kRelative);
    ASSERT_EQ(rig.k70.ILOther.Status(accessory::kZFocusDrive), kInterlockOn);
    drive.curFocusCompensation = compensation::kNone;
    MakeAllPages(rig.page);
    EXPECT_EQ(drive.curFocusCompensation, compensation::kNone);
    EXPECT_EQ(rig.k70.ILOther.Status(accessory::kZFocusDrive), kInterlockOn);
    rig.page.ControlFocusDriveCtl1->LoadData();
    EXPECT_EQ(drive.curFocusCompensation, compensation::kNone);
    EXPECT_EQ(rig.k70.ILOther.Status(accessory::kZFocusDrive), kInterlockOff);
  }
}

TEST(LateControls, AnAddressWithoutARowSelectsNone) {
  for (const Make make : {Make::BeforeLoading, Make::Later}) {
    for (const std::int32_t address : {0, 1, 7, 8, 10}) {
      ControlsRig rig("Attic");
      rig.Load(make);
      rig.instrument().Accessory(accessory::kNosepiece).value = address;
      rig.page.SetNosePostiton();
      const bool hasRow = address >= 1 && address <= 7;
      EXPECT_EQ(rig.prompts.Log(), hasRow ? (Lines{"pointer 11", "pointer 0"}) : Lines{})
          << address;
    }
  }
}

// A sub-page of a host that is never shown.
struct HostedPage {
  explicit HostedPage(LatePlan plan) {
    late.Plan(std::move(plan));
    late.SetPlace(host, [this](Page& page) { page.setParent(&host); });
  }

  QWidget host;
  LateControl<Page> late{"SubPage1"};
};

using PlanOf = LateDrive (*)(clsK70& k70);

// What loading a drive and selecting the nosepiece's row call, ask and store, and what is shown.
std::vector<Lines> LoadDrive(const std::string& bench, PlanOf planOf, Make make) {
  Rig rig(bench);
  rig.prompts.AcceptAnyBox();
  rig.ConnectAndReceive();
  rig.prompts.ClearRecords();
  const LateDrive drive = planOf(rig.k70);
  HostedPage hosted(drive.plan);
  LateControl<Page>& late = hosted.late;
  if (make == Make::BeforeLoading) late.get();
  late.LoadData();
  drive.SetNosePosition();
  const Lines stored{FileTextOf(rig.k70.CZDrive), FileTextOf(rig.k70.CXYDrive),
                     FileTextOf(rig.k70.ILOther)};
  return {rig.journal.Lines(), rig.prompts.Log(), stored, ShownIn(*late)};
}

TEST(LateControls, TheDrivesAreLoadedAsOnMadePagesOnEveryInstrument) {
  for (const std::string& bench : benches::Names()) {
    for (const PlanOf planOf : {PlanFocusDrive, PlanXYStage}) {
      EXPECT_EQ(LoadDrive(bench, planOf, Make::Later),
                LoadDrive(bench, planOf, Make::BeforeLoading))
          << bench << (planOf == PlanFocusDrive ? " focus" : " stage");
    }
  }
}

struct EndRow {
  const char* page;
  LatePlan (*plan)(clsK70& k70);
  const char* message;
  int style;
};

// As the page itself, which makes no further call when it has been destroyed.
TEST(LateControls, WhatStandsForAPageCallsNothingAfterItsEndBehindABox) {
  for (const EndRow& row :
       {EndRow{"ControlFocusDriveCtl1", [](clsK70& k70) { return PlanFocusDrive(k70).plan; },
               "MoveStart Error!!", box::kCritical},
        EndRow{"ControlXYStageCtl1", [](clsK70& k70) { return PlanXYStage(k70).plan; },
               "MoveStart Error!!", box::kCritical},
        EndRow{"ControlOtherCtl1", PlanOther, "Data_Load Error3", box::kOk}}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    auto late = std::make_unique<LateControl<Page>>(row.page);
    late->Plan(row.plan(rig.k70));
    rig.faults.FailCall(1);
    rig.prompts.ExpectBox(row.message, row.style, Answer::Ok, "", [&late] { late.reset(); });
    late->LoadData();
    EXPECT_EQ(late, nullptr) << row.page;
    EXPECT_EQ(rig.journal.CallCount(), 1U) << row.page;
    EXPECT_TRUE(rig.prompts.AllAnswersUsed());
  }
}

// The other controls

using Change = std::function<void(clsControlOther& other)>;

Change Set(std::int32_t clsControlOther::*field, std::int32_t value) {
  return [=](clsControlOther& other) { other.*field = value; };
}

// A settings file may name the mode of a knob that is not there.
Change SetKnobs(std::int32_t focus, std::int32_t stage) {
  return [=](clsControlOther& other) {
    other.curAutoZ = focus;
    other.curAutoXY = stage;
  };
}

Change SetFiber(std::int32_t enabled, std::int32_t led) {
  return [=](clsControlOther& other) {
    other.curFiberStatus = true;
    other.curFiberSwEnable = enabled;
    other.curFiberLED = led;
  };
}

// Values that controls can show, and values that no control stands for or that one of them changes.
const std::vector<Change>& OtherValues() {
  using Unit = clsControlOther;
  static const std::vector<Change> changes{
      [](Unit&) {},
      SetKnobs(2, 2),
      SetKnobs(-1, -1),
      SetKnobs(-1, 1),
      SetKnobs(1, -1),
      Set(&Unit::curSensitivityZ, 4),
      Set(&Unit::curSensitivityXY, 0),
      Set(&Unit::curSensitivityXY, 4),
      Set(&Unit::curSensitivityXY, -2),
      Set(&Unit::curBuzzer, 2),
      Set(&Unit::curBuzzer, 3),
      Set(&Unit::curBuzzer, -2),
      Set(&Unit::curSwEnable, 2),
      Set(&Unit::curSwEnable, -2),
      Set(&Unit::curTactorSwEnable, 2),
      Set(&Unit::curR_TLPOSwEnable, 2),
      Set(&Unit::curR_TLPOLED, 3),
      SetFiber(1, 2),
      SetFiber(-1, 0),
      SetFiber(2, 0),
      SetFiber(0, -1),
      SetFiber(0, 3),
  };
  return changes;
}

std::vector<std::int32_t> ValuesOf(const clsControlOther& other) {
  return {other.curAutoZ,          other.curAutoXY,         other.curSensitivityZ,
          other.curSensitivityXY,  other.curBuzzer,         other.curSwEnable,
          other.curTactorSwEnable, other.curR_TLPOSwEnable, other.curR_TLPOLED,
          other.curFiberSwEnable,  other.curFiberLED};
}

// What the page, or what stands for it, has asked and stored, and what it shows once it is made.
struct OtherSight {
  Lines calls;
  Lines asked;
  std::vector<std::int32_t> values;
  Lines shown;

  bool operator==(const OtherSight&) const = default;
};

void PrintTo(const OtherSight& sight, std::ostream* stream) {
  *stream << testing::PrintToString(sight.calls) << testing::PrintToString(sight.asked)
          << testing::PrintToString(sight.values) << testing::PrintToString(sight.shown);
}

// A bench with a remote beside what it has.
Bench WithRemote(const char* name) {
  Bench bench = benches::Named(name);
  bench.instruments.back().Unit(7) = {1, "V1.00"};
  return bench;
}

// What is seen after the loading, after the making, and after one more loading. The call of that
// number fails, none for 0.
std::vector<OtherSight> LoadOther(const char* bench, const Change& change, std::size_t failing,
                                  Make make) {
  Rig rig(WithRemote(bench));
  rig.prompts.AcceptAnyBox();
  rig.ConnectAndReceive();
  change(rig.k70.COther);
  HostedPage hosted(PlanOther(rig.k70));
  LateControl<Page>& late = hosted.late;
  if (make == Make::BeforeLoading) late.get();
  rig.prompts.ClearRecords();
  if (failing > 0) rig.faults.FailCall(failing);
  std::vector<OtherSight> sights;
  const auto see = [&](Lines shown) {
    sights.push_back(
        {rig.journal.Lines(), rig.prompts.Log(), ValuesOf(rig.k70.COther), std::move(shown)});
  };
  late.LoadData();
  see({});
  see(ShownIn(*late));
  late->LoadData();
  see(ShownIn(*late));
  return sights;
}

void ExpectAsOnAMadePage(const char* bench, const Change& change, std::size_t failing = 0) {
  EXPECT_EQ(LoadOther(bench, change, failing, Make::Later),
            LoadOther(bench, change, failing, Make::BeforeLoading));
}

TEST(LateControls, TheOtherControlsAreLoadedAsOnAMadePageWhateverTheirValues) {
  for (const char* bench : {"Harbour", "Hollow", "Pair"}) {
    for (std::size_t i = 0; i < OtherValues().size(); ++i) {
      SCOPED_TRACE(std::string(bench) + " values " + std::to_string(i));
      ExpectAsOnAMadePage(bench, OtherValues()[i]);
    }
  }
}

TEST(LateControls, TheOtherControlsAreLoadedAsOnAMadePageWhicheverCallFails) {
  for (const char* bench : {"Harbour", "Lantern", "Pair", "Watch", "Hub"}) {
    for (const std::size_t failing : {1U, 2U}) {
      SCOPED_TRACE(std::string(bench) + " call " + std::to_string(failing));
      ExpectAsOnAMadePage(bench, OtherValues().front(), failing);
    }
  }
}

}  // namespace
}  // namespace mortane::test
