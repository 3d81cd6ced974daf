// How the ordinary controls are drawn.
#include "widgets/Style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyleOption>

#include "gui/support/Scanline.h"
#include "widgets/StyleProperties.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

using namespace Qt::StringLiterals;
using S = QStyle;

constexpr S::State kDisabled = S::State_None;
constexpr S::State kEnabled = S::State_Enabled;
constexpr S::State kFocused = S::State_Enabled | S::State_HasFocus;
constexpr S::State kHovered = S::State_Enabled | S::State_MouseOver;
constexpr S::State kSunken = S::State_Enabled | S::State_Sunken;
constexpr S::State kOn = S::State_Enabled | S::State_On;

// The ground of each picture, of which 3 pixels are left free at the sides and 2 above and below.
constexpr QRect kArea{3, 2, 34, 20};
const QColor kGround = Qt::white;

std::vector<test::NamedColor> Names() {
  const QColor main = test::TellablePalette().color(QPalette::Highlight);
  return {{".", kGround},
          {"red", Qt::red},
          {"darker", main.darker(125)},
          {"lighter", main.lighter(112)}};
}

// What an element of that state shows along its middle row and its middle column.
template <class Option, class Draw>
std::pair<std::string, std::string> Shown(Option option, S::State state, const Draw& draw,
                                          const QRect& area = kArea) {
  QImage picture(40, 24, QImage::Format_RGB32);
  picture.fill(kGround);
  QPainter painter(&picture);
  option.rect = area;
  option.state = state;
  option.palette = test::TellablePalette();
  option.palette.setCurrentColorGroup(state.testFlag(S::State_Enabled) ? QPalette::Active
                                                                       : QPalette::Disabled);
  draw(*QApplication::style(), option, painter);
  painter.end();
  return {test::RowOf(picture, Names()), test::ColumnOf(picture, Names())};
}

struct ShownRow {
  const char* what;
  S::State state;
  const char* row;
  const char* column;  // null where dashes begin and end in it
};

template <class Option, class Draw>
void ExpectShown(const ShownRow& expected, const Option& option, const Draw& draw) {
  const auto [row, column] = Shown(option, expected.state, draw);
  EXPECT_EQ(row, expected.row) << expected.what;
  if (expected.column != nullptr) {
    EXPECT_EQ(column, expected.column) << expected.what;
  }
}

template <class Option>
void ExpectPrimitive(S::PrimitiveElement element, const ShownRow& expected,
                     const Option& option = {}, const QWidget* widget = nullptr) {
  ExpectShown(expected, option, [&](const S& style, const Option& drawn, QPainter& painter) {
    style.drawPrimitive(element, &drawn, &painter, widget);
  });
}

template <class Option>
void ExpectControl(S::ControlElement element, const ShownRow& expected, const Option& option = {}) {
  ExpectShown(expected, option, [&](const S& style, const Option& drawn, QPainter& painter) {
    style.drawControl(element, &drawn, &painter, nullptr);
  });
}

TEST(Style, AFieldTellsItsStateByItsLine) {
  QStyleOptionFrame option;
  option.lineWidth = 1;
  for (const ShownRow& row : {
           ShownRow{"at rest", kEnabled, ". 3, Dark 1, Base 32, Dark 1, . 3",
                    ". 2, Dark 1, Base 18, Dark 1, . 2"},
           ShownRow{"focused", kFocused, ". 3, Highlight 2, Base 30, Highlight 2, . 3",
                    ". 2, Highlight 2, Base 16, Highlight 2, . 2"},
           ShownRow{"disabled", kDisabled,
                    ". 3, disabled Mid 1, disabled Base 32, disabled Mid 1, . 3",
                    ". 2, disabled Mid 1, disabled Base 18, disabled Mid 1, . 2"},
           ShownRow{"read only", kEnabled | S::State_ReadOnly,
                    ". 3, Mid 1, AlternateBase 32, Mid 1, . 3",
                    ". 2, Mid 1, AlternateBase 18, Mid 1, . 2"},
           ShownRow{"read only and focused", kFocused | S::State_ReadOnly,
                    ". 3, Highlight 2, AlternateBase 30, Highlight 2, . 3",
                    ". 2, Highlight 2, AlternateBase 16, Highlight 2, . 2"},
       }) {
    ExpectPrimitive(S::PE_PanelLineEdit, row, option);
  }
  QWidget refused;
  refused.setProperty(kRefusedProperty, true);
  ExpectPrimitive(
      S::PE_PanelLineEdit,
      {"refused", kEnabled, ". 3, RefusedLine 2, RefusedBackground 30, RefusedLine 2, . 3",
       ". 2, RefusedLine 2, RefusedBackground 16, RefusedLine 2, . 2"},
      option, &refused);
  option.lineWidth = 0;
  ExpectPrimitive(S::PE_PanelLineEdit, {"in another control", kEnabled, ". 40", ". 24"}, option);
  ExpectPrimitive(S::PE_FrameLineEdit, {"its frame alone", kEnabled, ". 40", ". 24"}, option);
}

TEST(Style, AListHasALineAndNoGround) {
  QStyleOptionFrame option;
  option.lineWidth = 1;
  const QPlainTextEdit list;
  ExpectPrimitive(
      S::PE_Frame,
      {"at rest", kEnabled, ". 3, Mid 1, . 32, Mid 1, . 3", ". 2, Mid 1, . 18, Mid 1, . 2"}, option,
      &list);
  option.lineWidth = 0;
  ExpectPrimitive(S::PE_Frame, {"in another control", kEnabled, ". 40", ". 24"}, option, &list);
}

TEST(Style, ACheckBoxTellsItsStateByLineGroundAndTick) {
  for (const ShownRow& row : {
           ShownRow{"off", kEnabled, ". 3, Dark 1, ~ 1, Base 30, ~ 1, Dark 1, . 3",
                    ". 2, Dark 1, ~ 1, Base 16, ~ 1, Dark 1, . 2"},
           ShownRow{"off and hovered", kHovered, ". 3, Shadow 1, ~ 1, Base 30, ~ 1, Shadow 1, . 3",
                    ". 2, Shadow 1, ~ 1, Base 16, ~ 1, Shadow 1, . 2"},
           ShownRow{"on", kOn,
                    ". 3, Highlight 6, ~ 1, BrightText 4, ~ 2, Highlight 2, ~ 2, BrightText 6, ~ "
                    "2, Highlight 9, . 3",
                    ". 2, Highlight 9, ~ 1, BrightText 4, ~ 2, Highlight 4, . 2"},
           ShownRow{"on and hovered", kOn | S::State_MouseOver,
                    ". 3, Highlight 6, ~ 1, BrightText 4, ~ 2, Highlight 2, ~ 2, BrightText 6, ~ "
                    "2, Highlight 9, . 3",
                    ". 2, Highlight 9, ~ 1, BrightText 4, ~ 2, Highlight 4, . 2"},
           ShownRow{"off and disabled", kDisabled,
                    ". 3, disabled Mid 1, disabled Base 32, disabled Mid 1, . 3",
                    ". 2, disabled Mid 1, disabled Base 18, disabled Mid 1, . 2"},
           ShownRow{"off, disabled and hovered", S::State_MouseOver,
                    ". 3, disabled Mid 1, disabled Base 32, disabled Mid 1, . 3",
                    ". 2, disabled Mid 1, disabled Base 18, disabled Mid 1, . 2"},
           ShownRow{"on and disabled", S::State_On,
                    ". 3, disabled Mid 1, disabled Base 5, ~ 1, disabled Text 4, ~ 2, disabled "
                    "Base 2, ~ 2, disabled Text 6, ~ 2, disabled Base 8, disabled Mid 1, . 3",
                    ". 2, disabled Mid 1, disabled Base 8, ~ 1, disabled Text 4, ~ 2, disabled "
                    "Base 3, disabled Mid 1, . 2"},
       }) {
    ExpectPrimitive<QStyleOptionButton>(S::PE_IndicatorCheckBox, row);
  }
}

TEST(Style, AnOptionTellsItsStateByLineGroundAndDot) {
  for (const ShownRow& row : {
           ShownRow{"off", kEnabled, ". 10, ~ 2, Base 16, ~ 2, . 10",
                    ". 2, ~ 2, Base 16, ~ 2, . 2"},
           ShownRow{"on", kOn,
                    ". 10, ~ 1, Highlight 5, ~ 1, BrightText 6, ~ 1, Highlight 5, ~ 1, . 10",
                    ". 2, ~ 1, Highlight 5, ~ 1, BrightText 6, ~ 1, Highlight 5, ~ 1, . 2"},
           ShownRow{"off and disabled", kDisabled, ". 10, ~ 2, disabled Base 16, ~ 2, . 10",
                    nullptr},
           ShownRow{
               "on and disabled", S::State_On,
               ". 10, ~ 2, disabled Base 4, ~ 1, disabled Text 6, ~ 1, disabled Base 4, ~ 2, . 10",
               nullptr},
       }) {
    ExpectPrimitive<QStyleOptionButton>(S::PE_IndicatorRadioButton, row);
  }
}

TEST(Style, AButtonTellsItsStateByLineAndGround) {
  for (const ShownRow& row : {
           ShownRow{"at rest", kEnabled, ". 3, Mid 1, Button 32, Mid 1, . 3",
                    ". 2, Mid 1, Button 18, Mid 1, . 2"},
           ShownRow{"hovered", kHovered, ". 3, Dark 1, Button 32, Dark 1, . 3",
                    ". 2, Dark 1, Button 18, Dark 1, . 2"},
           ShownRow{"pressed", kSunken, ". 3, Mid 34, . 3", ". 2, Mid 20, . 2"},
           ShownRow{"pressed and hovered", kSunken | S::State_MouseOver, ". 3, Mid 34, . 3",
                    ". 2, Mid 20, . 2"},
           ShownRow{"on", kOn, ". 3, Mid 34, . 3", ". 2, Mid 20, . 2"},
           ShownRow{"focused", kFocused, ". 3, Highlight 2, Button 30, Highlight 2, . 3",
                    ". 2, Highlight 2, Button 16, Highlight 2, . 2"},
           ShownRow{"disabled", kDisabled,
                    ". 3, disabled Mid 1, disabled Base 32, disabled Mid 1, . 3",
                    ". 2, disabled Mid 1, disabled Base 18, disabled Mid 1, . 2"},
           ShownRow{"disabled and pressed", S::State_Sunken | S::State_MouseOver,
                    ". 3, disabled Mid 1, disabled Base 32, disabled Mid 1, . 3",
                    ". 2, disabled Mid 1, disabled Base 18, disabled Mid 1, . 2"},
       }) {
    ExpectPrimitive<QStyleOptionButton>(S::PE_PanelButtonCommand, row);
  }
}

TEST(Style, TheMainButtonIsFilled) {
  QStyleOptionButton byDefault;
  byDefault.features = QStyleOptionButton::DefaultButton;
  QWidget named;
  named.setProperty(kMainProperty, true);
  for (const ShownRow& row : {
           ShownRow{"at rest", kEnabled, ". 3, Highlight 34, . 3", ". 2, Highlight 20, . 2"},
           ShownRow{"hovered", kHovered, ". 3, Highlight 1, lighter 32, Highlight 1, . 3",
                    ". 2, Highlight 1, lighter 18, Highlight 1, . 2"},
           ShownRow{"pressed", kSunken, ". 3, Highlight 1, darker 32, Highlight 1, . 3",
                    ". 2, Highlight 1, darker 18, Highlight 1, . 2"},
           ShownRow{"focused", kFocused,
                    ". 3, Highlight 2, BrightText 1, ~ 1, Highlight 26, ~ 1, BrightText 1, "
                    "Highlight 2, . 3",
                    ". 2, Highlight 2, BrightText 1, ~ 1, Highlight 12, ~ 1, BrightText 1, "
                    "Highlight 2, . 2"},
           ShownRow{"disabled", kDisabled,
                    ". 3, disabled Mid 1, disabled Base 32, disabled Mid 1, . 3",
                    ". 2, disabled Mid 1, disabled Base 18, disabled Mid 1, . 2"},
       }) {
    ExpectPrimitive(S::PE_PanelButtonCommand, row, byDefault);
    ExpectPrimitive(S::PE_PanelButtonCommand, row, QStyleOptionButton(), &named);
  }
}

TEST(Style, AToolButtonHasAGroundWhileItIsInUse) {
  for (const ShownRow& row : {
           ShownRow{"at rest", kEnabled, ". 40", ". 24"},
           ShownRow{"hovered", kHovered, ". 3, Button 34, . 3", ". 2, Button 20, . 2"},
           ShownRow{"pressed", kSunken | S::State_MouseOver, ". 3, Mid 34, . 3",
                    ". 2, Mid 20, . 2"},
           ShownRow{"on", kOn, ". 3, Mid 34, . 3", ". 2, Mid 20, . 2"},
           ShownRow{"focused", kFocused, ". 3, Highlight 2, . 30, Highlight 2, . 3",
                    ". 2, Highlight 2, . 16, Highlight 2, . 2"},
           ShownRow{"disabled", S::State_MouseOver | S::State_Sunken, ". 40", ". 24"},
       }) {
    ExpectPrimitive<QStyleOptionToolButton>(S::PE_PanelButtonTool, row);
  }
}

TEST(Style, AToolButtonHasItsIconTenPixelsBehindItsEdge) {
  QPixmap icon(16, 16);
  icon.fill(Qt::red);
  QStyleOptionToolButton option;
  option.toolButtonStyle = Qt::ToolButtonTextBesideIcon;
  option.icon = icon;
  option.iconSize = icon.size();
  ExpectControl(S::CE_ToolButtonLabel,
                {"label", kEnabled, ". 13, red 16, . 11", ". 4, red 16, . 4"}, option);
}

TEST(Style, ARowIsFilledWhereItIsSelected) {
  for (const ShownRow& row : {
           ShownRow{"at rest", kEnabled, ". 40", ". 24"},
           ShownRow{"selected", kEnabled | S::State_Selected, ". 3, Highlight 34, . 3",
                    ". 2, Highlight 20, . 2"},
           ShownRow{"selected and disabled", S::State_Selected, ". 3, disabled Highlight 34, . 3",
                    ". 2, disabled Highlight 20, . 2"},
       }) {
    ExpectPrimitive<QStyleOptionViewItem>(S::PE_PanelItemViewItem, row);
  }
  ExpectPrimitive<QStyleOptionViewItem>(S::PE_PanelItemViewRow,
                                        {"behind it", kEnabled, ". 40", ". 24"});
}

TEST(Style, TheLineOfTheFocusIsLeftToButtonsAndLists) {
  ExpectPrimitive<QStyleOptionFocusRect>(
      S::PE_FrameFocusRect, {"alone", kEnabled, ". 3, Highlight 2, . 30, Highlight 2, . 3",
                             ". 2, Highlight 2, . 16, Highlight 2, . 2"});
  const QWidget other;
  ExpectPrimitive<QStyleOptionFocusRect>(
      S::PE_FrameFocusRect,
      {"of another", kEnabled, ". 3, Highlight 2, . 30, Highlight 2, . 3",
       ". 2, Highlight 2, . 16, Highlight 2, . 2"},
      {}, &other);
  const QPushButton button;
  ExpectPrimitive<QStyleOptionFocusRect>(S::PE_FrameFocusRect,
                                         {"of a button", kEnabled, ". 40", ". 24"}, {}, &button);
}

TEST(Style, BarsHaveALineTowardsTheMiddleOfTheWindow) {
  ExpectPrimitive<QStyleOption>(
      S::PE_PanelStatusBar,
      {"status bar", kEnabled, ". 3, Window 34, . 3", ". 2, Mid 1, Window 19, . 2"});
  ExpectPrimitive<QStyleOption>(S::PE_PanelStatusBar,
                                {"disabled", kDisabled, ". 3, disabled Window 34, . 3",
                                 ". 2, Mid 1, disabled Window 19, . 2"});
  ExpectPrimitive<QStyleOption>(S::PE_FrameStatusBarItem, {"its parts", kEnabled, ". 40", ". 24"});
  ExpectControl<QStyleOptionToolBar>(
      S::CE_ToolBar, {"tool bar", kEnabled, ". 3, Window 34, . 3", ". 2, Window 19, Mid 1, . 2"});
  ExpectControl<QStyleOptionHeader>(
      S::CE_HeaderSection,
      {"header", kEnabled, ". 3, AlternateBase 34, . 3", ". 2, AlternateBase 19, Mid 1, . 2"});
  ExpectControl<QStyleOptionHeader>(
      S::CE_HeaderEmptyArea,
      {"beside it", kEnabled, ". 3, AlternateBase 34, . 3", ". 2, AlternateBase 19, Mid 1, . 2"});
  ExpectControl<QStyleOptionMenuItem>(
      S::CE_MenuBarEmptyArea, {"menu bar", kEnabled, ". 3, Window 34, . 3", ". 2, Window 20, . 2"});
}

TEST(Style, AnOpenMenuIsFilled) {
  for (const ShownRow& row : {
           ShownRow{"at rest", kEnabled, ". 3, Window 34, . 3", ". 2, Window 20, . 2"},
           ShownRow{"open", kEnabled | S::State_Selected,
                    ". 3, Window 2, Highlight 30, Window 2, . 3",
                    ". 2, Window 2, Highlight 16, Window 2, . 2"},
           ShownRow{"disabled", S::State_Selected, ". 3, disabled Window 34, . 3",
                    ". 2, disabled Window 20, . 2"},
       }) {
    ExpectControl<QStyleOptionMenuItem>(S::CE_MenuBarItem, row);
  }
}

TEST(Style, IndicatorsStandInTheirRowsWithRoomForTheFocus) {
  for (const ShownRow& row : {
           ShownRow{"at rest", kEnabled, ". 8, Dark 1, ~ 1, Base 12, ~ 1, Dark 1, . 16",
                    ". 4, ~ 2, Base 12, ~ 2, . 4"},
           ShownRow{
               "focused", kFocused,
               ". 3, Highlight 2, . 3, Dark 1, ~ 1, Base 12, ~ 1, Dark 1, . 11, Highlight 2, . 3",
               ". 2, Highlight 2, ~ 2, Base 12, ~ 2, Highlight 2, . 2"},
       }) {
    ExpectControl<QStyleOptionButton>(S::CE_CheckBox, row);
  }
  ExpectControl<QStyleOptionButton>(
      S::CE_RadioButton,
      {"option", kEnabled, ". 8, ~ 2, Base 12, ~ 2, . 16", ". 5, ~ 3, Base 8, ~ 3, . 5"});
}

// In a row of an odd height the spare pixel is below.
TEST(Style, AnIndicatorStandsInTheMiddleOfItsRow) {
  const auto draw = [](const S& style, const QStyleOptionButton& option, QPainter& painter) {
    style.drawControl(S::CE_CheckBox, &option, &painter, nullptr);
  };
  const QRect odd(3, 0, 34, 23);
  EXPECT_EQ(Shown(QStyleOptionButton(), kEnabled, draw, odd).second, ". 3, ~ 2, Base 12, ~ 2, . 5");
}

TEST(Style, AComboHasItsArrowAtTheEnd) {
  for (const ShownRow& row : {
           ShownRow{"at rest", kEnabled,
                    ". 3, Dark 1, Base 16, ~ 2, Text 1, ~ 2, Text 1, ~ 2, Base 8, Dark 1, . 3",
                    ". 2, Dark 1, Base 6, ~ 1, Text 1, ~ 2, Base 8, Dark 1, . 2"},
           ShownRow{
               "focused", kFocused,
               ". 3, Highlight 2, Base 15, ~ 2, Text 1, ~ 2, Text 1, ~ 2, Base 7, Highlight 2, . 3",
               ". 2, Highlight 2, Base 5, ~ 1, Text 1, ~ 2, Base 7, Highlight 2, . 2"},
           ShownRow{"disabled", kDisabled,
                    ". 3, disabled Mid 1, disabled Base 16, ~ 2, disabled Text 1, ~ 2, disabled "
                    "Text 1, ~ 2, disabled Base 8, disabled Mid 1, . 3",
                    ". 2, disabled Mid 1, disabled Base 6, ~ 1, disabled Text 1, ~ 2, disabled "
                    "Base 8, disabled Mid 1, . 2"},
       }) {
    ExpectShown(row, QStyleOptionComboBox(),
                [](const S& style, const QStyleOptionComboBox& option, QPainter& painter) {
                  style.drawComplexControl(S::CC_ComboBox, &option, &painter, nullptr);
                });
  }
}

TEST(Style, AScrollBarShowsItsHandleAloneAndDarkerWhileItIsHeld) {
  for (const ShownRow& row : {
           ShownRow{"at rest", kEnabled, ". 11, Mid 24, . 5", ". 4, Mid 16, . 4"},
           ShownRow{"held", kHovered, ". 11, Dark 24, . 5", ". 4, Dark 16, . 4"},
       }) {
    QStyleOptionSlider bar;
    bar.orientation = Qt::Horizontal;
    bar.maximum = 100;
    bar.pageStep = 100;
    bar.sliderPosition = 100;
    if (row.state == kHovered) bar.activeSubControls = S::SC_ScrollBarSlider;
    ExpectShown(row, bar, [](const S& style, const QStyleOptionSlider& option, QPainter& painter) {
      style.drawComplexControl(S::CC_ScrollBar, &option, &painter, nullptr);
    });
  }
  QStyleOptionSlider nothing;
  nothing.maximum = 0;
  ExpectShown({"with nothing to scroll", kEnabled, ". 40", ". 24"}, nothing,
              [](const S& style, const QStyleOptionSlider& option, QPainter& painter) {
                style.drawComplexControl(S::CC_ScrollBar, &option, &painter, nullptr);
              });
}

}  // namespace
}  // namespace mortane
