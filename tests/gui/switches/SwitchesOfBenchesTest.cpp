// The pages of the switches on every bench, and on one after another.
#include <gtest/gtest.h>

#include <memory>

#include "gui/support/PageActs.h"
#include "gui/switches/SwitchPages.h"
#include "widgets/OptionGroup.h"

namespace mortane::test {
namespace {

using Names = std::vector<std::string>;

struct Held {
  explicit Held(SwitchPageUnits& k70)
      : body(CodesOf(k70.curSwitch)),
        hand(CodesOf(k70.curTactor)),
        modes{k70.curTactor.ControlMode, k70.curTactor.HandleMode, k70.COther.curAutoZ,
              k70.COther.curAutoXY} {}
  bool operator==(const Held&) const = default;

  std::vector<int> body;
  std::vector<int> hand;
  std::vector<std::int32_t> modes;
};

class SwitchesOfBenches : public testing::TestWithParam<std::string> {};

TEST_P(SwitchesOfBenches, LoadingLeavesTheModelAsItIs) {
  PageRig rig(GetParam(), Link::Reported);
  const Held before(rig.k70());
  auto& body = rig.Show(MakeSwitchSettingCtl(rig.k70()));
  const std::unique_ptr<TactorSwitchSettingCtl> tactor(MakeTactorSwitchSettingCtl(rig.k70()));
  for (int i = 0; i < 2; ++i) {
    body.LoadData();
    tactor->LoadData();
    tactor->optChg->select(2 - i);
    body.SaveData();
    tactor->SaveData();
  }
  EXPECT_EQ(Held(rig.k70()), before);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  EXPECT_TRUE(rig.prompts.Log().empty());
}

INSTANTIATE_TEST_SUITE_P(Benches, SwitchesOfBenches, testing::ValuesIn(benches::Names()),
                         [](const testing::TestParamInfo<std::string>& bench) {
                           return bench.param;
                         });

TEST(SwitchesOfAttic, ShowWhatOddCodesLeave) {
  PageRig rig("Attic", Link::Reported);
  auto& page = rig.Show(MakeSwitchSettingCtl(rig.k70()));
  EXPECT_EQ(Column(*page.ListView1, 1),
            (Names{"", "-----------------", "Objective CW/CCW", "Objective CW/CCW",
                   "Observation Darkfield", "-----------------", "", "-----------------", "", ""}));
}

TEST(SwitchesOfSeveral, ShowTheDeviceThatWasConnectedLast) {
  PageRig rig(List({"Attic", "Harbour", "Hub"}));
  auto& page = rig.Show(MakeTactorSwitchSettingCtl(rig.k70()));
  const auto receive = [&](std::int32_t device) {
    rig.k70().Connect(device);
    rig.k70().Receive();
    page.LoadData();
  };
  EXPECT_FALSE(page.frmHandle->isEnabled());
  receive(0);
  EXPECT_FALSE(page.frmMode->isEnabled());
  EXPECT_FALSE(page.frmHandle->isEnabled());
  receive(1);
  EXPECT_TRUE(page.frmMode->isEnabled());
  EXPECT_TRUE(page.frmHandle->isEnabled());
  EXPECT_TRUE(page.optHandle->button(0)->isEnabled());
  EXPECT_EQ(page.ListView1->cell(1, 1), "Z Focus Knob Speed Change");
  ClickRow(*page.ListView1, 3);
  receive(2);
  EXPECT_FALSE(page.frmHandle->isEnabled());
  EXPECT_EQ(page.ListView1->index(), 3);
  EXPECT_EQ(page.ListView1->cell(3, 1), "LightPath Change");
  receive(0);
  EXPECT_FALSE(page.frmMode->isEnabled());
  EXPECT_EQ(rig.k70().curTactor.ControlMode, 2) << "the option of the device before stores nothing";
}

}  // namespace
}  // namespace mortane::test
