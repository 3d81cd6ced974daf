// Leaving the program: by its own command, by the close box, and by the end of the session.
#include <gtest/gtest.h>

#include <QAction>
#include <QWidget>

#include "CommandRig.h"
#include "gui/support/EventLoop.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

TEST(Exit, AsksAndStaysWhenCancelled) {
  CommandRig rig;
  rig.app.prompts.ExpectBox(kExitQuestion, 33, Answer::Cancel, kMainCaption);
  rig.Key(3);
  EXPECT_TRUE(rig.form().isVisible());
  EXPECT_EQ(Calls(rig.app.prompts).back(), "flush");
}

TEST(Exit, WithOkClosesWithoutASecondQuestionAndSendsNothing) {
  CommandRig rig;
  GetK70().SystemName = "unsent";
  rig.app.prompts.ExpectBox(kExitQuestion, 33, Answer::Ok, kMainCaption);
  rig.form().FileMenuExit->trigger();
  EXPECT_FALSE(rig.form().isVisible());
  EXPECT_TRUE(rig.app.journal.Writes().empty());
  EXPECT_TRUE(rig.fakes.calls.empty()) << "nothing is saved";
}

TEST(CloseBox, AsksTheSameAndIsCancelledUnlessOk) {
  CommandRig rig;
  rig.app.prompts.ExpectBox(kExitQuestion, 33, Answer::Cancel, kMainCaption);
  EXPECT_FALSE(rig.app.RequestClose());
  rig.app.prompts.ExpectBox(kExitQuestion, 33, Answer::Ok, kMainCaption);
  EXPECT_TRUE(rig.app.RequestClose());
}

TEST(CloseBox, IsNotAskedByTheProgramItself) {
  CommandRig rig;
  rig.form().Unload();
  EXPECT_FALSE(rig.form().isVisible());
  EXPECT_TRUE(rig.app.prompts.Log().empty());
}

// What comes in during the blocked part of a command is delivered while the command drops input,
// which is before it is over.
class CloseBoxDuring : public testing::TestWithParam<Control<QAction> MortaneMainForm::*> {
 protected:
  CloseBoxDuring() {
    rig.app.prompts.onCall = [this] {
      if (rig.app.prompts.Log().back() != "flush") return;
      rig.app.prompts.onCall = {};
      EXPECT_FALSE(rig.app.RequestClose());
      QApplication::processEvents();
      EXPECT_TRUE(rig.app.prompts.Boxes().empty()) << "not before the command is over";
    };
  }
  // The command, and after it what the event loop has to do.
  void Trigger() {
    (rig.form().*GetParam())->trigger();
    DeliverAll();
  }

  CommandRig rig;
};

TEST_P(CloseBoxDuring, AsksOnceTheCommandIsOver) {
  rig.app.prompts.ExpectBox(kExitQuestion, 33, Answer::Ok, kMainCaption, [this] {
    EXPECT_TRUE(rig.form().isVisible());
    EXPECT_TRUE(rig.form().isEnabled());
    EXPECT_EQ(rig.app.prompts.PointerBalance(), 0);
    EXPECT_EQ(rig.app.CountLog("flush"), 1);
  });
  Trigger();
  EXPECT_FALSE(rig.form().isVisible());
}

TEST_P(CloseBoxDuring, CancelledGoesOnAndIsNotAskedAgain) {
  rig.app.prompts.ExpectBox(kExitQuestion, 33, Answer::Cancel, kMainCaption);
  Trigger();
  EXPECT_TRUE(rig.form().isVisible());
  rig.form().MenuConnectReceive->trigger();
  DeliverAll();
  EXPECT_EQ(rig.app.prompts.Boxes().size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Commands, CloseBoxDuring,
                         testing::Values(&MortaneMainForm::MenuConnectReceive,
                                         &MortaneMainForm::MenuConnectSend));

TEST(CloseBox, AskedForTwiceDuringACommandIsOneQuestion) {
  CommandRig rig;
  rig.app.prompts.onCall = [&] {
    if (rig.app.prompts.Log().back() != "wait 3000") return;
    EXPECT_FALSE(rig.app.RequestClose());
    EXPECT_FALSE(rig.app.RequestClose());
  };
  rig.app.prompts.ExpectBox(kExitQuestion, 33, Answer::Cancel, kMainCaption);
  rig.form().MenuConnectSend->trigger();
  DeliverAll();
  EXPECT_EQ(rig.app.prompts.Boxes().size(), 1U);
}

// Nobody is left to ask once the command itself has closed the window.
TEST(CloseBox, DuringAnExitThatClosesAsksNothingMore) {
  CommandRig rig;
  rig.app.prompts.ExpectBox(kExitQuestion, 33, Answer::Ok, kMainCaption,
                            [&] { EXPECT_FALSE(rig.app.RequestClose()); });
  rig.form().FileMenuExit->trigger();
  DeliverAll();
  EXPECT_FALSE(rig.form().isVisible());
  EXPECT_EQ(rig.app.prompts.Boxes().size(), 1U);
}

}  // namespace
}  // namespace mortane::test
