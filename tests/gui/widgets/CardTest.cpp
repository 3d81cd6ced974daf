#include "widgets/Card.h"

#include "gui/support/Face.h"
#include "gui/support/FontScope.h"
#include "gui/support/TestWindow.h"
#include "widgets/Theme.h"
#include "widgets/ValueBox.h"
#include "widgets/ValueLabel.h"

namespace mortane {
namespace {

TEST(Card, StandsOnTheGroundOfFieldsWithinALine) {
  for (const test::Use use : {test::Use::Rest, test::Use::Disabled}) {
    Card card;
    const QImage picture = test::PictureOf(card, {40, 30}, use);
    const bool enabled = use == test::Use::Rest;
    EXPECT_EQ(test::RowOf(picture),
              enabled ? "Mid 1, Base 38, Mid 1" : "disabled Mid 1, Base 38, disabled Mid 1");
    EXPECT_EQ(test::ColumnOf(picture),
              enabled ? "Mid 1, Base 28, Mid 1" : "disabled Mid 1, Base 28, disabled Mid 1");
  }
}

TEST(Card, AnInnerFrameLosesItsGroundWithWhatItStandsFor) {
  InnerFrame frame;
  const QImage fitted = test::PictureOf(frame, {40, 30}, test::Use::Rest);
  EXPECT_EQ(test::RowOf(fitted), "Mid 1, AlternateBase 38, Mid 1");
  EXPECT_EQ(test::ColumnOf(fitted), "Mid 1, AlternateBase 28, Mid 1");
  const QImage missing = test::PictureOf(frame, {40, 30}, test::Use::Disabled);
  EXPECT_EQ(test::RowOf(missing, 15), "disabled Window 40") << "between two dashes";
}

TEST(Card, LeavesRoomAroundItsContentsAndLessAboveACaption) {
  const Card plain;
  EXPECT_EQ(plain.body()->contentsMargins(), QMargins(16, 16, 16, 16));
  const Card captioned("Records");
  EXPECT_EQ(captioned.body()->contentsMargins(), QMargins(16, 12, 16, 16));
  EXPECT_EQ(captioned.body()->spacing(), 12);
  const InnerFrame inner("Records");
  EXPECT_EQ(inner.body()->contentsMargins(), QMargins(16, 12, 16, 12));
  EXPECT_EQ(inner.body()->spacing(), 8);
}

TEST(Card, ItsCaptionIsItsNameForScreenReadersToo) {
  Card card("Records");
  EXPECT_EQ(card.caption(), "Records");
  EXPECT_EQ(card.accessibleName(), "Records");
  EXPECT_EQ(Card().caption(), QString());
  InnerFrame frame("Records");
  EXPECT_EQ(frame.accessibleName(), "Records");
  frame.SetCaption("Others");
  EXPECT_EQ(frame.caption(), "Others");
  EXPECT_EQ(frame.accessibleName(), "Others");
}

TEST(Card, ALongCaptionGoesOnInAnotherLine) {
  const QString text = "A caption of several words";
  TestWindow window;
  auto* card = window.Add<Card>(text);
  window.Show();
  auto* caption = card->findChild<QLabel*>();
  ASSERT_NE(caption, nullptr);
  const int line = caption->fontMetrics().height();
  const int whole = caption->sizeHint().width();
  EXPECT_LT(caption->minimumSizeHint().width(), whole * 7 / 10);
  EXPECT_LT(caption->sizeHint().height(), 2 * line);
  caption->resize(whole, line);
  EXPECT_LT(caption->sizeHint().height(), 2 * line);
  caption->resize(whole * 7 / 10, line);
  EXPECT_GE(caption->sizeHint().height(), 2 * line);
  EXPECT_EQ(caption->minimumSizeHint().height(), caption->sizeHint().height());
  InnerFrame word("Records");
  const auto* single = word.findChild<QLabel*>();
  EXPECT_EQ(single->minimumSizeHint().width(), single->sizeHint().width());
}

TEST(Card, ACaptionOverAValueIsSmallAndQuiet) {
  QLabel* caption = CaptionLabel("HHHH", nullptr);
  EXPECT_EQ(caption->font(), CaptionFont());
  caption->setFont(FontOf(20));  // strokes of whole pixels
  const QImage picture = test::PictureOf(*caption, {120, 40}, test::Use::Rest);
  const QPalette palette = test::TellablePalette();
  EXPECT_FALSE(test::AreaOf(picture, palette.color(QPalette::PlaceholderText)).isEmpty());
  EXPECT_TRUE(test::AreaOf(picture, palette.color(QPalette::WindowText)).isEmpty());
  delete caption;
}

TEST(Card, ACaptionOfTwoLinesIsWrittenInBoth) {
  Card card("A caption of several words");
  auto* caption = card.findChild<QLabel*>();
  const int line = caption->fontMetrics().height();
  const QSize whole = caption->sizeHint();
  const QColor ink = test::TellablePalette().color(QPalette::WindowText);
  const QImage one = test::PictureOf(*caption, {whole.width(), 2 * line}, test::Use::Rest);
  EXPECT_LE(test::AreaOf(one, ink).height(), line);
  const QImage two = test::PictureOf(*caption, {whole.width() * 7 / 10, 2 * line}, test::Use::Rest);
  EXPECT_GT(test::AreaOf(two, ink).height(), line);
  delete caption;
}

TEST(ValueBox, ColumnsShareTheWidthByTheirStretches) {
  ValueBox box;
  const ValueBox::Value narrow = box.AddValue("One", 2, 1);
  const ValueBox::Value wide = box.AddValue("Two", 2, 3);
  box.resize(16 + 100 + 16 + 300 + 16, 100);
  box.show();
  QApplication::processEvents();
  EXPECT_EQ(narrow.value->width(), 100);
  EXPECT_EQ(wide.value->width(), 300);
  EXPECT_EQ(wide.value->x() - narrow.value->geometry().right() - 1, 16);
  EXPECT_EQ(wide.value->y() - wide.caption->geometry().bottom() - 1, 4);
  EXPECT_EQ(wide.value->accessibleName(), "Two");
  EXPECT_EQ(wide.caption->buddy(), wide.value);
  const ValueBox::Value third = box.AddValue("Three", 12, 1);
  EXPECT_EQ(third.value->sizeHint().width(),
            12 * third.value->fontMetrics().horizontalAdvance(u'0'));
}

}  // namespace
}  // namespace mortane
