// The turret from above: places, their names, keys and sizes.
#include "drawings/TurretDrawing.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <cmath>

#include "drawings/TurretButton.h"

namespace mortane::test {
namespace {

QVector<TurretItem> Items(int count) {
  QVector<TurretItem> items;
  for (int i = 1; i <= count; ++i) {
    const QString mark = QString::number(i * 10) + "x";
    items.append({mark, mark + ", Objective " + QString::number(i), i * 10.0});
  }
  return items;
}

class Turret : public testing::Test {
 protected:
  Turret() {
    auto* row = new QHBoxLayout(&window);
    row->addWidget(before);
    row->addWidget(turret);
    row->addWidget(after);
    turret->SetItems(Items(6));
    window.resize(700, 320);
    window.show();
    window.activateWindow();
    QApplication::processEvents();
  }

  QWidget window;
  QPushButton* before = new QPushButton("before");
  TurretDrawing* turret = new TurretDrawing(PlaceKind::Objectives);
  QPushButton* after = new QPushButton("after");
};

QPointF CenterOf(const QAbstractButton& button) {
  return QRectF(button.geometry()).center();
}

TEST_F(Turret, AddressOneIsAtTheTopAndTheOthersFollowClockwise) {
  EXPECT_NEAR(CenterOf(*turret->place(0)).x(), turret->width() / 2.0, 1);
  for (int i = 1; i < 6; ++i) {
    EXPECT_GT(CenterOf(*turret->place(i)).y(), CenterOf(*turret->place(0)).y()) << i;
  }
  EXPECT_GT(CenterOf(*turret->place(1)).x(), CenterOf(*turret->place(0)).x());
  EXPECT_LT(CenterOf(*turret->place(5)).x(), CenterOf(*turret->place(0)).x());
}

TEST_F(Turret, PlacesOfAnyNumberAreLargeEnoughAndLieApartInsideTheDrawing) {
  for (const PlaceKind kind : {PlaceKind::Objectives, PlaceKind::Cubes}) {
    for (int count = 1; count <= 10; ++count) {
      TurretDrawing drawing(kind);
      drawing.SetItems(Items(count));
      drawing.show();
      for (const int height : {200, 280, 600}) {
        drawing.resize(drawing.width(), height);
        drawing.resize(drawing.sizeHint().width(), height);
        ASSERT_EQ(drawing.count(), count);
        for (int i = 0; i < count; ++i) {
          const QRect place = drawing.place(i)->geometry();
          EXPECT_GE(place.width(), 24);
          EXPECT_GE(place.height(), 24);
          EXPECT_GE(place.left(), 0);
          EXPECT_LE(place.right(), drawing.width());
          if (i == 0) continue;
          const QPointF apart = CenterOf(*drawing.place(i)) - CenterOf(*drawing.place(i - 1));
          EXPECT_GT(std::hypot(apart.x(), apart.y()),
                    place.width() - 2 * TurretButton::HaloRoom() - 1)
              << count << " places, " << height;
        }
      }
    }
  }
}

TEST_F(Turret, ScalesByItsShorterSideBetweenItsLimits) {
  for (const auto& [side, scale] : {std::pair{100, 0.8},
                                    {224, 0.8},
                                    {280, 1.0},
                                    {350, 1.25},
                                    {420, 1.5},
                                    {700, 2.5},
                                    {900, 2.5}}) {
    turret->resize(side, side);
    EXPECT_NEAR(turret->drawingScale(), scale, 0.001) << side;
    turret->resize(side, 1000);
    EXPECT_NEAR(turret->drawingScale(), scale, 0.001) << side;
    turret->resize(700, side);
    EXPECT_NEAR(turret->drawingScale(), scale, 0.001) << side;
  }
}

TEST_F(Turret, PlacesTellAddressMagnificationAndName) {
  EXPECT_EQ(turret->place(3)->accessibleName(), "Address 4, 40x, Objective 4");
  QVector<TurretItem> items = Items(6);
  items[4] = {};
  turret->SetItems(items);
  EXPECT_EQ(turret->place(4)->accessibleName(), "Address 5, ----");
  EXPECT_TRUE(turret->accessibleDescription().contains("Address 4, 40x, Objective 4"));
  turret->SetItem(4, {"2x", "2x, Small", 2.0});
  EXPECT_EQ(turret->place(4)->accessibleName(), "Address 5, 2x, Small");
  EXPECT_TRUE(turret->accessibleDescription().contains("Address 5, 2x, Small"));
}

TEST_F(Turret, AClickChoosesOnePlaceAndIsTold) {
  QSignalSpy clicks(turret, &TurretDrawing::chosen);
  QTest::mouseClick(turret->place(2), Qt::LeftButton);
  ASSERT_EQ(clicks.size(), 1);
  EXPECT_EQ(clicks[0][0].toInt(), 2);
  EXPECT_EQ(turret->index(), 2);
  QTest::mouseClick(turret->place(2), Qt::LeftButton);
  EXPECT_EQ(clicks.size(), 2) << "a person's click is told also where it changes nothing";
  QTest::mouseClick(turret->place(5), Qt::LeftButton);
  EXPECT_FALSE(turret->place(2)->isChecked());
  EXPECT_TRUE(turret->place(5)->isChecked());
}

TEST_F(Turret, TheCornersOfARoundPlaceAreNotPartOfIt) {
  QSignalSpy clicks(turret, &TurretDrawing::chosen);
  QTest::mouseClick(turret->place(1), Qt::LeftButton, {}, QPoint(2, 2));
  EXPECT_EQ(clicks.size(), 0);
}

TEST_F(Turret, SettingIsSilentAndAnIndexThatIsNoneClears) {
  QSignalSpy clicks(turret, &TurretDrawing::chosen);
  turret->setIndex(4);
  EXPECT_EQ(turret->index(), 4);
  turret->setIndex(6);
  EXPECT_EQ(turret->index(), -1);
  EXPECT_EQ(clicks.size(), 0);
}

TEST_F(Turret, IsOneTabStop) {
  turret->setIndex(3);
  before->setFocus();
  QTest::keyClick(before, Qt::Key_Tab);
  EXPECT_TRUE(turret->place(3)->hasFocus());
  QTest::keyClick(turret->place(3), Qt::Key_Tab);
  EXPECT_TRUE(after->hasFocus());
}

struct KeyRow {
  int from;
  Qt::Key key;
  int to;
};

TEST_F(Turret, ArrowsGoAlongTheTurret) {
  for (const KeyRow& row :
       {KeyRow{0, Qt::Key_Right, 1}, KeyRow{0, Qt::Key_Down, 1}, KeyRow{5, Qt::Key_Right, 0},
        KeyRow{0, Qt::Key_Left, 5}, KeyRow{3, Qt::Key_Up, 2}, KeyRow{3, Qt::Key_Home, 0},
        KeyRow{3, Qt::Key_End, 5}}) {
    turret->setIndex(row.from);
    turret->place(row.from)->setFocus();
    QSignalSpy clicks(turret, &TurretDrawing::chosen);
    QTest::keyClick(turret->place(row.from), row.key);
    EXPECT_EQ(turret->index(), row.to) << row.from;
    EXPECT_TRUE(turret->place(row.to)->hasFocus()) << row.from;
    ASSERT_EQ(clicks.size(), 1) << row.from;
    EXPECT_EQ(clicks[0][0].toInt(), row.to);
  }
}

TEST_F(Turret, AnotherNumberOfPlacesKeepsTheChosenOneIfItIsThere) {
  turret->setIndex(3);
  turret->SetItems(Items(5));
  EXPECT_EQ(turret->index(), 3);
  turret->SetItems(Items(2));
  EXPECT_EQ(turret->index(), -1);
  turret->SetItems(Items(12));
  EXPECT_EQ(turret->count(), 10);
  turret->SetItems({});
  EXPECT_EQ(turret->count(), 0);
}

TEST_F(Turret, RingsHaveTheColoursOfTheirMagnification) {
  for (const auto& [magnification, tone] : {std::pair{1.0, Tone::RingBlack},
                                            {2.0, Tone::RingGrey},
                                            {2.5, Tone::RingBrown},
                                            {4.0, Tone::RingRed},
                                            {5.0, Tone::RingRed},
                                            {10.0, Tone::RingYellow},
                                            {20.0, Tone::RingGreen},
                                            {40.0, Tone::RingBlue},
                                            {50.0, Tone::RingBlue},
                                            {60.0, Tone::RingDarkBlue},
                                            {100.0, Tone::RingWhite},
                                            {150.0, Tone::RingWhite},
                                            {1.5, Tone::DrawingLine},
                                            {0.0, Tone::DrawingLine},
                                            {25.0, Tone::DrawingLine},
                                            {63.0, Tone::DrawingLine},
                                            {99.9, Tone::DrawingLine}}) {
    EXPECT_EQ(RingTone(magnification), tone) << magnification;
  }
}

// The colour in the middle of the ring, straight left of the place's centre.
QColor RingColour(QAbstractButton& place) {
  const QImage picture = place.grab().toImage();
  return picture.pixelColor(static_cast<int>(TurretButton::HaloRoom()) + 4, picture.height() / 2);
}

TEST_F(Turret, PaintsTheRingInItsColour) {
  turret->SetItem(0, {"10x", "10x, A", 10.0});
  EXPECT_EQ(RingColour(*turret->place(0)), ToneColor(Tone::RingYellow));
  turret->SetItem(0, {"20x", "20x, B", 20.0});
  EXPECT_EQ(RingColour(*turret->place(0)), ToneColor(Tone::RingGreen));
}

TEST_F(Turret, TheChosenPlaceHasAnAmberHalo) {
  const auto halo = [this] {
    const QImage picture = turret->place(2)->grab().toImage();
    return picture.pixelColor(static_cast<int>(TurretButton::HaloRoom()) - 3, picture.height() / 2);
  };
  EXPECT_NE(halo(), ToneColor(Tone::Amber));
  turret->setIndex(2);
  EXPECT_EQ(halo(), ToneColor(Tone::Amber));
}

TEST_F(Turret, APendingPlaceShowsItsDot) {
  const auto hasDot = [this] {
    const QImage picture = turret->place(2)->grab().toImage();
    const QColor link = turret->palette().color(QPalette::Link);
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixelColor(x, y) == link) return true;
      }
    }
    return false;
  };
  turret->SetItem(2, {"5x", "5x, C", 5.0});
  EXPECT_FALSE(hasDot());
  turret->SetPending({{3, "2x, B"}});
  EXPECT_TRUE(hasDot());
}

}  // namespace
}  // namespace mortane::test
