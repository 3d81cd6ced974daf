// The sub-page that tells what follows a change of the observation method.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>

#include "gui/interlocks/InterlockPages.h"
#include "gui/interlocks/ModelText.h"
#include "gui/support/PageActs.h"
#include "widgets/Card.h"
#include "widgets/CheckToggle.h"
#include "widgets/Theme.h"

namespace mortane::test {
namespace {

// The accessory of each switch, from the first one.
constexpr std::array<std::int32_t, 11> kAccessories{4, 6, 9, 1, 11, 2, 3, 10, 7, 8, 5};
constexpr std::size_t kLamp = 0;
constexpr std::size_t kCube = 1;
constexpr std::size_t kNosepiece = 2;

class ObservationPage : public testing::Test {
 protected:
  ObservationPage() { rig.Show(&page); }

  CheckToggle& box(std::size_t index) { return *page.CheckAccessories[index]; }
  QLabel& label(std::size_t index) { return *page.lblAccessories[index]; }
  clsInterLockObservation& unit() { return rig.k70().ILObservation; }
  // Reads again from an instrument that gives no answer for this accessory and those after it.
  void ForgetFrom(std::int32_t accessory) {
    rig.faults.Add({Interlock(accessory, 1)});
    EXPECT_NE(unit().ReadSdk(), "");
    rig.faults.Clear();
  }

  PageRig rig{"Harbour"};
  InterlockObservationCtl& page = *MakeInterlockObservationCtl(rig.k70());
};

TEST(ObservationPageAlone, IsMadeWithAllSwitchesOff) {
  PageRig rig("Harbour");
  const std::unique_ptr<InterlockObservationCtl> page(MakeInterlockObservationCtl(rig.k70()));
  for (const CheckToggle* box : page->CheckAccessories) {
    EXPECT_EQ(box->text(), "OFF");
    EXPECT_FALSE(box->isChecked());
  }
}

TEST_F(ObservationPage, SwitchesStandInThreeColumnsThatAreFilledDownwards) {
  const auto place = [&](std::size_t i) { return box(i).mapTo(&page, QPoint(0, 0)); };
  for (std::size_t i = 0; i < 11; ++i) {
    EXPECT_EQ(place(i).x(), place(i - i % 4).x()) << i;
    EXPECT_EQ(place(i).y(), place(i % 4).y()) << i;
    if (i % 4 > 0) {
      EXPECT_GT(place(i).y(), place(i - 1).y()) << i;
    }
    EXPECT_LT(label(i).mapTo(&page, QPoint(0, 0)).y(), place(i).y()) << "label above its switch";
  }
  EXPECT_LT(place(0).x(), place(4).x());
  EXPECT_EQ(place(8).x() - place(4).x(), place(4).x() - place(0).x());
  const auto tile = [&](std::size_t i) { return box(i).parentWidget()->geometry(); };
  EXPECT_EQ(tile(8).right() + tile(0).left(), page.FrameBase->width() - 1) << "across the card";
  EXPECT_EQ(tile(4).left() - tile(0).right() - 1, 16);
  EXPECT_EQ(tile(1).top() - tile(0).bottom() - 1, 12);
  EXPECT_NEAR(page.FrameBase->height() - tile(3).bottom(), grid::kCardPadding, 4);
}

TEST_F(ObservationPage, TilesGrowWithTheCardUpToTwoAndAHalfTimes) {
  const auto height = [&](int ofWindow) {
    rig.window().resize(2400, ofWindow);
    QApplication::processEvents();
    return box(0).parentWidget()->height();
  };
  EXPECT_EQ(height(1400), 240);
  const int inBetween = height(800);
  EXPECT_GT(inBetween, 96);
  EXPECT_LT(inBetween, 240);
}

TEST_F(ObservationPage, AClickOrASpaceChangesOneStateAndTheCaption) {
  for (std::size_t i = 0; i < 11; ++i) {
    const std::string before = ModelText(rig.k70());
    const bool on = box(i).isChecked();
    ClickButton(box(i));
    EXPECT_EQ(unit().Status(kAccessories[i]), on ? 0 : 1) << i;
    EXPECT_EQ(box(i).text(), on ? "OFF" : "ON");
    EXPECT_TRUE(box(i).hasFocus());
    QTest::keyClick(&box(i), Qt::Key_Space);
    EXPECT_EQ(box(i).text(), on ? "ON" : "OFF");
    EXPECT_EQ(ModelText(rig.k70()), before) << "the other states are as they were";
  }
  EXPECT_EQ(rig.journal.CallCount(), 0U) << "nothing is sent";
}

TEST_F(ObservationPage, AStateThatIsNeitherOffNorOnLeavesTheSwitchAndIsEnabled) {
  unit().Status(4, 2);
  unit().Status(9, -5);
  page.LoadData();
  EXPECT_TRUE(box(kLamp).isChecked());
  EXPECT_TRUE(box(kLamp).isEnabled());
  EXPECT_FALSE(box(kNosepiece).isChecked());
  EXPECT_TRUE(box(kNosepiece).isEnabled());
  EXPECT_EQ(unit().Status(4), 2);
}

TEST_F(ObservationPage, AnUnknownStateDisablesLabelAndSwitchWhichKeepsItsSide) {
  ForgetFrom(6);
  page.LoadData();
  EXPECT_TRUE(box(kLamp).isEnabled());
  for (const std::size_t index : {kCube, kNosepiece}) {
    EXPECT_FALSE(box(index).isEnabled());
    EXPECT_FALSE(label(index).isEnabled());
  }
  EXPECT_TRUE(box(kCube).isChecked());
  EXPECT_EQ(box(kCube).text(), "ON");
  EXPECT_FALSE(box(kNosepiece).isChecked());
  ClickButton(box(kCube));
  EXPECT_TRUE(box(kCube).isChecked());
  EXPECT_EQ(unit().Status(6), -1);
}

TEST_F(ObservationPage, AStateFromAFileOfAnAccessoryThatIsNotMountedIsNotShown) {
  Bench bench = benches::Named("Harbour");
  for (const std::int32_t mounted : {kNotMounted, kSensorOnly}) {
    Fit(bench.instruments.back(), 9, mounted);
    PageRig without(bench);
    auto& shown = without.Show(MakeInterlockObservationCtl(without.k70()));
    clsInterLockObservation& states = without.k70().ILObservation;
    EXPECT_EQ(ReadElement(states, R"(<OBSERVATION POSITION="Nosepiece" CODE="True"/>)"), "");
    shown.LoadData();
    EXPECT_EQ(states.Status(9), 1);
    EXPECT_FALSE(shown.CheckAccessories[kNosepiece]->isEnabled());
    EXPECT_FALSE(shown.lblAccessories[kNosepiece]->isEnabled());
    EXPECT_FALSE(shown.CheckAccessories[kNosepiece]->isChecked()) << "the box keeps its value";
    EXPECT_EQ(states.WriteSdk(), "");
    EXPECT_TRUE(without.journal.Writes().empty());
  }
}

TEST_F(ObservationPage, LoadingUnderTheFocusKeepsItAndStoresNothing) {
  box(kLamp).setFocus();
  unit().Status(4, 0);
  const std::string before = ModelText(rig.k70());
  page.LoadData();
  EXPECT_TRUE(box(kLamp).hasFocus());
  EXPECT_FALSE(box(kLamp).isChecked());
  EXPECT_EQ(ModelText(rig.k70()), before);
}

TEST_F(ObservationPage, LoadingThatDisablesTheFocusedSwitchStoresNothing) {
  box(kCube).setFocus();
  ForgetFrom(6);
  const std::string before = ModelText(rig.k70());
  page.LoadData();
  QApplication::processEvents();
  EXPECT_FALSE(box(kCube).hasFocus());
  EXPECT_EQ(ModelText(rig.k70()), before);
}

TEST_F(ObservationPage, AHeldKeyAndTheWheelChangeNothingAgain) {
  box(kLamp).setFocus();
  QTest::keyPress(&box(kLamp), Qt::Key_Space);
  for (int i = 0; i < 5; ++i) {
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, {}, " ", true);
    QApplication::sendEvent(&box(kLamp), &repeated);
  }
  QTest::keyRelease(&box(kLamp), Qt::Key_Space);
  EXPECT_EQ(unit().Status(4), 0);
}

TEST_F(ObservationPage, HidingDisablingAndDestroyingStoreNothing) {
  box(kLamp).setFocus();
  ExpectTheEndOfThePageStoresNothing(rig, &page);
}

TEST(ObservationPageAlone, ShowsTheSidesOfAFormerMicroscopeWhereTheNextHasNothing) {
  PageRig rig(List({"Quay", "Lantern", "Harbour"}));
  auto& page = rig.Show(MakeInterlockObservationCtl(rig.k70()));
  const CheckToggle& condenser = *page.CheckAccessories[10];
  ASSERT_TRUE(condenser.isChecked());
  rig.k70().Disconnect();
  rig.k70().Connect(1);
  rig.k70().Receive();
  page.LoadData();
  EXPECT_FALSE(condenser.isEnabled());
  EXPECT_TRUE(condenser.isChecked()) << "it has no condenser";
  EXPECT_FALSE(page.CheckAccessories[kLamp]->isChecked());
  EXPECT_EQ(page.CheckAccessories[kLamp]->text(), "OFF");
}

}  // namespace
}  // namespace mortane::test
