#include "widgets/Rail.h"

#include <utility>

#include "gui/support/Face.h"
#include "gui/support/PaintCount.h"
#include "gui/support/TestWindow.h"
#include "widgets/PageButton.h"
#include "widgets/Theme.h"

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

TEST_F(RailTest, UpAndDownGoFromPageToPage) {
  rail->button(0)->setFocus();
  for (const int page : {1, 2, 3}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(rail->button(page)->hasFocus()) << page;
  }
  for (const int page : {2, 1, 0}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_TRUE(rail->button(page)->hasFocus()) << page;
  }
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
  rail->SetPageEnabled(3, true);
  QTest::keyClick(rail->button(2), Qt::Key_End);
  EXPECT_TRUE(rail->button(3)->hasFocus());
  rail->button(2)->setFocus();
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
  EXPECT_EQ(rail->button(1)->font(), RailFont());
  EXPECT_EQ(rail->button(1)->accessibleName(), "Objectives");
  EXPECT_GE(rail->button(1)->sizeHint().width(), 104);
  EXPECT_GE(rail->button(1)->sizeHint().height(), 78);
}

struct PageFace {
  const char* what;
  test::Use use;
  bool selected;
  bool pending;
  const char* row;     // through the dot beside the picture
  const char* column;  // between the edge and the picture
};

TEST(PageButtonFace, TellsEachState) {
  using test::Use;
  for (const PageFace& row : {
           PageFace{"at rest", Use::Rest, false, false,
                    "Rail 46, ~ 2, RailResting 10, ~ 3, Rail 43", "Rail 78"},
           PageFace{"hovered", Use::Hovered, false, false,
                    "RailHover 46, ~ 2, RailText 10, ~ 3, RailHover 43", "RailHover 78"},
           PageFace{"focused", Use::Focused, false, false,
                    "Rail 3, BrightText 2, Rail 41, ~ 2, RailResting 10, ~ 3, Rail 38, BrightText "
                    "2, Rail 3",
                    "Rail 3, BrightText 2, Rail 68, BrightText 2, Rail 3"},
           PageFace{"disabled", Use::Disabled, false, false,
                    "Rail 46, ~ 2, RailDisabled 10, ~ 3, Rail 43", "Rail 78"},
           PageFace{"selected", Use::Rest, true, false,
                    "Amber 4, RailSelected 42, ~ 2, RailText 10, ~ 3, RailSelected 43",
                    "RailSelected 78"},
           PageFace{"selected and focused", Use::Focused, true, false,
                    "Amber 3, BrightText 2, RailSelected 41, ~ 2, RailText 10, ~ 3, RailSelected "
                    "38, BrightText 2, RailSelected 3",
                    "RailSelected 3, BrightText 2, RailSelected 68, BrightText 2, RailSelected 3"},
           PageFace{"not sent", Use::Rest, false, true,
                    "Rail 46, ~ 2, RailResting 10, ~ 3, Rail 6, ~ 1, RailPending 8, ~ 1, Rail 27",
                    "Rail 78"},
           PageFace{"selected and not sent", Use::Rest, true, true,
                    "Amber 4, RailSelected 42, ~ 2, RailText 10, ~ 3, RailSelected 6, ~ 1, "
                    "RailPending 8, ~ 1, RailSelected 27",
                    "RailSelected 78"},
           PageFace{"not sent and disabled", Use::Disabled, false, true,
                    "Rail 46, ~ 2, RailDisabled 10, ~ 3, Rail 43", "Rail 78"},
       }) {
    PageButton button(IconName::System, {});
    button.SetSelected(row.selected);
    button.SetPending(row.pending);
    const QImage picture = test::PictureOf(button, {104, 78}, row.use);
    EXPECT_EQ(test::RowOf(picture, 15), row.row) << row.what;
    EXPECT_EQ(test::ColumnOf(picture, 20), row.column) << row.what;
  }
}

TEST(PageButtonFace, HasThePictureInTheColourOfItsText) {
  using test::Use;
  struct Ink {
    Use use;
    bool selected;
    Tone tone;
    Tone accent;
  };
  for (const Ink& row : {Ink{Use::Rest, false, Tone::RailResting, Tone::RailResting},
                         Ink{Use::Hovered, false, Tone::RailText, Tone::RailText},
                         Ink{Use::Disabled, false, Tone::RailDisabled, Tone::RailDisabled},
                         Ink{Use::Rest, true, Tone::RailText, Tone::Amber},
                         Ink{Use::Disabled, true, Tone::RailDisabled, Tone::RailDisabled}}) {
    PageButton button(IconName::Receive, {});
    button.SetSelected(row.selected);
    const QImage picture = test::PictureOf(button, {104, 78}, row.use).copy(30, 8, 44, 40);
    QImage wanted(104, 78, QImage::Format_RGB32);
    wanted.fill(picture.pixel(0, 0));
    QPainter painter(&wanted);
    DrawIcon(painter, IconName::Receive, QRectF(36, 12, 32, 32),
             {ToneColor(row.tone), ToneColor(row.accent)});
    painter.end();
    EXPECT_EQ(picture.convertToFormat(QImage::Format_RGB32), wanted.copy(30, 8, 44, 40));
  }
}

TEST(PageButtonFace, ALowButtonLosesRoomAboveItsPictureFirst) {
  struct Place {
    int height;
    int top;
  };
  for (const Place& row : {Place{78, 12}, Place{70, 8}, Place{60, 4}, Place{50, 4}}) {
    PageButton button(IconName::System, {});
    const QImage picture = test::PictureOf(button, {104, row.height}, test::Use::Rest);
    QImage wanted(picture.size(), QImage::Format_RGB32);
    wanted.fill(ToneColor(Tone::Rail));
    QPainter painter(&wanted);
    DrawIcon(painter, IconName::System, QRectF(36, row.top, 32, 32),
             {ToneColor(Tone::RailResting), ToneColor(Tone::RailResting)});
    painter.end();
    EXPECT_EQ(picture.convertToFormat(QImage::Format_RGB32), wanted) << row.height;
  }
}

TEST(PageButtonFace, IsAsLargeAsTheGridAndNoLowerThanItsPictureAndText) {
  const PageButton button(IconName::System, QString(40, u'W'));
  const int text = button.fontMetrics().horizontalAdvance(button.text());
  const int line = button.fontMetrics().height();
  EXPECT_EQ(button.sizeHint(), QSize(text + 16, qMax(78, 12 + 32 + 8 + line + 10)));
  EXPECT_EQ(button.minimumSizeHint(), QSize(text + 16, 32 + line + 12));
  EXPECT_EQ(PageButton(IconName::System, "I").sizeHint().width(), 104);
}

TEST_F(RailTest, UpAndDownPassOverTheButtonThatCannotBeUsed) {
  rail->SetPageEnabled(2, false);
  rail->button(3)->setFocus();
  QTest::keyClick(rail->button(3), Qt::Key_Up);
  EXPECT_TRUE(rail->button(1)->hasFocus());
  QTest::keyClick(rail->button(1), Qt::Key_Down);
  EXPECT_TRUE(rail->button(3)->hasFocus());
}

// A page that is scrolled would take the key for its own.
TEST(RailKeys, ThatMoveTheFocusGoNoFurther) {
  class Behind : public QWidget {
   public:
    std::vector<int> keys;

   protected:
    void keyPressEvent(QKeyEvent* event) override { keys.push_back(event->key()); }
  };
  Behind behind;
  auto* rail = new Rail(&behind);
  for (const char* text : {"System", "Objectives"}) rail->AddPage(IconName::System, text);
  behind.show();
  behind.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&behind));
  rail->button(0)->setFocus();
  for (const Qt::Key key :
       {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up, Qt::Key_End, Qt::Key_Home, Qt::Key_A}) {
    QTest::keyClick(QApplication::focusWidget(), key);
  }
  EXPECT_EQ(behind.keys, std::vector<int>{Qt::Key_A});
}

TEST(RailFace, HasItsGroundBesideItsPages) {
  Rail rail;
  const QImage picture = test::PictureOf(rail, {104, 200}, test::Use::Rest);
  EXPECT_EQ(test::RowOf(picture), "Rail 104");
  EXPECT_EQ(test::ColumnOf(picture), "Rail 200");
}

}  // namespace
}  // namespace mortane
