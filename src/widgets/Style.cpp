#include "widgets/Style.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPointer>
#include <QStyleOption>

#include "widgets/AltKeys.h"
#include "widgets/ElidedTip.h"
#include "widgets/LateIcon.h"
#include "widgets/NotSentMark.h"
#include "widgets/Paint.h"
#include "widgets/StylePrimitives.h"
#include "widgets/StyleProperties.h"
#include "widgets/Theme.h"

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

constexpr int kIndicatorSide = 16;
constexpr int kListFrameWidth = 2;
constexpr int kCellMargin = 7;
constexpr int kHeaderMargin = kCellMargin + 1;  // which cells have in addition
constexpr int kScrollBarExtent = 12;
constexpr int kComboTextMargin = 8;
constexpr int kComboArrowWidth = 26;
constexpr int kButtonPadding = 18;
constexpr int kToolBarMargin = 6;
constexpr int kOptionInset = 5;  // keeps indicator and text clear of the line of the focus

// What an option or a check box takes of a wider row: indicator, label and room for the focus.
QRect OptionArea(const QStyleOptionButton& option) {
  const int text =
      option.fontMetrics.size(Qt::TextShowMnemonic, option.text).width() + 2 * kOptionInset;
  const int width = qMin(option.rect.width(), kIndicatorSide + grid::kBetweenControls + text);
  return QStyle::visualRect(option.direction, option.rect,
                            QRect(option.rect.topLeft(), QSize(width, option.rect.height())));
}

bool IsField(const QWidget& widget) {
  return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr;
}

bool IsPictureOnly(const QStyleOption& option) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  return button != nullptr && button->text.isEmpty() && !button->icon.isNull();
}

}  // namespace

Style::Style() : QProxyStyle(u"Fusion"_s), altKeys_(new AltKeys(this)) {}

void Style::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (IsField(*widget)) widget->installEventFilter(altKeys_);
}

void Style::unpolish(QWidget* widget) {
  widget->removeEventFilter(altKeys_);
  QProxyStyle::unpolish(widget);
}

// A menu bar and a tool bar ask for the picture of a button that they show where they lack room.
QIcon Style::standardIcon(StandardPixmap icon, const QStyleOption* option,
                          const QWidget* widget) const {
  if (icon != SP_ToolBarHorizontalExtensionButton && icon != SP_ToolBarVerticalExtensionButton)
    return QProxyStyle::standardIcon(icon, option, widget);
  return LateIcon([style = QPointer<QStyle>(baseStyle()), icon] {
    return style == nullptr ? QIcon() : style->standardIcon(icon);
  });
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option,
                       const QWidget* widget) const {
  switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return kIndicatorSide;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
      return grid::kBetweenControls;
    case PM_ScrollBarExtent:
      return kScrollBarExtent;
    case PM_ScrollBarSliderMin:
      return kScrollBarLeastHandle;
    case PM_ScrollView_ScrollBarSpacing:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
    case PM_ToolBarFrameWidth:
    case PM_MenuBarPanelWidth:
      return 0;
    case PM_ToolBarItemSpacing:
      return grid::kBetweenControls;
    case PM_ToolBarItemMargin:
      return kToolBarMargin;
    case PM_DefaultFrameWidth:
      // Room for the line of the focus, inside which the corners of the contents are hidden.
      return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr
                 ? kListFrameWidth
                 : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_FocusFrameHMargin:
      return kCellMargin;
    case PM_HeaderMargin:
      return kHeaderMargin;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* data) const {
  switch (hint) {
    case SH_EtchDisabledText:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_ComboBox_Popup:
    case SH_Widget_Animate:
    case SH_Widget_Animation_Duration:
    case SH_ItemView_ActivateItemOnSingleClick:
      return 0;
    case SH_ItemView_ShowDecorationSelected:
      return 1;
    default:
      return QProxyStyle::styleHint(hint, option, widget, data);
  }
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                              const QWidget* widget) const {
  QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
  if (option == nullptr) return result;
  const int field = GridHeight(grid::kFieldHeight, option->fontMetrics);
  switch (type) {
    case CT_LineEdit:
      result.setHeight(qMax(result.height(), field));
      break;
    case CT_ComboBox:
      result = QSize(size.width() + kComboTextMargin + kComboArrowWidth + grid::kUnit, field);
      break;
    case CT_PushButton:
      if (IsPictureOnly(*option))
        result = QSize(qMax(size.width(), field) + grid::kUnit, field);
      else
        result = QSize(qMax(result.width(), size.width() + 2 * kButtonPadding), field);
      break;
    case CT_HeaderSection:
      result.setHeight(GridHeight(28, option->fontMetrics));
      break;
    case CT_RadioButton:
    case CT_CheckBox:
      result = QSize(result.width() + 2 * kOptionInset, qMax(result.height(), field - 4));
      break;
    case CT_ToolButton:
      if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option))
        result = ToolButtonSize(*button, result);
      break;
    case CT_MenuBarItem:
      result += QSize(grid::kBetweenGroups, grid::kBetweenControls);
      break;
    case CT_MenuItem:
      result.setHeight(qMax(result.height(), option->fontMetrics.height() + 10));
      break;
    default:
      break;
  }
  return result;
}

QRect Style::subElementRect(SubElement element, const QStyleOption* option,
                            const QWidget* widget) const {
  if (element == SE_RadioButtonClickRect || element == SE_CheckBoxClickRect)
    if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
      return OptionArea(*button);
  return QProxyStyle::subElementRect(element, option, widget);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
  switch (element) {
    case PE_PanelLineEdit: {
      const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
      if (frame != nullptr && frame->lineWidth <= 0) return;
      return DrawFieldBox(*option, *painter, widget);
    }
    case PE_FrameLineEdit:
      return;
    case PE_Frame:
      if (qobject_cast<const QAbstractScrollArea*>(widget) == nullptr) break;
      return DrawListFrame(*option, *painter, widget);
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
      return DrawCheckBoxIndicator(*option, *painter);
    case PE_IndicatorRadioButton:
      return DrawRadioIndicator(*option, *painter);
    case PE_PanelButtonCommand:
      return DrawButtonBox(*option, *painter, widget);
    case PE_PanelButtonTool:
      return DrawToolButtonBox(*option, *painter);
    case PE_PanelItemViewItem:
      return DrawRowBackground(*option, *painter);
    case PE_FrameFocusRect:
      if (qobject_cast<const QAbstractItemView*>(widget) != nullptr ||
          (widget != nullptr && widget->inherits("QPushButton")))
        return;
      return DrawFocusLine(*option, *painter);
    case PE_PanelStatusBar:
      return DrawBar(*option, *painter, Qt::TopEdge);
    case PE_PanelItemViewRow:
    case PE_FrameStatusBarItem:
      return;
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

// Indicator and label stand clear of the line of the focus, which goes round both.
void Style::DrawOption(const QStyleOptionButton& option, bool radio, QPainter& painter,
                       const QWidget* widget) const {
  const QRect inside = option.rect.adjusted(kOptionInset, 0, -kOptionInset, 0);
  QStyleOptionButton part = option;
  part.rect = alignedRect(option.direction, Qt::AlignLeft | Qt::AlignVCenter,
                          QSize(kIndicatorSide, kIndicatorSide), inside);
  if (radio)
    DrawRadioIndicator(part, painter);
  else
    DrawCheckBoxIndicator(part, painter);
  if (widget != nullptr && !NoteOfNotSent(*widget).isEmpty()) {
    DrawPendingDot(painter, QRectF(part.rect).topRight(), option.palette.color(QPalette::Link),
                   option.palette.color(QPalette::Base));
  }
  const int offset = kIndicatorSide + grid::kBetweenControls;
  part.rect = visualRect(option.direction, inside, inside.adjusted(offset, 0, 0, 0));
  QProxyStyle::drawControl(radio ? CE_RadioButtonLabel : CE_CheckBoxLabel, &part, &painter, widget);
  part.rect = OptionArea(option);
  if (option.state.testFlag(State_HasFocus)) DrawFocusLine(part, painter);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
  switch (element) {
    case CE_HeaderSection:
    case CE_HeaderEmptyArea:
      return DrawHeaderSection(*option, *painter);
    case CE_HeaderLabel:
      if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option)) {
        painter->setPen(option->palette.color(QPalette::PlaceholderText));
        // The toolkit leaves the margin at all sides; above and below a large font needs it.
        const QRect label = header->rect.adjusted(0, -kHeaderMargin, 0, kHeaderMargin);
        painter->drawText(label, static_cast<int>(header->textAlignment) | Qt::AlignVCenter,
                          header->text);
      }
      return;
    case CE_ComboBoxLabel:
      if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
        QStyleOptionComboBox elided = *combo;
        const QRect shown = subControlRect(CC_ComboBox, combo, SC_ComboBoxEditField, widget);
        elided.currentText = ShownIn(shown.width(), combo->currentText, combo->fontMetrics);
        return QProxyStyle::drawControl(element, &elided, painter, widget);
      }
      break;
    case CE_ToolButtonLabel:
      if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option)) {
        if (button->toolButtonStyle != Qt::ToolButtonTextBesideIcon) break;
        return DrawToolButtonLabel(*button, *painter);
      }
      break;
    case CE_RadioButton:
    case CE_CheckBox:
      if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
        return DrawOption(*button, element == CE_RadioButton, *painter, widget);
      break;
    case CE_PushButtonLabel:
      if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
        QStyleOptionButton copy = *button;
        if (copy.state.testFlag(State_Enabled) &&
            (copy.features.testFlag(QStyleOptionButton::DefaultButton) ||
             (widget != nullptr && widget->property(kMainProperty).toBool())))
          copy.palette.setColor(QPalette::ButtonText, copy.palette.color(QPalette::BrightText));
        return QProxyStyle::drawControl(element, &copy, painter, widget);
      }
      break;
    case CE_ToolBar:
      return DrawBar(*option, *painter, Qt::BottomEdge);
    case CE_MenuBarEmptyArea:
      painter->fillRect(option->rect, option->palette.color(QPalette::Window));
      return;
    case CE_MenuBarItem:
      if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
        DrawMenuBarItem(*item, *painter);
        return;
      }
      break;
    default:
      break;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                               QPainter* painter, const QWidget* widget) const {
  if (control == CC_ComboBox) return DrawComboBox(*option, *painter);
  if (control == CC_ScrollBar) return DrawScrollBar(*option, *painter, widget);
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                            SubControl subControl, const QWidget* widget) const {
  if (control == CC_ComboBox && subControl == SC_ComboBoxEditField)
    return visualRect(option->direction, option->rect,
                      option->rect.adjusted(kComboTextMargin, 2, -kComboArrowWidth, -2));
  if (control == CC_ComboBox && subControl == SC_ComboBoxArrow)
    return visualRect(option->direction, option->rect,
                      QRect(option->rect.right() - kComboArrowWidth + 1, option->rect.top(),
                            kComboArrowWidth, option->rect.height()));
  if (control == CC_ScrollBar)
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
      return ScrollBarPart(*bar, subControl);
  return QProxyStyle::subControlRect(control, option, subControl, widget);
}

void Style::DrawComboBox(const QStyleOptionComplex& option, QPainter& painter) const {
  DrawFieldBox(option, painter, nullptr);
  const QRect arrow = subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, nullptr);
  DrawChevronDown(painter, arrow, option.palette.color(QPalette::Text));
}

void Style::DrawScrollBar(const QStyleOptionComplex& option, QPainter& painter,
                          const QWidget* widget) const {
  const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(&option);
  if (bar == nullptr || bar->maximum <= bar->minimum) return;
  const QRectF handle = subControlRect(CC_ScrollBar, &option, SC_ScrollBarSlider, widget);
  const bool held =
      bar->activeSubControls.testFlag(SC_ScrollBarSlider) && bar->state.testFlag(State_MouseOver);
  const QColor fill = option.palette.color(held ? QPalette::Dark : QPalette::Mid);
  DrawBox(painter, handle.adjusted(2, 2, -2, -2), fill, {{}, 0, 4});
}

}  // namespace mortane
