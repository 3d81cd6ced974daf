// The buttons of marks, and the room that drawings take.
#include "drawings/MarkButton.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "drawings/MicroscopeDrawing.h"
#include "drawings/MoveCross.h"
#include "drawings/SwitchDrawing.h"
#include "drawings/TurretButton.h"
#include "drawings/TurretDrawing.h"
#include "gui/support/Face.h"

namespace mortane {
namespace {

using test::Use;

struct MarkFace {
  const char* what;
  Use use;
  bool chosen;
  const char* dial;
  const char* key;
};

// A mark 30 wide with the room for its focus around it.
TEST(MarkFace, TellsItsState) {
  for (const MarkFace& row : {
           MarkFace{"at rest", Use::Rest, false,
                    "Window 4, ~ 2, RailHover 1, ~ 1, RailText 1, ~ 2, RailHover 18, ~ 2, RailText "
                    "1, ~ 1, RailHover 1, ~ 2, Window 4",
                    "Window 4, ~ 2, Rail 28, ~ 2, Window 4"},
           MarkFace{"hovered", Use::Hovered, false,
                    "Window 4, ~ 2, RailSelected 1, ~ 1, RailText 1, ~ 2, RailSelected 18, ~ 2, "
                    "RailText 1, ~ 1, RailSelected 1, ~ 2, Window 4",
                    "Window 4, ~ 2, RailHover 28, ~ 2, Window 4"},
           MarkFace{"focused", Use::Focused, false,
                    "Window 1, ~ 1, RailText 1, ~ 3, RailHover 1, ~ 1, RailText 1, ~ 2, RailHover "
                    "18, ~ 2, RailText 1, ~ 1, RailHover 1, ~ 3, RailText 1, ~ 1, Window 1",
                    "Window 1, ~ 1, RailText 1, ~ 3, Rail 28, ~ 3, RailText 1, ~ 1, Window 1"},
           MarkFace{"chosen", Use::Rest, true,
                    "Window 4, ~ 2, Amber 1, ~ 1, OnAmber 1, ~ 2, Amber 18, ~ 2, OnAmber 1, ~ 1, "
                    "Amber 1, ~ 2, Window 4",
                    "Window 3, ~ 1, Amber 2, ~ 1, Rail 26, ~ 1, Amber 2, ~ 1, Window 3"},
       }) {
    for (const MarkKind kind : {MarkKind::BodyDial, MarkKind::HandKey}) {
      MarkButton mark({kind, {}}, nullptr);
      mark.Place({5, 5, 30, 30});
      mark.setChecked(row.chosen);
      const QImage picture = test::PictureOf(mark, {40, 40}, row.use);
      EXPECT_EQ(test::RowOf(picture, 20), kind == MarkKind::BodyDial ? row.dial : row.key)
          << row.what;
    }
  }
}

TEST(MarkFace, HasRoomForTheFocusAroundWhatIsHit) {
  MarkButton small({MarkKind::BodySwitch, {}}, nullptr);
  small.Place({10, 10, 20, 20});
  EXPECT_EQ(small.geometry(), QRect(6, 6, 28, 28));
  EXPECT_EQ(small.contentsMargins(), QMargins(2, 2, 2, 2)) << "what is hit is 24 wide";
  MarkButton large({MarkKind::BodySwitch, {}}, nullptr);
  large.Place({10, 10, 60, 40});
  EXPECT_EQ(large.geometry(), QRect(6, 6, 68, 48));
  EXPECT_EQ(large.contentsMargins(), QMargins(4, 4, 4, 4));
}

TEST(DrawingRoom, DrawingsGrowWithTheirPageAndTakeNoFocus) {
  const TurretDrawing turret(PlaceKind::Objectives);
  EXPECT_EQ(turret.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding));
  EXPECT_EQ(turret.focusPolicy(), Qt::NoFocus);
  EXPECT_EQ(turret.maximumSize(), QSize(700, QWIDGETSIZE_MAX));
  const SwitchDrawing plate({"body", {604, 302}, {}, {}}, "optBtn");
  EXPECT_EQ(plate.sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
  EXPECT_EQ(plate.focusPolicy(), Qt::NoFocus);
  const MicroscopeDrawing microscope;
  EXPECT_EQ(microscope.sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
  EXPECT_EQ(microscope.accessibleName(), "Microscope");
  EXPECT_EQ(microscope.sizeHint(), QSize(606, 370));
  EXPECT_EQ(microscope.minimumSizeHint(), QSize(485, 296));
  const MoveCross cross(MoveCross::Axes::Both, "Go");
  EXPECT_EQ(cross.sizePolicy(), QSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum));
  const TurretButton place(PlaceKind::Cubes, 1, nullptr);
  EXPECT_TRUE(place.isCheckable());
  EXPECT_TRUE(place.testAttribute(Qt::WA_Hover));
  EXPECT_EQ(place.contentsMargins(), QMargins(8, 8, 8, 8));
  const MarkButton mark({MarkKind::HandKey, "L"}, nullptr);
  EXPECT_TRUE(mark.isCheckable());
  EXPECT_TRUE(mark.testAttribute(Qt::WA_Hover));
  EXPECT_EQ(mark.text(), "L");
}

TEST(MarkFace, ADialIsHitUpToItsEdge) {
  MarkButton dial({MarkKind::HandDial, {}}, nullptr);
  dial.Place({0, 0, 100, 100});
  dial.show();
  QSignalSpy clicks(&dial, &QAbstractButton::clicked);
  const QPoint middle(dial.width() / 2, dial.height() / 2);
  ASSERT_EQ(dial.width() % 2, 0);
  for (const QPoint& away : {QPoint(50, 0), QPoint(0, -50), QPoint(30, 40)}) {
    clicks.clear();
    QTest::mouseClick(&dial, Qt::LeftButton, {}, middle + away);
    EXPECT_EQ(clicks.size(), 1) << away.x();
    QTest::mouseClick(&dial, Qt::LeftButton, {},
                      middle + away * 51 / 50 + QPoint(0, away.y() > 0 ? 1 : 0));
    EXPECT_EQ(clicks.size(), 1) << away.x();
  }
}

}  // namespace
}  // namespace mortane
