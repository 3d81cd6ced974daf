#include "interlocks/ToggleTile.h"

#include <QAccessible>
#include <QLabel>

#include "gui/support/TestWindow.h"
#include "widgets/CheckToggle.h"

namespace mortane {
namespace {

constexpr int kIconSize = 32;

class ToggleTileTest : public ::testing::TestWithParam<ToggleTile::Ground> {
 protected:
  void SetUp() override {
    tile = window.Add<ToggleTile>(IconName::Lamp, "Lamp", GetParam());
    window.Show();
  }

  // Whether the picture has any colour but grey, as the accent of the icon and a switch on have.
  static bool IsColoured(const QImage& picture) {
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixelColor(x, y).hsvSaturation() > 150) return true;
      }
    }
    return false;
  }
  QRect IconArea() {
    const int right = tile->label()->geometry().left();
    return {right - 2 * kIconSize, (tile->height() - kIconSize) / 2, 2 * kIconSize, kIconSize};
  }
  QImage Picture() { return tile->grab().toImage().convertToFormat(QImage::Format_RGB32); }

  TestWindow window;
  ToggleTile* tile = nullptr;
};

TEST_P(ToggleTileTest, TheLabelIsTheNameOfTheSwitchAndLeadsToIt) {
  EXPECT_EQ(tile->label()->text(), "Lamp");
  EXPECT_EQ(tile->label()->buddy(), tile->toggle());
  QAccessibleInterface* told = QAccessible::queryAccessibleInterface(tile->toggle());
  EXPECT_EQ(told->text(QAccessible::Name), "Lamp");
  EXPECT_EQ(told->role(), QAccessible::CheckBox);
  EXPECT_FALSE(told->state().checked);
  tile->toggle()->setChecked(true);
  EXPECT_TRUE(told->state().checked);
}

TEST_P(ToggleTileTest, TheIconGrowsWithTheTileAndWhatTheTileAsksForDoesNot) {
  const QSize asked = tile->sizeHint();
  const QSize least = tile->minimumSizeHint();
  const int right = tile->label()->x();
  tile->setFixedSize(least.width() + 100, 3 * asked.height());
  QApplication::processEvents();
  EXPECT_EQ(tile->label()->x(), right + 48) << "2.5 times 32";
  EXPECT_EQ(tile->sizeHint(), asked);
  EXPECT_EQ(tile->minimumSizeHint(), least);
  tile->setFixedSize(least.width() + 20, 3 * asked.height());
  QApplication::processEvents();
  EXPECT_EQ(tile->label()->x(), right + 20) << "the texts keep their room";
  EXPECT_GE(tile->label()->width(), tile->label()->minimumSizeHint().width());
}

TEST_P(ToggleTileTest, TheSwitchStandsUnderTheFirstLetterOfItsLabel) {
  const QRect label = tile->label()->geometry();
  const QRect toggle = tile->toggle()->geometry();
  EXPECT_EQ(toggle.top(), label.bottom() + 1 + 4);
  EXPECT_EQ(toggle.left(), label.left());
  EXPECT_EQ(tile->label()->contentsMargins(), QMargins(CheckToggle::kPadding, 0, 0, 0));
  EXPECT_LE(std::abs((label.top() + toggle.bottom()) - tile->height()), 2) << "in the middle";
}

TEST_P(ToggleTileTest, TheIconStandsBesideTheTextsInTheMiddle) {
  EXPECT_TRUE(IsColoured(Picture().copy(IconArea())));
  QRegion beside(0, 0, tile->width(), IconArea().top());
  for (const QRect& part : beside) EXPECT_FALSE(IsColoured(Picture().copy(part)));
  EXPECT_GE(tile->label()->geometry().left(), kIconSize);
}

TEST_P(ToggleTileTest, ClickAndSpaceWorkTheSwitch) {
  QSignalSpy changes(tile->toggle(), &CheckToggle::toggled);
  QTest::mouseClick(tile->toggle(), Qt::LeftButton);
  EXPECT_TRUE(tile->toggle()->isChecked());
  EXPECT_TRUE(tile->toggle()->hasFocus());
  QTest::keyClick(tile->toggle(), Qt::Key_Space);
  EXPECT_FALSE(tile->toggle()->isChecked());
  QTest::keyClick(tile->toggle(), Qt::Key_Return);
  QTest::mouseClick(tile->toggle(), Qt::RightButton);
  QTest::mouseClick(tile, Qt::LeftButton, {}, QPoint(2, 2));
  TurnWheel(tile->toggle());
  EXPECT_EQ(changes.count(), 2);
}

TEST_P(ToggleTileTest, DisabledItTakesNothingKeepsItsSideAndLosesAllColour) {
  tile->toggle()->setChecked(true);
  EXPECT_TRUE(IsColoured(Picture()));
  tile->setEnabled(false);
  QTest::mouseClick(tile->toggle(), Qt::LeftButton);
  EXPECT_FALSE(tile->label()->isEnabled());
  EXPECT_FALSE(tile->toggle()->isEnabled());
  EXPECT_TRUE(tile->toggle()->isChecked());
  EXPECT_FALSE(IsColoured(Picture()));
}

TEST_P(ToggleTileTest, InAWindowThatIsBusyItStaysFitted) {
  tile->toggle()->setChecked(true);
  window.widget().setEnabled(false);
  EXPECT_TRUE(IsColoured(Picture().copy(IconArea())));
  EXPECT_TRUE(IsColoured(Picture().copy(tile->toggle()->geometry())));
}

TEST_P(ToggleTileTest, HiddenAndShownWithItsPartsEachByItself) {
  tile->SetShown(false);
  for (const QWidget* part : {static_cast<QWidget*>(tile), static_cast<QWidget*>(tile->label()),
                              static_cast<QWidget*>(tile->toggle())}) {
    EXPECT_TRUE(part->isHidden());
  }
  tile->SetShown(true);
  for (const QWidget* part : {static_cast<QWidget*>(tile), static_cast<QWidget*>(tile->label()),
                              static_cast<QWidget*>(tile->toggle())}) {
    EXPECT_TRUE(part->isVisible());
  }
}

INSTANTIATE_TEST_SUITE_P(Grounds, ToggleTileTest,
                         testing::Values(ToggleTile::Ground::Card, ToggleTile::Ground::InnerFrame));

QColor CornerOf(ToggleTile& tile) {
  return tile.grab().toImage().pixelColor(tile.width() - 8, tile.height() / 2);
}

TEST(SwitchTileGrounds, ATileOnACardHasAFrameOfItsOwnThatIsFilledWhenFitted) {
  QWidget panel;
  ToggleTile onCard(IconName::Zoom, "Zoom", ToggleTile::Ground::Card, &panel);
  ToggleTile inFrame(IconName::Zoom, "Zoom", ToggleTile::Ground::InnerFrame, &panel);
  for (ToggleTile* tile : {&onCard, &inFrame}) tile->resize(tile->sizeHint());
  const QColor frame = onCard.palette().color(QPalette::AlternateBase);
  EXPECT_EQ(CornerOf(onCard), frame);
  EXPECT_NE(CornerOf(inFrame), frame);
  onCard.setEnabled(false);
  EXPECT_NE(CornerOf(onCard), frame);
}

TEST(SwitchTileGrounds, OnACardTilesAreHigherAndWider) {
  const ToggleTile onCard(IconName::Zoom, "Zoom", ToggleTile::Ground::Card);
  const ToggleTile inFrame(IconName::Zoom, "Zoom", ToggleTile::Ground::InnerFrame);
  EXPECT_EQ(onCard.sizeHint().height(), 96);
  EXPECT_EQ(inFrame.sizeHint().height(), 76);
  EXPECT_EQ(onCard.sizeHint().width(), inFrame.sizeHint().width() + 20 + 4 + 20);
  EXPECT_EQ(onCard.minimumSizeHint().height(), inFrame.minimumSizeHint().height() + 2 * 6);
}

TEST(SwitchTileGrounds, ATileGrowsWithItsFontAndItsCaption) {
  const QFont usual = QApplication::font();
  QFont large = usual;
  large.setPointSize(usual.pointSize() * 4);
  const QString caption = "A caption that is wider than a switch";
  const ToggleTile before(IconName::Zoom, caption, ToggleTile::Ground::InnerFrame);
  QApplication::setFont(large);
  const ToggleTile tile(IconName::Zoom, caption, ToggleTile::Ground::InnerFrame);
  EXPECT_GT(tile.sizeHint().height(), 76);
  EXPECT_GT(tile.minimumSizeHint().width(), QFontMetrics(large).horizontalAdvance(caption));
  EXPECT_GT(tile.minimumSizeHint().width(), before.minimumSizeHint().width());
  QApplication::setFont(usual);
}

}  // namespace
}  // namespace mortane
