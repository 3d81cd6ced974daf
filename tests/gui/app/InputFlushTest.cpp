// Dropping the input that has queued up, and nothing else.
#include "app/InputFlush.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMouseEvent>
#include <QShortcut>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWidget>
#include <functional>

namespace mortane::test {

using namespace Qt::StringLiterals;

namespace {

// Counts what reaches it.
class Target : public QWidget {
 public:
  int input = 0;
  int wheels = 0;
  int posted = 0;

 protected:
  void mousePressEvent(QMouseEvent*) override { ++input; }
  void mouseReleaseEvent(QMouseEvent*) override { ++input; }
  void mouseDoubleClickEvent(QMouseEvent*) override { ++input; }
  void mouseMoveEvent(QMouseEvent*) override { ++input; }
  void keyPressEvent(QKeyEvent*) override { ++input; }
  void keyReleaseEvent(QKeyEvent*) override { ++input; }
  void wheelEvent(QWheelEvent*) override { ++wheels; }
  void customEvent(QEvent*) override { ++posted; }
};

void PostMouse(QWidget& target, QEvent::Type type) {
  QApplication::postEvent(&target, new QMouseEvent(type, QPointF(1, 1), QPointF(1, 1),
                                                   Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
}

TEST(FlushInput, DropsMouseAndKeysAndNothingElse) {
  InputFlush flush;
  Target target;
  for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                  QEvent::MouseButtonDblClick, QEvent::MouseMove}) {
    PostMouse(target, type);
  }
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QApplication::postEvent(&target, new QKeyEvent(type, Qt::Key_A, Qt::NoModifier, "a"));
  }
  QApplication::postEvent(&target,
                          new QWheelEvent(QPointF(1, 1), QPointF(1, 1), {}, {0, 120}, Qt::NoButton,
                                          Qt::NoModifier, Qt::NoScrollPhase, false));
  QApplication::postEvent(&target, new QEvent(QEvent::User));
  int ticks = 0;
  QTimer::singleShot(0, &target, [&] { ++ticks; });

  flush.Run();
  QApplication::processEvents();
  EXPECT_EQ(target.input, 0);
  EXPECT_EQ(target.wheels, 1);
  EXPECT_EQ(target.posted, 1);
  EXPECT_EQ(ticks, 1);
}

TEST(FlushInput, DropsKeysThatAreShortcuts) {
  InputFlush flush;
  Target target;
  target.show();
  target.activateWindow();
  QApplication::processEvents();
  const QShortcut shortcut(QKeySequence(Qt::CTRL | Qt::Key_S), &target);
  int acts = 0;
  QObject::connect(&shortcut, &QShortcut::activated, &target, [&] { ++acts; });
  QTimer::singleShot(0, &target, [&] { QTest::keyClick(&target, Qt::Key_S, Qt::ControlModifier); });
  flush.Run();
  EXPECT_EQ(acts, 0);
  QTest::keyClick(&target, Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(acts, 1) << "and no later one";
}

TEST(FlushInput, LeavesLaterInputAlone) {
  InputFlush flush;
  Target target;
  flush.Run();
  PostMouse(target, QEvent::MouseButtonPress);
  QApplication::processEvents();
  EXPECT_EQ(target.input, 1);
}

TEST(FlushInput, WithinItselfDoesNothing) {
  InputFlush flush;
  Target target;
  PostMouse(target, QEvent::MouseButtonPress);
  QTimer::singleShot(0, &target, [&] {
    flush.Run();
    PostMouse(target, QEvent::MouseButtonRelease);
  });
  flush.Run();
  QApplication::processEvents();
  EXPECT_EQ(target.input, 0) << "the outer one was still at work";
}

// A refused field complains as soon as its window loses the focus, for one.
TEST(FlushInput, LeavesABoxThatOpensMeanwhileToThePerson) {
  InputFlush flush;
  Target target;
  target.show();
  QTimer::singleShot(0, &target, [&] {
    QMessageBox box(QMessageBox::NoIcon, u"Mortane"_s, u"Please Input right value."_s,
                    QMessageBox::Ok, &target);
    QTimer::singleShot(0, &target, [&] {
      PostMouse(target, QEvent::MouseButtonPress);
      QTest::keyClick(&box, Qt::Key_Return);
      EXPECT_FALSE(box.isVisible());
      if (box.isVisible()) box.reject();
    });
    EXPECT_EQ(box.exec(), QMessageBox::Ok);
    PostMouse(target, QEvent::MouseButtonRelease);
  });
  flush.Run();
  QApplication::processEvents();
  EXPECT_EQ(target.input, 0) << "behind the box it is dropped again";
}

TEST(FlushInput, TellsWhenItIsOver) {
  InputFlush flush;
  QObject context;
  int calls = 0;
  EXPECT_FALSE(InputFlush::IsRunning());
  QTimer::singleShot(0, &context, [&] {
    EXPECT_TRUE(InputFlush::IsRunning());
    InputFlush::WhenOver(context, [&] {
      EXPECT_FALSE(InputFlush::IsRunning());
      ++calls;
    });
    QObject shortLived;
    InputFlush::WhenOver(shortLived, [] { ADD_FAILURE() << "its context is gone"; });
  });
  flush.Run();
  EXPECT_EQ(calls, 0) << "from the event loop";
  QApplication::processEvents();
  EXPECT_EQ(calls, 1);
}

TEST(FlushInput, EndsWhenNoInputIsLeftHoweverMuchElseThereIsToDo) {
  InputFlush flush;
  Target target;
  PostMouse(target, QEvent::MouseButtonPress);
  int ticks = 0;
  QTimer busy;  // always due
  QObject::connect(&busy, &QTimer::timeout, &busy, [&] { ++ticks; });
  busy.start(0);
  flush.Run();
  EXPECT_EQ(target.input, 0);
  EXPECT_LT(ticks, 10);
}

TEST(FlushInput, GoesOnAsLongAsMoreInputComes) {
  constexpr int kMost = 100;
  InputFlush flush;
  Target target;
  int posted = 0;
  const std::function<void()> post = [&] {
    PostMouse(target, QEvent::MouseButtonPress);
    if (++posted < kMost) QTimer::singleShot(0, &target, post);
  };
  post();
  flush.Run();
  EXPECT_EQ(posted, kMost);
  QApplication::processEvents();
  EXPECT_EQ(target.input, 0);
}

}  // namespace
}  // namespace mortane::test
