// Marks of dials and switches as pictures.
#include "drawings/SwitchMark.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <array>

#include "app/ApplyTheme.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr std::array kKinds{MarkKind::BodyDial, MarkKind::BodySwitch, MarkKind::HandDial,
                            MarkKind::HandKey};
constexpr QRectF kArea{4, 4, 52, 52};

QImage Drawn(const SwitchMark& mark, const MarkState& state) {
  QImage picture(60, 60, QImage::Format_ARGB32_Premultiplied);
  picture.fill(ToneColor(Tone::SwitchPlate));
  QPainter painter(&picture);
  DrawMark(painter, mark, kArea, state);
  return picture;
}

bool Shows(const QImage& picture, const QColor& color) {
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      if (picture.pixelColor(x, y) == color) return true;
  return false;
}

TEST(SwitchMark, EveryStateOfEveryKindLooksDifferent) {
  for (const MarkKind kind : kKinds) {
    const SwitchMark mark{kind, "1"};
    const std::array pictures{Drawn(mark, {}), Drawn(mark, {.chosen = true}),
                              Drawn(mark, {.enabled = false}), Drawn(mark, {.hovered = true})};
    for (std::size_t i = 0; i < pictures.size(); ++i)
      for (std::size_t k = 0; k < i; ++k) EXPECT_NE(pictures[i], pictures[k]) << i << k;
  }
}

TEST(SwitchMark, KindsAndTextsAreToldApart) {
  for (const MarkKind kind : kKinds) {
    EXPECT_NE(Drawn({kind, "1"}, {}), Drawn({kind, "2"}, {}));
    for (const MarkKind other : kKinds) {
      if (other != kind) {
        EXPECT_NE(Drawn({kind, "1"}, {}), Drawn({other, "1"}, {}));
      }
    }
  }
}

TEST(SwitchMark, TheChosenOneIsAmberAndOthersAreNot) {
  for (const MarkKind kind : kKinds) {
    const SwitchMark mark{kind, "1"};
    EXPECT_TRUE(Shows(Drawn(mark, {.chosen = true}), ToneColor(Tone::Amber)));
    EXPECT_FALSE(Shows(Drawn(mark, {}), ToneColor(Tone::Amber)));
    EXPECT_FALSE(Shows(Drawn(mark, {.chosen = true, .enabled = false}), ToneColor(Tone::Amber)));
  }
}

// The hand controller's keys keep the ground of its face; those of the body are filled.
TEST(SwitchMark, OnlyTheBodysAreFilledWhenTheyAreChosen) {
  for (const MarkKind kind : kKinds) {
    const bool filled = kind == MarkKind::BodyDial || kind == MarkKind::BodySwitch;
    const QColor ground = Drawn({kind, "1"}, {.chosen = true}).pixelColor(30, 48);
    EXPECT_EQ(ground, ToneColor(filled ? Tone::Amber : Tone::SwitchPlate));
  }
}

TEST(SwitchMark, ThePlateHasOneColourInBothSchemes) {
  ApplyTheme(*qApp, Scheme::Dark);
  EXPECT_EQ(ToneColor(Tone::SwitchPlate), QColor(16, 24, 56));
  ApplyTheme(*qApp, Scheme::Light);
  EXPECT_EQ(ToneColor(Tone::SwitchPlate), QColor(16, 24, 56));
}

TEST(SwitchMark, IsAnIconForARow) {
  for (const MarkKind kind : kKinds) {
    const QIcon icon = MarkIcon({kind, "1"});
    const QSize size(kMarkIconSide, kMarkIconSide);
    const QImage resting = icon.pixmap(size, QIcon::Normal).toImage();
    const QImage chosen = icon.pixmap(size, QIcon::Selected).toImage();
    EXPECT_NE(chosen, resting);
    EXPECT_TRUE(Shows(chosen, ToneColor(Tone::Amber)));
    EXPECT_EQ(QIcon(icon).pixmap(size).toImage(), resting);
    EXPECT_EQ(resting.pixelColor(0, 0).alpha(), 0);
  }
  EXPECT_NE(MarkIcon({MarkKind::BodyDial, "1"}).pixmap(20, 20).toImage(),
            MarkIcon({MarkKind::BodySwitch, "1"}).pixmap(20, 20).toImage());
}

}  // namespace
}  // namespace mortane
