// The compensation of the focus drive on its page, and the interlock that follows it.
#include "gui/drives/DrivePages.h"

namespace mortane::test {
namespace {

struct OptionsRow {
  std::int32_t code;
  int selected;
  bool on;
  bool off;
};

TEST(FocusCompensation, TheOptionsOfTheCompensationAreShownUpToTheOneThatIsSelected) {
  for (const OptionsRow& row :
       {OptionsRow{3, 1, true, false}, OptionsRow{1, 2, true, true}, OptionsRow{2, 0, false, false},
        OptionsRow{-1, -1, false, false}, OptionsRow{7, -1, true, true}}) {
    FocusRig rig("Hub");
    OptionGroup& options = *rig.page.optFocusCompensation;
    ASSERT_EQ(rig.drive().curFocusCompensation, -1);
    rig.drive().curFocusCompensation = row.code;
    rig.page.LoadData();
    EXPECT_EQ(options.selected(), row.selected) << row.code;
    EXPECT_TRUE(options.button(0)->isHidden()) << row.code;
    EXPECT_EQ(!options.button(1)->isHidden(), row.on) << row.code;
    EXPECT_EQ(!options.button(2)->isHidden(), row.off) << row.code;
  }
}

TEST(FocusCompensation, LaterOptionsOfTheCompensationKeepTheirVisibility) {
  FocusRig rig;
  rig.drive().curFocusCompensation = 1;
  rig.page.LoadData();
  rig.drive().curFocusCompensation = 3;
  rig.page.LoadData();
  EXPECT_FALSE(rig.page.optFocusCompensation->button(2)->isHidden());
  rig.drive().curFocusCompensation = -1;
  rig.page.LoadData();
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(rig.page.optFocusCompensation->button(i)->isHidden());
  EXPECT_EQ(rig.drive().curFocusCompensation, -1);
}

TEST(FocusCompensation, ACompensationThatIsNoOptionSelectsNoneAndAnUnknownOneLeavesTheSelection) {
  FocusRig rig;
  ASSERT_EQ(rig.page.optFocusCompensation->selected(), 1);
  rig.drive().curFocusCompensation = -1;
  rig.page.LoadData();
  EXPECT_EQ(rig.page.optFocusCompensation->selected(), 1);
  rig.drive().curFocusCompensation = 7;
  rig.page.LoadData();
  EXPECT_EQ(rig.page.optFocusCompensation->selected(), -1);
  EXPECT_EQ(rig.drive().curFocusCompensation, 7);
}

struct InterlockRow {
  int option;
  std::int32_t compensation;
  std::int32_t state;
};

TEST(FocusCompensation, TheInterlockOfTheDriveFollowsTheCompensation) {
  FocusRig rig;
  auto& interlock = rig.k70().ILOther;
  for (const InterlockRow& row : {InterlockRow{2, 1, 0}, InterlockRow{1, 3, 1},
                                  InterlockRow{0, 2, 0}, InterlockRow{1, 3, 1}}) {
    rig.page.optFocusCompensation->select(row.option);
    EXPECT_EQ(rig.drive().curFocusCompensation, row.compensation);
    EXPECT_EQ(interlock.Status(12), row.state) << row.option;
  }
}

TEST(FocusCompensation, AClickOnTheCompensationOnShowSetsTheInterlockAgain) {
  FocusRig rig;
  rig.k70().ILOther.Status(12, 0);
  ClickButton(*rig.page.optFocusCompensation->button(1));
  EXPECT_EQ(rig.k70().ILOther.Status(12), 1);
}

TEST(FocusCompensation, LoadingTheCompensationOnShowLeavesTheInterlock) {
  FocusRig rig;
  ASSERT_EQ(rig.page.optFocusCompensation->selected(), 1);
  rig.k70().ILOther.Status(12, 0);
  rig.page.LoadData();
  EXPECT_EQ(rig.k70().ILOther.Status(12), 0);
}

TEST(FocusCompensation, AnUnknownInterlockStaysUnknown) {
  FocusRig rig("Hub");
  ASSERT_EQ(rig.k70().ILOther.Status(12), -1);
  rig.page.optFocusCompensation->select(1);
  EXPECT_EQ(rig.k70().ILOther.Status(12), -1);
}

}  // namespace
}  // namespace mortane::test
