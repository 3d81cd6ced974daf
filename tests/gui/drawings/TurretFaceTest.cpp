// What a place of a turret looks like, where it stands and where it is hit.
#include "drawings/TurretButton.h"
#include "drawings/TurretDrawing.h"
#include "gui/support/Face.h"
#include "gui/support/PaintCount.h"
#include "gui/support/TestWindow.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

using test::Use;

struct PlaceFace {
  const char* what;
  PlaceKind kind;
  Use use;
  bool isFree;
  bool chosen;
  bool pending;
  test::Face face;
};

// A place 60 wide, with the room for its halo around it, and a label of one blank.
TEST(TurretFace, APlaceTellsItsState) {
  for (const PlaceFace& row : {
           PlaceFace{
               "objective",
               PlaceKind::Objectives,
               Use::Rest,
               false,
               false,
               false,
               {"Window 12, ~ 2, RingYellow 3, ~ 3, Base 40, ~ 3, RingYellow 3, ~ 2, Window 12",
                "Window 17, ~ 3, RingYellow 4, ~ 4, Base 24, ~ 4, RingYellow 4, ~ 3, Window 17"}},
           PlaceFace{
               "hovered",
               PlaceKind::Objectives,
               Use::Hovered,
               false,
               false,
               false,
               {"Window 12, ~ 2, RingYellow 3, ~ 3, Midlight 40, ~ 3, RingYellow 3, ~ 2, Window 12",
                "Window 17, ~ 3, RingYellow 4, ~ 4, Midlight 24, ~ 4, RingYellow 4, ~ 3, Window "
                "17"}},
           PlaceFace{"focused",
                     PlaceKind::Objectives,
                     Use::Focused,
                     false,
                     false,
                     false,
                     {"Window 3, ~ 1, Highlight 1, ~ 1, Window 6, ~ 2, RingYellow 3, ~ 3, Base 40, "
                      "~ 3, RingYellow 3, ~ 2, Window 6, ~ 1, Highlight 1, ~ 1, Window 3",
                      "Window 6, ~ 2, Highlight 1, ~ 1, Window 7, ~ 3, RingYellow 4, ~ 4, Base 24, "
                      "~ 4, RingYellow 4, ~ 3, Window 7, ~ 1, Highlight 1, ~ 2, Window 6"}},
           PlaceFace{"disabled",
                     PlaceKind::Objectives,
                     Use::Disabled,
                     false,
                     false,
                     false,
                     {"disabled Window 12, ~ 2, RingYellow 3, ~ 3, Base 40, ~ 3, RingYellow 3, ~ "
                      "2, disabled Window 12",
                      "disabled Window 17, ~ 3, RingYellow 4, ~ 4, Base 24, ~ 4, RingYellow 4, ~ "
                      "3, disabled Window 17"}},
           PlaceFace{"chosen",
                     PlaceKind::Objectives,
                     Use::Rest,
                     false,
                     true,
                     false,
                     {"Window 5, ~ 2, Amber 5, ~ 2, RingYellow 3, ~ 3, Base 40, ~ 3, RingYellow 3, "
                      "~ 2, Amber 5, ~ 2, Window 5",
                      "Window 9, ~ 2, Amber 6, ~ 3, RingYellow 4, ~ 4, Base 24, ~ 4, RingYellow 4, "
                      "~ 3, Amber 6, ~ 2, Window 9"}},
           PlaceFace{"free",
                     PlaceKind::Objectives,
                     Use::Rest,
                     true,
                     false,
                     false,
                     {"Window 10, ~ 3, DrawingShade 54, ~ 3, Window 10",
                      "Window 16, ~ 2, DrawingShade 44, ~ 3, Window 15"}},
           PlaceFace{"free and chosen",
                     PlaceKind::Objectives,
                     Use::Rest,
                     true,
                     true,
                     false,
                     {"Window 5, ~ 2, Amber 3, ~ 3, DrawingShade 54, ~ 3, Amber 3, ~ 2, Window 5",
                      "Window 9, ~ 2, Amber 5, ~ 2, DrawingShade 44, ~ 3, Amber 4, ~ 2, Window 9"}},
           PlaceFace{
               "not sent",
               PlaceKind::Objectives,
               Use::Rest,
               false,
               false,
               true,
               {"Window 12, ~ 2, RingYellow 3, ~ 3, Base 40, ~ 3, RingYellow 3, ~ 2, Window 12",
                "Window 13, ~ 3, Link 5, ~ 1, Base 1, ~ 5, Base 24, ~ 4, RingYellow 4, ~ 3, Window "
                "17"}},
           PlaceFace{"cube",
                     PlaceKind::Cubes,
                     Use::Rest,
                     false,
                     false,
                     false,
                     {"Window 9, ~ 2, Base 58, ~ 2, Window 9",
                      "Window 15, ~ 2, Base 46, ~ 2, Window 15"}},
           PlaceFace{"hovered",
                     PlaceKind::Cubes,
                     Use::Hovered,
                     false,
                     false,
                     false,
                     {"Window 9, ~ 2, Midlight 58, ~ 2, Window 9",
                      "Window 15, ~ 2, Midlight 46, ~ 2, Window 15"}},
           PlaceFace{"focused",
                     PlaceKind::Cubes,
                     Use::Focused,
                     false,
                     false,
                     false,
                     {"Window 2, ~ 1, Highlight 1, ~ 1, Window 4, ~ 2, Base 58, ~ 2, Window 4, ~ "
                      "1, Highlight 1, ~ 1, Window 2",
                      "Window 8, ~ 1, Highlight 1, ~ 1, Window 4, ~ 2, Base 46, ~ 2, Window 4, ~ "
                      "1, Highlight 1, ~ 1, Window 8"}},
           PlaceFace{"disabled",
                     PlaceKind::Cubes,
                     Use::Disabled,
                     false,
                     false,
                     false,
                     {"disabled Window 9, ~ 2, disabled Base 58, ~ 2, disabled Window 9",
                      "disabled Window 15, ~ 2, disabled Base 46, ~ 2, disabled Window 15"}},
           PlaceFace{"chosen",
                     PlaceKind::Cubes,
                     Use::Rest,
                     false,
                     true,
                     false,
                     {"Window 4, ~ 2, Amber 3, ~ 2, Base 58, ~ 2, Amber 3, ~ 2, Window 4",
                      "Window 10, ~ 2, Amber 3, ~ 2, Base 46, ~ 2, Amber 3, ~ 2, Window 10"}},
           PlaceFace{"free",
                     PlaceKind::Cubes,
                     Use::Rest,
                     true,
                     false,
                     false,
                     {"Window 9, ~ 2, DrawingShade 58, ~ 2, Window 9",
                      "Window 15, ~ 2, DrawingShade 46, ~ 2, Window 15"}},
           PlaceFace{"not sent",
                     PlaceKind::Cubes,
                     Use::Rest,
                     false,
                     false,
                     true,
                     {"Window 9, ~ 2, Base 58, ~ 2, Window 9",
                      "Window 15, ~ 2, Base 46, ~ 2, Window 15"}},
           PlaceFace{"condenser",
                     PlaceKind::Condensers,
                     Use::Rest,
                     false,
                     false,
                     false,
                     {"Window 9, ~ 2, Base 58, ~ 2, Window 9",
                      "Window 15, ~ 2, Base 46, ~ 2, Window 15"}},
       }) {
    TurretButton place(row.kind, 1, nullptr);
    place.SetPlaceSize(place.PlaceSizeFor(60));
    if (!row.isFree) place.SetItem({" ", "One", 10.0});
    place.setChecked(row.chosen);
    if (row.pending) place.SetPending("2x");
    const QImage picture = test::PictureOf(place, {80, 80}, row.use);
    EXPECT_EQ(test::RowOf(picture, 30), row.face.row) << row.what;
    const std::string column = test::ColumnOf(picture, 58);
    EXPECT_TRUE(test::SameButForEdges(column, row.face.column)) << row.what << "\n" << column;
  }
}

struct RingRow {
  PlaceKind kind;
  int count;
  QRect second;  // with its halo, at the scale of 1
};

TEST(TurretFace, PlacesAreAsLargeAsTheirNumberLetsThem) {
  for (const RingRow& row : {
           RingRow{PlaceKind::Objectives, 2, {98, 190, 84, 84}},
           RingRow{PlaceKind::Objectives, 6, {177, 52, 85, 84}},
           RingRow{PlaceKind::Objectives, 10, {164, 25, 69, 68}},
           RingRow{PlaceKind::Cubes, 2, {98, 196, 84, 72}},
           RingRow{PlaceKind::Cubes, 6, {177, 58, 85, 72}},
           RingRow{PlaceKind::Condensers, 10, {165, 30, 68, 57}},
       }) {
    TurretDrawing turret(row.kind);
    turret.SetItems(QVector<TurretItem>(row.count));
    turret.resize(280, 280);
    turret.show();
    EXPECT_EQ(turret.place(1)->geometry(), row.second) << row.count;
  }
  TurretDrawing single(PlaceKind::Objectives);
  single.SetItems(QVector<TurretItem>(1));
  single.resize(280, 280);
  single.show();
  EXPECT_EQ(single.place(0)->geometry(), QRect(98, 6, 84, 84));
}

TEST(TurretFace, WhatAPlaceShowsAnewIsPaintedAtOnce) {
  TestWindow window;
  auto* place = window.Add<TurretButton>(PlaceKind::Cubes, 1);
  place->setFixedSize(60, 60);
  window.Show();
  QApplication::processEvents();
  test::PaintCount paints(*place);
  const auto paintedBy = [&paints](auto act) {
    paints.count = 0;
    act();
    QApplication::processEvents();
    return paints.count > 0;
  };
  EXPECT_TRUE(paintedBy([&] { place->SetItem({"One", "One", {}}); }));
  EXPECT_TRUE(paintedBy([&] { place->SetPending("Two"); }));
  EXPECT_FALSE(paintedBy([&] { place->SetPending("Two"); }));
  EXPECT_TRUE(paintedBy([&] { place->SetPlaceSize({30, 24}); }));
  EXPECT_TRUE(paintedBy([&] { place->SetLabelFont(TitleFont()); }));
}

struct GlyphRow {
  PlaceKind kind;
  test::Face face;
};

// Through the middle of the small drawing in the lower half of a tile.
TEST(TurretFace, ATileHasASmallDrawingBelowItsName) {
  for (const GlyphRow& row : {
           GlyphRow{PlaceKind::Cubes,
                    {"Window 9, ~ 2, Base 11, ~ 1, IconAccent 2, ~ 1, Base 3, ~ 1, DrawingLine 1, "
                     "DrawingFill 5, ~ 2, IconAccent 2, ~ 2, DrawingFill 7, DrawingLine 1, ~ 1, "
                     "Base 3, ~ 1, DrawingLine 2, ~ 1, Base 11, ~ 2, Window 9",
                     "Window 15, ~ 2, Base 22, ~ 2, DrawingFill 5, ~ 2, IconAccent 2, ~ 2, "
                     "DrawingFill 6, ~ 2, Base 3, ~ 2, Window 15"}},
           GlyphRow{PlaceKind::Condensers,
                    {"Window 9, ~ 2, Base 24, ~ 2, DrawingLine 1, ~ 5, DrawingLine 1, ~ 2, Base "
                     "23, ~ 2, Window 9",
                     "Window 15, ~ 2, Base 21, ~ 1, DrawingLine 1, ~ 12, Base 2, ~ 1, IconAccent "
                     "3, ~ 1, DrawingLine 1, ~ 1, Base 2, ~ 2, Window 15"}},
       }) {
    TurretButton place(row.kind, 1, nullptr);
    place.SetPlaceSize(place.PlaceSizeFor(60));
    place.SetItem({" ", "One", {}});
    const QImage picture = test::PictureOf(place, {80, 80}, Use::Rest);
    EXPECT_EQ((test::Face{test::RowOf(picture, 50), test::ColumnOf(picture, 40)}), row.face);
  }
}

TEST(TurretFace, LabelsStandInTheMiddleOfARoundPlaceAndHighOnATile) {
  for (const auto& [kind, middle] : {std::pair{PlaceKind::Objectives, 40.0},
                                     {PlaceKind::Cubes, 16 + 0.3 * 48},
                                     {PlaceKind::Condensers, 16 + 0.3 * 48}}) {
    TurretButton place(kind, 1, nullptr);
    place.SetPlaceSize(place.PlaceSizeFor(60));
    place.SetItem({"HHH", "One", {}});
    const QImage picture = test::PictureOf(place, {80, 80}, Use::Rest);
    const QRectF text = test::AreaOf(picture, test::TellablePalette().color(QPalette::WindowText));
    EXPECT_NEAR(text.center().x(), 40, 1.5);
    EXPECT_NEAR(text.center().y(), middle, 2);
  }
}

TEST(TurretFace, APlaceThatIsNotThereIsNotFilled) {
  TurretDrawing turret(PlaceKind::Cubes);
  turret.SetItems(QVector<TurretItem>(10));
  const QString before = turret.accessibleDescription();
  for (const int none : {-1, 10, 11}) turret.SetItem(none, {"One", "One", {}});
  EXPECT_EQ(turret.accessibleDescription(), before);
}

// A press and release on a pixel within the place clicks it, one on a pixel without does not.
void ExpectHits(TurretButton& place, const std::vector<QPoint>& within,
                const std::vector<QPoint>& without) {
  place.show();
  QSignalSpy clicks(&place, &QAbstractButton::clicked);
  const auto expect = [&](const std::vector<QPoint>& pixels, int count) {
    for (const QPoint& pixel : pixels) {
      clicks.clear();
      QTest::mouseClick(&place, Qt::LeftButton, {}, pixel);
      EXPECT_EQ(clicks.size(), count) << pixel.x() << " " << pixel.y();
    }
  };
  expect(within, 1);
  expect(without, 0);
}

TEST(TurretFace, ARoundPlaceIsHitUpToItsEdge) {
  TurretButton place(PlaceKind::Objectives, 1, nullptr);
  place.resize(56, 56);
  place.SetPlaceSize({40, 40});
  ExpectHits(place, {{48, 28}, {8, 28}, {28, 8}, {28, 48}, {42, 42}},
             {{49, 28}, {7, 28}, {43, 43}, {13, 13}});
}

TEST(TurretFace, EachMagnificationHasItsRing) {
  const std::pair<double, Tone> rings[] = {
      {0.9, Tone::DrawingLine}, {1, Tone::RingBlack},     {2, Tone::RingGrey},
      {2.5, Tone::RingBrown},   {4, Tone::RingRed},       {5, Tone::RingRed},
      {10, Tone::RingYellow},   {20, Tone::RingGreen},    {40, Tone::RingBlue},
      {50, Tone::RingBlue},     {60, Tone::RingDarkBlue}, {99, Tone::DrawingLine},
      {100, Tone::RingWhite},   {250, Tone::RingWhite},
  };
  for (const auto& [magnification, tone] : rings)
    EXPECT_EQ(RingTone(magnification), tone) << magnification;
}

TEST(TurretFace, AnObjectiveWithoutAMagnificationHasARingInTheColourOfItsLine) {
  ASSERT_NE(ToneColor(Tone::DrawingLine), ToneColor(Tone::RingBlack));
  TurretButton place(PlaceKind::Objectives, 1, nullptr);
  place.SetPlaceSize({60, 60});
  place.SetItem({" ", "One", std::nullopt});
  EXPECT_EQ(test::RowOf(test::PictureOf(place, {80, 80}, Use::Rest)),
            "Window 10, ~ 1, DrawingLine 6, ~ 1, Base 44, ~ 1, DrawingLine 6, ~ 1, Window 10");
}

TEST(TurretFace, ATileIsHitUpToItsEdges) {
  TurretButton tile(PlaceKind::Cubes, 1, nullptr);
  tile.resize(56, 48);
  tile.SetPlaceSize({40, 32});
  ExpectHits(tile, {{28, 40}, {28, 8}, {48, 24}, {8, 24}}, {{28, 41}, {28, 7}, {49, 24}, {7, 24}});
}

}  // namespace
}  // namespace mortane
