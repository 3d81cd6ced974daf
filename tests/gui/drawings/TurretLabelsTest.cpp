// What stands on the places of a turret, and how large the drawing must be for it.
#include "drawings/TurretButton.h"
#include "drawings/TurretDrawing.h"
#include "gui/support/FontScope.h"
#include "gui/support/TestWindow.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

QVector<TurretItem> Labels(const QStringList& labels) {
  QVector<TurretItem> items;
  for (const QString& label : labels) items.append({label, label, {}});
  return items;
}

void Resize(TurretDrawing& turret, int height) {
  turret.show();
  turret.resize(height, height);
}

const TurretButton& PlaceOf(const TurretDrawing& turret, int index) {
  return *qobject_cast<const TurretButton*>(turret.place(index));
}

TEST(TurretLabels, ADrawingGrowsWithTheFontSoThatLabelsKeepClearOfTheirRings) {
  TurretDrawing usual(PlaceKind::Objectives);
  usual.SetItems(Labels({"2x", "100x", "40x", "4x", "10x", "60x"}));
  const FontScope larger(FontOf(QApplication::font().pointSizeF() * 2));
  TurretDrawing large(PlaceKind::Objectives);
  large.SetItems(Labels({"2x", "100x", "40x", "4x", "10x", "60x"}));
  EXPECT_GT(large.minimumSizeHint().height(), usual.minimumSizeHint().height());
  EXPECT_EQ(large.minimumSizeHint().height(), large.minimumSizeHint().width());
  EXPECT_GE(large.sizeHint().height(), large.minimumSizeHint().height());
  Resize(large, large.minimumSizeHint().height());
  for (int i = 0; i < 6; ++i) {
    const double place = large.place(i)->width() - 2 * TurretButton::HaloRoom();
    EXPECT_LE(PlaceOf(large, i).LeastPlaceWidth(), place + 2) << i;
  }
}

TEST(TurretLabels, WithTheUsualFontTheLeastScaleIsFourFifths) {
  for (const PlaceKind kind : {PlaceKind::Objectives, PlaceKind::Cubes, PlaceKind::Condensers}) {
    TurretDrawing turret(kind);
    turret.SetItems(Labels({"", "1x", ""}));
    EXPECT_EQ(turret.minimumSizeHint(), QSize(224, 224));
  }
}

TEST(TurretLabels, NoFontMakesADrawingLargerThanItsLargestScale) {
  const FontScope huge(FontOf(60));
  TurretDrawing turret(PlaceKind::Objectives);
  turret.SetItems(Labels({"100x", "100x", "100x"}));
  EXPECT_EQ(turret.minimumSizeHint(), QSize(420, 420));
}

TEST(TurretLabels, AnotherLabelOrFontChangesTheLeastScale) {
  TurretDrawing turret(PlaceKind::Objectives);
  turret.SetItems(Labels({"1x", "", "", "", "", "", "", "", "", ""}));
  const int before = turret.minimumSizeHint().height();
  turret.SetItem(1, {"100000x", "", {}});
  const int after = turret.minimumSizeHint().height();
  EXPECT_GT(after, before);
  const FontScope larger(FontOf(QApplication::font().pointSizeF() * 1.4));
  QEvent changed(QEvent::FontChange);
  QApplication::sendEvent(&turret, &changed);
  EXPECT_GT(turret.minimumSizeHint().height(), after);
}

TEST(TurretLabels, ATileAsksForAPartOfItsNameOnly) {
  TurretButton shortName(PlaceKind::Cubes, 1, nullptr);
  shortName.SetItem({"GFP", "GFP", {}});
  TurretButton longName(PlaceKind::Cubes, 1, nullptr);
  longName.SetItem({"Analyzer block", "Analyzer block", {}});
  TurretButton longerName(PlaceKind::Cubes, 1, nullptr);
  longerName.SetItem({"Analyzer block of the second", "", {}});
  EXPECT_LT(shortName.LeastPlaceWidth(), longName.LeastPlaceWidth());
  EXPECT_EQ(longName.LeastPlaceWidth(), longerName.LeastPlaceWidth());
  TurretButton freePlace(PlaceKind::Cubes, 1, nullptr);
  freePlace.SetItem({});
  EXPECT_EQ(freePlace.LeastPlaceWidth(), 0);
}

TEST(TurretLabels, HaveFourPixelsBesideThem) {
  const QFontMetricsF metrics(MarkFont());
  TurretButton tile(PlaceKind::Cubes, 1, nullptr);
  tile.SetItem({"GFP", "GFP", {}});
  EXPECT_EQ(tile.LeastPlaceWidth(), metrics.horizontalAdvance("GFP") + 8);
  tile.SetItem({"Analyzer block", "", {}});
  EXPECT_EQ(tile.LeastPlaceWidth(), 8 * metrics.averageCharWidth() + 8);
  for (const double less : {0.0, 0.5}) {
    tile.SetPlaceSize({metrics.horizontalAdvance("Analyzer block") + 8 - less, 40});
    EXPECT_EQ(tile.HasRoomForLabel(MarkFont()), less == 0);
  }
  TurretButton round(PlaceKind::Objectives, 1, nullptr);
  round.SetItem({"10x", "10x", {}});
  const double diagonal = std::hypot(metrics.horizontalAdvance("10x"), metrics.capHeight());
  EXPECT_EQ(round.LeastPlaceWidth(), diagonal + 8 + 2 * (1.5 + 5)) << "and the ring around them";
}

TEST(TurretLabels, ADrawingTellsWhatStandsOnItsPlaces) {
  TurretDrawing turret(PlaceKind::Cubes);
  turret.SetItems(Labels({"GFP", "", "DAPI"}));
  EXPECT_EQ(turret.accessibleDescription(), "Address 1, GFP; Address 2, ----; Address 3, DAPI");
  turret.SetItem(1, {"TRITC", "TRITC", {}});
  EXPECT_EQ(turret.accessibleDescription(), "Address 1, GFP; Address 2, TRITC; Address 3, DAPI");
}

TEST(TurretLabels, AllLabelsOfATurretAreOfOneSize) {
  TurretDrawing turret(PlaceKind::Cubes);
  turret.SetItems(Labels({"GFP", "DAPI"}));
  Resize(turret, 280);
  const QImage before = turret.place(0)->grab().toImage();
  turret.SetItem(1, {"Analyzer of the other side", "", {}});
  EXPECT_NE(turret.place(0)->grab().toImage(), before) << "smaller, as its neighbour needs it";
  turret.SetItem(1, {"DAPI", "DAPI", {}});
  EXPECT_EQ(turret.place(0)->grab().toImage(), before);
}

TEST(TurretLabels, GrowWithALargeDrawing) {
  const auto darkHeight = [](int side) {
    TurretDrawing turret(PlaceKind::Objectives);
    turret.SetItems(Labels({"4x", "2x"}));
    Resize(turret, side);
    const QImage place = turret.place(0)->grab().toImage();
    const QColor text = turret.palette().color(QPalette::WindowText);
    const int middle = place.width() / 2;
    int dark = 0;
    for (int y = 0; y < place.height(); ++y) {
      bool found = false;
      for (int x = middle - 15; x < middle + 15; ++x)
        found = found || place.pixelColor(x, y) == text;
      dark += found ? 1 : 0;
    }
    return dark;
  };
  const int usual = darkHeight(350);
  EXPECT_GT(usual, 0);
  EXPECT_GE(darkHeight(600), usual * 5 / 4);
}

TEST(TurretLabels, TilesOfCubesAndOfCondensersLookDifferent) {
  TurretDrawing cubes(PlaceKind::Cubes);
  TurretDrawing condensers(PlaceKind::Condensers);
  for (TurretDrawing* turret : {&cubes, &condensers}) {
    turret->SetItems(Labels({"One", ""}));
    Resize(*turret, 280);
  }
  EXPECT_NE(cubes.place(0)->grab().toImage(), condensers.place(0)->grab().toImage());
  EXPECT_EQ(cubes.place(1)->grab().toImage(), condensers.place(1)->grab().toImage())
      << "free places are alike";
}

TEST(TurretLabels, TilesAreLowerThanWideAndRoundPlacesAreNot) {
  for (const auto& [kind, share] : {std::pair{PlaceKind::Objectives, 1.0},
                                    {PlaceKind::Cubes, 0.8},
                                    {PlaceKind::Condensers, 0.8}}) {
    TurretButton place(kind, 1, nullptr);
    EXPECT_EQ(place.PlaceSizeFor(100), QSizeF(100, 100 * share));
  }
}

TEST(TurretLabels, APlaceBearsItsOwnAddressWhereOneIsGiven) {
  TurretDrawing turret(PlaceKind::Condensers);
  QVector<TurretItem> items = Labels({"One", "Four", ""});
  items[1].address = 4;
  items[2].address = 7;
  turret.SetItems(items);
  EXPECT_EQ(turret.place(0)->accessibleName(), "Address 1, One");
  EXPECT_EQ(turret.place(1)->accessibleName(), "Address 4, Four");
  EXPECT_EQ(turret.place(2)->accessibleName(), "Address 7, ----");
  EXPECT_EQ(turret.count(), 3);
  EXPECT_EQ(turret.placeOf(7), 2);
  turret.SetItems(Labels({"One", "Two"}));
  EXPECT_EQ(turret.placeOf(2), 1);
  for (const int none : {0, 3, 4, 7}) EXPECT_EQ(turret.placeOf(none), -1) << none;
}

TEST(TurretLabels, NumbersFollowTheAddresses) {
  TurretDrawing turret(PlaceKind::Condensers);
  QVector<TurretItem> items = Labels({"One", "Two", ""});
  turret.SetItems(items);
  Resize(turret, 280);
  const QImage before = turret.grab().toImage();
  items[1].address = 4;
  turret.SetItems(items);
  EXPECT_NE(turret.grab().toImage(), before);
}

TEST(TurretLabels, NumbersKeepClearOfTheirPlaces) {
  for (const PlaceKind kind : {PlaceKind::Objectives, PlaceKind::Cubes, PlaceKind::Condensers}) {
    for (int count = 2; count <= 10; ++count) {
      TurretDrawing turret(kind);
      turret.SetItems(QVector<TurretItem>(count));
      for (const int height : {224, 280, 420}) {
        Resize(turret, height);
        const QPointF centre(turret.width() / 2.0, 140 * turret.drawingScale());
        for (int i = 0; i < count; ++i) {
          const QPointF place = QRectF(turret.place(i)->geometry()).center();
          const QPointF inwards = centre - place;
          const double length = std::hypot(inwards.x(), inwards.y());
          const double reach = PlaceOf(turret, i).ReachTowards(inwards / length);
          EXPECT_LT(reach, length) << count;
        }
      }
    }
  }
}

TEST(TurretLabels, NoTileReachesIntoTheHaloOfAnother) {
  for (int count = 2; count <= 10; ++count) {
    TurretDrawing turret(PlaceKind::Cubes);
    turret.SetItems(QVector<TurretItem>(count));
    Resize(turret, 280);
    const auto tile = [&turret](int i) {
      const int halo = static_cast<int>(TurretButton::HaloRoom());
      return turret.place(i)->geometry().adjusted(halo, halo, -halo, -halo);
    };
    for (int i = 0; i < count; ++i) {
      const QRect halo = tile(i).adjusted(-5, -5, 5, 5);
      EXPECT_FALSE(halo.intersects(tile((i + 1) % count))) << count << " places, at " << i + 1;
    }
  }
}

TEST(TurretLabels, APlaceReachesToItsEdge) {
  TurretButton round(PlaceKind::Objectives, 1, nullptr);
  round.SetPlaceSize({40, 40});
  EXPECT_NEAR(round.ReachTowards({1, 0}), 20 + TurretButton::HaloRoom(), 0.01);
  EXPECT_NEAR(round.ReachTowards({0.6, 0.8}), 20 + TurretButton::HaloRoom(), 0.01);
  TurretButton tile(PlaceKind::Cubes, 1, nullptr);
  tile.SetPlaceSize({40, 32});
  EXPECT_NEAR(tile.ReachTowards({1, 0}), 20 + TurretButton::HaloRoom(), 0.01);
  EXPECT_NEAR(tile.ReachTowards({0, -1}), 16 + TurretButton::HaloRoom(), 0.01);
  EXPECT_NEAR(tile.ReachTowards({-0.6, 0.8}), 20 + TurretButton::HaloRoom(), 0.01);
  EXPECT_NEAR(tile.ReachTowards({-0.8, 0.6}), 25 + TurretButton::HaloRoom(), 0.01);
}

TEST(TurretLabels, AClickAsksForMoreThanAnArrow) {
  TestWindow window;
  auto* turret = window.Add<TurretDrawing>(PlaceKind::Cubes);
  turret->SetItems(Labels({"One", "Two", "Three"}));
  window.Show();
  QSignalSpy chosen(turret, &TurretDrawing::chosen);
  QSignalSpy activated(turret, &TurretDrawing::activated);
  QTest::mouseClick(turret->place(1), Qt::LeftButton, {}, turret->place(1)->rect().center());
  EXPECT_EQ(Indices(chosen), std::vector<int>{1});
  EXPECT_EQ(Indices(activated), std::vector<int>{1});
  turret->place(1)->setFocus();
  QTest::keyClick(turret->place(1), Qt::Key_Right);
  QTest::keyClick(turret->place(2), Qt::Key_Home);
  EXPECT_EQ(Indices(chosen), (std::vector<int>{1, 2, 0}));
  EXPECT_EQ(Indices(activated), std::vector<int>{1});
  QTest::keyClick(turret->place(0), Qt::Key_Space);
  EXPECT_EQ(Indices(activated), (std::vector<int>{1, 0}));
  turret->setIndex(2);
  EXPECT_EQ(activated.size(), 2);
}

TEST(TurretLabels, ThePlaceOfATileIsItsRectangle) {
  TestWindow window;
  auto* turret = window.Add<TurretDrawing>(PlaceKind::Condensers);
  turret->SetItems(Labels({"One", "Two", "Three"}));
  window.Show();
  QSignalSpy chosen(turret, &TurretDrawing::chosen);
  QAbstractButton* place = turret->place(0);
  const int inside = static_cast<int>(TurretButton::HaloRoom()) + 3;
  QTest::mouseClick(place, Qt::LeftButton, {}, QPoint(inside, inside));
  EXPECT_EQ(chosen.size(), 1) << "also in its corner";
  QTest::mouseClick(place, Qt::LeftButton, {}, QPoint(place->width() / 2, 3));
  EXPECT_EQ(chosen.size(), 1) << "its halo is no part of it";
  QTest::mouseClick(place, Qt::LeftButton, {}, QPoint(3, place->height() / 2));
  EXPECT_EQ(chosen.size(), 1);
}

}  // namespace
}  // namespace mortane
