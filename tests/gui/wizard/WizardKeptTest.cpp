// What a wizard that died has left unsent is offered by the next one.
#include <gtest/gtest.h>

#include <QAction>
#include <QTimer>
#include <filesystem>

#include "WizardRig.h"
#include "app/KeptButton.h"
#include "app/SelFileItemDlg.h"
#include "gui/support/PageActs.h"
#include "hub/clsK70.h"
#include "record/Backups.h"
#include "support/TempFolder.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

class WizardKept : public testing::Test {
 protected:
  ~WizardKept() override { End(); }

  void Start() {
    library.emplace(benches::Named("Harbour"));
    clsK70& k70 = ProvideK70(library->library, library->prompts);
    form = std::make_unique<SadrelMainForm>(FormServices{.k70 = k70,
                                                         .library = library->library,
                                                         .prompts = library->prompts,
                                                         .joystick = joystick,
                                                         .arguments = {"sadrel"},
                                                         .backupFolder = folder.Path("backups"),
                                                         .unsentFolder = folder.Path("unsent")},
                                            WizardSteps());
    form->Load();
    form->show();
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([this] { return form->IsStarted(); }));
  }
  // As a process that is killed.
  void End() {
    form.reset();
    if (library) ReleaseK70();
    library.reset();
  }
  KeptButton& button() {
    return static_cast<KeptButton&>(*form->findChild<QToolButton*>("ButtonKept"));
  }
  TextField& name() { return *form->findChild<TextField*>("TextSystemName"); }
  int UnsentFiles() {
    int count = 0;
    const std::filesystem::path files = folder.Path("unsent");
    if (!std::filesystem::exists(files)) return 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(files)) {
      if (entry.is_regular_file()) ++count;
    }
    return count;
  }
  // A wizard in which the name was changed dies, and the next one starts.
  void StartAfterDeath() {
    Start();
    EXPECT_TRUE(button().isHidden());
    form->findChild<QTimer*>("UnsentTimer")->setInterval(0);
    TypeInto(name(), "Bay 4");
    QTest::keyClick(&name(), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return UnsentFiles() == 1; }));
    End();
    Start();
  }
  // The key chooses in the menu of the button, which Tab reaches from the last control of the step.
  void ChooseByKeys(const QList<Qt::Key>& keys) {
    ASSERT_TRUE(button().isVisible());
    for (int i = 0; i < 20 && !button().hasFocus(); ++i)
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_TRUE(button().hasFocus());
    QTimer::singleShot(0, form.get(), [keys] {
      for (const Qt::Key key : keys) {
        if (QWidget* menu = QApplication::activePopupWidget()) QTest::keyClick(menu, key);
      }
    });
    QTest::keyClick(&button(), Qt::Key_Space);
    QApplication::processEvents();
  }

  TempFolder folder;
  ScriptedJoystick joystick;
  std::optional<RigLibrary> library;
  std::unique_ptr<SadrelMainForm> form;
};

TEST_F(WizardKept, IsOfferedAndOpenedByKeys) {
  StartAfterDeath();
  EXPECT_TRUE(button().text().startsWith("Unsent changes of "));
  EXPECT_EQ(name().text(), "Harbour");
  const WhenShown<SelFileItemDlg> person(
      [](SelFileItemDlg& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
  ChooseByKeys({Qt::Key_Down, Qt::Key_Return});
  EXPECT_EQ(GetK70().SystemName, "Bay 4");
  EXPECT_EQ(name().text(), "Bay 4") << "the step that is shown";
  EXPECT_EQ(form->currentStep, kSystemStep);
  EXPECT_EQ(form->focusWidget(), &name()) << "where the step begins";
  EXPECT_TRUE(button().isHidden());
  EXPECT_EQ(UnsentFiles(), 1) << "kept anew";
}

TEST_F(WizardKept, StandsBetweenTheStepAndTheButtons) {
  StartAfterDeath();
  QApplication::processEvents();
  const auto placeOf = [this](QWidget& widget) {
    return QRect(widget.mapTo(form.get(), QPoint()), widget.size());
  };
  const QRect page = placeOf(*form->FrameControl->parentWidget()->parentWidget());
  const QRect buttons = placeOf(*form->ButtonNext->parentWidget());
  const QRect kept = placeOf(button());
  EXPECT_EQ(kept.top(), page.bottom() + 1);
  EXPECT_EQ(kept.bottom(), buttons.top() - 1);
  EXPECT_EQ(kept.left(), page.left() + 20);
  EXPECT_EQ(kept.width(), button().sizeHint().width());
}

TEST_F(WizardKept, IsLetGoByKeys) {
  StartAfterDeath();
  ChooseByKeys({Qt::Key_Up, Qt::Key_Return});
  EXPECT_TRUE(button().isHidden());
  EXPECT_EQ(UnsentFiles(), 0);
  EXPECT_EQ(name().text(), "Harbour");
}

TEST_F(WizardKept, IsTheStateBeforeTheSend) {
  Start();
  GetK70().SystemName = "Bay 4";
  const int interval = QApplication::doubleClickInterval();
  QApplication::setDoubleClickInterval(0);
  library->prompts.ExpectBox("Save Settings?\r\nPush OK to Save.", 33, Answer::Cancel, "Sadrel");
  for (int i = 0; i < 2; ++i) QTest::mouseClick(form->ButtonFinish, Qt::LeftButton);
  QApplication::setDoubleClickInterval(interval);
  const std::vector<Backup> kept = Backups(folder.Path("backups"), "Harbour").List();
  ASSERT_EQ(kept.size(), 1U);
  EXPECT_NE(TempFolder::Read(kept[0].path).find("Harbour"), std::string::npos);
}

TEST_F(WizardKept, TakesNoRoomWhileThereIsNothing) {
  Start();
  EXPECT_TRUE(button().isHidden());
  EXPECT_EQ(form->ButtonNext->parentWidget()->y(),
            form->FrameControl->parentWidget()->parentWidget()->geometry().bottom() + 1);
}

}  // namespace
}  // namespace mortane::test
