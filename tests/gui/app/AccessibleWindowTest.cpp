// The windows as a screen reader meets them; the pages have drills of their own.
#include <QToolBar>

#include "AppRig.h"
#include "app/SelFileItemDlg.h"
#include "app/SelScopeDlg.h"
#include "gui/support/AccessibleTree.h"
#include "widgets/ListBox.h"
#include "widgets/PageButton.h"
#include "widgets/Rail.h"

namespace mortane::test {
namespace {

using Tree = std::vector<AccessibleControl>;

TEST(AccessibleWindow, TellsWhichPageIsShownAndWhichCannotBe) {
  AppRig rig(benches::Named("Harbour"));
  rig.instrument().Accessory(accessory::kFilterCube).state = 0;
  rig.Start();
  const AccessibleControl cubes{QAccessible::RadioButton, "Filter Cubes", "",
                                "unchecked, disabled"};
  EXPECT_EQ(AccessibleTree(*rig.form->PictureMenu),
            (Tree{told::Group("Pages"), told::Chosen("System"), told::NotChosen("Objectives"),
                  cubes, told::NotChosen("Condensers"), told::NotChosen("Interlocks"),
                  told::NotChosen("Controls")}));
}

TEST(AccessibleWindow, TheToolBarHasAName) {
  AppRig rig(benches::Named("Harbour"));
  EXPECT_EQ(AccessibleOf(rig.Find<QToolBar>("Toolbar1")),
            (AccessibleControl{QAccessible::ToolBar, "Commands"}));
}

TEST(AccessibleWindow, TheListOfMicroscopesIsNamedByItsText) {
  Rig rig(benches::Named("Pair"));
  const SelScopeDlg dialog(rig.k70, rig.prompts, [](std::int32_t) { return true; });
  const AccessibleControl list = AccessibleOf(*dialog.List1);
  EXPECT_EQ(list.name, "Please Click Microscope Name on the List.");
  EXPECT_EQ(list.value, dialog.List1->text(0).toStdString());
}

TEST(AccessibleWindow, FileItemsTellTheirMarks) {
  Rig rig(benches::Named("Pair"));
  for (std::int16_t i = 0; i < 3; ++i) rig.k70.FileItem(i, -1);
  const SelFileItemDlg dialog(rig.k70);
  dialog.List1->SetRowChecked(1, false);
  EXPECT_EQ(AccessibleOf(*dialog.List1).name, "Select File Items");
  const QAccessibleInterface& list = *QAccessible::queryAccessibleInterface(dialog.List1);
  ASSERT_EQ(list.childCount(), dialog.List1->rowCount());
  for (int row = 0; row < list.childCount(); ++row) {
    EXPECT_EQ(list.child(row)->text(QAccessible::Name), dialog.List1->text(row));
    EXPECT_EQ(list.child(row)->state().checked, row != 1) << row;
  }
}

}  // namespace
}  // namespace mortane::test
