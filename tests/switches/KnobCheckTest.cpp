// Knob modes and speed-change functions, in every case in which they meet.
#include "switches/KnobCheck.h"

#include <gtest/gtest.h>

#include <optional>

#include "switches/SwitchFunctions.h"
#include "switches/SwitchUnits.h"

namespace mortane::test {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kFocusAuto = "Focus Knob Setting is changed to Auto mode.";
constexpr const char* kFocusManual = "Focus Knob Setting is changed to Manual mode.";
constexpr const char* kStageAuto = "XYstage Knob Setting is changed to Auto mode.";
constexpr const char* kStageManual = "XYstage Knob Setting is changed to Manual mode.";

constexpr std::int16_t kFocusSpeed = 3;
constexpr std::int16_t kStageSpeed = 25;

// Two units without any function, and the fields that belong to the drives' controls.
struct KnobRig : Rig {
  explicit KnobRig(const char* bench) : Rig(bench) {
    Connect();
    prompts.AcceptAnyBox();
  }

  KnobCheck Check(TactorSearch search = TactorSearch::IfPresent) {
    return {units.curSwitch, units.curTactor, {curAutoZ, curAutoXY}, search, prompts};
  }
  Texts Run(TactorSearch search = TactorSearch::IfPresent) {
    prompts.ClearRecords();
    Check(search).Run();
    return Shown();
  }
  Texts Choose(std::int16_t code) {
    prompts.ClearRecords();
    EXPECT_TRUE(Check().Choose(code));
    return Shown();
  }
  // Each box is a plain one with "OK" alone, under the program's name.
  Texts Shown() const {
    Texts texts;
    for (const ScriptedPrompts::Box& box : prompts.Boxes()) {
      EXPECT_EQ(box, (ScriptedPrompts::Box{box.text, box::kOk, "", 0}));
      texts.push_back(box.text);
    }
    return texts;
  }

  std::int32_t curAutoZ = -1;
  std::int32_t curAutoXY = -1;
};

struct CheckRow {
  std::int32_t mode;
  bool found;
  std::int32_t after;
};

constexpr CheckRow kCheckRows[] = {{0, false, 1},  {0, true, 0},    {1, false, 1}, {1, true, 0},
                                   {-1, true, -1}, {-1, false, -1}, {2, true, 2},  {2, false, 2}};

struct KnobRow {
  std::int16_t code;
  std::int32_t KnobRig::*mode;
  std::int32_t KnobRig::*otherMode;
  const char* nowAuto;
  const char* nowManual;
};

constexpr KnobRow kKnobRows[] = {
    {kFocusSpeed, &KnobRig::curAutoZ, &KnobRig::curAutoXY, kFocusAuto, kFocusManual},
    {kStageSpeed, &KnobRig::curAutoXY, &KnobRig::curAutoZ, kStageAuto, kStageManual}};

TEST(KnobCheck, MakesEachKnobAgreeWithTheSwitches) {
  for (const KnobRow& knob : kKnobRows) {
    for (const CheckRow& row : kCheckRows) {
      KnobRig rig("Harbour");
      if (row.found) rig.units.curSwitch.Func(16, knob.code);
      rig.*knob.mode = row.mode;
      Texts expected;
      if (row.after != row.mode) expected = {row.after == 1 ? knob.nowAuto : knob.nowManual};
      EXPECT_EQ(rig.Run(), expected) << row.mode << row.found;
      EXPECT_EQ(rig.*knob.mode, row.after) << row.mode << row.found;
      EXPECT_EQ(rig.*knob.otherMode, -1);
      EXPECT_EQ(rig.Run(), Texts{}) << "a second check has nothing to tell";
    }
  }
}

TEST(KnobCheck, LooksAtEveryPositionOfTheBody) {
  for (std::int16_t i = 1; i <= 16; ++i) {
    KnobRig rig("Lantern");
    rig.units.curSwitch.Func(i, kFocusSpeed);
    rig.curAutoZ = 1;
    EXPECT_EQ(rig.Run(), Texts{kFocusManual}) << i;
  }
}

TEST(KnobCheck, LooksAtEveryPositionOfTheHandController) {
  for (std::int16_t i = 1; i <= 14; ++i) {
    KnobRig rig("Harbour");
    rig.units.curTactor.Func(i, kStageSpeed);
    rig.curAutoXY = 1;
    EXPECT_EQ(rig.Run(), Texts{kStageManual}) << i;
  }
}

TEST(KnobCheck, TakesNoOtherCodeForASpeedChange) {
  for (std::int16_t code = -3; code <= 61; ++code) {
    if (code == kFocusSpeed || code == kStageSpeed) continue;
    KnobRig rig("Harbour");
    rig.units.curSwitch.Func(1, code);
    rig.units.curTactor.Func(1, code);
    rig.curAutoZ = rig.curAutoXY = 1;
    EXPECT_EQ(rig.Run(), Texts{}) << code;
  }
}

struct SearchRow {
  const char* bench;
  TactorSearch search;
  bool found;
};

// The codes of a hand controller that is not there may come from a file.
TEST(KnobCheck, AsksForTheHandControllerOnTheBodysPageAlone) {
  for (const SearchRow& row : {SearchRow{"Harbour", TactorSearch::IfPresent, true},
                               SearchRow{"Harbour", TactorSearch::Always, true},
                               SearchRow{"Lantern", TactorSearch::IfPresent, false},
                               SearchRow{"Lantern", TactorSearch::Always, true}}) {
    KnobRig rig(row.bench);
    rig.units.curTactor.Func(2, kFocusSpeed);
    rig.units.curTactor.Func(3, kStageSpeed);
    rig.curAutoZ = rig.curAutoXY = 1;
    EXPECT_EQ(rig.Run(row.search), row.found ? (Texts{kFocusManual, kStageManual}) : Texts{});
    rig.curAutoZ = rig.curAutoXY = 0;
    EXPECT_EQ(rig.Run(row.search), row.found ? Texts{} : (Texts{kFocusAuto, kStageAuto}));
  }
}

TEST(KnobCheck, SearchesTheBodyWhetherItIsThereOrNot) {
  KnobRig rig("Hub");
  rig.units.curSwitch.Func(1, kFocusSpeed);
  rig.curAutoZ = 1;
  EXPECT_EQ(rig.Run(), Texts{kFocusManual});
}

TEST(KnobCheck, TellsOfTheFocusKnobFirstAndAfterTheChange) {
  KnobRig rig("Harbour");
  rig.curAutoZ = rig.curAutoXY = 0;
  std::vector<std::pair<std::int32_t, std::int32_t>> modes;
  rig.prompts.onCall = [&] { modes.emplace_back(rig.curAutoZ, rig.curAutoXY); };
  EXPECT_EQ(rig.Run(), (Texts{kFocusAuto, kStageAuto}));
  EXPECT_EQ(modes, (std::vector<std::pair<std::int32_t, std::int32_t>>{{1, 0}, {1, 1}}));
}

TEST(KnobCheck, AfterTheBodysDefaultsMakesAnAutomaticFocusKnobManual) {
  KnobRig rig("Harbour");
  const BodyCodes codes = BodyDefaults();
  for (std::int16_t i = 1; i <= clsDbSwitch::SwitchCount; ++i) {
    rig.units.curSwitch.Func(i, codes[static_cast<std::size_t>(i - 1)]);
  }
  rig.curAutoZ = 1;
  rig.curAutoXY = 1;
  EXPECT_EQ(rig.Run(), Texts{kFocusManual});
}

TEST(KnobCheck, AfterAllWasClearedMakesBothKnobsAutomatic) {
  KnobRig rig("Lantern");
  rig.curAutoZ = rig.curAutoXY = 0;
  EXPECT_EQ(rig.Run(), (Texts{kFocusAuto, kStageAuto}));
}

struct ChooseRow {
  std::int16_t code;
  std::int32_t focus;
  std::int32_t stage;
  Texts texts;
};

TEST(KnobCheck, AChosenSpeedChangeMakesItsKnobManual) {
  for (const ChooseRow& row :
       {ChooseRow{kFocusSpeed, 1, 1, {kFocusManual}}, ChooseRow{kStageSpeed, 1, 1, {kStageManual}},
        ChooseRow{kFocusSpeed, 0, 1, {}}, ChooseRow{kStageSpeed, 1, 0, {}},
        ChooseRow{kFocusSpeed, -1, 1, {}}, ChooseRow{kStageSpeed, 1, -1, {}},
        ChooseRow{4, 1, 1, {}}, ChooseRow{0, 1, 1, {}}}) {
    KnobRig rig("Harbour");
    rig.curAutoZ = row.focus;
    rig.curAutoXY = row.stage;
    EXPECT_EQ(rig.Choose(row.code), row.texts) << row.code;
    const bool focusChanged = row.texts == Texts{kFocusManual};
    const bool stageChanged = row.texts == Texts{kStageManual};
    EXPECT_EQ(rig.curAutoZ, focusChanged ? 0 : row.focus) << row.code;
    EXPECT_EQ(rig.curAutoXY, stageChanged ? 0 : row.stage) << row.code;
  }
}

TEST(KnobCheck, TellsOfAChosenSpeedChangeBeforeTheChange) {
  KnobRig rig("Harbour");
  rig.curAutoZ = 1;
  std::int32_t during = -1;
  rig.prompts.onCall = [&] { during = rig.curAutoZ; };
  rig.Choose(kFocusSpeed);
  EXPECT_EQ(during, 1);
  EXPECT_EQ(rig.curAutoZ, 0);
}

// The check that follows a choice finds a manual knob with its switch.
TEST(KnobCheck, AChoiceIsToldOnce) {
  KnobRig rig("Harbour");
  rig.curAutoZ = rig.curAutoXY = 1;
  rig.units.curSwitch.Func(5, kFocusSpeed);
  EXPECT_EQ(rig.Choose(kFocusSpeed), Texts{kFocusManual});
  EXPECT_EQ(rig.Run(), Texts{});
}

// Neither knob's mode tells of the other.
TEST(KnobCheck, AChoiceOfOneKnobLetsTheCheckTellOfTheOther) {
  KnobRig rig("Harbour");
  rig.curAutoZ = 1;
  rig.curAutoXY = 0;
  rig.units.curSwitch.Func(5, kFocusSpeed);
  EXPECT_EQ(rig.Choose(kFocusSpeed), Texts{kFocusManual});
  EXPECT_EQ(rig.Run(), Texts{kStageAuto});
}

TEST(KnobCheck, AsksTheControllerForNothing) {
  KnobRig rig("Harbour");
  rig.curAutoZ = rig.curAutoXY = 0;
  rig.Run();
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

// The page that it belongs to may be gone after a box.
TEST(KnobCheckEnd, ACheckThatIsDestroyedBehindItsBoxTellsAndChangesNothingMore) {
  for (const bool chosen : {true, false}) {
    KnobRig rig("Harbour");
    rig.prompts.AcceptAnyBox(false);
    rig.curAutoZ = rig.curAutoXY = chosen ? 1 : 0;
    std::optional<KnobCheck> check = rig.Check();
    rig.prompts.ExpectBox(chosen ? kFocusManual : kFocusAuto, box::kOk, Answer::Ok, {},
                          [&check] { check.reset(); });
    if (chosen) {
      EXPECT_FALSE(check->Choose(kFocusSpeed));
    } else {
      check->Run();
    }
    EXPECT_FALSE(check.has_value());
    EXPECT_EQ(rig.curAutoXY, chosen ? 1 : 0);
  }
}

}  // namespace
}  // namespace mortane::test
