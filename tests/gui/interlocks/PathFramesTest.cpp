// The frames of what follows a change of the light path and of the optical zoom.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <ostream>

#include "gui/interlocks/InterlockPages.h"
#include "gui/interlocks/ModelText.h"
#include "gui/support/PageActs.h"
#include "widgets/Card.h"
#include "widgets/CheckToggle.h"

namespace mortane::test {
namespace {

// The accessory of each switch, from the first one.
constexpr std::array<std::int32_t, 3> kAccessories{13, 1, 2};

struct PathRow {
  const char* name;
  std::int32_t accessory;  // that changes
  std::int32_t trigger;
  Control<InnerFrame> InterlockOtherCtl::*frame;
  Controls<CheckToggle, InterlockOtherCtl::kPathCount> InterlockOtherCtl::*boxes;
  Controls<QLabel, InterlockOtherCtl::kPathCount> InterlockOtherCtl::*labels;
  std::int32_t (clsInterLockOther::*state)(std::int32_t) const;
  void (clsInterLockOther::*store)(std::int32_t, std::int32_t);
  const char* element;
  std::string (clsInterLockOther::*read)(const DomNode&);
};

const PathRow kLightPath{"LightPath",
                         11,
                         4,
                         &InterlockOtherCtl::FrameLightPath,
                         &InterlockOtherCtl::CheckLightPath,
                         &InterlockOtherCtl::lblLightPath,
                         &clsInterLockOther::LightPathStatus,
                         &clsInterLockOther::LightPathStatus,
                         "LIGHTPATH",
                         &clsInterLockOther::ReadLPDom};
const PathRow kZoom{"Zoom",
                    10,
                    2,
                    &InterlockOtherCtl::FrameOpticalZoom,
                    &InterlockOtherCtl::CheckOpticalZoom,
                    &InterlockOtherCtl::lblOpticalZoom,
                    &clsInterLockOther::ZoomStatus,
                    &clsInterLockOther::ZoomStatus,
                    "ZOOM",
                    &clsInterLockOther::ReadZMDom};

void PrintTo(const PathRow& row, std::ostream* stream) {
  *stream << row.name;
}

class PathFrames : public testing::TestWithParam<PathRow> {
 protected:
  static Bench Harbour(std::int32_t accessory, std::int32_t mounted) {
    Bench bench = benches::Named("Harbour");
    Fit(bench.instruments.back(), accessory, mounted);
    return bench;
  }
  static InnerFrame& Frame(InterlockOtherCtl& page) { return *(page.*GetParam().frame); }
  static CheckToggle& Box(InterlockOtherCtl& page, std::size_t index) {
    return *(page.*GetParam().boxes)[index];
  }
  static QLabel& Label(InterlockOtherCtl& page, std::size_t index) {
    return *(page.*GetParam().labels)[index];
  }
  static std::int32_t State(PageRig& rig, std::int32_t accessory) {
    return (rig.k70().ILOther.*GetParam().state)(accessory);
  }
  static void Store(PageRig& rig, std::int32_t accessory, std::int32_t state) {
    (rig.k70().ILOther.*GetParam().store)(accessory, state);
  }
};

TEST_P(PathFrames, HasThreeSwitchesInARowThatAreMadeOff) {
  PageRig rig("Harbour");
  InterlockOtherCtl* page = MakeInterlockOtherCtl(rig.k70());
  ASSERT_EQ((page->*GetParam().boxes).size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(Box(*page, i).text(), "OFF");
  rig.Show(page);
  for (std::size_t i = 1; i < 3; ++i) {
    const QPoint place = Box(*page, i).mapTo(page, QPoint(0, 0));
    const QPoint former = Box(*page, i - 1).mapTo(page, QPoint(0, 0));
    EXPECT_EQ(place.y(), former.y());
    EXPECT_GT(place.x(), former.x());
  }
}

TEST_P(PathFrames, AreEnabledWhereTheAccessoryIsPresentASensorIncluded) {
  for (const std::int32_t mounted : {kNotMounted, kSensorOnly, kControllable}) {
    PageRig rig(Harbour(GetParam().accessory, mounted));
    auto& page = rig.Show(MakeInterlockOtherCtl(rig.k70()));
    const bool present = mounted != kNotMounted;
    EXPECT_EQ(Frame(page).isEnabled(), present) << mounted;
    for (std::size_t i = 0; i < 3; ++i) {
      EXPECT_EQ(Box(page, i).isEnabled(), present) << i;
      EXPECT_EQ(Label(page, i).isEnabled(), present) << i;
    }
    EXPECT_TRUE(page.FrameNosepiece->isEnabled());
    EXPECT_EQ(State(rig, 13) != -1, present);
  }
}

TEST_P(PathFrames, AreEnabledWithoutAnythingThatFollows) {
  Bench bench = Harbour(GetParam().accessory, kSensorOnly);
  for (const std::int32_t accessory : kAccessories) {
    Fit(bench.instruments.back(), accessory, kNotMounted);
  }
  PageRig rig(std::move(bench));
  auto& page = rig.Show(MakeInterlockOtherCtl(rig.k70()));
  EXPECT_TRUE(Frame(page).isEnabled());
  for (std::size_t i = 0; i < 3; ++i) EXPECT_FALSE(Box(page, i).isEnabled()) << i;
}

TEST_P(PathFrames, WhatCannotFollowIsDisabledAndKeepsItsSide) {
  for (const std::int32_t mounted : {kNotMounted, kSensorOnly}) {
    for (std::size_t i = 0; i < 3; ++i) {
      PageRig rig(Harbour(kAccessories[i], mounted));
      auto& page = rig.Show(MakeInterlockOtherCtl(rig.k70()));
      for (const bool side : {true, false}) {
        Box(page, i).setChecked(side);
        page.LoadData();
        EXPECT_EQ(Box(page, i).isChecked(), side) << i;
        EXPECT_FALSE(Box(page, i).isEnabled()) << i;
        EXPECT_FALSE(Label(page, i).isEnabled()) << i;
      }
    }
  }
}

TEST_P(PathFrames, WithoutTheAccessoryTheSidesStayAsTheyAre) {
  PageRig rig(Harbour(GetParam().accessory, kNotMounted));
  auto& page = rig.Show(MakeInterlockOtherCtl(rig.k70()));
  for (std::size_t i = 0; i < 3; ++i) EXPECT_FALSE(Box(page, i).isChecked()) << i;
  const std::string xml =
      std::string("<") + GetParam().element + " POSITION=\"ND\" CODE=\"True\"/>";
  DomDocument document;
  ASSERT_TRUE(document.LoadText(xml));
  (rig.k70().ILOther.*GetParam().read)(document.Children().front());
  ASSERT_EQ(State(rig, 1), 1);
  page.LoadData();
  EXPECT_FALSE(Box(page, 1).isChecked());
}

// A body before 1.3 has states of the epi field stop alone.
TEST_P(PathFrames, AnUnknownStateSetsTheSwitchDisabledAndStaysUnknown) {
  for (const char* version : {"V1.1", "V1.2", "V1.21", "vDEMO"}) {
    Bench bench = benches::Named("Harbour");
    bench.instruments.back().Unit(1).version = version;
    PageRig rig(std::move(bench));
    InterlockOtherCtl* page = MakeInterlockOtherCtl(rig.k70());
    const std::string before = PathStates(-1, -1, State(rig, 13));
    rig.Show(page);
    for (const std::size_t i : {1U, 2U}) {
      EXPECT_TRUE(Box(*page, i).isChecked()) << version;
      EXPECT_EQ(Box(*page, i).text(), "ON") << version;
      EXPECT_FALSE(Box(*page, i).isEnabled()) << version;
      EXPECT_FALSE(Label(*page, i).isEnabled()) << version;
      ClickButton(Box(*page, i));
      EXPECT_TRUE(Box(*page, i).isChecked()) << version;
    }
    EXPECT_TRUE(Box(*page, 0).isEnabled()) << version;
    EXPECT_TRUE(Label(*page, 0).isEnabled()) << version;
    EXPECT_TRUE(Frame(*page).isEnabled());
    EXPECT_EQ(StatesOf(14, [&](std::int32_t k) { return State(rig, k); }), before) << version;
  }
}

TEST_P(PathFrames, FromVersionOneThreeOnAllThreeCanBeSwitched) {
  for (const char* version : {"V1.3", "V1.30", "V2"}) {
    Bench bench = benches::Named("Harbour");
    bench.instruments.back().Unit(1).version = version;
    PageRig rig(std::move(bench));
    auto& page = rig.Show(MakeInterlockOtherCtl(rig.k70()));
    for (std::size_t i = 0; i < 3; ++i) EXPECT_TRUE(Box(page, i).isEnabled()) << version << i;
  }
}

TEST_P(PathFrames, AStateThatIsNeitherOffNorOnLeavesTheSwitchAndIsEnabled) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeInterlockOtherCtl(rig.k70()));
  for (std::size_t i = 0; i < 3; ++i) {
    for (const bool side : {true, false}) {
      Box(page, i).setChecked(side);
      Store(rig, kAccessories[i], 2);
      page.LoadData();
      EXPECT_EQ(Box(page, i).isChecked(), side) << i;
      EXPECT_TRUE(Box(page, i).isEnabled()) << i;
      EXPECT_EQ(State(rig, kAccessories[i]), 2);
    }
  }
}

TEST_P(PathFrames, AClickOrASpaceChangesOneStateAndTheCaption) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeInterlockOtherCtl(rig.k70()));
  for (std::size_t i = 0; i < 3; ++i) {
    const std::string before = ModelText(rig.k70());
    const bool on = Box(page, i).isChecked();
    ClickButton(Box(page, i));
    EXPECT_EQ(State(rig, kAccessories[i]), on ? 0 : 1) << i;
    EXPECT_EQ(Box(page, i).text(), on ? "OFF" : "ON");
    QTest::keyClick(&Box(page, i), Qt::Key_Space);
    EXPECT_EQ(ModelText(rig.k70()), before) << "the other states are as they were";
  }
  EXPECT_EQ(rig.journal.CallCount(), 0U) << "nothing is sent";
}

TEST_P(PathFrames, OfAFormerMicroscopeTheSidesStayWhereTheNextHasNothing) {
  Bench bench = Harbour(GetParam().accessory, kNotMounted);
  bench.instruments.push_back(benches::InstrumentNamed("Harbour"));
  for (const std::int32_t accessory : kAccessories) {
    bench.instruments.back().Interlock(accessory, GetParam().trigger) = 1;
  }
  PageRig rig(std::move(bench));
  auto& page = rig.Show(MakeInterlockOtherCtl(rig.k70()));
  rig.k70().Disconnect();
  rig.k70().Connect(1);
  rig.k70().Receive();
  page.LoadData();
  EXPECT_FALSE(Frame(page).isEnabled());
  for (std::size_t i = 0; i < 3; ++i) EXPECT_TRUE(Box(page, i).isChecked()) << i;
  EXPECT_EQ(StatesOf(14, [&](std::int32_t k) { return State(rig, k); }), kAllUnknown);
}

INSTANTIATE_TEST_SUITE_P(Changes, PathFrames, testing::Values(kLightPath, kZoom),
                         [](const auto& row) { return std::string(row.param.name); });

class NarrowPathFrames : public testing::Test {
 protected:
  NarrowPathFrames() { rig.Show(&page); }

  PageRig rig{"Harbour"};
  InterlockOtherCtl& page = *MakeInterlockOtherCtl(rig.k70());
};

TEST_F(NarrowPathFrames, BreakTheirRowAndKeepTheOrderOfTheTabKey) {
  const std::vector<std::string> before = rig.TabOrder();
  rig.window().resize(700, 700);
  QApplication::processEvents();
  QApplication::processEvents();
  const auto place = [&](std::size_t i) {
    return page.CheckLightPath[i]->mapTo(page.FrameLightPath, QPoint(0, 0));
  };
  EXPECT_EQ(place(0).y(), place(1).y());
  EXPECT_GT(place(2).y(), place(0).y());
  EXPECT_EQ(place(2).x(), place(0).x());
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_LE(place(i).y() + page.CheckLightPath[i]->height(), page.FrameLightPath->height()) << i;
  }
  EXPECT_EQ(rig.TabOrder(), before);
}

}  // namespace
}  // namespace mortane::test
