// When the sub-pages of the objectives may wait until they are shown: where loading and saving them
// would change nothing.
#include <gtest/gtest.h>

#include <QFrame>
#include <memory>

#include "gui/objectives/ObjectivePages.h"
#include "widgets/ComboBox.h"

namespace mortane::test {
namespace {

struct OptionRow {
  const char* what;
  const char* name;
  const char* magnification;
  const char* workingDistance;
  const char* numericalAperture;
  bool loads;  // without its page
  bool saves;
};

TEST(LateObjectives, TheUsersFirstObjectiveMustFitItsBoxesAsItIs) {
  for (const OptionRow& row : {
           OptionRow{"usual", "Mine", "12.5", "3.25", "0.333", true, true},
           OptionRow{"highest numbers", "Mine", "200", "40", "2", true, true},
           OptionRow{"no magnification", "Mine", "----", "3.25", "0.333", true, true},
           OptionRow{"a number of six characters", "Mine", "123.45", "3.25", "0.333", false, false},
           OptionRow{"a tab in the name", "Mi\tne", "12.5", "3.25", "0.333", false, false},
           OptionRow{"a letter beyond ASCII", "M\xC3\xADne", "12.5", "3.25", "0.333", false, false},
           OptionRow{"a name that is cut", "Sixteen letters.", "12.5", "3.25", "0.333", false,
                     false},
           OptionRow{"too large a magnification", "Mine", "200.5", "3.25", "0.333", true, false},
           OptionRow{"too large a distance", "Mine", "12.5", "40.5", "0.333", true, false},
           OptionRow{"too large an aperture", "Mine", "12.5", "3.25", "2.5", true, false},
       }) {
    PageRig rig("Harbour");
    rig.k70().DbNosepiece.Set_DbNosepiece(1, row.name, 4, 6, row.magnification, row.workingDistance,
                                          row.numericalAperture, 7);
    const LatePlan plan = ObjectiveOptionCtl::Plan(rig.k70().DbNosepiece);
    EXPECT_EQ(plan.load(), row.loads) << row.what;
    EXPECT_EQ(plan.save(), row.saves) << row.what;
  }
}

TEST(LateObjectives, ThePageOfTheUsersObjectivesIsFilledByWhatItsLoadingAsked) {
  PageRig rig("Harbour");
  const LatePlan plan = ObjectiveOptionCtl::Plan(rig.k70().DbNosepiece);
  EXPECT_TRUE(plan.load());
  rig.journal.Clear();
  const std::unique_ptr<Page> page(plan.make());
  plan.fill(*page);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  const auto& made = static_cast<const ObjectiveOptionCtl&>(*page);
  EXPECT_TRUE(made.FrmCondenser->isEnabled());
  EXPECT_EQ(made.ComboCondenser->currentText(), "Ph 2");
}

TEST(LateObjectives, TheFirstAddressMustBearAnObjectiveOfItsList) {
  PageRig rig("Harbour");
  clsNosepiece& nosepiece = rig.k70().curNosepiece;
  const LatePlan plan = ObjectiveCtl::Plan(nosepiece, rig.k70().DbNosepiece);
  EXPECT_TRUE(plan.load());
  const std::int32_t listed = nosepiece.code(1);
  rig.instrument().database.objectives[static_cast<std::size_t>(listed - 1)].name = "-----------";
  rig.k70().Receive();
  EXPECT_FALSE(plan.load());
  nosepiece.Count = 0;
  EXPECT_TRUE(plan.load()) << "a turret without addresses";
}

}  // namespace
}  // namespace mortane::test
