// Random walks over the whole window. MORTANE_MONKEY_EVENTS and MORTANE_MONKEY_SEED make longer and
// other ones.
#include <gtest/gtest.h>

#include <QApplication>
#include <algorithm>
#include <cstdlib>

#include "Monkey.h"
#include "app/MainPages.h"
#include "app/MortaneMainForm.h"
#include "common/Text.h"
#include "condensers/clsCondenser.h"
#include "drives/clsControlOther.h"
#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "filters/clsFilter.h"
#include "interlocks/clsInterLockObservation.h"
#include "interlocks/clsInterLockOffset.h"
#include "interlocks/clsInterLockOther.h"
#include "objectives/clsLimitation.h"
#include "objectives/clsNosepiece.h"
#include "support/Rig.h"
#include "support/ScriptedJoystick.h"
#include "support/TempFolder.h"
#include "switches/clsControlTactor.h"
#include "switches/clsDbSwitch.h"

namespace mortane::test {
namespace {

int Setting(const char* name, int otherwise) {
  const char* text = std::getenv(name);
  return text == nullptr ? otherwise : std::atoi(text);
}

bool BeginsWithAny(const std::string& text, const std::vector<std::string_view>& openings) {
  return std::any_of(openings.begin(), openings.end(),
                     [&](std::string_view opening) { return text.starts_with(opening); });
}

// Any other box would be one that the program does not have.
const std::vector<std::string_view> kBoxes{
    "Can't Load Xml",
    "XML File Write Error",
    "XML Tactor DataFile Write Error",
    "Cannot write ",
    "The manual is not installed.",
    "Please Input right value.",
    "This position is related with Observation Method.",
    "Exit Setup?",
    "Other Application has already used this Microscope.",
    "Device Connect Error.",
    "Not Available",
    "MoveStart Error!!",
    "Move Stop?",
    "Please move Focus Position",
    "Upper Limit lower than Lower Limit.",
    "Focus Knob Setting is changed to",
    "XYstage Knob Setting is changed to",
};

// From the instrument whose values are odd, too.
const std::vector<std::string_view> kBoxesOfOddValues{
    "*** DbFilter.DataError", "Nosepieces Optional (Mortane:D)", "Nosepiece Optional["};

bool Within(std::int32_t value, std::int32_t least, std::int32_t most) {
  return value >= least && value <= most;
}

// The first setting that is out of its range, or nothing.
std::string OutOfRange(const clsK70& k70) {
  for (std::int32_t i = 1; i <= k70.curNosepiece.Count; ++i) {
    if (!Within(k70.curNosepiece.code(i), 0, kHighestCode)) return "objective";
  }
  for (std::int32_t i = 1; i <= k70.curFilter.Count; ++i) {
    if (!Within(k70.curFilter.code(i), 0, kHighestCode)) return "cube";
  }
  for (std::int32_t i = 1; i <= k70.curCondenser.Count; ++i) {
    if (!Within(k70.curCondenser.code(i), 0, kCondenserOptionBase + kOptionPositions)) {
      return "condenser";
    }
  }
  for (const std::int32_t limit :
       {k70.curLimit.curIncrease, k70.curLimit.curSkip, k70.curLimit.curImmersion}) {
    if (!Within(limit, -1, 2)) return "limit";
  }
  for (std::int32_t i = 1; i <= accessory::kCount; ++i) {
    if (i <= 11 && !Within(k70.ILObservation.Status(i), -1, 1)) return "observation";
    for (const std::int32_t state :
         {k70.ILOther.Status(i), k70.ILOther.LightPathStatus(i), k70.ILOther.ZoomStatus(i)}) {
      if (!Within(state, -1, 1)) return "interlock";
    }
  }
  for (const std::int32_t offset : {k70.ILOffset.curND, k70.ILOffset.curFStop,
                                    k70.ILOffset.curEpiFStop, k70.ILOffset.curAStop}) {
    if (!Within(offset, -1, 9)) return "offset";
  }
  if (!Within(k70.CZDrive.curFocusCompensation, -1, 3)) return "focus compensation";
  if (!Within(k70.CXYDrive.curFocusCompensation, -1, 3)) return "stage compensation";
  if (!Within(k70.CZDrive.curLowerLimit, -1, 1)) return "lower limit";
  if (!Within(k70.COther.curBuzzer, -1, 2)) return "buzzer";
  if (!Within(k70.COther.curAutoZ, -1, 1) || !Within(k70.COther.curAutoXY, -1, 1)) return "knob";
  for (std::int16_t i = 1; i <= clsDbSwitch::SwitchCount; ++i) {
    if (!Within(k70.curSwitch.Func(i), -3, 61)) return "switch";
  }
  for (std::int16_t i = 1; i <= clsControlTactor::SwitchCount; ++i) {
    if (!Within(k70.curTactor.Func(i), -3, 61)) return "key";
  }
  if (CharacterCount(k70.SystemName) > controller::kSystemNameLength) return "name";
  return {};
}

// The arguments that choose the last instrument of a bench without a question.
std::vector<std::string> Arguments(const Bench& bench) {
  return {"mortane", bench.instruments.size() == 1 ? "/SIM" : bench.instruments.back().name};
}

class MonkeyWalk : public ::testing::TestWithParam<std::string> {};

TEST_P(MonkeyWalk, BreaksNothing) {
  const bool odd = GetParam() == "Attic";
  const int events = Setting("MORTANE_MONKEY_EVENTS", 400);
  const auto seed = static_cast<std::uint32_t>(Setting("MORTANE_MONKEY_SEED", 1));
  std::mt19937 random(seed);
  const TempFolder folder;
  RigLibrary rig(benches::Named(GetParam()));
  MonkeyPrompts prompts(
      random, {folder.Path("one.xml"), folder.Path("two.xml"),
               folder.Write("bad.xml", "<Setup><FILTER><ITEM"), folder.Path("missing/three.xml")});
  ScriptedJoystick joystick;
  clsK70& k70 = ProvideK70(rig.library, prompts);
  {
    MortaneMainForm form(
        FormServices{k70, rig.library, prompts, joystick, Arguments(rig.simulated.bench())},
        MainPages());
    Monkey monkey(form, random);
    form.Load();
    form.show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.IsStarted(); }));
    for (int i = 0; i < events; ++i) {
      prompts.boxes.clear();
      rig.journal.Clear();
      monkey.Act();
      const std::string where = GetParam() + ", seed " + std::to_string(seed) + ", event " +
                                std::to_string(i) + ", " + monkey.LastAct();
      ASSERT_TRUE(form.isVisible()) << where;
      ASSERT_EQ(prompts.hourglasses, 0) << where;
      for (const std::string& box : prompts.boxes) {
        const bool known =
            BeginsWithAny(box, kBoxes) || (odd && BeginsWithAny(box, kBoxesOfOddValues));
        EXPECT_TRUE(known) << where << "\nBOX " << box;
      }
      if (!odd) {
        ASSERT_EQ(OutOfRange(k70), "") << where;
      }
    }
  }
  ReleaseK70();
}

INSTANTIATE_TEST_SUITE_P(Benches, MonkeyWalk, ::testing::ValuesIn(benches::Names()),
                         [](const auto& row) { return row.param; });

}  // namespace
}  // namespace mortane::test
