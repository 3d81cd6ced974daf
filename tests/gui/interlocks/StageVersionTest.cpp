// The switch of the stage, which bodies of the versions 1.0 to 1.2 do not have.
#include <gtest/gtest.h>

#include <QLabel>

#include "common/Numbers.h"
#include "gui/interlocks/InterlockPages.h"
#include "gui/interlocks/ModelText.h"
#include "widgets/CheckToggle.h"

namespace mortane::test {
namespace {

constexpr std::size_t kStage = 5;

bool IsStageShown(const InterlockOtherCtl& page) {
  const bool shown = page.CheckNosepiece[kStage]->isVisible();
  EXPECT_EQ(page.lblNosepiece[kStage]->isVisible(), shown);
  return shown;
}

// Everything is fitted but the stage.
Bench WithoutStage(const char* version) {
  Bench bench = benches::Named("Harbour");
  bench.instruments.back().Accessory(accessory::kXYStage) = {};
  bench.instruments.back().Unit(1).version = version;
  return bench;
}

struct VersionRow {
  const char* version;
  bool shown;
};

constexpr VersionRow kVersions[] = {
    {"V0.9", true},   {"V1.0", false}, {"V1.1", false}, {"V1.10", false}, {"V1.2", false},
    {"V1.20", false}, {"V1.21", true}, {"V1.3", true},  {"V1.2b", true},  {"vDEMO", true},
    {"", true},       {"V", true},     {"V1,1", true},  {"V12", true},
};

void ExpectStageByVersion() {
  for (const VersionRow& row : kVersions) {
    PageRig rig(WithoutStage(row.version));
    const auto& page = rig.Show(MakeInterlockOtherCtl(rig.k70()));
    EXPECT_EQ(IsStageShown(page), row.shown) << row.version;
    EXPECT_FALSE(page.CheckNosepiece[kStage]->isEnabled()) << row.version;
    for (std::size_t i = 0; i < kStage; ++i) EXPECT_TRUE(page.CheckNosepiece[i]->isVisible());
  }
}

TEST(StageSwitch, IsHiddenOrShownByTheVersionOfTheBody) {
  ExpectStageByVersion();
}

TEST(StageSwitch, AVersionHasAPointWhateverTheNumbersOfTheSystemHave) {
  SetSystemNumberFormat({",", "."});
  ExpectStageByVersion();
  SetSystemNumberFormat(PointFormat());
}

TEST(StageSwitch, IsShownWhereTheVersionCannotBeRead) {
  PageRig rig(WithoutStage("V1.1"));
  auto& page = rig.Show(MakeInterlockOtherCtl(rig.k70()));
  ASSERT_FALSE(IsStageShown(page));
  rig.faults.Add({"ControllerVersion(1)"});
  page.LoadData();
  EXPECT_EQ(rig.faults.Hits(), 1U);
  EXPECT_TRUE(IsStageShown(page));
  rig.faults.Clear();
  page.LoadData();
  EXPECT_FALSE(IsStageShown(page));
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST(StageSwitch, IsShownWithoutABody) {
  Bench bench = WithoutStage("V1.1");
  SetUnits(bench.instruments.back(), {5});
  PageRig rig(std::move(bench));
  EXPECT_TRUE(IsStageShown(rig.Show(MakeInterlockOtherCtl(rig.k70()))));
}

// The version is asked only where the switch is disabled.
TEST(StageSwitch, OfAStageWithAStateIsShownByEveryVersion) {
  for (const VersionRow& row : kVersions) {
    Bench bench = benches::Named("Harbour");
    bench.instruments.back().Unit(1).version = row.version;
    PageRig rig(std::move(bench));
    const auto& page = rig.Show(MakeInterlockOtherCtl(rig.k70()));
    EXPECT_TRUE(IsStageShown(page)) << row.version;
    EXPECT_TRUE(page.CheckNosepiece[kStage]->isEnabled()) << row.version;
    EXPECT_EQ(rig.journal.CallCount(), 0U) << row.version;
  }
}

TEST(StageSwitch, OfAStageWhoseStateIsUnknownGoesByTheVersion) {
  for (const VersionRow& row : kVersions) {
    Bench bench = benches::Named("Harbour");
    bench.instruments.back().Unit(1).version = row.version;
    PageRig rig(std::move(bench));
    rig.faults.Add({Interlock(14, 3)});
    EXPECT_NE(rig.k70().ILOther.ReadSdk(), "");
    EXPECT_EQ(IsStageShown(rig.Show(MakeInterlockOtherCtl(rig.k70()))), row.shown) << row.version;
  }
}

TEST(StageSwitch, OfAStageThatIsOnlySensedGoesByTheVersion) {
  PageRig rig("Lantern");  // V1.20
  EXPECT_FALSE(IsStageShown(rig.Show(MakeInterlockOtherCtl(rig.k70()))));
}

TEST(StageSwitch, HiddenOnOneMicroscopeItIsShownAgainOnTheNext) {
  Bench bench = WithoutStage("V1.1");
  bench.instruments.insert(bench.instruments.begin() + 1, benches::InstrumentNamed("Harbour"));
  bench.instruments.insert(bench.instruments.begin() + 2, WithoutStage("V1.3").instruments.back());
  PageRig rig(std::move(bench));
  auto& page = rig.Show(MakeInterlockOtherCtl(rig.k70()));
  for (const std::int32_t next : {1, 3, 2, 3}) {
    rig.k70().Disconnect();
    rig.k70().Connect(next);
    rig.k70().Receive();
    page.LoadData();
    EXPECT_EQ(IsStageShown(page), next != 3) << next;
  }
}

}  // namespace
}  // namespace mortane::test
