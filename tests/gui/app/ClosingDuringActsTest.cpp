// A request to close the window that comes in while a page is at work.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QPushButton>
#include <QTimer>

#include "AppRig.h"
#include "app/ControlSettingsCtl.h"
#include "app/InputFlush.h"
#include "drawings/MoveCross.h"
#include "drives/ControlFocusDriveCtl.h"
#include "drives/ControlXYStageCtl.h"
#include "gui/support/EventLoop.h"
#include "support/TempFolder.h"
#include "switches/TactorSwitchSettingCtl.h"
#include "widgets/OptionGroup.h"
#include "widgets/PageButton.h"
#include "widgets/SectionBar.h"

namespace mortane::test {
namespace {

constexpr std::size_t kControls = 5;
// Of a move to where the drive stands.
constexpr int kShortestWaitMs = 1000;

// The main window whose prompts really drop input.
struct FlushingRig : AppRig {
  FlushingRig() : AppRig(benches::Named("Harbour")) {
    Start();
    prompts.onCall = [this] {
      if (prompts.Log().back() == "flush") flush.Run();
    };
    QTest::mousePress(form->ImageButton[kControls], Qt::LeftButton);
  }

  // The system delivers it as soon as events are processed.
  void CloseSoon() {
    QTimer::singleShot(0, form.get(), [this] { EXPECT_FALSE(RequestClose()); });
  }
  void OpenTab(int tab) {
    QTest::mouseClick(form->ControlSettingsCtl1->optControl->option(tab), Qt::LeftButton);
  }
  template <typename Sub>
  Sub& SubPage() {
    return *form->ControlSettingsCtl1->template findChild<Sub*>();
  }
  // With a row to move to, and the moves switched on.
  template <typename Drive>
  Drive& OpenDrive(int tab) {
    OpenTab(tab);
    auto& page = SubPage<Drive>();
    prompts.AcceptAnyBox();
    page.optNosepiece->select(0);
    page.CheckRealMove->setChecked(true);
    prompts.AcceptAnyBox(false);
    prompts.ClearRecords();
    return page;
  }
  template <typename Drive>
  void StartMove(int tab) {
    auto& page = OpenDrive<Drive>(tab);
    prompts.ExpectTimedBox(kShortestWaitMs, "Move Stop?", 0, {}, Answer::TimedOut,
                           [this] { CloseSoon(); });
    page.ButtonStart->click();
  }

  InputFlush flush;
};

struct ActRow {
  const char* name;
  void (*run)(FlushingRig& rig);
};

void StartStage(FlushingRig& rig) {
  rig.StartMove<ControlXYStageCtl>(controltab::kXYStage);
}

void StartFocus(FlushingRig& rig) {
  rig.StartMove<ControlFocusDriveCtl>(controltab::kFocusDrive);
}

void StepStage(FlushingRig& rig) {
  auto& page = rig.OpenDrive<ControlXYStageCtl>(controltab::kXYStage);
  rig.CloseSoon();
  QTest::mouseClick(page.ButtonUpLarge, Qt::LeftButton);
}

void StepFocus(FlushingRig& rig) {
  auto& page = rig.OpenDrive<ControlFocusDriveCtl>(controltab::kFocusDrive);
  rig.CloseSoon();
  QTest::mouseClick(page.ButtonUpLarge, Qt::LeftButton);
}

void ChooseAddress(FlushingRig& rig) {
  auto& page = rig.OpenDrive<ControlXYStageCtl>(controltab::kXYStage);
  rig.CloseSoon();
  QTest::mouseClick(page.optNosepiece->button(1), Qt::LeftButton);
}

void OpenOther(FlushingRig& rig) {
  rig.OpenTab(controltab::kXYStage);
  rig.CloseSoon();
  rig.OpenTab(controltab::kOther);
}

void SaveHandController(FlushingRig& rig) {
  rig.OpenTab(controltab::kTactorSwitch);
  auto& page = rig.SubPage<TactorSwitchSettingCtl>();
  rig.prompts.ExpectFileToSave("");
  rig.CloseSoon();
  page.Command1->click();
}

class CloseBoxDuringAct : public testing::TestWithParam<ActRow> {};

TEST_P(CloseBoxDuringAct, AsksOnceItIsOver) {
  FlushingRig rig;
  GetParam().run(rig);  // a question that comes by now was not scripted
  EXPECT_TRUE(rig.form->isVisible());
  rig.prompts.ExpectBox(kExitQuestion, 33, Answer::Ok, kMainCaption,
                        [] { EXPECT_FALSE(InputFlush::IsRunning()) << "nobody could answer"; });
  DeliverAll();
  EXPECT_TRUE(rig.prompts.AllAnswersUsed()) << "not asked";
  EXPECT_FALSE(rig.form->isVisible());
}

TEST_P(CloseBoxDuringAct, CancelledGoesOn) {
  FlushingRig rig;
  GetParam().run(rig);
  rig.prompts.ExpectBox(kExitQuestion, 33, Answer::Cancel, kMainCaption);
  DeliverAll();
  EXPECT_TRUE(rig.form->isVisible());
  EXPECT_TRUE(rig.prompts.AllAnswersUsed());
  rig.prompts.ExpectBox(kExitQuestion, 33, Answer::Ok, kMainCaption);
  EXPECT_TRUE(rig.RequestClose()) << "the next one is a new question";
}

INSTANTIATE_TEST_SUITE_P(
    Pages, CloseBoxDuringAct,
    testing::Values(ActRow{"StageStart", StartStage}, ActRow{"StageStep", StepStage},
                    ActRow{"StageAddress", ChooseAddress}, ActRow{"FocusStart", StartFocus},
                    ActRow{"FocusStep", StepFocus}, ActRow{"TabOther", OpenOther},
                    ActRow{"HandControllerFile", SaveHandController}),
    [](const auto& row) { return row.param.name; });

// While a box stands over the window, as a modal one does.
TEST(CloseBox, UnderABoxIsAskedWhenTheBoxHasGone) {
  FlushingRig rig;
  QDialog standing(rig.form.get());
  standing.setModal(true);
  standing.show();
  EXPECT_FALSE(rig.RequestClose());
  DeliverAll();
  EXPECT_TRUE(rig.prompts.Boxes().empty());
  rig.prompts.ExpectBox(kExitQuestion, 33, Answer::Ok, kMainCaption);
  standing.hide();
  DeliverAll();
  EXPECT_FALSE(rig.form->isVisible());
}

}  // namespace
}  // namespace mortane::test
