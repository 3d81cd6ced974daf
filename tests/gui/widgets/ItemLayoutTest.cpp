#include "widgets/ItemLayout.h"

#include "gui/support/TestWindow.h"
#include "widgets/ColumnFlow.h"
#include "widgets/FlowRow.h"
#include "widgets/PairPanel.h"
#include "widgets/ReflowGrid.h"
#include "widgets/SectionBar.h"

namespace mortane {
namespace {

// Places nothing.
class Shelf : public ItemLayout {
 public:
  using ItemLayout::ItemLayout;
  using ItemLayout::ShownItems;
  [[nodiscard]] QSize sizeHint() const override { return {}; }
};

// Counts the items that were destroyed.
class CountedItem : public QSpacerItem {
 public:
  explicit CountedItem(int& destroyed) : QSpacerItem(1, 1), destroyed_(destroyed) {}
  ~CountedItem() override { ++destroyed_; }
  CountedItem(const CountedItem&) = delete;
  CountedItem& operator=(const CountedItem&) = delete;

 private:
  int& destroyed_;
};

class ItemLayoutTest : public ::testing::Test {
 protected:
  ItemLayoutTest() {
    for (QWidget*& part : parts) {
      part = new QWidget(&panel);
      shelf->addWidget(part);
    }
  }

  QWidget panel;
  Shelf* shelf = new Shelf(&panel);
  std::array<QWidget*, 3> parts{};
};

TEST_F(ItemLayoutTest, KeepsItsItemsInTheirOrder) {
  ASSERT_EQ(shelf->count(), 3);
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(shelf->itemAt(i)->widget(), parts[static_cast<std::size_t>(i)]) << i;
  EXPECT_EQ(shelf->indexOf(parts[2]), 2);
  EXPECT_EQ(shelf->contentsMargins(), QMargins());
}

TEST_F(ItemLayoutTest, GivesBackWhatIsTakenAndClosesUp) {
  const std::unique_ptr<QLayoutItem> taken(shelf->takeAt(1));
  ASSERT_NE(taken, nullptr);
  EXPECT_EQ(taken->widget(), parts[1]);
  ASSERT_EQ(shelf->count(), 2);
  EXPECT_EQ(shelf->itemAt(1)->widget(), parts[2]);
  shelf->removeWidget(parts[0]);
  EXPECT_EQ(shelf->count(), 1);
}

TEST_F(ItemLayoutTest, HasNothingBesideItsItems) {
  for (const int index : {-1, 3, 100}) {
    EXPECT_EQ(shelf->itemAt(index), nullptr) << index;
    EXPECT_EQ(shelf->takeAt(index), nullptr) << index;
  }
  EXPECT_EQ(shelf->count(), 3);
}

TEST_F(ItemLayoutTest, TellsWhichItemsAreNotHidden) {
  parts[1]->hide();
  const std::vector<QLayoutItem*> shown{shelf->itemAt(0), shelf->itemAt(2)};
  EXPECT_EQ(shelf->ShownItems(), shown);
}

TEST_F(ItemLayoutTest, ForgetsAControlThatIsDestroyed) {
  delete parts[0];
  ASSERT_EQ(shelf->count(), 2);
  EXPECT_EQ(shelf->itemAt(0)->widget(), parts[1]);
}

TEST(ItemLayout, DestroysTheItemsThatWereNotTaken) {
  int destroyed = 0;
  auto shelf = std::make_unique<Shelf>();
  for (int i = 0; i < 3; ++i) shelf->addItem(new CountedItem(destroyed));
  const std::unique_ptr<QLayoutItem> taken(shelf->takeAt(0));
  shelf.reset();
  EXPECT_EQ(destroyed, 2);
}

TEST(ItemLayouts, TellTheRoomThatTheyWereGiven) {
  const QRect room(3, 4, 300, 200);
  ColumnFlow columns(10, 4);
  FlowRow line(10, 4);
  ReflowGrid grid(ReflowGrid::Order::RowByRow, 2, 10, 4);
  for (QLayout* layout : std::initializer_list<QLayout*>{&columns, &line, &grid}) {
    layout->setGeometry(room);
    EXPECT_EQ(layout->geometry(), room);
  }
  SectionBar bar;
  bar.AddOption("One");
  PairPanel pair;
  pair.SetParts(new QWidget(&pair), 1, new QWidget(&pair), 1);
  for (QWidget* panel : std::initializer_list<QWidget*>{&bar, &pair}) {
    panel->layout()->setGeometry(room);
    EXPECT_EQ(panel->layout()->geometry(), room);
  }
}

}  // namespace
}  // namespace mortane
