// The frame of what follows a change of the objective, and the drives that it compensates.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>

#include "gui/interlocks/InterlockPages.h"
#include "gui/interlocks/ModelText.h"
#include "gui/support/PageActs.h"
#include "widgets/Card.h"
#include "widgets/CheckToggle.h"

namespace mortane::test {
namespace {

// The accessory of each switch, from the first one.
constexpr std::array<std::int32_t, 6> kAccessories{1, 2, 5, 3, 12, 14};
constexpr std::size_t kCondenser = 2;
constexpr std::size_t kZFocus = 4;
constexpr std::size_t kStage = 5;

constexpr std::int32_t kNone = 1;
constexpr std::int32_t kAbsolute = 2;
constexpr std::int32_t kRelative = 3;

class NosepieceFrame : public testing::Test {
 protected:
  NosepieceFrame() { rig.Show(&page); }

  CheckToggle& box(std::size_t index) { return *page.CheckNosepiece[index]; }
  QLabel& label(std::size_t index) { return *page.lblNosepiece[index]; }
  clsInterLockOther& unit() { return rig.k70().ILOther; }
  std::int32_t& zMode() { return rig.k70().CZDrive.curFocusCompensation; }
  std::int32_t& xyMode() { return rig.k70().CXYDrive.curFocusCompensation; }
  // Reads again from an instrument that gives no answer for this accessory and those after it.
  void ForgetFrom(std::int32_t accessory) {
    rig.faults.Add({Interlock(accessory, 3)});
    EXPECT_NE(unit().ReadSdk(), "");
    rig.faults.Clear();
  }

  PageRig rig{"Harbour"};
  InterlockOtherCtl& page = *MakeInterlockOtherCtl(rig.k70());
};

TEST(NosepieceFrameAlone, IsMadeWithAllSwitchesOff) {
  PageRig rig("Harbour");
  const std::unique_ptr<InterlockOtherCtl> page(MakeInterlockOtherCtl(rig.k70()));
  EXPECT_EQ(page->CheckNosepiece.size(), 6U);
  for (const CheckToggle* box : page->CheckNosepiece) EXPECT_EQ(box->text(), "OFF");
}

TEST_F(NosepieceFrame, HasTwoRowsOfThreeAcrossThePageAboveTheOthers) {
  const auto place = [&](std::size_t i) { return box(i).mapTo(&page, QPoint(0, 0)); };
  for (std::size_t i = 0; i < 6; ++i) {
    EXPECT_EQ(place(i).x(), place(i % 3).x());
    EXPECT_EQ(place(i).y(), place(i - i % 3).y());
  }
  EXPECT_LT(place(0).y(), place(3).y());
  EXPECT_EQ(page.FrameNosepiece->width(),
            page.FrameOpticalZoom->geometry().right() - page.FrameLightPath->x() + 1);
  EXPECT_GT(page.FrameLightPath->y(), page.FrameNosepiece->geometry().bottom());
  EXPECT_EQ(page.FrameLightPath->y(), page.FrameOpticalZoom->y());
  EXPECT_EQ(page.FrameLightPath->width(), page.FrameOpticalZoom->width());
}

TEST_F(NosepieceFrame, AClickOrASpaceChangesOneStateAndTheCaption) {
  for (std::size_t i = 0; i < 6; ++i) {
    const std::string before = ModelText(rig.k70());
    const bool on = box(i).isChecked();
    ClickButton(box(i));
    EXPECT_EQ(unit().Status(kAccessories[i]), on ? 0 : 1) << i;
    EXPECT_EQ(box(i).text(), on ? "OFF" : "ON");
    QTest::keyClick(&box(i), Qt::Key_Space);
    EXPECT_EQ(ModelText(rig.k70()), before) << i;
  }
  EXPECT_EQ(rig.journal.CallCount(), 0U) << "nothing is sent";
}

TEST_F(NosepieceFrame, ClicksOnTheDrivesSetTheirOwnCompensationAndOthersNone) {
  for (std::size_t i = 0; i < 6; ++i) {
    zMode() = xyMode() = kAbsolute;
    const bool on = box(i).isChecked();
    ClickButton(box(i));
    const std::int32_t mode = on ? kNone : kRelative;
    EXPECT_EQ(zMode(), i == kZFocus ? mode : kAbsolute) << i;
    EXPECT_EQ(xyMode(), i == kStage ? mode : kAbsolute) << i;
    ClickButton(box(i));
    EXPECT_EQ(zMode(), i == kZFocus ? kNone + kRelative - mode : kAbsolute) << i;
    EXPECT_EQ(xyMode(), i == kStage ? kNone + kRelative - mode : kAbsolute) << i;
  }
}

struct LoadRow {
  bool formerSide;
  std::int32_t state;
  std::int32_t modeBefore;
  std::int32_t modeAfter;
};

TEST_F(NosepieceFrame, LoadingSetsTheCompensationOfADriveWhenItChangesItsSwitch) {
  for (const std::size_t drive : {kZFocus, kStage}) {
    for (const LoadRow& row :
         {LoadRow{false, 1, kAbsolute, kRelative}, LoadRow{false, 1, kNone, kRelative},
          LoadRow{false, 1, -1, kRelative}, LoadRow{false, 0, kAbsolute, kAbsolute},
          LoadRow{false, 0, kRelative, kRelative}, LoadRow{true, 0, kAbsolute, kNone},
          LoadRow{true, 0, kRelative, kNone}, LoadRow{true, 1, kAbsolute, kAbsolute},
          LoadRow{true, 1, kNone, kNone}, LoadRow{true, 2, kAbsolute, kAbsolute},
          LoadRow{false, 2, kAbsolute, kAbsolute}}) {
      box(drive).setChecked(row.formerSide);
      unit().Status(kAccessories[drive], row.state);
      zMode() = xyMode() = row.modeBefore;
      page.LoadData();
      EXPECT_EQ(drive == kZFocus ? zMode() : xyMode(), row.modeAfter)
          << drive << row.formerSide << row.state << row.modeBefore;
      EXPECT_EQ(drive == kZFocus ? xyMode() : zMode(), row.modeBefore) << "of the other drive";
      EXPECT_EQ(unit().Status(kAccessories[drive]), row.state);
    }
  }
}

TEST(NosepieceFrameAlone, WhatLoadingMadeRelativeIsSent) {
  Bench bench = benches::Named("Harbour");
  bench.instruments.back().zDrive.focusCompensation = 2;
  PageRig rig(std::move(bench));
  ASSERT_EQ(rig.k70().CZDrive.curFocusCompensation, kAbsolute);
  rig.Show(MakeInterlockOtherCtl(rig.k70()));
  EXPECT_EQ(rig.k70().CZDrive.curFocusCompensation, kRelative);
  EXPECT_EQ(rig.instrument().zDrive.focusCompensation, kAbsolute);
  EXPECT_EQ(rig.k70().CZDrive.WriteSdk(), "");
  EXPECT_EQ(rig.instrument().zDrive.focusCompensation, kRelative);
  EXPECT_TRUE(rig.prompts.Boxes().empty());
}

TEST(NosepieceFrameAlone, ANosepieceThatCannotBeControlledDisablesAllAndHidesTheStage) {
  for (const std::int32_t mounted : {kNotMounted, kSensorOnly}) {
    Bench bench = benches::Named("Harbour");
    Fit(bench.instruments.back(), 9, mounted);
    PageRig rig(std::move(bench));
    auto& page = rig.Show(MakeInterlockOtherCtl(rig.k70()));
    EXPECT_FALSE(page.FrameNosepiece->isEnabled());
    for (std::size_t i = 0; i < 6; ++i) {
      EXPECT_FALSE(page.CheckNosepiece[i]->isEnabled()) << i;
      EXPECT_FALSE(page.lblNosepiece[i]->isEnabled()) << i;
      EXPECT_EQ(page.CheckNosepiece[i]->isVisible(), i != kStage) << i;
      EXPECT_EQ(page.lblNosepiece[i]->isVisible(), i != kStage) << i;
    }
    EXPECT_EQ(rig.journal.CallCount(), 0U) << "the version decides nothing here";
    EXPECT_TRUE(page.FrameLightPath->isEnabled());
    EXPECT_TRUE(page.FrameOpticalZoom->isEnabled());
  }
}

TEST(NosepieceFrameAlone, StatesOfAFileAreNotShownWithoutANosepiece) {
  Bench bench = benches::Named("Harbour");
  Fit(bench.instruments.back(), 9, kSensorOnly);
  PageRig rig(std::move(bench));
  auto& page = rig.Show(MakeInterlockOtherCtl(rig.k70()));
  EXPECT_EQ(ReadElement(rig.k70().ILOther, R"(<OTHER POSITION="FoucusStage" CODE="True"/>)"), "");
  const std::string before = ModelText(rig.k70());
  page.LoadData();
  EXPECT_FALSE(page.CheckNosepiece[kZFocus]->isChecked());
  EXPECT_FALSE(page.CheckNosepiece[kZFocus]->isEnabled());
  EXPECT_FALSE(page.FrameNosepiece->isEnabled());
  EXPECT_EQ(ModelText(rig.k70()), before);
}

TEST_F(NosepieceFrame, AnUnknownStateDisablesLabelAndSwitchWhichKeepsItsSide) {
  ForgetFrom(3);
  page.LoadData();
  for (std::size_t i = 0; i < 6; ++i) {
    const bool known = kAccessories[i] < 3;
    EXPECT_EQ(box(i).isEnabled(), known) << i;
    EXPECT_EQ(label(i).isEnabled(), known) << i;
  }
  EXPECT_TRUE(box(3).isChecked()) << "as before";
  EXPECT_TRUE(box(kZFocus).isChecked());
  EXPECT_FALSE(box(kCondenser).isChecked());
  EXPECT_TRUE(page.FrameNosepiece->isEnabled());
}

TEST_F(NosepieceFrame, WithoutAKnownStateTheFrameIsDisabledAndComesBack) {
  ForgetFrom(1);
  page.LoadData();
  EXPECT_FALSE(page.FrameNosepiece->isEnabled());
  EXPECT_EQ(unit().ReadSdk(), "");
  page.LoadData();
  EXPECT_TRUE(page.FrameNosepiece->isEnabled());
  for (std::size_t i = 0; i < 6; ++i) EXPECT_TRUE(box(i).isEnabled()) << i;
}

TEST_F(NosepieceFrame, OneStateThatIsOffOrOnIsEnoughForTheFrame) {
  for (const std::int32_t accessory : kAccessories) {
    for (const std::int32_t state : {0, 1}) {
      for (const std::int32_t other : kAccessories) unit().Status(other, 2);
      unit().Status(accessory, state);
      page.LoadData();
      EXPECT_TRUE(page.FrameNosepiece->isEnabled()) << accessory << state;
    }
  }
}

TEST_F(NosepieceFrame, StatesThatAreNeitherOffNorOnLeaveTheSwitchesAndDisableTheFrame) {
  for (const std::int32_t accessory : kAccessories) unit().Status(accessory, 2);
  page.LoadData();
  EXPECT_FALSE(page.FrameNosepiece->isEnabled());
  EXPECT_TRUE(box(0).isChecked());
  EXPECT_FALSE(box(1).isChecked());
  EXPECT_TRUE(box(1).isEnabledTo(page.FrameNosepiece)) << "only the frame is disabled";
}

TEST_F(NosepieceFrame, LoadingUnderTheFocusKeepsItAndStoresNothing) {
  box(kCondenser).setFocus();
  const std::string before = ModelText(rig.k70());
  page.LoadData();
  QApplication::processEvents();
  EXPECT_TRUE(box(kCondenser).hasFocus());
  EXPECT_EQ(ModelText(rig.k70()), before);
}

TEST_F(NosepieceFrame, LoadingThatDisablesTheFocusedSwitchStoresNothing) {
  for (const std::size_t index : {kCondenser, kZFocus, kStage}) {
    EXPECT_EQ(unit().ReadSdk(), "");
    page.LoadData();
    box(index).setFocus();
    ForgetFrom(1);
    const std::string before = ModelText(rig.k70());
    page.LoadData();
    QApplication::processEvents();
    EXPECT_FALSE(box(index).hasFocus()) << index;
    EXPECT_EQ(ModelText(rig.k70()), before) << index;
  }
}

TEST_F(NosepieceFrame, HidingDisablingAndDestroyingStoreNothing) {
  box(kZFocus).setFocus();
  ExpectTheEndOfThePageStoresNothing(rig, &page);
}

// Harbour has both drives relative and their switches on; Lantern has nothing on, and no stage that
// it could control.
TEST(NosepieceFrameAlone, OfTheNextMicroscopeTheDriveWhoseSwitchGoesOffIsNoLongerCompensated) {
  PageRig rig(List({"Quay", "Lantern", "Harbour"}));
  auto& page = rig.Show(MakeInterlockOtherCtl(rig.k70()));
  rig.k70().Disconnect();
  rig.k70().Connect(1);
  rig.k70().Receive();
  rig.k70().CZDrive.curFocusCompensation = kAbsolute;
  rig.k70().CXYDrive.curFocusCompensation = kAbsolute;
  page.LoadData();
  EXPECT_FALSE(page.CheckNosepiece[kZFocus]->isChecked());
  EXPECT_EQ(rig.k70().CZDrive.curFocusCompensation, kNone);
  EXPECT_TRUE(page.CheckNosepiece[kStage]->isChecked()) << "it keeps the side of the former one";
  EXPECT_EQ(rig.k70().CXYDrive.curFocusCompensation, kAbsolute);
  EXPECT_EQ(rig.k70().ILOther.Status(14), -1);
}

}  // namespace
}  // namespace mortane::test
