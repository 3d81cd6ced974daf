// What is seen of the window while a Send works and waits.
#include <gtest/gtest.h>

#include <QAction>
#include <QPainter>

#include "CommandRig.h"
#include "app/QtPrompts.h"
#include "widgets/ProgressLine.h"

namespace mortane::test {
namespace {

class PaintCounter : public QObject {
 public:
  explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
};

// On a display without a compositor the picture of the box stays where nothing is painted.
TEST(Send, PaintsTheWindowBetweenTheBoxOfFailuresAndTheWait) {
  CommandRig rig;
  GetK70().SystemName = "Bay 4";
  rig.app.faults.Add({"put SystemName"});
  PaintCounter window(rig.form());
  PaintCounter content(*rig.form().centralWidget());
  rig.app.prompts.ExpectBox("System Name", 16, Answer::Ok, "Send", [&] {
    window.count = 0;
    content.count = 0;
  });
  rig.app.prompts.onCall = [&] {
    if (rig.app.prompts.Log().back() != "wait 3000") return;
    EXPECT_GT(window.count, 0);
    EXPECT_GT(content.count, 0);
  };
  rig.form().MenuConnectSend->trigger();
  EXPECT_EQ(rig.app.CountLog("wait 3000"), 1);
}

TEST(Send, PaintsTheDisabledWindowBeforeItsFirstCall) {
  CommandRig rig;
  PaintCounter content(*rig.form().centralWidget());
  int paintedBefore = -1;
  rig.app.prompts.onCall = [&] {
    if (paintedBefore < 0 && rig.app.prompts.Log().back().starts_with("progress"))
      paintedBefore = content.count;
  };
  rig.form().MenuConnectSend->trigger();
  EXPECT_GT(paintedBefore, 0);
}

// The window with the program's own prompts.
struct RealPromptsRig {
  RealPromptsRig() {
    form.Load();
    form.show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return form.IsStarted(); }));
    prompts.ShowProgressOn(form.Progress());
  }
  ~RealPromptsRig() { form.Unload(); }

  std::function<void()> onWait;
  controller::SimulatedLibrary library{benches::Named("Harbour")};
  QtPrompts prompts{[this](int milliseconds) {
    EXPECT_EQ(milliseconds, 3000);
    onWait();
  }};
  FakePages fakes;
  ScriptedJoystick joystick;
  MortaneMainForm form{{ProvideK70(library, prompts), library, prompts, joystick, {"mortane"}},
                       fakes.Table()};
};

TEST(Send, ShowsTheWholeProgressWhileItWaits) {
  const struct Release {
    ~Release() { ReleaseK70(); }
  } afterTheForm;
  RealPromptsRig rig;
  int waits = 0;
  rig.onWait = [&] {
    ++waits;
    const ProgressLine& line = *rig.form.Progress();
    EXPECT_TRUE(line.isVisible());
    EXPECT_EQ(line.width(), rig.form.width());
    const QPoint end = line.mapTo(&rig.form, line.rect().bottomRight());
    EXPECT_EQ(rig.form.grab().toImage().pixelColor(end),
              rig.form.palette().color(QPalette::Active, QPalette::Highlight));
  };
  rig.form.MenuConnectSend->trigger();
  EXPECT_EQ(waits, 1);
  EXPECT_DOUBLE_EQ(rig.form.Progress()->fraction(), 0);
}

}  // namespace
}  // namespace mortane::test
