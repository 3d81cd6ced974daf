// Marks of dials and switches as pictures.
#include "drawings/SwitchMark.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

#include "app/ApplyTheme.h"
#include "gui/support/FontScope.h"
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

// How far from the middle the text of a mark reaches, in pixels.
double ReachOfText(MarkKind kind, const QString& text, double side) {
  const auto drawn = [&](const QString& shown) {
    QImage picture(QSize(1, 1) * (static_cast<int>(side) + 8), QImage::Format_ARGB32_Premultiplied);
    picture.fill(ToneColor(Tone::SwitchPlate));
    QPainter painter(&picture);
    DrawMark(painter, {kind, shown}, {4, 4, side, side}, {});
    return picture;
  };
  const QImage without = drawn({});
  const QImage with = drawn(text);
  double reach = 0;
  for (int y = 0; y < with.height(); ++y) {
    for (int x = 0; x < with.width(); ++x) {
      if (with.pixel(x, y) == without.pixel(x, y)) continue;
      reach = std::max(reach, std::abs(x + 0.5 - with.width() / 2.0) + 0.5);
    }
  }
  return reach;
}

struct TextRow {
  MarkKind kind;
  const char* text;
  double side;       // at the scale of 1
  double clearance;  // share of half the side that the text may take
};

constexpr std::array kTexts{
    TextRow{MarkKind::BodyDial, "4", 25, 0.6}, TextRow{MarkKind::BodySwitch, "6", 23, 1},
    TextRow{MarkKind::HandDial, "CW/CCW", 100, 0.76}, TextRow{MarkKind::HandKey, "R", 44, 1}};

// Neither into the chevrons of a dial nor over its ring.
TEST(SwitchMark, TextsStayWithinTheirMarksInEveryFontAndScale) {
  for (const double points : {9.0, 10.0, 12.0, 14.0, 16.0, 18.0}) {
    const FontScope font(FontOf(points));
    for (const TextRow& row : kTexts) {
      for (const double scale : {0.8, 1.0, 1.5, 2.5}) {
        const double reach = ReachOfText(row.kind, row.text, row.side * scale);
        EXPECT_GT(reach, 2) << row.text;
        EXPECT_LE(reach, row.side * scale / 2 * row.clearance)
            << points << " " << row.text << " " << scale;
      }
    }
  }
}

TEST(SwitchMark, TextsGrowWithLargeMarksAndAskForRoomInLargeFonts) {
  for (const TextRow& row : kTexts) {
    const double usual = ReachOfText(row.kind, row.text, row.side);
    EXPECT_GE(ReachOfText(row.kind, row.text, row.side * 2.5), usual * 1.5) << row.text;
    const SwitchMark mark{row.kind, row.text};
    const QSizeF size(row.side, row.side);
    const double least = LeastMarkScale(mark, size);
    EXPECT_LT(least, 0.9) << row.text;
    const FontScope larger(FontOf(QApplication::font().pointSizeF() * 2));
    EXPECT_GT(LeastMarkScale(mark, size), least * 1.5) << row.text;
  }
}

TEST(SwitchMark, IsAnIconForARow) {
  for (const MarkKind kind : kKinds) {
    const QIcon icon = MarkIcon({kind, "1"});
    const QSize size(MarkIconSide(), MarkIconSide());
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
