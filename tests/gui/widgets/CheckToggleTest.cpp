#include "widgets/CheckToggle.h"

#include "gui/widgets/TestWindow.h"

namespace mortane {
namespace {

class CheckToggleTest : public ::testing::Test {
 protected:
  void SetUp() override {
    toggle = window.Add<CheckToggle>();
    window.Show();
  }

  TestWindow window;
  CheckToggle* toggle = nullptr;
};

TEST_F(CheckToggleTest, CaptionFollowsTheValueBeforeTheChangeIsTold) {
  EXPECT_EQ(toggle->text(), "OFF");
  QStringList captions;
  QObject::connect(toggle, &CheckToggle::toggled, toggle, [&] { captions << toggle->text(); });
  toggle->setChecked(true);
  QTest::mouseClick(toggle, Qt::LeftButton);
  QTest::keyClick(toggle, Qt::Key_Space);
  EXPECT_EQ(captions, QStringList({"ON", "OFF", "ON"}));
  EXPECT_EQ(toggle->text(), "ON");
}

TEST_F(CheckToggleTest, AChangeByTheProgramIsToldLikeAUsers) {
  QSignalSpy changes(toggle, &CheckToggle::toggled);
  toggle->setChecked(true);
  toggle->setChecked(true);
  toggle->setChecked(false);
  EXPECT_EQ(changes.count(), 2);
}

TEST_F(CheckToggleTest, TheCaptionFollowsEvenWhereChangesAreNotTold) {
  const QSignalBlocker quiet(toggle);
  toggle->setChecked(true);
  EXPECT_EQ(toggle->text(), "ON");
}

TEST_F(CheckToggleTest, DisabledItKeepsItsLastSideAndLooksDifferent) {
  toggle->setChecked(true);
  const QImage enabled = toggle->grab().toImage();
  toggle->setEnabled(false);
  QTest::mouseClick(toggle, Qt::LeftButton);
  EXPECT_TRUE(toggle->isChecked());
  EXPECT_EQ(toggle->text(), "ON");
  const QImage on = toggle->grab().toImage();
  EXPECT_NE(on, enabled);
  toggle->setChecked(false);
  EXPECT_NE(toggle->grab().toImage(), on);
}

TEST_F(CheckToggleTest, InAWindowThatIsBusyItLooksAsBefore) {
  toggle->clearFocus();
  for (const bool on : {false, true}) {
    toggle->setChecked(on);
    const QImage before = toggle->grab().toImage();
    window.widget().setEnabled(false);
    EXPECT_EQ(toggle->grab().toImage(), before) << on;
    window.widget().setEnabled(true);
  }
}

}  // namespace
}  // namespace mortane
