// How much a start makes. Instructions are counted by tools/count-start.sh, in a build without
// sanitizers; objects are the same in every build.
#include "gui/app/AppRig.h"
#include "widgets/LatePage.h"

namespace mortane::test {
namespace {

// What was reached on this bench, and 5 %. All pages together have several times as many.
constexpr qsizetype kMostObjects = 325;

TEST(StartSize, NextToNoControlsOfPagesThatAreNotShownAreMade) {
  AppRig rig(benches::Named("Quay"));
  rig.prompts.AcceptAnyBox();
  rig.Start();
  const qsizetype atStart = rig.form->findChildren<QObject*>().size();
  EXPECT_LE(atStart, kMostObjects);
  for (const LatePage* page : rig.form->findChildren<LatePage*>()) page->get();
  EXPECT_GT(rig.form->findChildren<QObject*>().size(), 2 * atStart) << "the pages are there";
}

}  // namespace
}  // namespace mortane::test
