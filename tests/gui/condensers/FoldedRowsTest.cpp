// The nine rows of names in windows of different heights.
#include <gtest/gtest.h>

#include <QApplication>

#include "gui/condensers/CondenserPages.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

class FoldedRows : public testing::Test {
 protected:
  FoldedRows() { rig.Show(&page); }

  QPoint PlaceOf(std::size_t row) { return page.TextName[row]->mapTo(&page, QPoint(0, 0)); }
  void SetHeight(int height) {
    rig.window().resize(rig.window().width(), height);
    QApplication::processEvents();
  }

  PageRig rig{"Harbour"};
  CondenserOptionCtl& page = *MakeCondenserOptionCtl(rig.k70());
};

TEST_F(FoldedRows, StandBelowEachOtherWhereThereIsRoom) {
  SetHeight(600);
  for (std::size_t row = 1; row < 9; ++row) {
    EXPECT_EQ(PlaceOf(row).x(), PlaceOf(0).x());
    EXPECT_GE(PlaceOf(row).y(), PlaceOf(row - 1).y() + page.TextName[row]->height());
  }
}

TEST_F(FoldedRows, StandInTwoColumnsOfFiveAndFourWhereThereIsLess) {
  SetHeight(300);
  for (std::size_t row = 1; row < 5; ++row) EXPECT_EQ(PlaceOf(row).x(), PlaceOf(0).x());
  for (std::size_t row = 5; row < 9; ++row) {
    EXPECT_GT(PlaceOf(row).x(), PlaceOf(0).x() + page.TextName[0]->width());
    EXPECT_EQ(PlaceOf(row).y(), PlaceOf(row - 5).y());
  }
  SetHeight(600);
  EXPECT_EQ(PlaceOf(8).x(), PlaceOf(0).x());
}

TEST_F(FoldedRows, AreWholeInTheLowestWindowThatHoldsThem) {
  SetHeight(1);
  for (std::size_t row = 0; row < 9; ++row) {
    EXPECT_LE(PlaceOf(row).y() + page.TextName[row]->height(), page.height()) << row;
  }
  EXPECT_GT(PlaceOf(5).x(), PlaceOf(0).x());
}

TEST_F(FoldedRows, KeepTheOrderOfTheTabKey) {
  const std::vector<std::string> before = rig.TabOrder();
  SetHeight(300);
  EXPECT_EQ(rig.TabOrder(), before);
}

}  // namespace
}  // namespace mortane::test
