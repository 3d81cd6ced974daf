#include <gtest/gtest.h>

#include "common/DigitCode.h"
#include "controller/ControllerError.h"
#include "controller/SimulatedRig.h"

namespace mortane::controller::test {
namespace {

TEST(Interlocks, AreSetAndClearedOneByOne) {
  SimulatedRig rig("Shell");
  const ControllerSettings settings = rig.root.ControllerSettings();
  for (std::int32_t item = 1; item <= 14; ++item) {
    for (std::int32_t trigger = 1; trigger <= 4; ++trigger) {
      settings.SetInterlock(item, trigger);
      EXPECT_EQ(settings.Interlock(item, trigger), 1);
      EXPECT_EQ(rig.instrument().Interlock(item, trigger), 1);
      settings.ClearInterlock(item, trigger);
      EXPECT_EQ(rig.instrument(), benches::InstrumentNamed("Shell")) << item << ", " << trigger;
    }
  }
}

TEST(Interlocks, OutsideTheTableFail) {
  SimulatedRig rig("Quay");
  const ControllerSettings settings = rig.root.ControllerSettings();
  for (const auto& [item, trigger] : {std::pair{0, 1}, {15, 1}, {1, 0}, {1, 5}, {-1, -1}}) {
    EXPECT_THROW(settings.Interlock(item, trigger), ControllerError) << item << ", " << trigger;
    EXPECT_THROW(settings.SetInterlock(item, trigger), ControllerError);
    EXPECT_THROW(settings.ClearInterlock(item, trigger), ControllerError);
  }
}

TEST(Interlocks, CanHoldMoreThanOnAndOff) {
  SimulatedRig rig("Harbour");
  rig.instrument().Interlock(3, 1) = 2;
  EXPECT_EQ(rig.root.ControllerSettings().Interlock(3, 1), 2);
}

TEST(EscapeMode, KeepsAnyNumber) {
  SimulatedRig rig("Harbour");
  for (const std::int32_t mode : {0, 1, 2, 3, -1, 7}) {
    rig.root.ControllerSettings().PutEscapeMode(mode);
    EXPECT_EQ(rig.root.ControllerSettings().EscapeMode(), mode);
  }
}

TEST(SwitchFunctions, AreKeptAsTexts) {
  SimulatedRig rig("Harbour");
  const ControllerSettings settings = rig.root.ControllerSettings();
  for (const char* value : {"0", "q", "_", " ", "", "{", "\xC3\xA9"}) {
    settings.SetSwitchFunction(0, "G", value);
    settings.SetSwitchFunction(4, "E", value);
    EXPECT_EQ(settings.SwitchFunction(0, "G"), value);
    EXPECT_EQ(settings.SwitchFunction(4, "E"), value);
  }
}

TEST(SwitchFunctions, HaveOneKeyForEachSwitch) {
  SimulatedRig rig("Shell");
  const ControllerSettings settings = rig.root.ControllerSettings();
  for (std::int32_t n = 1; n <= 16; ++n) {
    settings.SetSwitchFunction(0, DigitToChar(n), DigitToChar(n + 20));
  }
  for (std::int32_t n = 0; n <= 14; ++n) {
    settings.SetSwitchFunction(4, DigitToChar(n), DigitToChar(n + 40));
  }
  for (std::int32_t n = 1; n <= 16; ++n) {
    EXPECT_EQ(settings.SwitchFunction(0, DigitToChar(n)), DigitToChar(n + 20));
  }
  for (std::int32_t n = 0; n <= 14; ++n) {
    EXPECT_EQ(settings.SwitchFunction(4, DigitToChar(n)), DigitToChar(n + 40));
  }
}

TEST(SwitchFunctions, OfOtherUnitsAndKeysFail) {
  SimulatedRig rig("Quay");
  const ControllerSettings settings = rig.root.ControllerSettings();
  struct Row {
    std::int32_t unit;
    const char* key;
  };
  for (const Row& row : {Row{0, "0"}, Row{0, "H"}, Row{0, ""}, Row{0, "10"}, Row{0, "a"},
                         Row{4, "F"}, Row{4, " "}, Row{1, "1"}, Row{7, "1"}, Row{-1, "1"}}) {
    EXPECT_THROW(settings.SwitchFunction(row.unit, row.key), ControllerError)
        << row.unit << ", " << row.key;
    EXPECT_THROW(settings.SetSwitchFunction(row.unit, row.key, "1"), ControllerError)
        << row.unit << ", " << row.key;
  }
}

}  // namespace
}  // namespace mortane::controller::test
