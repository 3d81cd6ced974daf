// The check that the drill of the pages makes on their layout.
#include "gui/support/PageLayout.h"

#include <QLabel>
#include <QScrollArea>

#include "drawings/TurretButton.h"
#include "gui/support/TestWindow.h"
#include "widgets/ListBox.h"

namespace mortane {
namespace {

using test::LayoutFaults;

class PageLayout : public testing::Test {
 protected:
  template <typename Control>
  Control* Place(Control* control, const QRect& area) {
    control->setParent(&window);
    control->setGeometry(area);
    control->show();
    return control;
  }
  QLabel* PlaceLabel(const char* text, QPoint at) {
    auto* label = new QLabel(QLatin1String(text));
    return Place(label, {at, label->sizeHint()});
  }
  std::size_t Faults() {
    window.show();
    return LayoutFaults(window).size();
  }

  PageLayout() { window.resize(300, 200); }
  QWidget window;
};

TEST_F(PageLayout, TellsNothingOfControlsThatAreWholeAndApart) {
  PlaceLabel("One", {0, 0});
  PlaceLabel("Two", {0, 100});
  EXPECT_EQ(Faults(), 0U);
}

TEST_F(PageLayout, TellsOfAControlThatIsNarrowerOrLowerThanItAsksFor) {
  QLabel* label = PlaceLabel("A text of some length", {10, 10});
  const QSize whole = label->size();
  label->resize(whole.width() - 1, whole.height());
  EXPECT_EQ(Faults(), 1U);
  label->resize(whole.width(), whole.height() - 1);
  EXPECT_EQ(Faults(), 1U);
  label->resize(whole);
  EXPECT_EQ(Faults(), 0U);
}

TEST_F(PageLayout, TellsOfATextThatIsWrappedIntoMoreLinesThanItHasRoomFor) {
  QLabel* label = PlaceLabel("A text of some length", {10, 10});
  const int line = label->height();
  label->setWordWrap(true);
  label->resize(label->width() / 2, line);
  EXPECT_EQ(Faults(), 1U);
  label->resize(label->width(), label->heightForWidth(label->width()));
  EXPECT_EQ(Faults(), 0U);
}

TEST_F(PageLayout, TellsOfAControlThatReachesOutOfItsParent) {
  PlaceLabel("One", {-1, 0});
  EXPECT_EQ(Faults(), 1U);
  PlaceLabel("Two", {280, 190});
  EXPECT_EQ(Faults(), 2U);
}

TEST_F(PageLayout, TellsOfControlsThatOverlap) {
  PlaceLabel("One", {10, 10});
  QLabel* other = PlaceLabel("Two", {15, 15});
  EXPECT_EQ(Faults(), 1U);
  other->hide();
  EXPECT_EQ(Faults(), 0U) << "what is hidden is in nobody's way";
}

TEST_F(PageLayout, HalosMayReachIntoEachOther) {
  const int room = static_cast<int>(TurretButton::HaloRoom());
  Place(new TurretButton(PlaceKind::Cubes, 1, nullptr), {0, 0, 60, 60});
  auto* second = Place(new TurretButton(PlaceKind::Cubes, 2, nullptr), {60 - 2 * room, 0, 60, 60});
  EXPECT_EQ(Faults(), 0U);
  second->move(second->x() - 1, 0);
  EXPECT_EQ(Faults(), 1U);
}

TEST_F(PageLayout, LooksIntoWhatIsScrolledAndNotIntoLists) {
  auto* area = Place(new QScrollArea, {0, 0, 100, 100});
  auto* panel = new QWidget;
  auto* label = new QLabel("A text that is wider than the area it is scrolled in", panel);
  panel->resize(label->sizeHint() + QSize(0, 300));
  area->setWidget(panel);
  Place(new ListBox, {120, 0, 100, 100})->addRow("A row that is wider than its list");
  EXPECT_EQ(Faults(), 0U);
  label->resize(20, label->height());
  EXPECT_EQ(Faults(), 1U);
}

}  // namespace
}  // namespace mortane
