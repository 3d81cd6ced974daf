// What must never move a drive, and what may happen to a page while one moves.
#include <QTest>
#include <QWheelEvent>

#include "app/InputFlush.h"
#include "gui/drives/DrivePages.h"

namespace mortane::test {
namespace {

template <typename Rig>
std::vector<QPushButton*> ButtonsOf(Rig& rig) {
  std::vector<QPushButton*> buttons;
  for (auto* button : rig.page.template findChildren<QPushButton*>()) buttons.push_back(button);
  return buttons;
}

void PostClick(QWidget& button) {
  const QPointF place(12, 12);
  const QPointF onScreen = button.mapToGlobal(place);
  for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QApplication::postEvent(
        &button, new QMouseEvent(type, place, onScreen, Qt::LeftButton,
                                 type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                                 Qt::NoModifier));
  }
}

// Drops the queued input in earnest whenever the page asks for it.
template <typename Rig>
void FlushForReal(Rig& rig, InputFlush& flush) {
  rig.prompts.onCall = [&] {
    if (rig.prompts.Log().back() == "flush") flush.Run();
  };
}

template <typename RigKind>
class MoveSafety : public testing::Test {};
TYPED_TEST_SUITE(MoveSafety, DriveRigs, DriveRigName);

TYPED_TEST(MoveSafety, TwentyClicksWhileTheFirstMoveBlocksMakeOneMove) {
  for (const auto& step : TypeParam::Steps()) {
    TypeParam rig;
    const DriveAxisRow axis = rig.Axes()[step.axis];
    InputFlush flush;
    FlushForReal(rig, flush);
    rig.simulated.OnChange([&](const Bench&) {
      for (int click = 0; click < 20; ++click) PostClick(*(rig.page.*step.button));
    });
    ClickButton(*(rig.page.*step.button));
    QApplication::processEvents();
    EXPECT_EQ(rig.journal.Writes(), Lines{axis.Write(axis.at + step.steps)});
  }
}

// Without the flush each of the posted clicks would move: the tests above can fail.
TYPED_TEST(MoveSafety, ClicksThatAreNotDroppedEachMove) {
  TypeParam rig;
  for (int click = 0; click < 3; ++click) PostClick(*rig.page.ButtonUpLarge);
  QApplication::processEvents();
  EXPECT_EQ(rig.journal.Writes().size(), 3U);
}

TYPED_TEST(MoveSafety, ClicksDuringTheWaitOfAStartedMoveAreDropped) {
  TypeParam rig;
  rig.Select(0);
  rig.field(0).setText("100");
  InputFlush flush;
  FlushForReal(rig, flush);
  rig.ExpectWatch(rig.kWaitMs, Answer::TimedOut, [&] { PostClick(*rig.page.ButtonDownLarge); });
  ClickButton(*rig.page.ButtonStart);
  QApplication::processEvents();
  EXPECT_EQ(rig.stands(), 2000);
}

TYPED_TEST(MoveSafety, TheWheelAndARepeatingKeyStartNoMove) {
  TypeParam rig;
  rig.Select(0);
  const std::vector<QPushButton*> buttons = ButtonsOf(rig);
  EXPECT_GE(buttons.size(), 5U);
  for (QPushButton* button : buttons) {
    button->setFocus();
    const QPointF place(10, 10);
    QWheelEvent wheel(place, button->mapToGlobal(place), {}, {0, -240}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(button, &wheel);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Up,
                              Qt::Key_Down, Qt::Key_Left, Qt::Key_Right}) {
      for (int repeat = 0; repeat < 3; ++repeat) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, " ", true);
        QApplication::sendEvent(button, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, " ", true);
        QApplication::sendEvent(button, &release);
      }
    }
  }
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

TYPED_TEST(MoveSafety, ASpaceBarThatIsHeldMovesOnceWhenItIsLetGo) {
  TypeParam rig;
  rig.page.ButtonUpSmall->setFocus();
  QTest::keyPress(rig.page.ButtonUpSmall, Qt::Key_Space);
  for (int repeat = 0; repeat < 5; ++repeat) {
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier, " ", true);
    QApplication::sendEvent(rig.page.ButtonUpSmall, &release);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
    QApplication::sendEvent(rig.page.ButtonUpSmall, &press);
  }
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  QTest::keyRelease(rig.page.ButtonUpSmall, Qt::Key_Space);
  EXPECT_EQ(rig.journal.Writes().size(), 1U);
}

TYPED_TEST(MoveSafety, TheWheelOverAFieldOrARowChangesNothing) {
  TypeParam rig;
  rig.Select(0);
  for (QWidget* widget : {static_cast<QWidget*>(&rig.field(0)),
                          static_cast<QWidget*>(rig.page.optNosepiece->button(1)),
                          static_cast<QWidget*>(rig.page.CheckRealMove)}) {
    QWheelEvent wheel(QPointF(5, 5), widget->mapToGlobal(QPointF(5, 5)), {}, {0, -240},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &wheel);
  }
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  EXPECT_EQ(rig.shown(0), "0");
  EXPECT_EQ(rig.page.optNosepiece->selected(), 0);
}

// While a box stands nothing else moves.

TYPED_TEST(MoveSafety, AMoveIsNotBegunWithinAnother) {
  TypeParam rig;
  rig.Select(0);
  rig.field(0).setText("100");
  rig.ExpectWatch(rig.kWaitMs, Answer::Ok, [&rig] {
    rig.journal.Clear();
    rig.page.ButtonStart->click();
    for (const auto& step : rig.Steps()) (rig.page.*step.button)->click();
    EXPECT_EQ(rig.journal.CallCount(), 0U);
  });
  ClickButton(*rig.page.ButtonStart);
  rig.Forget();
  ClickButton(*rig.page.ButtonUpLarge);
  EXPECT_EQ(rig.journal.Writes().size(), 1U) << "afterwards it moves again";
}

TEST(FocusMoveSafety, ARowThatIsSelectedWithinAMoveEndsNoGuard) {
  FocusRig rig;
  rig.Select(0);
  rig.field(0).setText("100");
  rig.ExpectWatch(1080, Answer::Ok, [&] {
    rig.prompts.ExpectBox(kTeach, box::kOkCancel, Answer::Cancel, kTeachCaption);
    rig.page.optNosepiece->select(1);
    rig.journal.Clear();
    rig.page.ButtonUpLarge->click();
    EXPECT_EQ(rig.journal.CallCount(), 0U);
  });
  ClickButton(*rig.page.ButtonStart);
  EXPECT_EQ(rig.shown(0), "20") << "the move was that of the first row";
  EXPECT_EQ(rig.shown(1), "0");
}

TYPED_TEST(MoveSafety, ASectionThatIsSwitchedOffWithinAMoveStillShowsItsRow) {
  TypeParam rig;
  rig.Select(3);
  rig.field(3).setText("100");
  rig.ExpectWatch(rig.kWaitMs, Answer::Ok, [&] { rig.page.CheckRealMove->setChecked(false); });
  ClickButton(*rig.page.ButtonStart);
  EXPECT_EQ(rig.field(3).text().toDouble(), rig.Axes()[0].at / 20.0);
}

// The row is given up while the box of the failed call stands.
TYPED_TEST(MoveSafety, ARowThatIsGivenUpWithinAMoveIsShownAllTheSame) {
  for (const auto& step : TypeParam::Steps()) {
    TypeParam rig;
    const DriveAxisRow axis = rig.Axes()[step.axis];
    rig.Select(3);
    rig.field(3, step.axis).setText("7");
    rig.faults.Add({"get " + axis.member, 2});
    rig.prompts.ExpectBox(axis.read + " Error!!", box::kCritical, Answer::Ok, "",
                          [&rig] { rig.page.CheckRealMove->setChecked(false); });
    ClickButton(*(rig.page.*step.button));
    EXPECT_EQ(rig.shown(3, step.axis), "0");
  }
}

TYPED_TEST(MoveSafety, ARowThatIsGivenUpBeforeThePositionIsReadIsNotTouched) {
  for (const auto& step : TypeParam::Steps()) {
    TypeParam rig;
    const DriveAxisRow axis = rig.Axes()[step.axis];
    rig.Select(3);
    rig.field(3, step.axis).setText("7");
    rig.faults.Add({"put " + axis.member});
    rig.prompts.ExpectBox(axis.move + " Error!!", box::kCritical, Answer::Ok, "",
                          [&rig] { rig.page.CheckRealMove->setChecked(false); });
    ClickButton(*(rig.page.*step.button));
    EXPECT_EQ(rig.shown(3, step.axis), "7");
    EXPECT_EQ(rig.stored(3, step.axis), 0);
  }
}

TYPED_TEST(MoveSafety, AWindowThatIsClosedWithinAMoveLeavesItInOrder) {
  TypeParam rig;
  rig.Select(0);
  rig.field(0).setText("100");
  rig.simulated.OnChange([&](const Bench&) { rig.stands() = rig.Axes()[0].at; });
  rig.ExpectWatch(rig.kWaitMs, Answer::TimedOut, [&] { rig.window().close(); });
  ClickButton(*rig.page.ButtonStart);
  EXPECT_FALSE(rig.page.isVisible());
  EXPECT_EQ(rig.field(0).text().toDouble(), rig.Axes()[0].at / 20.0);
}

TYPED_TEST(MoveSafety, APageThatIsLoadedWithinAMoveGoesOn) {
  TypeParam rig;
  rig.Select(0);
  rig.field(0).setText("100");
  rig.ExpectWatch(rig.kWaitMs, Answer::TimedOut, [&] { rig.page.LoadData(); });
  ClickButton(*rig.page.ButtonStart);
  EXPECT_EQ(rig.shown(0), "100");
}

}  // namespace
}  // namespace mortane::test
