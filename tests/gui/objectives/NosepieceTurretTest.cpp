// The turret of the nosepiece's page and its lists.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QTest>

#include "NosepieceRig.h"
#include "gui/objectives/ObjectivePages.h"
#include "gui/support/PageActs.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"
#include "widgets/ValueLabel.h"

namespace mortane::test {
namespace {

TEST(NosepieceTurret, AClickOnAPlaceIsAClickOnItsTab) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  QTest::mouseClick(TurretOf(rig).place(4), Qt::LeftButton);
  EXPECT_EQ(page.TabNosepiece->caption(), "5");
  EXPECT_EQ(page.LabelName->text(), "Super C 20x");
  EXPECT_EQ(Shown(*page.ListSeries), "Super C");
  ClickTab(*page.TabNosepiece, 1);
  EXPECT_EQ(TurretOf(rig).index(), 1);
}

TEST(NosepieceTurret, ThePlacesAgreeWithTheListsAtAllTimes) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  TurretDrawing& turret = TurretOf(rig);
  ASSERT_EQ(turret.count(), 6);
  EXPECT_EQ(turret.place(0)->accessibleName(), "Address 1, 2x, Plan A 2x");
  EXPECT_EQ(turret.place(3)->accessibleName(), "Address 4, 40x, Plan F 40x");
  ClickTab(*page.TabNosepiece, 3);
  Enter(*page.ListItem, "DIC\t20x\t2.1\t0.5\tPlan F 20x");
  EXPECT_EQ(turret.place(3)->accessibleName(), "Address 4, 20x, Plan F 20x");
  Enter(*page.ListSeries, "Epi");
  EXPECT_EQ(turret.place(3)->accessibleName(), "Address 4, 5x, Epi 5x");
  Enter(*page.ListSeries, "-----------");
  EXPECT_EQ(turret.place(3)->accessibleName(), "Address 4, ----");
}

TEST(NosepieceTurret, AMountedObjectiveWithoutANameShowsItsMagnification) {
  for (const char* blank : {"", "   "}) {
    PageRig rig("Harbour");
    rig.k70().DbNosepiece.Set_DbNosepiece(1, blank, 1, 1, "40", "1", "0.5", 0);
    rig.k70().curNosepiece.code(1, 241);
    auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
    EXPECT_EQ(page.LabelMag->text(), "40x");
    EXPECT_EQ(TurretOf(rig).place(0)->accessibleName(), "Address 1, 40x");
  }
}

TEST(NosepieceTurret, ARecordWithoutNameAndMagnificationIsAFreePlace) {
  PageRig rig("Harbour");
  rig.k70().DbNosepiece.Set_DbNosepiece(1, "", 1, 1, "----", "0", "0", 0);
  rig.k70().curNosepiece.code(1, 241);
  rig.Show(MakeObjectiveCtl(rig.k70()));
  EXPECT_EQ(TurretOf(rig).place(0)->accessibleName(), "Address 1, ----");
}

TEST(NosepieceTurret, ArrowsOnThePlacesWorkTheTabs) {
  PageRig rig("Harbour");
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  TurretOf(rig).place(0)->setFocus();
  QTest::keyClick(TurretOf(rig).place(0), Qt::Key_Left);
  EXPECT_EQ(page.TabNosepiece->caption(), "6");
  EXPECT_EQ(page.LabelName->text(), "Super C100x Oil");
}

TEST(NosepieceTurret, OfOneAddressHasItsTabAndItsLists) {
  PageRig rig("Harbour");
  rig.k70().curNosepiece.Count = 1;
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  EXPECT_EQ(page.TabNosepiece->count(), 1);
  EXPECT_EQ(TurretOf(rig).count(), 1);
  EXPECT_EQ(page.LabelName->text(), "Plan A 2x");
}

TEST(NosepieceTurret, HasRoomForTenAddresses) {
  AtticRig rig;
  auto& page = rig.Show(MakeObjectiveCtl(rig.k70()));
  EXPECT_EQ(page.TabNosepiece->count(), 10);
  EXPECT_EQ(TurretOf(rig).count(), 10);
  QTest::mouseClick(TurretOf(rig).place(9), Qt::LeftButton);
  EXPECT_EQ(page.TabNosepiece->caption(), "10");
}

}  // namespace
}  // namespace mortane::test
