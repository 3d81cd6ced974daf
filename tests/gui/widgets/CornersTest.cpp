// How round the boxes of controls are, and that a stroke leaves its painter as it was.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyleOption>
#include <QToolButton>
#include <memory>

#include "gui/support/Face.h"
#include "widgets/Card.h"
#include "widgets/CheckToggle.h"
#include "widgets/CommandKey.h"
#include "widgets/PageButton.h"
#include "widgets/Paint.h"
#include "widgets/SectionBar.h"
#include "widgets/StyleProperties.h"
#include "widgets/TabStrip.h"
#include "widgets/TextField.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

using test::Use;

TEST(Stroke, LeavesItsPainterAsItWas) {
  QImage picture(40, 40, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  const QPen pen(Qt::green, 3);
  painter.setPen(pen);
  painter.setBrush(Qt::yellow);
  const QRectF area(5, 5, 20, 20);
  const Outline outline{Qt::blue, 2, 4, true};
  const std::function<void()> strokes[] = {
      [&] { DrawBox(painter, area, Qt::red, outline); },
      [&] { DrawChevronDown(painter, area, Qt::red); },
      [&] { DrawTick(painter, area, Qt::red); },
      [&] { DrawPendingDot(painter, area.center(), Qt::red, Qt::blue); },
  };
  for (const auto& draw : strokes) {
    draw();
    EXPECT_EQ(painter.pen(), pen);
    EXPECT_EQ(painter.brush(), QBrush(Qt::yellow));
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
  }
}

struct CornerRow {
  const char* what;
  QWidget* control;
  Use use;
  int y;
  const char* row;
};

template <class Control>
Control* Checked(Control* control) {
  control->setChecked(true);
  return control;
}

QPushButton* MainButton() {
  auto* button = new QPushButton;
  button->setProperty(kMainProperty, true);
  return button;
}

TabStrip* Tabs() {
  auto* tabs = new TabStrip;
  tabs->SetTabs({u" "_s});
  return tabs;
}

SectionOption* Section(bool first = true, bool last = true) {
  auto* option = new SectionOption({}, nullptr);
  option->SetEnds(first, last);
  return option;
}

PageButton* Page() {
  return new PageButton(IconName::System, {});
}

// In a row of pixels at the upper edge of a control of 60 x 40.
TEST(Corners, OfABoxAreRound) {
  for (const CornerRow& row : {
           CornerRow{"card", new Card, Use::Rest, 0, "Window 4, ~ 4, Mid 44, ~ 4, Window 4"},
           CornerRow{"inner frame", new InnerFrame, Use::Rest, 0,
                     "Window 3, ~ 3, Mid 48, ~ 3, Window 3"},
           CornerRow{"field", new TextField, Use::Rest, 0, "Window 2, ~ 3, Dark 50, ~ 3, Window 2"},
           CornerRow{"field", new TextField, Use::Focused, 0,
                     "Window 2, ~ 3, Highlight 50, ~ 3, Window 2"},
           CornerRow{"list", new QPlainTextEdit, Use::Rest, 0,
                     "Window 2, ~ 3, Mid 50, ~ 3, Window 2"},
           CornerRow{"list", new QPlainTextEdit, Use::Focused, 0,
                     "Window 2, ~ 3, Highlight 50, ~ 3, Window 2"},
           CornerRow{"button", new QPushButton, Use::Rest, 0,
                     "Window 2, ~ 3, Mid 50, ~ 3, Window 2"},
           CornerRow{"button", new QPushButton, Use::Focused, 0,
                     "Window 2, ~ 3, Highlight 50, ~ 3, Window 2"},
           CornerRow{"main button", MainButton(), Use::Rest, 0,
                     "Window 2, ~ 3, Highlight 50, ~ 3, Window 2"},
           CornerRow{"main button", MainButton(), Use::Focused, 0,
                     "Window 2, ~ 3, Highlight 50, ~ 3, Window 2"},
           CornerRow{"main button, inside", MainButton(), Use::Focused, 2,
                     "~ 2, Highlight 1, ~ 3, BrightText 48, ~ 3, Highlight 1, ~ 2"},
           CornerRow{"tool button", new QToolButton, Use::Hovered, 0,
                     "Window 2, ~ 3, Button 50, ~ 3, Window 2"},
           CornerRow{"tool button", new QToolButton, Use::Focused, 0,
                     "Window 2, ~ 3, Highlight 50, ~ 3, Window 2"},
           CornerRow{"key", new CommandKey(IconName::Send, {}), Use::Rest, 0,
                     "Window 4, ~ 3, Mid 46, ~ 3, Window 4"},
           CornerRow{"key, its lip", new CommandKey(IconName::Send, {}), Use::Rest, 39,
                     "Window 3, ~ 4, Mid 46, ~ 4, Window 3"},
           CornerRow{"key", new CommandKey(IconName::Send, {}), Use::Focused, 0,
                     "Window 3, ~ 4, Highlight 46, ~ 4, Window 3"},
           CornerRow{"switch", new CheckToggle, Use::Rest, 11,
                     "Window 10, ~ 4, Dark 18, ~ 4, Window 24"},
           CornerRow{"switch", new CheckToggle, Use::Focused, 0,
                     "Window 2, ~ 3, Highlight 50, ~ 3, Window 2"},
           CornerRow{"tab", Tabs(), Use::Focused, 1, "Window 3, ~ 3, Highlight 44, ~ 3, Window 7"},
           CornerRow{"section", Section(), Use::Rest, 0, "Window 3, ~ 4, Mid 46, ~ 4, Window 3"},
           CornerRow{"first section", Section(true, false), Use::Rest, 0,
                     "Window 3, ~ 4, Mid 52, ~ 1"},
           CornerRow{"first section", Section(true, false), Use::Rest, 1,
                     "Window 2, ~ 4, Button 53, Mid 1"},
           CornerRow{"middle section", Section(false, false), Use::Rest, 0,
                     "Mid 5, ~ 1, Mid 53, ~ 1"},
           CornerRow{"middle section", Section(false, false), Use::Rest, 1, "Button 59, Mid 1"},
           CornerRow{"middle section", Section(false, false), Use::Rest, 38, "Button 59, Mid 1"},
           CornerRow{"last section", Section(false, true), Use::Rest, 0,
                     "Mid 5, ~ 1, Mid 47, ~ 4, Window 3"},
           CornerRow{"last section", Section(false, true), Use::Rest, 1,
                     "Button 54, ~ 4, Window 2"},
           CornerRow{"section, inside", Section(), Use::Focused, 1,
                     "Window 2, ~ 4, Highlight 48, ~ 4, Window 2"},
           CornerRow{"page", Page(), Use::Focused, 3, "Rail 5, ~ 3, BrightText 44, ~ 3, Rail 5"},
           CornerRow{"check box", new QCheckBox, Use::Rest, 12,
                     "Window 6, ~ 3, Dark 8, ~ 3, Window 40"},
           CornerRow{"check box, on", Checked(new QCheckBox), Use::Rest, 12,
                     "Window 7, ~ 2, Highlight 8, ~ 2, Window 41"},
       }) {
    const QImage picture = test::PictureOf(*row.control, {60, 40}, row.use);
    const std::string shown = test::RowOf(picture, row.y);
    EXPECT_TRUE(test::SameButForEdges(shown, row.row)) << row.what << "\n" << shown;
    delete row.control;
  }
}

// Of a handle that fills its bar.
TEST(Corners, OfAHandleAreRound) {
  QImage picture(40, 12, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  QStyleOptionSlider bar;
  bar.palette = test::TellablePalette();
  bar.orientation = Qt::Horizontal;
  bar.rect = picture.rect();
  bar.maximum = 1;
  bar.pageStep = 1000;
  QApplication::style()->drawComplexControl(QStyle::CC_ScrollBar, &bar, &painter);
  painter.end();
  const std::string shown = test::RowOf(picture, 2, {{".", Qt::white}});
  EXPECT_TRUE(test::SameButForEdges(shown, ". 3, ~ 3, Mid 27, ~ 3, . 4")) << shown;
}

}  // namespace
}  // namespace mortane
