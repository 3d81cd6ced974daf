#include "widgets/Icons.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>

#include "widgets/LateIcon.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

QImage Drawn(IconName name, const IconTint& tint, int size = 48) {
  return Icon(name, size, tint).toImage().convertToFormat(QImage::Format_ARGB32);
}

bool Contains(const QImage& image, const QColor& color) {
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) == color) return true;
  return false;
}

TEST(Icons, EveryIconIsDrawnInItsLineColourAndUnlikeTheOthers) {
  QList<QImage> seen;
  for (int i = 0; i < kIconCount; ++i) {
    const QImage image = Drawn(static_cast<IconName>(i), {Qt::red, Qt::green});
    EXPECT_TRUE(Contains(image, Qt::red)) << i;
    EXPECT_FALSE(seen.contains(image)) << i;
    seen.append(image);
  }
}

TEST(Icons, TheAccentIsOneColourOrTheLinesOwn) {
  EXPECT_TRUE(Contains(Drawn(IconName::Receive, {Qt::red, Qt::green}), Qt::green));
  const QImage plain = Drawn(IconName::Receive, {Qt::red, {}});
  EXPECT_FALSE(Contains(plain, Qt::blue));
  EXPECT_FALSE(Contains(plain, Qt::black));
}

TEST(Icons, AScaledScreenGetsAllItsPixels) {
  EXPECT_EQ(Icon(IconName::Save, 22, {Qt::black, {}}).width(), 22);
  const QPixmap icon = Icon(IconName::Save, 22, {Qt::black, {}}, 2);
  EXPECT_EQ(icon.width(), 44);
  EXPECT_EQ(icon.devicePixelRatio(), 2);
  EXPECT_EQ(Icon(IconName::Save, 22, {Qt::black, {}}).width(), 22) << "the first one again";
}

TEST(Icons, AreNotTakenForOthersThatDifferInOneThing) {
  const QImage first = Drawn(IconName::Receive, {Qt::red, Qt::green}, 24);
  EXPECT_NE(Drawn(IconName::Send, {Qt::red, Qt::green}, 24), first);
  EXPECT_NE(Drawn(IconName::Receive, {Qt::red, Qt::green}, 25), first);
  EXPECT_NE(Drawn(IconName::Receive, {Qt::blue, Qt::green}, 24), first);
  EXPECT_NE(Drawn(IconName::Receive, {Qt::red, Qt::blue}, 24), first);
  EXPECT_NE(Drawn(IconName::Receive, {Qt::red, {}}, 24), first);
  EXPECT_EQ(Drawn(IconName::Receive, {Qt::red, Qt::green}, 24), first);
}

TEST(Icons, ArePaintedAsTheirPicturesShowThem) {
  for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled, QIcon::Selected}) {
    QImage painted(60, 50, QImage::Format_ARGB32_Premultiplied);
    painted.fill(Qt::transparent);
    QPainter painter(&painted);
    Icon(IconName::Receive).paint(&painter, QRect(10, 5, 40, 40), Qt::AlignCenter, mode);
    painter.end();
    const QPixmap picture = Icon(IconName::Receive).pixmap(QSize(40, 40), 1, mode);
    EXPECT_EQ(painted.copy(10, 5, 40, 40), picture.toImage().convertToFormat(painted.format()));
  }
}

TEST(Icons, ADisabledIconStandsInTheDisabledTextColour) {
  const QColor disabled = QApplication::palette().color(QPalette::Disabled, QPalette::ButtonText);
  const QColor enabled = QApplication::palette().color(QPalette::ButtonText);
  const QIcon icon = Icon(IconName::Save);
  EXPECT_TRUE(Contains(icon.pixmap(QSize(48, 48), 1, QIcon::Disabled).toImage(), disabled));
  EXPECT_FALSE(Contains(icon.pixmap(QSize(48, 48), 1, QIcon::Disabled).toImage(), enabled));
  EXPECT_TRUE(Contains(icon.pixmap(QSize(48, 48), 1, QIcon::Normal).toImage(), enabled));
}

TEST(LateIcon, IsMadeOnceWhenItsPictureIsWanted) {
  int made = 0;
  const QIcon icon = LateIcon([&made] {
    ++made;
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
  });
  EXPECT_EQ(made, 0);
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(icon.pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::red));
    EXPECT_EQ(made, 1);
  }
}

TEST(Icons, AnIconOfAChosenRowIsLightWithAmber) {
  const QImage chosen = Icon(IconName::Receive).pixmap(QSize(48, 48), 1, QIcon::Selected).toImage();
  EXPECT_TRUE(Contains(chosen, QApplication::palette().color(QPalette::HighlightedText)));
  EXPECT_TRUE(Contains(chosen, ToneColor(Tone::Amber)));
}

TEST(Icons, StandInTheMiddleOfALargerPicture) {
  const QIcon icon = Icon(IconName::Save);
  const QImage square = icon.pixmap(QSize(40, 40), 1).toImage();
  EXPECT_EQ(icon.pixmap(QSize(60, 40), 1).toImage().copy(10, 0, 40, 40), square);
  EXPECT_EQ(icon.pixmap(QSize(40, 60), 1).toImage().copy(0, 10, 40, 40), square);
}

}  // namespace
}  // namespace mortane
