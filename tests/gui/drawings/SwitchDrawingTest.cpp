// A drawing with marks: places, keys, sizes, and what it looks like.
#include "drawings/SwitchDrawing.h"

#include <QAbstractButton>
#include <QPushButton>

#include "app/ApplyTheme.h"
#include "drawings/InkedDrawing.h"
#include "gui/support/Face.h"
#include "gui/support/TestWindow.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr QSizeF kDesign{604, 302};

// Two columns; the keys go through the right one first.
SwitchPlan Plan() {
  return {u"body"_s,
          kDesign,
          {{2, {MarkKind::BodyDial, "3"}, {500, 100, 25, 25}},
           {3, {MarkKind::BodySwitch, "4"}, {500, 131, 23, 23}},
           {0, {MarkKind::HandDial, "CW/CCW"}, {60, 40, 100, 100}},
           {1, {MarkKind::HandKey, "L"}, {20, 130, 62, 44}}},
          {{u"Left"_s, {103, 290}}}};
}

class SwitchDrawingTest : public testing::Test {
 protected:
  SwitchDrawingTest() {
    auto* column = new QVBoxLayout(&window);
    column->setContentsMargins({});
    column->addWidget(before);
    column->addWidget(drawing);
    column->addWidget(after);
    window.resize(700, 420);
    window.show();
    window.activateWindow();
    QApplication::processEvents();
  }

  // Where the mark is painted, by the design and the scale.
  QPointF Middle(int index) const {
    for (const PlacedMark& placed : Plan().marks) {
      if (placed.index != index) continue;
      const QPointF offset = placed.area.center() - QPointF(kDesign.width(), kDesign.height()) / 2;
      return QRectF(drawing->rect()).center() + offset * drawing->drawingScale();
    }
    return {};
  }
  QImage Picture() const { return drawing->grab().toImage(); }

  QWidget window;
  QPushButton* before = new QPushButton("before");
  SwitchDrawing* drawing = new SwitchDrawing(Plan(), "optBtn");
  QPushButton* after = new QPushButton("after");
};

TEST_F(SwitchDrawingTest, MarksAreNamedByTheirRowsFromOne) {
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(drawing->mark(i)->objectName(), u"optBtn_%1"_s.arg(i + 1));
  }
}

TEST_F(SwitchDrawingTest, ScalesWithItsSizeBetweenItsLimits) {
  for (const auto& [size, scale] : {std::pair{QSize(300, 200), 0.8},
                                    {QSize(604, 302), 1.0},
                                    {QSize(604, 900), 1.0},
                                    {QSize(2000, 302), 1.0},
                                    {QSize(755, 400), 1.25},
                                    {QSize(1510, 1000), 2.5},
                                    {QSize(3000, 3000), 2.5}}) {
    drawing->resize(size);
    EXPECT_NEAR(drawing->drawingScale(), scale, 0.001) << size.width();
  }
  EXPECT_EQ(drawing->sizeHint(), QSize(604, 302));
  EXPECT_EQ(drawing->minimumSizeHint(), QSize(483, 242));
}

TEST_F(SwitchDrawingTest, MarksMoveWithTheScaleAndAreLargeEnough) {
  for (const QSize size : {QSize(483, 242), QSize(604, 302), QSize(700, 500), QSize(906, 453)}) {
    drawing->resize(size);
    for (int i = 0; i < 4; ++i) {
      const QRect area = drawing->mark(i)->geometry();
      EXPECT_NEAR(QRectF(area).center().x(), Middle(i).x(), 1) << i;
      EXPECT_NEAR(QRectF(area).center().y(), Middle(i).y(), 1) << i;
      EXPECT_GE(area.width(), 24) << i;
      EXPECT_GE(area.height(), 24) << i;
    }
  }
}

TEST_F(SwitchDrawingTest, MarksHaveRoomForTheFocusAroundWhatIsHit) {
  for (const QSize size : {QSize(483, 242), QSize(604, 302), QSize(906, 453)}) {
    drawing->resize(size);
    for (const PlacedMark& placed : Plan().marks) {
      const QAbstractButton* mark = drawing->mark(placed.index);
      const QSizeF painted = placed.area.size() * drawing->drawingScale();
      const QRect contents = mark->contentsRect();
      EXPECT_GE(contents.width(), qMax(painted.width(), 24.0));
      EXPECT_GE(contents.height(), qMax(painted.height(), 24.0));
      EXPECT_LT(contents.width(), qMax(painted.width(), 24.0) + 2);
      EXPECT_LT(contents.height(), qMax(painted.height(), 24.0) + 2);
      EXPECT_GE(mark->width(), painted.width() + 6);
      EXPECT_GE(mark->height(), painted.height() + 6);
    }
  }
}

TEST_F(SwitchDrawingTest, OnlyDialsAreRound) {
  for (const PlacedMark& placed : Plan().marks) {
    const QAbstractButton* mark = drawing->mark(placed.index);
    EXPECT_EQ(drawing->childAt(mark->pos() + QPoint(1, 1)) == mark, !IsDial(placed.mark.kind));
    EXPECT_EQ(drawing->childAt(mark->geometry().center()), mark);
  }
}

TEST_F(SwitchDrawingTest, AClickInTheMiddleOfAMarkChoosesItAndIsTold) {
  QSignalSpy clicks(drawing, &SwitchDrawing::chosen);
  for (const int i : {0, 1, 2, 3, 3}) {
    QTest::mouseClick(drawing->childAt(Middle(i).toPoint()), Qt::LeftButton, {},
                      Middle(i).toPoint() - drawing->mark(i)->pos());
    EXPECT_EQ(drawing->index(), i);
  }
  EXPECT_EQ(Indices(clicks), (std::vector<int>{0, 1, 2, 3, 3}));
  EXPECT_FALSE(drawing->mark(2)->isChecked());
}

TEST_F(SwitchDrawingTest, TheCornersAroundADialAreNotPartOfIt) {
  QSignalSpy clicks(drawing, &SwitchDrawing::chosen);
  for (const int i : {0, 2}) {
    QTest::mouseClick(drawing->mark(i), Qt::LeftButton, {}, QPoint(2, 2));
  }
  EXPECT_EQ(clicks.size(), 0);
  QTest::mouseClick(drawing->mark(1), Qt::LeftButton, {}, QPoint(2, 2));
  EXPECT_EQ(Indices(clicks), std::vector<int>{1});
}

TEST_F(SwitchDrawingTest, SettingIsSilentAndAnIndexThatIsNoneClears) {
  QSignalSpy clicks(drawing, &SwitchDrawing::chosen);
  drawing->setIndex(2);
  EXPECT_EQ(drawing->index(), 2);
  for (const int none : {-1, 4}) {
    drawing->setIndex(1);
    drawing->setIndex(none);
    EXPECT_EQ(drawing->index(), -1);
    for (int i = 0; i < 4; ++i) EXPECT_FALSE(drawing->mark(i)->isChecked());
  }
  EXPECT_EQ(clicks.size(), 0);
}

TEST_F(SwitchDrawingTest, IsOneTabStop) {
  before->setFocus();
  QTest::keyClick(before, Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), drawing->mark(2)) << "the first in the order of the keys";
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), after);
  drawing->setIndex(1);
  QTest::keyClick(after, Qt::Key_Backtab);
  EXPECT_EQ(QApplication::focusWidget(), drawing->mark(1));
}

struct KeyRow {
  Qt::Key key;
  std::vector<int> told;
};

TEST_F(SwitchDrawingTest, ArrowsGoThroughTheMarksInTheOrderOfThePlanAndRound) {
  for (const KeyRow& row : {KeyRow{Qt::Key_Right, {3, 0, 1, 2}}, KeyRow{Qt::Key_Down, {3, 0, 1, 2}},
                            KeyRow{Qt::Key_Left, {1, 0, 3, 2}}, KeyRow{Qt::Key_Up, {1, 0, 3, 2}}}) {
    QTest::mouseClick(drawing->mark(2), Qt::LeftButton);
    QSignalSpy clicks(drawing, &SwitchDrawing::chosen);
    for (int i = 0; i < 4; ++i) {
      QTest::keyClick(QApplication::focusWidget(), row.key);
      EXPECT_EQ(QApplication::focusWidget(), drawing->mark(drawing->index()));
    }
    EXPECT_EQ(Indices(clicks), row.told) << row.key;
  }
}

TEST_F(SwitchDrawingTest, ArrowsPassOverMarksThatAreDisabled) {
  drawing->mark(3)->setEnabled(false);
  drawing->mark(0)->setEnabled(false);
  QTest::mouseClick(drawing->mark(2), Qt::LeftButton);
  for (const int wanted : {1, 2}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    EXPECT_EQ(drawing->index(), wanted);
  }
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
  EXPECT_EQ(drawing->index(), 1);
}

TEST_F(SwitchDrawingTest, SpaceChoosesTheMarkWithTheFocus) {
  before->setFocus();
  QTest::keyClick(before, Qt::Key_Tab);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  EXPECT_EQ(drawing->index(), 2);
}

TEST_F(SwitchDrawingTest, TellsTheNamesOfItsMarksInTheOrderOfTheRows) {
  for (int i = 0; i < 4; ++i) drawing->SetMarkName(i, u"Row %1"_s.arg(i));
  EXPECT_EQ(drawing->mark(2)->accessibleName(), "Row 2");
  EXPECT_EQ(drawing->accessibleDescription(), "Row 0; Row 1; Row 2; Row 3");
}

TEST_F(SwitchDrawingTest, EachRowHasTheIconOfItsMark) {
  const QSize size(MarkIconSide(), MarkIconSide());
  for (const PlacedMark& placed : Plan().marks) {
    EXPECT_EQ(drawing->markIcon(placed.index).pixmap(size).toImage(),
              MarkIcon(placed.mark).pixmap(size).toImage());
  }
  EXPECT_TRUE(drawing->markIcon(4).isNull());
}

TEST_F(SwitchDrawingTest, TheChosenTheDisabledAndTheFocusedLookDifferent) {
  before->setFocus();
  for (int i = 0; i < 4; ++i) {
    const QImage resting = drawing->mark(i)->grab().toImage();
    drawing->setIndex(i);
    const QImage chosen = drawing->mark(i)->grab().toImage();
    drawing->mark(i)->setFocus();
    const QImage focused = drawing->mark(i)->grab().toImage();
    before->setFocus();
    drawing->mark(i)->setEnabled(false);
    const QImage disabled = drawing->mark(i)->grab().toImage();
    drawing->setIndex(-1);
    EXPECT_NE(chosen, resting) << i;
    EXPECT_NE(focused, chosen) << i;
    EXPECT_NE(disabled, chosen) << i;
    EXPECT_EQ(disabled, drawing->mark(i)->grab().toImage()) << "no mark is left of a choice";
  }
}

TEST_F(SwitchDrawingTest, ABusyWindowChangesNothing) {
  drawing->setIndex(2);
  before->setFocus();
  // A mark under the pointer would lose its hover.
  for (int i = 0; i < 4; ++i) drawing->mark(i)->setAttribute(Qt::WA_UnderMouse, false);
  const QImage usual = Picture();
  window.setEnabled(false);
  EXPECT_EQ(Picture(), usual);
  window.setEnabled(true);
  drawing->setEnabled(false);
  EXPECT_NE(Picture(), usual);
}

TEST_F(SwitchDrawingTest, MirroredItHasItsMarksAndTextsInPlace) {
  drawing->hide();
  SwitchPlan plan = Plan();
  plan.drawing = u"handcontroller"_s;
  SwitchDrawing hand(plan, "optBtn");
  hand.resize(604, 302);
  const QImage usual = hand.grab().toImage();
  const QRect mark = hand.mark(1)->geometry();
  hand.SetMirrored(true);
  const QImage mirrored = hand.grab().toImage();
  EXPECT_NE(mirrored, usual);
  EXPECT_EQ(hand.mark(1)->geometry(), mark);
  // The stage's wheel of two stages is at the other side.
  const QRect right(540, 120, 40, 50);
  EXPECT_NE(mirrored.copy(right), usual.copy(right));
  hand.SetMirrored(false);
  EXPECT_EQ(hand.grab().toImage(), usual);
}

TEST_F(SwitchDrawingTest, MirroredItsGroundIsTheMirrorImage) {
  SwitchPlan plan{u"handcontroller"_s, kDesign, {}, {}};
  SwitchDrawing hand(plan, "optBtn");
  hand.resize(604, 302);
  const QImage expected = hand.grab().toImage().mirrored(true, false);
  hand.SetMirrored(true);
  const QImage mirrored = hand.grab().toImage();
  int unlike = 0;
  for (int y = 0; y < expected.height(); ++y) {
    for (int x = 0; x < expected.width(); ++x) {
      if (std::abs(qGray(expected.pixel(x, y)) - qGray(mirrored.pixel(x, y))) > 64) ++unlike;
    }
  }
  EXPECT_LT(unlike, 604 * 302 / 100) << "but for edges";
}

TEST_F(SwitchDrawingTest, FollowsTheScheme) {
  const QImage light = Picture();
  ApplyTheme(*qApp, Scheme::Dark);
  QApplication::processEvents();
  const QImage dark = Picture();
  ApplyTheme(*qApp, Scheme::Light);
  QApplication::processEvents();
  EXPECT_NE(dark, light);
  EXPECT_EQ(Picture(), light);
}

TEST_F(SwitchDrawingTest, TextsStandAroundTheirPlaces) {
  SwitchPlan plan = Plan();
  plan.texts = {{u"HHHH"_s, {103, 290}}};
  SwitchDrawing with(plan, "optBtn");
  plan.texts.clear();
  SwitchDrawing without(plan, "optBtn");
  const QImage shown = test::PictureOf(with, {604, 302}, test::Use::Rest);
  const QImage ground = test::PictureOf(without, {604, 302}, test::Use::Rest);
  QRect text;
  for (int y = 0; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) {
      if (shown.pixel(x, y) != ground.pixel(x, y)) text |= QRect(x, y, 1, 1);
    }
  }
  EXPECT_NEAR(text.center().x(), 103, 2);
  EXPECT_NEAR(text.center().y(), 290, 2);
}

TEST_F(SwitchDrawingTest, ShowsItsTexts) {
  SwitchPlan plan = Plan();
  plan.texts.clear();
  SwitchDrawing without(plan, "optBtn");
  without.resize(drawing->size());
  without.setPalette(drawing->palette());
  const QRect caption(QPoint(60, drawing->height() - 40), QSize(100, 40));
  EXPECT_NE(Picture().copy(caption), without.grab().toImage().copy(caption));
}

struct InkRow {
  const char* inFile;
  Tone tone;
};

TEST(InkedDrawing, HasTheColoursOfTheSchemeForThoseOfItsFile) {
  ApplyTheme(*qApp, Scheme::Dark);
  QByteArray all;
  for (const char* name : {"microscope", "body", "handcontroller"})
    all += InkedDrawing(QLatin1String(name), test::TellablePalette());
  for (const InkRow& row :
       {InkRow{"#33415c", Tone::DrawingLine}, InkRow{"#e9edf3", Tone::DrawingFill},
        InkRow{"#d5dce6", Tone::DrawingShade}, InkRow{"#bfc9d6", Tone::DrawingDeep}}) {
    EXPECT_FALSE(all.contains(row.inFile)) << row.inFile;
    EXPECT_TRUE(all.contains(ToneColor(row.tone).name().toLatin1())) << row.inFile;
  }
  EXPECT_FALSE(all.contains("#ffffff"));
  EXPECT_TRUE(all.contains(test::TellablePalette().color(QPalette::Base).name().toLatin1()));
  ApplyTheme(*qApp, Scheme::Light);
}

}  // namespace
}  // namespace mortane
