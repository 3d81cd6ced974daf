// The window on small screens: everything that is worked with stays in sight or can be scrolled to.
#include <gtest/gtest.h>

#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>

#include "AppRig.h"
#include "widgets/CommandKey.h"
#include "widgets/PageButton.h"

namespace mortane::test {
namespace {

struct OpeningRow {
  QSize available;
  QSize opening;
};

TEST(OpeningSize, IsTheDesignOrNineTenthsOfTheScreenWhicheverIsLess) {
  for (const OpeningRow& row :
       {OpeningRow{{2560, 1440}, {1152, 740}}, OpeningRow{{1280, 823}, {1152, 740}},
        OpeningRow{{1280, 800}, {1152, 720}}, OpeningRow{{1024, 900}, {922, 740}},
        OpeningRow{{960, 540}, {864, 486}}, OpeningRow{{800, 600}, {720, 540}}}) {
    EXPECT_EQ(OpeningSize(row.available), row.opening) << row.available.width();
  }
}

TEST(OpeningSize, IsTheWindowsOnTheScreenThatItOpensOn) {
  AppRig rig(benches::Named("Harbour"));
  rig.Start();
  EXPECT_EQ(rig.form->size(), OpeningSize(rig.form->screen()->availableSize()));
}

// A window of 200 % on 1920 x 1080 has 960 x 540 and opens with nine tenths of it.
class SmallWindow : public testing::TestWithParam<QSize> {
 protected:
  SmallWindow() {
    rig.Start();
    rig.form->resize(GetParam());
    QApplication::processEvents();
  }
  // Whether all of the widget lies within the window and nothing cuts it.
  bool IsInSight(QWidget& widget) const {
    return widget.visibleRegion() == QRegion(widget.rect()) &&
           rig.form->rect().contains(
               QRect(widget.mapTo(rig.form.get(), QPoint(0, 0)), widget.size()));
  }

  AppRig rig{benches::Named("Harbour")};
};

TEST_P(SmallWindow, GoesDownToThatSize) {
  EXPECT_EQ(rig.form->size(), GetParam());
}

TEST_P(SmallWindow, KeepsCommandKeysAndPageButtonsInSight) {
  for (CommandKey* key : rig.form->ImageCommand) {
    EXPECT_TRUE(IsInSight(*key)) << key->text().toStdString();
    EXPECT_GE(key->width(), key->sizeHint().width());
    EXPECT_GE(key->height(), key->sizeHint().height());
  }
  int end = 0;
  for (PageButton* button : rig.form->ImageButton) {
    EXPECT_TRUE(IsInSight(*button)) << button->text().toStdString();
    EXPECT_GE(button->height(), button->minimumSizeHint().height());
    EXPECT_GT(button->y(), end);
    end = button->geometry().bottom();
  }
}

TEST_P(SmallWindow, ScrollsPagesAndSqueezesNone) {
  auto* scroll = rig.form->findChild<QScrollArea*>("ScrollControl");
  ASSERT_NE(scroll, nullptr);
  for (std::size_t i = 0; i < kPageCount; ++i) {
    if (!rig.form->ImageButton[i]->isEnabled()) continue;
    rig.form->optMenu[i]->setChecked(true);
    QApplication::processEvents();
    const QSize page = rig.form->FrameControl->size();
    const QSize least = rig.form->FrameControl->minimumSizeHint();
    const QSize shown = scroll->viewport()->size();
    EXPECT_GE(page.width(), least.width()) << i;
    EXPECT_GE(page.height(), least.height()) << i;
    EXPECT_EQ(scroll->horizontalScrollBar()->maximum(), page.width() - shown.width()) << i;
    EXPECT_EQ(scroll->verticalScrollBar()->maximum(), page.height() - shown.height()) << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, SmallWindow,
                         testing::Values(QSize(864, 486), QSize(720, 540), QSize(800, 500)));

TEST(PageScroll, BeginsAtTheTopOfEachPage) {
  AppRig rig(benches::Named("Harbour"));
  rig.Start();
  auto* scroll = rig.form->findChild<QScrollArea*>("ScrollControl");
  ASSERT_NE(scroll, nullptr);
  rig.form->FrameControl->setMinimumSize(2000, 2000);
  QApplication::processEvents();
  scroll->verticalScrollBar()->setValue(100);
  scroll->horizontalScrollBar()->setValue(100);
  rig.form->optMenu[1]->setChecked(true);
  EXPECT_EQ(scroll->verticalScrollBar()->value(), 0);
  EXPECT_EQ(scroll->horizontalScrollBar()->value(), 0);
}

}  // namespace
}  // namespace mortane::test
