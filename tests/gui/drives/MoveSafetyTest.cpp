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

// Runs `handler` whenever the page drops the queued input, and drops it.
template <typename Rig>
void FlushForReal(Rig& rig, InputFlush& flush) {
  rig.prompts.onCall = [&] {
    if (rig.prompts.Log().back() == "flush") flush.Run();
  };
}

TEST(MoveSafety, TwentyClicksWhileTheFirstMoveBlocksMakeOneMove) {
  FocusRig rig;
  InputFlush flush;
  FlushForReal(rig, flush);
  rig.simulated.OnChange([&](const Bench&) {
    for (int click = 0; click < 20; ++click) PostClick(*rig.page.ButtonUpLarge);
  });
  ClickButton(*rig.page.ButtonUpLarge);
  QApplication::processEvents();
  EXPECT_EQ(rig.journal.Writes(), Lines{"ZDriveDevice.Position = 450"});
}

TEST(MoveSafety, TwentyClicksOnTheStagesButtonsMakeOneMove) {
  StageRig rig;
  InputFlush flush;
  FlushForReal(rig, flush);
  rig.simulated.OnChange([&](const Bench&) {
    for (int click = 0; click < 20; ++click) PostClick(*rig.page.ButtonLeftSmall);
  });
  ClickButton(*rig.page.ButtonLeftSmall);
  QApplication::processEvents();
  EXPECT_EQ(rig.journal.Writes(), Lines{"XYDriveDevice.PositionX = -51"});
}

// Without the flush each of the posted clicks would move: the tests above can fail.
TEST(MoveSafety, ClicksThatAreNotDroppedEachMove) {
  FocusRig rig;
  for (int click = 0; click < 3; ++click) PostClick(*rig.page.ButtonUpLarge);
  QApplication::processEvents();
  EXPECT_EQ(rig.journal.Writes().size(), 3U);
}

TEST(MoveSafety, ClicksDuringTheWaitOfAStartedMoveAreDropped) {
  FocusRig rig;
  rig.Select(0);
  rig.field(0).setText("100");
  InputFlush flush;
  FlushForReal(rig, flush);
  rig.ExpectWatch(1080, Answer::TimedOut, [&] { PostClick(*rig.page.ButtonDownLarge); });
  ClickButton(*rig.page.ButtonStart);
  QApplication::processEvents();
  EXPECT_EQ(rig.instrument().zDrive.position, 2000);
}

template <typename Rig>
void ExpectNoMoveFromWheelOrRepeat(Rig& rig) {
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

TEST(MoveSafety, TheWheelAndARepeatingKeyStartNoMove) {
  FocusRig focus;
  focus.Select(0);
  ExpectNoMoveFromWheelOrRepeat(focus);
}

TEST(MoveSafety, TheWheelAndARepeatingKeyStartNoMoveOfTheStage) {
  StageRig stage;
  stage.Select(0);
  ExpectNoMoveFromWheelOrRepeat(stage);
}

TEST(MoveSafety, ASpaceBarThatIsHeldMovesOnceWhenItIsLetGo) {
  FocusRig rig;
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
  EXPECT_EQ(rig.journal.Writes(), Lines{"ZDriveDevice.Position = 401"});
}

TEST(MoveSafety, TheWheelOverAFieldOrARowChangesNothing) {
  FocusRig rig;
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

template <typename Rig>
void ExpectNoMoveWithinAnother(Rig& rig, int waitMs) {
  rig.ExpectWatch(waitMs, Answer::Ok, [&rig] {
    rig.journal.Clear();
    rig.page.ButtonStart->click();
    rig.page.ButtonUpLarge->click();
    EXPECT_EQ(rig.journal.CallCount(), 0U);
  });
  ClickButton(*rig.page.ButtonStart);
  rig.Forget();
  ClickButton(*rig.page.ButtonUpLarge);
  EXPECT_EQ(rig.journal.Writes().size(), 1U) << "afterwards it moves again";
}

TEST(MoveSafety, AMoveIsNotBegunWithinAnother) {
  FocusRig rig;
  rig.Select(0);
  rig.field(0).setText("100");
  ExpectNoMoveWithinAnother(rig, 1080);
}

TEST(MoveSafety, AMoveOfTheStageIsNotBegunWithinAnother) {
  StageRig rig;
  rig.Select(0);
  rig.fieldX(0).setText("100");
  ExpectNoMoveWithinAnother(rig, 1106);
}

TEST(MoveSafety, ARowThatIsSelectedWithinAMoveEndsNoGuard) {
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

TEST(MoveSafety, ASectionThatIsSwitchedOffWithinAMoveStillShowsItsRow) {
  FocusRig rig;
  rig.Select(3);
  rig.field(3).setText("100");
  rig.ExpectWatch(1080, Answer::Ok, [&] { rig.page.CheckRealMove->setChecked(false); });
  ClickButton(*rig.page.ButtonStart);
  EXPECT_EQ(rig.shown(3), "20");
}

// Steps with a row selected that is given up while the box of the failed call stands.
template <typename Rig>
void StepAndGiveUpTheRow(Rig& rig, const char* call, int occurrence, const char* message,
                         QAbstractButton& step) {
  rig.faults.Add({call, occurrence});
  rig.prompts.ExpectBox(message, box::kCritical, Answer::Ok, "",
                        [&rig] { rig.page.CheckRealMove->setChecked(false); });
  ClickButton(step);
}

TEST(MoveSafety, ARowThatIsGivenUpWithinAMoveIsShownAllTheSame) {
  FocusRig focus;
  focus.Select(3);
  focus.field(3).setText("7");
  StepAndGiveUpTheRow(focus, "get ZDriveDevice.Position", 2, "GetPosition Error!!",
                      *focus.page.ButtonUpLarge);
  EXPECT_EQ(focus.shown(3), "0");
}

TEST(MoveSafety, ARowOfTheStageThatIsGivenUpWithinAMoveIsShownAllTheSame) {
  StageRig stage;
  stage.Select(3);
  stage.fieldX(3).setText("7");
  StepAndGiveUpTheRow(stage, "get XYDriveDevice.PositionX", 2, "GetPositionX Error!!",
                      *stage.page.ButtonLeftLarge);
  EXPECT_EQ(stage.shownX(3), "0");
}

// The row that was selected before is not touched.
TEST(MoveSafety, ARowThatIsGivenUpBeforeThePositionIsReadIsNotTaught) {
  FocusRig rig;
  rig.Select(3);
  StepAndGiveUpTheRow(rig, "put ZDriveDevice.Position", 1, "Move Error!!", *rig.page.ButtonUpLarge);
  EXPECT_EQ(rig.shown(3), "0");
  EXPECT_EQ(rig.drive().Position(4), 0);
}

TEST(MoveSafety, AWindowThatIsClosedWithinAMoveLeavesItInOrder) {
  FocusRig rig;
  rig.Select(0);
  rig.field(0).setText("100");
  rig.simulated.OnChange([&](const Bench&) { rig.instrument().zDrive.position = 400; });
  rig.ExpectWatch(1080, Answer::TimedOut, [&] { rig.window().close(); });
  ClickButton(*rig.page.ButtonStart);
  EXPECT_FALSE(rig.page.isVisible());
  EXPECT_EQ(rig.shown(0), "20");
}

TEST(MoveSafety, APageThatIsLoadedWithinAMoveGoesOn) {
  FocusRig rig;
  rig.Select(0);
  rig.field(0).setText("100");
  rig.ExpectWatch(1080, Answer::TimedOut, [&] { rig.page.LoadData(); });
  ClickButton(*rig.page.ButtonStart);
  EXPECT_EQ(rig.shown(0), "100");
}

}  // namespace
}  // namespace mortane::test
