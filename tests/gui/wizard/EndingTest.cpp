// The ending: the report, the sending, and the question whether to save.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <filesystem>

#include "WizardRig.h"
#include "app/InputFlush.h"
#include "gui/support/AccessibleTree.h"
#include "gui/support/EventLoop.h"
#include "objectives/clsNosepiece.h"
#include "support/TempFolder.h"
#include "widgets/Card.h"
#include "widgets/PageHeader.h"
#include "widgets/Theme.h"
#include "wizard/SadrelEndingCtl.h"

namespace mortane::test {
namespace {

constexpr char kSaveQuestion[] = "Save Settings?\r\nPush OK to Save.";
constexpr char kWizardCaption[] = "Sadrel";

// How long a key may be a second click of the one before.
class DoubleClickInterval {
 public:
  explicit DoubleClickInterval(int ms) : before_(QApplication::doubleClickInterval()) {
    QApplication::setDoubleClickInterval(ms);
  }
  ~DoubleClickInterval() { QApplication::setDoubleClickInterval(before_); }
  DoubleClickInterval(const DoubleClickInterval&) = delete;
  DoubleClickInterval& operator=(const DoubleClickInterval&) = delete;

 private:
  int before_;
};

// The wizard on its last step, long enough for its keys to act.
class EndingStep : public testing::Test {
 protected:
  EndingStep() {
    rig.Start();
    GoToEnding();
    rig.prompts.ClearRecords();
  }
  SadrelMainForm& form() { return *rig.form; }
  SadrelEndingCtl& ending() { return *form().SadrelEndingCtl1; }
  void GoToEnding() { QTest::mouseClick(form().ButtonFinish, Qt::LeftButton); }
  void GoBack() { QTest::mouseClick(form().ButtonPrevious, Qt::LeftButton); }
  void ExpectSaveQuestion(Answer answer) {
    rig.prompts.ExpectBox(kSaveQuestion, 33, answer, kWizardCaption);
  }
  Lines Calls() {
    Lines calls;
    for (const std::string& line : rig.prompts.Log()) {
      if (!line.starts_with("progress")) calls.push_back(line);
    }
    return calls;
  }
  std::string question() const { return std::string("box 33 [Sadrel]: ") + kSaveQuestion; }

  DoubleClickInterval passed{0};
  TempFolder folder;
  WizardRig rig{benches::Named("Harbour")};
};

TEST_F(EndingStep, TakesTheSecondClickOfADoubleClickForNoExit) {
  const DoubleClickInterval hour(3'600'000);
  GetK70().SystemName = "Bay 4";
  GoBack();
  rig.journal.Clear();
  GoToEnding();
  GoToEnding();
  QTest::mouseDClick(form().ButtonFinish, Qt::LeftButton);
  QTest::mouseClick(ending().ButtonSend, Qt::LeftButton);
  QTest::keyClick(form().ButtonFinish, Qt::Key_Return);
  EXPECT_TRUE(rig.journal.Writes().empty());
  EXPECT_TRUE(form().isVisible());
  GoBack();
  EXPECT_NE(form().currentStep, kEndingStep) << "what does not send acts at once";
}

TEST_F(EndingStep, TellsItsReportAndItsKeyToScreenReaders) {
  GoBack();
  GetK70().SystemName = "Bay 4";
  GoToEnding();
  const std::string report = ending().TextResult->toPlainText().toStdString();
  ASSERT_NE(report.find("Bay 4"), std::string::npos) << report;
  EXPECT_EQ(
      AccessibleTree(ending()),
      (std::vector<AccessibleControl>{told::Heading("Ending"),
                                      told::Group("Ending"),
                                      told::Label("Ending"),
                                      {QAccessible::EditableText, "Changes", report, "read only"},
                                      {QAccessible::Button, "Send to Microscope"}}));
}

TEST_F(EndingStep, DropsTheInputThatCameWhileItLoaded) {
  GoBack();
  rig.prompts.ClearRecords();
  GoToEnding();
  EXPECT_EQ(Calls(), (Lines{"pointer 11", "pointer 0", "flush"}));
  GoBack();
  EXPECT_EQ(Calls().size(), 3U) << "no other step does";
}

// What queues up during the sending is delivered while the page drops input.
TEST_F(EndingStep, ARequestToCloseDuringTheSendingAsksNothingMore) {
  InputFlush flush;
  rig.prompts.onCall = [&] {
    if (rig.prompts.Log().back() == "wait 3000") {
      QTimer::singleShot(0, &form(), [this] { rig.RequestClose(); });
    }
    if (rig.prompts.Log().back() == "flush") flush.Run();
  };
  ExpectSaveQuestion(Answer::Cancel);
  QTest::mouseClick(ending().ButtonSend, Qt::LeftButton);
  DeliverAll();
  EXPECT_FALSE(form().isVisible());
  EXPECT_EQ(rig.prompts.Boxes().size(), 1U);
}

TEST_F(EndingStep, BearsItsControlsByName) {
  EXPECT_EQ(ending().objectName(), "SadrelEndingCtl1");
  EXPECT_EQ(ending().ButtonSend->text(), "Send to Microscope");
  EXPECT_EQ(ending().ButtonSend->objectName(), "ButtonSend");
  EXPECT_EQ(ending().TextResult->objectName(), "TextResult");
  EXPECT_TRUE(QFontInfo(ending().TextResult->font()).fixedPitch());
  EXPECT_EQ(ending().FrameBase->objectName(), "FrameBase");
  EXPECT_EQ(ending().Header->objectName(), "Header");
}

TEST_F(EndingStep, GivesTheRoomToTheReportAndHasItsKeyBelowAtTheRight) {
  form().resize(1200, 900);
  QApplication::processEvents();
  const QPlainTextEdit& report = *ending().TextResult;
  const QPushButton& send = *ending().ButtonSend;
  EXPECT_EQ(send.geometry().right(), report.geometry().right());
  EXPECT_EQ(send.size(), send.sizeHint());
  EXPECT_GT(send.y(), report.geometry().bottom());
  EXPECT_LT(send.y() - report.geometry().bottom(), 20);
  EXPECT_GT(report.height(), 400);
  EXPECT_EQ(report.lineWrapMode(), QPlainTextEdit::NoWrap);
  EXPECT_TRUE(report.tabChangesFocus());
}

TEST_F(EndingStep, HoldsItsReportOffTheFramesEdge) {
  EXPECT_EQ(ending().TextResult->document()->documentMargin(), grid::kBetweenControls);
}

TEST_F(EndingStep, NoButtonInSightTakesTheFocusByThePressAlone) {
  int inSight = 0;
  for (const auto* button : form().findChildren<QAbstractButton*>()) {
    if (!button->isVisible()) continue;
    ++inSight;
    EXPECT_FALSE((button->focusPolicy() & Qt::ClickFocus) != 0)
        << button->objectName().toStdString();
  }
  EXPECT_GE(inSight, 5) << "to go on, back and away, and to send";
}

TEST_F(EndingStep, ShowsWhatASendWouldChange) {
  GoBack();
  GetK70().curNosepiece.code(1, 7);
  const std::string report = GetK70().Modify();
  ASSERT_NE(report, "");
  GoToEnding();
  EXPECT_EQ(ending().TextResult->toPlainText().toStdString(), report);
}

TEST_F(EndingStep, ShowsReportsOfSeveralLines) {
  GoBack();
  GetK70().SystemName = "Bay 4";
  GetK70().curNosepiece.code(1, 7);
  GoToEnding();
  EXPECT_GE(ending().TextResult->toPlainText().count('\n'), 1);
  EXPECT_FALSE(ending().TextResult->toPlainText().contains('\r'));
}

TEST_F(EndingStep, LeavesTheTextAsItWasWithoutAChange) {
  GoBack();
  GetK70().SystemName = "Bay 4";
  GetK70().curNosepiece.code(1, 7);
  GoToEnding();
  ending().TextResult->selectAll();
  ending().sent = -1;
  GoBack();
  GoToEnding();
  EXPECT_EQ(ending().sent, -1) << "a report of several lines differs in no line";
  EXPECT_TRUE(ending().TextResult->textCursor().hasSelection()) << "not set anew";
  GoBack();
  GetK70().SystemName = "Bay 5";
  GoToEnding();
  EXPECT_EQ(ending().sent, 0);
}

TEST_F(EndingStep, LetsTheReportBeSelectedAndCopiedButNotEdited) {
  GoBack();
  GetK70().SystemName = "Bay 4";
  GoToEnding();
  EXPECT_EQ(form().focusWidget(), ending().TextResult);
  const QString report = ending().TextResult->toPlainText();
  QTest::keyClicks(ending().TextResult, "x");
  EXPECT_EQ(ending().TextResult->toPlainText(), report);
  QTest::keyClick(ending().TextResult, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(ending().TextResult->textCursor().selectedText().size(), report.size());
  const auto flags = ending().TextResult->textInteractionFlags();
  EXPECT_TRUE(flags.testFlag(Qt::TextSelectableByMouse));
  EXPECT_TRUE(flags.testFlag(Qt::TextSelectableByKeyboard));
  EXPECT_FALSE(flags.testFlag(Qt::TextEditable));
  QTest::keyClick(ending().TextResult, Qt::Key_Tab);
  EXPECT_EQ(form().focusWidget(), ending().ButtonSend);
}

TEST_F(EndingStep, KeepsTheOldReportWhenAskingFails) {
  GoBack();
  GetK70().SystemName = "Bay 4";
  GoToEnding();
  const QString before = ending().TextResult->toPlainText();
  GoBack();
  GetK70().SystemName = "Bay 5";
  rig.faults.Add({"DeviceList.Item(1).Name"});
  rig.prompts.AcceptAnyBox();
  rig.prompts.ClearRecords();
  GoToEnding();
  EXPECT_EQ(ending().TextResult->toPlainText(), before);
  ASSERT_EQ(rig.prompts.Boxes().size(), 1U);
  EXPECT_EQ(rig.prompts.Boxes()[0].style, 16);
  EXPECT_EQ(rig.prompts.PointerBalance(), 0);
}

TEST_F(EndingStep, SendsByExitWithoutAWaitAndThenAsksToSave) {
  GetK70().SystemName = "Bay 4";
  ExpectSaveQuestion(Answer::Cancel);
  GoToEnding();  // the same button, as Exit
  EXPECT_EQ(rig.instrument().name, "Bay 4");
  EXPECT_EQ(Calls(), (Lines{question(), "flush"}));
  EXPECT_FALSE(form().isVisible()) << "unloaded, without a second question";
  EXPECT_EQ(ending().sent, -1);
}

TEST_F(EndingStep, SendsByItsButtonUnderTheHourglassAndWaitsBehindTheQuestion) {
  GetK70().SystemName = "Bay 4";
  ExpectSaveQuestion(Answer::Cancel);
  QTest::mouseClick(ending().ButtonSend, Qt::LeftButton);
  EXPECT_EQ(rig.instrument().name, "Bay 4");
  EXPECT_EQ(Calls(), (Lines{"pointer 11", question(), "wait 3000", "pointer 0", "flush"}));
  EXPECT_FALSE(form().isVisible());
}

TEST_F(EndingStep, SendsByTheSpaceBar) {
  ExpectSaveQuestion(Answer::Cancel);
  ending().ButtonSend->setFocus();
  QTest::keyClick(ending().ButtonSend, Qt::Key_Space);
  EXPECT_FALSE(form().isVisible());
}

TEST_F(EndingStep, SendsByTheEnterKey) {
  ExpectSaveQuestion(Answer::Cancel);
  ending().ButtonSend->setFocus();
  QTest::keyClick(ending().ButtonSend, Qt::Key_Return);
  EXPECT_FALSE(form().isVisible());
}

TEST_F(EndingStep, SavesIntoTheNamedFileOnOk) {
  ExpectSaveQuestion(Answer::Ok);
  rig.prompts.ExpectFileToSave(folder.Path("clinic.xml"));
  GoToEnding();
  EXPECT_TRUE(std::filesystem::exists(folder.Path("clinic.xml")));
  ASSERT_EQ(rig.prompts.FileQuestions().size(), 1U);
  const FileQuestion& asked = rig.prompts.FileQuestions()[0];
  EXPECT_EQ(asked.flags, 2050);
  EXPECT_EQ(asked.filter, "XML File (*.xml)|*.xml");
  EXPECT_EQ(asked.defaultExtension, ".xml");
  EXPECT_FALSE(form().isVisible());
}

TEST_F(EndingStep, SavesNothingWhenTheFileDialogIsCancelledAndClosesAllTheSame) {
  ExpectSaveQuestion(Answer::Ok);
  rig.prompts.ExpectFileToSave("");
  GoToEnding();
  EXPECT_TRUE(rig.prompts.AllAnswersUsed());
  EXPECT_FALSE(form().isVisible());
}

TEST_F(EndingStep, ClosesAfterASaveThatFailed) {
  ExpectSaveQuestion(Answer::Ok);
  rig.prompts.ExpectFileToSave(folder.Path("missing/clinic.xml"));
  rig.prompts.AcceptAnyBox();
  GoToEnding();
  EXPECT_FALSE(form().isVisible());
}

TEST_F(EndingStep, AsksToSaveAfterASendThatFailed) {
  GetK70().SystemName = "Bay 4";
  rig.faults.Add({"DeviceList.Item(1).Name"});
  rig.prompts.AcceptAnyBox();
  rig.prompts.ExpectFileToSave("");
  GoToEnding();
  ASSERT_EQ(rig.prompts.Boxes().size(), 2U);
  EXPECT_EQ(rig.prompts.Boxes()[0].caption, "Send");
  EXPECT_EQ(rig.prompts.Boxes()[1].text, kSaveQuestion);
  EXPECT_FALSE(form().isVisible());
}

TEST_F(EndingStep, SendsNothingWhenItIsOnlyLookedAt) {
  rig.journal.Clear();
  GoBack();
  GoToEnding();
  EXPECT_TRUE(rig.journal.Writes().empty());
}

// A window that is destroyed by what the event of the sending brings about.
TEST_F(EndingStep, TouchesNothingOfTheWindowAfterTheQuestion) {
  rig.prompts.ExpectBox(kSaveQuestion, 33, Answer::Cancel, kWizardCaption);
  rig.prompts.onCall = [this] {
    if (rig.prompts.Log().back() == "wait 3000") rig.form.reset();
  };
  ending().ButtonSend->click();
  EXPECT_EQ(rig.form, nullptr);
  EXPECT_EQ(Calls(), (Lines{"pointer 11", question(), "wait 3000", "pointer 0", "flush"}));
}

TEST_F(EndingStep, TouchesNothingOfTheWindowAfterExit) {
  rig.prompts.ExpectBox(kSaveQuestion, 33, Answer::Cancel, kWizardCaption);
  rig.prompts.onCall = [this] {
    if (rig.prompts.Log().back() == "flush") rig.form.reset();
  };
  form().ButtonFinish->click();
  EXPECT_EQ(rig.form, nullptr);
  EXPECT_EQ(Calls().back(), "flush");
}

}  // namespace
}  // namespace mortane::test
