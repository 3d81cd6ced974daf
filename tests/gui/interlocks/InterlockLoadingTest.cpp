// What loading the interlock pages changes in the model: the compensation of a drive whose switch
// changes, and nothing else.
#include <gtest/gtest.h>

#include "gui/interlocks/InterlockPages.h"
#include "gui/interlocks/ModelText.h"

namespace mortane::test {
namespace {

constexpr std::int32_t kAbsolute = 2;
constexpr std::int32_t kRelative = 3;

class LoadingOn : public testing::TestWithParam<std::string> {
 protected:
  LoadingOn() { ReceiveWhatever(rig); }

  // Makes, shows, loads, saves, hides and shows the page again.
  template <typename MakePage>
  void DoAllWith(MakePage make) {
    Page& page = rig.Show(make(k70));
    page.LoadData();
    page.SaveData();
    page.hide();
    page.show();
    page.LoadData();
    EXPECT_TRUE(rig.journal.Writes().empty());
    EXPECT_TRUE(rig.prompts.Boxes().empty());
  }

  // Its switch is on, and enabled.
  bool IsDriveOn(std::int32_t drive) {
    return k70.IsMounted(accessory::kNosepiece) == kControllable &&
           k70.IsMounted(drive) == kControllable && k70.ILOther.Status(drive) == kInterlockOn;
  }

  // Expects the drives whose switches are on to be relative, and the rest of the model as it was.
  template <typename MakePage>
  void ExpectOnlyDrivesThatAreOnToChange(MakePage make) {
    const std::int32_t zMode = k70.CZDrive.curFocusCompensation;
    const std::int32_t xyMode = k70.CXYDrive.curFocusCompensation;
    const std::string before = ModelText(k70);
    DoAllWith(make);
    EXPECT_EQ(k70.CZDrive.curFocusCompensation,
              IsDriveOn(accessory::kZFocusDrive) ? kRelative : zMode);
    EXPECT_EQ(k70.CXYDrive.curFocusCompensation,
              IsDriveOn(accessory::kXYStage) ? kRelative : xyMode);
    k70.CZDrive.curFocusCompensation = zMode;
    k70.CXYDrive.curFocusCompensation = xyMode;
    EXPECT_EQ(ModelText(k70), before);
  }

  void MakeDrivesAbsolute() {
    k70.CZDrive.curFocusCompensation = kAbsolute;
    k70.CXYDrive.curFocusCompensation = kAbsolute;
  }

  PageRig rig{GetParam(), Link::None};
  InterlockPageUnits& k70 = rig.k70();
};

TEST_P(LoadingOn, TheFirstSubPageChangesNothing) {
  const std::string before = ModelText(k70);
  DoAllWith(MakeInterlockObservationCtl);
  EXPECT_EQ(ModelText(k70), before);
}

TEST_P(LoadingOn, TheThirdSubPageChangesNothing) {
  const std::string before = ModelText(k70);
  DoAllWith(MakeInterlockOffsetCtl);
  EXPECT_EQ(ModelText(k70), before);
}

TEST_P(LoadingOn, TheSecondSubPageChangesTheModesOfDrivesAlone) {
  ExpectOnlyDrivesThatAreOnToChange(MakeInterlockOtherCtl);
}

TEST_P(LoadingOn, TheSecondSubPageChangesTheModesOfAbsoluteDrivesAlone) {
  MakeDrivesAbsolute();
  ExpectOnlyDrivesThatAreOnToChange(MakeInterlockOtherCtl);
}

TEST_P(LoadingOn, TheWholePageChangesTheModesOfDrivesAlone) {
  MakeDrivesAbsolute();
  ExpectOnlyDrivesThatAreOnToChange(MakeInterlockSettingsCtl);
}

INSTANTIATE_TEST_SUITE_P(Bench, LoadingOn, testing::ValuesIn(benches::Names()),
                         [](const auto& bench) { return bench.param; });

}  // namespace
}  // namespace mortane::test
