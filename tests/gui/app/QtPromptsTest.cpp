// Boxes, pointer, progress and waiting, as a person meets them.
#include "app/QtPrompts.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>
#include <QTimer>

#include "AppRig.h"
#include "widgets/ProgressLine.h"

namespace mortane::test {
namespace {

// Of a timed box that nobody answers in time.
constexpr int kShortMs = 1;

QtPrompts MakePrompts() {
  return QtPrompts([](int) { ADD_FAILURE() << "nobody should wait"; });
}

QAbstractButton* ButtonOf(QMessageBox& box, const QString& text) {
  for (QAbstractButton* button : box.buttons()) {
    if (button->text() == text) return button;
  }
  ADD_FAILURE() << "no button " << text.toStdString();
  return box.buttons().constFirst();
}

struct StyleCase {
  int style;
  QMessageBox::Icon icon;
  QStringList buttons;  // the first is the default
  std::vector<Answer> answers;
};

class MessageBoxStyle : public testing::TestWithParam<StyleCase> {};

TEST_P(MessageBoxStyle, GivesIconButtonsAndAnswers) {
  QtPrompts prompts = MakePrompts();
  const StyleCase& row = GetParam();
  for (qsizetype i = 0; i < row.buttons.size(); ++i) {
    const WhenShown<QMessageBox> person([&](QMessageBox& box) {
      EXPECT_EQ(box.icon(), row.icon);
      EXPECT_EQ(box.buttons().size(), row.buttons.size());
      EXPECT_EQ(box.defaultButton()->text(), row.buttons.front());
      ButtonOf(box, row.buttons[i])->click();
    });
    EXPECT_EQ(prompts.MsgBox("text", row.style), row.answers[static_cast<std::size_t>(i)]);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Styles, MessageBoxStyle,
    testing::Values(
        StyleCase{0, QMessageBox::NoIcon, {"OK"}, {Answer::Ok}},
        StyleCase{16, QMessageBox::Critical, {"OK"}, {Answer::Ok}},
        StyleCase{48, QMessageBox::Warning, {"OK"}, {Answer::Ok}},
        StyleCase{64, QMessageBox::Information, {"OK"}, {Answer::Ok}},
        StyleCase{33, QMessageBox::Question, {"OK", "Cancel"}, {Answer::Ok, Answer::Cancel}},
        StyleCase{36, QMessageBox::Question, {"&Yes", "&No"}, {Answer::Yes, Answer::No}},
        StyleCase{22,
                  QMessageBox::Critical,
                  {"Cancel", "&Try Again", "&Continue"},
                  {Answer::Cancel, Answer::TryAgain, Answer::Continue}}));

struct EscapeCase {
  int style;
  Answer answer;
};

class EscapeKey : public testing::TestWithParam<EscapeCase> {};

TEST_P(EscapeKey, AnswersAsTheCloseBox) {
  QtPrompts prompts = MakePrompts();
  const WhenShown<QMessageBox> person(
      [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(prompts.MsgBox("text", GetParam().style), GetParam().answer);
}

INSTANTIATE_TEST_SUITE_P(Styles, EscapeKey,
                         testing::Values(EscapeCase{0, Answer::Ok}, EscapeCase{33, Answer::Cancel},
                                         EscapeCase{36, Answer::No},
                                         EscapeCase{22, Answer::Cancel}));

TEST(MessageBox, HasTheApplicationsTitleUnlessACaptionIsGiven) {
  QtPrompts prompts = MakePrompts();
  for (const char* caption : {"", "Send"}) {
    const WhenShown<QMessageBox> person([&](QMessageBox& box) {
      EXPECT_EQ(box.windowTitle(), *caption == 0 ? "Mortane" : caption);
      box.accept();
    });
    prompts.MsgBox("text", 0, caption);
  }
}

TEST(MessageBox, ShowsTheTextAsItIsAndBreaksItsLines) {
  QtPrompts prompts = MakePrompts();
  const WhenShown<QMessageBox> person([](QMessageBox& box) {
    EXPECT_EQ(box.text(), "<b>one</b>\ntwo");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    box.accept();
  });
  prompts.MsgBox("<b>one</b>\r\ntwo", 0);
}

TEST(MessageBox, CanBeAnsweredWhileTheWindowIsDisabled) {
  QtPrompts prompts = MakePrompts();
  QWidget window;
  window.show();
  window.setEnabled(false);
  window.activateWindow();
  prompts.SetPointer(Pointer::Hourglass);
  const WhenShown<QMessageBox> person([](QMessageBox& box) {
    EXPECT_TRUE(box.isEnabled());
    QTest::mouseClick(ButtonOf(box, "OK"), Qt::LeftButton);
  });
  EXPECT_EQ(prompts.MsgBox("text", 16, "Send"), Answer::Ok);
  prompts.SetPointer(Pointer::Default);
}

TEST(MessageBox, OfAWindowThatEndsIsNotAnswered) {
  QtPrompts prompts = MakePrompts();
  for (const bool timed : {false, true}) {
    auto* window = new QWidget;
    window->show();
    window->activateWindow();
    QApplication::processEvents();
    const WhenShown<QMessageBox> end([window](QMessageBox& box) {
      EXPECT_EQ(box.parentWidget(), window);
      delete window;
    });
    EXPECT_EQ(timed ? prompts.TimedMsgBox(60000, "text", box::kOk, "") : prompts.MsgBox("text", 33),
              Answer::Cancel);
  }
}

TEST(TimedMsgBox, ClosesItselfAndAnswersZero) {
  QtPrompts prompts = MakePrompts();
  EXPECT_EQ(prompts.TimedMsgBox(kShortMs, "Move Stop?", 0, "Title"), Answer::TimedOut);
  EXPECT_EQ(static_cast<int>(Answer::TimedOut), 0);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(TimedMsgBox, AnsweredInTimeGivesTheAnswerAndNeverFires) {
  QtPrompts prompts = MakePrompts();
  const WhenShown<QMessageBox> person([](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "Title");
    EXPECT_EQ(box.text(), "Move Stop?");
    ButtonOf(box, "OK")->click();
  });
  QElapsedTimer clock;
  clock.start();
  EXPECT_EQ(prompts.TimedMsgBox(60000, "Move Stop?", 0, "Title", "help", 5), Answer::Ok);
  EXPECT_LT(clock.elapsed(), 30000);
}

TEST(TimedMsgBox, AnAnswerAfterTheTimeIsStillZero) {
  QtPrompts prompts = MakePrompts();
  const WhenShown<QMessageBox> person([](QMessageBox& box) {
    // The thread is busy until the tick is due, and the person's click comes right behind it.
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() <= kShortMs) QThread::yieldCurrentThread();
    QTimer::singleShot(0, &box, [&box] { ButtonOf(box, "OK")->click(); });
  });
  EXPECT_EQ(prompts.TimedMsgBox(kShortMs, "Move Stop?", 0, "Title"), Answer::TimedOut);
}

TEST(Pointer, IsTheHourglassUntilEachOneIsTakenBack) {
  QtPrompts prompts = MakePrompts();
  prompts.SetPointer(Pointer::Hourglass);
  prompts.SetPointer(Pointer::Hourglass);
  prompts.SetPointer(Pointer::Default);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  prompts.SetPointer(Pointer::Default);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(Wait, SleepsForTheGivenTime) {
  std::vector<int> waits;
  QtPrompts prompts([&](int milliseconds) { waits.push_back(milliseconds); });
  prompts.Wait(3000);
  EXPECT_EQ(waits, std::vector<int>{3000});
}

// The line of a window, on which the prompts show progress.
class Progress : public testing::Test {
 protected:
  Progress() { prompts.ShowProgressOn(&line); }

  QtPrompts prompts = MakePrompts();
  ProgressLine line;
};

TEST_F(Progress, ShowsOnTheLineAndGoesAwayAtTheEnd) {
  prompts.ShowProgress(1, 4);
  EXPECT_DOUBLE_EQ(line.fraction(), 0.25);
  prompts.ShowProgress(4, 4);
  EXPECT_DOUBLE_EQ(line.fraction(), 0);
}

TEST_F(Progress, UnderTheHourglassStaysUntilTheLastOneIsTakenBack) {
  prompts.SetPointer(Pointer::Hourglass);
  prompts.SetPointer(Pointer::Hourglass);
  prompts.ShowProgress(4, 4);
  EXPECT_DOUBLE_EQ(line.fraction(), 1);
  prompts.SetPointer(Pointer::Default);
  EXPECT_DOUBLE_EQ(line.fraction(), 1);
  prompts.SetPointer(Pointer::Default);
  EXPECT_DOUBLE_EQ(line.fraction(), 0);
}

TEST(ProgressWithoutALine, IsShownNowhere) {
  QtPrompts prompts = MakePrompts();
  prompts.ShowProgress(1, 4);
  prompts.SetPointer(Pointer::Hourglass);
  prompts.ShowProgress(4, 4);
  prompts.SetPointer(Pointer::Default);
}

}  // namespace
}  // namespace mortane::test
