// Where controls write their texts, and in which colour.
#include <QPushButton>
#include <QStyleOption>

#include "gui/support/Face.h"
#include "gui/support/TestWindow.h"
#include "widgets/CheckToggle.h"
#include "widgets/CommandKey.h"
#include "widgets/PageButton.h"
#include "widgets/SectionBar.h"
#include "widgets/StyleProperties.h"
#include "widgets/TabStrip.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

using test::Use;

const QString kText = u"HHHH"_s;

QColor Role(QPalette::ColorRole role, QPalette::ColorGroup group = QPalette::Active) {
  return test::TellablePalette().color(group, role);
}

// Around all that stands on the ground, whose colour the first pixel has.
QRectF WrittenIn(const QImage& picture, const QRect& ground) {
  QRect area;
  for (int y = ground.top(); y <= ground.bottom(); ++y) {
    for (int x = ground.left(); x <= ground.right(); ++x) {
      if (picture.pixel(x, y) != picture.pixel(ground.topLeft())) area |= QRect(x, y, 1, 1);
    }
  }
  return area;
}

// A thin stroke may be lighter than its pen.
bool IsWrittenIn(const QImage& picture, const QColor& color) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QColor pixel = picture.pixelColor(x, y);
      if (qAbs(pixel.red() - color.red()) + qAbs(pixel.green() - color.green()) +
              qAbs(pixel.blue() - color.blue()) <
          60)
        return true;
    }
  }
  return false;
}

struct TextRow {
  const char* what;
  QWidget* control;
  QSize size;
  Use use;
  QColor color;
  QPointF centre;
};

QPushButton* Button(bool main) {
  auto* button = new QPushButton(kText);
  button->setProperty(kMainProperty, main);
  return button;
}

SectionOption* Option(ChosenLook look, bool chosen) {
  auto* option = new SectionOption(kText, nullptr, look);
  option->setChecked(chosen);
  return option;
}

TabStrip* Tabs() {
  auto* tabs = new TabStrip;
  tabs->SetTabs({kText, u" "_s});
  return tabs;
}

PageButton* Page(bool selected) {
  auto* page = new PageButton(IconName::System, kText);
  page->SetSelected(selected);
  return page;
}

TEST(TextPlace, IsTheMiddleOfAButtonsFace) {
  const auto disabled = QPalette::Disabled;
  for (const TextRow& row : {
           TextRow{
               "button", Button(false), {100, 30}, Use::Rest, Role(QPalette::ButtonText), {50, 15}},
           TextRow{
               "main", Button(true), {100, 30}, Use::Rest, Role(QPalette::BrightText), {50, 15}},
           TextRow{"main, disabled",
                   Button(true),
                   {100, 30},
                   Use::Disabled,
                   Role(QPalette::ButtonText, disabled),
                   {50, 15}},
           TextRow{"section",
                   Option(ChosenLook::Amber, false),
                   {100, 34},
                   Use::Rest,
                   Role(QPalette::ButtonText),
                   {50, 17}},
           TextRow{"chosen section",
                   Option(ChosenLook::Amber, true),
                   {100, 34},
                   Use::Rest,
                   ToneColor(Tone::OnAmber),
                   {50, 17}},
           TextRow{"chosen part",
                   Option(ChosenLook::Blue, true),
                   {100, 34},
                   Use::Rest,
                   Role(QPalette::HighlightedText),
                   {50, 17}},
           TextRow{"section that is not offered",
                   Option(ChosenLook::Amber, true),
                   {100, 34},
                   Use::Disabled,
                   Role(QPalette::ButtonText, disabled),
                   {50, 17}},
           TextRow{"tab", Tabs(), {112, 32}, Use::Rest, Role(QPalette::WindowText), {28, 14}},
           TextRow{"disabled tab",
                   Tabs(),
                   {112, 32},
                   Use::Disabled,
                   Role(QPalette::WindowText, disabled),
                   {28, 14}},
           TextRow{
               "page", Page(false), {104, 78}, Use::Rest, ToneColor(Tone::RailResting), {52, 61}},
           TextRow{"hovered page",
                   Page(false),
                   {104, 78},
                   Use::Hovered,
                   ToneColor(Tone::RailText),
                   {52, 61}},
           TextRow{"page on show",
                   Page(true),
                   {104, 78},
                   Use::Rest,
                   ToneColor(Tone::RailText),
                   {52, 61}},
       }) {
    // Without the line of a button, the picture of a page and the line below a tab.
    const QRect ground(4, row.size.height() == 78 ? 48 : 4, row.size.width() == 112 ? 48 : 92,
                       row.size.height() == 78 ? 28 : 22);
    const QImage picture = test::PictureOf(*row.control, row.size, row.use);
    EXPECT_FALSE(test::AreaOf(picture.copy(ground), row.color).isEmpty()) << row.what;
    const QRectF text = WrittenIn(picture, ground);
    EXPECT_NEAR(text.center().x(), row.centre.x(), 1.5) << row.what;
    EXPECT_NEAR(text.center().y(), row.centre.y(), 2) << row.what;
    delete row.control;
  }
}

TEST(TextPlace, OfAKeyIsBehindItsPicture) {
  CommandKey key(IconName::Send, kText);
  const int width = key.fontMetrics().horizontalAdvance(kText);
  const QRectF text = test::AreaOf(test::PictureOf(key, {160, 42}, Use::Rest).copy(64, 0, 96, 42),
                                   Role(QPalette::ButtonText));
  EXPECT_NEAR(text.center().x() + 64, (160 - 22 - 10 - width) / 2.0 + 32 + width / 2.0, 1.5);
  EXPECT_NEAR(text.center().y(), 20, 2);
}

TEST(TextPlace, OfASwitchIsBehindItsTrack) {
  CheckToggle toggle;
  const QRect off =
      test::AreaOf(test::PictureOf(toggle, {100, 26}, Use::Rest), Role(QPalette::WindowText));
  EXPECT_GE(off.left(), 50);
  EXPECT_LE(off.left(), 53);
  EXPECT_NEAR(QRectF(off).center().y(), 13, 2);
  toggle.SetUnknown();
  const QImage unknown = test::PictureOf(toggle, {100, 26}, Use::Rest);
  EXPECT_FALSE(test::AreaOf(unknown, Role(QPalette::PlaceholderText)).isEmpty());
  EXPECT_TRUE(test::AreaOf(unknown, Role(QPalette::WindowText)).isEmpty());
}

// The rectangle around the text that an element of the style draws into 100 x 30 pixels.
template <class Option, class Draw>
QRectF Drawn(Option option, QStyle::State state, QPalette::ColorRole role, const Draw& draw) {
  QImage picture(100, 30, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  option.rect = picture.rect();
  option.state = state | QStyle::State_Enabled;
  option.palette = test::TellablePalette();
  option.fontMetrics = painter.fontMetrics();
  option.text = kText;
  draw(option, painter);
  painter.end();
  EXPECT_TRUE(IsWrittenIn(picture, Role(role)));
  return WrittenIn(picture, picture.rect());
}

// Beside the indicator, 5 pixels from the edge, with 16 and 8 pixels for it and the gap.
TEST(TextPlace, OfAnOptionIsInTheMiddleOfItsRowAtEveryHeight) {
  const QStyle& style = *QApplication::style();
  for (const QStyle::ControlElement element : {QStyle::CE_CheckBox, QStyle::CE_RadioButton}) {
    for (int height = 20; height <= 30; ++height) {
      QImage picture(100, height, QImage::Format_RGB32);
      picture.fill(Qt::white);
      QImage wanted = picture;
      QStyleOptionButton option;
      option.rect = picture.rect();
      option.state = QStyle::State_Enabled;
      option.palette = test::TellablePalette();
      option.fontMetrics = QFontMetrics(QApplication::font());
      option.text = kText;
      QPainter painter(&picture);
      style.drawControl(element, &option, &painter);
      painter.end();
      QPainter drawn(&wanted);
      style.drawItemText(&drawn, QRect(29, 0, 66, height), Qt::AlignLeft | Qt::AlignVCenter,
                         option.palette, true, kText, QPalette::WindowText);
      drawn.end();
      const QRect label(27, 0, 73, height);
      EXPECT_EQ(picture.copy(label), wanted.copy(label)) << element << ' ' << height;
    }
  }
}

TEST(TextPlace, OfAHeaderGoesByItsAlignment) {
  for (const auto& [alignment, left] : {std::pair{Qt::AlignLeft, true}, {Qt::AlignRight, false}}) {
    QStyleOptionHeader header;
    header.textAlignment = alignment;
    const QRectF text =
        Drawn(header, {}, QPalette::PlaceholderText,
              [](const QStyleOptionHeader& option, QPainter& painter) {
                QApplication::style()->drawControl(QStyle::CE_HeaderLabel, &option, &painter);
              });
    EXPECT_NEAR(left ? text.left() : 100 - text.right(), 1.5, 1.5);
    EXPECT_NEAR(text.center().y(), 15, 2);
  }
}

TEST(TextPlace, OfAMenuIsInItsMiddle) {
  for (const auto& [state, role] : {std::pair{QStyle::State_None, QPalette::ButtonText},
                                    {QStyle::State_Selected, QPalette::HighlightedText}}) {
    const QRectF text =
        Drawn(QStyleOptionMenuItem(), state, role,
              [](const QStyleOptionMenuItem& option, QPainter& painter) {
                QApplication::style()->drawControl(QStyle::CE_MenuBarItem, &option, &painter);
              });
    EXPECT_NEAR(text.center().x(), 50, 1.5);
    EXPECT_NEAR(text.center().y(), 15, 2);
  }
}

TEST(TextPlace, OfAToolButtonIsBehindItsIcon) {
  QStyleOptionToolButton option;
  option.toolButtonStyle = Qt::ToolButtonTextBesideIcon;
  option.iconSize = {22, 22};
  const QRectF text = Drawn(
      option, {}, QPalette::ButtonText, [](const QStyleOptionToolButton& drawn, QPainter& painter) {
        QApplication::style()->drawControl(QStyle::CE_ToolButtonLabel, &drawn, &painter);
      });
  EXPECT_NEAR(text.left(), 10 + 22 + 6 + 1, 1.5);
  EXPECT_NEAR(text.center().y(), 15, 2);
}

}  // namespace
}  // namespace mortane
