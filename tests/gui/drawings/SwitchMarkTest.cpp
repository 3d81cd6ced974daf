// Marks of dials and switches as pictures.
#include "drawings/SwitchMark.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

#include "app/ApplyTheme.h"
#include "gui/support/FontScope.h"
#include "gui/support/Scanline.h"
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

struct MarkRow {
  MarkKind kind;
  const char* resting;
  const char* chosen;
  const char* disabled;
  const char* hovered;
};

// Along the middle of a mark without a text, and down through its line.
TEST(SwitchMark, EachStateHasItsColoursAndItsLine) {
  for (const MarkRow& row : {
           MarkRow{MarkKind::BodyDial,
                   "Rail 3, ~ 2, RailHover 4, ~ 1, RailText 1, ~ 1, RailHover 36, ~ 1, RailText 1, "
                   "~ 1, RailHover 4, ~ 2, Rail 3",
                   "Rail 3, ~ 2, Amber 4, ~ 1, OnAmber 1, ~ 1, Amber 36, ~ 1, OnAmber 1, ~ 1, "
                   "Amber 4, ~ 2, Rail 3",
                   "Rail 3, ~ 2, Rail 4, ~ 1, RailDisabled 1, ~ 1, Rail 36, ~ 1, RailDisabled 1, ~ "
                   "1, Rail 4, RailDisabled 2, Rail 3",
                   "Rail 3, ~ 2, RailSelected 4, ~ 1, RailText 1, ~ 1, RailSelected 36, ~ 1, "
                   "RailText 1, ~ 1, RailSelected 4, ~ 2, Rail 3"},
           MarkRow{MarkKind::BodySwitch, "Rail 3, ~ 2, RailHover 50, ~ 2, Rail 3",
                   "Rail 3, ~ 1, Amber 52, ~ 1, Rail 3", "Rail 3, ~ 2, Rail 50, ~ 2, Rail 3",
                   "Rail 3, ~ 2, RailSelected 50, ~ 2, Rail 3"},
           MarkRow{MarkKind::HandDial,
                   "Rail 3, ~ 2, Rail 1, ~ 5, Rail 38, ~ 5, Rail 1, ~ 2, Rail 3",
                   "Rail 3, ~ 2, Rail 1, ~ 5, Rail 38, ~ 5, Rail 1, ~ 2, Rail 3",
                   "Rail 3, ~ 2, Rail 1, ~ 5, Rail 38, ~ 5, Rail 1, RailDisabled 2, Rail 3",
                   "Rail 3, ~ 2, RailHover 1, ~ 5, RailHover 38, ~ 5, RailHover 1, ~ 2, Rail 3"},
           MarkRow{MarkKind::HandKey, "Rail 3, ~ 2, Rail 50, ~ 2, Rail 3",
                   "Rail 2, ~ 1, Amber 2, ~ 1, Rail 48, ~ 1, Amber 2, ~ 1, Rail 2",
                   "Rail 3, ~ 2, Rail 55", "Rail 3, ~ 2, RailHover 50, ~ 2, Rail 3"},
       }) {
    const SwitchMark mark{row.kind, {}};
    EXPECT_EQ(test::RowOf(Drawn(mark, {})), row.resting);
    EXPECT_EQ(test::RowOf(Drawn(mark, {.chosen = true})), row.chosen);
    EXPECT_EQ(test::RowOf(Drawn(mark, {.enabled = false})), row.disabled);
    EXPECT_EQ(test::RowOf(Drawn(mark, {.hovered = true})), row.hovered);
  }
}

TEST(SwitchMark, ADialOfTheHandControllerHasARingAndAnArrow) {
  QImage picture(108, 108, QImage::Format_ARGB32_Premultiplied);
  picture.fill(ToneColor(Tone::SwitchPlate));
  QPainter painter(&picture);
  DrawMark(painter, {MarkKind::HandDial, {}}, {4, 4, 100, 100}, {});
  painter.end();
  EXPECT_EQ(
      test::ColumnOf(picture),
      "Rail 3, ~ 2, Rail 4, ~ 8, Rail 8, ~ 1, RailText 1, ~ 1, Rail 63, ~ 8, Rail 4, ~ 2, Rail 3");
  EXPECT_EQ(test::RowOf(picture, 40),
            "Rail 5, ~ 2, Rail 11, ~ 2, Rail 7, ~ 2, RailText 3, ~ 3, Rail 38, ~ 3, RailText 3, ~ "
            "2, Rail 7, ~ 2, Rail 11, ~ 2, Rail 5");
}

struct IconRow {
  MarkKind kind;
  const char* resting;
  const char* selected;
};

TEST(SwitchMark, AnIconHasTheColoursOfItsRow) {
  for (const IconRow& row : {
           IconRow{MarkKind::BodyDial, "~ 3, OnAmber 1, ~ 1, DrawingFill 10, ~ 1, OnAmber 1, ~ 3",
                   "~ 3, OnAmber 1, ~ 1, Amber 10, ~ 1, OnAmber 1, ~ 3"},
           IconRow{MarkKind::BodySwitch, "~ 2, DrawingFill 16, ~ 2", "~ 2, Amber 16, ~ 2"},
           IconRow{MarkKind::HandDial,
                   "~ 2, Rail 3, ~ 2, RailText 1, ~ 1, Rail 2, ~ 1, RailText 1, ~ 2, Rail 3, ~ 2",
                   "~ 2, Rail 3, ~ 2, Amber 1, ~ 1, Rail 2, ~ 1, Amber 1, ~ 2, Rail 3, ~ 2"},
           IconRow{MarkKind::HandKey, "~ 1, Rail 18, ~ 1", "~ 1, Rail 18, ~ 1"},
       }) {
    const QIcon icon = MarkIcon({row.kind, {}});
    EXPECT_EQ(test::RowOf(icon.pixmap(QSize(20, 20), QIcon::Normal).toImage()), row.resting);
    EXPECT_EQ(test::RowOf(icon.pixmap(QSize(20, 20), QIcon::Selected).toImage()), row.selected);
  }
}

struct ShapeRow {
  MarkKind kind;
  double outside;
  const char* top;     // its first line
  const char* middle;  // its middle column
};

TEST(SwitchMark, AShapeIsWidenedOnAllSidesWithItsCorners) {
  for (const ShapeRow& row : {
           ShapeRow{MarkKind::BodyDial, 0, "none 60", "none 11, Amber 39, none 10"},
           ShapeRow{MarkKind::BodySwitch, 0, "none 13, Amber 34, none 13",
                    "none 10, Amber 40, none 10"},
           ShapeRow{MarkKind::HandKey, 0, "none 16, Amber 28, none 16",
                    "none 10, Amber 40, none 10"},
           ShapeRow{MarkKind::BodyDial, 4, "none 60", "none 7, Amber 47, none 6"},
           ShapeRow{MarkKind::BodySwitch, 4, "none 12, Amber 36, none 12",
                    "none 6, Amber 48, none 6"},
           ShapeRow{MarkKind::HandKey, 4, "none 16, Amber 28, none 16", "none 6, Amber 48, none 6"},
       }) {
    QImage picture(60, 60, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ToneColor(Tone::Amber));
    DrawMarkShape(painter, row.kind, {10, 10, 40, 40}, row.outside);
    painter.end();
    EXPECT_EQ(test::RowOf(picture, 10 - static_cast<int>(row.outside)), row.top) << row.outside;
    EXPECT_EQ(test::ColumnOf(picture), row.middle) << row.outside;
  }
}

TEST(SwitchMark, AnIconIsTwentyPixelsHighOrAsHighAsTheFont) {
  EXPECT_EQ(MarkIconSide(), qMax(20, QFontMetrics(QApplication::font()).height()));
  const FontScope small(FontOf(6));
  EXPECT_EQ(MarkIconSide(), 20);
  const FontScope large(FontOf(30));
  EXPECT_EQ(MarkIconSide(), QFontMetrics(QApplication::font()).height());
}

}  // namespace
}  // namespace mortane
