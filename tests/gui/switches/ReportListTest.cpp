#include "switches/ReportList.h"

#include <QHeaderView>

#include "gui/support/TestWindow.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

class ReportListTest : public ::testing::Test {
 protected:
  void SetUp() override {
    list = window.Add<ReportList>(QStringList{"Switch", "Function"});
    list->addCells({"L (A)", "Z Escape"});
    list->addCells({"R (A)", "DIA Lamp Preset"});
  }

  TestWindow window;
  ReportList* list = nullptr;
};

TEST_F(ReportListTest, ShowsItsHeaders) {
  EXPECT_FALSE(list->isHeaderHidden());
  EXPECT_EQ(list->headerItem()->text(0), "Switch");
  EXPECT_EQ(list->headerItem()->text(1), "Function");
}

TEST_F(ReportListTest, OneRowAtATimeIsBold) {
  list->SetBoldRow(0);
  list->SetBoldRow(1);
  EXPECT_FALSE(list->topLevelItem(0)->font(0).bold());
  EXPECT_TRUE(list->topLevelItem(1)->font(0).bold());
  EXPECT_TRUE(list->topLevelItem(1)->font(1).bold());
  EXPECT_EQ(list->boldRow(), 1);
  list->SetBoldRow(-1);
  EXPECT_FALSE(list->topLevelItem(1)->font(1).bold());
}

TEST_F(ReportListTest, ItsColumnsHoldABoldRowAndDoNotMoveForIt) {
  list->SetCell(0, 0, "DIA Aperture Stop OPEN/CLOSE");
  window.Show();
  list->resize(900, 200);
  QApplication::processEvents();
  const int before = list->header()->sectionSize(0);
  EXPECT_GT(before, QFontMetrics(BoldFont()).horizontalAdvance("DIA Aperture Stop OPEN/CLOSE"));
  for (const int row : {0, 1, -1}) {
    list->SetBoldRow(row);
    list->resize(899, 200 + row);  // measured anew
    QApplication::processEvents();
    EXPECT_EQ(list->header()->sectionSize(0), before) << row;
  }
}

TEST_F(ReportListTest, ACellChangesInPlaceWithoutAClick) {
  list->setIndex(1);
  QSignalSpy clicks(list, &ListBox::selectionChanged);
  list->SetCell(1, 1, "Z Escape");
  EXPECT_EQ(list->cell(1, 1), "Z Escape");
  EXPECT_EQ(list->cell(1, 0), "R (A)");
  EXPECT_EQ(clicks.count(), 0);
}

}  // namespace
}  // namespace mortane
