#include "widgets/Rail.h"

#include <utility>

#include "gui/support/PaintCount.h"
#include "gui/support/TestWindow.h"
#include "widgets/PageButton.h"

namespace mortane {
namespace {

using Rows = std::vector<int>;

class RailTest : public ::testing::Test {
 protected:
  void SetUp() override {
    before = window.Add<QLineEdit>();
    rail = window.Add<Rail>();
    for (const char* text : {"System", "Objectives", "Filter Cubes", "Condensers"})
      rail->AddPage(IconName::System, text);
    after = window.Add<QLineEdit>();
    window.Show();
  }

  TestWindow window;
  QLineEdit* before = nullptr;
  Rail* rail = nullptr;
  QLineEdit* after = nullptr;
};

TEST_F(RailTest, SelectingTellsANewPageOnly) {
  QSignalSpy changes(rail, &Rail::selectionChanged);
  EXPECT_EQ(rail->selected(), -1);
  rail->select(0);
  rail->select(0);
  rail->select(2);
  EXPECT_EQ(Indices(changes), (Rows{0, 2}));
  EXPECT_FALSE(rail->button(0)->isSelected());
  EXPECT_TRUE(rail->button(2)->isSelected());
}

TEST_F(RailTest, ActsOnThePressAndNotOnTheRelease) {
  rail->select(0);
  QSignalSpy changes(rail, &Rail::selectionChanged);
  QTest::mousePress(rail->button(1), Qt::LeftButton);
  EXPECT_EQ(Indices(changes), (Rows{1}));
  QTest::mouseRelease(rail->button(1), Qt::LeftButton);
  EXPECT_EQ(changes.count(), 1);
}

struct PressRow {
  const char* what;
  Qt::MouseButton button;
  Qt::KeyboardModifiers modifiers;
};

class RailPress : public RailTest, public ::testing::WithParamInterface<PressRow> {};

TEST_P(RailPress, NeedsTheLeftButtonAndNoModifier) {
  QSignalSpy changes(rail, &Rail::selectionChanged);
  QTest::mouseClick(rail->button(1), GetParam().button, GetParam().modifiers);
  EXPECT_EQ(changes.count(), 0);
}

INSTANTIATE_TEST_SUITE_P(Rows, RailPress,
                         ::testing::Values(PressRow{"right", Qt::RightButton, Qt::NoModifier},
                                           PressRow{"middle", Qt::MiddleButton, Qt::NoModifier},
                                           PressRow{"shift", Qt::LeftButton, Qt::ShiftModifier},
                                           PressRow{"control", Qt::LeftButton, Qt::ControlModifier},
                                           PressRow{"alt", Qt::LeftButton, Qt::AltModifier}),
                         [](const auto& row) { return std::string(row.param.what); });

TEST_F(RailTest, ADisabledButtonCannotBePressed) {
  rail->SetPageEnabled(1, false);
  QSignalSpy changes(rail, &Rail::selectionChanged);
  QTest::mouseClick(rail->button(1), Qt::LeftButton);
  EXPECT_EQ(changes.count(), 0);
}

TEST_F(RailTest, UpAndDownOnlyMoveTheFocusAndSpaceSelects) {
  rail->select(0);
  rail->button(0)->setFocus();
  rail->SetPageEnabled(1, false);
  QSignalSpy changes(rail, &Rail::selectionChanged);
  QTest::keyClick(rail->button(0), Qt::Key_Up);
  EXPECT_TRUE(rail->button(0)->hasFocus());
  QTest::keyClick(rail->button(0), Qt::Key_Down);
  EXPECT_TRUE(rail->button(2)->hasFocus());
  EXPECT_EQ(changes.count(), 0);
  QTest::keyClick(rail->button(2), Qt::Key_Return);
  EXPECT_EQ(changes.count(), 0);
  QTest::keyClick(rail->button(2), Qt::Key_Space);
  EXPECT_EQ(Indices(changes), (Rows{2}));
}

TEST_F(RailTest, HomeAndEndMoveTheFocusToTheEndsThatCanBeUsed) {
  rail->select(0);
  rail->SetPageEnabled(3, false);
  rail->button(0)->setFocus();
  QSignalSpy changes(rail, &Rail::selectionChanged);
  QTest::keyClick(rail->button(0), Qt::Key_End);
  EXPECT_TRUE(rail->button(2)->hasFocus());
  QTest::keyClick(rail->button(2), Qt::Key_Down);
  EXPECT_TRUE(rail->button(2)->hasFocus()) << "nothing below can be used";
  QTest::keyClick(rail->button(2), Qt::Key_Home);
  EXPECT_TRUE(rail->button(0)->hasFocus());
  EXPECT_EQ(changes.count(), 0);
}

TEST_F(RailTest, IsOneTabStopAtTheSelectedPage) {
  rail->select(2);
  before->setFocus();
  QTest::keyClick(before, Qt::Key_Tab);
  EXPECT_TRUE(rail->button(2)->hasFocus());
  QTest::keyClick(rail->button(2), Qt::Key_Up);
  QTest::keyClick(rail->button(1), Qt::Key_Tab);
  EXPECT_TRUE(after->hasFocus());
}

TEST_F(RailTest, ASelectionAndADotArePaintedAtOnce) {
  QApplication::processEvents();
  test::PaintCount paints(*rail->button(1));
  rail->button(1)->SetSelected(true);
  QApplication::processEvents();
  EXPECT_EQ(std::exchange(paints.count, 0), 1);
  rail->button(1)->SetPending(true);
  QApplication::processEvents();
  EXPECT_EQ(paints.count, 1);
}

TEST_F(RailTest, ThePendingDotChangesTheFaceOfTheButton) {
  const QImage plain = rail->button(1)->grab().toImage();
  rail->button(1)->SetPending(true);
  EXPECT_NE(rail->button(1)->grab().toImage(), plain);
  rail->button(1)->SetPending(false);
  EXPECT_EQ(rail->button(1)->grab().toImage(), plain);
}

TEST_F(RailTest, ButtonsBearTheirTextAndSizesOfTheGrid) {
  EXPECT_EQ(rail->button(1)->accessibleName(), "Objectives");
  EXPECT_GE(rail->button(1)->sizeHint().width(), 104);
  EXPECT_GE(rail->button(1)->sizeHint().height(), 78);
}

}  // namespace
}  // namespace mortane
