#include "widgets/StylePrimitives.h"

#include <QPainter>
#include <QPalette>
#include <QStyleOption>
#include <QWidget>

#include "widgets/Paint.h"
#include "widgets/StyleProperties.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

constexpr int kToolButtonPadding = 10;
constexpr int kBesideToolIcon = 6;

bool Has(const QStyleOption& option, QStyle::StateFlag flag) {
  return option.state.testFlag(flag);
}

bool IsRefused(const QWidget* widget) {
  return widget != nullptr && widget->property(kRefusedProperty).toBool();
}

QColor FieldLine(const QStyleOption& option) {
  if (!Has(option, QStyle::State_Enabled)) return option.palette.color(QPalette::Mid);
  if (Has(option, QStyle::State_HasFocus)) return option.palette.color(QPalette::Highlight);
  return option.palette.color(QPalette::Dark);
}

bool IsMainButton(const QStyleOption& option, const QWidget* widget) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  return (button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton)) ||
         (widget != nullptr && widget->property(kMainProperty).toBool());
}

}  // namespace

void DrawFieldBox(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
  if (IsRefused(widget)) {
    DrawBox(painter, option.rect, ToneColor(Tone::RefusedBackground),
            {ToneColor(Tone::RefusedLine), 2, grid::kFieldCorner});
    return;
  }
  const bool readOnly = Has(option, QStyle::State_ReadOnly);
  const bool focused = Has(option, QStyle::State_HasFocus);
  const QColor fill = option.palette.color(readOnly ? QPalette::AlternateBase : QPalette::Base);
  const QColor line =
      readOnly && !focused ? option.palette.color(QPalette::Mid) : FieldLine(option);
  DrawBox(painter, option.rect, fill, {line, focused ? 2.0 : 1.0, grid::kFieldCorner});
}

void DrawListFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
  if (frame != nullptr && frame->lineWidth <= 0) return;
  const bool focused = widget != nullptr && widget->hasFocus();
  const QColor line = option.palette.color(focused ? QPalette::Highlight : QPalette::Mid);
  DrawBox(painter, option.rect, {}, {line, focused ? 2.0 : 1.0, grid::kFieldCorner});
}

void DrawCheckBoxIndicator(const QStyleOption& option, QPainter& painter) {
  const bool enabled = Has(option, QStyle::State_Enabled);
  const bool on = Has(option, QStyle::State_On);
  const QPalette& palette = option.palette;
  QColor fill = palette.color(QPalette::Base);
  QColor line = palette.color(enabled ? QPalette::Dark : QPalette::Mid);
  if (on && enabled) fill = line = palette.color(QPalette::Highlight);
  if (!on && enabled && Has(option, QStyle::State_MouseOver))
    line = palette.color(QPalette::Shadow);
  DrawBox(painter, option.rect, fill, {line, enabled && !on ? 1.2 : 1.0, 4, !enabled});
  if (on)
    DrawTick(painter, option.rect,
             enabled ? palette.color(QPalette::BrightText) : palette.color(QPalette::Text));
}

void DrawRadioIndicator(const QStyleOption& option, QPainter& painter) {
  const bool enabled = Has(option, QStyle::State_Enabled);
  const bool on = Has(option, QStyle::State_On);
  const QPalette& palette = option.palette;
  const double side = qMin(option.rect.width(), option.rect.height());
  QRectF circle(0, 0, side, side);
  circle.moveCenter(QRectF(option.rect).center());
  QColor line = palette.color(enabled ? QPalette::Dark : QPalette::Mid);
  QColor fill = palette.color(QPalette::Base);
  if (on && enabled) fill = line = palette.color(QPalette::Highlight);
  DrawBox(painter, circle, fill, {line, 1.2, side / 2, !enabled});
  if (!on) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette.color(enabled ? QPalette::BrightText : QPalette::Text));
  painter.drawEllipse(circle.center(), side * 0.18, side * 0.18);
  painter.restore();
}

void DrawButtonBox(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
  const QPalette& palette = option.palette;
  const bool enabled = Has(option, QStyle::State_Enabled);
  const bool main = enabled && IsMainButton(option, widget);
  const bool pressed = Has(option, QStyle::State_Sunken) || Has(option, QStyle::State_On);
  QColor fill = palette.color(main ? QPalette::Highlight : QPalette::Button);
  QColor line = main ? fill : palette.color(QPalette::Mid);
  if (!enabled) fill = palette.color(QPalette::Base);
  if (enabled && pressed) fill = main ? fill.darker(125) : palette.color(QPalette::Mid);
  if (enabled && !pressed && Has(option, QStyle::State_MouseOver)) {
    if (main)
      fill = fill.lighter(112);
    else
      line = palette.color(QPalette::Dark);
  }
  DrawBox(painter, option.rect, fill, {line, 1, grid::kFieldCorner});
  if (!Has(option, QStyle::State_HasFocus)) return;
  if (main)
    DrawBox(painter, QRectF(option.rect).adjusted(2, 2, -2, -2), {},
            {palette.color(QPalette::BrightText), 1.5, grid::kFieldCorner - 1.5});
  else
    DrawBox(painter, option.rect, {}, {palette.color(QPalette::Highlight), 2, grid::kFieldCorner});
}

void DrawRowBackground(const QStyleOption& option, QPainter& painter) {
  if (Has(option, QStyle::State_Selected))
    painter.fillRect(option.rect, option.palette.color(QPalette::Highlight));
}

void DrawFocusLine(const QStyleOption& option, QPainter& painter) {
  DrawBox(painter, option.rect, {},
          {option.palette.color(QPalette::Highlight), 2, grid::kFieldCorner});
}

void DrawToolButtonBox(const QStyleOption& option, QPainter& painter) {
  const bool enabled = Has(option, QStyle::State_Enabled);
  const bool pressed = Has(option, QStyle::State_Sunken) || Has(option, QStyle::State_On);
  const bool hover = Has(option, QStyle::State_MouseOver);
  if (enabled && (pressed || hover)) {
    const QColor fill = option.palette.color(pressed ? QPalette::Mid : QPalette::Button);
    DrawBox(painter, option.rect, fill, {{}, 0, grid::kFieldCorner});
  }
  if (Has(option, QStyle::State_HasFocus)) DrawFocusLine(option, painter);
}

QSize ToolButtonSize(const QStyleOptionToolButton& option, const QSize& without) {
  if (option.toolButtonStyle != Qt::ToolButtonTextBesideIcon) return without;
  const QSize text = option.fontMetrics.size(Qt::TextShowMnemonic, option.text);
  return {option.iconSize.width() + kBesideToolIcon + text.width() + 2 * kToolButtonPadding,
          GridHeight(grid::kFieldHeight, option.fontMetrics)};
}

void DrawToolButtonLabel(const QStyleOptionToolButton& option, QPainter& painter) {
  const bool enabled = Has(option, QStyle::State_Enabled);
  const QRect inside = option.rect.adjusted(kToolButtonPadding, 0, 0, 0);
  const QRect icon =
      QStyle::alignedRect(option.direction, Qt::AlignLeft | Qt::AlignVCenter, option.iconSize,
                          QStyle::visualRect(option.direction, option.rect, inside));
  option.icon.paint(&painter, icon, Qt::AlignCenter, enabled ? QIcon::Normal : QIcon::Disabled);
  const QRect text = inside.adjusted(option.iconSize.width() + kBesideToolIcon, 0, 0, 0);
  painter.setFont(option.font);
  painter.setPen(option.palette.color(QPalette::ButtonText));
  const Qt::Alignment alignment = QStyle::visualAlignment(option.direction, Qt::AlignLeft);
  painter.drawText(QStyle::visualRect(option.direction, option.rect, text),
                   static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextShowMnemonic,
                   option.text);
}

void DrawHeaderSection(const QStyleOption& option, QPainter& painter) {
  painter.fillRect(option.rect, option.palette.color(QPalette::AlternateBase));
  painter.fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                   option.palette.color(QPalette::Mid));
}

void DrawMenuBarItem(const QStyleOptionMenuItem& option, QPainter& painter) {
  painter.fillRect(option.rect, option.palette.color(QPalette::Window));
  const bool active = Has(option, QStyle::State_Selected) && Has(option, QStyle::State_Enabled);
  if (active)
    DrawBox(painter, QRectF(option.rect).adjusted(2, 2, -2, -2),
            option.palette.color(QPalette::Highlight), {{}, 0, grid::kFieldCorner});
  painter.setPen(option.palette.color(active ? QPalette::HighlightedText : QPalette::ButtonText));
  painter.drawText(option.rect, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine,
                   option.text);
}

void DrawBar(const QStyleOption& option, QPainter& painter, Qt::Edge line) {
  painter.fillRect(option.rect, option.palette.color(QPalette::Window));
  const int y = line == Qt::TopEdge ? option.rect.top() : option.rect.bottom();
  painter.fillRect(QRect(option.rect.left(), y, option.rect.width(), 1),
                   option.palette.color(QPalette::Active, QPalette::Mid));
}

QRect ScrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part) {
  const bool horizontal = bar.orientation == Qt::Horizontal;
  const int length = horizontal ? bar.rect.width() : bar.rect.height();
  const int range = bar.maximum - bar.minimum;
  int handle = length;
  if (range > 0)
    handle = qBound(
        qMin(kScrollBarLeastHandle, length),
        static_cast<int>(qint64{length} * bar.pageStep / (qint64{range} + bar.pageStep)), length);
  const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                    length - handle, bar.upsideDown);
  const auto slice = [&](int from, int size) {
    return horizontal ? QRect(bar.rect.left() + from, bar.rect.top(), size, bar.rect.height())
                      : QRect(bar.rect.left(), bar.rect.top() + from, bar.rect.width(), size);
  };
  switch (part) {
    case QStyle::SC_ScrollBarSlider:
      return slice(start, handle);
    case QStyle::SC_ScrollBarSubPage:
      return slice(0, start);
    case QStyle::SC_ScrollBarAddPage:
      return slice(start + handle, length - start - handle);
    case QStyle::SC_ScrollBarGroove:
      return bar.rect;
    default:
      return {};
  }
}

}  // namespace mortane
