#include "widgets/CheckToggle.h"

#include "gui/support/Face.h"
#include "gui/support/TestWindow.h"
#include "widgets/NotSentMark.h"
#include "widgets/Theme.h"

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
  const QObject listener;
  QObject::connect(toggle, &CheckToggle::toggled, &listener, [&] { captions << toggle->text(); });
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

TEST_F(CheckToggleTest, AnUnknownValueIsOffAndLooksLikeNeither) {
  const QImage off = toggle->grab().toImage();
  QSignalSpy changes(toggle, &CheckToggle::toggled);
  toggle->SetUnknown();
  EXPECT_TRUE(toggle->isUnknown());
  EXPECT_FALSE(toggle->isChecked());
  EXPECT_EQ(toggle->text(), "OFF");
  EXPECT_NE(toggle->grab().toImage(), off);
  EXPECT_EQ(changes.count(), 0) << "off before and after";
}

TEST_F(CheckToggleTest, AChangeFromOnToUnknownIsToldOnceWithTheUnknownInForce) {
  toggle->setChecked(true);
  QVector<bool> told;
  const QObject listener;
  QObject::connect(toggle, &CheckToggle::toggled, &listener,
                   [&] { told.append(toggle->isUnknown()); });
  toggle->SetUnknown();
  toggle->SetUnknown();
  EXPECT_EQ(told, QVector<bool>{true});
}

TEST_F(CheckToggleTest, WhateverIsSetNextEndsTheUnknown) {
  for (const bool value : {true, false}) {
    toggle->SetUnknown();
    toggle->setChecked(value);
    EXPECT_FALSE(toggle->isUnknown());
    EXPECT_EQ(toggle->isChecked(), value);
  }
}

TEST_F(CheckToggleTest, AClickOnAnUnknownValueIsToldAsKnown) {
  toggle->SetUnknown();
  QVector<bool> told;
  const QObject listener;
  QObject::connect(toggle, &CheckToggle::toggled, &listener,
                   [&] { told.append(toggle->isUnknown()); });
  QTest::mouseClick(toggle, Qt::LeftButton);
  EXPECT_EQ(told, QVector<bool>{false});
  EXPECT_TRUE(toggle->isChecked());
  EXPECT_EQ(toggle->text(), "ON");
}

struct SwitchFace {
  const char* what;
  test::Use use;
  bool on;
  bool pending;
  test::Face face;
};

// Without its caption.
TEST(CheckToggleFace, TellsEachState) {
  using test::Use;
  for (const SwitchFace& row : {
           SwitchFace{
               "off",
               Use::Rest,
               false,
               false,
               {"Window 5, ~ 2, Base 1, ~ 1, Dark 9, ~ 1, Base 20, ~ 2, Window 9", "Window 26"}},
           SwitchFace{
               "on",
               Use::Rest,
               true,
               false,
               {"Window 5, ~ 1, Highlight 20, ~ 1, BrightText 10, ~ 1, Highlight 2, ~ 1, Window 9",
                "Window 26"}},
           SwitchFace{
               "off and hovered",
               Use::Hovered,
               false,
               false,
               {"Window 5, ~ 2, Base 1, ~ 1, Shadow 9, ~ 1, Base 20, ~ 2, Window 9", "Window 26"}},
           SwitchFace{
               "on and hovered",
               Use::Hovered,
               true,
               false,
               {"Window 5, ~ 1, Highlight 20, ~ 1, BrightText 10, ~ 1, Highlight 2, ~ 1, Window 9",
                "Window 26"}},
           SwitchFace{"off and focused",
                      Use::Focused,
                      false,
                      false,
                      {"Highlight 2, Window 3, ~ 2, Base 1, ~ 1, Dark 9, ~ 1, Base 20, ~ 2, Window "
                       "7, Highlight 2",
                       "Highlight 2, Window 22, Highlight 2"}},
           SwitchFace{"off and disabled",
                      Use::Disabled,
                      false,
                      false,
                      {"disabled Window 5, ~ 2, disabled Window 1, ~ 1, disabled Mid 9, ~ 1, "
                       "disabled Window 20, ~ 2, disabled Window 9",
                       "disabled Window 26"}},
           SwitchFace{"on and disabled",
                      Use::Disabled,
                      true,
                      false,
                      {"disabled Window 5, ~ 2, disabled Window 20, ~ 1, disabled Mid 9, ~ 1, "
                       "disabled Window 1, ~ 2, disabled Window 9",
                       "disabled Window 26"}},
           SwitchFace{
               "on and not sent",
               Use::Rest,
               true,
               true,
               {"Window 5, ~ 1, Highlight 20, ~ 1, BrightText 10, ~ 1, Highlight 2, ~ 1, Window 9",
                "~ 1, Link 8, ~ 2, Window 15"}},
       }) {
    CheckToggle toggle;
    toggle.setChecked(row.on);
    if (row.pending) MarkNotSent(toggle, "OFF");
    const QImage picture = test::PictureOf(toggle, {50, 26}, row.use);
    EXPECT_EQ((test::Face{test::RowOf(picture), test::ColumnOf(picture, 41)}), row.face)
        << row.what;
  }
  CheckToggle unknown;
  unknown.SetUnknown();
  EXPECT_EQ(test::RowOf(test::PictureOf(unknown, {50, 26}, Use::Rest)),
            "Window 5, ~ 2, Base 10, ~ 1, Dark 10, ~ 1, Base 10, ~ 2, Window 9");
}

TEST(CheckToggleFace, HoldsItsTrackAndItsLongerCaption) {
  const CheckToggle toggle;
  const int caption = qMax(QFontMetrics(BoldFont()).horizontalAdvance("ON"),
                           toggle.fontMetrics().horizontalAdvance("OFF"));
  EXPECT_EQ(toggle.sizeHint(), QSize(5 + 36 + 9 + caption + 10, 26));
}

}  // namespace
}  // namespace mortane
