// The ways in which the wizard may run: which list counts, and a file of settings.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>
#include <QKeyEvent>

#include "ItemsRig.h"
#include "app/SelFileItemDlg.h"
#include "gui/app/AppRig.h"
#include "objectives/clsNosepiece.h"
#include "support/TempFolder.h"
#include "widgets/Theme.h"

namespace mortane::test {
namespace {

TEST(Mode, IsChosenByClicksAndRaisesItsList) {
  ItemsRig rig(benches::Named("Harbour"), [](clsK70& k70) { k70.curType = 2; });
  EXPECT_EQ(rig.After([&] { QTest::mouseClick(&rig.Option(1), Qt::LeftButton); }),
            (Lines{"mode 1", "0 on", "1 on", "5 off", "6 off"}));
  EXPECT_EQ(rig.page->SetupMode(), 1);
  EXPECT_EQ(rig.After([&] { QTest::mouseClick(&rig.Option(0), Qt::LeftButton); }),
            (Lines{"mode 0", "0 on", "1 on", "5 off", "6 off"}));
  EXPECT_EQ(rig.After([&] { QTest::mouseClick(&rig.Option(0), Qt::LeftButton); }),
            (Lines{"mode 0", "0 on", "1 on", "5 off", "6 off"}))
      << "every click";
}

TEST(Mode, SetByTheProgramRunsTheClick) {
  ItemsRig rig(benches::Named("Harbour"), [](clsK70& k70) { k70.curType = 2; });
  EXPECT_EQ(rig.After([&] { rig.page->SetupMode(1); }).front(), "mode 1");
  EXPECT_TRUE(rig.Option(1).isChecked());
  EXPECT_EQ(rig.After([&] { rig.page->SetupMode(1); }).size(), 5U) << "also the selected one";
}

TEST(Mode, EnablesTheCustomListAloneAndForCustomOnly) {
  ItemsRig rig;
  EXPECT_FALSE(rig.page->ListCustom->isEnabled());
  QTest::mouseClick(&rig.Option(1), Qt::LeftButton);
  EXPECT_TRUE(rig.page->ListCustom->isEnabled());
  EXPECT_FALSE(rig.page->ListStandard->isEnabled());
  rig.page->SetupMode(2);
  EXPECT_FALSE(rig.page->ListCustom->isEnabled());
  EXPECT_FALSE(rig.page->ListStandard->isEnabled());
}

TEST(Mode, HasEnabledItsListBeforeItIsTold) {
  ItemsRig rig;
  int told = 0;
  QObject::connect(rig.page, &SelSetupItemCtl::ModeChanged, rig.page, [&](int mode) {
    EXPECT_EQ(rig.page->ListCustom->isEnabled(), mode == 1);
    ++told;
  });
  for (const int mode : {1, 0}) QTest::mouseClick(&rig.Option(mode), Qt::LeftButton);
  EXPECT_EQ(told, 2);
}

TEST(Mode, FileByTheArrowsIsOnlySelected) {
  ItemsRig rig;
  rig.Option(0).setFocus();
  QTest::keyClick(&rig.Option(0), Qt::Key_Down);
  EXPECT_EQ(rig.page->SetupMode(), 1);
  EXPECT_EQ(rig.After([&] { QTest::keyClick(&rig.Option(1), Qt::Key_Right); }), Lines{"mode 2"});
  EXPECT_TRUE(rig.rig.prompts.FileQuestions().empty());
  QTest::keyClick(&rig.Option(2), Qt::Key_Left);
  EXPECT_EQ(rig.page->SetupMode(), 1);
}

TEST(Mode, HasItsListUnderItsOption) {
  ItemsRig rig;
  const std::array<const ListBox*, 2> lists{rig.page->ListStandard, rig.page->ListCustom};
  const auto area = [&](const QWidget& control) {
    return QRect(control.mapTo(rig.page, QPoint()), control.size());
  };
  for (int mode = 0; mode < 2; ++mode) {
    const QRect option = area(rig.Option(mode));
    const QRect list = area(*lists[static_cast<std::size_t>(mode)]);
    EXPECT_EQ(option.left(), list.left()) << mode;
    EXPECT_GT(list.top(), option.bottom()) << mode;
    EXPECT_LT(list.top() - option.bottom(), 16) << mode;
  }
  EXPECT_GT(area(rig.Option(2)).left(), area(*lists[1]).right());
}

// Whether the picture has that colour.
bool Shows(ListBox& list, const QColor& colour) {
  const QImage picture = list.grab().toImage();
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixelColor(x, y) == colour) return true;
    }
  }
  return false;
}

TEST(Mode, ShowsTheListThatCountsAsChosenAndTheOtherResting) {
  ItemsRig rig;
  const QColor amber = ToneColor(Tone::Amber);
  const QColor ticked = rig.page->palette().color(QPalette::Active, QPalette::Highlight);
  for (int mode = 0; mode < 3; ++mode) {
    QTest::mouseClick(&rig.Option(0), Qt::LeftButton);  // with no file
    if (mode > 0) rig.page->SetupMode(mode);
    QApplication::processEvents();
    EXPECT_EQ(Shows(*rig.page->ListStandard, amber), mode == 0) << mode;
    EXPECT_EQ(Shows(*rig.page->ListStandard, ticked), mode == 0) << mode;
    EXPECT_EQ(Shows(*rig.page->ListCustom, amber), mode == 1) << mode;
    EXPECT_EQ(Shows(*rig.page->ListCustom, ticked), mode == 1) << mode;
  }
}

// The ground of a row at its right end, where it has no text.
QColor GroundOfRow(ListBox& list, int row) {
  const QRect line = list.visualItemRect(list.topLevelItem(row));
  return list.viewport()->grab().toImage().pixelColor(line.right() - 4, line.center().y());
}

TEST(Mode, ShowsTheCurrentRowInTheListThatIsEnabledAlone) {
  ItemsRig rig;
  ListBox& custom = *rig.page->ListCustom;
  ASSERT_GT(custom.rowCount(), 2);
  QApplication::processEvents();
  EXPECT_EQ(GroundOfRow(custom, 0), GroundOfRow(custom, 2));
  rig.page->SetupMode(1);
  custom.setIndex(0);
  QApplication::processEvents();
  EXPECT_NE(GroundOfRow(custom, 0), GroundOfRow(custom, 2));
  rig.page->SetupMode(2);
  QApplication::processEvents();
  EXPECT_EQ(GroundOfRow(custom, 0), GroundOfRow(custom, 2));
}

TEST(Mode, HasListsOfOneWidthThatTakeTheRoomBelow) {
  ItemsRig rig;
  rig.page->resize(1200, 900);
  QApplication::processEvents();
  const ModeList& standard = *rig.page->ListStandard;
  const ModeList& custom = *rig.page->ListCustom;
  EXPECT_NEAR(standard.width(), custom.width(), 1);
  EXPECT_EQ(standard.y(), custom.y());
  EXPECT_EQ(standard.geometry().bottom(), rig.page->Frame1->rect().bottom());
  EXPECT_EQ(standard.x(), 0);
  EXPECT_EQ(rig.Option(0).y(), 0);
  EXPECT_EQ(custom.x() - standard.geometry().right() - 1, grid::kBetweenColumns);
}

TEST(Mode, OfARestingListIsNotThatOfARowThatIsNotFitted) {
  ItemsRig rig;
  const auto topOfBox = [](ListBox& list, int row) {
    const QRect line = list.visualItemRect(list.topLevelItem(row));
    return list.viewport()->grab(QRect(0, line.top(), 26, line.height())).toImage();
  };
  ListBox& resting = *rig.page->ListCustom;
  const QImage box = topOfBox(resting, 6);
  ListBox notFitted(nullptr);
  notFitted.addRow(resting.text(6));
  notFitted.SetRowChecked(0, false);
  notFitted.setEnabled(false);
  notFitted.resize(resting.size());
  notFitted.show();
  EXPECT_NE(topOfBox(notFitted, 0), box) << "dashed";
}

// A settings file that would rename the microscope and change its first objective.
class ItemsFile : public testing::Test {
 protected:
  ItemsFile() {
    rig.k70().SystemName = "Other";
    rig.k70().curNosepiece.code(1, 9);
    rig.k70().WriteXML(path);
    rig.k70().SystemName = "Here";
    rig.k70().curNosepiece.code(1, 4);
  }
  PageRig& page() { return items.rig; }
  Lines Release(Qt::MouseButton button = Qt::LeftButton) {
    return items.After([&] { QTest::mouseClick(&items.Option(2), button); });
  }

  TempFolder folder;
  std::string path = folder.Path("clinic.xml");
  ItemsRig items{benches::Named("Harbour"), [](clsK70& k70) { k70.curType = 2; }};
  PageRig& rig = items.rig;
  const Lines allOn{"0 on", "1 on", "5 on", "6 on"};
};

TEST_F(ItemsFile, IsReadAndNeverChangesTheSystemName) {
  rig.prompts.ExpectFileToOpen(path);
  Lines events;
  {
    const WhenShown<SelFileItemDlg> person([](SelFileItemDlg& dialog) {
      EXPECT_GT(dialog.List1->rowCount(), 1) << "the sections of the file";
      dialog.OkButton->click();
    });
    events = Release();
  }
  EXPECT_EQ(rig.k70().SystemName, "Here");
  EXPECT_EQ(rig.k70().curNosepiece.code(1), 9);
  EXPECT_EQ(items.page->SetupMode(), 2);
  EXPECT_EQ(events.front(), "mode 2");
  EXPECT_EQ(Lines(events.begin() + 1, events.end()), allOn);
  const FileQuestion& asked = rig.prompts.FileQuestions().at(0);
  EXPECT_EQ(asked.flags, 6148);
  EXPECT_EQ(asked.filter, "XML File (*.xml)|*.xml");
}

TEST_F(ItemsFile, IsAskedForByTheKeyboard) {
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    items.page->SetupMode(1);
    items.Option(2).setFocus();
    rig.prompts.ExpectFileToOpen("");
    const Lines events = items.After([&] { QTest::keyClick(&items.Option(2), key); });
    EXPECT_EQ(events.front(), "mode 2");
    EXPECT_EQ(Lines(events.begin() + 1, events.end()), allOn);
    EXPECT_TRUE(rig.prompts.AllAnswersUsed());
    EXPECT_FALSE(items.Option(2).isDown()) << key;
  }
}

TEST_F(ItemsFile, IsNotAskedForAgainWhileAKeyIsHeld) {
  items.Option(2).setFocus();
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
  QApplication::sendEvent(&items.Option(2), &held);
  EXPECT_TRUE(rig.prompts.FileQuestions().empty());
}

TEST_F(ItemsFile, IsAskedForByAScreenReader) {
  rig.prompts.ExpectFileToOpen("");
  auto* option = QAccessible::queryAccessibleInterface(&items.Option(2));
  option->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  QApplication::processEvents();
  EXPECT_TRUE(rig.prompts.AllAnswersUsed());
}

TEST_F(ItemsFile, CancelledStillSwitchesAllOfferedStepsOn) {
  rig.prompts.ExpectFileToOpen("");
  const Lines events = Release();
  EXPECT_EQ(Lines(events.begin() + 1, events.end()), allOn);
  EXPECT_EQ(rig.k70().curNosepiece.code(1), 4);
  EXPECT_EQ(ItemsRig::Checked(*items.page->ListStandard), (Items{0, 1})) << "the checks stay";
}

TEST_F(ItemsFile, IsFollowedByTheChecksAgainOnceAnotherModeIsChosen) {
  rig.prompts.ExpectFileToOpen("");
  Release();
  for (const int mode : {0, 1}) {
    EXPECT_EQ(items.After([&] { QTest::mouseClick(&items.Option(mode), Qt::LeftButton); }),
              (Lines{"mode " + std::to_string(mode), "0 on", "1 on", "5 off", "6 off"}));
  }
}

TEST_F(ItemsFile, OfWhichNoSectionIsWantedIsNotRead) {
  rig.prompts.ExpectFileToOpen(path);
  const WhenShown<SelFileItemDlg> person(
      [](SelFileItemDlg& dialog) { dialog.CancelButton->click(); });
  Release();
  EXPECT_EQ(rig.k70().curNosepiece.code(1), 4);
  EXPECT_EQ(rig.k70().SystemName, "Here");
}

TEST_F(ItemsFile, ThatIsNoneIsToldAndSwitchesTheStepsOn) {
  rig.prompts.ExpectFileToOpen(folder.Write("bad.xml", "no xml"));
  rig.prompts.AcceptAnyBox();
  const WhenShown<SelFileItemDlg> person([](SelFileItemDlg& dialog) { dialog.OkButton->click(); });
  const Lines events = Release();
  EXPECT_FALSE(rig.prompts.Boxes().empty());
  EXPECT_EQ(Lines(events.begin() + 1, events.end()), allOn);
}

// A position beyond the switches ends the reading.
TEST_F(ItemsFile, ThatFailsInTheModelIsToldAndTheNameStays) {
  rig.prompts.ExpectFileToOpen(
      folder.Write("bad.xml",
                   "<Setup><SYSTEM><QHRMNAME NAME=\"From File\"/></SYSTEM>"
                   "<SWITCH><SWITCH POSITION=\"17\" FUNCTION=\"1\"/></SWITCH></Setup>"));
  rig.prompts.AcceptAnyBox();
  const WhenShown<SelFileItemDlg> person([](SelFileItemDlg& dialog) { dialog.OkButton->click(); });
  const Lines events = Release();
  ASSERT_EQ(rig.prompts.Boxes().size(), 1U);
  EXPECT_EQ(rig.prompts.Boxes()[0].style, 16);
  EXPECT_EQ(rig.k70().SystemName, "Here");
  EXPECT_EQ(Lines(events.begin() + 1, events.end()), allOn);
}

TEST_F(ItemsFile, IsAskedForAtEveryRelease) {
  for (int i = 0; i < 2; ++i) {
    rig.prompts.ExpectFileToOpen("");
    Release();
    EXPECT_TRUE(rig.prompts.AllAnswersUsed());
  }
}

TEST_F(ItemsFile, IsAskedForByEachButtonOfTheMouseAndSelectsTheOption) {
  rig.prompts.ExpectFileToOpen("");
  const Lines events = Release(Qt::RightButton);
  EXPECT_EQ(events.front(), "mode 2");
  EXPECT_EQ(items.page->SetupMode(), 2);
}

TEST_F(ItemsFile, IsNotAskedForWhenTheMouseIsLetGoBeside) {
  QTest::mousePress(&items.Option(2), Qt::LeftButton);
  QTest::mouseRelease(&items.Option(2), Qt::LeftButton, {}, QPoint(-9, -9));
  EXPECT_EQ(items.page->SetupMode(), 0);
  EXPECT_TRUE(rig.prompts.FileQuestions().empty());
}

}  // namespace
}  // namespace mortane::test
