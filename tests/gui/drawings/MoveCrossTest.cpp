#include "drawings/MoveCross.h"

#include <QPainter>

#include "gui/support/Face.h"
#include "gui/support/TestWindow.h"
#include "widgets/Icons.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

class MoveCrossTest : public ::testing::Test {
 protected:
  void SetUp() override {
    cross = window.Add<MoveCross>(MoveCross::Axes::Both, u"Start"_s);
    window.Show();
  }
  QPoint PlaceOf(MoveDirection direction, MoveSize size) {
    return cross->button(direction, size)->geometry().center();
  }
  QString Focused() { return QApplication::focusWidget()->accessibleName(); }

  TestWindow window;
  MoveCross* cross = nullptr;
};

TEST_F(MoveCrossTest, SmallStepsStandInsideAndLargeOnesOutside) {
  const QPoint middle = cross->middle()->geometry().center();
  struct Row {
    MoveDirection direction;
    int right;
    int down;
  };
  for (const Row& row : {Row{MoveDirection::Left, -1, 0}, Row{MoveDirection::Right, 1, 0},
                         Row{MoveDirection::Up, 0, -1}, Row{MoveDirection::Down, 0, 1}}) {
    const QPoint inner = PlaceOf(row.direction, MoveSize::Small) - middle;
    const QPoint outer = PlaceOf(row.direction, MoveSize::Large) - middle;
    EXPECT_GT(inner.x() * row.right + inner.y() * row.down, 0);
    EXPECT_GT((outer - inner).x() * row.right + (outer - inner).y() * row.down, 24);
    EXPECT_LE(qAbs(inner.x() * row.down) + qAbs(inner.y() * row.right), 1) << "on the axis";
  }
}

TEST_F(MoveCrossTest, ButtonsAreLargeEnoughAndSayWhatTheyDo) {
  struct Row {
    MoveDirection direction;
    MoveSize size;
    const char* said;
  };
  for (const Row& row : {Row{MoveDirection::Up, MoveSize::Large, "Up, large step"},
                         Row{MoveDirection::Up, MoveSize::Small, "Up, small step"},
                         Row{MoveDirection::Down, MoveSize::Large, "Down, large step"},
                         Row{MoveDirection::Down, MoveSize::Small, "Down, small step"},
                         Row{MoveDirection::Left, MoveSize::Large, "Left, large step"},
                         Row{MoveDirection::Left, MoveSize::Small, "Left, small step"},
                         Row{MoveDirection::Right, MoveSize::Large, "Right, large step"},
                         Row{MoveDirection::Right, MoveSize::Small, "Right, small step"}}) {
    const MoveButton* button = cross->button(row.direction, row.size);
    EXPECT_EQ(button->accessibleName(), row.said);
    EXPECT_GE(button->width(), 24);
    EXPECT_EQ(button->height(), button->width());
    EXPECT_EQ(button->height(), cross->middle()->height());
  }
  EXPECT_EQ(cross->middle()->text(), "Start");
}

TEST_F(MoveCrossTest, GrowsWithItsRoomUpToTwoAndAHalfTimes) {
  const QSize least = cross->minimumSizeHint();
  const MoveButton* button = cross->button(MoveDirection::Up, MoveSize::Large);
  cross->setFixedSize(least);
  QApplication::processEvents();
  const int side = button->width();
  struct Row {
    QSize room;
    int side;
  };
  for (const Row& row :
       {Row{least + QSize(400, 400), side * 5 / 2}, Row{least + QSize(400, 50), side + 10},
        Row{least + QSize(0, 400), side}, Row{least, side}}) {
    cross->setFixedSize(row.room);
    QApplication::processEvents();
    EXPECT_EQ(button->width(), row.side) << row.room.width();
    EXPECT_EQ(button->height(), row.side);
    EXPECT_EQ(cross->middle()->height(), row.side);
    EXPECT_TRUE(cross->rect().contains(cross->childrenRect()));
    EXPECT_LE(qAbs(cross->childrenRect().center().x() - cross->rect().center().x()), 1);
  }
}

TEST_F(MoveCrossTest, AVerticalOneHasNoButtonsAtItsSides) {
  const MoveCross vertical(MoveCross::Axes::Vertical, u"Go"_s);
  EXPECT_EQ(vertical.button(MoveDirection::Left, MoveSize::Small), nullptr);
  EXPECT_EQ(vertical.button(MoveDirection::Right, MoveSize::Large), nullptr);
  EXPECT_NE(vertical.button(MoveDirection::Up, MoveSize::Small), nullptr);
  EXPECT_NE(vertical.button(MoveDirection::Down, MoveSize::Large), nullptr);
  EXPECT_EQ(vertical.middle()->text(), "Go");
}

TEST_F(MoveCrossTest, EachButtonIsDrawnInItsOwnWay) {
  QVector<QImage> seen;
  for (auto* button : cross->findChildren<MoveButton*>()) {
    const QImage image = button->grab().toImage();
    EXPECT_FALSE(seen.contains(image)) << button->accessibleName().toStdString();
    seen.append(image);
    button->setEnabled(false);
    EXPECT_NE(button->grab().toImage(), image);
  }
  EXPECT_EQ(seen.size(), 8);
}

// On the axis of a chevron only its tip is dark.
TEST_F(MoveCrossTest, AChevronPointsWhereItsButtonStands) {
  for (const auto& [direction, towards] :
       {std::pair{MoveDirection::Right, QPoint(1, 0)},
        std::pair{MoveDirection::Left, QPoint(-1, 0)}, std::pair{MoveDirection::Down, QPoint(0, 1)},
        std::pair{MoveDirection::Up, QPoint(0, -1)}}) {
    const QImage image = cross->button(direction, MoveSize::Small)->grab().toImage();
    const QPoint middle = image.rect().center();
    int before = 0;
    int behind = 0;
    for (int step = 1; step < image.width() / 4; ++step) {
      before += image.pixelColor(middle + step * towards).lightness() < 100 ? 1 : 0;
      behind += image.pixelColor(middle - step * towards).lightness() < 100 ? 1 : 0;
    }
    EXPECT_GT(before, 0) << static_cast<int>(direction);
    EXPECT_EQ(behind, 0) << static_cast<int>(direction);
  }
}

// The largest difference in lightness between two pictures of the same size.
int Difference(const QImage& one, const QImage& other) {
  int largest = one.size() == other.size() ? 0 : 255;
  for (int y = 0; y < one.height() && largest < 255; ++y) {
    for (int x = 0; x < one.width(); ++x) {
      largest = qMax(largest,
                     qAbs(one.pixelColor(x, y).lightness() - other.pixelColor(x, y).lightness()));
    }
  }
  return largest;
}

TEST_F(MoveCrossTest, ChevronsAreTheSameDrawingTurned) {
  constexpr int kRoundingOfColours = 4;
  const auto chevron = [this](MoveDirection direction, MoveSize size) {
    const QImage image = cross->button(direction, size)->grab().toImage();
    return image.copy(image.rect().adjusted(8, 8, -8, -8));
  };
  for (const MoveSize size : {MoveSize::Small, MoveSize::Large}) {
    const QImage right = chevron(MoveDirection::Right, size);
    for (const auto& [direction, degrees] :
         {std::pair{MoveDirection::Down, 90}, std::pair{MoveDirection::Left, 180},
          std::pair{MoveDirection::Up, 270}}) {
      const QImage turned = right.transformed(QTransform().rotate(degrees));
      EXPECT_LE(Difference(chevron(direction, size), turned), kRoundingOfColours) << degrees;
    }
  }
}

TEST(MoveButtonFace, AChevronTakesTwentyOfThirtySixPixels) {
  for (const auto& [size, icon] :
       {std::pair{MoveSize::Small, IconName::StepSmall}, {MoveSize::Large, IconName::StepLarge}}) {
    MoveButton button(MoveDirection::Right, size, nullptr);
    const QImage picture = test::PictureOf(button, {36, 36}, test::Use::Rest);
    const QPalette palette = test::TellablePalette();
    QImage wanted(picture.size(), picture.format());
    wanted.fill(palette.color(QPalette::Button));
    QPainter painter(&wanted);
    DrawIcon(painter, icon, QRectF(8, 8, 20, 20), {palette.color(QPalette::ButtonText), {}});
    painter.end();
    EXPECT_LE(Difference(picture.copy(4, 4, 28, 28), wanted.copy(4, 4, 28, 28)), 4);
  }
}

TEST_F(MoveCrossTest, ArrowsMoveTheFocusAlongTheCrossAndClickNothing) {
  QSignalSpy clicks(cross->middle(), &QAbstractButton::clicked);
  cross->middle()->setFocus();
  struct Row {
    Qt::Key key;
    const char* focused;
  };
  for (const Row& row :
       {Row{Qt::Key_Up, "Up, small step"}, Row{Qt::Key_Up, "Up, large step"},
        Row{Qt::Key_Up, "Up, large step"}, Row{Qt::Key_Left, "Up, large step"},
        Row{Qt::Key_Down, "Up, small step"}, Row{Qt::Key_Down, ""},
        Row{Qt::Key_Right, "Right, small step"}, Row{Qt::Key_Right, "Right, large step"},
        Row{Qt::Key_Right, "Right, large step"}, Row{Qt::Key_Down, "Right, large step"},
        Row{Qt::Key_Left, "Right, small step"}, Row{Qt::Key_Left, ""},
        Row{Qt::Key_Left, "Left, small step"}, Row{Qt::Key_Left, "Left, large step"},
        Row{Qt::Key_Right, "Left, small step"}, Row{Qt::Key_Right, ""},
        Row{Qt::Key_Down, "Down, small step"}, Row{Qt::Key_Down, "Down, large step"},
        Row{Qt::Key_Down, "Down, large step"}}) {
    QTest::keyClick(QApplication::focusWidget(), row.key);
    EXPECT_EQ(Focused(), row.focused);
  }
  EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(MoveCrossTest, AClickActsOnceAndTakesTheFocus) {
  auto* button = cross->button(MoveDirection::Up, MoveSize::Small);
  QSignalSpy clicks(button, &QAbstractButton::clicked);
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(clicks.count(), 1);
  EXPECT_TRUE(button->hasFocus());
  QTest::keyClick(button, Qt::Key_Space);
  EXPECT_EQ(clicks.count(), 2);
}

TEST_F(MoveCrossTest, TheEnterKeyTheWheelAndARepeatingKeyDoNothing) {
  for (auto* button : cross->findChildren<QPushButton*>()) {
    QSignalSpy clicks(button, &QAbstractButton::clicked);
    EXPECT_FALSE(button->autoDefault());
    EXPECT_FALSE(TurnWheel(button));
    QTest::keyClick(button, Qt::Key_Return);
    QTest::keyClick(button, Qt::Key_Enter);
    for (int i = 0; i < 3; ++i) {
      QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
      QApplication::sendEvent(button, &press);
      QKeyEvent release(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier, " ", true);
      QApplication::sendEvent(button, &release);
    }
    EXPECT_TRUE(clicks.isEmpty()) << button->accessibleName().toStdString();
  }
}

TEST_F(MoveCrossTest, ButtonsStandFourPixelsApart) {
  cross->setFixedSize(cross->minimumSizeHint());
  QApplication::processEvents();
  const int middle = qMax(36, cross->middle()->sizeHint().width());
  EXPECT_EQ(cross->minimumSizeHint(), QSize(4 * 40 + middle, 4 * 40 + 36));
  EXPECT_EQ(cross->sizeHint().height(), 4 * 94 + 90);
  EXPECT_EQ(cross->middle()->geometry(), QRect(80, 80, middle, 36));
  const int above = 80 + (middle - 36) / 2;
  const int behind = 80 + middle + 4;
  struct Row {
    MoveDirection direction;
    MoveSize size;
    QPoint at;
  };
  for (const Row& row : {Row{MoveDirection::Up, MoveSize::Large, {above, 0}},
                         Row{MoveDirection::Up, MoveSize::Small, {above, 40}},
                         Row{MoveDirection::Down, MoveSize::Small, {above, 120}},
                         Row{MoveDirection::Down, MoveSize::Large, {above, 160}},
                         Row{MoveDirection::Left, MoveSize::Large, {0, 80}},
                         Row{MoveDirection::Left, MoveSize::Small, {40, 80}},
                         Row{MoveDirection::Right, MoveSize::Small, {behind, 80}},
                         Row{MoveDirection::Right, MoveSize::Large, {behind + 40, 80}}}) {
    const MoveButton* button = cross->button(row.direction, row.size);
    EXPECT_EQ(button->geometry(), QRect(row.at, QSize(36, 36)));
    EXPECT_EQ(button->sizeHint(), QSize(36, 36));
  }
}

TEST_F(MoveCrossTest, AnotherFontMovesTheButtonsAtOnce) {
  QFont large = cross->font();
  large.setPointSizeF(large.pointSizeF() * 3);
  MoveCross like(MoveCross::Axes::Both, u"Start"_s);
  like.setFont(large);
  like.resize(500, 500);
  like.show();
  cross->setFixedSize(500, 500);
  QApplication::processEvents();
  const int before = cross->minimumSizeHint().height();
  cross->setFont(large);
  EXPECT_GT(cross->minimumSizeHint().height(), before);
  EXPECT_EQ(cross->middle()->geometry(), like.middle()->geometry());
  for (const MoveDirection direction : {MoveDirection::Up, MoveDirection::Left}) {
    EXPECT_EQ(cross->button(direction, MoveSize::Small)->geometry(),
              like.button(direction, MoveSize::Small)->geometry());
  }
}

// A style may come with another font, of which the cross is not told by itself.
TEST_F(MoveCrossTest, AnotherStyleMovesTheButtonsAtOnce) {
  class NoFontChange : public QObject {
   protected:
    bool eventFilter(QObject*, QEvent* event) override {
      return event->type() == QEvent::FontChange;
    }
  };
  cross->setFixedSize(100, 500);
  QApplication::processEvents();
  NoFontChange filter;
  cross->installEventFilter(&filter);
  QFont large = cross->font();
  large.setPointSizeF(large.pointSizeF() * 3);
  cross->setFont(large);
  const MoveButton* button = cross->button(MoveDirection::Up, MoveSize::Large);
  const int side = GridHeight(36, *cross);
  ASSERT_GT(side, 36);
  EXPECT_EQ(button->width(), 36);
  QEvent change(QEvent::StyleChange);
  QApplication::sendEvent(cross, &change);
  EXPECT_EQ(button->width(), side);
}

TEST_F(MoveCrossTest, ButtonsAreNeverSmallerThanTheGrid) {
  cross->setFixedSize(100, 100);
  QApplication::processEvents();
  EXPECT_EQ(cross->button(MoveDirection::Up, MoveSize::Large)->size(), QSize(36, 36));
}

}  // namespace
}  // namespace mortane
