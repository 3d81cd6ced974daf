// The strip of steps by itself.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>
#include <utility>
#include <vector>

#include "gui/app/AppRig.h"
#include "gui/support/AccessibleTree.h"
#include "gui/support/FontScope.h"
#include "widgets/Theme.h"
#include "wizard/StepButton.h"
#include "wizard/StepRail.h"

namespace mortane::test {
namespace {

struct RailOfThree {
  RailOfThree() {
    for (const char* name : {"One", "Two", "Three"}) rail.AddStep(IconName::Flag, name);
    for (int i = 0; i < 3; ++i) rail.SetStepEnabled(i, true);
    rail.SetCurrent(0);
    rail.SetCurrent(1);
    rail.resize(200, 400);
    rail.show();
    QApplication::processEvents();
    if (QWidget* focused = rail.focusWidget()) focused->clearFocus();
  }
  QImage Picture(int step) {
    QApplication::processEvents();
    return rail.button(step)->grab().toImage();
  }

  StepRail rail;
};

// How many pixels of the picture have that colour.
int Count(const QImage& picture, const QColor& colour) {
  int count = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) count += picture.pixelColor(x, y) == colour ? 1 : 0;
  }
  return count;
}

TEST(StepRail, TellsStepsAndStatesToScreenReaders) {
  RailOfThree rig;
  rig.rail.SetStepEnabled(2, false, "why");
  const std::array<const char*, 3> said{"Step 1, passed", "Step 2, current",
                                        "Step 3, switched off"};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(rig.rail.button(i)->accessibleDescription(), said[static_cast<std::size_t>(i)]);
    EXPECT_EQ(rig.rail.button(i)->isChecked(), i == 1);
  }
  EXPECT_EQ(rig.rail.button(0)->accessibleName(), "One");
  rig.rail.SetStepEnabled(2, true);
  EXPECT_EQ(rig.rail.button(2)->accessibleDescription(), "Step 3, to come");
  EXPECT_EQ(AccessibleTree(rig.rail),
            (std::vector<AccessibleControl>{told::Group("Steps"), told::NotChosen("One"),
                                            told::Chosen("Two"), told::NotChosen("Three")}));
}

// Within the circle of a step.
constexpr QRect kMark(20, 19, 16, 16);

TEST(StepRail, TicksTheStepsThatWerePassedAndFillsTheCircleOfTheCurrentOne) {
  RailOfThree rig;
  const QImage passed = rig.Picture(0).copy(kMark);
  const QImage current = rig.Picture(1).copy(kMark);
  const QImage toCome = rig.Picture(2).copy(kMark);
  EXPECT_GT(Count(passed, ToneColor(Tone::RailSelected)), 60);
  EXPECT_GT(Count(current, ToneColor(Tone::Amber)), 60);
  EXPECT_GT(Count(toCome, ToneColor(Tone::Rail)), 60);
  for (const auto& [picture, colour] :
       {std::pair(passed, Tone::Amber), std::pair(current, Tone::RailSelected),
        std::pair(toCome, Tone::Amber), std::pair(toCome, Tone::RailSelected)}) {
    EXPECT_EQ(Count(picture, ToneColor(colour)), 0);
  }
}

TEST(StepRail, DoesNotTickAStepThatWasNeverShown) {
  RailOfThree rig;
  const QImage toCome = rig.Picture(2).copy(kMark);
  StepRail rail;
  rail.AddStep(IconName::Flag, "One");
  for (const char* name : {"Two", "Three", "Four"}) rail.AddStep(IconName::Flag, name);
  for (int i = 0; i < 4; ++i) rail.SetStepEnabled(i, true);
  rail.SetCurrent(0);
  rail.SetCurrent(3);
  EXPECT_EQ(rail.button(0)->accessibleDescription(), "Step 1, passed");
  EXPECT_EQ(rail.button(1)->accessibleDescription(), "Step 2, not visited");
  EXPECT_EQ(rail.button(2)->accessibleDescription(), "Step 3, not visited");
  rail.resize(200, 400);
  rail.show();
  QApplication::processEvents();
  EXPECT_EQ(rail.button(2)->grab().toImage().copy(kMark), toCome) << "its number, in a circle";
  rail.SetCurrent(1);
  EXPECT_EQ(rail.button(2)->accessibleDescription(), "Step 3, to come");
  rail.SetCurrent(2);
  EXPECT_EQ(rail.button(1)->accessibleDescription(), "Step 2, passed");
}

TEST(StepRail, LetsAScreenReaderChooseAStep) {
  RailOfThree rig;
  const QSignalSpy chosen(&rig.rail, &StepRail::chosen);
  auto* step = QAccessible::queryAccessibleInterface(rig.rail.button(2));
  step->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  QApplication::processEvents();
  ASSERT_EQ(chosen.size(), 1);
  EXPECT_EQ(chosen[0][0], 2);
}

TEST(StepRail, IsOneTabStopOnTheCurrentStep) {
  RailOfThree rig;
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(rig.rail.button(i)->focusPolicy(), i == 1 ? Qt::TabFocus : Qt::NoFocus) << i;
  }
  rig.rail.SetCurrent(2);
  EXPECT_EQ(rig.rail.button(2)->focusPolicy(), Qt::TabFocus);
}

TEST(StepRail, GoesToTheEndsByHomeAndEnd) {
  RailOfThree rig;
  rig.rail.activateWindow();
  rig.rail.button(1)->setFocus();
  QTest::keyClick(rig.rail.button(1), Qt::Key_End);
  EXPECT_TRUE(rig.rail.button(2)->hasFocus());
  QTest::keyClick(rig.rail.button(2), Qt::Key_Home);
  EXPECT_TRUE(rig.rail.button(0)->hasFocus());
  QTest::keyClick(rig.rail.button(0), Qt::Key_Up);
  EXPECT_TRUE(rig.rail.button(0)->hasFocus());
}

TEST(StepRail, ShowsAmberOnTheCurrentStepAlone) {
  RailOfThree rig;
  const QColor amber = ToneColor(Tone::Amber);
  EXPECT_EQ(Count(rig.Picture(0), amber), 0);
  EXPECT_GT(Count(rig.Picture(1), amber), 200) << "bar and circle";
  EXPECT_EQ(Count(rig.Picture(2), amber), 0);
}

TEST(StepRail, TellsItsStatesApartByMoreThanColour) {
  RailOfThree rig;
  const QImage toCome = rig.Picture(2);
  rig.rail.SetCurrent(2);
  const QImage current = rig.Picture(2);
  rig.rail.SetCurrent(1);
  rig.rail.SetStepEnabled(2, false);
  const QImage off = rig.Picture(2);
  EXPECT_NE(toCome, current);
  EXPECT_NE(toCome, off);
  EXPECT_GT(Count(toCome, ToneColor(Tone::RailText)), Count(off, ToneColor(Tone::RailText)));
  EXPECT_EQ(Count(off, ToneColor(Tone::RailText)), 0) << "dim";
}

TEST(StepRail, JoinsItsStepsByALineThatEndsWithThem) {
  RailOfThree rig;
  const QColor line = ToneColor(Tone::RailDisabled);
  const auto joined = [&](int step, bool below) {
    const QImage picture = rig.Picture(step);
    return picture.pixelColor(28, below ? picture.height() - 1 : 0) == line;
  };
  EXPECT_FALSE(joined(0, false));
  EXPECT_TRUE(joined(0, true));
  EXPECT_TRUE(joined(1, false));
  EXPECT_TRUE(joined(1, true));
  EXPECT_TRUE(joined(2, false));
  EXPECT_FALSE(joined(2, true));
}

TEST(StepRail, HasCirclesOfTwentyFourPixels) {
  RailOfThree rig;
  const QImage picture = rig.Picture(1);
  std::vector<int> across;
  const QColor ground = ToneColor(Tone::RailSelected);
  for (int x = 5; x < 45; ++x) {
    if (picture.pixelColor(x, picture.height() / 2) != ground) across.push_back(x);
  }
  ASSERT_FALSE(across.empty());
  EXPECT_EQ(across.front(), 16);
  EXPECT_EQ(across.back(), 39);
}

TEST(StepRail, HasStepsOfTheHeightOfTheGridAndCloserOnesOfCircleOrName) {
  RailOfThree rig;
  const StepButton& step = *rig.rail.button(0);
  EXPECT_EQ(step.sizeHint().height(), 54);
  EXPECT_EQ(step.minimumSizeHint().height(), qMax(24, step.fontMetrics().height()) + 8);
  EXPECT_EQ(step.minimumSizeHint().width(), step.sizeHint().width());
}

// Within the twelve pixels above and below the circle, two stay free beside it.
TEST(StepRail, EndsTheLineTwoPixelsFromTheCircle) {
  RailOfThree rig;
  const QImage picture = rig.Picture(1);
  const QColor line = ToneColor(Tone::RailDisabled);
  const int middle = picture.height() / 2;
  for (const auto& [distance, isLine] : {std::pair(13, false), std::pair(14, true)}) {
    EXPECT_EQ(picture.pixelColor(28, middle - distance) == line, isLine) << distance;
    EXPECT_EQ(picture.pixelColor(28, middle + distance) == line, isLine) << distance;
  }
}

// A step by itself: no line leads to another one.
TEST(StepRail, KeepsThePictureOfAStepInTheMiddleOfItsHeight) {
  StepButton step(1, IconName::Flag, "One");
  step.SetPending(true);
  for (const StepState state : {StepState::Passed, StepState::Current, StepState::ToCome}) {
    step.SetState(state);
    step.resize(176, 54);
    const QImage low = step.grab().toImage();
    step.resize(176, 74);
    const QImage high = step.grab().toImage();
    EXPECT_EQ(high.copy(0, 10, 176, 54), low);
    EXPECT_GT(Count(low.copy(52, 15, 24, 24), low.pixelColor(170, 4)), 0) << "around the icon";
    for (const int y : {2, 51}) {
      for (int x = 10; x < 176; ++x) {
        EXPECT_EQ(low.pixelColor(x, y), low.pixelColor(170, 4)) << x << ", " << y;
      }
    }
  }
}

// The height of what is drawn there on one ground.
int InkHeight(const QImage& picture, const QRect& area) {
  const QColor ground = picture.pixelColor(area.topLeft());
  int first = -1;
  int last = -2;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      if (picture.pixelColor(x, y) == ground) continue;
      if (first < 0) first = y;
      last = y;
    }
  }
  return last - first + 1;
}

TEST(StepRail, WritesNumberAndNameInTheirOwnFonts) {
  RailOfThree rig;
  StepButton& step = *rig.rail.button(2);
  const QImage picture = rig.Picture(2);
  const QRect text(88, 0, 80, picture.height());
  EXPECT_NEAR(InkHeight(picture, text),
              QFontMetrics(step.font()).tightBoundingRect(step.text()).height(), 1);
  EXPECT_NEAR(InkHeight(picture, QRect(23, 21, 10, 12)),
              QFontMetrics(MarkFont()).tightBoundingRect("3").height(), 1);
  EXPECT_EQ(Count(picture.copy(77, 0, 11, picture.height()), ToneColor(Tone::Rail)),
            11 * picture.height())
      << "between icon and name";
  QFont large = step.font();
  large.setPointSizeF(large.pointSizeF() * 1.5);
  step.setFont(large);
  const QImage larger = rig.Picture(2);
  const QRect number(23, 21, 10, 12);
  EXPECT_GT(InkHeight(larger, text), InkHeight(picture, text));
  EXPECT_EQ(larger.copy(number.translated(0, larger.height() / 2 - 27)), picture.copy(number));
}

struct GroundRow {
  int step;
  Tone ground;
};

TEST(StepRail, FillsEachStepAndItselfWithTheirColours) {
  RailOfThree rig;
  for (const GroundRow& row : {GroundRow{1, Tone::RailSelected}, GroundRow{2, Tone::Rail}}) {
    const QImage picture = rig.Picture(row.step);
    for (const QPoint& corner : {QPoint(5, 1), QPoint(170, 1), QPoint(5, 52), QPoint(170, 52)}) {
      EXPECT_EQ(picture.pixelColor(corner), ToneColor(row.ground)) << row.step;
    }
  }
  const QImage rail = rig.rail.grab().toImage();
  for (const QPoint& beside : {QPoint(0, 0), QPoint(5, 7), QPoint(5, 399)}) {
    EXPECT_EQ(rail.pixelColor(beside), ToneColor(Tone::Rail)) << beside.y();
  }
}

// The circle itself, not what is in it: at its left end.
TEST(StepRail, DrawsACircleRoundEveryNumber) {
  RailOfThree rig;
  const auto ground = [&rig](int step, Tone tone) {
    const QImage picture = rig.Picture(step);
    return Count(picture.copy(15, picture.height() / 2 - 3, 4, 6), ToneColor(tone));
  };
  EXPECT_LT(ground(2, Tone::Rail), 20) << "to come";
  rig.rail.SetCurrent(2);
  EXPECT_LT(ground(1, Tone::Rail), 20) << "passed";
  EXPECT_LT(ground(2, Tone::RailSelected), 20) << "current";
}

TEST(StepRail, HasEveryStepOffUntilItIsSwitchedOn) {
  StepRail rail;
  for (const char* name : {"One", "Two"}) {
    const StepButton& step = *rail.button(rail.AddStep(IconName::Flag, name));
    EXPECT_FALSE(step.isEnabled());
    EXPECT_TRUE(step.accessibleDescription().endsWith("switched off"));
  }
  for (const int current : {-1, 0, 1}) {
    rail.SetCurrent(current);
    for (int i = 0; i < 2; ++i) {
      EXPECT_EQ(rail.button(i)->state(), StepState::Off) << current;
      EXPECT_FALSE(rail.button(i)->isEnabled());
    }
  }
}

TEST(StepRail, LeavesNoGapBetweenItsSteps) {
  RailOfThree rig;
  for (int i = 1; i < 3; ++i) {
    EXPECT_EQ(rig.rail.button(i)->y(), rig.rail.button(i - 1)->geometry().bottom() + 1) << i;
  }
}

TEST(StepRail, ShowsADotOnAStepWithChangesThatAreNotSent) {
  RailOfThree rig;
  const QColor dot = ToneColor(Tone::RailPending);
  EXPECT_EQ(Count(rig.Picture(2), dot), 0);
  rig.rail.button(2)->SetPending(true);
  EXPECT_GT(Count(rig.Picture(2), dot), 5);
  rig.rail.button(2)->SetPending(false);
  EXPECT_EQ(Count(rig.Picture(2), dot), 0);
}

TEST(StepRail, ShowsTheFocus) {
  RailOfThree rig;
  rig.rail.activateWindow();
  const QImage without = rig.Picture(1);
  rig.rail.button(1)->setFocus();
  EXPECT_NE(rig.Picture(1), without);
}

TEST(StepRail, StandsCloserInALowWindow) {
  RailOfThree rig;
  EXPECT_GE(rig.rail.button(0)->height(), 54);
  rig.rail.resize(200, rig.rail.minimumSizeHint().height());
  QApplication::processEvents();
  EXPECT_LT(rig.rail.button(0)->height(), 40);
  EXPECT_GE(rig.rail.button(0)->height(), rig.rail.button(0)->minimumSizeHint().height());
}

TEST(StepRail, HasCirclesThatHoldTheirNumbersInALargeFont) {
  const FontScope large(FontOf(30));
  StepRail rail;
  rail.AddStep(IconName::Flag, "A name that is wider than any other");
  const StepButton& button = *rail.button(0);
  const int number = QFontMetrics(MarkFont()).horizontalAdvance("10");
  ASSERT_GT(number + 10, 24) << "the least circle";
  const int text = button.fontMetrics().horizontalAdvance(button.text());
  EXPECT_EQ(button.sizeHint().width(), 16 + number + 10 + 12 + 24 + 12 + text + 12);
}

TEST(StepRail, IsWideEnoughForItsNames) {
  StepRail rail;
  rail.AddStep(IconName::Flag, "A name that is wider than any other");
  const StepButton& button = *rail.button(0);
  EXPECT_GE(button.sizeHint().width(), 88 + button.fontMetrics().horizontalAdvance(button.text()));
  rail.AddStep(IconName::Flag, "A");
  EXPECT_EQ(rail.button(1)->sizeHint().width(), 176);
}

}  // namespace
}  // namespace mortane::test
