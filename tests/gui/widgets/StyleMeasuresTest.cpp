// How large the ordinary controls and their parts are.
#include <gtest/gtest.h>

#include <QApplication>
#include <QPlainTextEdit>
#include <QStyleOption>

#include "widgets/StylePrimitives.h"

namespace mortane {
namespace {

using namespace Qt::StringLiterals;
using S = QStyle;

QStyleOptionSlider Bar(int maximum, int position) {
  QStyleOptionSlider bar;
  bar.orientation = Qt::Vertical;
  bar.rect = {10, 20, 12, 100};
  bar.minimum = 0;
  bar.maximum = maximum;
  bar.pageStep = 100;
  bar.sliderPosition = position;
  return bar;
}

struct HandleRow {
  int maximum;
  int position;
  int top;  // of the handle, in the bar
  int height;
};

TEST(StyleMeasures, AHandleShowsTheShareThatIsSeen) {
  for (const HandleRow& row :
       {HandleRow{0, 0, 0, 100}, HandleRow{100, 0, 0, 50}, HandleRow{100, 50, 25, 50},
        HandleRow{100, 100, 50, 50}, HandleRow{300, 300, 72, 28}, HandleRow{1, 1, 1, 99}}) {
    const QStyleOptionSlider bar = Bar(row.maximum, row.position);
    const int end = row.top + row.height;
    EXPECT_EQ(ScrollBarPart(bar, S::SC_ScrollBarSlider), QRect(10, 20 + row.top, 12, row.height));
    EXPECT_EQ(ScrollBarPart(bar, S::SC_ScrollBarSubPage), QRect(10, 20, 12, row.top));
    EXPECT_EQ(ScrollBarPart(bar, S::SC_ScrollBarAddPage), QRect(10, 20 + end, 12, 100 - end));
    QStyleOptionSlider level = bar;
    level.orientation = Qt::Horizontal;
    level.rect = {20, 10, 100, 12};
    EXPECT_EQ(ScrollBarPart(level, S::SC_ScrollBarSlider), QRect(20 + row.top, 10, row.height, 12));
  }
  const S& style = *QApplication::style();
  const QStyleOptionSlider half = Bar(100, 50);
  for (const S::SubControl part :
       {S::SC_ScrollBarSlider, S::SC_ScrollBarSubPage, S::SC_ScrollBarAddPage,
        S::SC_ScrollBarGroove, S::SC_ScrollBarAddLine, S::SC_ScrollBarSubLine}) {
    EXPECT_EQ(style.subControlRect(S::CC_ScrollBar, &half, part, nullptr),
              ScrollBarPart(half, part));
  }
  const QStyleOptionSlider bar = Bar(100, 0);
  EXPECT_EQ(ScrollBarPart(bar, S::SC_ScrollBarGroove), bar.rect);
  EXPECT_EQ(ScrollBarPart(bar, S::SC_ScrollBarAddLine), QRect());
  QStyleOptionSlider low = Bar(300, 0);
  low.rect.setHeight(20);
  EXPECT_EQ(ScrollBarPart(low, S::SC_ScrollBarSlider).height(), 20) << "lower than a handle";
}

struct MetricRow {
  S::PixelMetric metric;
  int value;
};

TEST(StyleMeasures, MeasuresAreThoseOfTheGrid) {
  for (const MetricRow& row :
       {MetricRow{S::PM_IndicatorWidth, 16}, MetricRow{S::PM_IndicatorHeight, 16},
        MetricRow{S::PM_ExclusiveIndicatorWidth, 16}, MetricRow{S::PM_ExclusiveIndicatorHeight, 16},
        MetricRow{S::PM_CheckBoxLabelSpacing, 8}, MetricRow{S::PM_RadioButtonLabelSpacing, 8},
        MetricRow{S::PM_ScrollBarExtent, 12}, MetricRow{S::PM_ScrollBarSliderMin, 28},
        MetricRow{S::PM_ScrollView_ScrollBarSpacing, 0}, MetricRow{S::PM_ButtonShiftHorizontal, 0},
        MetricRow{S::PM_ButtonShiftVertical, 0}, MetricRow{S::PM_ToolBarFrameWidth, 0},
        MetricRow{S::PM_MenuBarPanelWidth, 0}, MetricRow{S::PM_ToolBarItemSpacing, 8},
        MetricRow{S::PM_ToolBarItemMargin, 6}, MetricRow{S::PM_FocusFrameHMargin, 7},
        MetricRow{S::PM_HeaderMargin, 8}}) {
    EXPECT_EQ(QApplication::style()->pixelMetric(row.metric), row.value) << row.metric;
  }
  const QPlainTextEdit list;
  EXPECT_EQ(QApplication::style()->pixelMetric(S::PM_DefaultFrameWidth, nullptr, &list), 2);
}

template <class Option>
QSize SizeOf(S::ContentsType type, const Option& option, const QSize& contents) {
  return QApplication::style()->sizeFromContents(type, &option, contents, nullptr);
}

// In the font of the application, in which no row is higher than the grid wants it.
TEST(StyleMeasures, ControlsAreAsLargeAsTheGridWantsThem) {
  const QFontMetrics metrics(QApplication::font());
  ASSERT_LE(metrics.height(), 18);
  QStyleOptionButton button;
  button.fontMetrics = metrics;
  button.text = u"Send"_s;
  EXPECT_EQ(SizeOf(S::CT_PushButton, button, {100, 16}), QSize(136, 30));
  button.text.clear();
  QPixmap pixmap(16, 16);
  pixmap.fill(Qt::red);
  button.icon = pixmap;
  EXPECT_EQ(SizeOf(S::CT_PushButton, button, {20, 16}), QSize(34, 30)) << "a picture alone";
  EXPECT_EQ(SizeOf(S::CT_PushButton, button, {50, 16}), QSize(54, 30));
  QStyleOptionComboBox combo;
  combo.fontMetrics = metrics;
  EXPECT_EQ(SizeOf(S::CT_ComboBox, combo, {100, 16}), QSize(138, 30));
  QStyleOptionFrame field;
  field.fontMetrics = metrics;
  EXPECT_EQ(SizeOf(S::CT_LineEdit, field, {100, 16}).height(), 30);
  EXPECT_GE(SizeOf(S::CT_LineEdit, field, {100, 60}).height(), 60);
  QStyleOptionHeader header;
  header.fontMetrics = metrics;
  EXPECT_EQ(SizeOf(S::CT_HeaderSection, header, {100, 16}).height(), 28);
  QStyleOptionToolButton tool;
  tool.fontMetrics = metrics;
  tool.toolButtonStyle = Qt::ToolButtonTextBesideIcon;
  tool.iconSize = {22, 22};
  tool.text = u"Send"_s;
  EXPECT_EQ(SizeOf(S::CT_ToolButton, tool, {50, 16}),
            QSize(22 + 6 + metrics.size(Qt::TextShowMnemonic, tool.text).width() + 20, 30));
  QStyleOptionMenuItem menu;
  menu.fontMetrics = metrics;
  menu.menuItemType = QStyleOptionMenuItem::Normal;
  EXPECT_EQ(SizeOf(S::CT_MenuItem, menu, {100, 1}).height(), metrics.height() + 10);
}

TEST(StyleMeasures, AComboShowsItsTextBeforeItsArrow) {
  QStyleOptionComboBox combo;
  combo.rect = {10, 20, 100, 30};
  const S& style = *QApplication::style();
  const auto part = [&](S::SubControl which) {
    return style.subControlRect(S::CC_ComboBox, &combo, which, nullptr);
  };
  EXPECT_EQ(part(S::SC_ComboBoxEditField), QRect(18, 22, 66, 26));
  EXPECT_EQ(part(S::SC_ComboBoxArrow), QRect(84, 20, 26, 30));
  EXPECT_EQ(part(S::SC_ComboBoxFrame), combo.rect);
}

// Of a wider row; the room behind it belongs to nothing.
TEST(StyleMeasures, AClickOnAnOptionIsOneOnItsIndicatorOrItsText) {
  QStyleOptionButton option;
  option.fontMetrics = QFontMetrics(QApplication::font());
  option.text = u"With"_s;
  const int text = option.fontMetrics.size(Qt::TextShowMnemonic, option.text).width();
  const S& style = *QApplication::style();
  for (const S::SubElement element : {S::SE_RadioButtonClickRect, S::SE_CheckBoxClickRect}) {
    option.rect = {10, 20, 300, 26};
    EXPECT_EQ(style.subElementRect(element, &option), QRect(10, 20, 16 + 8 + text + 10, 26));
    option.rect.setWidth(30);
    EXPECT_EQ(style.subElementRect(element, &option), option.rect);
  }
}

}  // namespace
}  // namespace mortane
