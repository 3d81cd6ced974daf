// The boxes about knob modes, in number, order and text, as acts on both pages bring them about.
#include <gtest/gtest.h>

#include "gui/support/PageActs.h"
#include "gui/switches/SwitchPages.h"
#include "widgets/ComboBox.h"

namespace mortane::test {
namespace {

using Texts = std::vector<std::string>;

const std::string kFocusAuto = "Focus Knob Setting is changed to Auto mode.";
const std::string kFocusManual = "Focus Knob Setting is changed to Manual mode.";
const std::string kStageAuto = "XYstage Knob Setting is changed to Auto mode.";
const std::string kStageManual = "XYstage Knob Setting is changed to Manual mode.";

constexpr const char* kDashes = "-----------------";
constexpr const char* kFocusSpeed = "Z Focus Knob Speed Change";
constexpr const char* kStageSpeed = "XYstage Knob Speed Change";

// One switch of each unit has a function, the others have none.
struct Codes {
  std::int16_t body = 0;
  std::int16_t hand = 0;
};

struct Modes {
  std::int32_t focus;
  std::int32_t stage;
};

struct KnobRow {
  const char* bench;
  Codes codes;
  Modes modes;
  const char* act;  // the function that a push switch is given, or the button that is clicked
  Texts boxes;
  Modes after;
};

void PrintTo(const KnobRow& row, std::ostream* stream) {
  *stream << row.bench << " body " << row.codes.body << " hand " << row.codes.hand << " modes "
          << row.modes.focus << row.modes.stage << ": " << row.act;
}

// Gives SW_6 or "3 (A)", whose codes are not those of the rows above, a function, or clicks.
void Act(SwitchRowsCtl& page, int pushRow, const std::string& act) {
  if (act == "All Clear") {
    ClickButton(*page.cmdAllClear);
  } else if (act == "Default") {
    ClickButton(*page.cmdDefault);
  } else {
    ClickRow(*page.ListView1, pushRow);
    Enter(*page.ComboFunction, QString::fromStdString(act));
  }
}

void ExpectBoxes(const KnobRow& row, SwitchRowsCtl* (*make)(SwitchPageUnits& k70), int pushRow) {
  PageRig rig(row.bench);
  SetCodes(rig.k70().curSwitch, 0);
  SetCodes(rig.k70().curTactor, 0);
  rig.k70().curSwitch.Func(16, row.codes.body);
  rig.k70().curTactor.Func(4, row.codes.hand);
  SwitchRowsCtl& page = rig.Show(make(rig.k70()));
  std::int32_t& focus = rig.k70().COther.curAutoZ;
  std::int32_t& stage = rig.k70().COther.curAutoXY;
  focus = row.modes.focus;
  stage = row.modes.stage;
  for (const std::string& text : row.boxes) rig.prompts.ExpectBox(text, box::kOk);
  Act(page, pushRow, row.act);
  EXPECT_EQ(rig.prompts.Boxes().size(), row.boxes.size());
  EXPECT_EQ(focus, row.after.focus);
  EXPECT_EQ(stage, row.after.stage);
}

class BodyKnobs : public testing::TestWithParam<KnobRow> {};

TEST_P(BodyKnobs, AreToldOfOnceEach) {
  ExpectBoxes(
      GetParam(), [](SwitchPageUnits& k70) -> SwitchRowsCtl* { return MakeSwitchSettingCtl(k70); },
      9);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BodyKnobs,
    testing::Values(
        // A chosen speed change: told once, although the check follows.
        KnobRow{"Harbour", {}, {1, 1}, kFocusSpeed, {kFocusManual}, {0, 1}},
        KnobRow{"Harbour", {}, {1, 1}, kStageSpeed, {kStageManual}, {1, 0}},
        KnobRow{"Harbour", {}, {0, 1}, kFocusSpeed, {}, {0, 1}},
        KnobRow{"Harbour", {}, {1, 0}, kStageSpeed, {}, {1, 0}},
        KnobRow{"Harbour", {}, {-1, -1}, kFocusSpeed, {}, {-1, -1}},
        KnobRow{"Harbour", {}, {-1, -1}, kStageSpeed, {}, {-1, -1}},
        // The check after a choice tells of the other knob, the focus knob first.
        KnobRow{"Harbour", {}, {1, 0}, kFocusSpeed, {kFocusManual, kStageAuto}, {0, 1}},
        KnobRow{"Harbour", {}, {0, 1}, kStageSpeed, {kStageManual, kFocusAuto}, {1, 0}},
        KnobRow{"Harbour", {}, {0, 0}, kDashes, {kFocusAuto, kStageAuto}, {1, 1}},
        KnobRow{"Harbour", {}, {0, 0}, "Z Escape", {kFocusAuto, kStageAuto}, {1, 1}},
        KnobRow{"Harbour", {}, {1, 1}, "Z Escape", {}, {1, 1}},
        // Another switch of the body has the function.
        KnobRow{"Harbour", {3, 0}, {0, 0}, kDashes, {kStageAuto}, {0, 1}},
        KnobRow{"Harbour", {25, 0}, {0, 0}, kDashes, {kFocusAuto}, {1, 0}},
        KnobRow{"Harbour", {3, 0}, {1, 1}, kDashes, {kFocusManual}, {0, 1}},
        KnobRow{"Harbour", {25, 0}, {1, 1}, kDashes, {kStageManual}, {1, 0}},
        // A switch of the hand controller has it, which counts only if there is one.
        KnobRow{"Harbour", {0, 3}, {0, 0}, kDashes, {kStageAuto}, {0, 1}},
        KnobRow{"Harbour", {0, 25}, {1, 1}, kDashes, {kStageManual}, {1, 0}},
        KnobRow{"Lantern", {0, 3}, {0, 0}, kDashes, {kFocusAuto, kStageAuto}, {1, 1}},
        KnobRow{"Lantern", {0, 25}, {1, 1}, kDashes, {}, {1, 1}},
        // The buttons.
        KnobRow{"Lantern", {3, 0}, {0, 0}, "All Clear", {kFocusAuto, kStageAuto}, {1, 1}},
        KnobRow{"Harbour", {3, 25}, {0, 0}, "All Clear", {kFocusAuto}, {1, 0}},
        KnobRow{"Harbour", {}, {1, 1}, "All Clear", {}, {1, 1}},
        KnobRow{"Harbour", {}, {-1, -1}, "All Clear", {}, {-1, -1}},
        KnobRow{"Harbour", {}, {1, 1}, "Default", {kFocusManual}, {0, 1}},
        KnobRow{"Harbour", {}, {1, 0}, "Default", {kFocusManual, kStageAuto}, {0, 1}},
        KnobRow{"Harbour", {}, {0, 1}, "Default", {}, {0, 1}},
        KnobRow{"Harbour", {0, 25}, {1, 1}, "Default", {kFocusManual, kStageManual}, {0, 0}}));

class TactorKnobs : public testing::TestWithParam<KnobRow> {};

TEST_P(TactorKnobs, AreToldOfOnceEach) {
  ExpectBoxes(
      GetParam(),
      [](SwitchPageUnits& k70) -> SwitchRowsCtl* { return MakeTactorSwitchSettingCtl(k70); }, 5);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TactorKnobs,
    testing::Values(
        KnobRow{"Harbour", {}, {1, 1}, kFocusSpeed, {kFocusManual}, {0, 1}},
        KnobRow{"Harbour", {}, {1, 1}, kStageSpeed, {kStageManual}, {1, 0}},
        KnobRow{"Harbour", {}, {0, 0}, kFocusSpeed, {kStageAuto}, {0, 1}},
        KnobRow{"Harbour", {}, {0, 0}, kStageSpeed, {kFocusAuto}, {1, 0}},
        KnobRow{"Harbour", {}, {1, 0}, kFocusSpeed, {kFocusManual, kStageAuto}, {0, 1}},
        KnobRow{"Harbour", {}, {0, 1}, kStageSpeed, {kStageManual, kFocusAuto}, {1, 0}},
        KnobRow{"Harbour", {}, {0, 0}, kDashes, {kFocusAuto, kStageAuto}, {1, 1}},
        KnobRow{"Harbour", {}, {-1, -1}, kFocusSpeed, {}, {-1, -1}},
        KnobRow{"Harbour", {3, 0}, {0, 0}, kDashes, {kStageAuto}, {0, 1}},
        KnobRow{"Harbour", {25, 3}, {1, 1}, kDashes, {kFocusManual, kStageManual}, {0, 0}},
        // Its own switches count, present or not: the codes may come from a file.
        KnobRow{"Lantern", {0, 3}, {0, 0}, kDashes, {kStageAuto}, {0, 1}},
        KnobRow{"Lantern", {0, 25}, {1, 1}, kDashes, {kStageManual}, {1, 0}},
        KnobRow{"Harbour", {0, 3}, {0, 0}, "All Clear", {kFocusAuto, kStageAuto}, {1, 1}},
        KnobRow{"Harbour", {3, 25}, {0, 0}, "All Clear", {kStageAuto}, {0, 1}},
        KnobRow{"Harbour", {}, {1, 1}, "Default", {kFocusManual, kStageManual}, {0, 0}},
        KnobRow{"Harbour", {}, {0, 0}, "Default", {}, {0, 0}},
        // A type whose defaults leave all switches without a function.
        KnobRow{"Outpost", {0, 3}, {0, 0}, "Default", {kFocusAuto, kStageAuto}, {1, 1}}));

struct WrittenRow {
  SwitchRowsCtl* (*make)(SwitchPageUnits& k70);
  int pushRow;
  const char* act;
  std::int32_t mode;  // of the focus knob, before
  std::string box;
  const char* function;  // of the row while the box stands
};

TEST(KnobsAndRows, TheRowsAreWrittenBeforeTheCheckTellsOfAKnob) {
  const auto body = [](SwitchPageUnits& k70) -> SwitchRowsCtl* {
    return MakeSwitchSettingCtl(k70);
  };
  const auto hand = [](SwitchPageUnits& k70) -> SwitchRowsCtl* {
    return MakeTactorSwitchSettingCtl(k70);
  };
  for (const WrittenRow& row :
       {WrittenRow{body, 5, "Z Escape", 0, kFocusAuto, "Z Escape"},
        WrittenRow{body, 5, "All Clear", 0, kFocusAuto, kDashes},
        WrittenRow{body, 5, "Default", 1, kFocusManual, "Shutter OPEN/CLOSE"},
        WrittenRow{hand, 2, "Z Escape", 0, kFocusAuto, "Z Escape"},
        WrittenRow{hand, 2, "All Clear", 0, kFocusAuto, kDashes},
        WrittenRow{hand, 2, "Default", 1, kFocusManual, kStageSpeed}}) {
    PageRig rig("Harbour");
    SetCodes(rig.k70().curSwitch, 50);
    SetCodes(rig.k70().curTactor, 50);
    SwitchRowsCtl& page = rig.Show(row.make(rig.k70()));
    rig.k70().COther.curAutoZ = row.mode;
    rig.k70().COther.curAutoXY = -1;
    std::string during;
    rig.prompts.ExpectBox(row.box, box::kOk, Answer::Ok, {},
                          [&] { during = page.ListView1->cell(row.pushRow, 1).toStdString(); });
    Act(page, row.pushRow, row.act);
    EXPECT_EQ(during, row.function) << row.act << row.pushRow;
  }
}

// A dial's function tells of no knob.
TEST(KnobsAndDials, HaveNothingToDoWithEachOther) {
  for (SwitchRowsCtl* (*make)(SwitchPageUnits&) :
       {+[](SwitchPageUnits& k70) -> SwitchRowsCtl* { return MakeSwitchSettingCtl(k70); },
        +[](SwitchPageUnits& k70) -> SwitchRowsCtl* { return MakeTactorSwitchSettingCtl(k70); }}) {
    PageRig rig("Harbour");
    SetCodes(rig.k70().curSwitch, 0);
    SetCodes(rig.k70().curTactor, 0);
    rig.k70().COther.curAutoZ = rig.k70().COther.curAutoXY = 0;
    SwitchRowsCtl& page = rig.Show(make(rig.k70()));
    ClickRow(*page.ListView1, 0);
    for (int entry = 0; entry < page.ComboCWCCW->count(); ++entry) {
      ChooseRow(*page.ComboCWCCW, entry);
    }
    EXPECT_TRUE(rig.prompts.Boxes().empty());
    EXPECT_EQ(rig.k70().COther.curAutoZ, 0);
    EXPECT_EQ(rig.k70().COther.curAutoXY, 0);
  }
}

}  // namespace
}  // namespace mortane::test
