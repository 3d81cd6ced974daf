// A page with a turret: its parts, and how they share its room.
#include "drawings/TurretPage.h"

#include "drawings/TurretDrawing.h"
#include "gui/support/TestWindow.h"
#include "widgets/Card.h"
#include "widgets/ListBox.h"
#include "widgets/TabStrip.h"
#include "widgets/ValueBox.h"

namespace mortane {
namespace {

class Places : public TurretPage {
 public:
  explicit Places(QWidget* parent)
      : TurretPage("Places", PlaceKind::Cubes, "Turret of places", parent) {
    auto* lists = new QWidget(listParent());
    auto* column = new QVBoxLayout(lists);
    column->setContentsMargins({});
    list = new ListBox(lists);
    list->SetColumns({{"Name"}, {"Type"}});
    list->addCells({"A", "B"});
    column->addWidget(list);
    SetLists(lists, 30);
    values()->AddValue("Name", 10, 1);
    turret()->SetItems(QVector<TurretItem>(6));
    tabs()->SetNumberedTabs(6);
  }
  using TurretPage::address;
  using TurretPage::SetTabStops;
  using TurretPage::tabs;
  using TurretPage::turret;
  using TurretPage::values;

  ListBox* list = nullptr;
  std::vector<std::int32_t> clicked;

 protected:
  void ClickTab() override { clicked.push_back(address()); }
};

class TurretPageTest : public testing::Test {
 protected:
  void ShowIn(const QSize& size) {
    window.widget().resize(size);
    window.Show();
    QApplication::processEvents();
  }
  QRect PlaceOf(QWidget& widget) { return {widget.mapTo(page, QPoint()), widget.size()}; }

  TestWindow window;
  Places* page = window.Add<Places>();
};

TEST_F(TurretPageTest, NamesItsPartsForScreenReaders) {
  EXPECT_EQ(page->tabs()->accessibleName(), "Address");
  EXPECT_EQ(page->turret()->accessibleName(), "Turret of places");
  EXPECT_EQ(page->turret()->objectName(), "turret");
  EXPECT_EQ(page->FrameBase->caption(), "Places");
}

TEST_F(TurretPageTest, TabAndTurretChooseTheAddressTogether) {
  ShowIn({1000, 600});
  QTest::mouseClick(page->turret()->place(3), Qt::LeftButton, {},
                    page->turret()->place(3)->rect().center());
  EXPECT_EQ(page->tabs()->index(), 3);
  QTest::mouseClick(page->tabs(), Qt::LeftButton, {}, page->tabs()->tabRect(1).center());
  EXPECT_EQ(page->clicked, (std::vector<std::int32_t>{4, 2}));
}

TEST_F(TurretPageTest, HasItsTurretBetweenTheTabsAndTheValues) {
  ShowIn({1000, 600});
  const QRect tabs = PlaceOf(*page->tabs());
  const QRect turret = PlaceOf(*page->turret());
  const QRect list = PlaceOf(*page->list);
  const QRect values = PlaceOf(*page->values());
  EXPECT_EQ(turret.top(), tabs.bottom() + 1 + 12);
  EXPECT_EQ(values.top(), turret.bottom() + 1 + 12);
  EXPECT_EQ(list.top(), turret.top());
  EXPECT_EQ(list.bottom(), turret.bottom());
  EXPECT_GT(list.left(), turret.right());
  EXPECT_EQ(values.height(), page->values()->sizeHint().height()) << "the turret takes the rest";
}

TEST_F(TurretPageTest, TheTurretIsAsWideAsHighAndTheListsTakeTheRest) {
  ShowIn({1200, 600});
  EXPECT_EQ(page->turret()->width(), page->turret()->height());
  const int height = page->turret()->height();
  ShowIn({1200, 700});
  EXPECT_EQ(page->turret()->height(), height + 100);
  EXPECT_EQ(page->turret()->width(), height + 100);
}

TEST_F(TurretPageTest, ListsStandBesideTheTurretWhereTheirCharactersHaveRoom) {
  const int room = page->fontMetrics().averageCharWidth() * 30;
  const int around = 2 * 16 + page->turret()->minimumSizeHint().width() + 16 + room;
  page->setMinimumWidth(0);
  for (const int less : {0, 1}) {
    const QMargins margins = window.widget().layout()->contentsMargins();
    ShowIn({around - less + margins.left() + margins.right(), 900});
    EXPECT_EQ(PlaceOf(*page->list).top() == PlaceOf(*page->turret()).top(), less == 0) << less;
  }
}

TEST_F(TurretPageTest, ListsKeepTheirRowsInALowWindow) {
  EXPECT_EQ(page->list->sizePolicy().verticalPolicy(), QSizePolicy::MinimumExpanding);
  EXPECT_EQ(page->list->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
  EXPECT_GE(page->minimumSizeHint().height(), page->list->sizeHint().height());
}

TEST_F(TurretPageTest, ColumnsBeginAtTheirStopsOnceThePageIsShown) {
  page->SetTabStops(page->list, {400});
  EXPECT_LT(page->list->columnWidth(0), 300);
  ShowIn({1400, 600});
  EXPECT_GT(page->list->columnWidth(0), 300);
}

}  // namespace
}  // namespace mortane
